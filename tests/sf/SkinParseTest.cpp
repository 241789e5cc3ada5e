// Reading skin strings, and the rectangle and text crossings to Qt.

#include "sf/qt/SFQtConvert.h"
#include "sf/qt/SFSkinParse.h"

#include <QColor>
#include <QRect>
#include <QSize>
#include <algorithm>
#include <gtest/gtest.h>
#include <initializer_list>
#include <iterator>
#include <string>
#include <utility>

namespace {

// Every text of the table, read by parse, gives its expected value.
template <class T, class Parse>
void ExpectReads(Parse parse, std::initializer_list<std::pair<const wchar_t*, T>> cases)
{
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(parse(text), expected)
            << '"' << QString::fromWCharArray(text).toStdString() << '"';
}

TEST(SkinStrings, RectanglesAreInclusive)
{
    ExpectReads<QRect>(static_cast<QRect (*)(const wchar_t*)>(SFParseRect),
                       {
                           { L"0,0,10,27", QRect(QPoint(0, 0), QPoint(9, 26)) },
                           { L"", QRect(QPoint(0, 0), QPoint(-1, -1)) },
                           { L"-30,5,20,20", QRect(QPoint(-30, 5), QPoint(-11, 24)) },
                           // Missing numbers stay 0: a rectangle with no width.
                           { L"5,6", QRect(QPoint(5, 6), QPoint(4, 5)) },
                           { L"0,0,-1,-1", QRect(QPoint(0, 0), QPoint(-2, -2)) },
                       });
}

TEST(SkinStrings, ColoursAreHexPairs)
{
    const auto rgba = [](const wchar_t* text) { return SFParseColor(text).rgba(); };
    ExpectReads<QRgb>(rgba, {
                                { L"333333", qRgba(51, 51, 51, 255) },
                                { L"FF8000", qRgba(255, 128, 0, 255) },
                                { L"12345", qRgba(0, 0, 0, 255) },
                                // A pair that is no number reads as 0, a half number as its digit.
                                { L"zz1g10", qRgba(0, 1, 16, 255) },
                            });
}

TEST(SkinStrings, SizesNeedExactlyTwoParts)
{
    ExpectReads<QSize>(static_cast<QSize (*)(const wchar_t*)>(SFParseSize),
                       {
                           { L"1100,750", QSize(1100, 750) },
                           { L"1100", QSize(0, 0) },
                           { L"1,2,3", QSize(0, 0) },
                           { L"  4,5  ", QSize(4, 5) },
                       });
}

TEST(ColorFromRef, RedInTheLowByteAndAlwaysOpaque)
{
    EXPECT_EQ(SFColorFromRef(0x00FF8040ul).rgba(), QColor(0x40, 0x80, 0xFF, 255).rgba());
    EXPECT_EQ(SFColorFromRef(0xAA000000ul).rgba(), QColor(0, 0, 0, 255).rgba());
}

TEST(RectCrossings, CreateIsExclusiveMoveIsInclusive)
{
    const tagRECT r{ 10, 10, 110, 40 };
    EXPECT_EQ(SFRectForCreate(r).size(), QSize(100, 30));
    EXPECT_EQ(SFRectInclusive(r).size(), QSize(101, 31));
    EXPECT_EQ(SFRectFromXYWH(10, 10, 100, 30), QRect(10, 10, 100, 30));
    const tagRECT back = SFToTagRectExclusive(SFRectForCreate(r));
    EXPECT_EQ(back.right, 110);
    EXPECT_EQ(back.bottom, 40);
}

TEST(TextCrossing, WideTextKeepsEveryCharacter)
{
    const std::wstring text = L"Gr\u00f6\u00dfe \u65e5\u672c \U0001F600";
    EXPECT_EQ(SFToQString(text.c_str()), QString::fromStdWString(text));
    EXPECT_TRUE(SFToQString(static_cast<const wchar_t*>(nullptr)).isEmpty());
}

TEST(TextCrossing, CopyEndsWithinTheBufferAndReportsTheWholeLength)
{
    const struct {
        int size;
        const wchar_t* copied;
    } cases[] = { { 10, L"Add" }, { 4, L"Add" }, { 3, L"Ad" }, { 1, L"" } };
    for (const auto& c : cases) {
        wchar_t buffer[10];
        std::fill(std::begin(buffer), std::end(buffer), L'#');
        EXPECT_EQ(SFCopyText(QStringLiteral("Add"), buffer, c.size), 3) << c.size;
        EXPECT_EQ(std::wstring(buffer), c.copied) << c.size;
    }
    EXPECT_EQ(SFCopyText(QStringLiteral("Add"), nullptr, 5), 3);
}

} // namespace

// Reading skin strings, and the rectangle and text crossings to Qt.

#include "sf/qt/SFQtConvert.h"
#include "sf/qt/SFSkinParse.h"

#include <QColor>
#include <QRect>
#include <QSize>
#include <gtest/gtest.h>
#include <string>

namespace {

struct RectCase {
    const wchar_t* text;
    QRect expected;
};

class ParseRect : public testing::TestWithParam<RectCase> {
};

TEST_P(ParseRect, GivesInclusiveRectangle)
{
    EXPECT_EQ(SFParseRect(GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Strings, ParseRect,
    testing::Values(RectCase{ L"0,0,10,27", QRect(QPoint(0, 0), QPoint(9, 26)) },
                    RectCase{ L"", QRect(QPoint(0, 0), QPoint(-1, -1)) },
                    RectCase{ L"-30,5,20,20", QRect(QPoint(-30, 5), QPoint(-11, 24)) },
                    // Missing numbers stay 0: a rectangle with no width.
                    RectCase{ L"5,6", QRect(QPoint(5, 6), QPoint(4, 5)) },
                    RectCase{ L"0,0,-1,-1", QRect(QPoint(0, 0), QPoint(-2, -2)) }));

struct ColorCase {
    const wchar_t* text;
    QColor expected;
};

class ParseColor : public testing::TestWithParam<ColorCase> {
};

TEST_P(ParseColor, ReadsHexPairs)
{
    const QColor c = SFParseColor(GetParam().text);
    EXPECT_EQ(c.rgba(), GetParam().expected.rgba()) << c.name(QColor::HexArgb).toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Strings, ParseColor,
    testing::Values(ColorCase{ L"333333", QColor(51, 51, 51, 255) },
                    ColorCase{ L"FF8000", QColor(255, 128, 0, 255) },
                    ColorCase{ L"12345", QColor(0, 0, 0, 255) },
                    // A pair that is no number reads as 0, a half number as its digit.
                    ColorCase{ L"zz1g10", QColor(0, 1, 16, 255) }));

TEST(ColorFromRef, RedInTheLowByteAndAlwaysOpaque)
{
    EXPECT_EQ(SFColorFromRef(0x00FF8040ul).rgba(), QColor(0x40, 0x80, 0xFF, 255).rgba());
    EXPECT_EQ(SFColorFromRef(0xAA000000ul).rgba(), QColor(0, 0, 0, 255).rgba());
}

struct SizeCase {
    const wchar_t* text;
    QSize expected;
};

class ParseSize : public testing::TestWithParam<SizeCase> {
};

TEST_P(ParseSize, NeedsExactlyTwoParts)
{
    EXPECT_EQ(SFParseSize(GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Strings, ParseSize,
    testing::Values(SizeCase{ L"1100,750", QSize(1100, 750) }, SizeCase{ L"1100", QSize(0, 0) },
                    SizeCase{ L"1,2,3", QSize(0, 0) }, SizeCase{ L"  4,5  ", QSize(4, 5) }));


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

} // namespace

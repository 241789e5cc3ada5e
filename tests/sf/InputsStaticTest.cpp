// The label: growth to fit its text, DrawText-like alignment flags, colours,
// the text size style sheet and the flash that ends black.

#include "InputsTestSupport.h"

#include "SFControlTypes.h"
#include "SFFactory.h"
#include "SFQTStatic.h"

#include <QFontMetrics>
#include <QImage>
#include <QPropertyAnimation>
#include <QTest>
#include <gtest/gtest.h>

namespace {

const wchar_t* const kLong = L"Recording days needed for the whole installation";

CSFQTStatic* MakeLabel(CInputsHost& host, const wchar_t* text, const tagRECT& rect)
{
    auto* label = static_cast<CSFQTStatic*>(SFCreateStatic(nullptr));
    label->Create(text, SF_WS_VISIBLE, rect, host.Handle(), 5);
    return label;
}

QFont BoldFont(const QWidget* w, int pixels)
{
    QFont f = w->font();
    f.setWeight(QFont::Bold);
    f.setPixelSize(pixels);
    return f;
}

TEST(StaticGrowth, CreateKeepsALargerRectangleAndGrowsASmallerOne)
{
    CInputsHost host(QSize(700, 200));
    CSFQTStatic* roomy = MakeLabel(host, L"Day", tagRECT{ 10, 10, 110, 40 });
    EXPECT_EQ(roomy->geometry(), QRect(10, 10, 100, 30));
    EXPECT_EQ(roomy->objectName(), QStringLiteral("label_5"));
    EXPECT_EQ(roomy->accessibleName(), QStringLiteral("Day"));

    CSFQTStatic* tight = MakeLabel(host, kLong, tagRECT{ 20, 50, 30, 55 });
    const QFontMetrics fm(tight->font());
    EXPECT_EQ(tight->pos(), QPoint(20, 50));
    EXPECT_GE(tight->width(), fm.horizontalAdvance(QString::fromWCharArray(kLong)));
    EXPECT_GE(tight->height(), fm.height());
    SFDestroyControl(static_cast<CSFStatic*>(roomy));
    SFDestroyControl(static_cast<CSFStatic*>(tight));
}

TEST(StaticGrowth, SetStaticTextOnlyGrowsAndFitsTheBoldSizedText)
{
    CInputsHost host(QSize(900, 200));
    CSFQTStatic* label = MakeLabel(host, L"", tagRECT{ 10, 10, 60, 30 });
    label->SetTextBold(1);
    label->SetTextSize(15);
    label->SetStaticText(kLong);
    const QSize grown = label->size();
    EXPECT_GE(grown.width(),
              QFontMetrics(BoldFont(label, 15)).horizontalAdvance(QString::fromWCharArray(kLong)));
    EXPECT_EQ(label->pos(), QPoint(10, 10));
    EXPECT_EQ(label->accessibleName(), QString::fromWCharArray(kLong));

    label->SetStaticText(L"0.00GB");
    EXPECT_EQ(label->size(), grown);
    int w = 0, h = 0;
    label->GetTextSize(w, h);
    EXPECT_EQ(QSize(w, h), grown);
    SFDestroyControl(static_cast<CSFStatic*>(label));
}

struct AlignCase {
    unsigned int in;
    unsigned int flags;
};

void PrintTo(const AlignCase& c, std::ostream* os)
{
    *os << c.in;
}

class StaticAlign : public testing::TestWithParam<AlignCase> {};

TEST_P(StaticAlign, DrawTextBitsBecomeQtFlags)
{
    CSFQTStatic label(nullptr);
    EXPECT_EQ(label.GetTextAlignFlag(), 385u);
    label.SetTextAlignFlag(GetParam().in);
    EXPECT_EQ(label.GetTextAlignFlag(), GetParam().flags) << "in " << GetParam().in;
}

INSTANTIATE_TEST_SUITE_P(
    Bits, StaticAlign,
    testing::Values(AlignCase{ 0, 0x1 },        // left is the default branch
                    AlignCase{ 0x1, 0x4 },      // centre
                    AlignCase{ 0x2, 0x2 },      // right
                    AlignCase{ 0x3, 0x2 },      // right wins over centre
                    AlignCase{ 0x4, 0x81 },     // left, vertical centre
                    AlignCase{ 0x5, 0x84 },     // centred both ways
                    AlignCase{ 0x6, 0x82 },     // the channel label's 6
                    AlignCase{ 0x10, 0x1201 },  // word wrap, no clipping
                    AlignCase{ 0x2015, 0x1284 },// the message dialog's 8213
                    AlignCase{ 0x20, 0x101 },   // single line
                    AlignCase{ 0x24, 0x181 },   // the default again
                    AlignCase{ 0x30, 0x301 })); // single line undoes the wrap

TEST(StaticLook, ColoursOffsetAndTextSizeSheet)
{
    CInputsHost host;
    CSFQTStatic* label = MakeLabel(host, L"IIIIIIII", tagRECT{ 0, 0, 120, 30 });
    label->SetBgColor(0x0000FF, 1);    // COLORREF: red in the low byte
    label->SetTextColor(0x00FF00);
    label->SetTextOffset(40);
    label->SetTextSize(15);
    EXPECT_EQ(label->FontPixels(), 15);
    EXPECT_EQ(label->styleSheet(), QStringLiteral("QLabel {font-size:15px;}"));

    const QImage image = label->grab().toImage();
    EXPECT_EQ(QColor(image.pixel(2, 2)), QColor(255, 0, 0));
    int firstInk = -1;
    bool green = false;
    for (int x = 0; x < image.width() && !green; ++x)
        for (int y = 0; y < image.height(); ++y) {
            const QColor c(image.pixel(x, y));
            if (c != QColor(255, 0, 0) && firstInk < 0)
                firstInk = x;
            if (c == QColor(0, 255, 0)) {
                green = true;
                break;
            }
        }
    EXPECT_TRUE(green);
    EXPECT_GE(firstInk, 40);

    label->SetBgColor(0x0000FF, 2);    // only exactly 1 fills
    EXPECT_NE(QColor(label->grab().toImage().pixel(2, 2)), QColor(255, 0, 0));

    label->SetTextSize(0);
    EXPECT_EQ(label->FontPixels(), 15);
    EXPECT_EQ(label->styleSheet(), QStringLiteral("QLabel {font-size:0px;}"));
    SFDestroyControl(static_cast<CSFStatic*>(label));
}

TEST(StaticGeometry, GetGeometryIsExclusiveAndMoveSubtractsOne)
{
    CInputsHost host(QSize(1100, 200));
    CSFQTStatic* label = MakeLabel(host, L"1", tagRECT{ 750, 120, 1020, 145 });
    tagRECT r = label->GetGeometry();
    EXPECT_EQ((std::vector<long>{ r.left, r.top, r.right, r.bottom }),
              (std::vector<long>{ 750, 120, 1020, 145 }));
    tagRECT moved{ 910, 120, 1050, 145 };
    label->MoveWindow(&moved);
    r = label->GetGeometry();
    EXPECT_EQ(r.right, 1050);
    EXPECT_EQ(r.bottom, 145);
    label->MoveWindow(5, 6, 70, 20);
    EXPECT_EQ(label->geometry(), QRect(5, 6, 70, 20));
    SFDestroyControl(static_cast<CSFStatic*>(label));
}

TEST(StaticTwinkle, FlashesTwiceAndEndsBlack)
{
    CInputsHost host;
    CSFQTStatic* label = MakeLabel(host, L"12.00GB", tagRECT{ 0, 0, 120, 30 });
    label->SetTextColor(0x0000FF);
    label->SetTwinkleDuration(200);
    label->StartTwinkle();
    ASSERT_TRUE(label->TwinkleRunning());
    auto* animation = label->findChild<QPropertyAnimation*>();
    ASSERT_NE(animation, nullptr);
    EXPECT_EQ(animation->propertyName(), QByteArray("Color"));
    EXPECT_EQ(animation->loopCount(), 2);
    EXPECT_EQ(animation->keyValueAt(0.5).value<QColor>(), QColor(0, 0, 0, 0));
    EXPECT_TRUE(QTest::qWaitFor([label] { return label->TextColor().alpha() < 128; }, 2000));
    EXPECT_TRUE(QTest::qWaitFor([label] { return !label->TwinkleRunning(); }, 3000));
    EXPECT_EQ(label->TextColor(), QColor(0, 0, 0, 255));

    // A running flash on a disabled label is left alone.
    label->SetTwinkleDuration(5000);
    label->StartTwinkle();
    QPropertyAnimation* first = label->findChildren<QPropertyAnimation*>().last();
    ASSERT_TRUE(QTest::qWaitFor([first] { return first->currentTime() >= 100; }, 2000));
    label->setEnabled(false);
    label->StartTwinkle();
    EXPECT_EQ(label->findChildren<QPropertyAnimation*>().last(), first);
    EXPECT_GE(first->currentTime(), 100);
    label->setEnabled(true);
    label->StartTwinkle();
    EXPECT_LT(label->findChildren<QPropertyAnimation*>().last()->currentTime(), 100);
    EXPECT_EQ(label->findChildren<QPropertyAnimation*>().size(), 1);
    SFDestroyControl(static_cast<CSFStatic*>(label));
}

} // namespace

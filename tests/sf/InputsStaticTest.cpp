// The label: DrawText-like alignment flags and the flash that ends black.

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


CSFQTStatic* MakeLabel(CInputsHost& host, const wchar_t* text, const tagRECT& rect)
{
    auto* label = static_cast<CSFQTStatic*>(SFCreateStatic(nullptr));
    label->Create(text, SF_WS_VISIBLE, rect, host.Handle(), 5);
    return label;
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
    testing::Values(AlignCase{ 0x3, 0x2 },      // right wins over centre
                    AlignCase{ 0x2015, 0x1284 },// the message dialog's 8213
                    AlignCase{ 0x30, 0x301 })); // single line undoes the wrap

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

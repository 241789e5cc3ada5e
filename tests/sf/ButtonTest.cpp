// The image button: its states under real mouse and focus events, what it
// reports, its painting and its fade.

#include "ButtonsTestSupport.h"

#include "SFFactory.h"
#include "SFQTButton.h"

#include <QLineEdit>
#include <QPropertyAnimation>
#include <QTest>
#include <gtest/gtest.h>
#include <vector>

namespace {

const tagRECT kRect{ 20, 20, 120, 50 }; // 100 by 30

enum class Act { Enter, Leave, PressLeft, PressRight, ReleaseLeft, ReleaseRight,
                 DragOutLeft, ReleaseOutsideLeft, FocusOut, Select };

struct Step {
    Act act;
    int state; // m_state afterwards
};

struct StateCase {
    const char* name;
    std::vector<Step> steps;
    Log log;
};

std::ostream& operator<<(std::ostream& os, const StateCase& c)
{
    return os << c.name;
}

class ButtonStates : public testing::TestWithParam<StateCase> {};

TEST_P(ButtonStates, FollowTheMouseAndReport)
{
    Log log;
    CButtonHost host(log);
    CButtonLogger handler(log);
    auto* button = static_cast<CSFQTButton*>(SFCreateButton(&handler));
    button->Create(L"Add", SF_WS_VISIBLE, kRect, host.Page(), 7);
    auto* other = new QLineEdit(&host.Top());
    other->setGeometry(200, 150, 80, 24);
    ParkCursor();
    ASSERT_TRUE(host.Show());

    const QPoint inside = button->rect().center();
    const QPoint outside(button->width() + 40, button->height() + 40);
    int index = 0;
    for (const Step& step : GetParam().steps) {
        switch (step.act) {
        case Act::Enter: QTest::mouseMove(button, inside); break;
        case Act::Leave: QTest::mouseMove(&host.Top(), QPoint(390, 10)); break;
        case Act::PressLeft: QTest::mousePress(button, Qt::LeftButton, {}, inside); break;
        case Act::PressRight: QTest::mousePress(button, Qt::RightButton, {}, inside); break;
        case Act::ReleaseLeft: QTest::mouseRelease(button, Qt::LeftButton, {}, inside); break;
        case Act::ReleaseRight: QTest::mouseRelease(button, Qt::RightButton, {}, inside); break;
        case Act::DragOutLeft: QTest::mouseMove(button, outside); break;
        case Act::ReleaseOutsideLeft: QTest::mouseRelease(button, Qt::LeftButton, {}, outside); break;
        case Act::FocusOut: other->setFocus(); break;
        case Act::Select: button->SetSelected(true); break;
        }
        EXPECT_EQ(button->State(), step.state) << "after step " << index;
        ++index;
    }
    EXPECT_EQ(log, GetParam().log);
    SFDestroyControl(button);
}

INSTANTIATE_TEST_SUITE_P(
    Sequences, ButtonStates,
    testing::Values(
        StateCase{ "Click",
                   { { Act::Enter, 0 }, { Act::PressLeft, 1 }, { Act::ReleaseLeft, 4 }, { Act::Leave, 2 } },
                   { "move:7", "down:7", "up:7", "click:7", "view:7", "leave:7" } },
        StateCase{ "RightPress",
                   { { Act::Enter, 0 }, { Act::PressRight, 1 }, { Act::ReleaseRight, 4 }, { Act::Leave, 2 } },
                   { "move:7", "up:7", "leave:7" } },
        StateCase{ "SelectedStaysSelected",
                   { { Act::Select, 4 }, { Act::Enter, 4 }, { Act::Leave, 4 } },
                   { "move:7", "leave:7" } },
        StateCase{ "DragOutAndReleaseOutside",
                   { { Act::Enter, 0 }, { Act::PressLeft, 1 }, { Act::DragOutLeft, 1 },
                     { Act::ReleaseOutsideLeft, 4 }, { Act::Leave, 2 } },
                   { "move:7", "down:7", "move:7", "up:7", "leave:7" } },
        StateCase{ "FocusOutAfterClick",
                   { { Act::Enter, 0 }, { Act::PressLeft, 1 }, { Act::ReleaseLeft, 4 }, { Act::FocusOut, 2 } },
                   { "move:7", "down:7", "up:7", "click:7", "view:7" } }),
    [](const testing::TestParamInfo<StateCase>& info) { return std::string(info.param.name); });

struct AlignCase {
    std::vector<unsigned int> calls;
    int flags;
    int elide;
};

class ButtonTextAlign : public testing::TestWithParam<AlignCase> {};

TEST_P(ButtonTextAlign, MapsDrawTextBitsAndKeepsElide)
{
    CSFQTButton button(nullptr);
    for (unsigned int flags : GetParam().calls)
        button.SetTextAlign(flags);
    EXPECT_EQ(button.TextFlags(), GetParam().flags);
    EXPECT_EQ(button.Elide(), GetParam().elide);
}

INSTANTIATE_TEST_SUITE_P(
    Flags, ButtonTextAlign,
    testing::Values(AlignCase{ {}, 388, 3 }, AlignCase{ { 0 }, 385, 3 }, AlignCase{ { 2 }, 386, 3 },
                    AlignCase{ { 3 }, 388, 3 }, AlignCase{ { 1 | 0x8000 }, 388, 1 },
                    AlignCase{ { 1 | 0x8000, 1 }, 388, 1 }, AlignCase{ { 0x8000, 2 }, 386, 1 }));

// Four pictures of their own colour, the selected one being the hover one.
class ButtonPaint : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_skin.IsValid());
        WriteSolidPicture(m_skin, "n.png", QSize(100, 30), Qt::red);
        WriteSolidPicture(m_skin, "h.png", QSize(100, 30), Qt::green);
        WriteSolidPicture(m_skin, "p.png", QSize(100, 30), Qt::blue);
        WriteSolidPicture(m_skin, "d.png", QSize(100, 30), Qt::yellow);
        WriteSolidPicture(m_skin, "small.png", QSize(10, 8), Qt::blue);
        m_button = static_cast<CSFQTButton*>(SFCreateButton(nullptr));
        m_button->Create(L"", SF_WS_VISIBLE, kRect, m_host.Page(), 9);
        ImageButtonStyle style;
        style.strNormal = L"n.png";
        style.strHover = L"h.png";
        style.strPressed = L"p.png";
        style.strDisabled = L"d.png";
        ASSERT_EQ(m_button->SetSkin(&style), 1);
        ParkCursor();
        ASSERT_TRUE(m_host.Show());
    }
    void TearDown() override { SFDestroyControl(m_button); }

    QColor PixelAt(int x, int y) { return GrabOnHost(m_button).pixelColor(x, y); }

    CTestSkin m_skin;
    Log m_log;
    CButtonHost m_host{ m_log };
    CSFQTButton* m_button = nullptr;
};

TEST_F(ButtonPaint, PictureFollowsStateAndEnabling)
{
    const std::vector<std::pair<int, QColor>> byState = {
        { 2, Qt::red }, { 0, Qt::green }, { 1, Qt::blue }, { 4, Qt::green }, { 3, Qt::red }
    };
    for (const auto& [state, colour] : byState) {
        m_button->SetBtnState(state);
        EXPECT_EQ(PixelAt(50, 15), colour) << "state " << state;
    }
    m_button->EnableWindow(0);
    EXPECT_FALSE(m_button->IsEnabled());
    EXPECT_EQ(PixelAt(50, 15), QColor(Qt::yellow));
}

TEST_F(ButtonPaint, DisabledTextIsGreyAndEnabledTextTakesItsColour)
{
    QFont big = m_button->font();
    big.setPixelSize(24);
    big.setBold(true);
    m_button->setFont(big);
    m_button->SetWindowTextW(L"HHHH");
    m_button->SetTextColor(0x0000FF); // red in COLORREF order

    auto count = [this](const QColor& c) {
        const QImage image = GrabOnHost(m_button);
        int n = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                n += image.pixelColor(x, y) == c ? 1 : 0;
        return n;
    };
    m_button->SetBtnState(1); // blue picture under red text
    EXPECT_GT(count(QColor(255, 0, 0)), 20);
    m_button->EnableWindow(0); // yellow picture under grey text
    EXPECT_GT(count(QColor(0x6B, 0x6B, 0x6B)), 20);
    EXPECT_EQ(count(QColor(255, 0, 0)), 0);
}

TEST_F(ButtonPaint, TopLeftIconKeepsItsSizeAndStretchFillsTheButton)
{
    ImageButtonStyle style;
    style.strNormal = L"small.png";
    m_button->SetSkin(&style);
    EXPECT_EQ(PixelAt(90, 25), QColor(Qt::blue));
    m_button->SetIconPos(ICON_POS_TOPLEFT);
    EXPECT_EQ(PixelAt(5, 4), QColor(Qt::blue));
    EXPECT_EQ(PixelAt(90, 25), QColor(Qt::white));
}

TEST_F(ButtonPaint, MissingAndEmptyNamesInASkin)
{
    ImageButtonStyle style;
    style.strHover = L"missing.png"; // no hover picture any more
    EXPECT_EQ(m_button->SetSkin(&style), 1);
    EXPECT_EQ(m_button->SetSkin(nullptr), 0);
    m_button->SetBtnState(0);
    EXPECT_EQ(PixelAt(50, 15), QColor(Qt::white)); // nothing drawn
    m_button->SetBtnState(2);
    EXPECT_EQ(PixelAt(50, 15), QColor(Qt::red)); // the empty name kept it
}

TEST_F(ButtonPaint, FadeRunsOnEnterAndPressAndIsCleanedUp)
{
    QTest::mouseMove(m_button, m_button->rect().center());
    EXPECT_EQ(m_button->Animation(), nullptr); // off by default
    QTest::mouseMove(&m_host.Top(), QPoint(390, 10));

    m_button->EnableAnimation(1);
    QTest::mouseMove(m_button, m_button->rect().center());
    QPropertyAnimation* animation = m_button->Animation();
    ASSERT_NE(animation, nullptr);
    EXPECT_EQ(animation->propertyName(), QByteArray("picTransparence"));
    EXPECT_EQ(animation->duration(), 300);
    EXPECT_FLOAT_EQ(animation->keyValueAt(0.5).toFloat(), 0.5f);

    // A press starts a second fade while the first still runs.
    QTest::mousePress(m_button, Qt::LeftButton);
    EXPECT_NE(m_button->Animation(), animation);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_button->Animation() == nullptr; }));
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return m_button->findChildren<QPropertyAnimation*>().isEmpty(); }));
    EXPECT_FLOAT_EQ(m_button->GetPicTransparence(), 1.0f);
    QTest::mouseRelease(m_button, Qt::LeftButton);
}

TEST(ButtonFacade, GeometryAndBoundedTextCopy)
{
    QWidget page;
    CSFButton* button = SFCreateButton(nullptr);
    auto* widget = static_cast<CSFQTButton*>(button);
    button->Create(L"Calculate", 0, tagRECT{ 10, 10, 110, 40 }, &page, 0xE49);
    EXPECT_EQ(widget->geometry(), QRect(10, 10, 100, 30));
    EXPECT_TRUE(widget->isHidden());
    EXPECT_EQ(widget->objectName(), QStringLiteral("button_3657"));
    EXPECT_EQ(widget->accessibleName(), QStringLiteral("Calculate"));
    tagRECT r{ 10, 10, 110, 40 };
    button->MoveWindow(&r); // inclusive here
    EXPECT_EQ(widget->size(), QSize(101, 31));

    wchar_t small[4];
    EXPECT_EQ(button->GetWindowTextW(small, 4), 9); // whole length, buffer kept whole
    EXPECT_EQ(std::wstring(small), L"Cal");
    SFDestroyControl(button);
}

} // namespace

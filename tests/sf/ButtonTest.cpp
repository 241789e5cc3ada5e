// The image button: its states under real mouse and focus events, what it
// reports and its picture.

#include "ButtonsTestSupport.h"

#include "SFFactory.h"
#include "SFQTButton.h"

#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>
#include <vector>

namespace {

const tagRECT kRect{ 20, 20, 120, 50 }; // 100 by 30

enum class Act { Enter, Leave, PressLeft, PressRight, ReleaseLeft, ReleaseRight,
                 DragOutLeft, ReleaseOutsideLeft, FocusOut };

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
        StateCase{ "DragOutAndReleaseOutside",
                   { { Act::Enter, 0 }, { Act::PressLeft, 1 }, { Act::DragOutLeft, 1 },
                     { Act::ReleaseOutsideLeft, 4 }, { Act::Leave, 2 } },
                   { "move:7", "down:7", "move:7", "up:7", "leave:7" } },
        StateCase{ "FocusOutAfterClick",
                   { { Act::Enter, 0 }, { Act::PressLeft, 1 }, { Act::ReleaseLeft, 4 }, { Act::FocusOut, 2 } },
                   { "move:7", "down:7", "up:7", "click:7", "view:7" } }),
    [](const testing::TestParamInfo<StateCase>& info) { return std::string(info.param.name); });

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

} // namespace

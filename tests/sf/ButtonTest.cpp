// The image button: its states under real mouse and focus events, what it
// reports and its picture; the image toggle: release inside flips and
// reports, outside does nothing, SetCheck is silent.

#include "sf/ISFButtonEvent.h"
#include "sf/ISFRadioBoxEvent.h"
#include "sf/SFFactory.h"
#include "sf/SFView.h"
#include "sf/qt/SFQTButton.h"
#include "sf/qt/SFQTRadioBox.h"
#include "tests/sf/SfTestSupport.h"

#include <QColor>
#include <QCursor>
#include <QImage>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

class CButtonLogger : public ISFButtonEvent {
public:
    explicit CButtonLogger(Log& log) : m_log(log) {}
    void BTN_OnLButtonDown(int id, unsigned int, tagPOINT) override { Add("down", id); }
    void BTN_OnLButtonUp(int id, unsigned int, tagPOINT) override { Add("up", id); }
    void BTN_OnMouseMove(int id, unsigned int, tagPOINT) override { Add("move", id); }
    void BTN_OnMouseLeave(int id, unsigned int, long) override { Add("leave", id); }
    void BTN_OnClicked(int id) override { Add("click", id); }

private:
    void Add(const char* what, int id) { m_log.push_back(what + (":" + std::to_string(id))); }
    Log& m_log;
};

class CRadioLogger : public ISFRadioBoxEvent {
public:
    explicit CRadioLogger(Log& log) : m_log(log) {}
    void RADIO_OnClicked(int checked, int id, tagPOINT pt, void* sender) override
    {
        m_log.push_back("radio:" + std::to_string(id) + "=" + std::to_string(checked));
        lastPoint = pt;
        lastSender = sender;
    }
    tagPOINT lastPoint{ -1, -1 };
    void* lastSender = nullptr;

private:
    Log& m_log;
};

// Moves the cursor far away, so that the next move in is a real enter.
void ParkCursor()
{
    QCursor::setPos(QPoint(5000, 5000));
    QCoreApplication::processEvents();
}

// A white top window holding a view whose handler maps command 7 to "view:7".
class CButtonHost {
public:
    explicit CButtonHost(Log& log, QSize size = QSize(400, 200)) : m_viewHandler(log)
    {
        m_top.resize(size);
        m_top.setAutoFillBackground(true);
        QPalette palette = m_top.palette();
        palette.setColor(QPalette::Window, Qt::white);
        m_top.setPalette(palette);
        m_view = SFCreateView(&m_viewHandler);
        m_view->Create(L"", L"", SF_WS_VISIBLE, tagRECT{ 0, 0, size.width(), size.height() },
                       &m_top, 3);
        m_view->SetBGClr(0x00FFFFFFu);
        log.clear();
    }
    ~CButtonHost() { SFDestroyControl(m_view); }
    // The parent to give to Create.
    void* Page() const { return m_view->GetUIWnd(); }
    QWidget& Top() { return m_top; }
    // Shows the window and waits until it can take input.
    bool Show()
    {
        ParkCursor();
        m_top.move(100, 100);
        m_top.show();
        return QTest::qWaitForWindowActive(&m_top);
    }

private:
    CLoggingViewHandler m_viewHandler;
    QWidget m_top;
    CSFView* m_view = nullptr;
};

// A picture of one colour, written into the test skin directory.
void WriteSolidPicture(const CTestSkin& skin, const char* name, QSize size, const QColor& color)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    image.save(skin.Dir() + QLatin1Char('/') + QString::fromLatin1(name), "PNG");
}

// The host's pixels where the widget stands.
QImage GrabOnHost(QWidget* widget)
{
    QWidget* top = widget->window();
    const QRect where(widget->mapTo(top, QPoint(0, 0)), widget->size());
    return top->grab(where).toImage().convertToFormat(QImage::Format_RGB32);
}

const tagRECT kRect{ 20, 20, 120, 50 }; // 100 by 30

enum class Act {
    Enter,
    Leave,
    PressLeft,
    PressRight,
    ReleaseLeft,
    ReleaseRight,
    DragOutLeft,
    ReleaseOutsideLeft,
    FocusOut
};

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
        case Act::Enter:
            QTest::mouseMove(button, inside);
            break;
        case Act::Leave:
            QTest::mouseMove(&host.Top(), QPoint(390, 10));
            break;
        case Act::PressLeft:
            QTest::mousePress(button, Qt::LeftButton, {}, inside);
            break;
        case Act::PressRight:
            QTest::mousePress(button, Qt::RightButton, {}, inside);
            break;
        case Act::ReleaseLeft:
            QTest::mouseRelease(button, Qt::LeftButton, {}, inside);
            break;
        case Act::ReleaseRight:
            QTest::mouseRelease(button, Qt::RightButton, {}, inside);
            break;
        case Act::DragOutLeft:
            QTest::mouseMove(button, outside);
            break;
        case Act::ReleaseOutsideLeft:
            QTest::mouseRelease(button, Qt::LeftButton, {}, outside);
            break;
        case Act::FocusOut:
            other->setFocus();
            break;
        }
        EXPECT_EQ(button->State(), step.state) << "after step " << index;
        ++index;
    }
    EXPECT_EQ(log, GetParam().log);
    SFDestroyControl(button);
}

INSTANTIATE_TEST_SUITE_P(
    Sequences, ButtonStates,
    testing::Values(StateCase{ "Click",
                               { { Act::Enter, 0 },
                                 { Act::PressLeft, 1 },
                                 { Act::ReleaseLeft, 4 },
                                 { Act::Leave, 2 } },
                               { "move:7", "down:7", "up:7", "click:7", "view:7", "leave:7" } },
                    StateCase{ "RightPress",
                               { { Act::Enter, 0 },
                                 { Act::PressRight, 1 },
                                 { Act::ReleaseRight, 4 },
                                 { Act::Leave, 2 } },
                               { "move:7", "up:7", "leave:7" } },
                    StateCase{ "DragOutAndReleaseOutside",
                               { { Act::Enter, 0 },
                                 { Act::PressLeft, 1 },
                                 { Act::DragOutLeft, 1 },
                                 { Act::ReleaseOutsideLeft, 4 },
                                 { Act::Leave, 2 } },
                               { "move:7", "down:7", "move:7", "up:7", "leave:7" } },
                    StateCase{ "FocusOutAfterClick",
                               { { Act::Enter, 0 },
                                 { Act::PressLeft, 1 },
                                 { Act::ReleaseLeft, 4 },
                                 { Act::FocusOut, 2 } },
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

const tagRECT kRadioRect{ 20, 20, 170, 50 }; // 150 by 30

class RadioEvents : public testing::Test {
protected:
    void SetUp() override
    {
        m_radio = static_cast<CSFQTRadioBox*>(SFCreateRadioBox(&m_handler));
        m_radio->Create(L"Disk Requirement", SF_WS_VISIBLE, kRadioRect, m_host.Page(), 7);
        ParkCursor();
        ASSERT_TRUE(m_host.Show());
    }
    void TearDown() override { SFDestroyControl(m_radio); }

    Log m_log;
    CButtonHost m_host{ m_log };
    CRadioLogger m_handler{ m_log };
    CSFQTRadioBox* m_radio = nullptr;
};

TEST_F(RadioEvents, ReleaseInsideFlipsAndReportsOnBothRoads)
{
    const QPoint at(30, 12);
    QTest::mousePress(m_radio, Qt::LeftButton, {}, at);
    EXPECT_EQ(m_radio->State(), 2);
    QTest::mouseRelease(m_radio, Qt::LeftButton, {}, at);
    EXPECT_EQ(m_radio->State(), 0);
    EXPECT_EQ(m_radio->GetCheck(), 1);
    EXPECT_TRUE(m_radio->isChecked());
    EXPECT_EQ(m_log, (Log{ "radio:7=1", "view:7" }));
    EXPECT_EQ(m_handler.lastPoint.x, 30);
    EXPECT_EQ(m_handler.lastPoint.y, 12);
    EXPECT_EQ(m_handler.lastSender, static_cast<void*>(static_cast<CSFRadioBox*>(m_radio)));

    // A second click unchecks: it is a toggle, not a radio group.
    QTest::mouseClick(m_radio, Qt::LeftButton, {}, at);
    EXPECT_EQ(m_radio->GetCheck(), 0);
    EXPECT_FALSE(m_radio->isChecked());
    EXPECT_EQ(m_log, (Log{ "radio:7=1", "view:7", "radio:7=0", "view:7" }));
}

TEST_F(RadioEvents, ReleaseOutsideKeepsTheCheckAndSaysNothing)
{
    m_radio->SetCheck(1);
    QTest::mousePress(m_radio, Qt::LeftButton, {}, QPoint(10, 10));
    QTest::mouseRelease(m_radio, Qt::LeftButton, {}, QPoint(200, 10));
    EXPECT_EQ(m_radio->GetCheck(), 1);
    EXPECT_EQ(m_radio->State(), 0);
    EXPECT_TRUE(m_log.empty()) << m_log.front();
}

TEST_F(RadioEvents, SetCheckIsSilentAndResetsTheState)
{
    QTest::mousePress(m_radio, Qt::LeftButton);
    m_radio->SetCheck(5);
    EXPECT_EQ(m_radio->GetCheck(), 1);
    EXPECT_EQ(m_radio->State(), 0);
    m_radio->SetCheck(0);
    EXPECT_EQ(m_radio->GetCheck(), 0);
    EXPECT_TRUE(m_log.empty());
    QTest::mouseRelease(m_radio, Qt::LeftButton, {}, QPoint(-3, 5));
}

} // namespace

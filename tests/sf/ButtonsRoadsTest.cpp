// A click on each kind of control reaches its handler first and then the
// map of its parent page; without a parent only the handler hears it.
// Also draws every control in every state into one picture for a look.

#include "ButtonsTestSupport.h"

#include "SFCheckBox.h"
#include "SFFactory.h"
#include "SFQTButton.h"
#include "SFQTCheckBox.h"
#include "SFQTRadioBox.h"

#include <QTest>
#include <gtest/gtest.h>
#include <cstdlib>

namespace {

enum class Kind { Button, Radio, Check };

struct RoadCase {
    Kind kind;
    bool parented;
    Log log;
};

std::ostream& operator<<(std::ostream& os, const RoadCase& c)
{
    static const char* names[] = { "button", "radio", "check" };
    return os << names[static_cast<int>(c.kind)] << (c.parented ? " on a page" : " alone");
}

class ClickRoads : public testing::TestWithParam<RoadCase> {};

TEST_P(ClickRoads, HandlerThenParentMap)
{
    Log log;
    CButtonHost host(log);
    CButtonLogger buttonHandler(log);
    CRadioLogger radioHandler(log);
    CCheckLogger checkHandler(log);
    void* parent = GetParam().parented ? host.Page() : nullptr;
    ParkCursor(); // a parentless control is a window at once
    const tagRECT rect{ 10, 10, 110, 40 };
    QWidget* widget = nullptr;
    switch (GetParam().kind) {
    case Kind::Button: {
        CSFButton* c = SFCreateButton(&buttonHandler);
        c->Create(L"Go", SF_WS_VISIBLE, rect, parent, 7);
        widget = static_cast<CSFQTButton*>(c);
        break;
    }
    case Kind::Radio: {
        CSFRadioBox* c = SFCreateRadioBox(&radioHandler);
        c->Create(L"Go", SF_WS_VISIBLE, rect, parent, 7);
        widget = static_cast<CSFQTRadioBox*>(c);
        break;
    }
    case Kind::Check: {
        CSFCheckBox* c = SFCreateCheckBox(&checkHandler);
        c->Create(L"Go", SF_WS_VISIBLE, rect, parent, 7);
        widget = static_cast<CSFQTCheckBox*>(c);
        break;
    }
    }
    ASSERT_TRUE(host.Show());
    if (!parent) {
        ASSERT_TRUE(QTest::qWaitForWindowExposed(widget));
    }
    QTest::mouseClick(widget, Qt::LeftButton);
    // The page's own press handler must not see the control's press either.
    EXPECT_EQ(log, GetParam().log);
    delete widget;
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, ClickRoads,
    testing::Values(RoadCase{ Kind::Button, true, { "down:7", "up:7", "click:7", "view:7" } },
                    RoadCase{ Kind::Button, false, { "down:7", "up:7", "click:7" } },
                    RoadCase{ Kind::Radio, true, { "radio:7=1", "view:7" } },
                    RoadCase{ Kind::Radio, false, { "radio:7=1" } },
                    RoadCase{ Kind::Check, true, { "check:7=1", "view:7" } },
                    RoadCase{ Kind::Check, false, { "check:7=1" } }));

// A handler that destroys its button inside the click must not bring the
// button down with it.
class CDestroyingHandler : public ISFButtonEvent {
public:
    CSFButton* button = nullptr;
    void BTN_OnClicked(int) override
    {
        SFDestroyControl(button);
        button = nullptr;
    }
};

TEST(ClickRoads, HandlerMayDestroyTheButton)
{
    Log log;
    CButtonHost host(log);
    CDestroyingHandler handler;
    handler.button = SFCreateButton(&handler);
    handler.button->Create(L"Close", SF_WS_VISIBLE, tagRECT{ 10, 10, 110, 40 }, host.Page(), 7);
    ASSERT_TRUE(host.Show());
    QTest::mouseClick(static_cast<CSFQTButton*>(handler.button), Qt::LeftButton);
    EXPECT_EQ(handler.button, nullptr);
    EXPECT_TRUE(log.empty());
}

// Set TALLIX_BUTTONS_SHOT to a file name to get a picture of the real skin:
// buttons in columns normal, hover, pressed, disabled, selected; toggles in
// columns checked, unchecked, checked and disabled, hovered.
TEST(ButtonsPicture, EveryKindInEveryState)
{
    const char* out = std::getenv("TALLIX_BUTTONS_SHOT");
    if (!out || !*out)
        GTEST_SKIP() << "TALLIX_BUTTONS_SHOT not set";
    CProgramSkin skin;
    Log log;
    CButtonHost host(log, QSize(720, 290));
    ImageButtonStyle text{ L"btn_normal.png", L"btn_hover.png", L"btn_press.png", L"btn_diabled.png", L"", L"", L"", L"" };
    ImageButtonStyle calc{ L"calculator_nor.png", L"calculator_hover.png", L"calculator_push.png",
                           L"calculator_dis.png", L"", L"", L"", L"" };
    ImageRadioBox tab{ L"radioBox_checked.png", L"radioBox_normal.png", L"radioBox_checked.png", L"radioBox_normal.png",
                       L"radioBox_normal.png", L"radioBox_normal.png", L"radioBox_normal.png", L"radioBox_normal.png" };
    ImageRadioBox audio{ L"list_open_nor.png", L"list_open_nor.png", L"list_open_nor.png",
                         L"list_close_nor.png", L"list_close_nor.png", L"list_open_nor.png", L"", L"" };
    ImageRadioBox check{ L"c_check.png", L"c_check.png", L"c_check.png", L"", L"", L"", L"", L"" };
    for (int i = 0; i < 5; ++i) {
        const int x = 10 + i * 140;
        const tagRECT rects[3] = { { x, 10, x + 72, 35 }, { x, 42, x + 130, 67 }, { x, 74, x + 56, 122 } };
        for (int k = 0; k < 3; ++k) {
            auto* b = static_cast<CSFQTButton*>(SFCreateButton(nullptr));
            b->Create(k == 0 ? L"Add" : k == 1 ? L"Enable Sub Stream but longer" : L"", SF_WS_VISIBLE,
                      rects[k], host.Page(), 1);
            b->SetSkin(k == 2 ? &calc : &text);
            if (k == 1) {
                b->SetTextColor(0xFF0000);
                b->SetTextAlign(0x8000);
            }
            if (i == 3)
                b->EnableWindow(0);
            else if (i == 4)
                b->SetSelected(true);
            else
                b->SetBtnState(i == 0 ? 2 : i == 1 ? 0 : 1);
        }
    }
    const wchar_t* tabNames[] = { L"Disk Requirement", L"Recording day", L"RAID Calculator", L"RAID Calculator2" };
    CSFRadioBox* hovered = nullptr;
    for (int i = 0; i < 4; ++i) {
        const int x = i * 151;
        CSFRadioBox* r = SFCreateRadioBox(nullptr);
        r->Create(tabNames[i], SF_WS_VISIBLE, tagRECT{ x, 140, x + 150, 169 }, host.Page(), 10 + i);
        r->SetSkin(&tab);
        r->SetTextOffset(-150);
        CSFRadioBox* a = SFCreateRadioBox(nullptr);
        a->Create(i % 2 ? L"Audio OFF" : L"Audio ON", SF_WS_VISIBLE, tagRECT{ x + 10, 185, x + 140, 215 },
                  host.Page(), 20 + i);
        a->SetSkin(&audio);
        a->SetTextAlign(0);
        a->SetTextOffset(6);
        a->SetBkColor(0xF5EFE8, 0xFFFFFF);
        a->SetBkRect(false);
        CSFCheckBox* c = SFCreateCheckBox(nullptr);
        c->Create(L"Check box", SF_WS_VISIBLE, tagRECT{ x + 10, 230, x + 140, 254 }, host.Page(), 30 + i);
        c->SetSkin(&check);
        for (CSFRadioBox* each : { r, a }) {
            each->SetCheck(i % 2 == 0);
            each->SetEnabled(i != 2);
        }
        c->SetCheck(i % 2 == 0);
        c->EnableWindow(i != 2);
        hovered = r;
    }
    ASSERT_TRUE(host.Show());
    QTest::mouseMove(static_cast<CSFQTRadioBox*>(hovered), QPoint(75, 15));
    EXPECT_TRUE(host.Top().grab().save(QString::fromLocal8Bit(out)));
}

} // namespace

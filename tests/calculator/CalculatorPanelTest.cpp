// The calculator panel on the real main window, driven by clicks, popup
// choices and typing: mode switches, the typed capacity, the weekly plan, the
// bay lists of the RAID modes, and what each mode answers.

#include "Config/VexUISetting.h"
#include "calculator/CalculatorBottom.h"
#include "sf/SFRadioBox.h"
#include "sf/qt/SFQTStatic.h"
#include "tests/streams/PageTestSupport.h"
#include "tests/support/QtWait.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <functional>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

namespace {

using Panel = CCalculatorBottom;

bool Visible(const QWidget* w)
{
    return w && w->isVisible();
}

std::string Text(const QLineEdit* edit)
{
    return edit ? edit->text().toStdString() : "<none>";
}

std::vector<std::string> Items(const QComboBox* box)
{
    std::vector<std::string> items;
    for (int i = 0; box && i < box->count(); ++i)
        items.push_back(box->itemText(i).toStdString());
    return items;
}

std::string Current(const QComboBox* box)
{
    return box ? box->currentText().toStdString() : "<none>";
}

} // namespace

// Public, so that table rows can drive the panel through the fixture.
class CalculatorPanelTest : public testing::Test {
public:
    CProgramEnvironment environment;
    CMainWindowUnderTest main;
    CPageDriver& d = main.Driver();
    CCalculatorBottom& p = *d.Calculator();

    void SetUp() override
    {
        // A flash begun while the window came up is restarted short.
        ValueLabel()->SetTwinkleDuration(20);
        if (Twinkling())
            ValueLabel()->StartTwinkle();
        WaitTwinkleDone();
    }

    QWidget* Find(const std::string& name) const { return main.Find(name.c_str()); }
    QWidget* ById(const char* kind, unsigned int id) const
    {
        return Find(std::string(kind) + "_" + std::to_string(id));
    }
    QComboBox* Combo(unsigned int id) const { return qobject_cast<QComboBox*>(ById("combo", id)); }
    QComboBox* Raid2Disk() const { return qobject_cast<QComboBox*>(Find(Panel::kNameRaid2Disk)); }
    QLineEdit* Edit(unsigned int id) const { return qobject_cast<QLineEdit*>(ById("edit", id)); }
    QLineEdit* CustomCapacity() const { return Edit(Panel::ID_EDIT_CUSTOM_CAPACITY); }
    QLineEdit* DayHours(int day) const
    {
        return Edit(Panel::ID_EDIT_DAY_HOURS_FIRST + static_cast<unsigned int>(day));
    }
    QWidget* DayLabel(int day) const { return Find(Panel::kNameDayPrefix + std::to_string(day)); }
    CSFQTStatic* ValueLabel() const
    {
        return dynamic_cast<CSFQTStatic*>(Find(Panel::kNameResultValue));
    }
    bool Twinkling() const { return ValueLabel()->TwinkleRunning(); }
    void WaitTwinkleDone() { EXPECT_EVENTUALLY(!Twinkling()); }
    std::string Caption() const { return d.ResultCaption().toStdString(); }
    std::string Value() const { return d.ResultValue().toStdString(); }

    void SwitchTo(int mode)
    {
        d.ClickMode(Panel::kModeRadioIds[mode]);
        EXPECT_EQ(p.GetMode(), mode);
    }
    void ClickCalculate() { UserClick(ById("button", Panel::ID_BTN_CALCULATE)); }
    void Choose(QComboBox* box, const char* item)
    {
        const int index = box ? box->findText(QString::fromUtf8(item)) : -1;
        ASSERT_GE(index, 0) << item;
        UserChoose(box, index);
        EXPECT_EQ(box->currentIndex(), index) << item;
    }
    void Choose(unsigned int comboId, const char* item) { Choose(Combo(comboId), item); }
    void Type(QWidget* edit, const char* text) { UserType(edit, QString::fromUtf8(text)); }
    void EnterNumber(QWidget* spin, int value)
    {
        UserType(spin, QString::number(value));
        QTest::keyClick(spin, Qt::Key_Return);
    }
    // The panel's controls that the user sees, by object name.
    std::set<std::string> Shown() const
    {
        std::set<std::string> shown;
        QWidget* view = ValueLabel()->parentWidget();
        for (const QWidget* w : view->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (w->isVisible())
                shown.insert(w->objectName().toStdString());
        }
        return shown;
    }
};

TEST_F(CalculatorPanelTest, ClickingTheCurrentRadioChangesNothing)
{
    for (int mode : { 0, 1, 2, 3 }) {
        SwitchTo(mode);
        WaitTwinkleDone();
        const std::string value = Value();
        SwitchTo(mode);
        for (int other = 0; other < 4; ++other)
            EXPECT_EQ(
                dynamic_cast<CSFRadioBox*>(ById("radio", Panel::kModeRadioIds[other]))->GetCheck(),
                other == mode ? 1 : 0)
                << mode;
        EXPECT_EQ(Value(), value);
        // No layout ran, so nothing was recalculated or flashed.
        EXPECT_FALSE(Twinkling());
    }
}

TEST_F(CalculatorPanelTest, TypedCapacityIsCutToItsUnitAndRepaired)
{
    p.SetTotals(1, 2048);
    SwitchTo(1);
    EXPECT_FALSE(Visible(CustomCapacity()) || Visible(Combo(Panel::ID_COMBO_CAPACITY_UNIT)));
    Choose(Panel::ID_COMBO_CAPACITY, "1TB");
    const std::string oneTB = Value();
    EXPECT_EQ(oneTB, "40  Day 16.56 Hour");

    Choose(Panel::ID_COMBO_CAPACITY, "Customize");
    EXPECT_TRUE(Visible(CustomCapacity()) && Visible(Combo(Panel::ID_COMBO_CAPACITY_UNIT)));
    EXPECT_EQ(Text(CustomCapacity()), "0");
    EXPECT_EQ(Value(), "0  Day 0.00 Hour");

    // GB: five characters at most; TB: three, and the switch caps the number.
    Type(CustomCapacity(), "123456");
    EXPECT_EQ(Text(CustomCapacity()), "12345");
    Choose(Panel::ID_COMBO_CAPACITY_UNIT, "TB");
    EXPECT_EQ(Text(CustomCapacity()), "999");
    Type(CustomCapacity(), "1234");
    EXPECT_EQ(Text(CustomCapacity()), "123");
    Type(CustomCapacity(), "1");
    EXPECT_EQ(Value(), oneTB);
    // A letter is no number: the edit falls back to 0.
    Type(CustomCapacity(), "1x");
    EXPECT_EQ(Text(CustomCapacity()), "0");

    Choose(Panel::ID_COMBO_CAPACITY_UNIT, "GB");
    Type(CustomCapacity(), "1024");
    EXPECT_EQ(Value(), oneTB);

    // Back on the list: the typed capacity no longer counts.
    Choose(Panel::ID_COMBO_CAPACITY, "32GB");
    EXPECT_FALSE(Visible(CustomCapacity()) || Visible(Combo(Panel::ID_COMBO_CAPACITY_UNIT)));
    EXPECT_EQ(Value(), "1  Day 6.52 Hour");
}

struct DayEntry {
    const char* name;
    const char* typed;
    const char* expected;
};

void PrintTo(const DayEntry& entry, std::ostream* os)
{
    *os << entry.name;
}

class CalculatorDayEdit : public CalculatorPanelTest,
                          public testing::WithParamInterface<DayEntry> {};

TEST_P(CalculatorDayEdit, KeepsHoursWithinADay)
{
    SwitchTo(1);
    Choose(Panel::ID_COMBO_RECORD_PLAN, "Customize(hours)");
    Type(DayHours(3), GetParam().typed);
    EXPECT_EQ(Text(DayHours(3)), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Typed, CalculatorDayEdit,
    testing::Values(DayEntry{ "Above24", "25", "24" }, DayEntry{ "DigitThenLetter", "8b", "24" },
                    DayEntry{ "Within", "7", "7" }, DayEntry{ "LeadingZeros", "007", "007" },
                    DayEntry{ "Cleared", "", "" }),
    [](const testing::TestParamInfo<DayEntry>& info) { return std::string(info.param.name); });

TEST_F(CalculatorPanelTest, WeeklyPlanCountsEmptyDaysAsNoHours)
{
    p.SetTotals(1, 4096);
    SwitchTo(1);
    Choose(Panel::ID_COMBO_CAPACITY, "1TB");
    Choose(Panel::ID_COMBO_RECORD_PLAN, "Customize(hours)");
    // Sunday to Thursday 8 hours, Friday and Saturday left empty.
    for (int i = 0; i < Panel::kDayCount; ++i) {
        EXPECT_TRUE(Visible(DayLabel(i)) && Visible(DayHours(i))) << i;
        Type(DayHours(i), i < 5 ? "8" : "");
    }
    EXPECT_EQ(Value(), "12 Week 1 Day 0.28 Hour");

    for (int i = 0; i < 5; ++i)
        Type(DayHours(i), "");
    EXPECT_EQ(Value(), "0 Week 0 Day 0.00 Hour");

    // Round the clock, the day edits are ignored and hidden.
    Choose(Panel::ID_COMBO_RECORD_PLAN, "24 hours per day");
    EXPECT_FALSE(Visible(DayHours(0)));
    EXPECT_EQ(Value(), "20  Day 8.28 Hour");
}

TEST_F(CalculatorPanelTest, DayPairsComeBackWithTheirValuesAfterLeavingTheMode)
{
    SwitchTo(1);
    Choose(Panel::ID_COMBO_RECORD_PLAN, "Customize(hours)");
    Type(DayHours(1), "8");
    Type(DayHours(6), "12");
    for (int other : { 0, 2, 3 }) {
        SwitchTo(other);
        for (int i = 0; i < Panel::kDayCount; ++i)
            EXPECT_FALSE(Visible(DayHours(i)) || Visible(DayLabel(i))) << other;
        SwitchTo(1);
        for (int i = 0; i < Panel::kDayCount; ++i)
            EXPECT_TRUE(Visible(DayHours(i)) && Visible(DayLabel(i))) << other;
        EXPECT_EQ(Text(DayHours(1)), "8");
        EXPECT_EQ(Text(DayHours(6)), "12");
        EXPECT_EQ(Text(DayHours(0)), "24");
    }
}

TEST_F(CalculatorPanelTest, BayCountSurvivesDeviceAndLevelChanges)
{
    const std::vector<std::string> sixteenUp = { "16 bay", "24 bay", "36 bay", "48 bay" };
    SwitchTo(2);
    EXPECT_EQ(Value(), "3.60TB");
    Choose(Panel::ID_COMBO_RAID_BAYS, "16 bay");
    EXPECT_EQ(Value(), "7.20TB");

    Choose(Panel::ID_COMBO_RAID_DEV_TYPE, "MQS71");
    EXPECT_EQ(Items(Combo(Panel::ID_COMBO_RAID_BAYS)), sixteenUp);
    EXPECT_EQ(Current(Combo(Panel::ID_COMBO_RAID_BAYS)), "16 bay");

    // RAID 5 on this device offers no 16: the list falls back to its first.
    Choose(Panel::ID_COMBO_RAID_LEVEL, "RAID 5");
    EXPECT_EQ(Items(Combo(Panel::ID_COMBO_RAID_BAYS)),
              (std::vector<std::string>{ "24 bay", "36 bay", "48 bay" }));
    EXPECT_EQ(Current(Combo(Panel::ID_COMBO_RAID_BAYS)), "24 bay");
    EXPECT_EQ(Value(), "18.00TB");

    Choose(Panel::ID_COMBO_RAID_DEV_TYPE, "MQS50");
    EXPECT_EQ(Items(Combo(Panel::ID_COMBO_RAID_BAYS)), sixteenUp);
    EXPECT_EQ(Current(Combo(Panel::ID_COMBO_RAID_BAYS)), "24 bay");
    Choose(Panel::ID_COMBO_RAID_DISK, "4 TB");
    EXPECT_EQ(Value(), "72.00TB");

    // Mode 3 keeps a count of its own: its first rebuild takes the smallest
    // offer and leaves mode 2's alone.
    SwitchTo(3);
    Choose(Panel::ID_COMBO_RAID2_DEV_TYPE, "MQS70");
    EXPECT_EQ(Current(Combo(Panel::ID_COMBO_RAID2_BAYS)), "16 bay");
    Choose(Panel::ID_COMBO_RAID2_BAYS, "36 bay");
    SwitchTo(2);
    Choose(Panel::ID_COMBO_RAID_LEVEL, "RAID 6");
    EXPECT_EQ(Current(Combo(Panel::ID_COMBO_RAID_BAYS)), "24 bay");
}

struct AnswerCase {
    const char* name;
    int mode;
    double kbps;
    // Real input after switching to the mode.
    std::function<void(CalculatorPanelTest&)> input;
    const char* caption;
    const char* value;
    bool twinkle;
};

void PrintTo(const AnswerCase& c, std::ostream* os)
{
    *os << c.name;
}

class CalculatorAnswer : public CalculatorPanelTest,
                         public testing::WithParamInterface<AnswerCase> {};

TEST_P(CalculatorAnswer, ComesFromTheControlsAndFlashes)
{
    const AnswerCase& c = GetParam();
    // A longer flash, so that it is still running when the check comes.
    ValueLabel()->SetTwinkleDuration(400);
    p.SetTotals(1, c.kbps);
    SwitchTo(c.mode);
    if (c.input)
        c.input(*this);
    WaitTwinkleDone();
    ClickCalculate();
    EXPECT_EQ(Caption(), c.caption);
    EXPECT_EQ(Value(), c.value);
    EXPECT_EQ(Twinkling(), c.twinkle);
}

INSTANTIATE_TEST_SUITE_P(
    Modes, CalculatorAnswer,
    testing::Values(
        AnswerCase{ "DiskZeroRate", 0, 0, nullptr, "Request Capacity:", "0.00GB", false },
        AnswerCase{ "DiskSevenDays", 0, 2048,
                    [](CalculatorPanelTest& t) {
                        t.EnterNumber(t.ById("spinner", Panel::ID_SPIN_DAYS), 7);
                    },
                    "Request Capacity:", "147.66GB", true },
        AnswerCase{ "DaysZeroRate", 1, 0, nullptr, "Recording Days:", "0 Day 0 Hour", true },
        AnswerCase{ "RaidMqs71Raid5", 2, 0,
                    [](CalculatorPanelTest& t) {
                        t.Choose(Panel::ID_COMBO_RAID_DEV_TYPE, "MQS71");
                        t.Choose(Panel::ID_COMBO_RAID_LEVEL, "RAID 5");
                        t.Choose(Panel::ID_COMBO_RAID_BAYS, "48 bay");
                        t.Choose(Panel::ID_COMBO_RAID_DISK, "16 TB");
                    },
                    "Available:", "590.40TB", true },
        AnswerCase{ "DevicesOne", 3, 409600,
                    [](CalculatorPanelTest& t) {
                        t.EnterNumber(t.Find(Panel::kNameRaid2Days), 30);
                        t.Choose(Panel::ID_COMBO_RAID2_DEV_TYPE, "MQS50");
                        t.Choose(Panel::ID_COMBO_RAID2_LEVEL, "RAID 6");
                        t.Choose(Panel::ID_COMBO_RAID2_BAYS, "48 bay");
                        t.Choose(t.Raid2Disk(), "8 TB");
                    },
                    "Need:", "1 Device", true },
        AnswerCase{
            "DevicesMany", 3, 409600,
            [](CalculatorPanelTest& t) { t.EnterNumber(t.Find(Panel::kNameRaid2Days), 30); },
            "Need:", "35 Devices", true }),
    [](const testing::TestParamInfo<AnswerCase>& info) { return std::string(info.param.name); });

TEST_F(CalculatorPanelTest, RecordablePercentageMovesOnlyTheRecordingDays)
{
    p.SetTotals(1, 2048);
    std::string before[4];
    for (int mode = 0; mode < 4; ++mode) {
        SwitchTo(mode);
        ClickCalculate();
        before[mode] = Value();
    }
    g_UISetting.m_nRecordblePersentage = 50;
    for (int mode = 0; mode < 4; ++mode) {
        SwitchTo(mode);
        ClickCalculate();
        EXPECT_EQ(Value() == before[mode], mode != 1) << mode;
    }
    SwitchTo(1);
    Choose(Panel::ID_COMBO_CAPACITY, "1TB");
    EXPECT_EQ(Value(), "22  Day 14.53 Hour");
}

TEST_F(CalculatorPanelTest, LargeDeviceCountsTakeTwoLinesAndOneLineComesBack)
{
    p.SetTotals(1, 2048);
    SwitchTo(3);
    EXPECT_EQ(Value(), "1 Device");
    const QRect oneLine = ValueLabel()->geometry();

    p.SetTotals(1, 1e11);
    ClickCalculate();
    EXPECT_NE(Value().find("\r\nDevices"), std::string::npos) << Value();
    EXPECT_GT(ValueLabel()->geometry().bottom(), oneLine.bottom());

    p.SetTotals(1, 2048);
    ClickCalculate();
    EXPECT_EQ(Value(), "1 Device");
    EXPECT_EQ(ValueLabel()->geometry(), oneLine);
}

TEST_F(CalculatorPanelTest, EachModeShowsTheSameControlsWhicheverModeCameBefore)
{
    std::set<std::string> fresh[Panel::kModeCount];
    for (int mode = 0; mode < Panel::kModeCount; ++mode) {
        SwitchTo(mode);
        fresh[mode] = Shown();
        EXPECT_EQ(fresh[mode].count(Panel::kNameDevicesTips), mode == Panel::MODE_RAID2 ? 1u : 0u);
    }
    for (int from = 0; from < Panel::kModeCount; ++from) {
        for (int to = 0; to < Panel::kModeCount; ++to) {
            SwitchTo(from);
            SwitchTo(to);
            EXPECT_EQ(Shown(), fresh[to]) << from << " -> " << to;
        }
    }
}

TEST_F(CalculatorPanelTest, EveryShownControlHasItsOwnNameAndWords)
{
    for (int mode = 0; mode < Panel::kModeCount; ++mode) {
        SwitchTo(mode);
        if (mode == Panel::MODE_RECORDING_DAY) {
            Choose(Panel::ID_COMBO_CAPACITY, "Customize");
            Choose(Panel::ID_COMBO_RECORD_PLAN, "Customize(hours)");
        }
        QWidget* view = ValueLabel()->parentWidget();
        std::set<QString> names;
        for (const QWidget* w : view->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (!w->isVisible())
                continue;
            EXPECT_TRUE(names.insert(w->objectName()).second) << w->objectName().toStdString();
            EXPECT_FALSE(w->accessibleName().isEmpty()) << w->objectName().toStdString();
        }
    }
}

// The calculator panel on the real main window, driven by clicks, popup
// choices and typing: mode switches, the typed capacity, the weekly plan, the
// bay lists of the RAID modes, and what each mode answers.

#include "calculator/CalculatorBottom.h"
#include "tests/streams/PageTestSupport.h"
#include "tests/support/QtWait.h"
#include "sf/SFButton.h"
#include "sf/SFComboBox.h"
#include "sf/SFEditCtrl.h"
#include "sf/SFNumSpiner.h"
#include "sf/qt/SFQTStatic.h"
#include "sf/SFRadioBox.h"
#include "Config/VexUISetting.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

template <class Control>
QWidget* W(Control* control)
{
    return dynamic_cast<QWidget*>(control);
}

template <class Control>
bool Visible(Control* control)
{
    return W(control) && W(control)->isVisible();
}

std::string Text(CSFEditCtrl* edit)
{
    auto* line = qobject_cast<QLineEdit*>(W(edit));
    return line ? line->text().toStdString() : "<none>";
}

std::vector<std::string> Items(CSFComboBox* combo)
{
    std::vector<std::string> items;
    auto* box = qobject_cast<QComboBox*>(W(combo));
    for (int i = 0; box && i < box->count(); ++i)
        items.push_back(box->itemText(i).toStdString());
    return items;
}

std::string Current(CSFComboBox* combo)
{
    auto* box = qobject_cast<QComboBox*>(W(combo));
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

    CSFQTStatic* ValueLabel() const { return dynamic_cast<CSFQTStatic*>(p.m_pStaticResultValue); }
    bool Twinkling() const { return ValueLabel()->TwinkleRunning(); }
    void WaitTwinkleDone() { EXPECT_EVENTUALLY(!Twinkling()); }
    std::string Caption() const { return d.ResultCaption().toStdString(); }
    std::string Value() const { return d.ResultValue().toStdString(); }

    void SwitchTo(int mode)
    {
        const unsigned int radios[] = { CCalculatorBottom::ID_RADIO_DISK_REQUIREMENT,
                                        CCalculatorBottom::ID_RADIO_RECORDING_DAY,
                                        CCalculatorBottom::ID_RADIO_RAID, CCalculatorBottom::ID_RADIO_RAID2 };
        d.ClickMode(radios[mode]);
        EXPECT_EQ(p.GetMode(), mode);
    }
    void ClickCalculate() { UserClick(W(p.m_pBtnCalculate)); }
    void Choose(CSFComboBox* combo, const char* item)
    {
        auto* box = qobject_cast<QComboBox*>(W(combo));
        const int index = box ? box->findText(QString::fromUtf8(item)) : -1;
        ASSERT_GE(index, 0) << item;
        UserChoose(box, index);
        EXPECT_EQ(box->currentIndex(), index) << item;
    }
    void Type(CSFEditCtrl* edit, const char* text) { UserType(W(edit), QString::fromUtf8(text)); }
    void EnterNumber(CSFNumSpiner* spin, int value)
    {
        UserType(W(spin), QString::number(value));
        QTest::keyClick(W(spin), Qt::Key_Return);
    }
};

TEST_F(CalculatorPanelTest, ClickingTheCurrentRadioChangesNothing)
{
    CSFRadioBox* radios[] = { p.m_pRadioDiskRequirement, p.m_pRadioRecordingDay, p.m_pRadioRaid,
                              p.m_pRadioRaid2 };
    for (int mode : { 0, 1, 2, 3 }) {
        SwitchTo(mode);
        WaitTwinkleDone();
        const std::string value = Value();
        SwitchTo(mode);
        for (int other = 0; other < 4; ++other)
            EXPECT_EQ(radios[other]->GetCheck(), other == mode ? 1 : 0) << mode;
        EXPECT_EQ(Value(), value);
        // No layout ran, so nothing was recalculated or flashed.
        EXPECT_FALSE(Twinkling());
    }
}

TEST_F(CalculatorPanelTest, TypedCapacityIsCutToItsUnitAndRepaired)
{
    p.SetTotals(1, 2048);
    SwitchTo(1);
    EXPECT_FALSE(Visible(p.m_pEditCustomCapacity) || Visible(p.m_pComboCapacityUnit));
    Choose(p.m_pComboCapacity, "1TB");
    const std::string oneTB = Value();
    EXPECT_EQ(oneTB, "40  Day 16.56 Hour");

    Choose(p.m_pComboCapacity, "Customize");
    EXPECT_TRUE(Visible(p.m_pEditCustomCapacity) && Visible(p.m_pComboCapacityUnit));
    EXPECT_EQ(Text(p.m_pEditCustomCapacity), "0");
    EXPECT_EQ(Value(), "0  Day 0.00 Hour");

    // GB: five characters at most; TB: three, and the switch caps the number.
    Type(p.m_pEditCustomCapacity, "123456");
    EXPECT_EQ(Text(p.m_pEditCustomCapacity), "12345");
    Choose(p.m_pComboCapacityUnit, "TB");
    EXPECT_EQ(Text(p.m_pEditCustomCapacity), "999");
    Type(p.m_pEditCustomCapacity, "1234");
    EXPECT_EQ(Text(p.m_pEditCustomCapacity), "123");
    Type(p.m_pEditCustomCapacity, "1");
    EXPECT_EQ(Value(), oneTB);
    // A letter is no number: the edit falls back to 0.
    Type(p.m_pEditCustomCapacity, "1x");
    EXPECT_EQ(Text(p.m_pEditCustomCapacity), "0");

    Choose(p.m_pComboCapacityUnit, "GB");
    Type(p.m_pEditCustomCapacity, "1024");
    EXPECT_EQ(Value(), oneTB);

    // Back on the list: the typed capacity no longer counts.
    Choose(p.m_pComboCapacity, "32GB");
    EXPECT_FALSE(Visible(p.m_pEditCustomCapacity) || Visible(p.m_pComboCapacityUnit));
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

class CalculatorDayEdit : public CalculatorPanelTest, public testing::WithParamInterface<DayEntry> {};

TEST_P(CalculatorDayEdit, KeepsHoursWithinADay)
{
    SwitchTo(1);
    Choose(p.m_pComboRecordPlan, "Customize(hours)");
    Type(p.m_pEditDayHours[3], GetParam().typed);
    EXPECT_EQ(Text(p.m_pEditDayHours[3]), GetParam().expected);
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
    Choose(p.m_pComboCapacity, "1TB");
    Choose(p.m_pComboRecordPlan, "Customize(hours)");
    // Sunday to Thursday 8 hours, Friday and Saturday left empty.
    for (int i = 0; i < CCalculatorBottom::kDayCount; ++i) {
        EXPECT_TRUE(Visible(p.m_pStaticDay[i]) && Visible(p.m_pEditDayHours[i])) << i;
        Type(p.m_pEditDayHours[i], i < 5 ? "8" : "");
    }
    EXPECT_EQ(Value(), "12 Week 1 Day 0.28 Hour");

    for (int i = 0; i < 5; ++i)
        Type(p.m_pEditDayHours[i], "");
    EXPECT_EQ(Value(), "0 Week 0 Day 0.00 Hour");

    // Round the clock, the day edits are ignored and hidden.
    Choose(p.m_pComboRecordPlan, "24 hours per day");
    EXPECT_FALSE(Visible(p.m_pEditDayHours[0]));
    EXPECT_EQ(Value(), "20  Day 8.28 Hour");
}

TEST_F(CalculatorPanelTest, DayPairsComeBackWithTheirValuesAfterLeavingTheMode)
{
    SwitchTo(1);
    Choose(p.m_pComboRecordPlan, "Customize(hours)");
    Type(p.m_pEditDayHours[1], "8");
    Type(p.m_pEditDayHours[6], "12");
    for (int other : { 0, 2, 3 }) {
        SwitchTo(other);
        for (int i = 0; i < CCalculatorBottom::kDayCount; ++i)
            EXPECT_FALSE(Visible(p.m_pEditDayHours[i]) || Visible(p.m_pStaticDay[i])) << other;
        SwitchTo(1);
        for (int i = 0; i < CCalculatorBottom::kDayCount; ++i)
            EXPECT_TRUE(Visible(p.m_pEditDayHours[i]) && Visible(p.m_pStaticDay[i])) << other;
        EXPECT_EQ(Text(p.m_pEditDayHours[1]), "8");
        EXPECT_EQ(Text(p.m_pEditDayHours[6]), "12");
        EXPECT_EQ(Text(p.m_pEditDayHours[0]), "24");
    }
}

TEST_F(CalculatorPanelTest, BayCountSurvivesDeviceAndLevelChanges)
{
    const std::vector<std::string> sixteenUp = { "16 bay", "24 bay", "36 bay", "48 bay" };
    SwitchTo(2);
    EXPECT_EQ(Value(), "3.60TB");
    Choose(p.m_pComboRaidBays, "16 bay");
    EXPECT_EQ(Value(), "7.20TB");

    Choose(p.m_pComboRaidDevType, "MQS71");
    EXPECT_EQ(Items(p.m_pComboRaidBays), sixteenUp);
    EXPECT_EQ(Current(p.m_pComboRaidBays), "16 bay");

    // RAID 5 on this device offers no 16: the list falls back to its first.
    Choose(p.m_pComboRaidLevel, "RAID 5");
    EXPECT_EQ(Items(p.m_pComboRaidBays), (std::vector<std::string>{ "24 bay", "36 bay", "48 bay" }));
    EXPECT_EQ(Current(p.m_pComboRaidBays), "24 bay");
    EXPECT_EQ(Value(), "18.00TB");

    Choose(p.m_pComboRaidDevType, "MQS50");
    EXPECT_EQ(Items(p.m_pComboRaidBays), sixteenUp);
    EXPECT_EQ(Current(p.m_pComboRaidBays), "24 bay");
    Choose(p.m_pComboRaidDisk, "4 TB");
    EXPECT_EQ(Value(), "72.00TB");

    // Mode 3 keeps a count of its own: its first rebuild takes the smallest
    // offer and leaves mode 2's alone.
    SwitchTo(3);
    Choose(p.m_pComboRaid2DevType, "MQS70");
    EXPECT_EQ(p.m_nRaid2Bays, 16);
    EXPECT_EQ(p.m_pComboRaid2Bays->GetCurSel(), 0);
    EXPECT_EQ(p.m_nRaidBays, 24);
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

class CalculatorAnswer : public CalculatorPanelTest, public testing::WithParamInterface<AnswerCase> {};

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
                    [](CalculatorPanelTest& t) { t.EnterNumber(t.p.m_pSpinDays, 7); },
                    "Request Capacity:", "147.66GB", true },
        AnswerCase{ "DaysZeroRate", 1, 0, nullptr, "Recording Days:", "0 Day 0 Hour", true },
        AnswerCase{ "RaidMqs71Raid5", 2, 0,
                    [](CalculatorPanelTest& t) {
                        t.Choose(t.p.m_pComboRaidDevType, "MQS71");
                        t.Choose(t.p.m_pComboRaidLevel, "RAID 5");
                        t.Choose(t.p.m_pComboRaidBays, "48 bay");
                        t.Choose(t.p.m_pComboRaidDisk, "16 TB");
                    },
                    "Available:", "590.40TB", true },
        AnswerCase{ "DevicesOne", 3, 409600,
                    [](CalculatorPanelTest& t) {
                        t.EnterNumber(t.p.m_pSpinRaid2Days, 30);
                        t.Choose(t.p.m_pComboRaid2DevType, "MQS50");
                        t.Choose(t.p.m_pComboRaid2Level, "RAID 6");
                        t.Choose(t.p.m_pComboRaid2Bays, "48 bay");
                        t.Choose(t.p.m_pComboRaid2Disk, "8 TB");
                    },
                    "Need:", "1 Device", true },
        AnswerCase{ "DevicesMany", 3, 409600,
                    [](CalculatorPanelTest& t) { t.EnterNumber(t.p.m_pSpinRaid2Days, 30); },
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
    Choose(p.m_pComboCapacity, "1TB");
    EXPECT_EQ(Value(), "22  Day 14.53 Hour");
}

TEST_F(CalculatorPanelTest, LargeDeviceCountsTakeTwoLinesAndOneLineComesBack)
{
    p.SetTotals(1, 2048);
    SwitchTo(3);
    EXPECT_EQ(Value(), "1 Device");
    const RECT oneLine = p.m_pStaticResultValue->GetGeometry();

    p.SetTotals(1, 1e11);
    ClickCalculate();
    EXPECT_NE(Value().find("\r\nDevices"), std::string::npos) << Value();
    EXPECT_GT(p.m_pStaticResultValue->GetGeometry().bottom, oneLine.bottom);

    p.SetTotals(1, 2048);
    ClickCalculate();
    EXPECT_EQ(Value(), "1 Device");
    const RECT back = p.m_pStaticResultValue->GetGeometry();
    EXPECT_EQ(std::vector<long>({ back.left, back.top, back.right, back.bottom }),
              std::vector<long>({ oneLine.left, oneLine.top, oneLine.right, oneLine.bottom }));
}

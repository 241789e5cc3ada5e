// The panel driven by real clicks and typing: mode switches, the typed
// capacity, the weekly plan and the bay lists of the RAID modes.

#include <QComboBox>
#include <vector>

#include "CalculatorPanelTestSupport.h"
#include "QtWait.h"

namespace {

std::vector<int> Checks(CCalculatorBottom& p)
{
    return { p.m_pRadioDiskRequirement->GetCheck(), p.m_pRadioRecordingDay->GetCheck(),
             p.m_pRadioRaid->GetCheck(), p.m_pRadioRaid2->GetCheck() };
}

std::vector<int> OnlyOn(int nMode)
{
    std::vector<int> checks(4, 0);
    checks[static_cast<std::size_t>(nMode)] = 1;
    return checks;
}

std::vector<std::string> Items(CSFComboBox* pCombo)
{
    std::vector<std::string> items;
    auto* combo = dynamic_cast<QComboBox*>(pCombo);
    for (int i = 0; combo && i < combo->count(); ++i)
        items.push_back(combo->itemText(i).toStdString());
    return items;
}

} // namespace

TEST_F(CalculatorPanelTest, ClickingTheCurrentRadioChangesNothing)
{
    for (int nMode : { 0, 1, 2, 3 }) {
        SwitchTo(nMode);
        WaitTwinkleDone();
        const std::string strValue = Value();
        CSFRadioBox* radios[] = { m_pPanel->m_pRadioDiskRequirement, m_pPanel->m_pRadioRecordingDay,
                                  m_pPanel->m_pRadioRaid, m_pPanel->m_pRadioRaid2 };
        ClickRadio(radios[nMode]);
        EXPECT_EQ(m_pPanel->GetMode(), nMode);
        EXPECT_EQ(Checks(*m_pPanel), OnlyOn(nMode));
        EXPECT_EQ(Value(), strValue);
        // No layout ran, so nothing was recalculated or flashed.
        EXPECT_FALSE(Twinkling());
    }
}

TEST_F(CalculatorPanelTest, TypedCapacityIsCutToItsUnitAndRepaired)
{
    CCalculatorBottom& p = *m_pPanel;
    p.SetTotals(1, 2048);
    SwitchTo(1);
    EXPECT_FALSE(Visible(p.m_pEditCustomCapacity));
    EXPECT_FALSE(Visible(p.m_pComboCapacityUnit));
    ChooseText(p.m_pComboCapacity, "1TB");
    const std::string strOneTB = Value();
    EXPECT_EQ(strOneTB, "40  Day 16.56 Hour");

    ChooseText(p.m_pComboCapacity, "Customize");
    EXPECT_TRUE(Visible(p.m_pEditCustomCapacity));
    EXPECT_TRUE(Visible(p.m_pComboCapacityUnit));
    EXPECT_EQ(Text(p.m_pEditCustomCapacity), "0");
    EXPECT_EQ(Value(), "0  Day 0.00 Hour");

    // GB: five characters at most.
    ReplaceText(p.m_pEditCustomCapacity, QStringLiteral("123456"));
    EXPECT_EQ(Text(p.m_pEditCustomCapacity), "12345");
    // Switching to TB caps the number.
    ChooseText(p.m_pComboCapacityUnit, "TB");
    EXPECT_EQ(Text(p.m_pEditCustomCapacity), "999");
    // TB: three characters at most.
    ReplaceText(p.m_pEditCustomCapacity, QStringLiteral("1234"));
    EXPECT_EQ(Text(p.m_pEditCustomCapacity), "123");
    ReplaceText(p.m_pEditCustomCapacity, QStringLiteral("1"));
    EXPECT_EQ(Value(), strOneTB);
    // A letter is no number: the edit falls back to 0.
    Type(p.m_pEditCustomCapacity, QStringLiteral("x"));
    EXPECT_EQ(Text(p.m_pEditCustomCapacity), "0");

    ChooseText(p.m_pComboCapacityUnit, "GB");
    ReplaceText(p.m_pEditCustomCapacity, QStringLiteral("1024"));
    EXPECT_EQ(Value(), strOneTB);

    // Back on the list: the typed capacity no longer counts.
    ChooseText(p.m_pComboCapacity, "32GB");
    EXPECT_FALSE(Visible(p.m_pEditCustomCapacity));
    EXPECT_FALSE(Visible(p.m_pComboCapacityUnit));
    EXPECT_EQ(Value(), "1  Day 6.52 Hour");
}

struct DayEntry {
    const char* name;
    const char* typed;  // after clearing the edit
    const char* expected;
};

void PrintTo(const DayEntry& entry, std::ostream* os)
{
    *os << entry.name;
}

class CalculatorDayEdit : public CalculatorPanelTest,
                          public ::testing::WithParamInterface<DayEntry> {};

TEST_P(CalculatorDayEdit, KeepsHoursWithinADay)
{
    SwitchTo(1);
    ChooseText(m_pPanel->m_pComboRecordPlan, "Customize(hours)");
    ReplaceText(m_pPanel->m_pEditDayHours[3], QString::fromLatin1(GetParam().typed));
    EXPECT_EQ(Text(m_pPanel->m_pEditDayHours[3]), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Typed, CalculatorDayEdit,
    ::testing::Values(DayEntry{ "Above24", "25", "24" },
                      DayEntry{ "Letter", "a", "24" }, DayEntry{ "DigitThenLetter", "8b", "24" },
                      DayEntry{ "Within", "7", "7" },
                      DayEntry{ "LeadingZeros", "007", "007" }, DayEntry{ "Cleared", "", "" }),
    [](const ::testing::TestParamInfo<DayEntry>& info) { return std::string(info.param.name); });

TEST_F(CalculatorPanelTest, WeeklyPlanCountsEmptyDaysAsNoHours)
{
    CCalculatorBottom& p = *m_pPanel;
    p.SetTotals(1, 4096);
    SwitchTo(1);
    ChooseText(p.m_pComboCapacity, "1TB");
    ChooseText(p.m_pComboRecordPlan, "Customize(hours)");
    for (int i = 0; i < CCalculatorBottom::kDayCount; ++i)
        EXPECT_TRUE(Visible(p.m_pStaticDay[i]) && Visible(p.m_pEditDayHours[i])) << i;
    // Sunday to Thursday 8 hours, Friday and Saturday left empty.
    for (int i = 0; i < 5; ++i)
        ReplaceText(p.m_pEditDayHours[i], QStringLiteral("8"));
    ClearText(p.m_pEditDayHours[5]);
    ClearText(p.m_pEditDayHours[6]);
    EXPECT_EQ(Text(p.m_pEditDayHours[6]), "");
    EXPECT_EQ(Value(), "12 Week 1 Day 0.28 Hour");

    for (int i = 0; i < 5; ++i)
        ClearText(p.m_pEditDayHours[i]);
    EXPECT_EQ(Value(), "0 Week 0 Day 0.00 Hour");

    // Round the clock, the day edits are ignored and hidden.
    ChooseText(p.m_pComboRecordPlan, "24 hours per day");
    EXPECT_FALSE(Visible(p.m_pEditDayHours[0]));
    EXPECT_EQ(Value(), "20  Day 8.28 Hour");
}

TEST_F(CalculatorPanelTest, DayPairsComeBackWithTheirValuesAfterLeavingTheMode)
{
    CCalculatorBottom& p = *m_pPanel;
    SwitchTo(1);
    ChooseText(p.m_pComboRecordPlan, "Customize(hours)");
    ReplaceText(p.m_pEditDayHours[1], QStringLiteral("8"));
    ReplaceText(p.m_pEditDayHours[6], QStringLiteral("12"));
    for (int nOther : { 0, 2, 3 }) {
        SwitchTo(nOther);
        for (int i = 0; i < CCalculatorBottom::kDayCount; ++i)
            EXPECT_FALSE(Visible(p.m_pEditDayHours[i]) || Visible(p.m_pStaticDay[i])) << nOther;
        SwitchTo(1);
        for (int i = 0; i < CCalculatorBottom::kDayCount; ++i)
            EXPECT_TRUE(Visible(p.m_pEditDayHours[i]) && Visible(p.m_pStaticDay[i])) << nOther;
        EXPECT_EQ(Text(p.m_pEditDayHours[1]), "8");
        EXPECT_EQ(Text(p.m_pEditDayHours[6]), "12");
        EXPECT_EQ(Text(p.m_pEditDayHours[0]), "24");
    }
}

TEST_F(CalculatorPanelTest, BayCountSurvivesDeviceAndLevelChanges)
{
    CCalculatorBottom& p = *m_pPanel;
    SwitchTo(2);
    EXPECT_EQ(Value(), "3.60TB");
    ChooseText(p.m_pComboRaidBays, "16 bay");
    EXPECT_EQ(p.m_nRaidBays, 16);
    EXPECT_EQ(Value(), "7.20TB");

    ChooseText(p.m_pComboRaidDevType, "MQS71");
    EXPECT_EQ(Items(p.m_pComboRaidBays),
              (std::vector<std::string>{ "16 bay", "24 bay", "36 bay", "48 bay" }));
    EXPECT_EQ(ItemText(p.m_pComboRaidBays, p.m_pComboRaidBays->GetCurSel()), "16 bay");

    ChooseText(p.m_pComboRaidLevel, "RAID 5");
    EXPECT_EQ(Items(p.m_pComboRaidBays), (std::vector<std::string>{ "24 bay", "36 bay", "48 bay" }));
    EXPECT_EQ(p.m_pComboRaidBays->GetCurSel(), 0);
    EXPECT_EQ(p.m_nRaidBays, 24);
    EXPECT_EQ(Value(), "18.00TB");

    ChooseText(p.m_pComboRaidDevType, "MQS50");
    EXPECT_EQ(Items(p.m_pComboRaidBays),
              (std::vector<std::string>{ "16 bay", "24 bay", "36 bay", "48 bay" }));
    EXPECT_EQ(ItemText(p.m_pComboRaidBays, p.m_pComboRaidBays->GetCurSel()), "24 bay");
    EXPECT_EQ(p.m_nRaidBays, 24);

    ChooseText(p.m_pComboRaidDisk, "4 TB");
    EXPECT_EQ(Value(), "72.00TB");

    // Mode 3 keeps a count of its own, still 0: its first rebuild falls back
    // to the smallest offer.
    EXPECT_EQ(p.m_nRaid2Bays, 0);
    SwitchTo(3);
    ChooseText(p.m_pComboRaid2DevType, "MQS70");
    EXPECT_EQ(p.m_nRaid2Bays, 16);
    EXPECT_EQ(p.m_pComboRaid2Bays->GetCurSel(), 0);
    EXPECT_EQ(p.m_nRaidBays, 24);
}

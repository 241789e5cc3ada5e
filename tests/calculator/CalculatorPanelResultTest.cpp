// What the panel answers: the totals line, the answer of each mode from its
// controls, the flash, the recordable percentage and the two-line count.

#include <functional>

#include "CalculatorPanelTestSupport.h"
#include "QtWait.h"
#include "SFQTStatic.h"
#include "SFStatic.h"
#include "VexUISetting.h"

namespace {

struct AnswerCase {
    const char* name;
    int nMode;
    double dKbps;
    // Real input after switching to the mode.
    std::function<void(CalculatorPanelTest&)> input;
    const char* caption;
    const char* value;
    bool bTwinkle;
};

void PrintTo(const AnswerCase& c, std::ostream* os)
{
    *os << c.name;
}

} // namespace

class CalculatorAnswer : public CalculatorPanelTest,
                         public ::testing::WithParamInterface<AnswerCase> {};

TEST_P(CalculatorAnswer, ComesFromTheControlsAndFlashes)
{
    const AnswerCase& c = GetParam();
    // A longer flash, so that it is still running when the check comes.
    Q(m_pPanel->m_pStaticResultValue)->SetTwinkleDuration(400);
    m_pPanel->SetTotals(1, c.dKbps);
    SwitchTo(c.nMode);
    if (c.input)
        c.input(*this);
    WaitTwinkleDone();
    ClickCalculate();
    EXPECT_EQ(Caption(), c.caption);
    EXPECT_EQ(Value(), c.value);
    EXPECT_EQ(Twinkling(), c.bTwinkle);
}

INSTANTIATE_TEST_SUITE_P(
    Modes, CalculatorAnswer,
    ::testing::Values(
        AnswerCase{ "DiskZeroRate", 0, 0, nullptr, "Request Capacity:", "0.00GB", false },
        AnswerCase{ "DiskSevenDays", 0, 2048,
                    [](CalculatorPanelTest& t) { t.EnterNumber(t.m_pPanel->m_pSpinDays, 7); },
                    "Request Capacity:", "147.66GB", true },
        AnswerCase{ "DaysZeroRate", 1, 0, nullptr, "Recording Days:", "0 Day 0 Hour", true },
        AnswerCase{ "DaysOneTB", 1, 2048,
                    [](CalculatorPanelTest& t) { t.ChooseText(t.m_pPanel->m_pComboCapacity, "1TB"); },
                    "Recording Days:", "40  Day 16.56 Hour", true },
        AnswerCase{ "RaidDefaults", 2, 0, nullptr, "Available:", "3.60TB", true },
        AnswerCase{ "RaidMqs71Raid5", 2, 0,
                    [](CalculatorPanelTest& t) {
                        t.ChooseText(t.m_pPanel->m_pComboRaidDevType, "MQS71");
                        t.ChooseText(t.m_pPanel->m_pComboRaidLevel, "RAID 5");
                        t.ChooseText(t.m_pPanel->m_pComboRaidBays, "48 bay");
                        t.ChooseText(t.m_pPanel->m_pComboRaidDisk, "16 TB");
                    },
                    "Available:", "590.40TB", true },
        AnswerCase{ "DevicesZeroRate", 3, 0, nullptr, "Need:", "0  Device", true },
        AnswerCase{ "DevicesOne", 3, 409600,
                    [](CalculatorPanelTest& t) {
                        t.EnterNumber(t.m_pPanel->m_pSpinRaid2Days, 30);
                        t.ChooseText(t.m_pPanel->m_pComboRaid2DevType, "MQS50");
                        t.ChooseText(t.m_pPanel->m_pComboRaid2Level, "RAID 6");
                        t.ChooseText(t.m_pPanel->m_pComboRaid2Bays, "48 bay");
                        t.ChooseText(t.m_pPanel->m_pComboRaid2Disk, "8 TB");
                    },
                    "Need:", "1 Device", true },
        AnswerCase{ "DevicesMany", 3, 409600,
                    [](CalculatorPanelTest& t) { t.EnterNumber(t.m_pPanel->m_pSpinRaid2Days, 30); },
                    "Need:", "35 Devices", true }),
    [](const ::testing::TestParamInfo<AnswerCase>& info) { return std::string(info.param.name); });

TEST_F(CalculatorPanelTest, RecordablePercentageMovesOnlyTheRecordingDays)
{
    m_pPanel->SetTotals(1, 2048);
    std::string before[4];
    for (int nMode = 0; nMode < 4; ++nMode) {
        SwitchTo(nMode);
        ClickCalculate();
        before[nMode] = Value();
    }
    g_UISetting.m_nRecordblePersentage = 50;
    for (int nMode = 0; nMode < 4; ++nMode) {
        SwitchTo(nMode);
        ClickCalculate();
        if (nMode == 1)
            EXPECT_NE(Value(), before[nMode]);
        else
            EXPECT_EQ(Value(), before[nMode]) << nMode;
    }
    SwitchTo(1);
    ChooseText(m_pPanel->m_pComboCapacity, "1TB");
    EXPECT_EQ(Value(), "22  Day 14.53 Hour");
}

TEST_F(CalculatorPanelTest, LargeDeviceCountsTakeTwoLinesAndOneLineComesBack)
{
    m_pPanel->SetTotals(1, 2048);
    SwitchTo(3);
    EXPECT_EQ(Value(), "1 Device");
    const RECT rcOneLine = m_pPanel->m_pStaticResultValue->GetGeometry();
    EXPECT_EQ(rcOneLine.left, 910);
    EXPECT_EQ(rcOneLine.top, 120);

    m_pPanel->SetTotals(1, 1e11);
    ClickCalculate();
    const std::string strValue = Value();
    EXPECT_NE(strValue.find("\r\nDevices"), std::string::npos) << strValue;
    EXPECT_GT(m_pPanel->m_pStaticResultValue->GetGeometry().bottom, rcOneLine.bottom);

    m_pPanel->SetTotals(1, 2048);
    ClickCalculate();
    EXPECT_EQ(Value(), "1 Device");
    const RECT rc = m_pPanel->m_pStaticResultValue->GetGeometry();
    EXPECT_EQ(rc.top, rcOneLine.top);
    EXPECT_EQ(rc.bottom, rcOneLine.bottom);
}

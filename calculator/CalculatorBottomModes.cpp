// The answer of each mode, read from the controls on every call.

#include "calculator/CalculatorBottom.h"

#include "Config/VexUISetting.h"
#include "calculator/engine/CapacityTable.h"
#include "calculator/engine/DeviceCount.h"
#include "calculator/engine/DiskRequirement.h"
#include "calculator/engine/RaidCapacity.h"
#include "calculator/engine/RecordingDays.h"
#include "calculator/engine/WeeklyPlan.h"
#include "language/LangString.h"
#include "sf/SFComboBox.h"
#include "sf/SFEditCtrl.h"
#include "sf/SFNumSpiner.h"
#include "sf/SFStatic.h"

#include <string>

namespace {

// Characters read: the custom capacity keeps 8, a day 5.
const int kCustomCapacityChars = 8;
const int kDayHoursChars = 5;

int DaysOf(CSFNumSpiner* pSpin)
{
    return pSpin ? pSpin->GetCurrentNum() : 1;
}

} // namespace

void CCalculatorBottom::Recalculate()
{
    // Controls report changes while OnCreate is still making the rest.
    if (!m_pStaticResultCaption || !m_pStaticResultValue)
        return;
    switch (m_nMode) {
    case MODE_DISK_REQUIREMENT:
        RecalculateDiskRequirement();
        break;
    case MODE_RECORDING_DAY:
        RecalculateRecordingDays();
        break;
    case MODE_RAID:
        RecalculateRaidCapacity();
        break;
    case MODE_RAID2:
        RecalculateRequestDevice();
        break;
    default:
        break;
    }
}

void CCalculatorBottom::ShowResult(const wchar_t* pszCaptionKey, const std::wstring& strValue,
                                   bool bTwinkle)
{
    m_pStaticResultCaption->SetStaticText(LangText(pszCaptionKey).c_str());
    m_pStaticResultValue->SetStaticText(strValue.c_str());
    if (bTwinkle)
        m_pStaticResultValue->StartTwinkle();
}

void CCalculatorBottom::RecalculateDiskRequirement()
{
    const CalcResult result = CalcDiskRequirement(DaysOf(m_pSpinDays), m_dTotalBitrate);
    ShowResult(L"Request Capacity:", result.strValue, result.bTwinkle);
}

void CCalculatorBottom::RecalculateRecordingDays()
{
    const double dRawGB =
        RawCapacityGB(m_bCustomCapacity != 0,
                      SFEditText(m_pEditCustomCapacity, kCustomCapacityChars).c_str(),
                      m_bCustomInTB != 0, Selection(m_pComboCapacity));
    double adDayHours[kPlanDayCount] = {};
    for (int i = 0; i < kPlanDayCount; ++i)
        adDayHours[i] = DayHoursFromText(SFEditText(m_pEditDayHours[i], kDayHoursChars).c_str());

    const std::wstring strDay = LangText(L"Day");
    const std::wstring strHour = LangText(L"Hour");
    const std::wstring strWeek = LangText(L"Week");
    const CalcResult result =
        CalcRecordingDays(m_dTotalBitrate, dRawGB, g_UISetting.m_nRecordblePersentage,
                          Selection(m_pComboRecordPlan), adDayHours, strDay.c_str(),
                          strHour.c_str(), strWeek.c_str());
    ShowResult(L"Recording Days:", result.strValue, result.bTwinkle);
}

void CCalculatorBottom::RecalculateRaidCapacity()
{
    const CalcResult result =
        CalcRaidCapacity(m_raidTables, Selection(m_raid.pDevType), Selection(m_raid.pLevel),
                         Selection(m_raid.pBays), Selection(m_raid.pDisk));
    ShowResult(L"Available Capacity:", result.strValue, result.bTwinkle);
}

void CCalculatorBottom::RecalculateRequestDevice()
{
    const std::wstring strDevice = LangText(L"Device");
    const std::wstring strDevices = LangText(L"Devices");
    const CalcResult result =
        CalcDeviceCount(m_raidTables, m_dTotalBitrate, DaysOf(m_pSpinRaid2Days),
                        Selection(m_raid2.pDevType), Selection(m_raid2.pLevel),
                        Selection(m_raid2.pBays), Selection(m_raid2.pDisk), strDevice.c_str(),
                        strDevices.c_str());
    if (result.bFixValueRect)
        FixRaid2ValueRect();
    ShowResult(L"Request Device:", result.strValue, result.bTwinkle);
}

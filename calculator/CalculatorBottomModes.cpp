// The answer of each mode, read from the controls on every call.

#include "calculator/CalculatorBottom.h"

#include "calculator/engine/CapacityTable.h"
#include "calculator/engine/DeviceCount.h"
#include "calculator/engine/DiskRequirement.h"
#include "language/LangString.h"
#include "calculator/engine/RaidCapacity.h"
#include "calculator/engine/RecordingDays.h"
#include "sf/SFComboBox.h"
#include "sf/SFEditCtrl.h"
#include "sf/SFNumSpiner.h"
#include "sf/SFStatic.h"
#include "Config/VexUISetting.h"
#include "calculator/engine/WeeklyPlan.h"

#include <string>
#include <vector>

namespace {

// GetWindowTextW counts: the custom capacity keeps 8 characters, a day 5.
const int kCustomCapacityTextCount = 9;
const int kDayHoursTextCount = 6;

std::wstring Lang(const wchar_t* key)
{
    return GetLangString(key, 0);
}

std::wstring EditText(const CSFEditCtrl* pEdit, int nCount)
{
    std::wstring strText(static_cast<std::size_t>(nCount), L'\0');
    if (pEdit)
        pEdit->GetWindowTextW(&strText[0], nCount);
    strText.resize(std::char_traits<wchar_t>::length(strText.c_str()));
    return strText;
}

int Selection(const CSFComboBox* pCombo)
{
    return pCombo ? pCombo->GetCurSel() : -1;
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

void CCalculatorBottom::ShowResult(const std::wstring& strCaption, const std::wstring& strValue,
                                   bool bTwinkle)
{
    m_pStaticResultCaption->SetStaticText(strCaption.c_str());
    m_pStaticResultValue->SetStaticText(strValue.c_str());
    if (bTwinkle)
        m_pStaticResultValue->StartTwinkle();
}

void CCalculatorBottom::RecalculateDiskRequirement()
{
    const int nDays = m_pSpinDays ? m_pSpinDays->GetCurrentNum() : 1;
    const CalcResult result = CalcDiskRequirement(nDays, m_dTotalBitrate);
    ShowResult(Lang(L"Request Capacity:"), result.strValue, result.bTwinkle);
}

void CCalculatorBottom::RecalculateRecordingDays()
{
    const double dRawGB =
        RawCapacityGB(m_bCustomCapacity != 0,
                      EditText(m_pEditCustomCapacity, kCustomCapacityTextCount).c_str(),
                      m_bCustomInTB != 0, Selection(m_pComboCapacity));
    double adDayHours[kPlanDayCount] = {};
    for (int i = 0; i < kPlanDayCount; ++i)
        adDayHours[i] = DayHoursFromText(EditText(m_pEditDayHours[i], kDayHoursTextCount).c_str());

    const std::wstring strDay = Lang(L"Day");
    const std::wstring strHour = Lang(L"Hour");
    const std::wstring strWeek = Lang(L"Week");
    const CalcResult result =
        CalcRecordingDays(m_dTotalBitrate, dRawGB, g_UISetting.m_nRecordblePersentage,
                          Selection(m_pComboRecordPlan), adDayHours, strDay.c_str(),
                          strHour.c_str(), strWeek.c_str());
    ShowResult(Lang(L"Recording Days:"), result.strValue, result.bTwinkle);
}

void CCalculatorBottom::RecalculateRaidCapacity()
{
    const CalcResult result =
        CalcRaidCapacity(m_raidTables, Selection(m_pComboRaidDevType), Selection(m_pComboRaidLevel),
                         Selection(m_pComboRaidBays), Selection(m_pComboRaidDisk));
    ShowResult(Lang(L"Available Capacity:"), result.strValue, result.bTwinkle);
}

void CCalculatorBottom::RecalculateRequestDevice()
{
    const std::wstring strDevice = Lang(L"Device");
    const std::wstring strDevices = Lang(L"Devices");
    const int nDays = m_pSpinRaid2Days ? m_pSpinRaid2Days->GetCurrentNum() : 1;
    const CalcResult result = CalcDeviceCount(
        m_raidTables, m_dTotalBitrate, nDays, Selection(m_pComboRaid2DevType),
        Selection(m_pComboRaid2Level), Selection(m_pComboRaid2Bays), Selection(m_pComboRaid2Disk),
        strDevice.c_str(), strDevices.c_str());
    if (result.bFixValueRect)
        FixRaid2ValueRect();
    ShowResult(Lang(L"Request Device:"), result.strValue, result.bTwinkle);
}

void CCalculatorBottom::FixRaid2ValueRect()
{
    if (!m_pStaticResultValue)
        return;
    // A two-line count leaves the label taller; one line goes back to its row.
    if (m_pStaticResultValue->GetGeometry().bottom != 145) {
        RECT rc = { 910, 120, 1050, 145 };
        m_pStaticResultValue->MoveWindow(&rc);
    }
}

int CCalculatorBottom::LookupBayCount(int nDevice, int nLevel, unsigned nIndex) const
{
    return m_raidTables.LookupBayCount(nDevice, nLevel, nIndex);
}

int CCalculatorBottom::LookupDataDisks(int nDevice, int nLevel, int nBayIndex) const
{
    return m_raidTables.LookupDataDisks(nDevice, nLevel, nBayIndex);
}

void CCalculatorBottom::RebuildBayCombo(int nDevice, int nLevel, bool bRaid2)
{
    CSFComboBox* pCombo = bRaid2 ? m_pComboRaid2Bays : m_pComboRaidBays;
    if (!pCombo)
        return;
    pCombo->ResetContent();
    const std::vector<int>* pOptions = m_raidTables.FindBayOptions(nDevice, nLevel);
    if (!pOptions)
        return;
    const std::vector<int> vecBays = *pOptions;
    for (int nBays : vecBays)
        pCombo->AddString(CRaidTables::FormatBayItem(nBays).c_str());
    int& nRemembered = bRaid2 ? m_nRaid2Bays : m_nRaidBays;
    const int nIndex = CRaidTables::SelectRememberedBays(vecBays, nRemembered);
    if (nIndex >= 0)
        pCombo->SetCurSel(nIndex);
}

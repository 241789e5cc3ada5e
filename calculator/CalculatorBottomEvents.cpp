// What the panel's own controls report: mode switches, choices and typing.

#include "calculator/CalculatorBottom.h"

#include "sf/SFComboBox.h"
#include "sf/SFEditCtrl.h"
#include "sf/SFRadioBox.h"
#include "language/TextConvert.h"
#include "platform/WinWideString.h"

#include <cwchar>
#include <string>

namespace {

const int kEditReadCount = 9;
const int kDigitLimit = 9;
// Characters a typed capacity may have, by unit.
const std::size_t kMaxTBChars = 3;
const std::size_t kMaxGBChars = 5;
const int kMaxTB = 999;
// Only the first characters of a day's hours count.
const std::size_t kDayHoursChars = 4;
const long kHoursPerDay = 24;

enum { UNIT_GB = 0, UNIT_TB = 1 };

// GetWindowTextW with a count of 9, then the digits of what it kept.
bool ReadEditDigits(const CSFEditCtrl* pEdit, int& nValue)
{
    wchar_t szText[kEditReadCount] = {};
    if (pEdit)
        pEdit->GetWindowTextW(szText, kEditReadCount);
    return ParseWideDigits(szText, &nValue, kDigitLimit) != 0;
}

} // namespace

void CCalculatorBottom::RADIO_OnClicked(int bChecked, int nID, tagPOINT, void*)
{
    CSFRadioBox* pRadio = FindModeRadio(nID);
    if (!bChecked) {
        // The radio that was on was clicked again: it stays on.
        if (pRadio)
            pRadio->SetCheck(1);
        return;
    }
    CSFRadioBox* radios[] = { m_pRadioDiskRequirement, m_pRadioRecordingDay, m_pRadioRaid,
                              m_pRadioRaid2 };
    for (CSFRadioBox* pEach : radios) {
        if (pEach)
            pEach->SetCheck(0);
    }
    if (pRadio)
        pRadio->SetCheck(1);

    switch (nID) {
    case ID_RADIO_DISK_REQUIREMENT:
        m_nMode = MODE_DISK_REQUIREMENT;
        ShowDiskRequirementPage();
        break;
    case ID_RADIO_RECORDING_DAY:
        m_nMode = MODE_RECORDING_DAY;
        ShowRecordingDayPage();
        break;
    case ID_RADIO_RAID:
        m_nMode = MODE_RAID;
        ShowRaidCalculatorPage();
        break;
    case ID_RADIO_RAID2:
        m_nMode = MODE_RAID2;
        ShowRaidCalculator2Page();
        break;
    default:
        break;
    }
}

void CCalculatorBottom::SelectChanged(int id, int index, void*)
{
    switch (static_cast<unsigned int>(id)) {
    case ID_COMBO_CAPACITY:
        if (m_pComboCapacity && index == m_pComboCapacity->GetCount() - 1) {
            if (m_pComboCapacityUnit)
                m_pComboCapacityUnit->ShowWindow(1);
            if (m_pEditCustomCapacity) {
                m_pEditCustomCapacity->ShowWindow(1);
                m_pEditCustomCapacity->SetWindowTextW(L"0");
            }
            m_bCustomCapacity = 1;
        } else {
            if (m_pComboCapacityUnit)
                m_pComboCapacityUnit->ShowWindow(0);
            if (m_pEditCustomCapacity)
                m_pEditCustomCapacity->ShowWindow(0);
            m_bCustomCapacity = 0;
        }
        break;
    case ID_COMBO_CAPACITY_UNIT:
        OnCapacityUnitChanged(index);
        break;
    case ID_COMBO_RECORD_PLAN:
        ShowDayPairs(index == 0 ? 0 : 1);
        break;
    case ID_COMBO_RAID_DEV_TYPE:
        RebuildBayCombo(index, m_pComboRaidLevel ? m_pComboRaidLevel->GetCurSel() : -1, false);
        break;
    case ID_COMBO_RAID_LEVEL:
        RebuildBayCombo(m_pComboRaidDevType ? m_pComboRaidDevType->GetCurSel() : -1, index,
                        false);
        break;
    case ID_COMBO_RAID_BAYS:
        m_nRaidBays = LookupBayCount(m_pComboRaidDevType ? m_pComboRaidDevType->GetCurSel() : -1,
                                     m_pComboRaidLevel ? m_pComboRaidLevel->GetCurSel() : -1,
                                     static_cast<unsigned>(index));
        break;
    case ID_COMBO_RAID2_DEV_TYPE:
        RebuildBayCombo(index, m_pComboRaid2Level ? m_pComboRaid2Level->GetCurSel() : -1, true);
        break;
    case ID_COMBO_RAID2_LEVEL:
        RebuildBayCombo(m_pComboRaid2DevType ? m_pComboRaid2DevType->GetCurSel() : -1, index,
                        true);
        break;
    case ID_COMBO_RAID2_BAYS:
        m_nRaid2Bays =
            LookupBayCount(m_pComboRaid2DevType ? m_pComboRaid2DevType->GetCurSel() : -1,
                           m_pComboRaid2Level ? m_pComboRaid2Level->GetCurSel() : -1,
                           static_cast<unsigned>(index));
        break;
    default:
        // The disk size combos (0xE43) only recalculate.
        break;
    }
    Recalculate();
}

void CCalculatorBottom::OnCapacityUnitChanged(int nIndex)
{
    m_bCustomInTB = (m_pComboCapacityUnit && nIndex == m_pComboCapacityUnit->GetCount() - 1) ? 1 : 0;
    if (nIndex != UNIT_TB)
        return;
    // Digits before a stray character still count here.
    int nValue = 0;
    ReadEditDigits(m_pEditCustomCapacity, nValue);
    if (nValue > kMaxTB && m_pEditCustomCapacity)
        m_pEditCustomCapacity->SetWindowTextW(L"999");
}

void CCalculatorBottom::EDIT_OnTextChange(unsigned int id, wchar_t* text, void*)
{
    if (id == ID_EDIT_CUSTOM_CAPACITY)
        OnCustomCapacityChanged(text);
    else if (id >= ID_EDIT_DAY_HOURS_FIRST && id <= ID_EDIT_DAY_HOURS_LAST)
        OnDayHoursChanged(static_cast<int>(id - ID_EDIT_DAY_HOURS_FIRST), text);
}

void CCalculatorBottom::OnCustomCapacityChanged(const wchar_t* pszText)
{
    if (!m_pEditCustomCapacity)
        return;
    const std::wstring strText = pszText ? pszText : L"";
    const int nUnit = m_pComboCapacityUnit ? m_pComboCapacityUnit->GetCurSel() : UNIT_GB;
    std::size_t nLimit = 0;
    if (nUnit == UNIT_TB)
        nLimit = kMaxTBChars;
    else if (nUnit == UNIT_GB)
        nLimit = kMaxGBChars;
    if (nLimit != 0 && strText.size() > nLimit) {
        // Writing the cut text comes back here once with a text that fits.
        m_pEditCustomCapacity->SetWindowTextW(strText.substr(0, nLimit).c_str());
        Recalculate();
        return;
    }
    int nValue = 0;
    if (!ReadEditDigits(m_pEditCustomCapacity, nValue) || nValue < 0)
        m_pEditCustomCapacity->SetWindowTextW(L"0");
    Recalculate();
}

void CCalculatorBottom::OnDayHoursChanged(int nDay, const wchar_t* pszText)
{
    CSFEditCtrl* pEdit = m_pEditDayHours[nDay];
    if (!pEdit)
        return;
    int nValue = 0;
    if (!ReadEditDigits(pEdit, nValue) || nValue < 0) {
        // A bad entry falls back to a full day, not to none.
        pEdit->SetWindowTextW(L"24");
        Recalculate();
        return;
    }
    std::wstring strHead = pszText ? pszText : L"";
    if (strHead.size() > kDayHoursChars)
        strHead.resize(kDayHoursChars);
    long nHours = _wtol(strHead.c_str());
    bool bClamped = false;
    if (nHours > kHoursPerDay) {
        nHours = kHoursPerDay;
        bClamped = true;
    } else if (nHours < 0) {
        nHours = 0;
        bClamped = true;
    }
    // Only a clamped value is written back: an emptied day stays empty.
    if (bClamped) {
        wchar_t szHours[16] = {};
        _ltow(nHours, szHours, 10);
        pEdit->SetWindowTextW(szHours);
    }
    Recalculate();
}

void CCalculatorBottom::OnCurrentNumChanged(unsigned int, int, void*, int)
{
    Recalculate();
}

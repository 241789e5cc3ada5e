// What the panel's own controls report: mode switches, choices and typing.

#include "calculator/CalculatorBottom.h"

#include "language/TextConvert.h"
#include "platform/WinWideString.h"
#include "sf/SFComboBox.h"
#include "sf/SFEditCtrl.h"
#include "sf/SFRadioBox.h"

#include <cwchar>
#include <string>
#include <vector>

namespace {

const int kEditReadCount = 9;
const int kDigitLimit = 9;
// Characters a typed capacity may have, by unit.
const std::size_t kMaxTBChars = 3;
const std::size_t kMaxGBChars = 5;
const int kMaxTB = 999;
const wchar_t* const kMaxTBText = L"999";
const wchar_t* const kNoCapacityText = L"0";
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
    for (CSFRadioBox* pEach : m_pModeRadios) {
        if (pEach)
            pEach->SetCheck(0);
    }
    if (pRadio)
        pRadio->SetCheck(1);

    for (int nMode = 0; nMode < kModeCount; ++nMode) {
        if (kModeRadioIds[nMode] == static_cast<unsigned int>(nID)) {
            m_nMode = nMode;
            LayOut(nMode);
            Recalculate();
        }
    }
}

int CCalculatorBottom::Selection(const CSFComboBox* pCombo)
{
    return pCombo ? pCombo->GetCurSel() : -1;
}

CCalculatorBottom::RaidInputs* CCalculatorBottom::FindRaidInputs(unsigned int nID)
{
    switch (nID) {
    case ID_COMBO_RAID_DEV_TYPE:
    case ID_COMBO_RAID_LEVEL:
    case ID_COMBO_RAID_BAYS:
        return &m_raid;
    case ID_COMBO_RAID2_DEV_TYPE:
    case ID_COMBO_RAID2_LEVEL:
    case ID_COMBO_RAID2_BAYS:
        return &m_raid2;
    default:
        return nullptr;
    }
}

void CCalculatorBottom::SelectChanged(int id, int index, void*)
{
    const unsigned int nID = static_cast<unsigned int>(id);
    RaidInputs* pRaid = FindRaidInputs(nID);
    switch (nID) {
    case ID_COMBO_CAPACITY: {
        const bool bCustom = m_pComboCapacity && index == m_pComboCapacity->GetCount() - 1;
        ShowWhere(SHOWN_IF_CUSTOM, bCustom);
        // The answer that the reset text brings still counts the list's capacity.
        if (bCustom && m_pEditCustomCapacity)
            m_pEditCustomCapacity->SetWindowTextW(kNoCapacityText);
        m_bCustomCapacity = bCustom ? 1 : 0;
        break;
    }
    case ID_COMBO_CAPACITY_UNIT:
        OnCapacityUnitChanged(index);
        break;
    case ID_COMBO_RECORD_PLAN:
        ShowWhere(SHOWN_IF_WEEKLY, index != 0);
        break;
    case ID_COMBO_RAID_DEV_TYPE:
    case ID_COMBO_RAID2_DEV_TYPE:
        RebuildBayCombo(*pRaid, index, Selection(pRaid->pLevel));
        break;
    case ID_COMBO_RAID_LEVEL:
    case ID_COMBO_RAID2_LEVEL:
        RebuildBayCombo(*pRaid, Selection(pRaid->pDevType), index);
        break;
    case ID_COMBO_RAID_BAYS:
    case ID_COMBO_RAID2_BAYS:
        pRaid->nBays =
            m_raidTables.LookupBayCount(Selection(pRaid->pDevType), Selection(pRaid->pLevel),
                                        static_cast<unsigned>(index));
        break;
    default:
        // The disk size combos only recalculate.
        break;
    }
    Recalculate();
}

void CCalculatorBottom::RebuildBayCombo(RaidInputs& raid, int nDevice, int nLevel)
{
    if (!raid.pBays)
        return;
    raid.pBays->ResetContent();
    const std::vector<int>* pOptions = m_raidTables.FindBayOptions(nDevice, nLevel);
    if (!pOptions)
        return;
    const std::vector<int> vecBays = *pOptions;
    for (int nBays : vecBays)
        raid.pBays->AddString(CRaidTables::FormatBayItem(nBays).c_str());
    const int nIndex = CRaidTables::SelectRememberedBays(vecBays, raid.nBays);
    if (nIndex >= 0)
        raid.pBays->SetCurSel(nIndex);
}

void CCalculatorBottom::OnCapacityUnitChanged(int nIndex)
{
    m_bCustomInTB =
        (m_pComboCapacityUnit && nIndex == m_pComboCapacityUnit->GetCount() - 1) ? 1 : 0;
    if (nIndex != UNIT_TB)
        return;
    // Digits before a stray character still count here.
    int nValue = 0;
    ReadEditDigits(m_pEditCustomCapacity, nValue);
    if (nValue > kMaxTB && m_pEditCustomCapacity)
        m_pEditCustomCapacity->SetWindowTextW(kMaxTBText);
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
        m_pEditCustomCapacity->SetWindowTextW(kNoCapacityText);
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
        pEdit->SetWindowTextW(kDayHoursFull);
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

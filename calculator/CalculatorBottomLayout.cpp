// Placement of the inputs of each mode and of the result area.

#include "calculator/CalculatorBottom.h"

#include "language/LangString.h"
#include "sf/SFButton.h"
#include "sf/SFComboBox.h"
#include "sf/SFEditCtrl.h"
#include "sf/SFNumSpiner.h"
#include "sf/SFRadioBox.h"
#include "sf/SFStatic.h"

namespace {

// Inputs are drawn a size larger than their nominal rectangle: each side moves
// out by an eighth of the width (or height), so the width grows by a quarter.
RECT ScaleControlRect(const RECT& rc)
{
    const int dx = static_cast<int>((rc.right - rc.left) * 0.125);
    const int dy = static_cast<int>((rc.bottom - rc.top) * 0.125);
    return RECT{ rc.left - dx, rc.top - dy, rc.right + dx, rc.bottom + dy };
}

template <class Control>
void Move(Control* pControl, RECT rc)
{
    if (pControl)
        pControl->MoveWindow(&rc);
}

template <class Control>
void Place(Control* pControl, const RECT& rc)
{
    if (!pControl)
        return;
    Move(pControl, rc);
    pControl->ShowWindow(1);
}

template <class Control>
void Show(Control* pControl)
{
    if (pControl)
        pControl->ShowWindow(1);
}

template <class Control>
void Hide(Control* pControl)
{
    if (pControl)
        pControl->ShowWindow(0);
}

// After the move, so that a longer translation widens the label.
void PlaceCaption(CSFStatic* pStatic, const RECT& rc, const wchar_t* pszKey)
{
    if (!pStatic)
        return;
    Place(pStatic, rc);
    pStatic->SetStaticText(GetLangString(pszKey, 0));
}

bool StandsOnLastEntry(const CSFComboBox* pCombo)
{
    return pCombo && pCombo->GetCurSel() == pCombo->GetCount() - 1;
}

} // namespace

void CCalculatorBottom::HideAllInputs()
{
    CSFStatic* captions[] = { m_pStaticFirstRow,    m_pStaticRecordPlan,   m_pStaticRaidBays,
                              m_pStaticRaidDisk,    m_pStaticRaidDevType,  m_pStaticRaidLevel,
                              m_pStaticRaid2Bays,   m_pStaticRaid2Disk,    m_pStaticRaid2DevType,
                              m_pStaticRaid2Level,  m_pStaticRaid2Days,    m_pStaticRecordableSpace,
                              m_pStaticRecordableValue };
    for (CSFStatic* pStatic : captions)
        Hide(pStatic);
    CSFComboBox* combos[] = { m_pComboCapacity,    m_pComboCapacityUnit, m_pComboRecordPlan,
                              m_pComboRaidDevType, m_pComboRaidLevel,    m_pComboRaidBays,
                              m_pComboRaidDisk,    m_pComboRaid2DevType, m_pComboRaid2Level,
                              m_pComboRaid2Bays,   m_pComboRaid2Disk };
    for (CSFComboBox* pCombo : combos)
        Hide(pCombo);
    Hide(m_pEditCustomCapacity);
    ShowDayPairs(0);
    Hide(m_pSpinDays);
    Hide(m_pSpinRaid2Days);
}

void CCalculatorBottom::ShowDayPairs(int bShow)
{
    for (int i = 0; i < kDayCount; ++i) {
        if (m_pStaticDay[i])
            m_pStaticDay[i]->ShowWindow(bShow);
        if (m_pEditDayHours[i])
            m_pEditDayHours[i]->ShowWindow(bShow);
    }
}

void CCalculatorBottom::ShowResultLabels()
{
    if (m_pStaticResultCaption)
        m_pStaticResultCaption->ShowWindow(1);
    if (m_pStaticResultValue)
        m_pStaticResultValue->ShowWindow(1);
}

// The inputs of mode 1 that its choices show and hide. They stand in place
// from the start, so that showing them never reveals them anywhere else.
void CCalculatorBottom::PlaceHiddenRecordingDayInputs()
{
    Move(m_pEditCustomCapacity, RECT{ 301, 92, 387, 118 });
    Move(m_pComboCapacityUnit, RECT{ 401, 90, 475, 121 });
    // Sunday to Tuesday on the first row, Wednesday to Saturday on the second.
    for (int i = 0; i < kDayCount; ++i) {
        const int nColumn = i < 3 ? i : i - 3;
        const int nLabelTop = i < 3 ? 182 : 220;
        const int nEditTop = i < 3 ? 180 : 218;
        const RECT rcLabel = { 30 + 95 * nColumn, nLabelTop, 30 + 95 * nColumn + 55,
                               nLabelTop + 20 };
        const RECT rcEdit = { rcLabel.right + 10, nEditTop, rcLabel.right + 10 + 30,
                              nEditTop + 20 };
        Move(m_pStaticDay[i], rcLabel);
        Move(m_pEditDayHours[i], ScaleControlRect(rcEdit));
    }
}

void CCalculatorBottom::ShowDiskRequirementPage()
{
    HideAllInputs();
    PlaceCaption(m_pStaticFirstRow, RECT{ 100, 125, 200, 160 }, L"Recording Day");
    Place(m_pSpinDays, RECT{ 220, 120, 342, 151 });
    ShowResultLabels();
    MoveResultArea(false);
    Recalculate();
}

void CCalculatorBottom::ShowRecordingDayPage()
{
    HideAllInputs();
    PlaceCaption(m_pStaticFirstRow, RECT{ 30, 95, 130, 125 }, L"Storage Capacity");
    Place(m_pComboCapacity, RECT{ 163, 88, 287, 124 });
    PlaceHiddenRecordingDayInputs();
    if (StandsOnLastEntry(m_pComboCapacity)) {
        Show(m_pEditCustomCapacity);
        Show(m_pComboCapacityUnit);
    }
    Place(m_pStaticRecordPlan, RECT{ 30, 141, 130, 166 });
    Place(m_pComboRecordPlan, RECT{ 163, 138, 349, 171 });
    const bool bWeekly = m_pComboRecordPlan && m_pComboRecordPlan->GetCurSel() != 0;
    ShowDayPairs(bWeekly ? 1 : 0);

    ShowResultLabels();
    MoveResultArea(false);
    Recalculate();
}

void CCalculatorBottom::ShowRaidCalculatorPage()
{
    HideAllInputs();
    Place(m_pStaticRaidDevType, RECT{ 10, 105, 120, 130 });
    Place(m_pComboRaidDevType, RECT{ 123, 95, 249, 130 });
    Place(m_pStaticRaidDisk, RECT{ 10, 150, 120, 175 });
    Place(m_pComboRaidDisk, RECT{ 123, 140, 249, 175 });
    Place(m_pStaticRaidLevel, RECT{ 270, 105, 380, 130 });
    Place(m_pComboRaidLevel, RECT{ 378, 95, 504, 130 });
    Place(m_pStaticRaidBays, RECT{ 270, 150, 380, 175 });
    Place(m_pComboRaidBays, RECT{ 378, 140, 504, 175 });
    ShowResultLabels();
    MoveResultArea(false);
    Recalculate();
}

void CCalculatorBottom::ShowRaidCalculator2Page()
{
    HideAllInputs();
    PlaceCaption(m_pStaticRaid2Days, RECT{ 10, 97, 120, 130 }, L"Recording Day");
    Place(m_pSpinRaid2Days, RECT{ 123, 97, 249, 129 });
    Place(m_pStaticRaid2DevType, RECT{ 270, 105, 380, 130 });
    Place(m_pComboRaid2DevType, RECT{ 383, 95, 509, 130 });
    Place(m_pStaticRaid2Disk, RECT{ 270, 150, 380, 175 });
    Place(m_pComboRaid2Disk, RECT{ 383, 140, 509, 175 });
    Place(m_pStaticRaid2Level, RECT{ 530, 105, 640, 130 });
    Place(m_pComboRaid2Level, RECT{ 638, 95, 764, 130 });
    Place(m_pStaticRaid2Bays, RECT{ 530, 150, 640, 175 });
    Place(m_pComboRaid2Bays, RECT{ 638, 140, 764, 175 });
    ShowResultLabels();
    MoveResultArea(true);
    Recalculate();
}

void CCalculatorBottom::MoveResultArea(bool bRaid2)
{
    if (m_pBtnCalculate) {
        RECT rc = bRaid2 ? RECT{ 780, 110, 836, 158 } : RECT{ 540, 110, 596, 158 };
        m_pBtnCalculate->MoveWindow(&rc);
    }
    if (m_pStaticResultCaption) {
        RECT rc = bRaid2 ? RECT{ 845, 125, 910, 145 } : RECT{ 615, 125, 730, 145 };
        m_pStaticResultCaption->MoveWindow(&rc);
    }
    if (m_pStaticResultValue) {
        RECT rc = bRaid2 ? RECT{ 910, 120, 1050, 145 } : RECT{ 750, 120, 1020, 145 };
        m_pStaticResultValue->MoveWindow(&rc);
    }
    if (m_pStaticDevicesTips)
        m_pStaticDevicesTips->ShowWindow(bRaid2 ? 1 : 0);
}

CSFRadioBox* CCalculatorBottom::FindModeRadio(int nID) const
{
    switch (nID) {
    case ID_RADIO_DISK_REQUIREMENT:
        return m_pRadioDiskRequirement;
    case ID_RADIO_RECORDING_DAY:
        return m_pRadioRecordingDay;
    case ID_RADIO_RAID:
        return m_pRadioRaid;
    case ID_RADIO_RAID2:
        return m_pRadioRaid2;
    default:
        return nullptr;
    }
}

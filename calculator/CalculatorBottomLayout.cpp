// Placement of the controls of each mode: one table, one reader.

#include "calculator/CalculatorBottom.h"

#include "language/LangString.h"
#include "sf/SFComboBox.h"
#include "sf/SFStatic.h"

namespace {

constexpr unsigned In(int nMode)
{
    return 1u << nMode;
}
const unsigned kDisk = In(CCalculatorBottom::MODE_DISK_REQUIREMENT);
const unsigned kRecordingDay = In(CCalculatorBottom::MODE_RECORDING_DAY);
const unsigned kRaid = In(CCalculatorBottom::MODE_RAID);
const unsigned kRaid2 = In(CCalculatorBottom::MODE_RAID2);
const unsigned kNotRaid2 = kDisk | kRecordingDay | kRaid;

bool StandsOnLastEntry(const CSFComboBox* pCombo)
{
    return pCombo && pCombo->GetCurSel() == pCombo->GetCount() - 1;
}

} // namespace

// clang-format off
const CCalculatorBottom::Placement CCalculatorBottom::kLayout[] = {
    { SLOT_FIRST_ROW_CAPTION, kDisk, SHOWN, { 100, 125, 200, 160 }, L"Recording Day" },
    { SLOT_SPIN_DAYS, kDisk, SHOWN, { 220, 120, 342, 151 }, nullptr },

    { SLOT_FIRST_ROW_CAPTION, kRecordingDay, SHOWN, { 30, 95, 130, 125 }, L"Storage Capacity" },
    { SLOT_COMBO_CAPACITY, kRecordingDay, SHOWN, { 163, 88, 287, 124 }, nullptr },
    { SLOT_EDIT_CUSTOM_CAPACITY, kRecordingDay, SHOWN_IF_CUSTOM, { 301, 92, 387, 118 }, nullptr },
    { SLOT_COMBO_CAPACITY_UNIT, kRecordingDay, SHOWN_IF_CUSTOM, { 401, 90, 475, 121 }, nullptr },
    { SLOT_RECORD_PLAN_CAPTION, kRecordingDay, SHOWN, { 30, 141, 130, 166 }, nullptr },
    { SLOT_COMBO_RECORD_PLAN, kRecordingDay, SHOWN, { 163, 138, 349, 171 }, nullptr },
    // Sunday to Tuesday, then Wednesday to Saturday; an hours edit is drawn a
    // quarter wider and taller than its cell.
    { SLOT_DAY_LABEL_FIRST + 0, kRecordingDay, SHOWN_IF_WEEKLY, { 30, 182, 85, 202 }, nullptr },
    { SLOT_DAY_HOURS_FIRST + 0, kRecordingDay, SHOWN_IF_WEEKLY, { 92, 178, 128, 202 }, nullptr },
    { SLOT_DAY_LABEL_FIRST + 1, kRecordingDay, SHOWN_IF_WEEKLY, { 125, 182, 180, 202 }, nullptr },
    { SLOT_DAY_HOURS_FIRST + 1, kRecordingDay, SHOWN_IF_WEEKLY, { 187, 178, 223, 202 }, nullptr },
    { SLOT_DAY_LABEL_FIRST + 2, kRecordingDay, SHOWN_IF_WEEKLY, { 220, 182, 275, 202 }, nullptr },
    { SLOT_DAY_HOURS_FIRST + 2, kRecordingDay, SHOWN_IF_WEEKLY, { 282, 178, 318, 202 }, nullptr },
    { SLOT_DAY_LABEL_FIRST + 3, kRecordingDay, SHOWN_IF_WEEKLY, { 30, 220, 85, 240 }, nullptr },
    { SLOT_DAY_HOURS_FIRST + 3, kRecordingDay, SHOWN_IF_WEEKLY, { 92, 216, 128, 240 }, nullptr },
    { SLOT_DAY_LABEL_FIRST + 4, kRecordingDay, SHOWN_IF_WEEKLY, { 125, 220, 180, 240 }, nullptr },
    { SLOT_DAY_HOURS_FIRST + 4, kRecordingDay, SHOWN_IF_WEEKLY, { 187, 216, 223, 240 }, nullptr },
    { SLOT_DAY_LABEL_FIRST + 5, kRecordingDay, SHOWN_IF_WEEKLY, { 220, 220, 275, 240 }, nullptr },
    { SLOT_DAY_HOURS_FIRST + 5, kRecordingDay, SHOWN_IF_WEEKLY, { 282, 216, 318, 240 }, nullptr },
    { SLOT_DAY_LABEL_FIRST + 6, kRecordingDay, SHOWN_IF_WEEKLY, { 315, 220, 370, 240 }, nullptr },
    { SLOT_DAY_HOURS_FIRST + 6, kRecordingDay, SHOWN_IF_WEEKLY, { 377, 216, 413, 240 }, nullptr },

    { SLOT_RAID_DEV_TYPE_CAPTION, kRaid, SHOWN, { 10, 105, 120, 130 }, nullptr },
    { SLOT_RAID_DEV_TYPE, kRaid, SHOWN, { 123, 95, 249, 130 }, nullptr },
    { SLOT_RAID_DISK_CAPTION, kRaid, SHOWN, { 10, 150, 120, 175 }, nullptr },
    { SLOT_RAID_DISK, kRaid, SHOWN, { 123, 140, 249, 175 }, nullptr },
    { SLOT_RAID_LEVEL_CAPTION, kRaid, SHOWN, { 270, 105, 380, 130 }, nullptr },
    { SLOT_RAID_LEVEL, kRaid, SHOWN, { 378, 95, 504, 130 }, nullptr },
    { SLOT_RAID_BAYS_CAPTION, kRaid, SHOWN, { 270, 150, 380, 175 }, nullptr },
    { SLOT_RAID_BAYS, kRaid, SHOWN, { 378, 140, 504, 175 }, nullptr },

    { SLOT_RAID2_DAYS_CAPTION, kRaid2, SHOWN, { 10, 97, 120, 130 }, L"Recording Day" },
    { SLOT_RAID2_DAYS, kRaid2, SHOWN, { 123, 97, 249, 129 }, nullptr },
    { SLOT_RAID2_DEV_TYPE_CAPTION, kRaid2, SHOWN, { 270, 105, 380, 130 }, nullptr },
    { SLOT_RAID2_DEV_TYPE, kRaid2, SHOWN, { 383, 95, 509, 130 }, nullptr },
    { SLOT_RAID2_DISK_CAPTION, kRaid2, SHOWN, { 270, 150, 380, 175 }, nullptr },
    { SLOT_RAID2_DISK, kRaid2, SHOWN, { 383, 140, 509, 175 }, nullptr },
    { SLOT_RAID2_LEVEL_CAPTION, kRaid2, SHOWN, { 530, 105, 640, 130 }, nullptr },
    { SLOT_RAID2_LEVEL, kRaid2, SHOWN, { 638, 95, 764, 130 }, nullptr },
    { SLOT_RAID2_BAYS_CAPTION, kRaid2, SHOWN, { 530, 150, 640, 175 }, nullptr },
    { SLOT_RAID2_BAYS, kRaid2, SHOWN, { 638, 140, 764, 175 }, nullptr },
    { SLOT_DEVICES_TIPS, kRaid2, SHOWN_IN_PLACE, { 0, 0, 0, 0 }, nullptr },

    { SLOT_CALCULATE, kNotRaid2, ALWAYS_SHOWN, { 540, 110, 596, 158 }, nullptr },
    { SLOT_RESULT_CAPTION, kNotRaid2, ALWAYS_SHOWN, { 615, 125, 730, 145 }, nullptr },
    { SLOT_RESULT_VALUE, kNotRaid2, ALWAYS_SHOWN, { 750, 120, 1020, 145 }, nullptr },
    { SLOT_CALCULATE, kRaid2, ALWAYS_SHOWN, { 780, 110, 836, 158 }, nullptr },
    { SLOT_RESULT_CAPTION, kRaid2, ALWAYS_SHOWN, { 845, 125, 910, 145 }, nullptr },
    { SLOT_RESULT_VALUE, kRaid2, ALWAYS_SHOWN, { 910, 120, 1050, 145 }, nullptr },
};
// clang-format on

void CCalculatorBottom::LayOut(int nMode)
{
    // Everything that comes and goes with the mode goes first.
    for (const Placement& row : kLayout) {
        const Placed& placed = m_placed[row.slot];
        if (placed.pControl && row.shown != ALWAYS_SHOWN)
            placed.pfnShow(placed.pControl, 0);
    }
    for (const Placement& row : kLayout) {
        const Placed& placed = m_placed[row.slot];
        if (!placed.pControl || !(row.modes & In(nMode)))
            continue;
        if (row.shown != SHOWN_IN_PLACE)
            placed.pfnMove(placed.pControl, row.rc);
        bool bShow = true;
        if (row.shown == SHOWN_IF_CUSTOM)
            bShow = StandsOnLastEntry(m_pComboCapacity);
        else if (row.shown == SHOWN_IF_WEEKLY)
            bShow = m_pComboRecordPlan && m_pComboRecordPlan->GetCurSel() != 0;
        if (bShow && row.shown != ALWAYS_SHOWN)
            placed.pfnShow(placed.pControl, 1);
        if (row.pszCaptionKey && placed.pfnRetitle)
            placed.pfnRetitle(placed.pControl, LangText(row.pszCaptionKey).c_str());
    }
}

// They stand in place from the start, so that showing them never reveals them
// anywhere else.
void CCalculatorBottom::PlaceHiddenInputs()
{
    for (const Placement& row : kLayout) {
        const Placed& placed = m_placed[row.slot];
        if (placed.pControl && (row.shown == SHOWN_IF_CUSTOM || row.shown == SHOWN_IF_WEEKLY))
            placed.pfnMove(placed.pControl, row.rc);
    }
}

void CCalculatorBottom::ShowWhere(Shown shown, bool bShow)
{
    for (const Placement& row : kLayout) {
        const Placed& placed = m_placed[row.slot];
        if (placed.pControl && row.shown == shown)
            placed.pfnShow(placed.pControl, bShow ? 1 : 0);
    }
}

RECT CCalculatorBottom::LaidOutRect(Slot slot, int nMode) const
{
    for (const Placement& row : kLayout) {
        if (row.slot == slot && (row.modes & In(nMode)))
            return row.rc;
    }
    return RECT{ 0, 0, 0, 0 };
}

void CCalculatorBottom::FixRaid2ValueRect()
{
    if (!m_pStaticResultValue)
        return;
    // A two-line count leaves the label taller; one line goes back to its row.
    RECT rc = LaidOutRect(SLOT_RESULT_VALUE, MODE_RAID2);
    if (m_pStaticResultValue->GetGeometry().bottom != rc.bottom)
        m_pStaticResultValue->MoveWindow(&rc);
}

CSFRadioBox* CCalculatorBottom::FindModeRadio(int nID) const
{
    for (int nMode = 0; nMode < kModeCount; ++nMode) {
        if (kModeRadioIds[nMode] == static_cast<unsigned int>(nID))
            return m_pModeRadios[nMode];
    }
    return nullptr;
}

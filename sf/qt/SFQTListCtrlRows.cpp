// The events of a row's cell controls: the list finds the row by the
// control's register and hands the event to its row binder, which knows what
// the cells of a row mean to each other.
#include "sf/qt/SFQTListCtrl.h"

#include "sf/SFComboBox.h"
#include "sf/SFEditCtrl.h"
#include "sf/SFListCtrlIds.h"
#include "sf/SFNumSpiner.h"

#include <string>
#include <utility>

void CSFQTListCtrl::SetArea(int area)
{
    m_tableFlag = area;
}

void CSFQTListCtrl::SetRowBinder(std::unique_ptr<ISFListRowBinder> binder)
{
    m_pBinder = std::move(binder);
}

// The id tells the kind of combo, the register the row.
void CSFQTListCtrl::SelectChanged(int id, int index, void* sender)
{
    const void* key = CellControlKey(sender);
    if (id >= static_cast<int>(SF_LIST_ID_EDIT_COMBO)) {
        m_currentRow = RowOf(m_frameRateCombos, key);
        OnFrameRateCurrentIndexChanged(index);
    } else if (id >= static_cast<int>(SF_LIST_ID_SECOND_COMBO)) {
        m_currentRow = RowOf(m_resolutionCombos, key);
        OnResolutionCurrentIndexChanged(index);
    } else if (id >= static_cast<int>(SF_LIST_ID_FIRST_COMBO)) {
        m_currentRow = RowOf(m_compressionCombos, key);
        OnCompressionCurrentIndexChanged(index);
    } else {
        m_currentRow = RowOf(m_environmentCombos, key);
        OnEnvironmentCurrentIndexChanged(index);
    }
}

void CSFQTListCtrl::OnCompressionCurrentIndexChanged(int pos)
{
    if (m_pBinder)
        m_pBinder->ComboChanged(*this, SF_LIST_COMBO_FIRST_PLAIN, m_currentRow, pos);
}

void CSFQTListCtrl::OnEnvironmentCurrentIndexChanged(int pos)
{
    if (m_pBinder)
        m_pBinder->ComboChanged(*this, SF_LIST_COMBO_WITH_BUTTON, m_currentRow, pos);
}

void CSFQTListCtrl::OnResolutionCurrentIndexChanged(int pos)
{
    if (m_pBinder)
        m_pBinder->ComboChanged(*this, SF_LIST_COMBO_SECOND_PLAIN, m_currentRow, pos);
}

void CSFQTListCtrl::OnFrameRateCurrentIndexChanged(int pos)
{
    if (m_pBinder)
        m_pBinder->ComboChanged(*this, SF_LIST_COMBO_WITH_EDIT, m_currentRow, pos);
}

// An id below the bases is the edit beside a combo, which carries its row
// alone; the row's own edit carries a base.
void CSFQTListCtrl::EDIT_OnTextChange(unsigned int id, wchar_t* text, void* sender)
{
    const void* key = CellControlKey(sender);
    const bool besideCombo = id < SF_LIST_ID_FIRST_COMBO;
    CSFEditCtrl* edit = nullptr;
    if (besideCombo) {
        m_currentRow = RowOf(m_customRateEdits, key);
        edit = ControlOfRow(m_customRateEdits, m_currentRow);
    } else {
        m_currentRow = RowOf(m_bitrateEdits, key);
        edit = ControlOfRow(m_bitrateEdits, m_currentRow);
    }
    // A control that has left its row, or one that is no row's.
    if (!edit || static_cast<const void*>(edit) != key || !m_pBinder)
        return;
    const std::wstring typed = text ? text : L"";
    if (besideCombo)
        m_pBinder->ComboEditChanged(*this, m_currentRow, typed);
    else
        m_pBinder->EditChanged(*this, m_currentRow, typed);
}

// The sender decides the row; the id, which may be stale after a deletion,
// only when the sender is no row's spinner.
void CSFQTListCtrl::OnCurrentNumChanged(unsigned int id, int, void* sender, int)
{
    m_currentRow = RowOf(m_channelSpiners, CellControlKey(sender));
    if (m_currentRow < 0) {
        for (auto it = m_channelSpiners.cbegin(); it != m_channelSpiners.cend(); ++it) {
            if (it.value() == static_cast<int>(id)) {
                m_currentRow = it.value();
                break;
            }
        }
    }
    if (m_pBinder)
        m_pBinder->SpinerChanged(*this, m_currentRow);
}

void CSFQTListCtrl::UpdateBitrate(int totalsOnly, int keepRowText)
{
    if (m_pBinder)
        m_pBinder->UpdateRow(*this, m_currentRow, totalsOnly, keepRowText);
}

int CSFQTListCtrl::IsRowReady()
{
    return m_pBinder ? m_pBinder->IsRowReady(*this, m_currentRow) : 0;
}

CSFComboBox* CSFQTListCtrl::RowCombo(int type, int row) const
{
    switch (type) {
    case SF_LIST_COMBO_WITH_BUTTON:
        return ControlOfRow(m_environmentCombos, row);
    case SF_LIST_COMBO_FIRST_PLAIN:
        return ControlOfRow(m_compressionCombos, row);
    case SF_LIST_COMBO_SECOND_PLAIN:
        return ControlOfRow(m_resolutionCombos, row);
    case SF_LIST_COMBO_WITH_EDIT:
        return ControlOfRow(m_frameRateCombos, row);
    default:
        return nullptr;
    }
}

CSFButton* CSFQTListCtrl::RowComboButton(int row) const
{
    return ControlOfRow(m_environmentButtons, row);
}

CSFEditCtrl* CSFQTListCtrl::RowComboEdit(int row) const
{
    return ControlOfRow(m_customRateEdits, row);
}

CSFEditCtrl* CSFQTListCtrl::RowEdit(int row) const
{
    return ControlOfRow(m_bitrateEdits, row);
}

CSFNumSpiner* CSFQTListCtrl::RowSpiner(int row) const
{
    return ControlOfRow(m_channelSpiners, row);
}

int CSFQTListCtrl::RowChecked(int row) const
{
    return GetCheck(row);
}

std::vector<std::pair<CSFNumSpiner*, int>> CSFQTListCtrl::RowSpiners() const
{
    std::vector<std::pair<CSFNumSpiner*, int>> spiners;
    spiners.reserve(static_cast<std::size_t>(m_channelSpiners.size()));
    for (auto it = m_channelSpiners.cbegin(); it != m_channelSpiners.cend(); ++it)
        spiners.emplace_back(it.key(), it.value());
    return spiners;
}

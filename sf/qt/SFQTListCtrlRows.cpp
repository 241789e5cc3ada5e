// What the controls of a channel row do to each other: the reactions of a
// row, its bit rate and the totals of the table.
//
// Not written yet: each event below only finds its row. The registers are
// dense (values 0 .. rows - 1 after every deletion); look a row's control up
// with ControlOfRow(register, m_currentRow), and a sender with
// RowOf(register, CellControlKey(sender)).
#include "SFQTListCtrl.h"

#include "SFButton.h"
#include "SFComboBox.h"
#include "SFEditCtrl.h"
#include "SFNumSpiner.h"
#include "SFRadioBox.h"

void CSFQTListCtrl::SetArea(int area)
{
    m_tableFlag = area;
}

void CSFQTListCtrl::SelectChanged(int, int, void* sender)
{
    const void* key = CellControlKey(sender);
    int row = RowOf(m_frameRateCombos, key);
    if (row < 0)
        row = RowOf(m_resolutionCombos, key);
    if (row < 0)
        row = RowOf(m_compressionCombos, key);
    if (row < 0)
        row = RowOf(m_environmentCombos, key);
    m_currentRow = row;
}

void CSFQTListCtrl::EDIT_OnTextChange(unsigned int, wchar_t*, void* sender)
{
    const void* key = CellControlKey(sender);
    int row = RowOf(m_customRateEdits, key);
    if (row < 0)
        row = RowOf(m_bitrateEdits, key);
    if (row >= 0)
        m_currentRow = row;
}

void CSFQTListCtrl::OnCurrentNumChanged(unsigned int id, int, void* sender, int)
{
    m_currentRow = -1;
    const void* key = CellControlKey(sender);
    for (auto it = m_channelSpiners.cbegin(); it != m_channelSpiners.cend(); ++it) {
        if (static_cast<const void*>(it.key()) == key ||
            it.value() == static_cast<int>(id)) {
            m_currentRow = it.value();
            break;
        }
    }
}

void CSFQTListCtrl::OnCompressionCurrentIndexChanged(int)
{
}

void CSFQTListCtrl::OnResolutionCurrentIndexChanged(int)
{
}

void CSFQTListCtrl::OnFrameRateCurrentIndexChanged(int)
{
}

void CSFQTListCtrl::OnEnvironmentCurrentIndexChanged(int)
{
}

void CSFQTListCtrl::UpdateBitrate(int, int)
{
}

int CSFQTListCtrl::IsRowReady()
{
    return 0;
}

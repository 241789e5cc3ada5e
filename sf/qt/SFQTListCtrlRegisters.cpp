// The registers of the row controls, row deletion, and the cell buttons and
// checks of the list control.
#include "sf/qt/SFQTListCtrl.h"

#include "sf/SFButton.h"
#include "sf/SFComboBox.h"
#include "sf/SFEditCtrl.h"
#include "sf/SFNumSpiner.h"
#include "sf/SFRadioBox.h"
#include "sf/qt/SFEventDispatch.h"

#include <QProgressBar>
#include <algorithm>
#include <vector>

template <class F>
void CSFQTListCtrl::ForEachRegister(F f)
{
    f(m_channelSpiners);
    f(m_compressionCombos);
    f(m_environmentCombos);
    f(m_environmentButtons);
    f(m_resolutionCombos);
    f(m_frameRateCombos);
    f(m_customRateEdits);
    f(m_audioChecks);
    f(m_bitrateEdits);
    f(m_deleteButtons);
    f(m_operateButtons);
    f(m_cellEdits);
    f(m_progressBars);
}

QList<int> CSFQTListCtrl::RegisterRows(Register reg) const
{
    switch (reg) {
    case ChannelSpiners:
        return m_channelSpiners.values();
    case CompressionCombos:
        return m_compressionCombos.values();
    case EnvironmentCombos:
        return m_environmentCombos.values();
    case EnvironmentButtons:
        return m_environmentButtons.values();
    case ResolutionCombos:
        return m_resolutionCombos.values();
    case FrameRateCombos:
        return m_frameRateCombos.values();
    case CustomRateEdits:
        return m_customRateEdits.values();
    case AudioChecks:
        return m_audioChecks.values();
    case BitrateEdits:
        return m_bitrateEdits.values();
    case DeleteButtons:
        return m_deleteButtons.values();
    default:
        return QList<int>();
    }
}

void* CSFQTListCtrl::RegisterControl(Register reg, int row) const
{
    switch (reg) {
    case ChannelSpiners:
        return ControlOfRow(m_channelSpiners, row);
    case CompressionCombos:
        return ControlOfRow(m_compressionCombos, row);
    case EnvironmentCombos:
        return ControlOfRow(m_environmentCombos, row);
    case EnvironmentButtons:
        return ControlOfRow(m_environmentButtons, row);
    case ResolutionCombos:
        return ControlOfRow(m_resolutionCombos, row);
    case FrameRateCombos:
        return ControlOfRow(m_frameRateCombos, row);
    case CustomRateEdits:
        return ControlOfRow(m_customRateEdits, row);
    case AudioChecks:
        return ControlOfRow(m_audioChecks, row);
    case BitrateEdits:
        return ControlOfRow(m_bitrateEdits, row);
    case DeleteButtons:
        return ControlOfRow(m_deleteButtons, row);
    default:
        return nullptr;
    }
}

QWidget* CSFQTListCtrl::CellWidget(const void* control) const
{
    const auto found = m_cellControls.constFind(control);
    return found != m_cellControls.cend() ? found->widget : nullptr;
}

const void* CSFQTListCtrl::CellControlKey(const void* sender) const
{
    if (!sender)
        return nullptr;
    if (m_cellControls.contains(sender))
        return sender;
    // A sender given as its Qt widget rather than as its abstract control.
    for (auto it = m_cellControls.cbegin(); it != m_cellControls.cend(); ++it) {
        if (static_cast<const void*>(it->widget) == sender)
            return it.key();
    }
    return sender;
}

bool CSFQTListCtrl::IsHeaderCheck(const void* sender) const
{
    return m_pHeaderCheck && sender &&
           (sender == static_cast<const void*>(m_pHeaderCheck) ||
            sender == static_cast<const void*>(dynamic_cast<QWidget*>(m_pHeaderCheck)));
}

// Drops the controls of one cell, whose page is about to be replaced.
void CSFQTListCtrl::ForgetCell(int row, int col)
{
    RegistersChanged();
    // Controls live only in a cell's page: a cell without one has none, and
    // a new row is not worth a walk of every register.
    if (!indexWidget(model()->index(row, col)))
        return;
    ForEachRegister([this, row, col](auto& reg) {
        for (auto it = reg.begin(); it != reg.end();) {
            const auto found = m_cellControls.constFind(it.key());
            if (found != m_cellControls.cend() && found->cell.row() == row &&
                found->cell.column() == col) {
                m_cellControls.remove(it.key());
                it = reg.erase(it);
            } else {
                ++it;
            }
        }
    });
}

// The row's entries go and every entry above moves down by one.
void CSFQTListCtrl::ForgetRow(int row)
{
    RegistersChanged();
    ForEachRegister([this, row](auto& reg) {
        for (auto it = reg.begin(); it != reg.end();) {
            if (it.value() == row) {
                m_cellControls.remove(it.key());
                it = reg.erase(it);
            } else {
                if (it.value() > row)
                    --it.value();
                ++it;
            }
        }
    });
}

void CSFQTListCtrl::ForgetAll()
{
    RegistersChanged();
    ForEachRegister([](auto& reg) { reg.clear(); });
    m_cellControls.clear();
}

// After rows moved as a block (insertion in the middle, sorting), each
// control's row is where its cell now stands.
void CSFQTListCtrl::SyncRegistersFromCells()
{
    RegistersChanged();
    ForEachRegister([this](auto& reg) {
        for (auto it = reg.begin(); it != reg.end();) {
            const auto found = m_cellControls.constFind(it.key());
            if (found == m_cellControls.cend() || !found->cell.isValid()) {
                m_cellControls.remove(it.key());
                it = reg.erase(it);
                continue;
            }
            it.value() = found->cell.row();
            ++it;
        }
    });
}

void CSFQTListCtrl::NameCellPages()
{
    for (int r = 0; r < rowCount(); ++r) {
        for (int c = 0; c < columnCount(); ++c) {
            if (QWidget* page = indexWidget(model()->index(r, c)))
                page->setObjectName(QStringLiteral("cell_%1_%2").arg(r).arg(c));
        }
    }
}

int CSFQTListCtrl::DeleteItems(int row)
{
    if (row < 0 || row >= rowCount())
        return 0;
    if (m_editorCell.isValid() && m_editorCell.row() == row)
        CloseCellEditor();
    ForgetRow(row);
    removeRow(row);
    NameCellPages();
    const int rows = rowCount();
    if (row >= rows)
        row = rows - 1;
    if (row >= 0 && columnCount() > 0)
        setCurrentCell(row, std::min(8, columnCount() - 1));
    UpdateBitrate(1, 0);
    return 1;
}

int CSFQTListCtrl::DeleteAllItems()
{
    CloseCellEditor();
    // Emptied first, so that nothing the leaving controls still send finds a row.
    ForgetAll();
    setRowCount(0);
    m_currentRow = -1;
    // With no rows left the totals pass reports nothing but zeros.
    UpdateBitrate(1, 0);
    return 1;
}

void CSFQTListCtrl::DeleteSelectedItems(std::set<int>& rows)
{
    GetSelectRow(rows);
    for (auto it = rows.rbegin(); it != rows.rend(); ++it)
        DeleteItems(*it);
}

void CSFQTListCtrl::SetItemShow(int row, int, unsigned int id, bool show)
{
    for (QMap<CSFButton*, int>* reg :
         { &m_environmentButtons, &m_deleteButtons, &m_operateButtons }) {
        for (auto it = reg->cbegin(); it != reg->cend(); ++it) {
            if (it.value() == row && m_cellControls.value(it.key()).id == id)
                it.key()->ShowWindow(show ? 1 : 0);
        }
    }
}

void CSFQTListCtrl::SetBtnEnable(int id, bool enable)
{
    for (QMap<CSFButton*, int>* reg :
         { &m_environmentButtons, &m_deleteButtons, &m_operateButtons }) {
        for (auto it = reg->cbegin(); it != reg->cend(); ++it) {
            if (m_cellControls.value(it.key()).id == static_cast<unsigned int>(id))
                it.key()->EnableWindow(enable ? 1 : 0);
        }
    }
}

// The row's check control where it has one, else the check of the item in
// the column of InsertColumnCheck.
int CSFQTListCtrl::GetCheck(int row) const
{
    if (CSFRadioBox* box = ControlOfRow(m_audioChecks, row))
        return box->GetCheck() ? 1 : 0;
    if (row < 0 || row >= rowCount() || m_checkColumn < 0 || m_checkColumn >= columnCount())
        return 0;
    const QTableWidgetItem* it = item(row, m_checkColumn);
    return (it && it->checkState() == Qt::Checked) ? 1 : 0;
}

int CSFQTListCtrl::IsCheck(int row)
{
    return GetCheck(row);
}

int CSFQTListCtrl::SetCheck(int row, int check)
{
    if (row < 0 || row >= rowCount())
        return 0;
    if (CSFRadioBox* box = ControlOfRow(m_audioChecks, row)) {
        box->SetCheck(check ? 1 : 0);
        return 1;
    }
    QTableWidgetItem* it = EnsureItem(row, m_checkColumn);
    if (!it)
        return 0;
    it->setCheckState(check ? Qt::Checked : Qt::Unchecked);
    return 1;
}

void CSFQTListCtrl::SetAllCheck(int check)
{
    for (int r = 0; r < rowCount(); ++r)
        SetCheck(r, check);
    if (m_pHeaderCheck)
        m_pHeaderCheck->SetCheck(check ? 1 : 0);
}

void CSFQTListCtrl::OnAllCheckClicked()
{
    SetAllCheck(m_pHeaderCheck ? m_pHeaderCheck->GetCheck() : 0);
}

void CSFQTListCtrl::OnCheckClicked(BOOL bCheck)
{
    SetAllCheck(bCheck ? 1 : 0);
}

// A click on a cell button (delete, operate): the row becomes the selection,
// the handler hears of it, then the parent window's map.
void CSFQTListCtrl::OnClicked()
{
    CSFButton* button = dynamic_cast<CSFButton*>(sender());
    if (!button)
        return;
    int row = RowOf(m_deleteButtons, button);
    if (row < 0)
        row = RowOf(m_operateButtons, button);
    if (row < 0)
        return;
    const unsigned int id = m_cellControls.value(button).id;
    if (columnCount() > 0)
        setCurrentCell(row, 0);
    if (m_pEvent)
        m_pEvent->OnButton(static_cast<int>(id), row);
    SFSendCommandEvent(this, id);
}

// Cell buttons report through OnClicked and OnEnvironment, where the sender
// tells the row; the id alone cannot.
void CSFQTListCtrl::BTN_OnClicked(int)
{
}

void CSFQTListCtrl::RADIO_OnClicked(int checked, int, tagPOINT, void* sender)
{
    if (IsHeaderCheck(sender)) {
        OnCheckClicked(checked);
        return;
    }
    const int row = RowOf(m_audioChecks, CellControlKey(sender));
    if (row < 0)
        return;
    m_currentRow = row;
    if (m_pBinder)
        m_pBinder->CheckClicked(*this, row);
    if (m_pEvent)
        m_pEvent->Audio_OnClicked(row);
}

// The button beside a row's combo.
void CSFQTListCtrl::OnEnvironment()
{
    CSFButton* button = dynamic_cast<CSFButton*>(sender());
    const int row = button ? RowOf(m_environmentButtons, button) : -1;
    if (row >= 0 && m_pBinder)
        m_pBinder->ComboButtonClicked(*this, row);
}

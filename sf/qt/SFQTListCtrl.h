#pragma once
// A table whose cells hold either a text item or a small page of the
// framework's own controls; the list control is the handler of those
// controls and keeps one register per kind of row control. What the controls
// of a row do to each other is left to a row binder.
//
// Sources: SFQTListCtrl.cpp (table, skin, notifications, sorting),
// SFQTListCtrlCells.cpp (cell pages), SFQTListCtrlRegisters.cpp (registers,
// deletion, cell buttons and checks), SFQTListCtrlRows.cpp (the row events,
// handed to the binder).

#include "sf/ISFButtonEvent.h"
#include "sf/ISFCheckBoxEvent.h"
#include "sf/ISFComboBoxEvent.h"
#include "sf/ISFEditCtrlEvent.h"
#include "sf/ISFListRowBinder.h"
#include "sf/ISFListRowCells.h"
#include "sf/ISFNumSpinerEvent.h"
#include "sf/ISFRadioBoxEvent.h"
#include "sf/SFFwd.h"
#include "sf/SFListCtrl.h"

#include <QColor>
#include <QHash>
#include <QList>
#include <QMap>
#include <QPersistentModelIndex>
#include <QPixmap>
#include <QRect>
#include <QSet>
#include <QTableWidget>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

class CSFQTListRowDelegate;
class QHBoxLayout;
class QProgressBar;

class CSFQTListCtrl : public QTableWidget,
                      public CSFListCtrl,
                      public ISFComboBoxEvent,
                      public ISFEditCtrlEvent,
                      public ISFRadioBoxEvent,
                      public ISFCheckBoxEvent,
                      public ISFButtonEvent,
                      public ISFNumSpinerEvent,
                      public ISFListRowCells {
    Q_OBJECT
public:
    // The registers, for RegisterRows and RegisterControl.
    enum Register {
        ChannelSpiners,
        CompressionCombos,
        EnvironmentCombos,
        EnvironmentButtons,
        ResolutionCombos,
        FrameRateCombos,
        CustomRateEdits,
        AudioChecks,
        BitrateEdits,
        DeleteButtons,
        RegisterCount
    };

    // Inside a cell page.
    static constexpr int CellPageWidth = 170;
    static constexpr int CellPageHeight = 58;
    static constexpr int ComboWidth = 135;
    static constexpr int ComboHeight = 32;

    explicit CSFQTListCtrl(ISFListCtrlEvent* handler, QWidget* parent = nullptr);
    ~CSFQTListCtrl() override;

    int Create(unsigned long style, const tagRECT& rect, void* parent, unsigned int id,
               bool) override;
    void SetCursor() override;
    int SetSkin(ListCtrlStyle* style) override;
    void ShowWindow(int show) override;
    void MoveWindow(tagRECT* rect) override;
    void MoveWindow(int x, int y, int w, int h) override;
    int GetCheck(int row) const override;
    int GetColumn(int col, void* column) const override;
    int GetItemCount() const override;
    unsigned long GetItemData(int row) const override;
    int GetItemText(int row, int col, wchar_t* buffer, int size) const override;
    void* GetFirstSelectedItemPosition() const override;
    int GetNextSelectedItem(void*& pos) const override;
    unsigned long GetExtendedStyle() override;
    int SetCheck(int row, int check) override;
    int SetItemData(int row, unsigned long data) override;
    int SetItemText(int row, int col, const wchar_t* text) override;
    int SubItemHitTest(void* info) override;
    int InsertColumn(int col, const wchar_t* heading, int format, int width, int subItem) override;
    int InsertColumnCheck(int col, ImageRadioBox style) override;
    int InsertItem(int row, const wchar_t* text) override;
    unsigned long SetExtendedStyle(unsigned long style) override;
    int DeleteAllItems() override;
    int DeleteItems(int row) override;
    void DeleteSelectedItems(std::set<int>& rows) override;
    void SetItemSelected(int* rows, int count, bool selected) override;
    int SetColumnWidth(int col, int width) override;
    void SetColumnTextAlign(int col, unsigned int align) override;
    void SetItemWidget(int row, int col, const wchar_t* toolTip, const wchar_t* toolTip2,
                       ImageButtonStyle style, ImageButtonStyle style2) override;
    void SetItemNumSpiner(int row, int col, int max, int min, int id,
                          ImageNumSpinerStyle style) override;
    void SetItemComboBox(int type, int row, int col, int width, ImageComboBoxStyle style,
                         const wchar_t* placeholder, const wchar_t* extra,
                         const std::wstring* items, ...) override;
    void SetItemProgress(int row, int col, unsigned int value,
                         ImageProgressCtrlStyle style) override;
    void SetItemCheckWidget(int row, int col, ImageRadioBox style) override;
    void SetItemIcon(int row, int col, const wchar_t* file) override;
    void SetObjectName(const wchar_t* name) override;
    void SetHorizontalHeaderVisible(int visible) override;
    void ScrollToBottom() override;
    void SetToolTipText(int row, int col, const wchar_t* text) override;
    void SetShowGrid(int show) override;
    void SetColumnHeaderText(int col, const wchar_t* text) override;
    void EnableWindow(int enable) override;
    void SetSelectionStyle(unsigned int style) override;
    void EditorMode(int mode) override;
    int IsSelected(int row) override;
    int IsCheck(int row) override;
    void GetSelectRow(std::set<int>& rows) override;
    void SetHeaderSortEnable(int enable) override;
    void SetColumnHidden(int col, bool hidden) override;
    void SetVerticalHeaderHide() override;
    void SetSortIndicatorShown(int shown) override;
    void SetItemEditable(int col, int editable) override;
    void SetItemEdit(int row, int col) override;
    void SetItemEditCtrl(int row, int col, int) override;
    void SetRowColor(int enable) override;
    void EmitHeadClickFun(int section) override;
    void AddOperateBtn(int row, int col, const wchar_t* text, int id, ImageButtonStyle style,
                       int width, int height) override;
    void SetBtnEnable(int id, bool enable) override;
    void SetAllCheck(int check) override;
    void SetItemShow(int row, int col, unsigned int id, bool show) override;
    void SetProgress(int row, int value) override;
    void SethorizontalHeader(int height) override;
    void RADIO_OnClicked(int checked, int id, tagPOINT pt, void* sender) override;
    void SetArea(int area) override;

    // The list owns its binder; null makes it a plain table again.
    void SetRowBinder(std::unique_ptr<ISFListRowBinder> binder);

    // Events of the cell controls (ISF...Event), handed to the binder in
    // SFQTListCtrlRows.cpp.
    void SelectChanged(int id, int index, void* sender) override;
    void EDIT_OnTextChange(unsigned int id, wchar_t* text, void* sender) override;
    void OnCurrentNumChanged(unsigned int id, int value, void* sender, int reserved) override;
    void BTN_OnClicked(int id) override;

    // The current row's pass and readiness, as the binder has them.
    void UpdateBitrate(int totalsOnly, int keepRowText);
    int IsRowReady();

    // ISFListRowCells
    CSFComboBox* RowCombo(int type, int row) const override;
    CSFButton* RowComboButton(int row) const override;
    CSFEditCtrl* RowComboEdit(int row) const override;
    CSFEditCtrl* RowEdit(int row) const override;
    CSFNumSpiner* RowSpiner(int row) const override;
    int RowChecked(int row) const override;
    std::vector<std::pair<CSFNumSpiner*, int>> RowSpiners() const override;
    int Area() const override { return m_tableFlag; }
    ISFListCtrlEvent* Handler() const override { return m_pEvent; }

    // Inspection.
    QList<int> RegisterRows(Register reg) const;
    // The first control of the register whose row is row, as its abstract
    // class (CSFComboBox*, CSFButton*, ...); null when there is none.
    void* RegisterControl(Register reg, int row) const;
    // The Qt widget of a cell control, null for one the list does not know.
    QWidget* CellWidget(const void* control) const;
    int CurrentRow() const { return m_currentRow; }
    int TableFlag() const { return m_tableFlag; }
    unsigned int ControlId() const { return m_nID; }
    QColor RowColor(int row) const;
    bool IsColumnEditable(int col) const { return m_editableColumns.contains(col); }
    QModelIndex EditorCell() const { return m_editorCell; }
    QRect SliceRect(int slice) const;
    bool SliceStretch(int slice) const;

public slots:
    void OnAllCheckClicked();
    void OnItemDBClicked(QTableWidgetItem* item);
    void OnClicked();
    void OnCheckClicked(BOOL bCheck);
    void OnCellChanged(int row, int col, int value);
    void OnHeaderClicked(int section);
    void OnWidgetItemDBClicked(const QModelIndex& index);
    void OnWidgetItemChanged(QTableWidgetItem* item);
    void OnrangeChanged(int min, int max);
    void OnHeaderPosChanged(int nPos);
    void OnVerPosBarChanged(int nPos);
    void OnHeaderPosChanged1(int nPos);
    void OnCompressionCurrentIndexChanged(int pos);
    void OnResolutionCurrentIndexChanged(int pos);
    void OnFrameRateCurrentIndexChanged(int pos);
    void OnEnvironmentCurrentIndexChanged(int pos);
    void OnEnvironment();

protected:
    void mouseReleaseEvent(QMouseEvent* e) override;
    void mouseDoubleClickEvent(QMouseEvent* e) override;
    void paintEvent(QPaintEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;

private:
    enum CellKind { KindCombo, KindSpiner, KindEdit, KindCheck, KindButton, KindProgress };
    // Where a cell control stands; the index follows the row through
    // insertions, removals and sorting.
    struct CellControl {
        unsigned int id;
        CellKind kind;
        QPersistentModelIndex cell;
        QWidget* widget;
    };
    struct Slice {
        QRect rect;
        bool set = false;
        bool stretch = false;
    };

    // Row of control in reg, -1 when it is not there.
    template <class T>
    static int RowOf(const QMap<T*, int>& reg, const void* control)
    {
        return reg.value(static_cast<T*>(const_cast<void*>(control)), -1);
    }
    // First entry of reg whose row is row, null when none. The totals pass
    // asks this of every row, so each register keeps an index by row beside
    // it, rebuilt after the registers change; the register has the last word.
    template <class T>
    T* ControlOfRow(const QMap<T*, int>& reg, int row) const
    {
        if (row < 0)
            return nullptr;
        RowIndex& index = m_rowIndexes[&reg];
        if (index.generation != m_registerGeneration) {
            index.rows.clear();
            for (auto it = reg.cbegin(); it != reg.cend(); ++it) {
                const auto r = static_cast<std::size_t>(it.value());
                if (it.value() < 0 || r > static_cast<std::size_t>(reg.size()) + 1024)
                    continue;
                if (r >= index.rows.size())
                    index.rows.resize(r + 1, nullptr);
                if (!index.rows[r])
                    index.rows[r] = it.key();
            }
            index.generation = m_registerGeneration;
        }
        T* found = static_cast<std::size_t>(row) < index.rows.size()
                       ? static_cast<T*>(index.rows[static_cast<std::size_t>(row)])
                       : nullptr;
        if (found && reg.value(found, -1) == row)
            return found;
        // A change the index missed: the walk is always right.
        for (auto it = reg.cbegin(); it != reg.cend(); ++it) {
            if (it.value() == row)
                return it.key();
        }
        return nullptr;
    }
    // After any change to a register.
    void RegistersChanged() { ++m_registerGeneration; }
    template <class F>
    void ForEachRegister(F f);

    // How a cell page lines up its controls.
    enum PagePlacement { PlaceLeft, PlaceCentred, PlaceFill };

    // Cell pages (SFQTListCtrlCells.cpp).
    QWidget* NewCellPage(int row, int col);
    void PlaceCellPage(QWidget* page, int row, int col, PagePlacement placement);
    void AddToCellPage(QWidget* page, QWidget* control);
    template <class T>
    void Enrol(QMap<T*, int>& reg, T* control, int row, int col, unsigned int id, CellKind kind);
    bool CellControlText(int row, int col, QString& text) const;

    // Registers (SFQTListCtrlRegisters.cpp).
    void ForgetCell(int row, int col);
    void ForgetRow(int row);
    void ForgetAll();
    void SyncRegistersFromCells();
    void NameCellPages();
    // The control as the registers hold it, for a sender that may come as
    // its abstract control or as its Qt widget.
    const void* CellControlKey(const void* sender) const;
    bool IsHeaderCheck(const void* sender) const;

    bool IsValidCell(int row, int col) const;
    void SendNotify(unsigned int code, int row, int col);
    void CloseCellEditor();
    void PlaceHeaderCheck();
    QTableWidgetItem* EnsureItem(int row, int col);
    Qt::Alignment ColumnAlignment(int col) const;

    ISFListCtrlEvent* m_pEvent;
    std::unique_ptr<ISFListRowBinder> m_pBinder;
    int m_currentRow;
    int m_tableFlag;

    QMap<CSFNumSpiner*, int> m_channelSpiners;
    QMap<CSFComboBox*, int> m_compressionCombos;
    QMap<CSFComboBox*, int> m_environmentCombos;
    QMap<CSFButton*, int> m_environmentButtons;
    QMap<CSFComboBox*, int> m_resolutionCombos;
    QMap<CSFComboBox*, int> m_frameRateCombos;
    QMap<CSFEditCtrl*, int> m_customRateEdits;
    QMap<CSFRadioBox*, int> m_audioChecks;
    QMap<CSFEditCtrl*, int> m_bitrateEdits;
    QMap<CSFButton*, int> m_deleteButtons;
    // Cells that only the variants build.
    QMap<CSFButton*, int> m_operateButtons;
    QMap<CSFEditCtrl*, int> m_cellEdits;
    QMap<QProgressBar*, int> m_progressBars;
    QHash<const void*, CellControl> m_cellControls;
    struct RowIndex {
        unsigned long generation = 0;
        std::vector<void*> rows;
    };
    mutable QHash<const void*, RowIndex> m_rowIndexes;
    unsigned long m_registerGeneration = 1;

    QColor m_rowColor1;
    QColor m_rowColor2;
    int m_rowColorsOn;
    int m_rowHeight;
    QPixmap m_skinImage;
    Slice m_slices[20];
    unsigned long m_extendedStyle;
    QSet<int> m_editableColumns;
    QMap<int, unsigned int> m_columnAlign;
    QPersistentModelIndex m_editorCell;
    int m_sortEnabled;
    int m_sortSection;
    Qt::SortOrder m_sortOrder;
    int m_checkColumn;
    CSFRadioBox* m_pHeaderCheck;
    CSFQTListRowDelegate* m_pDelegate;
};

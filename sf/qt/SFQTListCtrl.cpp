#include "sf/qt/SFQTListCtrl.h"

#include "sf/SFListNotify.h"
#include "sf/SFRadioBox.h"
#include "sf/qt/SFEventDispatch.h"
#include "sf/qt/SFQTListRowDelegate.h"
#include "sf/qt/SFQtConvert.h"
#include "sf/qt/SFSkinParse.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <cstdint>
#include <cstring>

namespace {

// Win32 DrawText bits: 1 centre, 2 right, otherwise left.
Qt::Alignment AlignmentFromFlags(unsigned int flags)
{
    Qt::Alignment a = Qt::AlignVCenter;
    if (flags & 1u)
        a |= Qt::AlignHCenter;
    else if (flags & 2u)
        a |= Qt::AlignRight;
    else
        a |= Qt::AlignLeft;
    return a;
}

// LVCFMT_LEFT 0, LVCFMT_RIGHT 1, LVCFMT_CENTER 2.
Qt::Alignment AlignmentFromFormat(int format)
{
    switch (format & 3) {
    case 1:
        return Qt::AlignRight | Qt::AlignVCenter;
    case 2:
        return Qt::AlignCenter;
    default:
        return Qt::AlignLeft | Qt::AlignVCenter;
    }
}

} // namespace

CSFQTListCtrl::CSFQTListCtrl(ISFListCtrlEvent* handler, QWidget* parent)
    : QTableWidget(parent), CSFListCtrl(handler), m_pEvent(handler), m_currentRow(-1),
      m_tableFlag(0), m_rowColor1(245, 245, 245), m_rowColor2(255, 255, 255), m_rowColorsOn(1),
      m_rowHeight(0), m_extendedStyle(0), m_sortEnabled(0), m_sortSection(-1),
      m_sortOrder(Qt::AscendingOrder), m_checkColumn(-1), m_pHeaderCheck(nullptr),
      m_pDelegate(new CSFQTListRowDelegate(this))
{
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    // Cells open an editor only through the double-click rule.
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setStretchLastSection(true);
    setItemDelegate(m_pDelegate);

    connect(this, &QTableWidget::itemDoubleClicked, this, &CSFQTListCtrl::OnItemDBClicked);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this,
            &CSFQTListCtrl::OnHeaderPosChanged);
    connect(horizontalScrollBar(), &QScrollBar::rangeChanged, this, &CSFQTListCtrl::OnrangeChanged);
    connect(verticalScrollBar(), &QScrollBar::sliderMoved, this,
            &CSFQTListCtrl::OnVerPosBarChanged);
    connect(horizontalScrollBar(), &QScrollBar::sliderMoved, this,
            &CSFQTListCtrl::OnHeaderPosChanged1);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this,
            &CSFQTListCtrl::OnHeaderClicked);
    connect(this, &QTableWidget::itemChanged, this, &CSFQTListCtrl::OnWidgetItemChanged);
    connect(this, &QAbstractItemView::doubleClicked, this, &CSFQTListCtrl::OnWidgetItemDBClicked);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this] { PlaceHeaderCheck(); });
}

CSFQTListCtrl::~CSFQTListCtrl()
{
    // The cell controls report to this object: they go while it is whole,
    // and with empty registers nothing they might still send finds a row.
    QList<QWidget*> pages;
    for (int r = 0; r < rowCount(); ++r) {
        for (int c = 0; c < columnCount(); ++c) {
            if (QWidget* page = indexWidget(model()->index(r, c)))
                pages.append(page);
        }
    }
    ForgetAll();
    m_pBinder.reset();
    qDeleteAll(pages);
    delete dynamic_cast<QWidget*>(m_pHeaderCheck);
    m_pHeaderCheck = nullptr;
}

int CSFQTListCtrl::Create(unsigned long style, const tagRECT& rect, void* parent, unsigned int id,
                          bool)
{
    setParent(SFWidgetFromHandle(parent));
    setGeometry(SFRectForCreate(rect));
    m_nID = id;
    SFNameControl(this, "listctrl", id, QString());
    SFApplyVisibleStyle(this, style);
    return 1;
}

void CSFQTListCtrl::SetCursor()
{
}

int CSFQTListCtrl::SetSkin(ListCtrlStyle* style)
{
    if (!style)
        return 0;
    if (!style->strImage.empty()) {
        const std::unique_ptr<QPixmap> image = SFLoadSkinPixmap(style->strImage);
        m_skinImage = image ? *image : QPixmap();
    }
    const std::wstring* rects[20] = { &style->strSlice1,  &style->strSlice2,  &style->strSlice3,
                                      &style->strSlice4,  &style->strSlice5,  &style->strSlice6,
                                      &style->strSlice7,  &style->strSlice8,  &style->strSlice9,
                                      &style->strSlice10, &style->strSlice11, &style->strSlice12,
                                      &style->strSlice13, &style->strSlice14, &style->strSlice15,
                                      &style->strSlice16, &style->strSlice17, &style->strSlice18,
                                      &style->strSlice19, &style->strSlice20 };
    const std::wstring* modes[20] = {
        &style->strSlice1Mode,  &style->strSlice2Mode,  &style->strSlice3Mode,
        &style->strSlice4Mode,  &style->strSlice5Mode,  &style->strSlice6Mode,
        &style->strSlice7Mode,  &style->strSlice8Mode,  &style->strSlice9Mode,
        &style->strSlice10Mode, &style->strSlice11Mode, &style->strSlice12Mode,
        &style->strSlice13Mode, &style->strSlice14Mode, &style->strSlice15Mode,
        &style->strSlice16Mode, &style->strSlice17Mode, &style->strSlice18Mode,
        &style->strSlice19Mode, &style->strSlice20Mode
    };
    for (int i = 0; i < 20; ++i) {
        if (rects[i]->empty())
            continue;
        m_slices[i].set = true;
        m_slices[i].rect = SFParseRect(*rects[i]);
        m_slices[i].stretch = (*modes[i] == L"stretch");
    }
    // An empty colour keeps the former one rather than turning the rows black.
    if (!style->strRowColor1.empty())
        m_rowColor1 = SFParseColor(style->strRowColor1);
    if (!style->strRowColor2.empty())
        m_rowColor2 = SFParseColor(style->strRowColor2);
    if (style->nHeaderHeight > 0)
        horizontalHeader()->setFixedHeight(style->nHeaderHeight);
    if (style->nRowHeight > 0) {
        m_rowHeight = style->nRowHeight;
        verticalHeader()->setMinimumSectionSize(std::min(m_rowHeight, 20));
        verticalHeader()->setDefaultSectionSize(m_rowHeight);
        for (int r = 0; r < rowCount(); ++r)
            setRowHeight(r, m_rowHeight);
    }
    viewport()->update();
    return 1;
}

void CSFQTListCtrl::ShowWindow(int show)
{
    setVisible(show != 0);
}

void CSFQTListCtrl::MoveWindow(tagRECT* rect)
{
    if (rect)
        setGeometry(SFRectInclusive(*rect));
}

void CSFQTListCtrl::MoveWindow(int x, int y, int w, int h)
{
    setGeometry(SFRectFromXYWH(x, y, w, h));
}

int CSFQTListCtrl::GetColumn(int col, void*) const
{
    return (col >= 0 && col < columnCount()) ? 1 : 0;
}

int CSFQTListCtrl::GetItemCount() const
{
    return rowCount();
}

unsigned long CSFQTListCtrl::GetItemData(int row) const
{
    const QTableWidgetItem* it = (row >= 0 && row < rowCount()) ? item(row, 0) : nullptr;
    return it ? static_cast<unsigned long>(it->data(Qt::UserRole).toULongLong()) : 0;
}

int CSFQTListCtrl::SetItemData(int row, unsigned long data)
{
    QTableWidgetItem* it = EnsureItem(row, 0);
    if (!it)
        return 0;
    it->setData(Qt::UserRole, static_cast<qulonglong>(data));
    return 1;
}

// Positions are row + 1, so that null ends the walk.
void* CSFQTListCtrl::GetFirstSelectedItemPosition() const
{
    for (int r = 0; r < rowCount(); ++r) {
        if (selectionModel()->isRowSelected(r, QModelIndex()))
            return reinterpret_cast<void*>(static_cast<std::uintptr_t>(r) + 1);
    }
    return nullptr;
}

int CSFQTListCtrl::GetNextSelectedItem(void*& pos) const
{
    if (!pos)
        return -1;
    const int row = static_cast<int>(reinterpret_cast<std::uintptr_t>(pos) - 1);
    pos = nullptr;
    for (int r = row + 1; r < rowCount(); ++r) {
        if (selectionModel()->isRowSelected(r, QModelIndex())) {
            pos = reinterpret_cast<void*>(static_cast<std::uintptr_t>(r) + 1);
            break;
        }
    }
    return row;
}

unsigned long CSFQTListCtrl::GetExtendedStyle()
{
    return m_extendedStyle;
}

unsigned long CSFQTListCtrl::SetExtendedStyle(unsigned long style)
{
    const unsigned long old = m_extendedStyle;
    m_extendedStyle = style;
    return old;
}

int CSFQTListCtrl::SetItemText(int row, int col, const wchar_t* text)
{
    QTableWidgetItem* it = EnsureItem(row, col);
    if (!it)
        return 0;
    it->setText(SFToQString(text));
    return 1;
}

int CSFQTListCtrl::SubItemHitTest(void* info)
{
    if (!info)
        return -1;
    SFListHitTestInfo* hit = static_cast<SFListHitTestInfo*>(info);
    const QModelIndex idx = indexAt(QPoint(hit->pt.x, hit->pt.y));
    hit->iItem = idx.isValid() ? idx.row() : -1;
    hit->iSubItem = idx.isValid() ? idx.column() : -1;
    // LVHT_ONITEMLABEL or LVHT_NOWHERE.
    hit->flags = idx.isValid() ? 0x4u : 0x1u;
    return hit->iItem;
}

int CSFQTListCtrl::InsertColumn(int col, const wchar_t* heading, int format, int width, int)
{
    if (col < 0 || col > columnCount())
        col = columnCount();
    insertColumn(col);
    QTableWidgetItem* header = new QTableWidgetItem(SFToQString(heading));
    header->setTextAlignment(AlignmentFromFormat(format));
    setHorizontalHeaderItem(col, header);
    if (width >= 0)
        setColumnWidth(col, width);
    if (m_checkColumn >= col)
        ++m_checkColumn;
    PlaceHeaderCheck();
    return col;
}

int CSFQTListCtrl::InsertItem(int row, const wchar_t* text)
{
    if (row < 0 || row > rowCount())
        row = rowCount();
    insertRow(row);
    if (m_rowHeight > 0)
        setRowHeight(row, m_rowHeight);
    // Rows below moved down, and their controls with them; a row added at
    // the end moves nothing.
    if (row < rowCount() - 1) {
        SyncRegistersFromCells();
        NameCellPages();
    }
    if (columnCount() > 0) {
        QTableWidgetItem* it = new QTableWidgetItem(SFToQString(text));
        it->setTextAlignment(ColumnAlignment(0));
        setItem(row, 0, it);
    }
    if (m_checkColumn >= 0 && m_checkColumn < columnCount()) {
        QTableWidgetItem* check = EnsureItem(row, m_checkColumn);
        check->setCheckState(Qt::Unchecked);
    }
    return row;
}

void CSFQTListCtrl::SetItemSelected(int* rows, int count, bool selected)
{
    if (!rows)
        return;
    for (int i = 0; i < count; ++i) {
        if (rows[i] < 0 || rows[i] >= rowCount() || columnCount() == 0)
            continue;
        selectionModel()->select(model()->index(rows[i], 0),
                                 (selected ? QItemSelectionModel::Select
                                           : QItemSelectionModel::Deselect) |
                                     QItemSelectionModel::Rows);
    }
}

int CSFQTListCtrl::SetColumnWidth(int col, int width)
{
    if (col < 0 || col >= columnCount() || width < 0)
        return 0;
    setColumnWidth(col, width);
    return 1;
}

void CSFQTListCtrl::SetColumnTextAlign(int col, unsigned int align)
{
    if (col < 0 || col >= columnCount())
        return;
    m_columnAlign[col] = align;
    for (int r = 0; r < rowCount(); ++r) {
        if (QTableWidgetItem* it = item(r, col))
            it->setTextAlignment(ColumnAlignment(col));
    }
}

void CSFQTListCtrl::SetItemIcon(int row, int col, const wchar_t* file)
{
    QTableWidgetItem* it = EnsureItem(row, col);
    if (!it)
        return;
    const std::unique_ptr<QPixmap> image = SFLoadSkinPixmap(file ? file : L"");
    it->setIcon(image ? QIcon(*image) : QIcon());
}

void CSFQTListCtrl::SetObjectName(const wchar_t* name)
{
    setObjectName(SFToQString(name));
}

void CSFQTListCtrl::SetHorizontalHeaderVisible(int visible)
{
    horizontalHeader()->setVisible(visible != 0);
}

void CSFQTListCtrl::ScrollToBottom()
{
    scrollToBottom();
}

void CSFQTListCtrl::SetToolTipText(int row, int col, const wchar_t* text)
{
    if (!IsValidCell(row, col))
        return;
    const QString tip = SFToQString(text);
    if (QWidget* page = indexWidget(model()->index(row, col)))
        page->setToolTip(tip);
    else if (QTableWidgetItem* it = EnsureItem(row, col))
        it->setToolTip(tip);
}

void CSFQTListCtrl::SetShowGrid(int show)
{
    setShowGrid(show != 0);
}

void CSFQTListCtrl::SetColumnHeaderText(int col, const wchar_t* text)
{
    if (col < 0 || col >= columnCount())
        return;
    if (QTableWidgetItem* header = horizontalHeaderItem(col))
        header->setText(SFToQString(text));
    else
        setHorizontalHeaderItem(col, new QTableWidgetItem(SFToQString(text)));
}

void CSFQTListCtrl::EnableWindow(int enable)
{
    setEnabled(enable != 0);
}

// Qt's own selection modes by number: 0 none, 1 single, 2 multi, 3 extended,
// 4 contiguous.
void CSFQTListCtrl::SetSelectionStyle(unsigned int style)
{
    setSelectionMode(static_cast<QAbstractItemView::SelectionMode>(std::min(style, 4u)));
}

void CSFQTListCtrl::EditorMode(int mode)
{
    setEditTriggers(mode ? (QAbstractItemView::SelectedClicked | QAbstractItemView::EditKeyPressed)
                         : QAbstractItemView::NoEditTriggers);
}

int CSFQTListCtrl::IsSelected(int row)
{
    if (row < 0 || row >= rowCount())
        return 0;
    return selectionModel()->isRowSelected(row, QModelIndex()) ? 1 : 0;
}

void CSFQTListCtrl::GetSelectRow(std::set<int>& rows)
{
    rows.clear();
    for (int r = 0; r < rowCount(); ++r) {
        if (selectionModel()->isRowSelected(r, QModelIndex()))
            rows.insert(r);
    }
}

void CSFQTListCtrl::SetHeaderSortEnable(int enable)
{
    m_sortEnabled = enable;
}

void CSFQTListCtrl::SetColumnHidden(int col, bool hidden)
{
    if (col >= 0 && col < columnCount())
        setColumnHidden(col, hidden);
    PlaceHeaderCheck();
}

void CSFQTListCtrl::SetVerticalHeaderHide()
{
    verticalHeader()->hide();
}

void CSFQTListCtrl::SetSortIndicatorShown(int shown)
{
    horizontalHeader()->setSortIndicatorShown(shown != 0);
}

void CSFQTListCtrl::SetItemEditable(int col, int editable)
{
    if (editable)
        m_editableColumns.insert(col);
    else
        m_editableColumns.remove(col);
}

void CSFQTListCtrl::SetRowColor(int enable)
{
    m_rowColorsOn = enable;
    viewport()->update();
}

void CSFQTListCtrl::EmitHeadClickFun(int section)
{
    OnHeaderClicked(section);
}

void CSFQTListCtrl::SethorizontalHeader(int height)
{
    if (height > 0) {
        horizontalHeader()->setFixedHeight(height);
        horizontalHeader()->show();
    } else {
        horizontalHeader()->hide();
    }
}

QColor CSFQTListCtrl::RowColor(int row) const
{
    if (!m_rowColorsOn || row < 0)
        return QColor();
    return (row % 2 == 0) ? m_rowColor1 : m_rowColor2;
}

QRect CSFQTListCtrl::SliceRect(int slice) const
{
    return (slice >= 0 && slice < 20 && m_slices[slice].set) ? m_slices[slice].rect : QRect();
}

bool CSFQTListCtrl::SliceStretch(int slice) const
{
    return slice >= 0 && slice < 20 && m_slices[slice].stretch;
}

void CSFQTListCtrl::OnItemDBClicked(QTableWidgetItem* it)
{
    if (!it)
        return;
    const int row = it->row();
    const int col = it->column();
    CloseCellEditor();
    if (m_editableColumns.contains(col)) {
        setCurrentItem(it);
        openPersistentEditor(it);
        editItem(it);
        m_editorCell = QPersistentModelIndex(indexFromItem(it));
    }
    SendNotify(SF_LIST_NOTIFY_DBLCLICK, row, col);
}

// A double click on a cell without item: itemDoubleClicked stays silent there.
void CSFQTListCtrl::OnWidgetItemDBClicked(const QModelIndex& index)
{
    if (index.isValid() && !itemFromIndex(index))
        SendNotify(SF_LIST_NOTIFY_DBLCLICK, index.row(), index.column());
}

void CSFQTListCtrl::OnWidgetItemChanged(QTableWidgetItem* it)
{
    SendNotify(SF_LIST_NOTIFY_ITEM_CHANGED, it ? it->row() : -1, it ? it->column() : -1);
}

void CSFQTListCtrl::OnCellChanged(int row, int col, int)
{
    SendNotify(SF_LIST_NOTIFY_ITEM_CHANGED, row, col);
}

void CSFQTListCtrl::OnHeaderClicked(int section)
{
    if (m_sortEnabled && section >= 0 && section < columnCount()) {
        m_sortOrder = (section == m_sortSection && m_sortOrder == Qt::AscendingOrder)
                          ? Qt::DescendingOrder
                          : Qt::AscendingOrder;
        m_sortSection = section;
        // Qt moves the cell pages with their rows; the registers follow.
        sortItems(section, m_sortOrder);
        horizontalHeader()->setSortIndicator(section, m_sortOrder);
        SyncRegistersFromCells();
        NameCellPages();
    }
    SendNotify(SF_LIST_NOTIFY_HEADER_CLICK, -1, section);
}

// Per-pixel horizontal scrolling: the header follows the bar's value.
void CSFQTListCtrl::OnHeaderPosChanged(int nPos)
{
    horizontalHeader()->setOffset(nPos);
    PlaceHeaderCheck();
}

void CSFQTListCtrl::OnHeaderPosChanged1(int nPos)
{
    OnHeaderPosChanged(nPos);
}

void CSFQTListCtrl::OnVerPosBarChanged(int)
{
    viewport()->update();
}

void CSFQTListCtrl::OnrangeChanged(int min, int max)
{
    if (max <= min)
        horizontalHeader()->setOffset(0);
    PlaceHeaderCheck();
}

void CSFQTListCtrl::mouseReleaseEvent(QMouseEvent* e)
{
    QTableWidget::mouseReleaseEvent(e);
    const QModelIndex idx = indexAt(e->position().toPoint());
    if (e->button() == Qt::LeftButton)
        SendNotify(SF_LIST_NOTIFY_CLICK, idx.row(), idx.column());
    if (m_pEvent)
        m_pEvent->Selection_OnMouseRelease(idx.isValid() ? idx.row() : -1);
}

void CSFQTListCtrl::mouseDoubleClickEvent(QMouseEvent* e)
{
    const QModelIndex idx = indexAt(e->position().toPoint());
    QTableWidget::mouseDoubleClickEvent(e);
    if (!idx.isValid() && e->button() == Qt::LeftButton)
        SendNotify(SF_LIST_NOTIFY_DBLCLICK, -1, -1);
}

// The first slice, where the skin sets one, lies under the rows.
void CSFQTListCtrl::paintEvent(QPaintEvent* e)
{
    const Slice& under = m_slices[0];
    if (under.set && !m_skinImage.isNull() && under.rect.isValid()) {
        QPainter painter(viewport());
        const QPixmap piece = m_skinImage.copy(under.rect);
        if (under.stretch)
            painter.drawPixmap(viewport()->rect(), piece);
        else
            painter.drawTiledPixmap(viewport()->rect(), piece);
    }
    QTableWidget::paintEvent(e);
}

void CSFQTListCtrl::resizeEvent(QResizeEvent* e)
{
    QTableWidget::resizeEvent(e);
    PlaceHeaderCheck();
}

bool CSFQTListCtrl::IsValidCell(int row, int col) const
{
    return row >= 0 && row < rowCount() && col >= 0 && col < columnCount();
}

void CSFQTListCtrl::SendNotify(unsigned int code, int row, int col)
{
    SFListNotifyRecord record;
    std::memset(&record, 0, sizeof record);
    record.hdr.hwndFrom = SFHandleFromWidget(this);
    record.hdr.idFrom = m_nID;
    record.hdr.code = code;
    record.iItem = (row >= 0 && row < rowCount()) ? row : -1;
    record.iSubItem = (col >= 0 && col < columnCount()) ? col : -1;
    SFSendNotifyEvent(this, code, &record, m_nID);
}

void CSFQTListCtrl::CloseCellEditor()
{
    const QModelIndex cell = m_editorCell;
    if (cell.isValid() && QAbstractItemView::isPersistentEditorOpen(cell))
        QAbstractItemView::closePersistentEditor(cell);
    m_editorCell = QPersistentModelIndex();
}

QTableWidgetItem* CSFQTListCtrl::EnsureItem(int row, int col)
{
    if (!IsValidCell(row, col))
        return nullptr;
    if (QTableWidgetItem* it = item(row, col))
        return it;
    QTableWidgetItem* it = new QTableWidgetItem();
    it->setTextAlignment(ColumnAlignment(col));
    setItem(row, col, it);
    return it;
}

Qt::Alignment CSFQTListCtrl::ColumnAlignment(int col) const
{
    const auto found = m_columnAlign.constFind(col);
    if (found != m_columnAlign.cend())
        return AlignmentFromFlags(found.value());
    const QTableWidgetItem* header = horizontalHeaderItem(col);
    return header ? Qt::Alignment(header->textAlignment()) : (Qt::AlignLeft | Qt::AlignVCenter);
}

#include "moc_SFQTListCtrl.cpp"

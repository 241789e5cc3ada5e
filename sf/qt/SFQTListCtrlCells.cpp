// Cell pages: a transparent view in a cell holding the framework's own
// controls, all of which report to the list control.
#include "sf/qt/SFQTListCtrl.h"

#include "sf/SFButton.h"
#include "sf/SFComboBox.h"
#include "sf/SFControlTypes.h"
#include "sf/SFEditCtrl.h"
#include "sf/SFFactory.h"
#include "sf/SFListCtrlIds.h"
#include "sf/SFNumSpiner.h"
#include "sf/SFRadioBox.h"
#include "sf/SFView.h"
#include "sf/qt/SFQtConvert.h"
#include "sf/qt/SFSkinParse.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QProgressBar>
#include <QSpinBox>
#include <algorithm>

namespace {

constexpr int CellMargin = 3;
constexpr int CellSpacing = 3;
constexpr unsigned long ComboStyle = 0x50010000ul;
constexpr unsigned long ComboButtonStyle = 0x10010000ul;
// COLORREF of #9A6700, the accent readable on grey rows.
constexpr unsigned long ComboButtonTextColor = 0x00679Aul;

// Sizes the pages give their controls where the caller names none.
constexpr int ComboButtonWidth = 70;
constexpr int ComboButtonHeight = 26;
constexpr int CustomRateWidth = 50;
constexpr int CustomRateHeight = 26;
constexpr int SpinerWidth = 72;
constexpr int SpinerHeight = 32;
constexpr int CheckWidth = 40;
constexpr int CheckHeight = 26;
constexpr int RowEditWidth = 100;
constexpr int EditHeight = 26;
constexpr int DeleteWidth = 22;
constexpr int DeleteHeight = 27;
constexpr int ProgressHeight = 16;

// Create takes right and bottom one past the last pixel.
tagRECT SizeRect(int w, int h)
{
    return tagRECT{ 0, 0, w, h };
}

void* Handle(QWidget* w)
{
    return SFHandleFromWidget(w);
}

QString SkinUrl(const std::wstring& file)
{
    return QStringLiteral("url(") + SFCssQuoted(SFSkinFilePath(file)) + QLatin1Char(')');
}

} // namespace

template <class T>
void CSFQTListCtrl::Enrol(QMap<T*, int>& reg, T* control, int row, int col, unsigned int id,
                          CellKind kind)
{
    reg.insert(control, row);
    RegistersChanged();
    m_cellControls.insert(control,
                          CellControl{ id, kind, QPersistentModelIndex(model()->index(row, col)),
                                       dynamic_cast<QWidget*>(control) });
}

namespace {

// The control's widget, named for tests and screen readers; null when the
// factory gave no widget, in which case the control and its page are freed.
template <class Control>
QWidget* AdoptCellControl(Control* control, QWidget* page, const QString& name)
{
    QWidget* widget = dynamic_cast<QWidget*>(control);
    if (!widget) {
        SFDestroyControl(control);
        delete page;
        return nullptr;
    }
    widget->setObjectName(name);
    return widget;
}

} // namespace

QWidget* CSFQTListCtrl::NewCellPage(int row, int col)
{
    if (!IsValidCell(row, col))
        return nullptr;
    ForgetCell(row, col);
    CSFView* view = SFCreateView(nullptr);
    QWidget* page = dynamic_cast<QWidget*>(view);
    if (!page) {
        SFDestroyControl(view);
        return nullptr;
    }
    page->setObjectName(QStringLiteral("cell_%1_%2").arg(row).arg(col));
    // Hidden until setIndexWidget shows it with its controls. A view takes
    // its rectangle as it stands.
    view->Create(L"", L"", 0, tagRECT{ 0, 0, CellPageWidth - 1, CellPageHeight - 1 },
                 Handle(viewport()), 0);
    // Transparent, so that the row colour and the selection show through.
    view->SetBGClr(0xFF000000u);
    page->setFocusPolicy(Qt::NoFocus);
    QHBoxLayout* layout = new QHBoxLayout(page);
    layout->setContentsMargins(CellMargin, 0, CellMargin, 0);
    layout->setSpacing(CellSpacing);
    return page;
}

void CSFQTListCtrl::AddToCellPage(QWidget* page, QWidget* control)
{
    if (QBoxLayout* layout = qobject_cast<QBoxLayout*>(page->layout()))
        layout->addWidget(control, 0, Qt::AlignVCenter);
}

void CSFQTListCtrl::PlaceCellPage(QWidget* page, int row, int col, PagePlacement placement)
{
    if (QBoxLayout* layout = qobject_cast<QBoxLayout*>(page->layout())) {
        if (placement == PlaceCentred)
            layout->insertStretch(0, 1);
        if (placement != PlaceFill)
            layout->addStretch(1);
    }
    setIndexWidget(model()->index(row, col), page);
}

void CSFQTListCtrl::SetItemComboBox(int type, int row, int col, int, ImageComboBoxStyle style,
                                    const wchar_t* placeholder, const wchar_t* extra,
                                    const std::wstring* items, ...)
{
    static const unsigned int bases[4] = { SF_LIST_ID_BUTTON_COMBO, SF_LIST_ID_FIRST_COMBO,
                                           SF_LIST_ID_SECOND_COMBO, SF_LIST_ID_EDIT_COMBO };
    static const char* const names[4] = { "environment", "compression", "resolution", "framerate" };
    QMap<CSFComboBox*, int>* const regs[4] = { &m_environmentCombos, &m_compressionCombos,
                                               &m_resolutionCombos, &m_frameRateCombos };
    if (type < 0 || type >= SF_LIST_COMBO_TYPE_COUNT)
        return;
    QWidget* page = NewCellPage(row, col);
    if (!page)
        return;
    CSFComboBox* combo = SFCreateComboBox(this);
    QWidget* comboWidget = AdoptCellControl(combo, page, QString::fromLatin1(names[type]));
    if (!comboWidget)
        return;
    comboWidget->setMinimumSize(ComboWidth, ComboHeight);
    comboWidget->setMaximumSize(ComboWidth, ComboHeight);
    const unsigned int id = bases[type] + static_cast<unsigned int>(row);
    combo->Create(ComboStyle, SizeRect(ComboWidth, ComboHeight), Handle(page), id);
    // Title, the binder's fixed entries, then what the caller brings.
    combo->AddString(placeholder ? placeholder : L"");
    if (m_pBinder) {
        for (const std::wstring& text : m_pBinder->ComboEntries(type))
            combo->AddString(text.c_str());
    }
    if (type == SF_LIST_COMBO_WITH_BUTTON) {
        if (items) {
            for (int i = 1; i <= 3; ++i)
                combo->AddString(items[i].c_str());
        }
        combo->EnableWindow(0);
    } else if (type == SF_LIST_COMBO_WITH_EDIT) {
        combo->AddString(extra ? extra : L"");
    }
    combo->SetSkin(&style);
    AddToCellPage(page, comboWidget);
    Enrol(*regs[type], combo, row, col, id, KindCombo);

    if (type == SF_LIST_COMBO_WITH_BUTTON) {
        CSFButton* button = SFCreateButton(this);
        if (QWidget* w = dynamic_cast<QWidget*>(button)) {
            w->setObjectName(QStringLiteral("preview"));
            button->Create(items ? items[0].c_str() : L"", ComboButtonStyle,
                           SizeRect(ComboButtonWidth, ComboButtonHeight), Handle(page), id);
            w->setMinimumSize(50, 32);
            w->setMaximumSize(70, 32);
            // The button has no pictures: its word in the accent colour says
            // that it can be clicked.
            button->SetTextColor(ComboButtonTextColor);
            button->ShowWindow(0);
            AddToCellPage(page, w);
            if (QAbstractButton* clickable = qobject_cast<QAbstractButton*>(w))
                connect(clickable, &QAbstractButton::clicked, this, &CSFQTListCtrl::OnEnvironment);
            Enrol(m_environmentButtons, button, row, col, id, KindButton);
        } else {
            SFDestroyControl(button);
        }
    } else if (type == SF_LIST_COMBO_WITH_EDIT) {
        CSFEditCtrl* edit = SFCreateEditCtrl(this);
        if (QWidget* w = dynamic_cast<QWidget*>(edit)) {
            w->setObjectName(QStringLiteral("customrate"));
            const unsigned int editId = static_cast<unsigned int>(row);
            edit->Create(0, SizeRect(CustomRateWidth, CustomRateHeight), Handle(page), editId,
                         false);
            w->setMinimumSize(50, 26);
            w->setMaximumSize(50, 32);
            edit->SetWindowTextW(L"0");
            edit->ShowWindow(0);
            AddToCellPage(page, w);
            Enrol(m_customRateEdits, edit, row, col, editId, KindEdit);
        } else {
            SFDestroyControl(edit);
        }
    }
    PlaceCellPage(page, row, col, PlaceLeft);
}

void CSFQTListCtrl::SetItemNumSpiner(int row, int col, int max, int min, int id,
                                     ImageNumSpinerStyle style)
{
    QWidget* page = NewCellPage(row, col);
    if (!page)
        return;
    CSFNumSpiner* spiner = SFCreateNumSpiner(this);
    QWidget* w = AdoptCellControl(spiner, page, QStringLiteral("channels"));
    if (!w)
        return;
    const unsigned int spinerId = static_cast<unsigned int>(id);
    spiner->Create(L"", SizeRect(SpinerWidth, SpinerHeight), Handle(page), spinerId);
    w->setFixedSize(SpinerWidth, SpinerHeight);
    spiner->SetSkin(&style);
    spiner->SetRange(min, max);
    spiner->SetCurrentNum(min);
    spiner->SetCircleStep(1);
    spiner->ShowWindow(1);
    AddToCellPage(page, w);
    Enrol(m_channelSpiners, spiner, row, col, spinerId, KindSpiner);
    PlaceCellPage(page, row, col, PlaceCentred);
}

void CSFQTListCtrl::SetItemCheckWidget(int row, int col, ImageRadioBox style)
{
    QWidget* page = NewCellPage(row, col);
    if (!page)
        return;
    CSFRadioBox* check = SFCreateRadioBox(this);
    QWidget* w = AdoptCellControl(check, page, QStringLiteral("audio"));
    if (!w)
        return;
    const unsigned int id = static_cast<unsigned int>(row);
    check->Create(L"", SF_WS_VISIBLE, SizeRect(CheckWidth, CheckHeight), Handle(page), id);
    w->setFixedSize(CheckWidth, CheckHeight);
    check->SetSkin(&style);
    AddToCellPage(page, w);
    Enrol(m_audioChecks, check, row, col, id, KindCheck);
    PlaceCellPage(page, row, col, PlaceCentred);
}

void CSFQTListCtrl::SetItemEditCtrl(int row, int col, int)
{
    QWidget* page = NewCellPage(row, col);
    if (!page)
        return;
    CSFEditCtrl* edit = SFCreateEditCtrl(this);
    QWidget* w = AdoptCellControl(edit, page, QStringLiteral("bitrate"));
    if (!w)
        return;
    const unsigned int id = SF_LIST_ID_FIRST_COMBO + static_cast<unsigned int>(row);
    edit->Create(SF_WS_VISIBLE, SizeRect(RowEditWidth, EditHeight), Handle(page), id, false);
    w->setFixedSize(RowEditWidth, EditHeight);
    edit->SetWindowTextW(L"0");
    AddToCellPage(page, w);
    Enrol(m_bitrateEdits, edit, row, col, id, KindEdit);
    PlaceCellPage(page, row, col, PlaceCentred);
}

void CSFQTListCtrl::SetItemWidget(int row, int col, const wchar_t* toolTip, const wchar_t* toolTip2,
                                  ImageButtonStyle style, ImageButtonStyle style2)
{
    QWidget* page = NewCellPage(row, col);
    if (!page)
        return;
    struct ButtonPlan {
        const wchar_t* tip;
        ImageButtonStyle* style;
        unsigned int id;
        const char* name;
        QMap<CSFButton*, int>* reg;
    };
    const ButtonPlan plans[2] = {
        { toolTip, &style, SF_LIST_ID_DELETE, "delete", &m_deleteButtons },
        { toolTip2, &style2, SF_LIST_ID_SECOND_BUTTON, "operate", &m_operateButtons },
    };
    // A null second tool tip means no second button.
    const int count = toolTip2 ? 2 : 1;
    for (int i = 0; i < count; ++i) {
        CSFButton* button = SFCreateButton(this);
        QWidget* w = dynamic_cast<QWidget*>(button);
        if (!w) {
            SFDestroyControl(button);
            continue;
        }
        w->setObjectName(QString::fromLatin1(plans[i].name));
        button->Create(L"", SF_WS_VISIBLE, SizeRect(DeleteWidth, DeleteHeight), Handle(page),
                       plans[i].id);
        w->setFixedSize(DeleteWidth, DeleteHeight);
        button->SetSkin(plans[i].style);
        if (plans[i].tip)
            button->SetToolTipText(plans[i].tip);
        if (QAbstractButton* b = qobject_cast<QAbstractButton*>(w))
            connect(b, &QAbstractButton::clicked, this, &CSFQTListCtrl::OnClicked);
        AddToCellPage(page, w);
        Enrol(*plans[i].reg, button, row, col, plans[i].id, KindButton);
    }
    PlaceCellPage(page, row, col, PlaceCentred);
}

void CSFQTListCtrl::AddOperateBtn(int row, int col, const wchar_t* text, int id,
                                  ImageButtonStyle style, int width, int height)
{
    if (!IsValidCell(row, col))
        return;
    QWidget* page = indexWidget(model()->index(row, col));
    const bool fresh = !page || !page->property("sfOperatePage").toBool();
    if (fresh) {
        page = NewCellPage(row, col);
        if (!page)
            return;
        page->setProperty("sfOperatePage", true);
    }
    CSFButton* button = SFCreateButton(this);
    QWidget* w = dynamic_cast<QWidget*>(button);
    if (!w) {
        SFDestroyControl(button);
        if (fresh)
            delete page;
        return;
    }
    const unsigned int buttonId = static_cast<unsigned int>(id);
    const int bw = width > 0 ? width : DeleteWidth;
    const int bh = height > 0 ? height : DeleteHeight;
    w->setObjectName(QStringLiteral("operate_%1").arg(buttonId));
    button->Create(text, SF_WS_VISIBLE, SizeRect(bw, bh), Handle(page), buttonId);
    w->setFixedSize(bw, bh);
    button->SetSkin(&style);
    if (QAbstractButton* b = qobject_cast<QAbstractButton*>(w))
        connect(b, &QAbstractButton::clicked, this, &CSFQTListCtrl::OnClicked);
    Enrol(m_operateButtons, button, row, col, buttonId, KindButton);
    if (fresh) {
        AddToCellPage(page, w);
        PlaceCellPage(page, row, col, PlaceCentred);
    } else if (QBoxLayout* layout = qobject_cast<QBoxLayout*>(page->layout())) {
        // Before the closing stretch.
        layout->insertWidget(std::max(0, layout->count() - 1), w, 0, Qt::AlignVCenter);
    }
}

void CSFQTListCtrl::SetItemEdit(int row, int col)
{
    const QTableWidgetItem* it = IsValidCell(row, col) ? item(row, col) : nullptr;
    const std::wstring text = it ? it->text().toStdWString() : std::wstring();
    QWidget* page = NewCellPage(row, col);
    if (!page)
        return;
    CSFEditCtrl* edit = SFCreateEditCtrl(this);
    QWidget* w = AdoptCellControl(edit, page, QStringLiteral("edit"));
    if (!w)
        return;
    const unsigned int id = static_cast<unsigned int>(row);
    edit->Create(SF_WS_VISIBLE, SizeRect(RowEditWidth, EditHeight), Handle(page), id, false);
    w->setFixedHeight(EditHeight);
    edit->SetWindowTextW(text.c_str());
    AddToCellPage(page, w);
    Enrol(m_cellEdits, edit, row, col, id, KindEdit);
    PlaceCellPage(page, row, col, PlaceFill);
}

void CSFQTListCtrl::SetItemProgress(int row, int col, unsigned int value,
                                    ImageProgressCtrlStyle style)
{
    QWidget* page = NewCellPage(row, col);
    if (!page)
        return;
    QProgressBar* bar = new QProgressBar(page);
    bar->setObjectName(QStringLiteral("progress"));
    bar->setRange(0, 100);
    bar->setValue(static_cast<int>(std::min(value, 100u)));
    bar->setFixedHeight(ProgressHeight);
    bar->setAlignment(Qt::AlignCenter);
    QString sheet;
    if (!style.strBackground.empty())
        sheet +=
            QStringLiteral("QProgressBar {border-image: %1;}").arg(SkinUrl(style.strBackground));
    if (!style.strChunk.empty())
        sheet +=
            QStringLiteral("QProgressBar::chunk {border-image: %1;}").arg(SkinUrl(style.strChunk));
    if (!style.strTextColor.empty())
        sheet += QStringLiteral("QProgressBar {color: %1;}")
                     .arg(SFParseColor(style.strTextColor).name());
    if (!sheet.isEmpty())
        bar->setStyleSheet(sheet);
    AddToCellPage(page, bar);
    Enrol(m_progressBars, bar, row, col, 0, KindProgress);
    PlaceCellPage(page, row, col, PlaceFill);
}

void CSFQTListCtrl::SetProgress(int row, int value)
{
    if (QProgressBar* bar = ControlOfRow(m_progressBars, row))
        bar->setValue(std::clamp(value, 0, 100));
}

int CSFQTListCtrl::InsertColumnCheck(int col, ImageRadioBox style)
{
    col = InsertColumn(col, L"", 2, 40, -1);
    m_checkColumn = col;
    for (int r = 0; r < rowCount(); ++r) {
        if (QTableWidgetItem* it = EnsureItem(r, col))
            it->setCheckState(Qt::Unchecked);
    }
    if (!m_pHeaderCheck) {
        m_pHeaderCheck = SFCreateRadioBox(this);
        QWidget* w = dynamic_cast<QWidget*>(m_pHeaderCheck);
        if (!w) {
            SFDestroyControl(m_pHeaderCheck);
            m_pHeaderCheck = nullptr;
            return col;
        }
        w->setObjectName(QStringLiteral("headercheck"));
        m_pHeaderCheck->Create(L"", SF_WS_VISIBLE, SizeRect(20, 20),
                               Handle(horizontalHeader()->viewport()), SF_LIST_ID_HEADER_CHECK);
    }
    m_pHeaderCheck->SetSkin(&style);
    const std::unique_ptr<QPixmap> picture = SFLoadSkinPixmap(style.strUncheckedNormal);
    if (QWidget* w = dynamic_cast<QWidget*>(m_pHeaderCheck))
        w->resize(picture ? picture->size() : QSize(20, 20));
    PlaceHeaderCheck();
    return col;
}

// The header check stands centred in its section and follows it.
void CSFQTListCtrl::PlaceHeaderCheck()
{
    QWidget* w = dynamic_cast<QWidget*>(m_pHeaderCheck);
    if (!w)
        return;
    QHeaderView* header = horizontalHeader();
    if (m_checkColumn < 0 || m_checkColumn >= columnCount() ||
        header->isSectionHidden(m_checkColumn)) {
        w->hide();
        return;
    }
    const int x = header->sectionViewportPosition(m_checkColumn);
    const int width = header->sectionSize(m_checkColumn);
    w->move(x + (width - w->width()) / 2, (header->height() - w->height()) / 2);
    w->show();
}

int CSFQTListCtrl::GetItemText(int row, int col, wchar_t* buffer, int size) const
{
    if (!buffer || size <= 0)
        return 0;
    buffer[0] = 0;
    if (!IsValidCell(row, col))
        return 0;
    QString text;
    if (!CellControlText(row, col, text)) {
        const QTableWidgetItem* it = item(row, col);
        text = it ? it->text() : QString();
    }
    const std::wstring wide = text.toStdWString();
    const int n = std::min(static_cast<int>(wide.size()), size - 1);
    std::copy_n(wide.data(), n, buffer);
    buffer[n] = 0;
    return n;
}

// The text of the cell's first control by kind: a combo's current entry, a
// spinner's number, an edit's text, "1" or "0" for a check, a button's text,
// a progress value.
bool CSFQTListCtrl::CellControlText(int row, int col, QString& text) const
{
    const void* key = nullptr;
    const CellControl* best = nullptr;
    for (auto it = m_cellControls.cbegin(); it != m_cellControls.cend(); ++it) {
        if (it->cell.row() != row || it->cell.column() != col || !it->widget)
            continue;
        if (!best || it->kind < best->kind) {
            best = &it.value();
            key = it.key();
        }
    }
    if (!best)
        return false;
    QWidget* w = best->widget;
    switch (best->kind) {
    case KindCombo:
        if (const QComboBox* combo = qobject_cast<const QComboBox*>(w))
            text = combo->currentText();
        break;
    case KindSpiner:
        if (const QSpinBox* spin = qobject_cast<const QSpinBox*>(w))
            text = QString::number(spin->value());
        break;
    case KindEdit:
        if (const QLineEdit* edit = qobject_cast<const QLineEdit*>(w))
            text = edit->text();
        break;
    case KindCheck:
        text = static_cast<const CSFRadioBox*>(key)->GetCheck() ? QStringLiteral("1")
                                                                : QStringLiteral("0");
        break;
    case KindButton:
        if (const QAbstractButton* button = qobject_cast<const QAbstractButton*>(w))
            text = button->text();
        break;
    case KindProgress:
        if (const QProgressBar* bar = qobject_cast<const QProgressBar*>(w))
            text = QString::number(bar->value());
        break;
    }
    return true;
}

#include "sf/qt/SFQTComboBox.h"

#include "sf/qt/SFLog.h"
#include "sf/qt/SFQTComboDelegate.h"
#include "sf/qt/SFQtConvert.h"
#include "sf/qt/SFSkinParse.h"

#include <QAbstractItemView>
#include <QCommonStyle>
#include <QCoreApplication>
#include <QIcon>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <algorithm>
#include <climits>
#include <cstdint>
#include <cwchar>
#include <string>

namespace {

int ClampToInt(std::int64_t v)
{
    return static_cast<int>(std::clamp<std::int64_t>(v, INT_MIN, INT_MAX));
}

// "x,y,width,height" with right = x + width and bottom = y + height: one
// pixel more each way than a frame rectangle, and the skins are cut so.
QRect ParseSlice(const std::wstring& text)
{
    if (text.empty())
        return QRect(QPoint(0, 0), QPoint(0, 0));
    int x = 0, y = 0, w = 0, h = 0;
    std::swscanf(text.c_str(), L"%d,%d,%d,%d", &x, &y, &w, &h);
    return QRect(QPoint(x, y),
                 QPoint(ClampToInt(std::int64_t(x) + w), ClampToInt(std::int64_t(y) + h)));
}

const QString& ComboStyleSheet()
{
    static const QString sheet = QStringLiteral(
        "QComboBox {subcontrol-position: bottom;}"
        "QComboBox QAbstractItemView {border: 1px solid darkgray;border-top-width: 0px;outline:0px;"
        "background-color: rgb(227,227,227);"
        "selection-background-color: rgb(132,144,167);"
        "subcontrol-origin: content;"
        "background-clip:content;"
        "position: absolute;}"
        "QComboBox QAbstractItemView::item:selected {Background: rgba(255,0,0,50%);}");
    return sheet;
}

// One plain style for every combo box: a style of its own would cost each
// combo memory, and the style outlives every popup that leans on it.
QStyle* PlainStyle()
{
    static QPointer<QCommonStyle> style;
    if (!style) {
        style = new QCommonStyle;
        style->setParent(QCoreApplication::instance());
    }
    return style;
}

// A transparent icon one pixel wide makes every popup row 25 high.
// One for all items; never freed, as a pixmap must not outlive the
// application object.
const QIcon& RowSpacer()
{
    static const QIcon* icon = [] {
        QPixmap spacer(1, CSFQTComboBox::RowHeight);
        spacer.fill(Qt::transparent);
        return new QIcon(spacer);
    }();
    return *icon;
}

} // namespace

CSFQTComboBox::CSFQTComboBox(ISFComboBoxEvent* handler, QWidget* parent)
    : CSFQTControl(handler, parent), m_state(0), m_popupOpen(0), m_originStyle(0), m_sheetWanted(0),
      m_popupMade(0)
{
    setFrame(false);
    Connect();
}

CSFQTComboBox::~CSFQTComboBox()
{
    // Qt still emits while its own parts go down; this half is gone by then.
    Disconnect();
}

int CSFQTComboBox::Create(unsigned long style, const tagRECT& rect, void* parent, unsigned int id)
{
    Place(parent, SFRectForCreate(rect), id, "combo");
    SFApplyVisibleStyle(this, style);
    return 1;
}

int CSFQTComboBox::SetSkin(ImageComboBoxStyle* style)
{
    if (!style || m_originStyle == 1)
        return 0;
    m_image = QPixmap();
    if (!style->strImage.empty())
        m_image.load(SFSkinFilePath(style->strImage));

    const std::wstring* rects[SliceCount] = { &style->strNormal,      &style->strHover,
                                              &style->strPressedDown, &style->strPressedUp,
                                              &style->strDisabled,    &style->strSlice6,
                                              &style->strSlice7 };
    const std::wstring* modes[SliceCount] = { &style->strNormalMode,      &style->strHoverMode,
                                              &style->strPressedDownMode, &style->strPressedUpMode,
                                              &style->strDisabledMode,    &style->strSlice6Mode,
                                              &style->strSlice7Mode };
    for (int i = 0; i < SliceCount; ++i) {
        SliceInfo& slice = m_slices[i];
        slice.set = rects[i]->empty() ? 0 : 1;
        slice.stretch = (slice.set && *modes[i] == std::wstring(L"stretch")) ? 1 : 0;
        slice.rect = ParseSlice(*rects[i]);
    }
    // The sheet only shapes the popup and Qt's own painting, so it waits for
    // either: a table of rows would otherwise pay for it in every combo.
    m_sheetWanted = 1;
    if (m_originStyle == 1 || m_popupMade)
        ApplySheet();
    update();
    return 1;
}

int CSFQTComboBox::AddString(const wchar_t* text)
{
    Disconnect();
    addItem(RowSpacer(), SFToQString(text));
    const int index = count() - 1;
    Connect();
    return index;
}

int CSFQTComboBox::DeleteString(unsigned int index)
{
    if (index >= static_cast<unsigned int>(count()))
        return -1;
    Disconnect();
    removeItem(static_cast<int>(index));
    Connect();
    return count();
}

int CSFQTComboBox::GetLBText(int index, wchar_t* buffer) const
{
    if (index < 0 || index >= count())
        return -1;
    const std::wstring value = itemText(index).toStdWString();
    if (buffer)
        std::copy(value.begin(), value.end(), buffer);
    return static_cast<int>(value.size());
}

int CSFQTComboBox::GetCurSel() const
{
    return currentIndex();
}

int CSFQTComboBox::SetCurSel(int index)
{
    if (index < 0 || index >= count())
        return -1;
    Disconnect();
    setCurrentIndex(index);
    Connect();
    return currentIndex();
}

int CSFQTComboBox::GetCount() const
{
    return count();
}

void CSFQTComboBox::EnableWindow(int enable)
{
    setEnabled(enable != 0);
}

void CSFQTComboBox::SetOriginStyle(int origin)
{
    m_originStyle = origin;
    // Qt paints the control from now on, with the plain style.
    if (origin == 1) {
        MakePopup();
        ApplySheet();
    }
    update();
}

void CSFQTComboBox::Clear()
{
    Disconnect();
    clear();
    Connect();
}

void CSFQTComboBox::ResetContent()
{
    for (int i = count() - 1; i >= 0; --i)
        DeleteString(static_cast<unsigned int>(i));
}

void CSFQTComboBox::showPopup()
{
    MakePopup();
    m_state = 2;
    m_popupOpen = 1;
    QComboBox::showPopup();
    // Qt opens nothing for an empty list; the control must not stay "open".
    if (!view()->isVisible()) {
        m_state = 0;
        m_popupOpen = 0;
    }
    update();
}

void CSFQTComboBox::hidePopup()
{
    m_state = 0;
    m_popupOpen = 0;
    QComboBox::hidePopup();
    update();
}

int CSFQTComboBox::PaintedSlice() const
{
    if (m_originStyle == 1)
        return SliceCount;
    if (!m_popupOpen)
        return Normal;
    // The popup opens downwards when its rows fit below the control.
    const int rows = std::min(count(), maxVisibleItems());
    const QScreen* where = screen();
    const int screenBottom = where ? where->geometry().bottom() : INT_MAX;
    const std::int64_t below =
        std::int64_t(mapToGlobal(QPoint(0, 0)).y()) + height() + std::int64_t(rows) * RowHeight;
    return below <= screenBottom ? PressedDown : PressedUp;
}

QRect CSFQTComboBox::TextRect() const
{
    QRect r = rect();
    r.setRight(r.right() - (height() + 1));
    return r;
}

void CSFQTComboBox::OnSelectChanged(int nIndex)
{
    qCDebug(lcSf) << "CSFQTComboBox::OnSelectChanged sender" << static_cast<const void*>(sender());
    if (m_pHandler)
        m_pHandler->SelectChanged(static_cast<int>(m_nID), nIndex, static_cast<CSFComboBox*>(this));
}

void CSFQTComboBox::paintEvent(QPaintEvent* e)
{
    if (m_originStyle == 1) {
        QComboBox::paintEvent(e);
        return;
    }
    // Hover and disabled give way here: only open or not counts.
    m_state = m_popupOpen ? 2 : 0;
    QPainter painter(this);
    const int slice = PaintedSlice();
    if (slice < SliceCount && m_slices[slice].set && !m_image.isNull())
        painter.drawPixmap(QRectF(rect()), m_image, QRectF(m_slices[slice].rect));
    painter.drawText(TextRect(), Qt::AlignHCenter | Qt::AlignVCenter, currentText());
}

void CSFQTComboBox::mousePressEvent(QMouseEvent* e)
{
    m_state = 2;
    update();
    QComboBox::mousePressEvent(e);
}

void CSFQTComboBox::mouseReleaseEvent(QMouseEvent* e)
{
    m_state = 0;
    update();
    QComboBox::mouseReleaseEvent(e);
}

void CSFQTComboBox::enterEvent(QEnterEvent* e)
{
    if (!PopupActive())
        m_state = 1;
    QComboBox::enterEvent(e);
}

void CSFQTComboBox::leaveEvent(QEvent* e)
{
    if (!PopupActive()) {
        m_state = 0;
        qCDebug(lcSf) << "leave";
    }
    QComboBox::leaveEvent(e);
}

void CSFQTComboBox::focusInEvent(QFocusEvent* e)
{
    m_state = 0;
    m_popupOpen = 0;
    QComboBox::focusInEvent(e);
}

void CSFQTComboBox::changeEvent(QEvent* e)
{
    // Qt restyles a popup it builds first for the purpose: with none made
    // yet there is nothing to restyle, and MakePopup catches up.
    if (!m_popupMade && (e->type() == QEvent::StyleChange || e->type() == QEvent::FontChange)) {
        updateGeometry();
        QWidget::changeEvent(e);
        return;
    }
    QComboBox::changeEvent(e);
}

void CSFQTComboBox::wheelEvent(QWheelEvent*)
{
    // The wheel never changes a combo box.
}

void CSFQTComboBox::Connect()
{
    if (!m_selectConnection)
        m_selectConnection = connect(this, qOverload<int>(&QComboBox::currentIndexChanged), this,
                                     &CSFQTComboBox::OnSelectChanged);
}

void CSFQTComboBox::Disconnect()
{
    if (m_selectConnection)
        disconnect(m_selectConnection);
}

bool CSFQTComboBox::PopupActive() const
{
    // view() would make the popup; one never made is not showing.
    return m_popupOpen != 0 || (m_popupMade && view()->isVisible());
}

// The popup is made on its first opening: most combo boxes of a table are
// never opened, and a popup is a handful of widgets.
void CSFQTComboBox::MakePopup()
{
    if (m_popupMade)
        return;
    m_popupMade = 1;
    // No platform style may paint the popup. Set here, not at birth: a style
    // change makes Qt build the popup at once.
    setStyle(PlainStyle());
    // The font change held back while there was no popup.
    QEvent fontChange(QEvent::FontChange);
    QComboBox::changeEvent(&fontChange);
    setIconSize(QSize(1, RowHeight));
    view()->viewport()->setFocusPolicy(Qt::NoFocus);
    // Set after view(): making the popup installs Qt's own delegate.
    setItemDelegate(new CSFQTComboDelegate(RowHeight, this));
    if (m_sheetWanted)
        ApplySheet();
}

void CSFQTComboBox::ApplySheet()
{
    if (m_sheetWanted && styleSheet().isEmpty())
        setStyleSheet(ComboStyleSheet());
}

#include "sf/qt/SFQTVideoWindow.h"

#include "sf/qt/SFQTVideoWindowPlayWnd.h"
#include "sf/qt/SFQTVideoWindowSubWnd.h"
#include "sf/qt/SFQtConvert.h"
#include "sf/qt/SFSkinParse.h"

#include <QByteArray>
#include <QPainter>
#include <QPointer>
#include <QResizeEvent>
#include <algorithm>
#include <cstring>

namespace {

// Frames larger than this are not copied.
const int kMaxRenderSide = 8192;

int SmallNumber(const std::wstring& text, int max)
{
    return std::clamp(QString::fromStdWString(text).trimmed().toInt(), 0, max);
}

} // namespace

CSFQTVideoWindow::CSFQTVideoWindow(ISFVideoWindowEvent* handler, QWidget* parent)
    : CSFQTControl(handler, parent), m_nGridRows(1), m_nGridCols(1), m_nProportionX(0),
      m_nProportionY(0), m_nCurrentIndex(0), m_nZoomIndex(-1), m_nNextSubWinID(0), m_nDragMode(0),
      m_nActiveCheckMode(0), m_nCursorNormal(0), m_nCursorDragging(0), m_bFrameZoom(false),
      m_bSubWinCtrlsVisible(true), m_bSubWinExchange(true), m_nDragFrom(-1), m_pDropTarget(nullptr)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

CSFQTVideoWindow::~CSFQTVideoWindow()
{
    // The sub windows go first, while everything they may ask is still here.
    std::vector<CSFQTVideoWindowSubWnd*> subs;
    subs.swap(m_subWnds);
    m_pDropTarget = nullptr;
    for (CSFQTVideoWindowSubWnd* sub : subs)
        delete sub;
}

int CSFQTVideoWindow::Create(const wchar_t* text, const tagRECT& rect, void* parent,
                             unsigned int id)
{
    Place(parent, SFRectForCreate(rect), id, "videowindow", SFToQString(text));
    const std::string grid = GetGridLayout(m_nGridRows, m_nGridCols);
    SetLayout(grid.empty() ? GetDefaultLayout(DEFAULT_LAYOUT_1) : grid.c_str());
    // A window of its own stays hidden until ShowWindow.
    if (parentWidget())
        show();
    return 1;
}

int CSFQTVideoWindow::SetSkin(ImageVideoWindowStyle* style)
{
    if (!style)
        return 0;
    Skin skin;
    skin.style = *style;
    if (std::unique_ptr<QPixmap> idle = SFLoadSkinPixmap(style->strNoVideo))
        skin.idle = *idle;
    skin.buttonSize = SFParseSize(style->strButtonSize).boundedTo(QSize(256, 256));
    skin.titleHeight = SmallNumber(style->strTitleHeight, 256);
    skin.back = SFParseColor(style->strBackColor);
    skin.focus = SFParseColor(style->strFocusColor);
    skin.title = SFParseColor(style->strTitleColor);
    skin.drop = SFParseColor(style->strDropColor);
    skin.record = SFParseColor(style->strRecordColor);
    skin.frameWidth = SmallNumber(style->strFrameWidth, 32);
    skin.focusFrameWidth = SmallNumber(style->strFocusFrameWidth, 32);
    m_skin = skin;
    for (CSFQTVideoWindowSubWnd* sub : m_subWnds)
        sub->ReskinControls();
    RefreshSubWindows();
    update();
    return 1;
}

VIDEOWINDOWMODE CSFQTVideoWindow::GetVideoWindowMode()
{
    return m_nZoomIndex >= 0 ? VIDEOWINDOWMODE_ZOOMED : VIDEOWINDOWMODE_NORMAL;
}

void CSFQTVideoWindow::SetRows(int rows)
{
    m_nGridRows = rows;
}

void CSFQTVideoWindow::SetColumns(int columns)
{
    m_nGridCols = columns;
}

void CSFQTVideoWindow::SetSubWinProportion(int x, int y)
{
    m_nProportionX = x;
    m_nProportionY = y;
}

int CSFQTVideoWindow::SetLayout(const char* text)
{
    SetZoom(-1);
    if (!text)
        return 0;
    // Measured without reading past the limit: longer texts are refused anyway.
    const size_t length = qstrnlen(text, CQTVideoWindowLayout::kMaxTextLength + 1u);
    if (length > static_cast<size_t>(CQTVideoWindowLayout::kMaxTextLength))
        return 0;
    if (!m_layout.Parse(QString::fromLatin1(text, static_cast<qsizetype>(length))))
        return 0;
    // Rectangles are always rebuilt in pixels, even when the text was written
    // for this very size.
    if (!m_layout.Resize(width(), height()))
        m_layout.Rebuild();
    PlaceSubWindows();
    if (m_pHandler)
        m_pHandler->OnLayoutChanged();
    return 1;
}

int CSFQTVideoWindow::GetLayout(char* buffer, int size)
{
    QString text;
    m_layout.Format(text);
    const QByteArray bytes = text.toLatin1();
    if (buffer && size > 0) {
        const int n = std::min(size - 1, static_cast<int>(bytes.size()));
        std::memcpy(buffer, bytes.constData(), static_cast<size_t>(n));
        buffer[n] = '\0';
    }
    return static_cast<int>(bytes.size());
}

void CSFQTVideoWindow::SetDefaultLayout(DEFAULT_LAYOUT layout)
{
    const char* text = GetDefaultLayout(layout);
    if (!text)
        return;
    SetLayout(text);
}

void* CSFQTVideoWindow::GetSubWinHandle(int index)
{
    CSFQTVideoWindowSubWnd* sub = SubWindow(index);
    return sub ? sub->PlayWnd()->NativeHandle() : nullptr;
}

void* CSFQTVideoWindow::GetCurrentWinHandle()
{
    return reinterpret_cast<void*>(winId());
}

int CSFQTVideoWindow::GetCurrentSubWinIndex()
{
    return m_nCurrentIndex;
}

int CSFQTVideoWindow::GetSubWinID(int index)
{
    CSFQTVideoWindowSubWnd* sub = SubWindow(index);
    return sub ? sub->ID() : -1;
}

int CSFQTVideoWindow::GetSubWinIndexFromID(int id)
{
    for (CSFQTVideoWindowSubWnd* sub : m_subWnds)
        if (sub->ID() == id)
            return sub->Index();
    return -1;
}

int CSFQTVideoWindow::GetCurrentSubWinCount()
{
    return static_cast<int>(m_subWnds.size());
}

void CSFQTVideoWindow::SetSubWinVideo(int index, int video)
{
    if (CSFQTVideoWindowSubWnd* sub = SubWindow(index))
        sub->SetVideo(video);
}

void CSFQTVideoWindow::SetSubWinVideoByID(int id, int video)
{
    SetSubWinVideo(GetSubWinIndexFromID(id), video);
}

void CSFQTVideoWindow::SetDragMode(int mode)
{
    m_nDragMode = mode;
}

void CSFQTVideoWindow::SetFrameZoomMode(int enable)
{
    m_bFrameZoom = enable != 0;
}

int CSFQTVideoWindow::IsEnableFrameZoom()
{
    return m_bFrameZoom ? 1 : 0;
}

void CSFQTVideoWindow::SetDrawOSDHandle(int index, void* handle)
{
    if (CSFQTVideoWindowSubWnd* sub = SubWindow(index))
        sub->SetOSDHandle(handle);
}

void CSFQTVideoWindow::GetFrameOSDRect(tagRECT& rect)
{
    rect = tagRECT{ 0, 0, 0, 0 };
    if (CSFQTVideoWindowSubWnd* sub = SubWindow(m_nCurrentIndex)) {
        const QWidget* play = sub->PlayWnd();
        rect = SFToTagRectExclusive(QRect(play->mapTo(this, QPoint(0, 0)), play->size()));
    }
}

void CSFQTVideoWindow::SetDragSubWinCursor(unsigned int normal, unsigned int dragging)
{
    m_nCursorNormal = normal;
    m_nCursorDragging = dragging;
}

void CSFQTVideoWindow::SetSubWinCtrlsVisible(int visible)
{
    m_bSubWinCtrlsVisible = visible != 0;
    RefreshSubWindows();
}

void CSFQTVideoWindow::SetSubWinRecordState(int index, int recording)
{
    if (CSFQTVideoWindowSubWnd* sub = SubWindow(index))
        sub->SetRecordState(recording);
}

void CSFQTVideoWindow::EableSubWinExchange(int enable)
{
    m_bSubWinExchange = enable != 0;
}

void CSFQTVideoWindow::ResetSubWinSizeToMin(int index)
{
    if (ValidIndex(index) && m_nZoomIndex == index)
        SetZoom(-1);
}

void CSFQTVideoWindow::ResetSubWinSizeToMinByID(int id)
{
    ResetSubWinSizeToMin(GetSubWinIndexFromID(id));
}

void CSFQTVideoWindow::SetFocusSubWin(int index)
{
    if (!ValidIndex(index) || index == m_nCurrentIndex)
        return;
    m_nCurrentIndex = index;
    RefreshSubWindows();
}

void CSFQTVideoWindow::SetActiveCheckMode(int mode)
{
    m_nActiveCheckMode = mode;
}

void CSFQTVideoWindow::SetParent(void* parent)
{
    const bool shown = !isHidden();
    setParent(SFWidgetFromHandle(parent));
    if (shown)
        show();
}

void CSFQTVideoWindow::SetUpdatesEnabled(int index, bool enable)
{
    if (CSFQTVideoWindowSubWnd* sub = SubWindow(index))
        sub->setUpdatesEnabled(enable);
    else if (index < 0)
        setUpdatesEnabled(enable);
}

void CSFQTVideoWindow::SetFocus(int focus)
{
    if (focus)
        setFocus();
    else
        clearFocus();
}

int CSFQTVideoWindow::RenderSubWin(int index, unsigned char* data, RENDER_DATA_TYPE type, int width,
                                   int height)
{
    CSFQTVideoWindowSubWnd* sub = SubWindow(index);
    if (!sub || !data || type != RENDER_DATA_RGB32 || width <= 0 || height <= 0 ||
        width > kMaxRenderSide || height > kMaxRenderSide)
        return 0;
    const QImage frame(data, width, height, width * 4, QImage::Format_RGB32);
    sub->PlayWnd()->SetFrame(frame.copy());
    return 1;
}

void CSFQTVideoWindow::RADIO_OnClicked(int checked, int, tagPOINT, void* sender)
{
    for (CSFQTVideoWindowSubWnd* sub : m_subWnds) {
        if (sub->DragToggle() && static_cast<void*>(sub->DragToggle()) == sender)
            sub->SetDragEnabled(checked != 0);
    }
}

CSFQTVideoWindowSubWnd* CSFQTVideoWindow::SubWindow(int index) const
{
    return ValidIndex(index) ? m_subWnds[static_cast<size_t>(index)] : nullptr;
}

bool CSFQTVideoWindow::ShowsFrames() const
{
    return m_subWnds.size() > 1 && m_nZoomIndex < 0;
}

void CSFQTVideoWindow::OnSubWinLButtonDown(CSFQTVideoWindowSubWnd* sub, const QPoint& pos)
{
    QPointer<CSFQTVideoWindow> alive(this);
    const int index = sub->Index();
    m_nDragFrom = (m_bSubWinExchange && sub->DragEnabled() && m_nZoomIndex < 0) ? index : -1;
    const int old = m_nCurrentIndex;
    if (index != old) {
        m_nCurrentIndex = index;
        RefreshSubWindows();
        if (m_pHandler)
            m_pHandler->OnFocusWndChanged(old, index);
        if (!alive || !ValidIndex(index) || m_subWnds[static_cast<size_t>(index)] != sub)
            return;
    }
    tagPOINT pt{ pos.x(), pos.y() };
    if (m_pHandler)
        m_pHandler->VideoWidow_OnLButtonDown(index, sub->Video(), pt);
}

void CSFQTVideoWindow::OnSubWinDrag(CSFQTVideoWindowSubWnd* sub, const QPoint& pos)
{
    if (m_nDragFrom < 0)
        return;
    CSFQTVideoWindowSubWnd* target = SubWindowAt(pos);
    if (target == sub)
        target = nullptr;
    if (target != m_pDropTarget) {
        m_pDropTarget = target;
        RefreshSubWindows();
    }
}

void CSFQTVideoWindow::OnSubWinLButtonUp(CSFQTVideoWindowSubWnd* sub, const QPoint& pos)
{
    QPointer<CSFQTVideoWindow> alive(this);
    const int index = sub->Index();
    const int from = m_nDragFrom;
    m_nDragFrom = -1;
    if (m_pDropTarget) {
        m_pDropTarget = nullptr;
        RefreshSubWindows();
    }
    tagPOINT pt{ pos.x(), pos.y() };
    if (m_pHandler)
        m_pHandler->VideoWidow_OnLButtonUp(index, sub->Video(), pt);
    if (!alive || from < 0 || from != index || !ValidIndex(index) ||
        m_subWnds[static_cast<size_t>(index)] != sub)
        return;
    CSFQTVideoWindowSubWnd* target = SubWindowAt(pos);
    if (!target || target == sub)
        return;
    const int to = target->Index();
    ExchangeSubWindows(index, to);
    if (m_pHandler)
        m_pHandler->OnSubWndExchanged(index, to);
}

void CSFQTVideoWindow::OnSubWinDoubleClick(CSFQTVideoWindowSubWnd* sub)
{
    if (!m_bFrameZoom)
        return;
    const int index = sub->Index();
    const bool zoom = m_nZoomIndex != index;
    SetZoom(zoom ? index : -1);
    if (m_pHandler)
        m_pHandler->OnSubWinZoom(index, sub->Video(), zoom ? 1 : 0);
}

void CSFQTVideoWindow::OnSubWinButton(CSFQTVideoWindowSubWnd* sub, int id)
{
    if (!m_pHandler)
        return;
    const int index = sub->Index();
    switch (id) {
    case CSFQTVideoWindowSubWnd::ID_CLOSE:
        m_pHandler->OnBnClickedVideoClose(index, sub->Video());
        break;
    case CSFQTVideoWindowSubWnd::ID_SNAP:
        m_pHandler->OnBnClickedVideoSnap(index, sub->Video());
        break;
    case CSFQTVideoWindowSubWnd::ID_PROPERTY:
        m_pHandler->OnBnClickedVideoProperty(index, sub->Video());
        break;
    default:
        break;
    }
}

void CSFQTVideoWindow::resizeEvent(QResizeEvent* e)
{
    QWidget::resizeEvent(e);
    if (m_layout.Resize(width(), height()))
        PlaceSubWindows();
}

void CSFQTVideoWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_skin.back);
}

void CSFQTVideoWindow::PlaceSubWindows()
{
    const size_t count = static_cast<size_t>(m_layout.SubWindowCount());
    while (m_subWnds.size() < count) {
        const int index = static_cast<int>(m_subWnds.size());
        m_subWnds.push_back(new CSFQTVideoWindowSubWnd(this, index, m_nNextSubWinID++));
    }
    // Later, not now: the call may come from a click inside the very window.
    while (m_subWnds.size() > count) {
        CSFQTVideoWindowSubWnd* sub = m_subWnds.back();
        m_subWnds.pop_back();
        if (m_pDropTarget == sub)
            m_pDropTarget = nullptr;
        sub->hide();
        sub->deleteLater();
    }
    if (!ValidIndex(m_nZoomIndex))
        m_nZoomIndex = -1;
    if (!ValidIndex(m_nCurrentIndex))
        m_nCurrentIndex = 0;
    if (!ValidIndex(m_nDragFrom))
        m_nDragFrom = -1;

    const QMap<int, CQTVideoWindowLayout::Rect>& rects = m_layout.Rects();
    for (size_t i = 0; i < m_subWnds.size(); ++i) {
        CSFQTVideoWindowSubWnd* sub = m_subWnds[i];
        const int index = static_cast<int>(i);
        if (m_nZoomIndex >= 0) {
            if (index != m_nZoomIndex) {
                sub->hide();
                continue;
            }
            sub->setGeometry(rect());
        } else {
            const CQTVideoWindowLayout::Rect& r = rects[index];
            sub->setGeometry(r.left, r.top, std::max(0, r.right - r.left + 1),
                             std::max(0, r.bottom - r.top + 1));
        }
        sub->show();
    }
    RefreshSubWindows();
}

void CSFQTVideoWindow::RefreshSubWindows()
{
    for (CSFQTVideoWindowSubWnd* sub : m_subWnds)
        sub->Refresh();
}

void CSFQTVideoWindow::SetZoom(int index)
{
    if (!ValidIndex(index))
        index = -1;
    if (index == m_nZoomIndex)
        return;
    m_nZoomIndex = index;
    PlaceSubWindows();
}

void CSFQTVideoWindow::ExchangeSubWindows(int a, int b)
{
    std::swap(m_subWnds[static_cast<size_t>(a)], m_subWnds[static_cast<size_t>(b)]);
    m_subWnds[static_cast<size_t>(a)]->SetIndex(a);
    m_subWnds[static_cast<size_t>(b)]->SetIndex(b);
    // The focus stays with the window the user moved.
    if (m_nCurrentIndex == a)
        m_nCurrentIndex = b;
    else if (m_nCurrentIndex == b)
        m_nCurrentIndex = a;
    PlaceSubWindows();
}

bool CSFQTVideoWindow::ValidIndex(int index) const
{
    return index >= 0 && static_cast<size_t>(index) < m_subWnds.size();
}

CSFQTVideoWindowSubWnd* CSFQTVideoWindow::SubWindowAt(const QPoint& pos) const
{
    for (CSFQTVideoWindowSubWnd* sub : m_subWnds)
        if (sub->isVisible() && sub->geometry().contains(pos))
            return sub;
    return nullptr;
}

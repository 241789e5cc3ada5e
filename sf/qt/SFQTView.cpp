#include "sf/qt/SFQTView.h"

#include "sf/qt/SFApplication.h"
#include "sf/qt/SFCustomEvent.h"
#include "sf/qt/SFEventDispatch.h"
#include "sf/qt/SFFrameSkin.h"
#include "sf/qt/SFQtConvert.h"
#include "sf/qt/SFSkinParse.h"

#include <QMouseEvent>
#include <QPainter>
#include <QResizeEvent>
#include <algorithm>

CSFQTView::CSFQTView(ISFViewEvent* handler, QWidget* parent)
    : CSFQTControl(handler, parent), m_bgColor(92, 101, 118), m_frameEnabled(0),
      m_frameColor(128, 128, 128), m_cornerRadius(0)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    if (m_pHandler)
        m_pHandler->m_pUIWnd = SFHandleFromWidget(this);
}

CSFQTView::~CSFQTView()
{
    if (m_pHandler) {
        m_pHandler->OnDestroy();
        if (m_pHandler->m_pUIWnd == SFHandleFromWidget(this))
            m_pHandler->m_pUIWnd = nullptr;
    }
    m_pHandler = nullptr;
}

int CSFQTView::Create(const wchar_t*, const wchar_t* title, unsigned long style,
                      const tagRECT& rect, void* parent, unsigned int id)
{
    const QString text = SFToQString(title);
    setWindowTitle(text);
    // A view takes its rectangle as it stands.
    Place(parent, SFRectInclusive(rect), id, "view", text);
    SFApplyVisibleStyle(this, style);
    if (m_pHandler)
        m_pHandler->OnCreate();
    return 1;
}

void CSFQTView::SetBackground(const wchar_t* image)
{
    m_bgImage = QPixmap();
    if (image && *image)
        m_bgImage.load(SFSkinFilePath(image));
}

void CSFQTView::GetViewClientRect(tagRECT* rect)
{
    if (rect)
        *rect = tagRECT{ 0, 0, width(), height() };
}

void CSFQTView::GetViewWindowRect(tagRECT* rect)
{
    if (rect)
        *rect = SFToTagRectExclusive(QRect(mapToGlobal(QPoint(0, 0)), size()));
}

void CSFQTView::Screen2Client(tagPOINT* pt)
{
    if (!pt)
        return;
    const QPoint p = mapFromGlobal(QPoint(pt->x, pt->y));
    pt->x = p.x();
    pt->y = p.y();
}

void CSFQTView::Screen2Client(tagRECT* rect)
{
    if (!rect)
        return;
    const QPoint tl = mapFromGlobal(QPoint(rect->left, rect->top));
    const QPoint br = mapFromGlobal(QPoint(rect->right, rect->bottom));
    *rect = tagRECT{ tl.x(), tl.y(), br.x(), br.y() };
}

int CSFQTView::isShow()
{
    return isVisible() ? 1 : 0;
}

int CSFQTView::isWindow()
{
    return 1;
}

int CSFQTView::SubclassWindow()
{
    return 1;
}

void* CSFQTView::UnsubclassWindow()
{
    return nullptr;
}

void CSFQTView::SetRoundCornerRadius(unsigned int radius)
{
    m_cornerRadius = radius;
}

void CSFQTView::SetBGClr(unsigned int color)
{
    m_bgColor =
        QColor(static_cast<int>(color & 0xFFu), static_cast<int>((color >> 8) & 0xFFu),
               static_cast<int>((color >> 16) & 0xFFu), static_cast<int>(~(color >> 24) & 0xFFu));
    update();
}

void CSFQTView::SetParentWindow(void*, WINDOW_TYPE)
{
}

void CSFQTView::SetFrameClr(unsigned int color, int enable)
{
    m_frameColor = SFColorFromRef(color);
    m_frameEnabled = enable;
    update();
}

void CSFQTView::paintEvent(QPaintEvent* e)
{
    {
        QPainter painter(this);
        if (m_bgImage.isNull())
            painter.fillRect(rect(), m_bgColor);
        else
            painter.drawPixmap(rect(), m_bgImage);
        if (m_frameEnabled) {
            painter.setPen(m_frameColor);
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(rect().adjusted(0, 0, -1, -1));
        }
    }
    QWidget::paintEvent(e);
}

void CSFQTView::resizeEvent(QResizeEvent* e)
{
    if (m_pHandler)
        m_pHandler->OnSize(0, width(), height());
    if (m_cornerRadius != 0) {
        const int r = static_cast<int>(std::min(m_cornerRadius, 0x7FFFu));
        setMask(CSFFrameSkin::RoundMask(size(), r, r));
    }
    QWidget::resizeEvent(e);
}

void CSFQTView::mousePressEvent(QMouseEvent* e)
{
    if (e->button() == Qt::LeftButton && m_pHandler) {
        const QPoint p = e->position().toPoint();
        m_pHandler->OnLButtonDown(0, tagPOINT{ p.x(), p.y() });
    }
    QWidget::mousePressEvent(e);
}

void CSFQTView::mouseDoubleClickEvent(QMouseEvent* e)
{
    if (e->button() != Qt::LeftButton) {
        QWidget::mouseDoubleClickEvent(e);
        return;
    }
    if (m_pHandler) {
        const QPoint p = e->position().toPoint();
        m_pHandler->OnLButtonDblClk(0, tagPOINT{ p.x(), p.y() });
    }
}

void CSFQTView::customEvent(QEvent* e)
{
    if (!SFIsCustomEvent(e)) {
        QWidget::customEvent(e);
        return;
    }
    if (m_pHandler)
        SFDispatchMessageMap(m_pHandler, *static_cast<CSFCustomEvent*>(e));
}

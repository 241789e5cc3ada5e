#include "sf/qt/SFQTVideoWindowPlayWnd.h"

#include <QPainter>

CSFQTVideoWindowPlayWnd::CSFQTVideoWindowPlayWnd(QWidget* parent)
    : QWidget(parent), m_back(Qt::black)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setObjectName(QStringLiteral("videowindow_play"));
}

CSFQTVideoWindowPlayWnd::~CSFQTVideoWindowPlayWnd()
{
}

void CSFQTVideoWindowPlayWnd::SetIdlePicture(const QPixmap& picture, const QColor& back)
{
    m_idle = picture;
    m_back = back;
    update();
}

void CSFQTVideoWindowPlayWnd::SetFrame(const QImage& frame)
{
    m_frame = frame;
    update();
}

void* CSFQTVideoWindowPlayWnd::NativeHandle()
{
    setAttribute(Qt::WA_NativeWindow);
    return reinterpret_cast<void*>(winId());
}

void CSFQTVideoWindowPlayWnd::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (!m_frame.isNull())
        painter.drawImage(rect(), m_frame);
    else if (!m_idle.isNull())
        painter.drawPixmap(rect(), m_idle);
    else
        painter.fillRect(rect(), m_back);
}

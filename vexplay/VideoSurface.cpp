#include "vexplay/VideoSurface.h"

#include "vexplay/FrameScaler.h"
#include "vexplay/FrameSink.h"
#include "vexplay/PortTable.h"

#include <QEvent>
#include <QPainter>
#include <cmath>
#include <utility>

namespace vexplay {

VideoSurface::VideoSurface(QWidget* target) : QWidget(target), m_sink(std::make_shared<FrameSink>())
{
    setObjectName(QStringLiteral("vexplaySurface"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    m_sink->surface = this;
    target->installEventFilter(this);
    FollowTarget();
    hide();
}

VideoSurface::~VideoSurface()
{
    m_sink->surface = nullptr;
    PortTable::Instance().DetachWindow(m_sink);
}

VideoSurface* VideoSurface::Of(QWidget* target)
{
    return target->findChild<VideoSurface*>(QString(), Qt::FindDirectChildrenOnly);
}

void VideoSurface::ShowFrame(QImage picture)
{
    picture.setDevicePixelRatio(devicePixelRatioF());
    m_picture = std::move(picture);
    if (isHidden()) {
        show();
        raise();
    }
    update();
}

void VideoSurface::Blank()
{
    m_picture = QImage();
    hide();
}

bool VideoSurface::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parent() && event->type() == QEvent::Resize)
        FollowTarget();
    return QWidget::eventFilter(watched, event);
}

void VideoSurface::FollowTarget()
{
    const QWidget* target = parentWidget();
    if (!target)
        return;
    setGeometry(target->rect());
    const qreal ratio = devicePixelRatioF();
    m_sink->SetArea(QSize(static_cast<int>(std::lround(width() * ratio)),
                          static_cast<int>(std::lround(height() * ratio))));
}

void VideoSurface::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    if (m_picture.isNull())
        return;
    // The picture was scaled for the size of its time; after a resize it is
    // stretched, coarsely, for the moment until the next one arrives.
    const QSize shown =
        FrameScaler::FitSize(m_picture.width(), m_picture.height(), 1.0, m_sink->Area());
    const qreal ratio = devicePixelRatioF();
    const QSize logical(qRound(shown.width() / ratio), qRound(shown.height() / ratio));
    // Whole pixels, so that a picture of the right size is copied, not resampled.
    const QRect place(QPoint((width() - logical.width()) / 2, (height() - logical.height()) / 2),
                      logical);
    painter.drawImage(place, m_picture);
}

} // namespace vexplay

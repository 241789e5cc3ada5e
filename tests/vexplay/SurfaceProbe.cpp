#include "tests/vexplay/SurfaceProbe.h"

#include <QEvent>

SurfaceProbe::SurfaceProbe(QWidget* surface)
{
    m_clock.start();
    if (surface)
        surface->installEventFilter(this);
}

bool SurfaceProbe::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint) {
        if (m_firstPaintMs < 0)
            m_firstPaintMs = m_clock.elapsed();
        ++m_paints;
    } else if (event->type() == QEvent::Hide) {
        ++m_hides;
    }
    return QObject::eventFilter(watched, event);
}

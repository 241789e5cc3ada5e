#include "tests/session/PaintCounter.h"

#include <QEvent>
#include <QWidget>

CPaintCounter::CPaintCounter(QWidget* watched) : m_watched(watched)
{
    if (m_watched)
        m_watched->installEventFilter(this);
}

CPaintCounter::~CPaintCounter()
{
    if (m_watched)
        m_watched->removeEventFilter(this);
}

bool CPaintCounter::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_watched && event->type() == QEvent::Paint)
        ++m_paints;
    return false;
}

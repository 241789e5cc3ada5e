#include "shell/FirstPaintReport.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <ctime>

namespace {

long ResidentKb()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (QByteArray line = status.readLine(); !line.isEmpty(); line = status.readLine()) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').value(0).toLong();
    }
    return -1;
}

} // namespace

void FirstPaintReport::WatchIfAsked(QWidget* window)
{
    if (window && qEnvironmentVariableIntValue("TALLIX_REPORT_FIRST_PAINT") == 1)
        new FirstPaintReport(window);
}

FirstPaintReport::FirstPaintReport(QWidget* window) : QObject(window)
{
    window->installEventFilter(this);
}

bool FirstPaintReport::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint && !m_bSeen) {
        m_bSeen = true;
        watched->removeEventFilter(this);
        // The window paints first, its children after it, and the whole
        // picture goes to the screen before the loop takes the next event.
        QTimer::singleShot(0, this, &FirstPaintReport::Report);
    }
    return false;
}

void FirstPaintReport::Report()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    std::fprintf(stderr, "first-paint %lld rss-kb %ld\n",
                 static_cast<long long>(now.tv_sec) * 1000000000LL + now.tv_nsec, ResidentKb());
    std::fflush(stderr);
    QCoreApplication::quit();
}

#pragma once
// TALLIX_REPORT_FIRST_PAINT=1, for the start-up benchmark: once a window has
// painted for the first time, one line goes to stderr,
//   first-paint <CLOCK_MONOTONIC nanoseconds> rss-kb <VmRSS>
// and the event loop ends. The benchmark's floor program uses it too, so
// that both are measured the same way.

#include <QObject>

class QWidget;

class FirstPaintReport : public QObject {
public:
    // Does nothing unless the variable asks for it. Call before the window
    // is shown; the report lives as the window's child.
    static void WatchIfAsked(QWidget* window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit FirstPaintReport(QWidget* window);
    void Report();

    bool m_bSeen = false;
};

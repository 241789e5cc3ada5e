#pragma once
// Counts what happens to the library's surface widget: paints and hides,
// and when the first paint came.

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QWidget>

class SurfaceProbe : public QObject {
public:
    // Watches surface from now on; null is allowed and counts nothing.
    explicit SurfaceProbe(QWidget* surface);

    int Paints() const { return m_paints; }
    int Hides() const { return m_hides; }
    // Milliseconds from construction to the first paint; -1 before it.
    qint64 FirstPaintMs() const { return m_firstPaintMs; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QElapsedTimer m_clock;
    int m_paints = 0;
    int m_hides = 0;
    qint64 m_firstPaintMs = -1;
};

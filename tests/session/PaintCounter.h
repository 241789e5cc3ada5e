#pragma once
// Counts the paints a widget receives: frames that actually reached the
// screen, not only frames decoded.

#include <QObject>
#include <QPointer>

class QWidget;

class CPaintCounter : public QObject {
public:
    explicit CPaintCounter(QWidget* watched);
    ~CPaintCounter() override;
    int Paints() const { return m_paints; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointer<QWidget> m_watched;
    int m_paints = 0;
};

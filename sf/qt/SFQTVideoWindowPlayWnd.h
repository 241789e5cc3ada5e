#pragma once
// The drawing surface of one sub window: a picture while nothing plays, or
// the last frame handed to RenderSubWin. A decoder may draw into it through
// its native handle instead.

#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QWidget>

class CSFQTVideoWindowPlayWnd : public QWidget {
    Q_OBJECT
public:
    explicit CSFQTVideoWindowPlayWnd(QWidget* parent);
    ~CSFQTVideoWindowPlayWnd() override;

    void SetIdlePicture(const QPixmap& picture, const QColor& back);
    // A null image goes back to the idle picture.
    void SetFrame(const QImage& frame);
    const QImage& Frame() const { return m_frame; }
    // The native window id. The surface only becomes a native window here,
    // on first demand: alien sub windows let a surface laid over the whole
    // control (the decoder's) stay on top of them.
    void* NativeHandle();

protected:
    void paintEvent(QPaintEvent* e) override;

private:
    QPixmap m_idle;
    QColor m_back;
    QImage m_frame;
};

#pragma once
// Covers the target window and paints the latest picture of the ports
// playing into it, scaled to fit with its aspect ratio kept. Its end, which
// comes with the target's, stops those ports.

#include <QImage>
#include <QWidget>
#include <memory>

namespace vexplay {

class FrameSink;

class VideoSurface : public QWidget {
    Q_OBJECT

public:
    explicit VideoSurface(QWidget* target);
    ~VideoSurface() override;

    // The surface already covering target, if any.
    static VideoSurface* Of(QWidget* target);

    const std::shared_ptr<FrameSink>& Sink() const { return m_sink; }
    void ShowFrame(QImage picture);
    // Uncovers the target, showing what it draws itself.
    void Blank();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void FollowTarget();

    std::shared_ptr<FrameSink> m_sink;
    QImage m_picture;
};

} // namespace vexplay

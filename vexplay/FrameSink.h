#pragma once
// The meeting point of the decoding threads playing into one window and the
// GUI thread painting it: holds the latest picture and the size wanted.

#include <QImage>
#include <QSize>
#include <mutex>

namespace vexplay {

class VideoSurface;

class FrameSink {
public:
    FrameSink() = default;
    FrameSink(const FrameSink&) = delete;
    FrameSink& operator=(const FrameSink&) = delete;

    // Any thread. True when the GUI thread is to be told; false when a
    // notice is still on its way and will take this picture along.
    bool Put(QImage image);
    // GUI thread: the latest picture, once.
    QImage Take();

    // Device pixels the picture is to fill.
    void SetArea(QSize area);
    QSize Area() const;

    // Guarded by the port table's lock: whether the window still exists,
    // and how many ports play into it.
    bool alive = true;
    int players = 0;

    // GUI thread only; null once the window is gone.
    VideoSurface* surface = nullptr;

private:
    mutable std::mutex m_mutex;
    QImage m_image;
    bool m_fresh = false;
    bool m_noticed = false;
    QSize m_area;
};

} // namespace vexplay

#pragma once
// Converts decoded pictures to RGB images of the size they are shown at.

#include <QImage>
#include <QSize>

struct AVFrame;
struct SwsContext;

namespace vexplay {

class FrameScaler {
public:
    FrameScaler() = default;
    ~FrameScaler();
    FrameScaler(const FrameScaler&) = delete;
    FrameScaler& operator=(const FrameScaler&) = delete;

    // The largest size of the picture's shape that fits into area; the
    // picture's own size when area is empty.
    static QSize FitSize(int width, int height, double sampleAspect, QSize area);

    // A null image when the frame cannot be converted.
    QImage Convert(const AVFrame* frame, double sampleAspect, QSize area);

private:
    // What the context's colour details were last set for: a changed
    // setup may have made a new context.
    struct Setup {
        int width = 0;
        int height = 0;
        int format = -1;
        QSize size;
        int space = -1;
        int fullRange = -1;
        bool operator==(const Setup& o) const
        {
            return width == o.width && height == o.height && format == o.format && size == o.size &&
                   space == o.space && fullRange == o.fullRange;
        }
    };

    SwsContext* m_context = nullptr;
    Setup m_setup;
};

} // namespace vexplay

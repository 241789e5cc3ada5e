#include "vexplay/FrameScaler.h"

extern "C" {
#include <libavutil/frame.h>
#include <libavutil/macros.h>
#include <libavutil/mem.h>
#include <libavutil/pixfmt.h>
#include <libswscale/swscale.h>
}

#include <algorithm>
#include <cmath>

namespace vexplay {

FrameScaler::~FrameScaler()
{
    sws_freeContext(m_context);
}

QSize FrameScaler::FitSize(int width, int height, double sampleAspect, QSize area)
{
    if (width <= 0 || height <= 0)
        return {};
    const double shownWidth = width * sampleAspect;
    if (area.width() <= 0 || area.height() <= 0)
        return { std::max(1, static_cast<int>(std::lround(shownWidth))), height };
    const double scale =
        std::min(area.width() / shownWidth, area.height() / static_cast<double>(height));
    const int w = std::clamp(static_cast<int>(std::lround(shownWidth * scale)), 1, area.width());
    const int h = std::clamp(static_cast<int>(std::lround(height * scale)), 1, area.height());
    return { w, h };
}

QImage FrameScaler::Convert(const AVFrame* frame, double sampleAspect, QSize area)
{
    const auto format = static_cast<AVPixelFormat>(frame->format);
    if (format == AV_PIX_FMT_NONE || !sws_isSupportedInput(format))
        return {};
    const QSize size = FitSize(frame->width, frame->height, sampleAspect, area);
    if (size.isEmpty())
        return {};
    m_context = sws_getCachedContext(m_context, frame->width, frame->height, format, size.width(),
                                     size.height(), AV_PIX_FMT_RGB32, SWS_BILINEAR, nullptr,
                                     nullptr, nullptr);
    if (!m_context)
        return {};

    const int space = frame->colorspace == AVCOL_SPC_BT709 ? SWS_CS_ITU709 : SWS_CS_ITU601;
    const int fullRange = frame->color_range == AVCOL_RANGE_JPEG ? 1 : 0;
    const Setup setup{ frame->width, frame->height, frame->format, size, space, fullRange };
    if (!(setup == m_setup)) {
        sws_setColorspaceDetails(m_context, sws_getCoefficients(space), fullRange,
                                 sws_getCoefficients(SWS_CS_DEFAULT), 1, 0, 1 << 16, 1 << 16);
        m_setup = setup;
    }

    // swscale's SIMD code writes whole blocks, past the end of a row and of
    // the picture: rows are padded to 64 bytes and one spare row follows.
    const int stride = FFALIGN(size.width() * 4, 64);
    auto* buffer =
        static_cast<uint8_t*>(av_malloc(static_cast<size_t>(stride) * (size.height() + 1)));
    if (!buffer)
        return {};
    // RGB32 is the byte order QImage::Format_RGB32 uses on this machine.
    QImage image(
        buffer, size.width(), size.height(), stride, QImage::Format_RGB32,
        [](void* data) { av_free(data); }, buffer);
    if (image.isNull()) {
        av_free(buffer);
        return {};
    }
    uint8_t* planes[4] = { buffer, nullptr, nullptr, nullptr };
    int strides[4] = { stride, 0, 0, 0 };
    if (sws_scale(m_context, frame->data, frame->linesize, 0, frame->height, planes, strides) <= 0)
        return {};
    return image;
}

} // namespace vexplay

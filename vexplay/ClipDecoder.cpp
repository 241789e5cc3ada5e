#include "vexplay/ClipDecoder.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/avutil.h>
}

#include <mutex>
#include <sys/stat.h>

namespace vexplay {

namespace {

// Larger pictures are no clip of ours; refusing them bounds the memory a
// crafted file can make us take.
constexpr int kMaxSide = 4096;
// Decoder turns in a row that give no picture before the data counts as bad.
constexpr int kMaxFruitless = 4000;
constexpr int kMaxReadErrors = 32;

void QuietLogging()
{
    // Broken clips are an expected input; FFmpeg's complaints would only
    // reach the program's stderr.
    static std::once_flag once;
    std::call_once(once, [] { av_log_set_level(AV_LOG_QUIET); });
}

} // namespace

std::unique_ptr<ClipDecoder> ClipDecoder::Open(const std::string& path)
{
    // Regular files only: a pipe would block the open for ever, a device
    // could deliver without end.
    struct stat info {};
    if (path.empty() || stat(path.c_str(), &info) != 0 || !S_ISREG(info.st_mode))
        return nullptr;
    QuietLogging();
    std::unique_ptr<ClipDecoder> clip(new ClipDecoder);
    if (!clip->OpenPath(path) || !clip->OpenCodec() || clip->Next() != Step::Frame)
        return nullptr;
    clip->m_primed = true;
    return clip;
}

ClipDecoder::~ClipDecoder()
{
    av_frame_free(&m_frame);
    av_packet_free(&m_packet);
    avcodec_free_context(&m_codec);
    avformat_close_input(&m_format);
}

int ClipDecoder::Interrupted(void* self)
{
    return static_cast<ClipDecoder*>(self)->m_abort.load() ? 1 : 0;
}

bool ClipDecoder::OpenPath(const std::string& path)
{
    AVFormatContext* format = avformat_alloc_context();
    if (!format)
        return false;
    format->interrupt_callback.callback = &ClipDecoder::Interrupted;
    format->interrupt_callback.opaque = this;

    // Local files only, and only what the clips are made of: a crafted
    // container must not reach other protocols, demuxers or decoders.
    AVDictionary* options = nullptr;
    av_dict_set(&options, "protocol_whitelist", "file", 0);
    av_dict_set(&options, "format_whitelist", "matroska", 0);
    av_dict_set(&options, "codec_whitelist", "h264", 0);
    const AVInputFormat* matroska = av_find_input_format("matroska");
    // The prefix keeps a colon in the path from naming a protocol.
    const std::string url = "file:" + path;
    const int opened = avformat_open_input(&format, url.c_str(), matroska, &options);
    av_dict_free(&options);
    if (opened < 0)
        return false; // the context is already freed
    m_format = format;

    if (avformat_find_stream_info(m_format, nullptr) < 0)
        return false;
    m_stream = av_find_best_stream(m_format, AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
    if (m_stream < 0)
        return false;
    AVStream* stream = m_format->streams[m_stream];
    if (stream->disposition & AV_DISPOSITION_ATTACHED_PIC)
        return false;
    for (unsigned i = 0; i < m_format->nb_streams; ++i)
        if (static_cast<int>(i) != m_stream)
            m_format->streams[i]->discard = AVDISCARD_ALL;

    const AVCodecParameters* par = stream->codecpar;
    if (par->width <= 0 || par->height <= 0 || par->width > kMaxSide || par->height > kMaxSide)
        return false;
    if (stream->time_base.num <= 0 || stream->time_base.den <= 0)
        return false;
    m_timeBase = av_q2d(stream->time_base);

    const AVRational rate = av_guess_frame_rate(m_format, stream, nullptr);
    if (rate.num > 0 && rate.den > 0) {
        const double duration = av_q2d(av_inv_q(rate));
        if (duration >= 0.001 && duration <= 1.0)
            m_frameDuration = duration;
    }
    const AVRational sar = av_guess_sample_aspect_ratio(m_format, stream, nullptr);
    if (sar.num > 0 && sar.den > 0) {
        const double aspect = av_q2d(sar);
        if (aspect >= 0.1 && aspect <= 10.0)
            m_sampleAspect = aspect;
    }
    return true;
}

bool ClipDecoder::OpenCodec()
{
    const AVStream* stream = m_format->streams[m_stream];
    const AVCodec* codec = avcodec_find_decoder(stream->codecpar->codec_id);
    if (!codec)
        return false;
    m_codec = avcodec_alloc_context3(codec);
    if (!m_codec || avcodec_parameters_to_context(m_codec, stream->codecpar) < 0)
        return false;
    m_codec->pkt_timebase = stream->time_base;
    // One thread per clip: frame threads would add CPU and start-up latency
    // for pictures this small.
    m_codec->thread_count = 1;

    AVDictionary* options = nullptr;
    av_dict_set(&options, "codec_whitelist", "h264", 0);
    const int opened = avcodec_open2(m_codec, codec, &options);
    av_dict_free(&options);
    if (opened < 0)
        return false;

    m_packet = av_packet_alloc();
    m_frame = av_frame_alloc();
    return m_packet && m_frame;
}

ClipDecoder::Step ClipDecoder::Next()
{
    if (m_primed) {
        m_primed = false;
        return Step::Frame;
    }
    while (!m_ended && !m_abort) {
        bool needInput = false;
        if (ReceiveFrame(needInput))
            return Step::Frame;
        if (!needInput || ++m_fruitless > kMaxFruitless)
            break;
        FeedDecoder();
    }
    m_ended = true;
    return Step::End;
}

bool ClipDecoder::ReceiveFrame(bool& needInput)
{
    for (;;) {
        const int received = avcodec_receive_frame(m_codec, m_frame);
        if (received == AVERROR_EOF) {
            needInput = false;
            return false;
        }
        if (received < 0) {
            // EAGAIN, or a decoding error: more data may still give pictures.
            needInput = true;
            return false;
        }
        if (m_frame->width <= 0 || m_frame->height <= 0 || m_frame->width > kMaxSide ||
            m_frame->height > kMaxSide || !m_frame->data[0]) {
            av_frame_unref(m_frame);
            continue;
        }
        m_fruitless = 0;
        const int64_t stamp = m_frame->best_effort_timestamp;
        if (stamp != AV_NOPTS_VALUE)
            m_frameTime = static_cast<double>(stamp) * m_timeBase;
        else if (m_haveTime)
            m_frameTime += m_frameDuration;
        m_haveTime = true;
        return true;
    }
}

void ClipDecoder::FeedDecoder()
{
    if (m_draining)
        return;
    int readErrors = 0;
    while (!m_abort) {
        const int read = av_read_frame(m_format, m_packet);
        if (read < 0) {
            const bool atEnd = read == AVERROR_EOF || !m_format->pb || avio_feof(m_format->pb);
            if (!atEnd && ++readErrors <= kMaxReadErrors)
                continue;
            // Drain: the decoder still holds the last frames.
            avcodec_send_packet(m_codec, nullptr);
            m_draining = true;
            return;
        }
        const bool ours = m_packet->stream_index == m_stream;
        if (ours)
            avcodec_send_packet(m_codec, m_packet); // a bad packet is skipped
        av_packet_unref(m_packet);
        if (ours)
            return;
    }
}

} // namespace vexplay

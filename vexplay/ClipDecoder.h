#pragma once
// Reads the video stream of one local clip and decodes it frame by frame.

#include <atomic>
#include <memory>
#include <string>

struct AVCodecContext;
struct AVFormatContext;
struct AVFrame;
struct AVPacket;

namespace vexplay {

class ClipDecoder {
public:
    enum class Step { Frame, End };

    // Null when the file cannot be read as a clip or gives no picture. The
    // first frame is decoded here, so that playing starts at once.
    static std::unique_ptr<ClipDecoder> Open(const std::string& path);
    ~ClipDecoder();
    ClipDecoder(const ClipDecoder&) = delete;
    ClipDecoder& operator=(const ClipDecoder&) = delete;

    // End after the last frame, and also when the data turns out unusable.
    Step Next();

    // The frame of the last Next() that gave Frame.
    const AVFrame* Frame() const { return m_frame; }
    double FrameTime() const { return m_frameTime; }
    double FrameDuration() const { return m_frameDuration; }
    double SampleAspect() const { return m_sampleAspect; }

    // Any thread: makes a blocking read give up.
    void Abort() { m_abort = true; }

private:
    ClipDecoder() = default;
    bool OpenPath(const std::string& path);
    bool OpenCodec();
    bool ReceiveFrame(bool& needInput);
    void FeedDecoder();
    static int Interrupted(void* self);

    AVFormatContext* m_format = nullptr;
    AVCodecContext* m_codec = nullptr;
    AVPacket* m_packet = nullptr;
    AVFrame* m_frame = nullptr;
    int m_stream = -1;
    double m_timeBase = 0.0;
    double m_frameDuration = 0.04;
    double m_sampleAspect = 1.0;
    double m_frameTime = 0.0;
    bool m_haveTime = false;
    bool m_draining = false;
    bool m_ended = false;
    bool m_primed = false;
    int m_fruitless = 0;
    std::atomic<bool> m_abort{ false };
};

} // namespace vexplay

#include "vexplay/ClipPlayer.h"

#include "vexplay/ClipDecoder.h"
#include "vexplay/FrameScaler.h"
#include "vexplay/FrameSink.h"
#include "vexplay/SurfaceHub.h"

#include <algorithm>
#include <utility>

namespace vexplay {

namespace {

thread_local bool t_playerThread = false;

using Clock = std::chrono::steady_clock;

// Timestamps that jump further than this, either way, restart the clock
// rather than freeze the picture or rush through frames.
constexpr double kMaxLead = 1.0;
constexpr double kMaxLag = 0.5;
// The last frame stays at least this long, so that a clip of one frame
// looping through its end callback cannot spin.
constexpr double kMinLastFrame = 0.02;

Clock::duration Seconds(double s)
{
    return std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(s));
}

} // namespace

ClipPlayer::ClipPlayer(int port, std::unique_ptr<ClipDecoder> clip, std::shared_ptr<FrameSink> sink,
                       bool paced, EndHandler onEnd)
    : m_port(port), m_clip(std::move(clip)), m_sink(std::move(sink)), m_paced(paced),
      m_onEnd(std::move(onEnd))
{
}

ClipPlayer::~ClipPlayer()
{
    RequestStop();
    if (m_thread.joinable()) {
        if (OwnThread())
            m_thread.detach();
        else
            m_thread.join();
    }
}

void ClipPlayer::Start()
{
    m_thread = std::thread([this] { Run(); });
}

void ClipPlayer::RequestStop()
{
    m_stop = true;
    m_clip->Abort();
    {
        // Taken so that the notice cannot fall between a waiter's test and its sleep.
        std::lock_guard<std::mutex> lock(m_waitMutex);
    }
    m_wake.notify_all();
}

void ClipPlayer::Join()
{
    if (m_thread.joinable() && !OwnThread())
        m_thread.join();
}

bool ClipPlayer::OwnThread() const
{
    return m_thread.get_id() == std::this_thread::get_id();
}

bool ClipPlayer::OnPlayerThread()
{
    return t_playerThread;
}

bool ClipPlayer::WaitUntil(Clock::time_point due)
{
    std::unique_lock<std::mutex> lock(m_waitMutex);
    m_wake.wait_until(lock, due, [this] { return m_stop.load(); });
    return !m_stop;
}

void ClipPlayer::Run()
{
    t_playerThread = true;
    FrameScaler scaler;
    double lastTime = 0.0;
    while (!m_stop) {
        if (m_clip->Next() == ClipDecoder::Step::End) {
            const double hold = std::max(m_clip->FrameDuration(), kMinLastFrame);
            if (m_paced && m_started && !WaitUntil(m_origin + Seconds(lastTime + hold)))
                break;
            if (!m_stop)
                m_onEnd(*this);
            break;
        }
        const double frameTime = m_clip->FrameTime();
        QImage picture = scaler.Convert(m_clip->Frame(), m_clip->SampleAspect(), m_sink->Area());
        if (m_paced) {
            const Clock::time_point now = Clock::now();
            Clock::time_point due = m_origin + Seconds(frameTime);
            if (!m_started || due > now + Seconds(kMaxLead) || due < now - Seconds(kMaxLag)) {
                m_origin = now - Seconds(frameTime);
                due = now;
            }
            m_started = true;
            if (!WaitUntil(due))
                break;
        }
        lastTime = frameTime;
        if (!picture.isNull() && m_sink->Put(std::move(picture)))
            SurfaceHub::Notify(m_sink);
    }
    m_finished = true;
}

} // namespace vexplay

#pragma once
// Plays one opened clip on a thread of its own: decodes, waits for each
// frame's time, and hands the picture to the window's sink.

#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

namespace vexplay {

class ClipDecoder;
class FrameSink;

class ClipPlayer {
public:
    // Called on the player's thread when the last frame has had its time.
    using EndHandler = std::function<void(ClipPlayer&)>;

    ClipPlayer(int port, std::unique_ptr<ClipDecoder> clip, std::shared_ptr<FrameSink> sink,
               bool paced, EndHandler onEnd);
    ~ClipPlayer();
    ClipPlayer(const ClipPlayer&) = delete;
    ClipPlayer& operator=(const ClipPlayer&) = delete;

    // Throws std::system_error when no thread can be made.
    void Start();
    // Any thread; the player then stops at its next step.
    void RequestStop();
    bool StopRequested() const { return m_stop; }
    void Join();
    bool Finished() const { return m_finished; }
    bool OwnThread() const;

    int Port() const { return m_port; }
    const std::shared_ptr<FrameSink>& Sink() const { return m_sink; }

    // Whether the calling thread is one of the players'.
    static bool OnPlayerThread();

    // Guarded by the port table's lock: the end callback is running.
    bool inCallback = false;

private:
    void Run();
    bool WaitUntil(std::chrono::steady_clock::time_point due);
    void Show(double frameTime);

    const int m_port;
    std::unique_ptr<ClipDecoder> m_clip;
    const std::shared_ptr<FrameSink> m_sink;
    const bool m_paced;
    const EndHandler m_onEnd;

    std::thread m_thread;
    std::atomic<bool> m_stop{ false };
    std::atomic<bool> m_finished{ false };
    std::mutex m_waitMutex;
    std::condition_variable m_wake;

    // Pacing: when the clip's time origin falls on the steady clock.
    std::chrono::steady_clock::time_point m_origin;
    bool m_started = false;
};

} // namespace vexplay

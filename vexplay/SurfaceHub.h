#pragma once
// The library's agent on the GUI thread: finds the window behind a native
// handle, gives it a surface, and carries pictures from the decoding threads
// to the surfaces.

#include <QObject>
#include <QWidget>
#include <memory>
#include <mutex>

namespace vexplay {

class FrameSink;

class SurfaceHub : public QObject {
    Q_OBJECT

public:
    ~SurfaceHub() override;

    // GUI thread: the sink of the window with this handle, its surface made
    // on first use; null when there is no such window.
    static std::shared_ptr<FrameSink> Attach(WId window);
    // Any thread: the sink holds a new picture.
    static void Notify(const std::shared_ptr<FrameSink>& sink);
    // Any thread: a port stopped playing into the sink. The window is
    // blanked unless another play into it starts within a moment, as it
    // does when a clip loops.
    static void NotifyIdle(const std::shared_ptr<FrameSink>& sink);
    static bool OnGuiThread();

private:
    explicit SurfaceHub(QObject* parent);
    static SurfaceHub* Instance();
    static void Shutdown();
    template <typename Work>
    static void Post(Work work);
    void Present(const std::shared_ptr<FrameSink>& sink);
    void BlankIfIdle(const std::shared_ptr<FrameSink>& sink);

    static std::mutex s_mutex;
    static SurfaceHub* s_hub;
};

} // namespace vexplay

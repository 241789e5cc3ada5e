#include "vexplay/SurfaceHub.h"

#include "vexplay/FrameSink.h"
#include "vexplay/PortTable.h"
#include "vexplay/VideoSurface.h"

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

namespace vexplay {

namespace {

// Longer than a looping clip takes to close, reopen and show its first frame.
constexpr int kIdleBlankMs = 300;

} // namespace

std::mutex SurfaceHub::s_mutex;
SurfaceHub* SurfaceHub::s_hub = nullptr;

SurfaceHub::SurfaceHub(QObject* parent) : QObject(parent)
{
}

SurfaceHub::~SurfaceHub()
{
    std::lock_guard<std::mutex> lock(s_mutex);
    if (s_hub == this)
        s_hub = nullptr;
}

bool SurfaceHub::OnGuiThread()
{
    const QCoreApplication* app = QCoreApplication::instance();
    return app && QThread::currentThread() == app->thread();
}

SurfaceHub* SurfaceHub::Instance()
{
    std::lock_guard<std::mutex> lock(s_mutex);
    if (!s_hub && QCoreApplication::instance()) {
        s_hub = new SurfaceHub(QCoreApplication::instance());
        // Before the application goes, no decoding thread may still run.
        qAddPostRoutine(&SurfaceHub::Shutdown);
    }
    return s_hub;
}

void SurfaceHub::Shutdown()
{
    PortTable::Instance().StopAll();
    std::lock_guard<std::mutex> lock(s_mutex);
    s_hub = nullptr;
}

std::shared_ptr<FrameSink> SurfaceHub::Attach(WId window)
{
    if (!OnGuiThread() || !window)
        return nullptr;
    QWidget* target = QWidget::find(window);
    if (!target || !Instance())
        return nullptr;
    VideoSurface* surface = VideoSurface::Of(target);
    if (!surface)
        surface = new VideoSurface(target);
    PortTable::Instance().RegisterWindow(window, surface->Sink());
    return surface->Sink();
}

template <typename Work>
void SurfaceHub::Post(Work work)
{
    // Called with s_mutex held. The work first takes s_mutex as well, which
    // orders whatever the posting thread wrote before its reads in a way
    // that thread checkers can see through Qt's own queue.
    if (SurfaceHub* hub = s_hub) {
        QMetaObject::invokeMethod(
            hub,
            [hub, work = std::move(work)] {
                {
                    std::lock_guard<std::mutex> lock(s_mutex);
                }
                work(hub);
            },
            Qt::QueuedConnection);
    }
}

void SurfaceHub::Notify(const std::shared_ptr<FrameSink>& sink)
{
    std::lock_guard<std::mutex> lock(s_mutex);
    Post([sink](SurfaceHub* hub) { hub->Present(sink); });
}

void SurfaceHub::NotifyIdle(const std::shared_ptr<FrameSink>& sink)
{
    std::lock_guard<std::mutex> lock(s_mutex);
    Post([sink](SurfaceHub* hub) {
        QTimer::singleShot(kIdleBlankMs, hub, [hub, sink] { hub->BlankIfIdle(sink); });
    });
}

void SurfaceHub::Present(const std::shared_ptr<FrameSink>& sink)
{
    QImage picture = sink->Take();
    if (sink->surface && !picture.isNull())
        sink->surface->ShowFrame(std::move(picture));
}

void SurfaceHub::BlankIfIdle(const std::shared_ptr<FrameSink>& sink)
{
    if (sink->surface && !PortTable::Instance().Playing(sink))
        sink->surface->Blank();
}

} // namespace vexplay

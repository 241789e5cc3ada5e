#pragma once
// A shown top-level window with a native video child, as the preview dialog
// gives the library, and what the tests need around it.

#include <QImage>
#include <QSize>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>

class PlaybackStage {
public:
    explicit PlaybackStage(QSize videoSize);
    ~PlaybackStage();

    bool Exposed() const { return m_exposed; }
    QWidget* Video() const { return m_video; }
    void* Handle() const;
    // The library's surface inside the video window, once a play made it.
    QWidget* Surface() const;
    void ResizeVideo(QSize size);
    QImage Grab() const;

    static std::string Clip(const char* name);
    static std::string ShortClip();
    // Runs the event loop until done() or the time is up.
    static bool WaitFor(const std::function<bool()>& done, int timeoutMs);

private:
    std::unique_ptr<QWidget> m_top;
    QWidget* m_video = nullptr;
    bool m_exposed = false;
};

#include "tests/vexplay/PlaybackStage.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>

PlaybackStage::PlaybackStage(QSize videoSize) : m_top(std::make_unique<QWidget>())
{
    m_top->resize(videoSize + QSize(20, 50));
    m_video = new QWidget(m_top.get());
    m_video->setGeometry(QRect(QPoint(10, 40), videoSize));
    // What the window shows while nothing plays: not black, so that the
    // surface's letterbox bars can be told from it.
    m_video->setAutoFillBackground(true);
    QPalette palette = m_video->palette();
    palette.setColor(QPalette::Window, QColor(0, 0, 255));
    m_video->setPalette(palette);
    m_video->winId();
    m_top->show();
    m_exposed = QTest::qWaitForWindowExposed(m_top.get());
}

PlaybackStage::~PlaybackStage() = default;

void* PlaybackStage::Handle() const
{
    return reinterpret_cast<void*>(m_video->winId());
}

QWidget* PlaybackStage::Surface() const
{
    return m_video->findChild<QWidget*>(QStringLiteral("vexplaySurface"));
}

void PlaybackStage::ResizeVideo(QSize size)
{
    m_top->resize(size + QSize(20, 50));
    m_video->resize(size);
}

QImage PlaybackStage::Grab() const
{
    return m_video->grab().toImage();
}

std::string PlaybackStage::Clip(const char* name)
{
    return std::string(TALLIX_SOURCE_DIR "/data/") + name;
}

std::string PlaybackStage::ShortClip()
{
    return TALLIX_SOURCE_DIR "/tests/vexplay/data/short.kvf";
}

bool PlaybackStage::WaitFor(const std::function<bool()>& done, int timeoutMs)
{
    QElapsedTimer timer;
    timer.start();
    while (!done()) {
        if (timer.elapsed() > timeoutMs)
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        QTest::qSleep(2);
    }
    return true;
}

// Playing the sample clips into a window: frames arrive, fit the window,
// the clip ends on time and restarts through its callback.

#include "LoopingManager.h"
#include "PlaybackStage.h"
#include "SurfaceProbe.h"
#include "vexplay.h"

#include <QColor>
#include <QImage>
#include <QRect>

#include <gtest/gtest.h>

#include <chrono>
#include <string>

namespace {

bool IsBlack(const QImage& image, int x, int y)
{
    const QColor c = image.pixelColor(x, y);
    return c.red() < 8 && c.green() < 8 && c.blue() < 8;
}

bool IsPicture(const QImage& image, int x, int y)
{
    // Neither a bar nor the blue of the bare window.
    const QColor c = image.pixelColor(x, y);
    return !IsBlack(image, x, y) && !(c.blue() > 200 && c.red() < 40 && c.green() < 40);
}

// Where a 16:9 picture lies in a window of this size.
QRect PictureRect(QSize window)
{
    const double scale = std::min(window.width() / 640.0, window.height() / 360.0);
    const int w = qRound(640 * scale);
    const int h = qRound(360 * scale);
    return {(window.width() - w) / 2, (window.height() - h) / 2, w, h};
}

// Plays a clip on a port of its own and closes it at the end.
struct DirectPlay {
    int port = -1;
    bool playing = false;

    DirectPlay(const std::string& clip, void* window, int flag = 1)
    {
        if (vexplay_GetPort(&port) && vexplay_OpenFile(port, clip.c_str()) && vexplay_SetPlayFlag(port, flag))
            playing = vexplay_Play(port, window) != 0;
    }
    ~DirectPlay()
    {
        if (port >= 0)
            vexplay_CloseFile(port);
    }
};

void ExpectLetterbox(const QImage& shot, const QRect& picture)
{
    const int midX = picture.center().x();
    const int midY = picture.center().y();
    EXPECT_TRUE(IsPicture(shot, picture.left() + 2, midY));
    EXPECT_TRUE(IsPicture(shot, picture.right() - 2, midY));
    EXPECT_TRUE(IsPicture(shot, midX, picture.top() + 2));
    EXPECT_TRUE(IsPicture(shot, midX, picture.bottom() - 2));
    if (picture.top() > 3) {
        EXPECT_TRUE(IsBlack(shot, midX, picture.top() - 3));
        EXPECT_TRUE(IsBlack(shot, midX, picture.bottom() + 3));
    }
    if (picture.left() > 3) {
        EXPECT_TRUE(IsBlack(shot, picture.left() - 3, midY));
        EXPECT_TRUE(IsBlack(shot, picture.right() + 3, midY));
    }
}

class ClipPlays : public testing::TestWithParam<const char*> {};

TEST_P(ClipPlays, FramesReachTheWindow)
{
    PlaybackStage stage(QSize(450, 430));
    DirectPlay play(PlaybackStage::Clip(GetParam()), stage.Handle());
    ASSERT_TRUE(play.playing);
    ASSERT_NE(stage.Surface(), nullptr);
    SurfaceProbe probe(stage.Surface());
    ASSERT_TRUE(PlaybackStage::WaitFor([&] { return probe.Paints() >= 10; }, 10000));

    const QImage shot = stage.Grab();
    shot.save(QStringLiteral("/tmp/clip_%1.png").arg(QString::fromUtf8(GetParam()).section(QLatin1Char('.'), 0, 0)));
    ExpectLetterbox(shot, PictureRect(QSize(450, 430)));

    // Closing uncovers the window's own picture.
    ASSERT_EQ(vexplay_CloseFile(play.port), 1);
    play.port = -1;
    EXPECT_TRUE(PlaybackStage::WaitFor([&] { return stage.Surface()->isHidden(); }, 3000));
    const QImage after = stage.Grab();
    EXPECT_EQ(after.pixelColor(225, 215), QColor(0, 0, 255));
}

INSTANTIATE_TEST_SUITE_P(Clips, ClipPlays, testing::Values("1low.kvf", "1medium.kvf", "1high.kvf"));

struct FitCase {
    QSize start;
    QSize resized; // empty: no resize
};

class PictureFits : public testing::TestWithParam<FitCase> {};

TEST_P(PictureFits, KeepsItsAspectRatio)
{
    const FitCase c = GetParam();
    PlaybackStage stage(c.start);
    DirectPlay play(PlaybackStage::Clip("1low.kvf"), stage.Handle());
    ASSERT_TRUE(play.playing);
    SurfaceProbe probe(stage.Surface());
    ASSERT_TRUE(PlaybackStage::WaitFor([&] { return probe.Paints() >= 3; }, 10000));
    QSize size = c.start;
    if (!c.resized.isEmpty()) {
        stage.ResizeVideo(c.resized);
        size = c.resized;
        const int painted = probe.Paints();
        // Frames scaled for the new size take a frame or two to arrive.
        ASSERT_TRUE(PlaybackStage::WaitFor([&] { return probe.Paints() >= painted + 5; }, 10000));
    }
    EXPECT_EQ(stage.Surface()->size(), size);
    ExpectLetterbox(stage.Grab(), PictureRect(size));
}

INSTANTIATE_TEST_SUITE_P(Sizes, PictureFits,
    testing::Values(FitCase{{450, 430}, {}}, FitCase{{200, 400}, {}}, FitCase{{640, 360}, {}},
        FitCase{{500, 150}, {}}, FitCase{{450, 430}, {400, 200}}, FitCase{{300, 300}, {160, 300}}));

TEST(VexplayLoop, FileEndRestartsTheClipWithoutABlank)
{
    PlaybackStage stage(QSize(450, 430));
    LoopingManager manager;
    const auto started = std::chrono::steady_clock::now();
    manager.PlayFile(PlaybackStage::Clip("1medium.kvf"), stage.Handle());
    ASSERT_NE(manager.Port(), LoopingManager::kNoPort);
    SurfaceProbe probe(stage.Surface());

    ASSERT_TRUE(PlaybackStage::WaitFor([&] { return manager.Ends() >= 1; }, 20000));
    // Frames are paced by their timestamps: eight seconds of clip.
    EXPECT_GE(manager.FirstEnd() - started, std::chrono::milliseconds(7800));
    const int painted = probe.Paints();
    EXPECT_TRUE(PlaybackStage::WaitFor([&] { return probe.Paints() >= painted + 10; }, 5000));
    EXPECT_EQ(probe.Hides(), 0);
    EXPECT_NE(manager.Port(), LoopingManager::kNoPort);

    manager.Stop();
    EXPECT_EQ(manager.Port(), LoopingManager::kNoPort);
    EXPECT_EQ(manager.Ends(), 1);
}

TEST(VexplayLoop, TwoPortsPlayIntoTwoWindows)
{
    PlaybackStage first(QSize(320, 180));
    PlaybackStage second(QSize(320, 180));
    DirectPlay a(PlaybackStage::Clip("1low.kvf"), first.Handle());
    DirectPlay b(PlaybackStage::Clip("1high.kvf"), second.Handle());
    ASSERT_TRUE(a.playing);
    ASSERT_TRUE(b.playing);
    EXPECT_NE(a.port, b.port);
    SurfaceProbe probeA(first.Surface());
    SurfaceProbe probeB(second.Surface());
    EXPECT_TRUE(PlaybackStage::WaitFor([&] { return probeA.Paints() >= 5 && probeB.Paints() >= 5; }, 10000));
}

TEST(VexplayLoop, UnpacedPlayEndsOnceWithoutCallbackRestart)
{
    PlaybackStage stage(QSize(160, 90));
    static std::atomic<int> ends{0};
    ends = 0;
    int port = -1;
    ASSERT_TRUE(vexplay_GetPort(&port));
    ASSERT_TRUE(vexplay_OpenFile(port, PlaybackStage::ShortClip().c_str()));
    ASSERT_TRUE(vexplay_SetPlayFlag(port, 0));
    ASSERT_TRUE(vexplay_SetFileEndCallback(port, [](int, void* user) { ++*static_cast<std::atomic<int>*>(user); }, &ends));
    ASSERT_TRUE(vexplay_Play(port, stage.Handle()));
    EXPECT_TRUE(PlaybackStage::WaitFor([&] { return ends == 1; }, 5000));
    PlaybackStage::WaitFor([] { return false; }, 100);
    EXPECT_EQ(ends, 1);
    // The clip has been played: a second play needs it opened again.
    EXPECT_EQ(vexplay_Play(port, stage.Handle()), 0);
    ASSERT_TRUE(vexplay_OpenFile(port, PlaybackStage::ShortClip().c_str()));
    ASSERT_TRUE(vexplay_Play(port, stage.Handle()));
    EXPECT_TRUE(PlaybackStage::WaitFor([&] { return ends == 2; }, 5000));
    EXPECT_EQ(vexplay_CloseFile(port), 1);
}

} // namespace

// Playing the sample clips into a window: frames arrive, the clip ends on
// time and restarts through its callback.

#include "vexplay/vexplay.h"

#include "tests/vexplay/LoopingManager.h"
#include "tests/vexplay/PlaybackStage.h"
#include "tests/vexplay/SurfaceProbe.h"

#include <QColor>
#include <QImage>
#include <chrono>
#include <gtest/gtest.h>
#include <string>

namespace {

// Plays a clip on a port of its own and closes it at the end.
struct DirectPlay {
    int port = -1;
    bool playing = false;

    DirectPlay(const std::string& clip, void* window)
    {
        if (vexplay_GetPort(&port) && vexplay_OpenFile(port, clip.c_str()) &&
            vexplay_SetPlayFlag(port, 1))
            playing = vexplay_Play(port, window) != 0;
    }
    ~DirectPlay()
    {
        if (port >= 0)
            vexplay_CloseFile(port);
    }
};

class ClipPlays : public testing::TestWithParam<const char*> {};

TEST_P(ClipPlays, FramesReachTheWindow)
{
    PlaybackStage stage(QSize(450, 430));
    DirectPlay play(PlaybackStage::Clip(GetParam()), stage.Handle());
    ASSERT_TRUE(play.playing);
    ASSERT_NE(stage.Surface(), nullptr);
    SurfaceProbe probe(stage.Surface());
    ASSERT_TRUE(PlaybackStage::WaitFor([&] { return probe.Paints() >= 10; }, 10000));

    // The picture, not the window's own blue, fills the middle.
    EXPECT_NE(stage.Grab().pixelColor(225, 215), QColor(0, 0, 255));

    // Closing uncovers the window's own picture.
    ASSERT_EQ(vexplay_CloseFile(play.port), 1);
    play.port = -1;
    EXPECT_TRUE(PlaybackStage::WaitFor([&] { return stage.Surface()->isHidden(); }, 3000));
    const QImage after = stage.Grab();
    EXPECT_EQ(after.pixelColor(225, 215), QColor(0, 0, 255));
}

INSTANTIATE_TEST_SUITE_P(Clips, ClipPlays, testing::Values("1low.kvf", "1medium.kvf", "1high.kvf"));

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

} // namespace

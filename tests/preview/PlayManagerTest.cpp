// The playback manager against the real library, with every call traced.

#include "preview/PlayManagerUILogic.h"
#include "tests/preview/PreviewTestSupport.h"
#include "tests/preview/VexplayTrace.h"
#include "tests/vexplay/PlaybackStage.h"
#include "vexplay/vexplay.h"

#include <QTest>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

namespace {

constexpr int kNoPort = CPlayManagerUILogic::NO_PORT;

std::string LongClip()
{
    return TALLIX_APP_DIR "/1low.kvf";
}

class PlayManager : public PreviewTest {};

bool Mapped(const char* library)
{
    std::ifstream maps("/proc/self/maps");
    std::string line;
    while (std::getline(maps, line)) {
        if (line.find(library) != std::string::npos)
            return true;
    }
    return false;
}

TEST_F(PlayManager, PlaybackLibraryIsMappedOnlyOnceAClipPlays)
{
    if (Mapped("libvexplay.so"))
        GTEST_SKIP() << "an earlier test of this process played a clip";
    EXPECT_FALSE(Mapped("libavcodec"));
    PlaybackStage window(QSize(320, 240));
    CPlayManagerUILogic manager;
    manager.PlayFile(Wide(LongClip()), window.Handle());
    EXPECT_TRUE(Mapped("libvexplay.so"));
    EXPECT_TRUE(Mapped("libavcodec"));
    EXPECT_NE(manager.GetPort(), kNoPort);
    manager.Stop();
}

TEST_F(PlayManager, PlayAndStopCallTheLibraryInTheirOrder)
{
    PlaybackStage window(QSize(320, 240));
    CPlayManagerUILogic manager;
    EXPECT_EQ(manager.GetPort(), kNoPort);

    manager.PlayFile(Wide(LongClip()), window.Handle());
    EXPECT_EQ(VexTrace::Ops(), Join({ { "GetPort" }, kClearOps, { "OpenFile" }, kPlayOps }));
    const std::vector<VexCall> calls = VexTrace::Calls();
    for (const VexCall& c : calls) {
        EXPECT_TRUE(c.ok) << c.op;
        EXPECT_TRUE(c.guiThread) << c.op;
    }
    const int port = manager.GetPort();
    EXPECT_NE(port, kNoPort);
    EXPECT_EQ(calls[0].port, port);
    EXPECT_EQ(calls[5].arg, LongClip());
    EXPECT_EQ(calls[7].pointer, &manager) << "the callback's user value";
    EXPECT_EQ(calls[8].pointer, window.Handle());
    EXPECT_EQ(CPlayManagerUILogic::GetLastFile(), Wide(LongClip()));
    EXPECT_EQ(CPlayManagerUILogic::GetLastWnd(), window.Handle());

    const std::size_t played = VexTrace::Count();
    manager.Stop();
    EXPECT_EQ(VexTrace::Ops(played), Join({ kClearOps, { "CloseFile" } }));
    EXPECT_EQ(VexTrace::Calls().back().port, port);
    EXPECT_EQ(manager.GetPort(), kNoPort);

    manager.Stop();
    EXPECT_EQ(VexTrace::Count(), played + 5) << "a second Stop has no port to close";
}

TEST_F(PlayManager, ClipEndStartsTheClipOverInTheSameWindow)
{
    PlaybackStage window(QSize(320, 240));
    CPlayManagerUILogic manager;
    const std::string clip = PlaybackStage::ShortClip();
    manager.PlayFile(Wide(clip), window.Handle());
    ASSERT_TRUE(PlaybackStage::WaitFor([] { return SuccessfulPlays() >= 3; }, 5000))
        << "the clip did not loop";

    manager.Stop();
    const std::size_t stopped = VexTrace::Count();
    const std::vector<VexCall> calls = VexTrace::Calls();
    // The first restart, on the library's thread.
    const std::vector<std::string> restart =
        Join({ kClearOps, { "CloseFile", "GetPort" }, kClearOps, { "OpenFile" }, kPlayOps });
    ASSERT_GE(calls.size(), 9 + restart.size());
    std::vector<std::string> first(VexTrace::Ops(9));
    first.resize(restart.size());
    EXPECT_EQ(first, restart);
    for (std::size_t i = 9; i < 9 + restart.size(); ++i)
        EXPECT_FALSE(calls[i].guiThread) << calls[i].op;
    EXPECT_EQ(calls[9 + 10].arg, clip);
    EXPECT_EQ(calls[9 + restart.size() - 1].pointer, window.Handle());
    EXPECT_TRUE(calls[9 + restart.size() - 1].ok);

    PlaybackStage::WaitFor([] { return false; }, 500);
    EXPECT_EQ(VexTrace::Count(), stopped) << "the library was called after Stop";
    EXPECT_EQ(manager.GetPort(), kNoPort);
}

TEST_F(PlayManager, StopMeetingTheClipsEndDoesNotWaitForTheRestart)
{
    PlaybackStage window(QSize(320, 240));
    CPlayManagerUILogic manager;
    manager.PlayFile(Wide(PlaybackStage::ShortClip()), window.Handle());
    const std::size_t played = VexTrace::Count();
    // The stop holds the manager while the clip ends: the restart has to
    // give way, as the close waits for it.
    VexTrace::DelayNext("Cb125", true, 400);
    {
        Watchdog watchdog("Stop during the file-end callback", 10000);
        manager.Stop();
    }
    EXPECT_EQ(VexTrace::Ops(played), Join({ kClearOps, { "CloseFile" } }));
    EXPECT_EQ(manager.GetPort(), kNoPort);
    PlaybackStage::WaitFor([] { return false; }, 300);
    EXPECT_EQ(VexTrace::Count(), played + 5);
}

} // namespace

// What must not hurt the library: wrong calls, bad files, a window that goes
// while it plays, and the dialog's close racing the clip's restart.

#include "vexplay/vexplay.h"

#include "tests/support/TempDir.h"
#include "tests/vexplay/LoopingManager.h"
#include "tests/vexplay/PlaybackStage.h"
#include "tests/vexplay/SurfaceProbe.h"

#include <atomic>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <random>
#include <string>
#include <thread>

namespace {

constexpr int kPortCount = 64;

std::string ReadFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return { std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>() };
}

std::string RandomBytes(size_t size, unsigned seed)
{
    std::mt19937 rng(seed);
    std::string bytes(size, '\0');
    for (char& b : bytes)
        b = static_cast<char>(rng() & 0xff);
    return bytes;
}

void CountEnd(int, void* user)
{
    ++*static_cast<std::atomic<int>*>(user);
}

// Takes every port there is, then gives them back.
int CountFreePorts()
{
    std::vector<int> ports;
    int port = -1;
    while (ports.size() <= kPortCount && vexplay_GetPort(&port))
        ports.push_back(port);
    for (int p : ports)
        vexplay_CloseFile(p);
    return static_cast<int>(ports.size());
}

TEST(VexplayCalls, WrongPortsAndArgumentsFail)
{
    PlaybackStage stage(QSize(160, 90));
    const std::string clip = PlaybackStage::ShortClip();
    for (int port : { -1, kPortCount, LoopingManager::kNoPort, 1 << 30 }) {
        SCOPED_TRACE(port);
        EXPECT_EQ(vexplay_OpenFile(port, clip.c_str()), 0);
        EXPECT_EQ(vexplay_Play(port, stage.Handle()), 0);
        EXPECT_EQ(vexplay_CloseFile(port), 0);
        EXPECT_EQ(vexplay_SetPlayFlag(port, 1), 0);
        EXPECT_EQ(vexplay_SetFileEndCallback(port, nullptr, nullptr), 0);
    }
    EXPECT_EQ(vexplay_GetPort(nullptr), 0);

    int port = -1;
    ASSERT_EQ(vexplay_GetPort(&port), 1);
    EXPECT_EQ(vexplay_Play(port, stage.Handle()), 0); // nothing open yet
    EXPECT_EQ(vexplay_OpenFile(port, nullptr), 0);
    ASSERT_EQ(vexplay_OpenFile(port, clip.c_str()), 1);
    EXPECT_EQ(vexplay_Play(port, nullptr), 0);
    EXPECT_EQ(vexplay_Play(port, reinterpret_cast<void*>(quintptr(0x7fff1234))), 0);
    EXPECT_EQ(vexplay_CloseFile(port), 1);
    EXPECT_EQ(vexplay_CloseFile(port), 0); // given back already
    EXPECT_EQ(vexplay_SetFileEndCallback(port, nullptr, nullptr), 0);
}

// --- bad files ------------------------------------------------------------

enum class Expect { Fails, Either };

struct BadFile {
    const char* name;
    Expect expect;
    // Writes the file into dir and returns its path.
    std::string (*make)(const TempDir& dir);
};

std::string Medium()
{
    return ReadFile(PlaybackStage::Clip("1medium.kvf"));
}

std::string TruncatedHalf(const TempDir& dir)
{
    const std::string clip = Medium();
    dir.Write("cut.kvf", clip.substr(0, clip.size() / 2));
    return dir.File("cut.kvf");
}

const BadFile kBadFiles[] = {
    { "missing", Expect::Fails, [](const TempDir& d) { return d.File("none.kvf"); } },
    { "zeroed", Expect::Fails,
      [](const TempDir& d) {
          d.Write("z.kvf", std::string(256 * 1024, '\0'));
          return d.File("z.kvf");
      } },
    { "random_bytes", Expect::Fails,
      [](const TempDir& d) {
          d.Write("r.kvf", RandomBytes(256 * 1024, 7));
          return d.File("r.kvf");
      } },
    { "truncated_50pc", Expect::Either, [](const TempDir& d) { return TruncatedHalf(d); } },
};

class BadClip : public testing::TestWithParam<BadFile> {};

TEST_P(BadClip, FailsOrEndsCleanly)
{
    const BadFile bad = GetParam();
    TempDir dir;
    const std::string path = bad.make(dir);
    PlaybackStage stage(QSize(160, 90));
    std::atomic<int> ends{ 0 };
    int port = -1;
    ASSERT_EQ(vexplay_GetPort(&port), 1);
    const int opened = vexplay_OpenFile(port, path.c_str());
    if (bad.expect == Expect::Fails) {
        EXPECT_EQ(opened, 0);
    }
    vexplay_SetPlayFlag(port, 0);
    vexplay_SetFileEndCallback(port, &CountEnd, &ends);
    const int played = vexplay_Play(port, stage.Handle());
    if (!opened) {
        EXPECT_EQ(played, 0);
    }
    if (played) {
        EXPECT_TRUE(PlaybackStage::WaitFor([&] { return ends == 1; }, 20000));
    }
    EXPECT_EQ(vexplay_CloseFile(port), 1);
}

INSTANTIATE_TEST_SUITE_P(Files, BadClip, testing::ValuesIn(kBadFiles),
                         [](const testing::TestParamInfo<BadFile>& info) {
                             return std::string(info.param.name);
                         });

// --- the window goes ----------------------------------------------------------

TEST(VexplayWindow, DestroyedWindowStopsItsPortsForGood)
{
    auto stage = std::make_unique<PlaybackStage>(QSize(160, 90));
    auto manager = std::make_unique<LoopingManager>(0);
    manager->PlayFile(PlaybackStage::ShortClip(), stage->Handle());
    ASSERT_TRUE(PlaybackStage::WaitFor([&] { return manager->Ends() >= 3; }, 10000));

    stage.reset();
    const int ends = manager->Ends();
    PlaybackStage::WaitFor([] { return false; }, 300);
    EXPECT_EQ(manager->Ends(), ends);

    // The port stays held until its holder closes it.
    ASSERT_NE(manager->Port(), LoopingManager::kNoPort);
    manager->Stop();
    EXPECT_EQ(manager->Port(), LoopingManager::kNoPort);
}

TEST(VexplayWindow, CloseRacesTheFileEndCallback)
{
    std::mt19937 rng(20240611);
    for (int round = 0; round < 300; ++round) {
        auto stage = std::make_unique<PlaybackStage>(QSize(160, 90));
        auto* manager = new LoopingManager(0);
        manager->PlayFile(PlaybackStage::ShortClip(), stage->Handle());
        const int ends = 1 + static_cast<int>(rng() % 3);
        ASSERT_TRUE(PlaybackStage::WaitFor([&] { return manager->Ends() >= ends; }, 10000))
            << "round " << round;
        std::this_thread::sleep_for(std::chrono::microseconds(rng() % 500));
        // Mostly the close button; now and then the window just goes.
        if (round % 5 != 4)
            manager->Stop();
        stage.reset();
        delete manager;
    }
    EXPECT_EQ(LoopingManager::StrayCallbacks(), 0);
    EXPECT_EQ(CountFreePorts(), kPortCount);
}

} // namespace

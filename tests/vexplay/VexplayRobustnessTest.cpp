// What must not hurt the library: wrong calls, bad files, a window that goes
// while it plays, and the dialog's close racing the clip's restart.

#include "LoopingManager.h"
#include "PlaybackStage.h"
#include "SurfaceProbe.h"
#include "TempDir.h"
#include "vexplay.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <algorithm>
#include <atomic>
#include <fstream>
#include <iterator>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr int kPortCount = 64;

std::string ReadFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
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
    for (int port : {-1, kPortCount, LoopingManager::kNoPort, 1 << 30}) {
        SCOPED_TRACE(port);
        EXPECT_EQ(vexplay_OpenFile(port, clip.c_str()), 0);
        EXPECT_EQ(vexplay_Play(port, stage.Handle()), 0);
        EXPECT_EQ(vexplay_CloseFile(port), 0);
        EXPECT_EQ(vexplay_SetPlayFlag(port, 1), 0);
        EXPECT_EQ(vexplay_SetFileEndCallback(port, nullptr, nullptr), 0);
        EXPECT_EQ(vexplay_SetCallback125(port, nullptr, nullptr), 0);
        EXPECT_EQ(vexplay_SetCallback157(port, nullptr, nullptr), 0);
        EXPECT_EQ(vexplay_SetCallback109(port, nullptr, nullptr), 0);
    }
    EXPECT_EQ(vexplay_GetPort(nullptr), 0);

    int port = -1;
    ASSERT_EQ(vexplay_GetPort(&port), 1);
    EXPECT_EQ(vexplay_Play(port, stage.Handle()), 0); // nothing open yet
    EXPECT_EQ(vexplay_OpenFile(port, nullptr), 0);
    ASSERT_EQ(vexplay_OpenFile(port, clip.c_str()), 1);
    EXPECT_EQ(vexplay_Play(port, nullptr), 0);
    EXPECT_EQ(vexplay_Play(port, reinterpret_cast<void*>(quintptr(0x7fff1234))), 0);
    EXPECT_EQ(vexplay_SetCallback125(port, nullptr, nullptr), 1);
    EXPECT_EQ(vexplay_CloseFile(port), 1);
    EXPECT_EQ(vexplay_CloseFile(port), 0); // given back already
    EXPECT_EQ(vexplay_SetFileEndCallback(port, nullptr, nullptr), 0);
}

TEST(VexplayCalls, PortsRunOutAndComeBack)
{
    std::vector<int> ports(kPortCount);
    for (int& p : ports)
        ASSERT_EQ(vexplay_GetPort(&p), 1);
    int extra = -1;
    EXPECT_EQ(vexplay_GetPort(&extra), 0);
    EXPECT_EQ(std::set<int>(ports.begin(), ports.end()).size(), ports.size());
    for (int p : ports)
        EXPECT_EQ(vexplay_CloseFile(p), 1);
    EXPECT_EQ(CountFreePorts(), kPortCount);
}

TEST(VexplayCalls, CloseFromAnotherThreadStopsAPacedPlay)
{
    PlaybackStage stage(QSize(320, 180));
    std::atomic<int> ends{0};
    int port = -1;
    ASSERT_TRUE(vexplay_GetPort(&port));
    ASSERT_TRUE(vexplay_OpenFile(port, PlaybackStage::Clip("1low.kvf").c_str()));
    ASSERT_TRUE(vexplay_SetFileEndCallback(port, &CountEnd, &ends));
    ASSERT_TRUE(vexplay_Play(port, stage.Handle()));
    PlaybackStage::WaitFor([] { return false; }, 200);
    int closed = 0;
    std::thread closer([&] { closed = vexplay_CloseFile(port); });
    closer.join();
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(ends, 0);
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

std::string Truncated(const TempDir& dir, size_t keep)
{
    dir.Write("cut.kvf", Medium().substr(0, keep));
    return dir.File("cut.kvf");
}

std::string TruncatedShare(const TempDir& dir, int percent)
{
    return Truncated(dir, Medium().size() * percent / 100);
}

const BadFile kBadFiles[] = {
    {"missing", Expect::Fails, [](const TempDir& d) { return d.File("none.kvf"); }},
    {"empty_path", Expect::Fails, [](const TempDir&) { return std::string(); }},
    {"directory", Expect::Fails, [](const TempDir& d) { return d.Path(); }},
    {"web_address", Expect::Fails, [](const TempDir&) { return std::string("http://127.0.0.1:9/1low.kvf"); }},
    {"device", Expect::Fails, [](const TempDir&) { return std::string("/dev/zero"); }},
    {"pipe", Expect::Fails,
        [](const TempDir& d) {
            mkfifo(d.File("p.kvf").c_str(), 0600);
            return d.File("p.kvf");
        }},
    {"zero_length", Expect::Fails, [](const TempDir& d) { d.Write("z.kvf", ""); return d.File("z.kvf"); }},
    {"zeroed", Expect::Fails,
        [](const TempDir& d) { d.Write("z.kvf", std::string(256 * 1024, '\0')); return d.File("z.kvf"); }},
    {"random_bytes", Expect::Fails,
        [](const TempDir& d) { d.Write("r.kvf", RandomBytes(256 * 1024, 7)); return d.File("r.kvf"); }},
    {"header_only", Expect::Fails, [](const TempDir& d) { return Truncated(d, 64); }},
    {"truncated_600", Expect::Either, [](const TempDir& d) { return Truncated(d, 600); }},
    {"truncated_5pc", Expect::Either, [](const TempDir& d) { return TruncatedShare(d, 5); }},
    {"truncated_50pc", Expect::Either, [](const TempDir& d) { return TruncatedShare(d, 50); }},
    {"truncated_97pc", Expect::Either, [](const TempDir& d) { return TruncatedShare(d, 97); }},
    {"random_middle", Expect::Either,
        [](const TempDir& d) {
            std::string clip = Medium();
            clip.replace(clip.size() * 2 / 5, 8192, RandomBytes(8192, 3));
            d.Write("m.kvf", clip);
            return d.File("m.kvf");
        }},
    {"flipped_bytes", Expect::Either,
        [](const TempDir& d) {
            std::string clip = Medium();
            for (size_t i = 1500; i < clip.size(); i += 997)
                clip[i] = static_cast<char>(clip[i] ^ 0x5a);
            d.Write("f.kvf", clip);
            return d.File("f.kvf");
        }},
    {"zeroed_tail", Expect::Either,
        [](const TempDir& d) {
            std::string clip = Medium();
            std::fill(clip.begin() + static_cast<long>(clip.size() / 3), clip.end(), '\0');
            d.Write("t.kvf", clip);
            return d.File("t.kvf");
        }},
};

class BadClip : public testing::TestWithParam<BadFile> {};

TEST_P(BadClip, FailsOrEndsCleanly)
{
    const BadFile bad = GetParam();
    TempDir dir;
    const std::string path = bad.make(dir);
    PlaybackStage stage(QSize(160, 90));
    std::atomic<int> ends{0};
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
    [](const testing::TestParamInfo<BadFile>& info) { return std::string(info.param.name); });

TEST(VexplayFiles, PathWithColonOpensAsAFile)
{
    TempDir dir;
    dir.Write("http:clip.kvf", ReadFile(PlaybackStage::ShortClip()));
    int port = -1;
    ASSERT_EQ(vexplay_GetPort(&port), 1);
    EXPECT_EQ(vexplay_OpenFile(port, dir.File("http:clip.kvf").c_str()), 1);
    EXPECT_EQ(vexplay_CloseFile(port), 1);
}

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

TEST(VexplayWindow, PortsOfAbandonedWindowsAreTakenBack)
{
    // As when the dialog goes by its escape key: nobody closes the ports.
    for (int i = 0; i < kPortCount + 8; ++i) {
        auto stage = std::make_unique<PlaybackStage>(QSize(160, 90));
        auto manager = std::make_unique<LoopingManager>(1);
        manager->PlayFile(PlaybackStage::Clip("1low.kvf"), stage->Handle());
        ASSERT_NE(manager->Port(), LoopingManager::kNoPort) << "round " << i;
        stage.reset();
        manager.reset();
    }
    EXPECT_EQ(CountFreePorts(), kPortCount);
}

TEST(VexplayWindow, CloseRacesTheFileEndCallback)
{
    std::mt19937 rng(20240611);
    for (int round = 0; round < 300; ++round) {
        auto stage = std::make_unique<PlaybackStage>(QSize(160, 90));
        auto* manager = new LoopingManager(0);
        manager->PlayFile(PlaybackStage::ShortClip(), stage->Handle());
        const int ends = 1 + static_cast<int>(rng() % 3);
        ASSERT_TRUE(PlaybackStage::WaitFor([&] { return manager->Ends() >= ends; }, 10000)) << "round " << round;
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

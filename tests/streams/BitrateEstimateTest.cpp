// The estimation library: a row's rate and the resolution tables.
#include "streams/engine/BitrateEstimate.h"

#include "streams/engine/ResolutionTable.h"

#include <gtest/gtest.h>

namespace {

struct Estimate {
    int compression;
    int environment;
    int resolution;
    int frameRate;
    bool audio;
    int area;
    double kbps;
};

class EstimateRows : public ::testing::TestWithParam<Estimate> {};

TEST_P(EstimateRows, FollowTheRule)
{
    const Estimate& e = GetParam();
    EXPECT_DOUBLE_EQ(e.kbps, EstimateRowBitrate(e.compression, e.environment, e.resolution,
                                                e.frameRate, e.audio, e.area));
}

// Every resolution at H.264, 30 fps, no audio.
INSTANTIATE_TEST_SUITE_P(
    Resolutions, EstimateRows,
    ::testing::Values(
        Estimate{ 1, 0, 0, 30, false, 0, 0 }, Estimate{ 1, 0, 1, 30, false, 0, 512 },
        Estimate{ 1, 0, 2, 30, false, 0, 1024 }, Estimate{ 1, 0, 3, 30, false, 0, 1024 },
        Estimate{ 1, 0, 4, 30, false, 0, 2048 }, Estimate{ 1, 0, 5, 30, false, 0, 2048 },
        Estimate{ 1, 0, 6, 30, false, 0, 4096 }, Estimate{ 1, 0, 7, 30, false, 0, 4096 },
        Estimate{ 1, 0, 8, 30, false, 0, 4096 }, Estimate{ 1, 0, 9, 30, false, 0, 6144 },
        Estimate{ 1, 0, 10, 30, false, 0, 6144 }, Estimate{ 1, 0, 11, 30, false, 0, 8192 },
        Estimate{ 1, 0, 12, 30, false, 0, 12288 },
        // Area 1 halves only the two small references.
        Estimate{ 1, 0, 2, 30, false, 1, 512 }, Estimate{ 1, 0, 3, 30, false, 1, 512 },
        Estimate{ 1, 0, 6, 30, false, 1, 4096 }, Estimate{ 1, 0, 3, 30, false, 2, 1024 },
        Estimate{ 1, 0, 3, 30, false, -1, 1024 }));

// The codec and scene factors at 4 MP, 30 fps; only smart codecs heed the scene.
INSTANTIATE_TEST_SUITE_P(
    Factors, EstimateRows,
    ::testing::Values(
        Estimate{ 0, 1, 6, 30, true, 0, 0 }, Estimate{ 1, 2, 6, 30, false, 0, 4096 },
        Estimate{ 2, 0, 6, 30, false, 0, 2048 }, Estimate{ 2, 1, 6, 30, false, 0, 2048 },
        Estimate{ 3, 0, 6, 30, false, 0, 4096 }, Estimate{ 3, 1, 6, 30, false, 0, 1024 },
        Estimate{ 3, 2, 6, 30, false, 0, 2048 }, Estimate{ 3, 3, 6, 30, false, 0, 4096 },
        Estimate{ 4, 0, 6, 30, false, 0, 2048 }, Estimate{ 4, 1, 6, 30, false, 0, 512 },
        Estimate{ 4, 2, 6, 30, false, 0, 1024 }, Estimate{ 4, 3, 6, 30, false, 0, 2048 }));

// Rates in proportion to 30, custom ones included; audio adds 60 to a rate.
INSTANTIATE_TEST_SUITE_P(
    Rates, EstimateRows,
    ::testing::Values(Estimate{ 1, 0, 6, 0, true, 0, 0 }, Estimate{ 1, 0, 6, 15, false, 0, 2048 },
                      Estimate{ 1, 0, 6, 60, false, 0, 8192 },
                      Estimate{ 1, 0, 6, 7, false, 0, 4096 * 7 / 30.0 },
                      Estimate{ 1, 0, 6, 999999999, false, 0, 4096.0 * 999999999 / 30 },
                      Estimate{ 1, 0, 6, 30, true, 0, 4156 }, Estimate{ 2, 0, 3, 15, true, 0, 316 },
                      Estimate{ 4, 1, 6, 25, true, 0, 4096 * 25 / 30.0 / 8 + 60 }));

// Stray indexes read past no table: an unknown scene counts as none chosen.
INSTANTIATE_TEST_SUITE_P(Stray, EstimateRows,
                         ::testing::Values(Estimate{ -1, 0, 6, 30, true, 0, 0 },
                                           Estimate{ 1, 0, -3, 30, true, 0, 0 },
                                           Estimate{ 1, 0, 13, 30, true, 0, 0 },
                                           Estimate{ 3, 9, 6, 30, false, 0, 4096 },
                                           Estimate{ 4, -2, 6, 30, false, 0, 2048 }));

struct SizeCase {
    int index;
    int bNtsc;
    int width;
    int height;
};

TEST(IndexToSize, GivesSizeOrLeavesOutputs)
{
    const SizeCase cases[] = {
        { 21, 1, 3744, 1408 },
        // The twelve-row list, largest first.
        { 0, 0, 3296, 2472 },
        { 4, 0, 1920, 1080 },
        { 11, 0, 176, 144 },
        // Outside: untouched.
        { 33, 1, -7, -9 },
        { -1, 1, -7, -9 },
        { 12, 0, -7, -9 },
    };
    for (const SizeCase& c : cases) {
        int width = -7;
        int height = -9;
        ResolutionIndexToSize(c.index, &width, &height, c.bNtsc);
        EXPECT_EQ(c.width, width) << "index " << c.index;
        EXPECT_EQ(c.height, height) << "index " << c.index;
    }
}

TEST(SizeToIndex, FindsFirstRow)
{
    const SizeCase cases[] = {
        { 0, 0, 704, 576 },
        { 3, 0, 352, 288 },
        { 28, 0, 960, 576 },
        { 32, 0, 160, 90 },
        // Not the twelve-row list: its first row is row 26 here.
        { 26, 0, 3296, 2472 },
        { 18, 0, 1920, 1080 },
        // Unknown, or only in the other norm: 0 like row 0.
        { 0, 0, 704, 480 },
        { 0, 1, 3072, 2048 },
        { 0, 0, 480, 704 },
    };
    for (const SizeCase& c : cases)
        EXPECT_EQ(c.index, SizeToResolutionIndex(c.width, c.height, c.bNtsc))
            << c.width << "x" << c.height;
}

TEST(SizeToIndex, InvertsTheNtscTable)
{
    for (int i = 0; i < kResolutionRowCount; ++i) {
        int width = 0;
        int height = 0;
        ResolutionIndexToSize(i, &width, &height, 1);
        EXPECT_EQ(i, SizeToResolutionIndex(width, height, 1)) << width << "x" << height;
    }
}

} // namespace

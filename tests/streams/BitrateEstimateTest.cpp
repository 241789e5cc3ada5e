#include "BitrateEstimate.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <tuple>

namespace {

// Written out again here so that a wrong entry in the library's tables shows.
double ExpectedReference(int resolution, int area)
{
    if (resolution == 2 || resolution == 3)
        return area == 1 ? 512 : 1024;
    const double kbps[] = {0, 512, 0, 0, 2048, 2048, 4096, 4096, 4096, 6144, 6144, 8192, 12288};
    return resolution >= 0 && resolution <= 12 ? kbps[resolution] : 0;
}

double ExpectedFactor(int compression, int environment)
{
    const double smart264 = environment == 1 ? 0.25 : environment == 2 ? 0.5 : 1;
    switch (compression) {
    case 1: return 1;
    case 2: return 0.5;
    case 3: return smart264;
    case 4: return smart264 / 2;
    }
    return 0;
}

double Expected(int compression, int environment, int resolution, int frameRate, bool audio,
                int area)
{
    if (compression == 0 || resolution == 0 || frameRate == 0)
        return 0.0;
    double value = ExpectedReference(resolution, area) * frameRate / 30.0;
    value *= ExpectedFactor(compression, environment);
    return audio ? value + 60.0 : value;
}

std::string Shown(double value)
{
    char buffer[256] = {};
    std::snprintf(buffer, sizeof(buffer), "%.0f", value);
    return buffer;
}

// The nine combo entries, then custom rates: none, odd, and beyond the list.
const int kFrameRates[] = {1, 5, 10, 15, 20, 25, 30, 45, 60, 0, 7, 120, 999999999};
const int kAreas[] = {0, 1, 2, -1};

class EstimateGrid : public ::testing::TestWithParam<std::tuple<int, int>> {};

TEST_P(EstimateGrid, MatchesRuleForEveryResolutionRateAudioAndArea)
{
    const int compression = std::get<0>(GetParam());
    const int environment = std::get<1>(GetParam());
    for (int resolution = 0; resolution < 13; ++resolution) {
        for (int frameRate : kFrameRates) {
            for (bool audio : {false, true}) {
                for (int area : kAreas) {
                    SCOPED_TRACE(testing::Message() << "resolution " << resolution << " rate "
                                                    << frameRate << " audio " << audio
                                                    << " area " << area);
                    const double want =
                        Expected(compression, environment, resolution, frameRate, audio, area);
                    EXPECT_EQ(want, EstimateRowBitrate(compression, environment, resolution,
                                                       frameRate, audio, area));
                }
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(AllCombos, EstimateGrid,
                         ::testing::Combine(::testing::Range(0, 5), ::testing::Range(0, 4)));

struct Worked {
    int compression;
    int environment;
    int resolution;
    int frameRate;
    bool audio;
    int area;
    const char* shown;
};

class EstimateWorked : public ::testing::TestWithParam<Worked> {};

TEST_P(EstimateWorked, ShowsExpectedText)
{
    const Worked& w = GetParam();
    EXPECT_EQ(w.shown, Shown(EstimateRowBitrate(w.compression, w.environment, w.resolution,
                                                w.frameRate, w.audio, w.area)));
}

INSTANTIATE_TEST_SUITE_P(
    Examples, EstimateWorked,
    ::testing::Values(Worked{1, 2, 3, 15, false, 0, "512"}, Worked{2, 0, 3, 15, true, 0, "316"},
                      Worked{1, 0, 3, 15, false, 1, "256"}, Worked{4, 1, 6, 25, true, 0, "487"},
                      Worked{3, 0, 6, 25, false, 0, "3413"}, Worked{0, 1, 6, 30, true, 0, "0"},
                      Worked{2, 0, 2, 30, false, 2, "512"}));

TEST(EstimateRowBitrate, StrayIndexesDoNotReadPastTables)
{
    EXPECT_EQ(0.0, EstimateRowBitrate(-1, 0, 6, 30, true, 0));
    EXPECT_EQ(0.0, EstimateRowBitrate(1, 0, -3, 30, true, 0));
    // An unknown scene counts as none chosen.
    EXPECT_EQ(4096.0, EstimateRowBitrate(3, 9, 6, 30, false, 0));
    EXPECT_EQ(2048.0, EstimateRowBitrate(4, -2, 6, 30, false, 0));
}

}  // namespace

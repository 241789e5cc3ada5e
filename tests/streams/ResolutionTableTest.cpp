#include "ResolutionTable.h"

#include <gtest/gtest.h>

namespace {

struct SizeCase {
    int index;
    int bNtsc;
    int width;
    int height;
};

class IndexToSize : public ::testing::TestWithParam<SizeCase> {};

TEST_P(IndexToSize, GivesSizeOrLeavesOutputs)
{
    const SizeCase& c = GetParam();
    int width = -7;
    int height = -9;
    ResolutionIndexToSize(c.index, &width, &height, c.bNtsc);
    EXPECT_EQ(c.width, width);
    EXPECT_EQ(c.height, height);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, IndexToSize,
    ::testing::Values(SizeCase{21, 1, 3744, 1408},
                      // The twelve-row list, largest first.
                      SizeCase{0, 0, 3296, 2472}, SizeCase{4, 0, 1920, 1080},
                      SizeCase{11, 0, 176, 144},
                      // Outside: untouched.
                      SizeCase{33, 1, -7, -9}, SizeCase{-1, 1, -7, -9}, SizeCase{12, 0, -7, -9}));

class SizeToIndex : public ::testing::TestWithParam<SizeCase> {};

TEST_P(SizeToIndex, FindsFirstRow)
{
    const SizeCase& c = GetParam();
    EXPECT_EQ(c.index, SizeToResolutionIndex(c.width, c.height, c.bNtsc));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, SizeToIndex,
    ::testing::Values(SizeCase{0, 0, 704, 576}, SizeCase{3, 0, 352, 288},
                      SizeCase{28, 0, 960, 576}, SizeCase{32, 0, 160, 90},
                      // Not the twelve-row list: its first row is row 26 here.
                      SizeCase{26, 0, 3296, 2472}, SizeCase{18, 0, 1920, 1080},
                      // Unknown, or only in the other norm: 0 like row 0.
                      SizeCase{0, 0, 704, 480}, SizeCase{0, 1, 3072, 2048},
                      SizeCase{0, 0, 480, 704}));

TEST(SizeToIndex, InvertsTheNtscTable)
{
    for (int i = 0; i < kResolutionRowCount; ++i) {
        int width = 0;
        int height = 0;
        ResolutionIndexToSize(i, &width, &height, 1);
        EXPECT_EQ(i, SizeToResolutionIndex(width, height, 1)) << width << "x" << height;
    }
}

}  // namespace

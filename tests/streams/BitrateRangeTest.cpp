// The span formula of a stream's rate, its mean, and the rounding to a step.
#include "streams/engine/BitrateRange.h"

#include <climits>
#include <gtest/gtest.h>

namespace {

struct RangeCase {
    int resolutionIndex;
    int frameRateIndex;
    int codec;
    int codecFlag;
    int fullFrameRate;
    unsigned min;
    unsigned max;
    int estimate;
};

class BitrateRange : public ::testing::TestWithParam<RangeCase> {};

TEST_P(BitrateRange, GivesSpanAndMean)
{
    const RangeCase& c = GetParam();
    unsigned min = 777;
    unsigned max = 777;
    GetBitrateRange(c.resolutionIndex, c.frameRateIndex, &min, &max, c.codec, c.codecFlag,
                    c.fullFrameRate);
    EXPECT_EQ(c.min, min);
    EXPECT_EQ(c.max, max);

    min = 777;
    max = 777;
    EXPECT_EQ(c.estimate, GetBitrateEstimate(c.resolutionIndex, c.frameRateIndex, c.codec,
                                             c.codecFlag, &min, &max, c.fullFrameRate));
    EXPECT_EQ(c.min, min);
    EXPECT_EQ(c.max, max);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, BitrateRange,
    ::testing::Values(
        // 1920x1080 at 30 of a full 50.
        RangeCase{ 5, 7, 0, 0, 0, 4459, 25527, 14993 },
        RangeCase{ 5, 7, 1, 1, 0, 5350, 30632, 17991 },
        // Only codec 1 with the flag takes the smaller divisor.
        RangeCase{ 5, 7, 1, 0, 0, 4459, 25527, 14993 },
        RangeCase{ 5, 7, 2, 1, 0, 4459, 25527, 14993 },
        // Full rates outside 1..149 fall back to 50.
        RangeCase{ 5, 7, 0, 0, 150, 4459, 25527, 14993 },
        RangeCase{ 5, 7, 0, 0, 149, 4336, 24872, 14604 },
        // Truncation before the pixel product: 453.6 becomes 453.
        RangeCase{ 1, 1, 0, 0, 25, 36408, 208322, 122365 },
        RangeCase{ 2, 4, 1, 5, 30, 25022, 142987, 84004 }, RangeCase{ 12, 21, 0, 0, 50, 1, 10, 5 },
        // Nothing chosen, or outside the tables.
        RangeCase{ 0, 7, 0, 0, 0, 0, 0, 0 }, RangeCase{ 13, 7, 0, 0, 0, 0, 0, 0 },
        RangeCase{ 5, -1, 0, 0, 0, 0, 0, 0 }, RangeCase{ 5, INT_MAX, 0, 0, 0, 0, 0, 0 }));

struct RoundCase {
    int value;
    int step;
    int result;
};

class RoundToStepCases : public ::testing::TestWithParam<RoundCase> {};

TEST_P(RoundToStepCases, Rounds)
{
    EXPECT_EQ(GetParam().result, RoundToStep(GetParam().value, GetParam().step));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, RoundToStepCases,
    ::testing::Values(RoundCase{ 17, 10, 20 }, RoundCase{ 14, 10, 10 }, RoundCase{ 15, 10, 20 },
                      RoundCase{ 20, 10, 20 }, RoundCase{ 7, 0, 7 },
                      // Step 1 always adds one: remainder 0 is not below 0.
                      RoundCase{ 5, 1, 6 }, RoundCase{ 15, 3, 15 },
                      // Negative remainders always take the lower branch.
                      RoundCase{ -17, 10, -10 }, RoundCase{ -20, 10, -20 }, RoundCase{ 17, -10, 0 },
                      // Ends of the range wrap instead of trapping.
                      RoundCase{ INT_MIN, -1, INT_MAX }, RoundCase{ INT_MAX, 10, INT_MIN + 2 }));

} // namespace

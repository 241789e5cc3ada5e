#include <gtest/gtest.h>

#include <climits>

#include "WinMath.h"

namespace {

struct MulDivCase {
    int number;
    int numerator;
    int denominator;
    int expected;
};

std::ostream& operator<<(std::ostream& os, const MulDivCase& c)
{
    return os << "MulDiv(" << c.number << ',' << c.numerator << ',' << c.denominator << ')';
}

class MulDivTest : public ::testing::TestWithParam<MulDivCase> {};

TEST_P(MulDivTest, MatchesWin32)
{
    const MulDivCase& c = GetParam();
    EXPECT_EQ(MulDiv(c.number, c.numerator, c.denominator), c.expected);
}

INSTANTIATE_TEST_SUITE_P(Table, MulDivTest, ::testing::Values(
    MulDivCase{ 10, 3, 2, 15 },
    // Halves round away from zero whatever the signs.
    MulDivCase{ 5, 1, 2, 3 },
    MulDivCase{ -5, 1, 2, -3 },
    MulDivCase{ 5, -1, 2, -3 },
    MulDivCase{ 5, 1, -2, -3 },
    MulDivCase{ -5, -1, 2, 3 },
    MulDivCase{ -5, 1, -2, 3 },
    MulDivCase{ -5, -1, -2, -3 },
    MulDivCase{ -1, 1, 2, -1 },
    // Below and above a half.
    MulDivCase{ 7, 1, 3, 2 },
    MulDivCase{ 8, 1, 3, 3 },
    MulDivCase{ -7, 1, 3, -2 },
    MulDivCase{ -8, 1, 3, -3 },
    MulDivCase{ 0, -1, 2, 0 },
    // Zero divisor.
    MulDivCase{ 1, 1, 0, -1 },
    MulDivCase{ 0, 0, 0, -1 },
    // The intermediate product needs 64 bits.
    MulDivCase{ INT_MAX, INT_MAX, INT_MAX, INT_MAX },
    MulDivCase{ 1000000, 1000000, 1000, 1000000000 },
    MulDivCase{ INT_MIN, INT_MIN, INT_MIN, INT_MIN },
    MulDivCase{ INT_MIN, 1, 1, INT_MIN },
    // Results beyond 32 bits.
    MulDivCase{ INT_MAX, 2, 1, -1 },
    MulDivCase{ INT_MIN, -1, 1, -1 },
    MulDivCase{ INT_MIN, 1, -1, -1 },
    MulDivCase{ INT_MIN, 2, 1, -1 }));

} // namespace

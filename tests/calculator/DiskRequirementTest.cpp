#include <gtest/gtest.h>

#include "DiskRequirement.h"

namespace {

struct DiskCase {
    int nDays;
    double dRate;
    const wchar_t* pszText;
};

class DiskRequirementTest : public ::testing::TestWithParam<DiskCase> {};

TEST_P(DiskRequirementTest, TextAndFlash)
{
    const CalcResult result = CalcDiskRequirement(GetParam().nDays, GetParam().dRate);
    EXPECT_EQ(result.strValue, GetParam().pszText);
    EXPECT_TRUE(result.bTwinkle);
    EXPECT_FALSE(result.bFixValueRect);
}

INSTANTIATE_TEST_SUITE_P(Answers, DiskRequirementTest, ::testing::Values(
    // 7 * 2048 * 3600 * 24 / 1024 / 8 / 1024 = 147.65625
    DiskCase{7, 2048.0, L"147.66GB"},
    // This rate gives exactly 10000 GB for one day.
    DiskCase{1, 970903.7037037036, L"10000.00GB"},
    DiskCase{1, 970904.0, L"9.77TB"},
    // 126562.5 GB
    DiskCase{30, 409600.0, L"123.60TB"},
    // 3650 days at 1e12 kbps: 37593841552734.375 GB, stops in EB.
    DiskCase{3650, 1e12, L"35011.99EB"},
    DiskCase{3650, 1e15, L"35011993.30EB"}));

TEST(DiskRequirementZeroTest, ZeroRateIsNotFlashed)
{
    const CalcResult result = CalcDiskRequirement(3650, 0.0);
    EXPECT_EQ(result.strValue, L"0.00GB");
    EXPECT_FALSE(result.bTwinkle);
}

} // namespace

#include "calculator/engine/CapacityUnits.h"

#include "calculator/engine/BoundedFormat.h"
#include "calculator/engine/DiskRequirement.h"
#include "calculator/engine/SaturatingTruncate.h"

#include <climits>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace {

// Both amounts step to the next unit only above 10000 of the current one.
struct UnitCase {
    std::wstring (*format)(double);
    double dAmount;
    const wchar_t* pszText;
};

class UnitTextTest : public ::testing::TestWithParam<UnitCase> {};

TEST_P(UnitTextTest, StepsAboveTenThousandOfTheCurrentUnit)
{
    EXPECT_EQ(GetParam().format(GetParam().dAmount), GetParam().pszText);
}

INSTANTIATE_TEST_SUITE_P(
    Units, UnitTextTest,
    ::testing::Values(UnitCase{ FormatCapacityGB, 147.65625, L"147.66GB" },
                      UnitCase{ FormatCapacityGB, 10000.0, L"10000.00GB" },
                      UnitCase{ FormatCapacityGB, 10000.001, L"9.77TB" },
                      // 10000 TB stays in TB, one step more goes to PB.
                      UnitCase{ FormatCapacityGB, 10000.0 * 1024, L"10000.00TB" },
                      UnitCase{ FormatCapacityGB, 10001.0 * 1024, L"9.77PB" },
                      UnitCase{ FormatCapacityGB, 10001.0 * 1024 * 1024, L"9.77EB" },
                      // EB is the last unit: no further step however large.
                      UnitCase{ FormatCapacityGB, 1e20, L"93132257461.55EB" },
                      UnitCase{ FormatTotalBitrate, 10000.0, L"10000.00 kbps" },
                      UnitCase{ FormatTotalBitrate, 10001.0, L"9.77 Mbps" },
                      // 10240000 kbps is exactly 10000 Mbps and so stays in Mbps.
                      UnitCase{ FormatTotalBitrate, 10240000.0, L"10000.00 Mbps" },
                      UnitCase{ FormatTotalBitrate, 10240001.0, L"9.77 Gbps" },
                      UnitCase{ FormatTotalBitrate, 20000000000.0, L"19073.49 Gbps" }));

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

INSTANTIATE_TEST_SUITE_P(Answers, DiskRequirementTest,
                         ::testing::Values(
                             // 7 * 2048 * 3600 * 24 / 1024 / 8 / 1024 = 147.65625
                             DiskCase{ 7, 2048.0, L"147.66GB" },
                             // 126562.5 GB
                             DiskCase{ 30, 409600.0, L"123.60TB" },
                             DiskCase{ 3650, 1e15, L"35011993.30EB" }));

TEST(DiskRequirementZeroTest, ZeroRateIsNotFlashed)
{
    const CalcResult result = CalcDiskRequirement(3650, 0.0);
    EXPECT_EQ(result.strValue, L"0.00GB");
    EXPECT_FALSE(result.bTwinkle);
}

TEST(TotalsTextTest, HugeRateKeepsAllItsDigits)
{
    const std::wstring strText = FormatTotalBitrate(1e300);
    // 1e300 / 1024 / 1024 has 294 digits before the point.
    EXPECT_EQ(strText.size(), 294u + 3u + 5u);
    EXPECT_EQ(strText.substr(strText.size() - 5), L" Gbps");
}

TEST(BoundedFormatTest, CutsWhatDoesNotFit)
{
    EXPECT_EQ(FormatBounded(5, L"%d", 123456), L"1234");
    EXPECT_EQ(FormatBounded(1, L"%d", 7), L"");
    EXPECT_EQ(FormatBounded(8, nullptr), L"");
}

struct TruncCase {
    double dValue;
    long long nExpected;
};

class TruncateTest : public ::testing::TestWithParam<TruncCase> {};

TEST_P(TruncateTest, TowardsZeroAndSaturated)
{
    EXPECT_EQ(TruncateToInt64(GetParam().dValue), GetParam().nExpected);
}

INSTANTIATE_TEST_SUITE_P(
    Values, TruncateTest,
    ::testing::Values(TruncCase{ 40.69, 40 }, TruncCase{ -2.5, -2 }, TruncCase{ 1e30, LLONG_MAX },
                      TruncCase{ std::numeric_limits<double>::infinity(), LLONG_MAX },
                      TruncCase{ std::nan(""), 0 }));

} // namespace

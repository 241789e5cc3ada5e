#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "WeeklyPlan.h"

namespace {

struct WalkCase {
    const char* pszName;
    double dRemain;
    double adHours[kPlanDayCount];
    long long nWeeks;
    long long nDays;
    double dHoursLeft;
};

class WeeklyWalkTest : public ::testing::TestWithParam<WalkCase> {};

TEST_P(WeeklyWalkTest, WalksFromSunday)
{
    const WalkCase& c = GetParam();
    const WeeklyPlanAnswer answer = WalkWeeklyPlan(c.dRemain, c.adHours);
    EXPECT_EQ(answer.nWeeks, c.nWeeks);
    EXPECT_EQ(answer.nWholeWeekDays, c.nDays);
    EXPECT_NEAR(answer.dHoursLeft, c.dHoursLeft, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(Plans, WeeklyWalkTest, ::testing::Values(
    WalkCase{"NothingLeft", 0.0, {24, 24, 24, 24, 24, 24, 24}, 0, 0, 0.0},
    WalkCase{"AllZeroDays", 1000.0, {0, 0, 0, 0, 0, 0, 0}, 0, 0, 0.0},
    WalkCase{"ExactWeek", 168.0, {24, 24, 24, 24, 24, 24, 24}, 1, 0, 0.0},
    // A day that uses up the last hour exactly still counts as a whole day;
    // the next day with hours ends the walk with remain + hours, here 0.
    WalkCase{"ExactSunday", 24.0, {24, 24, 24, 24, 24, 24, 24}, 0, 1, 0.0},
    // A zero day after the exact one is walked over as well.
    WalkCase{"ExactThenZeroDay", 24.0 + 144.0 * 2, {24, 0, 24, 24, 24, 24, 24}, 2, 2, 0.0},
    WalkCase{"WorkingWeek", 488.28125, {8, 8, 8, 8, 8, 0, 0}, 12, 1, 0.28125},
    WalkCase{"ZeroSundayWalkedOver", 35.0, {0, 10, 0, 0, 0, 0, 0}, 3, 1, 5.0},
    WalkCase{"NotANumber", std::nan(""), {8, 8, 8, 8, 8, 0, 0}, 0, 0, 0.0},
    // So large that weeks * weekHours rounds down: the walk passes the week
    // many times, counting every day walked over and weeks completed on top.
    WalkCase{"RoundingLeavesWeeks", 3.667413639808196e+18, {8, 8, 8, 8, 8, 0, 0},
             91685340995204908LL, 88, 0.0}),
    [](const ::testing::TestParamInfo<WalkCase>& info) { return std::string(info.param.pszName); });

TEST(WeeklyWalkGuardTest, EndlessHoursStillAnswer)
{
    const double adHours[kPlanDayCount] = {8, 8, 8, 8, 8, 0, 0};
    const WeeklyPlanAnswer inf = WalkWeeklyPlan(std::numeric_limits<double>::infinity(), adHours);
    EXPECT_GT(inf.nWeeks, 0);
    const WeeklyPlanAnswer huge = WalkWeeklyPlan(1e30, adHours);
    EXPECT_GT(huge.nWeeks, 0);
    // A plan that gives hours back can never use them up.
    const double adOdd[kPlanDayCount] = {-1, 0, 0, 0, 0, 0, 0};
    EXPECT_GT(WalkWeeklyPlan(0.5, adOdd).nWeeks, 0);
}

struct DayTextCase {
    const wchar_t* pszText;
    double dHours;
};

class DayHoursTest : public ::testing::TestWithParam<DayTextCase> {};

TEST_P(DayHoursTest, ReadsLikeWtol)
{
    EXPECT_EQ(DayHoursFromText(GetParam().pszText), GetParam().dHours);
}

INSTANTIATE_TEST_SUITE_P(Texts, DayHoursTest, ::testing::Values(
    DayTextCase{L"24", 24.0},
    DayTextCase{nullptr, 0.0},
    DayTextCase{L"12abc", 12.0},
    // Read with a count of 6: five characters.
    DayTextCase{L"123456", 12345.0}));

} // namespace

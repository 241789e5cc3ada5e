#include "calculator/engine/RecordingDays.h"

#include "calculator/engine/CapacityTable.h"
#include "calculator/engine/WeeklyPlan.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace {

const double kFullDays[kPlanDayCount] = { 24, 24, 24, 24, 24, 24, 24 };

CalcResult AllDay(double dRate, double dRawGB, unsigned nPercentage)
{
    return CalcRecordingDays(dRate, dRawGB, nPercentage, kRecordPlanAllDay, kFullDays, L"Day",
                             L"Hour", L"Week");
}

CalcResult Weekly(double dRate, double dRawGB, unsigned nPercentage,
                  const double (&adHours)[kPlanDayCount])
{
    return CalcRecordingDays(dRate, dRawGB, nPercentage, kRecordPlanWeekly, adHours, L"Day",
                             L"Hour", L"Week");
}

struct ItemCase {
    int nIndex;
    double dReal;
    const wchar_t* pszAllDay; // 2048 kbps, 90 %
    const wchar_t* pszWeekly; // same, plan of 24 hours each day
};

class CapacityItemTest : public ::testing::TestWithParam<ItemCase> {};

TEST_P(CapacityItemTest, RealSizeAndAnswers)
{
    const ItemCase& item = GetParam();
    EXPECT_EQ(RawCapacityGB(false, L"555", true, item.nIndex), item.dReal);

    const double dRaw = CapacityRealGB(item.nIndex);
    EXPECT_EQ(AllDay(2048.0, dRaw, 90).strValue, item.pszAllDay);
    EXPECT_EQ(Weekly(2048.0, dRaw, 90, kFullDays).strValue, item.pszWeekly);
}

INSTANTIATE_TEST_SUITE_P(
    Items, CapacityItemTest,
    ::testing::Values(ItemCase{ 0, 29.80232, L"1  Day 6.52 Hour", L"0 Week 1 Day 6.52 Hour" },
                      ItemCase{ 3, 953.67424, L"40  Day 16.56 Hour", L"5 Week 5 Day 16.56 Hour" },
                      ItemCase{ 12, 15258.78784, L"651  Day 1.00 Hour",
                                L"93 Week 0 Day 1.00 Hour" }));

TEST(CapacityTableTest, IndexWithoutRowIsZero)
{
    EXPECT_EQ(CapacityRealGB(-1), 0.0);
    EXPECT_EQ(CapacityRealGB(kCapacityItemCount), 0.0);
}

struct PercentCase {
    unsigned nPercentage;
    const wchar_t* pszText;
};

class PercentageTest : public ::testing::TestWithParam<PercentCase> {};

TEST_P(PercentageTest, ScalesTheUsableCapacity)
{
    EXPECT_EQ(AllDay(2048.0, g_aCapacityReal[3], GetParam().nPercentage).strValue,
              GetParam().pszText);
}

INSTANTIATE_TEST_SUITE_P(Settings, PercentageTest,
                         ::testing::Values(PercentCase{ 0, L"0  Day 0.00 Hour" },
                                           PercentCase{ 50, L"22  Day 14.53 Hour" },
                                           PercentCase{ 120, L"54  Day 6.08 Hour" }));

struct CustomCase {
    const wchar_t* pszText;
    bool bInTB;
    double dRawGB;
    const wchar_t* pszAnswer; // 2048 kbps, 90 %
};

class CustomCapacityTest : public ::testing::TestWithParam<CustomCase> {};

TEST_P(CustomCapacityTest, TypedCapacity)
{
    const CustomCase& c = GetParam();
    const double dRaw = RawCapacityGB(true, c.pszText, c.bInTB, 3);
    EXPECT_DOUBLE_EQ(dRaw, c.dRawGB);
    EXPECT_EQ(AllDay(2048.0, dRaw, 90).strValue, c.pszAnswer);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, CustomCapacityTest,
    ::testing::Values(CustomCase{ L"0", false, 0.0, L"0  Day 0.00 Hour" },
                      CustomCase{ nullptr, true, 0.0, L"0  Day 0.00 Hour" },
                      CustomCase{ L"1000", false, 931.3225, L"39  Day 17.67 Hour" },
                      CustomCase{ L"2", true, 1907.34848, L"81  Day 9.12 Hour" },
                      CustomCase{ L"12abc", false, 12 * 0.9313225, L"0  Day 11.44 Hour" },
                      // Only the eight characters that a count of 9 reads.
                      CustomCase{ L"123456789", false, 12345678 * 0.9313225,
                                  L"490573  Day 3.08 Hour" }));

TEST(RecordingDaysTest, ZeroRateInEveryPlan)
{
    const double adZero[kPlanDayCount] = {};
    for (int nPlan : { kRecordPlanAllDay, kRecordPlanWeekly }) {
        const CalcResult result =
            CalcRecordingDays(0.0, g_aCapacityReal[3], 90, nPlan, adZero, L"Day", L"Hour", L"Week");
        EXPECT_EQ(result.strValue, L"0 Day 0 Hour");
        EXPECT_TRUE(result.bTwinkle);
    }
}

TEST(RecordingDaysTest, TinyRateDoesNotHang)
{
    const double adHours[kPlanDayCount] = { 8, 8, 8, 8, 8, 0, 0 };
    const CalcResult result = Weekly(1e-320, g_aCapacityReal[12], 90, adHours);
    EXPECT_FALSE(result.strValue.empty());
    EXPECT_FALSE(AllDay(1e-320, g_aCapacityReal[12], 90).strValue.empty());
}

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

INSTANTIATE_TEST_SUITE_P(
    Plans, WeeklyWalkTest,
    ::testing::Values(
        WalkCase{ "NothingLeft", 0.0, { 24, 24, 24, 24, 24, 24, 24 }, 0, 0, 0.0 },
        WalkCase{ "AllZeroDays", 1000.0, { 0, 0, 0, 0, 0, 0, 0 }, 0, 0, 0.0 },
        WalkCase{ "ExactWeek", 168.0, { 24, 24, 24, 24, 24, 24, 24 }, 1, 0, 0.0 },
        // A day that uses up the last hour exactly still counts as a whole day;
        // the next day with hours ends the walk with remain + hours, here 0.
        WalkCase{ "ExactSunday", 24.0, { 24, 24, 24, 24, 24, 24, 24 }, 0, 1, 0.0 },
        // A zero day after the exact one is walked over as well.
        WalkCase{ "ExactThenZeroDay", 24.0 + 144.0 * 2, { 24, 0, 24, 24, 24, 24, 24 }, 2, 2, 0.0 },
        WalkCase{ "WorkingWeek", 488.28125, { 8, 8, 8, 8, 8, 0, 0 }, 12, 1, 0.28125 },
        WalkCase{ "ZeroSundayWalkedOver", 35.0, { 0, 10, 0, 0, 0, 0, 0 }, 3, 1, 5.0 },
        WalkCase{ "NotANumber", std::nan(""), { 8, 8, 8, 8, 8, 0, 0 }, 0, 0, 0.0 },
        // So large that weeks * weekHours rounds down: the walk passes the week
        // many times, counting every day walked over and weeks completed on top.
        WalkCase{ "RoundingLeavesWeeks",
                  3.667413639808196e+18,
                  { 8, 8, 8, 8, 8, 0, 0 },
                  91685340995204908LL,
                  88,
                  0.0 }),
    [](const ::testing::TestParamInfo<WalkCase>& info) { return std::string(info.param.pszName); });

TEST(WeeklyWalkGuardTest, EndlessHoursStillAnswer)
{
    const double adHours[kPlanDayCount] = { 8, 8, 8, 8, 8, 0, 0 };
    const WeeklyPlanAnswer inf = WalkWeeklyPlan(std::numeric_limits<double>::infinity(), adHours);
    EXPECT_GT(inf.nWeeks, 0);
    const WeeklyPlanAnswer huge = WalkWeeklyPlan(1e30, adHours);
    EXPECT_GT(huge.nWeeks, 0);
    // A plan that gives hours back can never use them up.
    const double adOdd[kPlanDayCount] = { -1, 0, 0, 0, 0, 0, 0 };
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

INSTANTIATE_TEST_SUITE_P(Texts, DayHoursTest,
                         ::testing::Values(DayTextCase{ L"24", 24.0 }, DayTextCase{ nullptr, 0.0 },
                                           DayTextCase{ L"12abc", 12.0 },
                                           // Read with a count of 6: five characters.
                                           DayTextCase{ L"123456", 12345.0 }));

} // namespace

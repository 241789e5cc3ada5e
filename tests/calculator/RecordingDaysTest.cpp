#include <gtest/gtest.h>

#include <string>

#include "CapacityTable.h"
#include "RecordingDays.h"

namespace {

const double kFullDays[kPlanDayCount] = {24, 24, 24, 24, 24, 24, 24};

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
    const wchar_t* pszAllDay;  // 2048 kbps, 90 %
    const wchar_t* pszWeekly;  // same, plan of 24 hours each day
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

INSTANTIATE_TEST_SUITE_P(Items, CapacityItemTest, ::testing::Values(
    ItemCase{0, 29.80232, L"1  Day 6.52 Hour", L"0 Week 1 Day 6.52 Hour"},
    ItemCase{3, 953.67424, L"40  Day 16.56 Hour", L"5 Week 5 Day 16.56 Hour"},
    ItemCase{9, 9536.7424, L"406  Day 21.62 Hour", L"58 Week 0 Day 21.62 Hour"},
    ItemCase{10, 11444.09088, L"488  Day 6.75 Hour", L"69 Week 5 Day 6.75 Hour"},
    ItemCase{12, 15258.78784, L"651  Day 1.00 Hour", L"93 Week 0 Day 1.00 Hour"}));

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

INSTANTIATE_TEST_SUITE_P(Settings, PercentageTest, ::testing::Values(
    PercentCase{0, L"0  Day 0.00 Hour"},
    PercentCase{50, L"22  Day 14.53 Hour"},
    // usable 858.306816, per day 21.09375: 40.6901 days
    PercentCase{90, L"40  Day 16.56 Hour"},
    PercentCase{120, L"54  Day 6.08 Hour"}));

struct CustomCase {
    const wchar_t* pszText;
    bool bInTB;
    double dRawGB;
    const wchar_t* pszAnswer;  // 2048 kbps, 90 %
};

class CustomCapacityTest : public ::testing::TestWithParam<CustomCase> {};

TEST_P(CustomCapacityTest, TypedCapacity)
{
    const CustomCase& c = GetParam();
    const double dRaw = RawCapacityGB(true, c.pszText, c.bInTB, 3);
    EXPECT_DOUBLE_EQ(dRaw, c.dRawGB);
    EXPECT_EQ(AllDay(2048.0, dRaw, 90).strValue, c.pszAnswer);
}

INSTANTIATE_TEST_SUITE_P(Texts, CustomCapacityTest, ::testing::Values(
    CustomCase{L"0", false, 0.0, L"0  Day 0.00 Hour"},
    CustomCase{nullptr, true, 0.0, L"0  Day 0.00 Hour"},
    CustomCase{L"1000", false, 931.3225, L"39  Day 17.67 Hour"},
    CustomCase{L"2", true, 1907.34848, L"81  Day 9.12 Hour"},
    CustomCase{L"12abc", false, 12 * 0.9313225, L"0  Day 11.44 Hour"},
    // Only the eight characters that a count of 9 reads.
    CustomCase{L"123456789", false, 12345678 * 0.9313225, L"490573  Day 3.08 Hour"}));

TEST(RecordingDaysTest, ZeroRateInEveryPlan)
{
    const double adZero[kPlanDayCount] = {};
    for (int nPlan : {kRecordPlanAllDay, kRecordPlanWeekly}) {
        const CalcResult result = CalcRecordingDays(0.0, g_aCapacityReal[3], 90, nPlan, adZero,
                                                    L"Day", L"Hour", L"Week");
        EXPECT_EQ(result.strValue, L"0 Day 0 Hour");
        EXPECT_TRUE(result.bTwinkle);
    }
}

TEST(RecordingDaysTest, WeeklyExampleOfFiveWorkingDays)
{
    // remain 488.28 hours over 40-hour weeks: 12 weeks, Sunday whole, 0.28 left.
    const double adHours[kPlanDayCount] = {8, 8, 8, 8, 8, 0, 0};
    const CalcResult result = Weekly(4096.0, g_aCapacityReal[3], 90, adHours);
    EXPECT_EQ(result.strValue, L"12 Week 1 Day 0.28 Hour");
    EXPECT_TRUE(result.bTwinkle);
}

TEST(RecordingDaysTest, WeeklyAllZeroDays)
{
    const double adZero[kPlanDayCount] = {};
    EXPECT_EQ(Weekly(2048.0, g_aCapacityReal[12], 90, adZero).strValue, L"0 Week 0 Day 0.00 Hour");
}

TEST(RecordingDaysTest, TinyRateDoesNotHang)
{
    const double adHours[kPlanDayCount] = {8, 8, 8, 8, 8, 0, 0};
    const CalcResult result = Weekly(1e-320, g_aCapacityReal[12], 90, adHours);
    EXPECT_FALSE(result.strValue.empty());
    EXPECT_FALSE(AllDay(1e-320, g_aCapacityReal[12], 90).strValue.empty());
}

} // namespace

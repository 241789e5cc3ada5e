#pragma once
// Recording days: how long a disk or card records the total bit rate, round
// the clock or under a weekly plan.

#include "calculator/engine/CalcResult.h"
#include "calculator/engine/WeeklyPlan.h"

#include <string>

// Record plan combo entries.
const int kRecordPlanAllDay = 0; // "24 hours per day"
const int kRecordPlanWeekly = 1; // "Customize(hours)"

// percentage * raw / 100, multiplying first.
double UsableCapacityGB(unsigned nPercentage, double dRawGB);
// Binary GB recorded per day and per hour at dTotalBitrate kbps.
double RecordingPerDayGB(double dTotalBitrate);
double RecordingPerHourGB(double dTotalBitrate);

struct RecordingDaysSplit {
    long long nWholeDays;
    double dHours;
};

// days = usable / perDay, cut into whole days (towards zero) and hours.
RecordingDaysSplit SplitRecordingDays(double dUsableGB, double dPerDayGB);

// "0 %ls 0 %ls" with the day and hour words.
std::wstring FormatZeroRecordingDays(const wchar_t* pszDay, const wchar_t* pszHour);
// "%I64d  %ls %0.2f %ls", two blanks after the number.
std::wstring FormatRecordingDays(const RecordingDaysSplit& split, const wchar_t* pszDay,
                                 const wchar_t* pszHour);

// The whole answer of the mode. dRawCapacityGB comes from RawCapacityGB,
// nPercentage is the "RecordblePersentage" setting, nRecordPlan the plan combo
// selection (only 1 means the weekly plan) and adDayHours the plan's hours,
// Sunday first (DayHoursFromText). Always flashed.
CalcResult CalcRecordingDays(double dTotalBitrate, double dRawCapacityGB, unsigned nPercentage,
                             int nRecordPlan, const double (&adDayHours)[kPlanDayCount],
                             const wchar_t* pszDay, const wchar_t* pszHour, const wchar_t* pszWeek);

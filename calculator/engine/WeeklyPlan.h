#pragma once
// Recording time under a weekly plan: how many weeks, days and hours the
// hours that a medium holds last, laying the plan out from Sunday onward.

#include <string>

const int kPlanDayCount = 7; // index 0 is Sunday

struct WeeklyPlanAnswer {
    long long nWeeks;
    long long nWholeWeekDays;
    double dHoursLeft;
};

// Hours of one plan day: _wtol of the day edit's text as read (count 6, so
// only its first 5 characters count).
double DayHoursFromText(const wchar_t* pszText);

// Walks dRemainHours through the plan adDayHours (Sunday first). A day that
// uses up the last hour exactly counts as a whole day, and a day without
// hours counts as a day walked over; an all-zero plan answers 0, 0, 0.0.
WeeklyPlanAnswer WalkWeeklyPlan(double dRemainHours, const double (&adDayHours)[kPlanDayCount]);

// "%lld %ls %lld %ls %0.2f %ls": weeks, week word, days, day word, hours,
// hour word.
std::wstring FormatWeeklyPlan(const WeeklyPlanAnswer& answer, const wchar_t* pszWeek,
                              const wchar_t* pszDay, const wchar_t* pszHour);

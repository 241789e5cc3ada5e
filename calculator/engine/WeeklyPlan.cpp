#include "calculator/engine/WeeklyPlan.h"

#include "calculator/engine/BoundedFormat.h"
#include "calculator/engine/SaturatingTruncate.h"
#include "platform/WinWideString.h"

#include <climits>

namespace {

// The day edit is read with a count of 6: five characters and the terminator.
const std::size_t kDayTextChars = 5;

// Normally the walk ends within a pass or two; this bound only stops a plan
// that cannot use up the hours (absurd magnitudes) from spinning for ever.
const long long kMaxWalkPasses = 1 << 20;

const std::size_t kPlanTextCount = 512;

} // namespace

double DayHoursFromText(const wchar_t* pszText)
{
    std::wstring strText = pszText ? pszText : L"";
    if (strText.size() > kDayTextChars)
        strText.resize(kDayTextChars);
    return static_cast<double>(_wtol(strText.c_str()));
}

WeeklyPlanAnswer WalkWeeklyPlan(double dRemainHours, const double (&adDayHours)[kPlanDayCount])
{
    WeeklyPlanAnswer answer = { 0, 0, 0.0 };

    bool bAllZero = true;
    for (double dHours : adDayHours) {
        if (dHours != 0.0)
            bAllZero = false;
    }
    if (bAllZero)
        return answer;

    double dWeekHours = adDayHours[0];
    for (int i = 1; i < kPlanDayCount; ++i)
        dWeekHours = dWeekHours + adDayHours[i];

    double dRemain = dRemainHours;
    if (dRemain > 0)
        answer.nWeeks = TruncateToInt64(dRemain / dWeekHours);
    dRemain = dRemain - answer.nWeeks * dWeekHours;

    long long nPasses = 0;
    while (dRemain > 0 && nPasses++ < kMaxWalkPasses) {
        bool bComplete = true;
        for (int i = 0; i < kPlanDayCount; ++i) {
            dRemain = dRemain - adDayHours[i];
            if (dRemain < 0) {
                answer.dHoursLeft = dRemain + adDayHours[i];
                bComplete = false;
                break;
            }
            ++answer.nWholeWeekDays;
        }
        if (bComplete && answer.nWeeks < LLONG_MAX)
            ++answer.nWeeks;
    }
    return answer;
}

std::wstring FormatWeeklyPlan(const WeeklyPlanAnswer& answer, const wchar_t* pszWeek,
                              const wchar_t* pszDay, const wchar_t* pszHour)
{
    return FormatBounded(kPlanTextCount, L"%lld %ls %lld %ls %0.2f %ls", answer.nWeeks,
                         SafeWord(pszWeek), answer.nWholeWeekDays, SafeWord(pszDay),
                         answer.dHoursLeft, SafeWord(pszHour));
}

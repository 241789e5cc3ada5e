#include "calculator/engine/RecordingDays.h"

#include "calculator/engine/BoundedFormat.h"
#include "calculator/engine/SaturatingTruncate.h"
#include "platform/WinFormat.h"

namespace {

const std::size_t kDaysTextCount = 512;

} // namespace

double UsableCapacityGB(unsigned nPercentage, double dRawGB)
{
    return nPercentage * dRawGB / 100;
}

double RecordingPerDayGB(double dTotalBitrate)
{
    return dTotalBitrate * 3600 * 24 / 1024 / 8 / 1024;
}

double RecordingPerHourGB(double dTotalBitrate)
{
    return dTotalBitrate * 3600 / 1024 / 8 / 1024;
}

RecordingDaysSplit SplitRecordingDays(double dUsableGB, double dPerDayGB)
{
    const double dDays = dUsableGB / dPerDayGB;
    RecordingDaysSplit split;
    split.nWholeDays = TruncateToInt64(dDays);
    split.dHours = (dDays - split.nWholeDays) * 24;
    return split;
}

std::wstring FormatZeroRecordingDays(const wchar_t* pszDay, const wchar_t* pszHour)
{
    return FormatBounded(kDaysTextCount, L"0 %ls 0 %ls", SafeWord(pszDay), SafeWord(pszHour));
}

std::wstring FormatRecordingDays(const RecordingDaysSplit& split, const wchar_t* pszDay,
                                 const wchar_t* pszHour)
{
    return FormatBounded(kDaysTextCount, SF_WFMT_I64 L"  %ls %0.2f %ls", split.nWholeDays,
                         SafeWord(pszDay), split.dHours, SafeWord(pszHour));
}

CalcResult CalcRecordingDays(double dTotalBitrate, double dRawCapacityGB, unsigned nPercentage,
                             int nRecordPlan, const double (&adDayHours)[kPlanDayCount],
                             const wchar_t* pszDay, const wchar_t* pszHour, const wchar_t* pszWeek)
{
    CalcResult result;
    if (dTotalBitrate == 0.0) {
        result.strValue = FormatZeroRecordingDays(pszDay, pszHour);
        return result;
    }

    const double dUsable = UsableCapacityGB(nPercentage, dRawCapacityGB);
    const RecordingDaysSplit split = SplitRecordingDays(dUsable, RecordingPerDayGB(dTotalBitrate));
    if (nRecordPlan != kRecordPlanWeekly) {
        result.strValue = FormatRecordingDays(split, pszDay, pszHour);
        return result;
    }

    const double dRemain = dUsable / RecordingPerHourGB(dTotalBitrate);
    result.strValue =
        FormatWeeklyPlan(WalkWeeklyPlan(dRemain, adDayHours), pszWeek, pszDay, pszHour);
    return result;
}

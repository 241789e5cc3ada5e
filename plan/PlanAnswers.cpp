#include "plan/PlanAnswers.h"

#include "calculator/engine/CapacityTable.h"
#include "calculator/engine/CapacityUnits.h"
#include "calculator/engine/DeviceCount.h"
#include "calculator/engine/DiskRequirement.h"
#include "calculator/engine/RaidCapacity.h"
#include "calculator/engine/RaidTables.h"
#include "calculator/engine/RecordingDays.h"
#include "calculator/engine/WeeklyPlan.h"
#include "language/LangString.h"
#include "plan/SiteValues.h"

#include <cstdio>

namespace {

// Enough digits to restate a double as computed, without trailing noise.
std::string Num(double dValue)
{
    char szText[64] = {};
    std::snprintf(szText, sizeof(szText), "%.15g", dValue);
    return szText;
}

std::string Fixed2(double dValue)
{
    char szText[64] = {};
    std::snprintf(szText, sizeof(szText), "%.2f", dValue);
    return szText;
}

std::string Int(long long nValue)
{
    return std::to_string(nValue);
}

std::string NarrowAscii(const std::wstring& strText)
{
    return SiteValues::Narrow(strText.c_str());
}

std::string PerDayFormula(double dKbps)
{
    return Num(dKbps) + " kbps * 3600 * 24 / 1024 / 8 / 1024";
}

PlanAnswer Begin(AnswerKind kind, const wchar_t* pszCaptionKey)
{
    PlanAnswer answer;
    answer.kind = kind;
    answer.strCaption = LangText(pszCaptionKey);
    return answer;
}

} // namespace

const char* CPlanAnswers::KindName(AnswerKind kind)
{
    switch (kind) {
    case AnswerKind::DiskRequirement:
        return "disk_requirement";
    case AnswerKind::RecordingDays:
        return "recording_days";
    case AnswerKind::RaidCapacity:
        return "raid_capacity";
    case AnswerKind::DeviceCount:
        return "device_count";
    }
    return "";
}

CPlanAnswers::CPlanAnswers(const PlanOptions& options, const SiteTotals& totals)
{
    // The window's mode order.
    if (options.bAskDisk)
        m_answers.push_back(DiskRequirement(options, totals));
    if (options.bAskRecording)
        m_answers.push_back(RecordingDays(options, totals));
    if (options.bAskRaid)
        m_answers.push_back(RaidCapacity(options));
    if (options.bAskDevices)
        m_answers.push_back(DeviceCount(options, totals));
}

PlanAnswer CPlanAnswers::DiskRequirement(const PlanOptions& o, const SiteTotals& t) const
{
    PlanAnswer answer = Begin(AnswerKind::DiskRequirement, L"Request Capacity:");
    answer.strValue = CalcDiskRequirement(o.nDays, t.dKbps).strValue;
    const double dGB = t.dKbps == 0.0 ? 0.0 : DiskRequirementGB(o.nDays, t.dKbps);
    const SteppedValue stepped = StepCapacityUnit(dGB);
    answer.fields = { { "days", Int(o.nDays) },
                      { "gb", Num(dGB) },
                      { "value", Fixed2(stepped.dValue) },
                      { "unit", NarrowAscii(CapacityUnitText(stepped.nUnit)) } };
    if (t.dKbps == 0.0) {
        answer.explanation = { "no bit rate: nothing to record, 0.00GB" };
        return answer;
    }
    answer.explanation = { "GB needed = " + Int(o.nDays) + " days * " + PerDayFormula(t.dKbps) +
                               " = " + Num(dGB) +
                               " GB (binary: 1 GB = 1024 MB, 1 MB = 8 Mbit, 1 Mbit = 1024 kbit)",
                           "shown in GB, or stepped by 1024 to TB, PB, EB while above 10000: " +
                               NarrowAscii(answer.strValue) };
    return answer;
}

PlanAnswer CPlanAnswers::RecordingDays(const PlanOptions& o, const SiteTotals& t) const
{
    PlanAnswer answer = Begin(AnswerKind::RecordingDays, L"Recording Days:");
    const std::wstring strCustom(o.strCustomCapacity.begin(), o.strCustomCapacity.end());
    const double dRaw =
        RawCapacityGB(o.bCustomCapacity, strCustom.c_str(), o.bCustomInTB, o.nCapacityIndex);
    double adHours[kPlanDayCount] = {};
    std::string strPlan = o.bWeeklyPlan ? std::string() : "24h";
    for (int i = 0; i < kPlanDayCount; ++i) {
        const std::wstring strDay = std::to_wstring(o.anDayHours[i]);
        adHours[i] = DayHoursFromText(strDay.c_str());
        if (o.bWeeklyPlan)
            strPlan += (i ? "," : "") + Int(o.anDayHours[i]);
    }
    const std::wstring strDay = LangText(L"Day");
    const std::wstring strHour = LangText(L"Hour");
    const std::wstring strWeek = LangText(L"Week");
    answer.strValue = CalcRecordingDays(t.dKbps, dRaw, o.nPercent,
                                        o.bWeeklyPlan ? kRecordPlanWeekly : kRecordPlanAllDay,
                                        adHours, strDay.c_str(), strHour.c_str(), strWeek.c_str())
                          .strValue;

    const std::string strMedium = o.bCustomCapacity
                                      ? o.strCustomCapacity + (o.bCustomInTB ? "TB" : "GB")
                                      : SiteValues::CapacityItem(o.nCapacityIndex);
    const double dUsable = UsableCapacityGB(o.nPercent, dRaw);
    answer.fields = { { "capacity", strMedium },
                      { "raw_gb", Num(dRaw) },
                      { "percent", Int(o.nPercent) },
                      { "usable_gb", Num(dUsable) },
                      { "plan", strPlan } };
    std::string strMediumWhy =
        o.bCustomCapacity
            ? "typed " + strMedium + " = " + o.strCustomCapacity +
                  (o.bCustomInTB ? " * 1024" : "") + " * 0.9313225 (decimal to binary GB)"
            : strMedium + " from the capacity table (nominal GB * 0.9313225)";
    answer.explanation = { "medium: " + strMediumWhy + " = " + Num(dRaw) + " GB",
                           "usable = " + Int(o.nPercent) + " (recordable percentage) * " +
                               Num(dRaw) + " / 100 = " + Num(dUsable) + " GB" };

    long long nWeeks = 0;
    long long nDays = 0;
    double dHours = 0.0;
    if (t.dKbps == 0.0) {
        answer.explanation.push_back("no bit rate: the medium is never filled, 0 days");
    } else if (!o.bWeeklyPlan) {
        const double dPerDay = RecordingPerDayGB(t.dKbps);
        const RecordingDaysSplit split = SplitRecordingDays(dUsable, dPerDay);
        nDays = split.nWholeDays;
        dHours = split.dHours;
        answer.explanation.push_back("per day = " + PerDayFormula(t.dKbps) + " = " + Num(dPerDay) +
                                     " GB");
        answer.explanation.push_back("days = " + Num(dUsable) + " / " + Num(dPerDay) + " = " +
                                     Num(dUsable / dPerDay) + ": " + Int(nDays) +
                                     " whole days, the rest * 24 = " + Fixed2(dHours) + " hours");
    } else {
        const double dPerHour = RecordingPerHourGB(t.dKbps);
        const double dRemain = dUsable / dPerHour;
        const WeeklyPlanAnswer walk = WalkWeeklyPlan(dRemain, adHours);
        nWeeks = walk.nWeeks;
        nDays = walk.nWholeWeekDays;
        dHours = walk.dHoursLeft;
        answer.explanation.push_back("per hour = " + Num(t.dKbps) +
                                     " kbps * 3600 / 1024 / 8 / 1024 = " + Num(dPerHour) + " GB");
        answer.explanation.push_back("hours held = " + Num(dUsable) + " / " + Num(dPerHour) +
                                     " = " + Num(dRemain));
        answer.explanation.push_back("plan " + strPlan +
                                     " (Sunday first): whole weeks first, then the days from "
                                     "Sunday until the hours run out: " +
                                     Int(nWeeks) + " weeks, " + Int(nDays) + " days, " +
                                     Fixed2(dHours) + " hours");
    }
    if (o.bWeeklyPlan)
        answer.fields.push_back({ "weeks", Int(nWeeks) });
    answer.fields.push_back({ "days", Int(nDays) });
    answer.fields.push_back({ "hours", Fixed2(dHours) });
    return answer;
}

PlanAnswer CPlanAnswers::RaidCapacity(const PlanOptions& o) const
{
    PlanAnswer answer = Begin(AnswerKind::RaidCapacity, L"Available Capacity:");
    const CRaidTables tables;
    answer.strValue =
        CalcRaidCapacity(tables, o.nRaidDevice, o.nRaidLevel, o.nRaidBaySel, o.nRaidDiskSel)
            .strValue;
    const int nDisks = tables.LookupDataDisks(o.nRaidDevice, o.nRaidLevel, o.nRaidBaySel);
    const double dTB = RaidAvailableTB(o.nRaidDiskSel, nDisks);
    answer.fields = { { "device", SiteValues::kRaidDevices[o.nRaidDevice] },
                      { "level", SiteValues::kRaidLevels[o.nRaidLevel] },
                      { "bays", Int(o.nRaidBays) },
                      { "disk_tb", Int(o.nRaidDiskSel + 1) },
                      { "data_disks", Int(nDisks) },
                      { "tb", Fixed2(dTB) } };
    answer.explanation = { std::string(SiteValues::kRaidDevices[o.nRaidDevice]) + " " +
                               SiteValues::kRaidLevels[o.nRaidLevel] + " with " + Int(o.nRaidBays) +
                               " bays: " + Int(nDisks) +
                               " data disks (device table, hot spares and groups settled there)",
                           "available = " + Int(o.nRaidDiskSel + 1) + " TB * " + Int(nDisks) +
                               " * 0.9 usable = " + Num(dTB) + " TB" };
    return answer;
}

PlanAnswer CPlanAnswers::DeviceCount(const PlanOptions& o, const SiteTotals& t) const
{
    PlanAnswer answer = Begin(AnswerKind::DeviceCount, L"Request Device:");
    const CRaidTables tables;
    const std::wstring strDevice = LangText(L"Device");
    const std::wstring strDevices = LangText(L"Devices");
    answer.strValue =
        CalcDeviceCount(tables, t.dKbps, o.nRaidDays, o.nRaidDevice, o.nRaidLevel, o.nRaidBaySel,
                        o.nRaidDiskSel, strDevice.c_str(), strDevices.c_str())
            .strValue;
    const int nDisks = tables.LookupDataDisks(o.nRaidDevice, o.nRaidLevel, o.nRaidBaySel);
    const double dCapacity = RaidDeviceCapacityGB(o.nRaidDiskSel, nDisks);
    const double dNeed = DiskRequirementGB(o.nRaidDays, t.dKbps);
    const long long nDevices =
        (t.dKbps == 0.0 || dCapacity == 0.0) ? 0 : RequestDeviceCount(dNeed, dCapacity);
    answer.fields = { { "days", Int(o.nRaidDays) },
                      { "device", SiteValues::kRaidDevices[o.nRaidDevice] },
                      { "level", SiteValues::kRaidLevels[o.nRaidLevel] },
                      { "bays", Int(o.nRaidBays) },
                      { "disk_tb", Int(o.nRaidDiskSel + 1) },
                      { "need_gb", Num(dNeed) },
                      { "device_gb", Num(dCapacity) },
                      { "devices", Int(nDevices) } };
    answer.explanation = { "need = " + Int(o.nRaidDays) + " days * " + PerDayFormula(t.dKbps) +
                               " = " + Num(dNeed) + " GB",
                           "one device = " + Int(o.nRaidDiskSel + 1) + " TB * " + Int(nDisks) +
                               " data disks (" + SiteValues::kRaidDevices[o.nRaidDevice] + " " +
                               SiteValues::kRaidLevels[o.nRaidLevel] + ", " + Int(o.nRaidBays) +
                               " bays) * 0.9 * 1024 = " + Num(dCapacity) + " GB",
                           t.dKbps == 0.0 ? std::string("no bit rate: no device needed")
                                          : "devices = " + Num(dNeed) + " / " + Num(dCapacity) +
                                                ", rounded up unless exact = " + Int(nDevices) };
    return answer;
}

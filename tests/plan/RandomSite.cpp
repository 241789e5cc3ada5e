#include "tests/plan/RandomSite.h"

#include "calculator/engine/CapacityTable.h"
#include "calculator/engine/RaidTables.h"
#include "plan/SiteValues.h"
#include "streams/engine/BitrateEstimate.h"

#include <algorithm>

namespace {

std::string Field(const SiteRow& row, int nColumn)
{
    switch (nColumn) {
    case 0:
        return std::to_string(row.nChannels);
    case 1:
        return SiteValues::CompressionName(row.nCompression);
    case 2:
        return std::to_string(row.nScene);
    case 3:
        return SiteValues::Narrow(g_szResolutionEntries[row.nResolution - 1]);
    case 4:
        return row.nFrameRateIndex == kRowFrameRateCustom
                   ? row.strCustomRate
                   : g_szRowFrameRates[row.nFrameRateIndex - 1];
    case 5:
        return row.bAudio ? "on" : "off";
    default:
        return row.strTypedBitrate;
    }
}

} // namespace

int CRandomSite::Pick(int nCount)
{
    return static_cast<int>(m_random() % static_cast<std::uint32_t>(nCount));
}

std::string CRandomSite::Spelled(const std::string& strName)
{
    // Names are read without regard to case.
    return Pick(4) == 0 ? SiteValues::Lower(strName) : strName;
}

SiteRow CRandomSite::Row()
{
    SiteRow row;
    const int nSize = Pick(10);
    row.nChannels = nSize < 6 ? 1 + Pick(16) : nSize < 9 ? 1 + Pick(256) : 1 + Pick(9999);
    row.nCompression = 1 + Pick(4);
    row.nScene = Pick(4);
    row.nResolution = 1 + Pick(kResolutionEntryCount);
    if (Pick(6) == 0) {
        row.nFrameRateIndex = kRowFrameRateCustom;
        const int nKind = Pick(3);
        row.strCustomRate = std::to_string(nKind == 0   ? Pick(31)
                                           : nKind == 1 ? Pick(100)
                                                        : Pick(1000));
        // A listed rate is read as the list's entry.
        for (int i = 0; i < kRowFrameRateEntryCount; ++i) {
            if (row.strCustomRate == g_szRowFrameRates[i]) {
                row.nFrameRateIndex = i + 1;
                row.strCustomRate.clear();
            }
        }
    } else {
        row.nFrameRateIndex = 1 + Pick(kRowFrameRateEntryCount);
    }
    row.bAudio = Pick(2) == 1;
    if (Pick(5) == 0) {
        row.bTypedBitrate = true;
        const int nKind = Pick(6);
        row.strTypedBitrate = nKind == 0 ? "0"
                              : nKind == 1
                                  ? "00" + std::to_string(Pick(100))
                                  : std::to_string(1 + Pick(nKind == 5 ? 999999999 : 20000));
    }
    return row;
}

std::string CRandomSite::Csv(const std::vector<SiteRow>& rows)
{
    std::string strCsv = "channels,compression,scene,resolution,fps,audio,bitrate\n";
    for (const SiteRow& row : rows) {
        for (int c = 0; c < 7; ++c)
            strCsv += (c ? "," : "") + Field(row, c);
        strCsv += "\n";
    }
    return strCsv;
}

void CRandomSite::Ask(SiteCase& site)
{
    const WindowInputs& in = site.inputs;
    std::string strCapacity =
        in.nCapacityIndex == kCapacityItemCount
            ? "custom:" + in.strCustomCapacity + (in.bCustomInTB ? "TB" : "GB")
            : SiteValues::CapacityItem(in.nCapacityIndex);
    std::string strPlan = in.bWeeklyPlan ? "" : "24h";
    for (int i = 0; in.bWeeklyPlan && i < 7; ++i)
        strPlan += (i ? "," : "") + std::to_string(in.anDayHours[i]);
    const CRaidTables tables;
    auto raid = [&tables](int nDevice, int nLevel, int nBaySel, int nDiskSel) {
        return std::string(SiteValues::kRaidDevices[nDevice]) + "," +
               SiteValues::kRaidLevels[nLevel] + "," +
               std::to_string(
                   tables.LookupBayCount(nDevice, nLevel, static_cast<unsigned>(nBaySel))) +
               "," + std::to_string(nDiskSel + 1) + "TB";
    };
    site.firstArgs = { "--days",
                       std::to_string(in.nDays),
                       "--capacity=" + strCapacity,
                       "--percent",
                       std::to_string(in.nPercent),
                       "--plan",
                       strPlan,
                       "--raid",
                       raid(in.nRaidDevice, in.nRaidLevel, in.nRaidBaySel, in.nRaidDiskSel) };
    site.deviceArgs = { "--raid",
                        raid(in.nRaid2Device, in.nRaid2Level, in.nRaid2BaySel, in.nRaid2DiskSel),
                        "--raid-days", std::to_string(in.nRaid2Days) };
}

SiteCase CRandomSite::Next()
{
    SiteCase site;
    const int nRows = 1 + Pick(5);
    for (int i = 0; i < nRows; ++i)
        site.rows.push_back(Row());

    // Columns in any order, comments, blank lines, quotes and a missing
    // bitrate column where no row has one.
    std::vector<int> order = { 0, 1, 2, 3, 4, 5, 6 };
    const bool bAnyTyped = std::any_of(site.rows.begin(), site.rows.end(),
                                       [](const SiteRow& r) { return r.bTypedBitrate; });
    if (!bAnyTyped && Pick(2) == 0)
        order.pop_back();
    if (Pick(3) == 0)
        std::shuffle(order.begin(), order.end(), m_random);
    static const char* const kNames[] = { "channels", "compression", "scene",  "resolution",
                                          "fps",      "audio",       "bitrate" };
    std::string strCsv = Pick(3) == 0 ? "# site " + std::to_string(m_random()) + "\n\n" : "";
    for (std::size_t c = 0; c < order.size(); ++c)
        strCsv += (c ? "," : "") + Spelled(kNames[order[c]]);
    strCsv += "\n";
    for (SiteRow& row : site.rows) {
        if (Pick(6) == 0)
            strCsv += Pick(2) ? "\n" : "  # a comment\n";
        row.nLine = static_cast<int>(std::count(strCsv.begin(), strCsv.end(), '\n')) + 1;
        for (std::size_t c = 0; c < order.size(); ++c) {
            std::string strField = Field(row, order[c]);
            if (order[c] == 1 || order[c] == 3 || order[c] == 5)
                strField = Spelled(strField);
            if (Pick(10) == 0)
                strField = "\"" + strField + "\"";
            else if (Pick(10) == 0)
                strField = " " + strField + " ";
            strCsv += (c ? "," : "") + strField;
        }
        strCsv += Pick(8) == 0 ? "\r\n" : "\n";
    }
    site.strCsv = strCsv;

    WindowInputs& in = site.inputs;
    in.nDays = 1 + Pick(Pick(4) == 0 ? 3650 : 60);
    if (Pick(4) == 0) {
        in.nCapacityIndex = kCapacityItemCount;
        in.bCustomInTB = Pick(2) == 1;
        in.strCustomCapacity = std::to_string(Pick(in.bCustomInTB ? 1000 : 100000));
    } else {
        in.nCapacityIndex = Pick(kCapacityItemCount);
    }
    in.nPercent = Pick(3) == 0 ? static_cast<unsigned>(Pick(101)) : 90u;
    in.bWeeklyPlan = Pick(2) == 1;
    if (in.bWeeklyPlan) {
        for (int i = 0; i < 7; ++i)
            in.anDayHours[i] = Pick(3) == 0 ? 0 : Pick(25);
    }
    const CRaidTables tables;
    auto raid = [this, &tables](int& nDevice, int& nLevel, int& nBaySel, int& nDiskSel) {
        nDevice = Pick(4);
        nLevel = Pick(3);
        const std::vector<int>* pBays = tables.FindBayOptions(nDevice, nLevel);
        nBaySel = pBays ? Pick(static_cast<int>(pBays->size())) : 0;
        nDiskSel = Pick(16);
    };
    raid(in.nRaidDevice, in.nRaidLevel, in.nRaidBaySel, in.nRaidDiskSel);
    raid(in.nRaid2Device, in.nRaid2Level, in.nRaid2BaySel, in.nRaid2DiskSel);
    in.nRaid2Days = 1 + Pick(Pick(4) == 0 ? 3650 : 60);
    Ask(site);
    return site;
}

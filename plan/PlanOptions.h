#pragma once
// The command line of tallix-plan: the site file, the questions and how the
// answers are written.

#include "calculator/engine/WeeklyPlan.h"

#include <string>
#include <vector>

enum class PlanFormat { Text, Json, Csv };

struct PlanOptions {
    std::string strSiteFile; // "-" reads the standard input
    std::string strConfigFile;
    int nArea = 0;
    int nLanguage = 0; // 0 English, 1 Chinese, as the dictionaries are chosen
    PlanFormat format = PlanFormat::Text;
    bool bExplain = false;
    bool bHelp = false;
    bool bVersion = false;

    // Which questions; none asked means all four with the window's defaults.
    bool bAskDisk = false;
    bool bAskRecording = false;
    bool bAskRaid = false;
    bool bAskDevices = false;

    // Disk requirement: the days spinner.
    int nDays = 1;
    // Recording days: the capacity combo, or a typed capacity.
    int nCapacityIndex = 0;
    bool bCustomCapacity = false;
    std::string strCustomCapacity; // digits as typed into the edit
    bool bCustomInTB = false;
    bool bPercentGiven = false;
    unsigned nPercent = 90;
    bool bWeeklyPlan = false;
    int anDayHours[kPlanDayCount] = { 24, 24, 24, 24, 24, 24, 24 }; // Sunday first
    // RAID: device type, level, bay list position, disk combo position.
    int nRaidDevice = 0;
    int nRaidLevel = 0;
    int nRaidBaySel = 0;
    int nRaidBays = 8;
    int nRaidDiskSel = 0;
    int nRaidDays = 1;
};

struct PlanOptionsResult {
    bool bOk = false;
    PlanOptions options;
    std::string strError; // one line, without the program's name
};

class CPlanOptionParser {
public:
    // args without the program's name.
    static PlanOptionsResult Parse(const std::vector<std::string>& args);

    static const char* Usage();
};

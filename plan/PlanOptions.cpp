#include "plan/PlanOptions.h"

#include "calculator/engine/CapacityTable.h"
#include "calculator/engine/RaidTables.h"
#include "plan/SiteValues.h"

namespace {

const int kMaxDays = 3650; // the days spinners' range
const int kMaxDayHours = 24;
const int kMaxPercent = 100;
const int kCustomGBDigits = 5; // what the custom capacity edit keeps per unit
const int kCustomTBDigits = 3;
const int kRaidDiskSizes = 16; // "1 TB" to "16 TB"

const char kUsage[] =
    "usage: tallix-plan [options] SITE.csv\n"
    "Answers the storage questions of the Tallix window for the cameras of a site file.\n"
    "\n"
    "  --days N                disk requirement for N recording days (1-3650)\n"
    "  --capacity ITEM         recording days on a medium: 32GB 64GB 128GB 1TB 2TB 3TB 4TB 6TB\n"
    "                          8TB 10TB 12TB 14TB 16TB, or custom:NGB (0-99999), custom:NTB (0-999)\n"
    "  --percent P             recordable share of the medium (0-100; default from --config, else 90)\n"
    "  --plan 24h|H,H,H,H,H,H,H  round the clock, or hours per weekday from Sunday (0-24 each)\n"
    "  --raid DEV,LEVEL,BAYS,DISK  capacity of one RAID device, e.g. KTR6,RAID5,16,4TB\n"
    "                          (DEV KTR6 MQS50 MQS70 MQS71; LEVEL RAID1 RAID5 RAID6; DISK 1TB-16TB)\n"
    "  --raid-days N           devices needed for N recording days, of the --raid device\n"
    "                          (KTR6,RAID1,8,1TB without --raid); with it --raid asks nothing else\n"
    "  --config FILE           a config.xml whose RecordblePersentage gives the default percentage\n"
    "  --area 0|1              reference rates of VGA and D1 (1: the lower ones); default 0\n"
    "  --lang en|cn            language of the texts; default en\n"
    "  --format text|json|csv  default text\n"
    "  --explain               how each answer was formed\n"
    "  --help, --version\n"
    "\n"
    "With no question asked, all four are answered with the window's defaults.\n"
    "Exit status: 0 answered, 1 the file could not be read, 2 a bad option or line.\n";

std::string Upper(const std::string& strText)
{
    std::string strUpper = strText;
    for (char& c : strUpper) {
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    }
    return strUpper;
}

std::string WithoutBlanks(const std::string& strText)
{
    std::string strOut;
    for (char c : strText) {
        if (c != ' ' && c != '\t')
            strOut += c;
    }
    return strOut;
}

std::vector<std::string> SplitCommas(const std::string& strText)
{
    std::vector<std::string> parts;
    std::string strPart;
    for (char c : strText) {
        if (c == ',') {
            parts.push_back(strPart);
            strPart.clear();
        } else {
            strPart += c;
        }
    }
    parts.push_back(strPart);
    return parts;
}

// Strips a unit word at the end ("4TB", "16 bay"), without regard to case.
bool StripSuffix(std::string& strText, const std::string& strSuffix)
{
    const std::string strUpper = Upper(strText);
    const std::string strUpperSuffix = Upper(strSuffix);
    if (strUpper.size() >= strUpperSuffix.size() &&
        strUpper.compare(strUpper.size() - strUpperSuffix.size(), std::string::npos,
                         strUpperSuffix) == 0) {
        strText.resize(strText.size() - strSuffix.size());
        return true;
    }
    return false;
}

class COptionReader {
public:
    explicit COptionReader(PlanOptionsResult& result) : m_result(result) {}

    bool Fail(const std::string& strOption, const std::string& strValue,
              const std::string& strExpected)
    {
        m_result.bOk = false;
        m_result.strError = strOption + ": bad value \"" + strValue + "\": expected " + strExpected;
        return false;
    }

    bool Days(const std::string& strOption, const std::string& strValue, int& nDays)
    {
        if (!SiteValues::ParseWhole(strValue, 1, kMaxDays, 9, nDays))
            return Fail(strOption, strValue, "a whole number 1-3650");
        return true;
    }

    bool Capacity(const std::string& strValue, PlanOptions& o)
    {
        const std::string strExpected =
            "one of 32GB, 64GB, 128GB, 1TB, 2TB, 3TB, 4TB, 6TB, 8TB, 10TB, 12TB, 14TB, 16TB, "
            "or custom:NGB (0-99999) or custom:NTB (0-999)";
        const std::string strLower = SiteValues::Lower(WithoutBlanks(strValue));
        const std::string strCustom = "custom:";
        if (strLower.compare(0, strCustom.size(), strCustom) == 0) {
            std::string strNumber = strLower.substr(strCustom.size());
            bool bInTB = false;
            if (StripSuffix(strNumber, "tb"))
                bInTB = true;
            else if (!StripSuffix(strNumber, "gb"))
                return Fail("--capacity", strValue, strExpected);
            int nIgnored = 0;
            if (!SiteValues::ParseWhole(strNumber, 0, 99999,
                                        bInTB ? kCustomTBDigits : kCustomGBDigits, nIgnored))
                return Fail("--capacity", strValue, strExpected);
            o.bCustomCapacity = true;
            o.bCustomInTB = bInTB;
            o.strCustomCapacity = strNumber;
            o.nCapacityIndex = kCapacityItemCount; // the combo's "Customize"
            return true;
        }
        for (int i = 0; i < kCapacityItemCount; ++i) {
            if (strLower == SiteValues::Lower(SiteValues::CapacityItem(i))) {
                o.bCustomCapacity = false;
                o.nCapacityIndex = i;
                return true;
            }
        }
        return Fail("--capacity", strValue, strExpected);
    }

    bool Plan(const std::string& strValue, PlanOptions& o)
    {
        const std::string strExpected =
            "24h, or seven hours 0-24 separated by commas, Sunday first";
        const std::string strPlain = SiteValues::Lower(WithoutBlanks(strValue));
        if (strPlain == "24h") {
            o.bWeeklyPlan = false;
            return true;
        }
        const std::vector<std::string> parts = SplitCommas(strPlain);
        if (parts.size() != static_cast<std::size_t>(kPlanDayCount))
            return Fail("--plan", strValue, strExpected);
        for (std::size_t i = 0; i < parts.size(); ++i) {
            if (!SiteValues::ParseWhole(parts[i], 0, kMaxDayHours, 2, o.anDayHours[i]))
                return Fail("--plan", strValue, strExpected);
        }
        o.bWeeklyPlan = true;
        return true;
    }

    bool Raid(const std::string& strValue, PlanOptions& o)
    {
        const std::string strExpected =
            "DEVICE,LEVEL,BAYS,DISK with DEVICE KTR6, MQS50, MQS70 or MQS71, LEVEL RAID1, RAID5 "
            "or RAID6, BAYS a bay count the device offers at that level, DISK 1TB-16TB";
        const std::vector<std::string> parts = SplitCommas(Upper(WithoutBlanks(strValue)));
        if (parts.size() != 4)
            return Fail("--raid", strValue, strExpected);
        int nDevice = -1;
        for (int i = 0; i < 4; ++i) {
            if (parts[0] == SiteValues::kRaidDevices[i])
                nDevice = i;
        }
        int nLevel = -1;
        for (int i = 0; i < 3; ++i) {
            if (parts[1] == SiteValues::kRaidLevels[i])
                nLevel = i;
        }
        if (nDevice < 0 || nLevel < 0)
            return Fail("--raid", strValue, strExpected);
        std::string strBays = parts[2];
        StripSuffix(strBays, "BAY");
        int nBays = 0;
        const CRaidTables tables;
        const std::vector<int>* pOffered = tables.FindBayOptions(nDevice, nLevel);
        int nBaySel = -1;
        if (SiteValues::ParseWhole(strBays, 1, 999, 3, nBays) && pOffered) {
            for (std::size_t i = 0; i < pOffered->size(); ++i) {
                if ((*pOffered)[i] == nBays)
                    nBaySel = static_cast<int>(i);
            }
        }
        if (nBaySel < 0) {
            std::string strOffered;
            for (std::size_t i = 0; pOffered && i < pOffered->size(); ++i)
                strOffered += (i ? ", " : "") + std::to_string((*pOffered)[i]);
            return Fail("--raid", strValue,
                        std::string("a bay count that ") + SiteValues::kRaidDevices[nDevice] +
                            " offers with " + SiteValues::kRaidLevels[nLevel] + ": " + strOffered);
        }
        std::string strDisk = parts[3];
        StripSuffix(strDisk, "TB");
        int nDiskTB = 0;
        if (!SiteValues::ParseWhole(strDisk, 1, kRaidDiskSizes, 2, nDiskTB))
            return Fail("--raid", strValue, strExpected);
        o.nRaidDevice = nDevice;
        o.nRaidLevel = nLevel;
        o.nRaidBaySel = nBaySel;
        o.nRaidBays = nBays;
        o.nRaidDiskSel = nDiskTB - 1;
        return true;
    }

private:
    PlanOptionsResult& m_result;
};

} // namespace

const char* CPlanOptionParser::Usage()
{
    return kUsage;
}

PlanOptionsResult CPlanOptionParser::Parse(const std::vector<std::string>& args)
{
    PlanOptionsResult result;
    PlanOptions& o = result.options;
    COptionReader reader(result);
    bool bRaidDaysAsked = false;
    bool bRaidGiven = false;
    for (std::size_t i = 0; i < args.size(); ++i) {
        std::string strArg = args[i];
        if (strArg == "--help" || strArg == "-h") {
            o.bHelp = true;
            continue;
        }
        if (strArg == "--version") {
            o.bVersion = true;
            continue;
        }
        if (strArg == "--explain") {
            o.bExplain = true;
            continue;
        }
        if (strArg.size() < 2 || strArg.compare(0, 2, "--") != 0 || strArg == "--") {
            if (strArg == "--" && i + 1 < args.size())
                strArg = args[++i];
            if (!o.strSiteFile.empty()) {
                result.strError =
                    "more than one site file: \"" + o.strSiteFile + "\" and \"" + strArg + "\"";
                return result;
            }
            o.strSiteFile = strArg;
            continue;
        }
        std::string strName = strArg;
        std::string strValue;
        const std::size_t nEquals = strArg.find('=');
        static const char* const kWithValue[] = { "--days", "--capacity",  "--percent", "--plan",
                                                  "--raid", "--raid-days", "--config",  "--area",
                                                  "--lang", "--format" };
        bool bKnown = false;
        if (nEquals != std::string::npos) {
            strName = strArg.substr(0, nEquals);
            strValue = strArg.substr(nEquals + 1);
        }
        for (const char* pszName : kWithValue)
            bKnown = bKnown || strName == pszName;
        if (!bKnown) {
            result.strError = "unknown option \"" + strName + "\" (see --help)";
            return result;
        }
        if (nEquals == std::string::npos) {
            if (i + 1 >= args.size()) {
                result.strError = strName + ": a value is missing";
                return result;
            }
            strValue = args[++i];
        }
        bool bOk = true;
        if (strName == "--days") {
            bOk = reader.Days(strName, strValue, o.nDays);
            o.bAskDisk = true;
        } else if (strName == "--capacity") {
            bOk = reader.Capacity(strValue, o);
            o.bAskRecording = true;
        } else if (strName == "--percent") {
            int nPercent = 0;
            bOk = SiteValues::ParseWhole(strValue, 0, kMaxPercent, 3, nPercent) ||
                  reader.Fail(strName, strValue, "a whole number 0-100");
            o.nPercent = static_cast<unsigned>(nPercent);
            o.bPercentGiven = true;
            o.bAskRecording = true;
        } else if (strName == "--plan") {
            bOk = reader.Plan(strValue, o);
            o.bAskRecording = true;
        } else if (strName == "--raid") {
            bOk = reader.Raid(strValue, o);
            bRaidGiven = true;
        } else if (strName == "--raid-days") {
            bOk = reader.Days(strName, strValue, o.nRaidDays);
            bRaidDaysAsked = true;
        } else if (strName == "--config") {
            o.strConfigFile = strValue;
        } else if (strName == "--area") {
            bOk = (strValue == "0" || strValue == "1") || reader.Fail(strName, strValue, "0 or 1");
            o.nArea = strValue == "1" ? 1 : 0;
        } else if (strName == "--lang") {
            const std::string strLang = SiteValues::Lower(strValue);
            bOk =
                (strLang == "en" || strLang == "cn") || reader.Fail(strName, strValue, "en or cn");
            o.nLanguage = strLang == "cn" ? 1 : 0;
        } else if (strName == "--format") {
            const std::string strFormat = SiteValues::Lower(strValue);
            if (strFormat == "text")
                o.format = PlanFormat::Text;
            else if (strFormat == "json")
                o.format = PlanFormat::Json;
            else if (strFormat == "csv")
                o.format = PlanFormat::Csv;
            else
                bOk = reader.Fail(strName, strValue, "text, json or csv");
        }
        if (!bOk)
            return result;
    }
    // --raid names the device; with --raid-days the question is the count.
    o.bAskRaid = bRaidGiven && !bRaidDaysAsked;
    o.bAskDevices = bRaidDaysAsked;
    if (!o.bAskDisk && !o.bAskRecording && !o.bAskRaid && !o.bAskDevices)
        o.bAskDisk = o.bAskRecording = o.bAskRaid = o.bAskDevices = true;
    if (o.strSiteFile.empty() && !o.bHelp && !o.bVersion) {
        result.strError = "no site file given (see --help)";
        return result;
    }
    result.bOk = true;
    return result;
}

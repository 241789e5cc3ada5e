// The command line: which questions it asks, with which inputs, and how a bad
// value is refused.

#include "plan/PlanOptions.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using Args = std::vector<std::string>;

struct QuestionCase {
    const char* pszName;
    Args args;
    bool bDisk, bRecording, bRaid, bDevices;
};

TEST(PlanOptionsTest, AsksWhatTheOptionsName)
{
    const QuestionCase cases[] = {
        { "none: all four", { "s.csv" }, true, true, true, true },
        { "days", { "--days", "7", "s.csv" }, true, false, false, false },
        { "percent alone asks recording days",
          { "--percent=80", "s.csv" },
          false,
          true,
          false,
          false },
        { "plan", { "s.csv", "--plan", "24h" }, false, true, false, false },
        { "raid", { "--raid", "KTR6,RAID5,16,4TB", "s.csv" }, false, false, true, false },
        { "raid with days asks the count",
          { "--raid", "KTR6,RAID5,16,4TB", "--raid-days", "3", "s.csv" },
          false,
          false,
          false,
          true },
        { "raid days alone", { "--raid-days", "3", "s.csv" }, false, false, false, true },
        { "format and language ask nothing",
          { "--format", "json", "--lang", "cn", "s.csv" },
          true,
          true,
          true,
          true },
    };
    for (const QuestionCase& c : cases) {
        SCOPED_TRACE(c.pszName);
        const PlanOptionsResult r = CPlanOptionParser::Parse(c.args);
        ASSERT_TRUE(r.bOk) << r.strError;
        EXPECT_EQ(r.options.bAskDisk, c.bDisk);
        EXPECT_EQ(r.options.bAskRecording, c.bRecording);
        EXPECT_EQ(r.options.bAskRaid, c.bRaid);
        EXPECT_EQ(r.options.bAskDevices, c.bDevices);
        EXPECT_EQ(r.options.strSiteFile, "s.csv");
    }
}

TEST(PlanOptionsTest, ReadsTheInputsAsTheWindowHoldsThem)
{
    const PlanOptionsResult r = CPlanOptionParser::Parse(
        { "--days", "3650", "--capacity", "custom:999tb", "--plan", "8, 8,8,8,8,0,24", "--raid",
          "mqs71,raid5,48,16tb", "--area", "1", "--lang", "CN", "--format", "csv", "--explain",
          "--", "-site.csv" });
    ASSERT_TRUE(r.bOk) << r.strError;
    const PlanOptions& o = r.options;
    EXPECT_EQ(o.nDays, 3650);
    EXPECT_TRUE(o.bCustomCapacity);
    EXPECT_TRUE(o.bCustomInTB);
    EXPECT_EQ(o.strCustomCapacity, "999");
    EXPECT_TRUE(o.bWeeklyPlan);
    EXPECT_EQ(o.anDayHours[0], 8);
    EXPECT_EQ(o.anDayHours[6], 24);
    EXPECT_EQ(o.nRaidDevice, 3);
    EXPECT_EQ(o.nRaidLevel, 1);
    EXPECT_EQ(o.nRaidBaySel, 2); // 24, 36, 48
    EXPECT_EQ(o.nRaidDiskSel, 15);
    EXPECT_EQ(o.nArea, 1);
    EXPECT_EQ(o.nLanguage, 1);
    EXPECT_EQ(o.format, PlanFormat::Csv);
    EXPECT_TRUE(o.bExplain);
    EXPECT_EQ(o.strSiteFile, "-site.csv");

    const PlanOptionsResult item = CPlanOptionParser::Parse({ "--capacity", "128gb", "s.csv" });
    ASSERT_TRUE(item.bOk);
    EXPECT_FALSE(item.options.bCustomCapacity);
    EXPECT_EQ(item.options.nCapacityIndex, 2);
    EXPECT_EQ(item.options.nPercent, 90u);
}

struct BadCase {
    const char* pszName;
    Args args;
    const char* pszMessage;
};

TEST(PlanOptionsTest, RefusesBadValuesNamingWhatWasExpected)
{
    const BadCase cases[] = {
        { "no file", { "--days", "3" }, "no site file given" },
        { "two files", { "a.csv", "b.csv" }, "more than one site file" },
        { "unknown option", { "--weeks", "3", "s.csv" }, "unknown option \"--weeks\"" },
        { "value missing", { "s.csv", "--days" }, "--days: a value is missing" },
        { "days zero", { "--days", "0", "s.csv" }, "expected a whole number 1-3650" },
        { "capacity item", { "--capacity", "5TB", "s.csv" }, "one of 32GB, 64GB" },
        { "custom without unit", { "--capacity", "custom:12", "s.csv" }, "custom:NTB (0-999)" },
        { "custom TB too big", { "--capacity", "custom:1000TB", "s.csv" }, "custom:NTB" },
        { "percent", { "--percent", "101", "s.csv" }, "a whole number 0-100" },
        { "plan short", { "--plan", "8,8,8", "s.csv" }, "seven hours 0-24" },
        { "raid parts", { "--raid", "KTR6,RAID5,16", "s.csv" }, "DEVICE,LEVEL,BAYS,DISK" },
        { "raid bays not offered",
          { "--raid", "MQS71,RAID5,16,4TB", "s.csv" },
          "a bay count that MQS71 offers with RAID5: 24, 36, 48" },
        { "raid disk", { "--raid", "KTR6,RAID5,16,17TB", "s.csv" }, "DISK 1TB-16TB" },
        { "area", { "--area", "2", "s.csv" }, "expected 0 or 1" },
        { "lang", { "--lang", "de", "s.csv" }, "expected en or cn" },
        { "format", { "--format", "xml", "s.csv" }, "expected text, json or csv" },
    };
    for (const BadCase& c : cases) {
        SCOPED_TRACE(c.pszName);
        const PlanOptionsResult r = CPlanOptionParser::Parse(c.args);
        EXPECT_FALSE(r.bOk);
        EXPECT_NE(r.strError.find(c.pszMessage), std::string::npos) << r.strError;
    }
}

} // namespace

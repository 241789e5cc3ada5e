// tallix-plan as a user runs it: output formats, languages, settings file and
// exit codes, with nothing on the standard output when a run fails.

#include "tests/support/TempDir.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <sys/wait.h>
#include <vector>

namespace {

const char kSite[] = "# one camera of 2048 kbps\n"
                     "channels,compression,scene,resolution,fps,audio\n"
                     "1,H.264,0,D1,60,off\n";

struct RunResult {
    int nCode = -1;
    std::string strOut;
    std::string strErr;
};

std::string ReadFile(const std::string& strPath)
{
    std::ifstream in(strPath, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

class PlanCliTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        m_dir.Write("site.csv", kSite);
        m_dir.Write("bad.csv", "channels,compression,scene,resolution,fps,audio\n"
                               "4,H.265,0,4K,15,on\n");
        m_dir.Write("half.csv", "channels,compression,scene,resolution,fps,audio\n"
                                "1,H.264,0,D1,60,off\n1,H.264,0,D1,60,maybe\n");
        m_dir.Write("config.xml", "<Setting><UIConfig><RecordblePersentage value=\"45\"/>"
                                  "</UIConfig></Setting>");
    }

    // Runs the program in the test's directory; stdin from a file when given.
    RunResult Plan(const std::string& strArgs, const std::string& strStdin = "/dev/null")
    {
        const std::string strCommand = "cd '" + m_dir.Path() +
                                       "' && '" TALLIX_APP_DIR "/tallix-plan' " + strArgs + " <" +
                                       strStdin + " >out.txt 2>err.txt";
        const int nStatus = std::system(strCommand.c_str());
        RunResult run;
        run.nCode = WIFEXITED(nStatus) ? WEXITSTATUS(nStatus) : -1;
        run.strOut = ReadFile(m_dir.File("out.txt"));
        run.strErr = ReadFile(m_dir.File("err.txt"));
        return run;
    }

    TempDir m_dir;
};

TEST_F(PlanCliTest, TextIsTheWindowsWordsOneLineEach)
{
    const RunResult run = Plan("site.csv");
    EXPECT_EQ(run.nCode, 0);
    EXPECT_EQ(run.strErr, "");
    EXPECT_EQ(run.strOut, "Total 1 channels, 2048.00 kbps\n"
                          "Request Capacity: 21.09GB\n"
                          "Recording Days: 1  Day 6.52 Hour\n"
                          "Available: 3.60TB\n"
                          "Need: 1 Device\n");
    EXPECT_EQ(Plan("--days 7 --capacity 1TB site.csv").strOut,
              "Total 1 channels, 2048.00 kbps\n"
              "Request Capacity: 147.66GB\n"
              "Recording Days: 40  Day 16.56 Hour\n");
}

TEST_F(PlanCliTest, ChineseFromTheSameDictionaries)
{
    const RunResult run = Plan("--lang cn --days 7 --raid-days 7 site.csv");
    EXPECT_EQ(run.nCode, 0);
    EXPECT_EQ(run.strOut, "合计 1 通道数, 2048.00 kbps\n"
                          "所需容量： 147.66GB\n"
                          "所需： 1 台\n");
}

struct FormatCase {
    const char* pszName;
    const char* pszArgs;
    std::vector<std::string> parts; // each must appear in the output
};

TEST_F(PlanCliTest, JsonCsvAndExplainCarryTheFigures)
{
    const FormatCase cases[] = {
        { "json",
          "--format json --days 7 site.csv",
          { "\"totals\": {\"channels\": 1, \"kbps\": 2048, \"text\": \"2048.00 kbps\"",
            "{\"question\": \"disk_requirement\", \"caption\": \"Request Capacity:\", "
            "\"text\": \"147.66GB\", \"days\": 7, \"gb\": 147.65625, \"value\": 147.66, "
            "\"unit\": \"GB\"}",
            "\"rows\": [\n    {\"line\": 3, \"channels\": 1, \"fps\": 60, \"estimate\": 2048" } },
        { "json weekly",
          "--format=json --capacity 1TB --plan 8,8,8,8,8,0,0 site.csv",
          { "\"raw_gb\": 953.67424", "\"percent\": 90", "\"plan\": \"8,8,8,8,8,0,0\"",
            "\"weeks\": 24, \"days\": 2, \"hours\": 0.56" } },
        { "csv",
          "--format csv --raid KTR6,RAID5,16,4TB site.csv",
          { "question,field,value\ntotals,channels,1\ntotals,kbps,2048\n",
            "raid_capacity,text,43.20TB\n", "raid_capacity,data_disks,12\n",
            "raid_capacity,bays,16\n" } },
        { "csv quotes a plan",
          "--format csv --plan 24,0,0,0,0,0,1 site.csv",
          { "recording_days,plan,\"24,0,0,0,0,0,1\"\n" } },
        { "explain",
          "--explain --days 7 --capacity 1TB --raid-days 30 site.csv",
          { "Request Capacity: 147.66GB\n  GB needed = 7 days * 2048 kbps * 3600 * 24",
            "line 3: 1 x H.264 D1 at 60 fps: 1024 * 60 / 30 * 1 = 2048, shown \"2048\"",
            "usable = 90 (recordable percentage) * 953.67424 / 100 = 858.306816 GB",
            "one device = 1 TB * 4 data disks (KTR6 RAID1, 8 bays) * 0.9 * 1024 = 3686.4 GB" } },
        { "settings file gives the percentage",
          "--config config.xml --capacity 1TB site.csv",
          { "Recording Days: 20  Day 8.28 Hour" } },
        { "percent wins over the settings file",
          "--config config.xml --percent 90 --capacity 1TB site.csv",
          { "Recording Days: 40  Day 16.56 Hour" } },
        { "standard input", "--days 7 -", { "Request Capacity: 147.66GB" } },
        { "area 1 lowers D1",
          "--area 1 --days 7 site.csv",
          { "Total 1 channels, 1024.00 kbps", "Request Capacity: 73.83GB" } },
    };
    for (const FormatCase& c : cases) {
        SCOPED_TRACE(c.pszName);
        const RunResult run = Plan(c.pszArgs, m_dir.File("site.csv"));
        EXPECT_EQ(run.nCode, 0) << run.strErr;
        for (const std::string& strPart : c.parts)
            EXPECT_NE(run.strOut.find(strPart), std::string::npos) << strPart << "\n" << run.strOut;
    }
}

struct FailureCase {
    const char* pszName;
    const char* pszArgs;
    int nCode;
    const char* pszError; // the whole message
};

TEST_F(PlanCliTest, FailuresSayWhereAndPrintNothingElse)
{
    const FailureCase cases[] = {
        { "bad line", "bad.csv", 2,
          "bad.csv:2:11: bad resolution \"4K\": expected CIF, VGA, D1, 1MP, 1.3MP, 2MP, 3MP, "
          "4MP, 5MP, 6MP, 8MP or 12MP\n" },
        { "bad later line, nothing of the good one", "--format json half.csv", 2,
          "half.csv:3:17: bad audio \"maybe\": expected on or off\n" },
        { "missing file", "nothere.csv", 1,
          "tallix-plan: cannot read \"nothere.csv\": No such file or directory\n" },
        { "a directory", ".", 1, "tallix-plan: cannot read \".\": it is a directory\n" },
        { "missing settings file", "--config none.xml site.csv", 1,
          "tallix-plan: cannot read \"none.xml\": No such file or directory\n" },
        { "bad option", "--days 0 site.csv", 2,
          "tallix-plan: --days: bad value \"0\": expected a whole number 1-3650\n" },
    };
    for (const FailureCase& c : cases) {
        SCOPED_TRACE(c.pszName);
        const RunResult run = Plan(c.pszArgs);
        EXPECT_EQ(run.nCode, c.nCode);
        EXPECT_EQ(run.strOut, "");
        EXPECT_EQ(run.strErr, c.pszError);
    }
}

TEST_F(PlanCliTest, LinksNoQt)
{
    const RunResult run = Plan("--version");
    ASSERT_EQ(run.nCode, 0);
    const std::string strCommand = "ldd '" TALLIX_APP_DIR "/tallix-plan' | grep -q libQt";
    EXPECT_NE(std::system(strCommand.c_str()), 0) << "tallix-plan links a Qt library";
}

TEST_F(PlanCliTest, HelpAndVersion)
{
    const RunResult help = Plan("--help");
    EXPECT_EQ(help.nCode, 0);
    EXPECT_EQ(help.strOut.rfind("usage: tallix-plan", 0), 0u);
    const RunResult version = Plan("--version");
    EXPECT_EQ(version.nCode, 0);
    EXPECT_EQ(version.strOut.rfind("tallix-plan ", 0), 0u);
}

} // namespace

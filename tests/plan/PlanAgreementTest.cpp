// tallix-plan against the window: the rows of each site file are entered into
// the real channel page, the calculator is worked in all four modes, and what
// its labels show must be what tallix-plan prints, digit for digit.

#include "plan/PlanApp.h"
#include "tests/plan/RandomSite.h"
#include "tests/plan/WindowPlanDriver.h"
#include "tests/support/TempDir.h"

#include <QProcess>
#include <QStringList>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

namespace {

const std::uint32_t kSeed = 20261123;
const int kEnglishSites = 240;
const int kChineseSites = 60;

std::vector<std::string> Lines(const std::string& strText)
{
    std::vector<std::string> lines;
    std::istringstream in(strText);
    for (std::string strLine; std::getline(in, strLine);)
        lines.push_back(strLine);
    return lines;
}

std::vector<std::string> RunPlan(std::vector<std::string> args, const std::string& strFile)
{
    args.push_back(strFile);
    std::ostringstream out;
    std::ostringstream err;
    const int nCode = CPlanApp::Run(args, out, err);
    EXPECT_EQ(nCode, 0) << err.str();
    EXPECT_EQ(err.str(), "");
    return Lines(out.str());
}

std::string Shown(const WindowAnswer& answer)
{
    return (answer.strCaption + QLatin1Char(' ') + answer.strValue).toStdString();
}

class CAgreement {
public:
    CAgreement(CWindowPlanDriver& window, const TempDir& dir, std::vector<std::string> language)
        : m_window(window), m_dir(dir), m_language(std::move(language))
    {
    }

    // The answers of tallix-plan and of the window for one site; the window's
    // lines are returned for checks of known figures.
    std::vector<std::string> Check(const SiteCase& site, const std::string& strName)
    {
        SCOPED_TRACE(strName + ":\n" + site.strCsv);
        m_dir.Write(strName, site.strCsv);
        std::vector<std::string> first = m_language;
        first.insert(first.end(), site.firstArgs.begin(), site.firstArgs.end());
        std::vector<std::string> device = m_language;
        device.insert(device.end(), site.deviceArgs.begin(), site.deviceArgs.end());
        const std::vector<std::string> planFirst = RunPlan(first, m_dir.File(strName));
        const std::vector<std::string> planDevice = RunPlan(device, m_dir.File(strName));

        m_window.EnterRows(site.rows);
        std::vector<std::string> shown = { TotalsOfWindow() };
        shown.push_back(Shown(m_window.DiskRequirement(site.inputs)));
        shown.push_back(Shown(m_window.RecordingDays(site.inputs)));
        shown.push_back(Shown(m_window.RaidCapacity(site.inputs)));
        const std::string strDevice = Shown(m_window.DeviceCount(site.inputs));

        EXPECT_EQ(planFirst, shown);
        EXPECT_EQ(planDevice, (std::vector<std::string>{ shown[0], strDevice }));
        shown.push_back(strDevice);
        return shown;
    }

    // The totals line as tallix-plan words it, from the window's three labels;
    // the word between count and rate is the plan's own.
    std::string TotalsOfWindow() const
    {
        return (m_window.TotalWord() + QLatin1Char(' ') + m_window.ChannelCount() +
                QStringLiteral(" %1, ").arg(m_language.back() == "cn"
                                                ? QStringLiteral("通道数")
                                                : QStringLiteral("channels")) +
                m_window.TotalBitrate())
            .toStdString();
    }

private:
    CWindowPlanDriver& m_window;
    const TempDir& m_dir;
    std::vector<std::string> m_language;
};

SiteCase Site(std::vector<SiteRow> rows, WindowInputs inputs)
{
    SiteCase site;
    site.rows = std::move(rows);
    for (std::size_t i = 0; i < site.rows.size(); ++i)
        site.rows[i].nLine = static_cast<int>(i) + 2;
    site.strCsv = CRandomSite::Csv(site.rows);
    site.inputs = inputs;
    CRandomSite::Ask(site);
    return site;
}

SiteRow Row(int nChannels, int nCompression, int nScene, int nResolution, int nFrameRateIndex,
            bool bAudio, const std::string& strTyped = std::string())
{
    SiteRow row;
    row.nChannels = nChannels;
    row.nCompression = nCompression;
    row.nScene = nScene;
    row.nResolution = nResolution;
    row.nFrameRateIndex = nFrameRateIndex;
    row.bAudio = bAudio;
    row.bTypedBitrate = !strTyped.empty();
    row.strTypedBitrate = strTyped;
    return row;
}

// Combo indexes used below.
enum { H264 = 1, H265, Smart264, Smart265 };
enum { D1 = 3, MP2 = 6, MP12 = 12 };
enum { Fps15 = 4, Fps25 = 6, Fps30 = 7, Fps60 = 9 };

struct WorkedExample {
    const char* pszName;
    SiteCase site;
    // Lines both sides must show: totals, disk, days, RAID, devices.
    std::vector<std::string> expected;
};

std::vector<WorkedExample> WorkedExamples()
{
    WindowInputs defaults;
    WindowInputs week = defaults;
    week.nCapacityIndex = 3; // 1TB
    week.bWeeklyPlan = true;
    const int plan[7] = { 8, 8, 8, 8, 8, 0, 0 };
    std::copy(plan, plan + 7, week.anDayHours);
    week.nRaidLevel = 1; // KTR6, RAID 5, 16 bays, 4 TB
    week.nRaidBaySel = 1;
    week.nRaidDiskSel = 3;
    week.nRaid2Device = 1; // MQS50, RAID 6, 48 bays, 8 TB, 30 days
    week.nRaid2Level = 2;
    week.nRaid2BaySel = 3;
    week.nRaid2DiskSel = 7;
    week.nRaid2Days = 30;
    WindowInputs days = defaults;
    days.nDays = 7;
    days.nCapacityIndex = 3;
    days.nRaidDevice = 3; // MQS71, RAID 5, 48 bays, 16 TB
    days.nRaidLevel = 1;
    days.nRaidBaySel = 2;
    days.nRaidDiskSel = 15;
    WindowInputs huge = defaults;
    huge.nDays = 3650;
    huge.nRaid2Days = 3650;

    return {
        { "rates.csv",
          Site({ Row(4, H265, 0, D1, Fps15, true), Row(2, H264, 0, D1, Fps15, false, "0") },
               defaults),
          { "Total 4 channels, 1264.00 kbps" } },
        { "smart.csv",
          Site({ Row(1, Smart265, 1, MP2, Fps25, true), Row(1, Smart264, 0, MP12, Fps60, false) },
               defaults),
          { "Total 2 channels, 12.48 Mbps" } },
        { "two-megabit.csv",
          Site({ Row(1, H264, 0, D1, Fps60, false) }, days),
          { "Total 1 channels, 2048.00 kbps", "Request Capacity: 147.66GB",
            "Recording Days: 40  Day 16.56 Hour", "Available: 590.40TB", "Need: 1 Device" } },
        { "week.csv",
          Site({ Row(100, H264, 0, MP2, Fps30, false) }, week),
          { "Total 100 channels, 400.00 Mbps", "Request Capacity: 4218.75GB",
            "Recording Days: 0 Week 0 Day 4.88 Hour", "Available: 43.20TB", "Need: 1 Device" } },
        { "week-small.csv",
          Site({ Row(1, H264, 0, MP2, Fps30, false) }, week),
          { "Total 1 channels, 4096.00 kbps", "Request Capacity: 42.19GB",
            "Recording Days: 12 Week 1 Day 0.28 Hour", "Available: 43.20TB" } },
        { "huge.csv",
          Site({ Row(9999, H264, 0, MP12, Fps30, false, "12288") }, huge),
          { "Total 9999 channels, 117.18 Gbps" } },
    };
}

class PlanAgreementTest : public ::testing::Test {
protected:
    TempDir m_dir;
};

TEST_F(PlanAgreementTest, DefaultsOfAFreshWindow)
{
    CWindowPlanDriver window(0);
    ASSERT_TRUE(window.Ready());
    m_dir.Write("defaults.csv", "channels,compression,scene,resolution,fps,audio\n"
                                "4,H.265,0,D1,15,on\n");
    const std::vector<std::string> plan = RunPlan({}, m_dir.File("defaults.csv"));
    window.EnterRows({ Row(4, H265, 0, D1, Fps15, true) });
    const WindowInputs none;
    const std::vector<std::string> shown = {
        CAgreement(window, m_dir, { "--lang", "en" }).TotalsOfWindow(),
        Shown(window.DiskRequirement(none, true)), Shown(window.RecordingDays(none, true)),
        Shown(window.RaidCapacity(none, true)), Shown(window.DeviceCount(none, true))
    };
    EXPECT_EQ(plan, shown);
    EXPECT_EQ(shown[3], "Available: 3.60TB");
}

TEST_F(PlanAgreementTest, WorkedExamplesShowTheKnownFigures)
{
    CWindowPlanDriver window(0);
    ASSERT_TRUE(window.Ready());
    CAgreement agreement(window, m_dir, { "--lang", "en" });
    for (const WorkedExample& example : WorkedExamples()) {
        const std::vector<std::string> shown = agreement.Check(example.site, example.pszName);
        for (std::size_t i = 0; i < example.expected.size(); ++i)
            EXPECT_EQ(shown.at(i), example.expected[i]) << example.pszName;
    }

    // The installed program prints what the library printed.
    for (const WorkedExample& example : WorkedExamples()) {
        QStringList args;
        for (const std::string& arg : example.site.firstArgs)
            args << QString::fromStdString(arg);
        args << QString::fromStdString(m_dir.File(example.pszName));
        QProcess process;
        process.start(QStringLiteral(TALLIX_APP_DIR "/tallix-plan"), args);
        ASSERT_TRUE(process.waitForFinished(10000));
        EXPECT_EQ(process.exitCode(), 0);
        std::vector<std::string> argv = example.site.firstArgs;
        EXPECT_EQ(Lines(process.readAllStandardOutput().toStdString()),
                  RunPlan(argv, m_dir.File(example.pszName)))
            << example.pszName;
    }
}

TEST_F(PlanAgreementTest, RandomSitesInEnglishAreaZero)
{
    CWindowPlanDriver window(0);
    ASSERT_TRUE(window.Ready());
    CAgreement agreement(window, m_dir, { "--lang", "en" });
    CRandomSite random(kSeed);
    for (int i = 0; i < kEnglishSites && !HasFailure(); ++i)
        agreement.Check(random.Next(), "en-" + std::to_string(i) + ".csv");
}

TEST_F(PlanAgreementTest, RandomSitesInChineseAreaOne)
{
    CWindowPlanDriver window(1);
    ASSERT_TRUE(window.Ready());
    CAgreement agreement(window, m_dir, { "--area", "1", "--lang", "cn" });
    CRandomSite random(kSeed + 1);
    for (int i = 0; i < kChineseSites && !HasFailure(); ++i)
        agreement.Check(random.Next(), "cn-" + std::to_string(i) + ".csv");
}

} // namespace

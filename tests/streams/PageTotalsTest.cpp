// The totals of the table, deletion and clearing, the area, and the handover
// to each mode of the calculator panel.
#include "calculator/CalculatorBottom.h"
#include "language/LangString.h"
#include "tests/streams/PageTestSupport.h"

#include <QString>
#include <gtest/gtest.h>

using namespace Entry;

namespace {

struct Totals : testing::Test {
    CProgramEnvironment environment;
    CMainWindowUnderTest main;
    CPageDriver& d = main.Driver();

    void ExpectTotals(int channels, double kbps)
    {
        EXPECT_EQ(d.Calculator()->GetChannels(), channels);
        EXPECT_EQ(d.Calculator()->GetTotalBitrate(), kbps);
        EXPECT_EQ(d.ChannelsLabel(), QString::number(channels));
    }
};

} // namespace

TEST_F(Totals, RowAtZeroAddsNoChannelsAndAnEmptyTextAddsNoRate)
{
    d.AddRows(2);
    d.FillRow(0, H265, 0, D1, Fps15);
    d.ToggleAudio(0);
    d.StepChannels(0, 3);
    d.StepChannels(1, 1);
    ASSERT_EQ(d.Text(0, ColBitrate), QStringLiteral("316"));
    ASSERT_EQ(d.Text(1, ColBitrate), QStringLiteral("0"));
    ExpectTotals(4, 1264.0);
    EXPECT_EQ(d.BitrateLabel(), QStringLiteral("1264.00 kbps"));
    d.TypeBitrate(1, QString());
    EXPECT_EQ(d.Text(1, ColBitrate), QString());
    ExpectTotals(6, 1264.0);
}

TEST_F(Totals, NineThousandNineHundredNinetyNineChannelsAtTwelveMegapixels)
{
    d.ClickAdd();
    d.FillRow(0, H264, 0, MP12, Fps30);
    ASSERT_EQ(d.Text(0, ColBitrate), QStringLiteral("12288"));
    // The spinner wraps from 1 down to its top.
    d.StepChannels(0, -1);
    EXPECT_EQ(d.Text(0, ColChannels), QStringLiteral("9999"));
    ExpectTotals(9999, 122867712.0);
    EXPECT_EQ(d.BitrateLabel(), QStringLiteral("117.18 Gbps"));
}

TEST_F(Totals, DeletingTheSecondOfFiveRenumbersAndDropsItsShare)
{
    d.AddRows(5);
    d.FillRow(0, H264, 0, CIF, Fps30);     // 512
    d.FillRow(1, H264, 0, D1, Fps30);      // 1024
    d.FillRow(2, H265, 0, MP1, Fps30);     // 1024
    d.FillRow(3, Smart264, 1, MP2, Fps30); // 1024
    d.FillRow(4, H264, 0, MP12, Fps30);    // 12288
    d.StepChannels(1, 2);
    ExpectTotals(7, 512 + 3 * 1024 + 1024 + 1024 + 12288.0);
    d.ClickDelete(1);
    ASSERT_EQ(d.Rows(), 4);
    for (int r = 0; r < 4; ++r)
        EXPECT_EQ(d.Text(r, ColNumber), QString::number(r + 1));
    ExpectTotals(4, 512 + 1024 + 1024 + 12288.0);
    EXPECT_EQ(d.Text(1, ColBitrate), QStringLiteral("1024"));
    EXPECT_TRUE(d.PreviewShown(2));
    // The rows that moved up still answer for themselves.
    d.StepChannels(1, 1);
    ExpectTotals(5, 512 + 2 * 1024 + 1024 + 12288.0);
    d.Choose(3, ColResolution, MP8);
    EXPECT_EQ(d.Text(3, ColBitrate), QStringLiteral("8192"));
    ExpectTotals(5, 512 + 2 * 1024 + 1024 + 8192.0);
}

TEST_F(Totals, DeletingTheLastRowMovesTheCurrentCellUp)
{
    d.AddRows(3);
    d.FillRow(2, H264, 0, D1, Fps30);
    d.ClickDelete(2);
    ASSERT_EQ(d.Rows(), 2);
    EXPECT_EQ(d.List()->currentRow(), 1);
    EXPECT_EQ(d.List()->currentColumn(), 8);
    ExpectTotals(0, 0.0);
    d.ClickDelete(1);
    d.ClickDelete(0);
    EXPECT_EQ(d.Rows(), 0);
}

TEST(Areas, LanguageOneChoosesTheSmallerVgaReference)
{
    for (int language : { 0, 1 }) {
        CProgramEnvironment environment(language);
        CMainWindowUnderTest main;
        CPageDriver& d = main.Driver();
        EXPECT_EQ(d.List()->TableFlag(), language);
        d.ClickAdd();
        d.FillRow(0, H264, 0, VGA, Fps30);
        EXPECT_EQ(d.Text(0, ColBitrate), language ? QStringLiteral("512") : QStringLiteral("1024"));
    }
}

// Captions are dictionary keys; in the values %1 and %2 stand for the words
// of the keys day and hour, or device.
struct ModeCase {
    const char* name;
    unsigned int radio;
    const wchar_t* caption;
    const char* zero;  // value with totals of 0
    const char* value; // value for 4 x 316 kbps
    const wchar_t* word1;
    const wchar_t* word2;
};

QString Words(const char* format, const ModeCase& m)
{
    QString text = QString::fromUtf8(format);
    if (m.word1)
        text = text.arg(QString::fromWCharArray(GetLangString(m.word1, 0)));
    if (m.word2)
        text = text.arg(QString::fromWCharArray(GetLangString(m.word2, 0)));
    return text;
}

class Handover : public testing::TestWithParam<ModeCase> {};

TEST_P(Handover, EachModeAnswersForTheTotalsOfTheTable)
{
    CProgramEnvironment environment;
    CMainWindowUnderTest main;
    CPageDriver& d = main.Driver();
    const ModeCase& m = GetParam();
    const QString caption = QString::fromWCharArray(GetLangString(m.caption, 0));
    d.ClickMode(m.radio);
    EXPECT_EQ(d.ResultCaption(), caption);
    EXPECT_EQ(d.ResultValue(), Words(m.zero, m));
    d.ClickAdd();
    d.FillRow(0, H265, 0, D1, Fps15);
    d.ToggleAudio(0);
    d.StepChannels(0, 3);
    EXPECT_EQ(d.ChannelsLabel(), QStringLiteral("4"));
    EXPECT_EQ(d.BitrateLabel(), QStringLiteral("1264.00 kbps"));
    EXPECT_EQ(d.ResultCaption(), caption);
    EXPECT_EQ(d.ResultValue(), Words(m.value, m));
    d.ClickClearAll();
    EXPECT_EQ(d.ResultValue(), Words(m.zero, m));
}

INSTANTIATE_TEST_SUITE_P(
    Page, Handover,
    testing::Values(ModeCase{ "DiskRequirement", CCalculatorBottom::ID_RADIO_DISK_REQUIREMENT,
                              L"Request Capacity:", "0.00GB", "13.02GB", nullptr, nullptr },
                    ModeCase{ "RecordingDays", CCalculatorBottom::ID_RADIO_RECORDING_DAY,
                              L"Recording Days:", "0 %1 0 %2", "2  %1 1.45 %2", L"Day", L"Hour" },
                    ModeCase{ "RaidCapacity", CCalculatorBottom::ID_RADIO_RAID,
                              L"Available Capacity:", "3.60TB", "3.60TB", nullptr, nullptr },
                    ModeCase{ "RequestDevice", CCalculatorBottom::ID_RADIO_RAID2,
                              L"Request Device:", "0  %1", "1 %1", L"Device", nullptr }),
    [](const testing::TestParamInfo<ModeCase>& info) { return std::string(info.param.name); });

// The totals of the table, deletion and clearing, the area, and the handover
// to each mode of the calculator panel.
#include "CalculatorBottom.h"
#include "LangString.h"
#include "PageTestSupport.h"
#include "QtWait.h"
#include "TallixEventImp.h"

#include <QString>
#include <algorithm>
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
    void ExpectDense(int rows)
    {
        for (int reg = 0; reg < CSFQTListCtrl::RegisterCount; ++reg) {
            QList<int> values = d.List()->RegisterRows(static_cast<CSFQTListCtrl::Register>(reg));
            std::sort(values.begin(), values.end());
            QList<int> dense;
            for (int r = 0; r < rows; ++r)
                dense.append(r);
            EXPECT_EQ(values, dense) << "register " << reg;
        }
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
    d.TypeChannels(0, QStringLiteral("9999"));
    ExpectTotals(9999, 122867712.0);
}

TEST_F(Totals, TypedRateOnAnUntouchedRowCountsAtOnce)
{
    d.ClickAdd();
    d.StepChannels(0, 4);
    d.TypeBitrate(0, QStringLiteral("250"));
    ExpectTotals(5, 1250.0);
}

TEST_F(Totals, DeletingTheSecondOfFiveRenumbersAndDropsItsShare)
{
    d.AddRows(5);
    d.FillRow(0, H264, 0, CIF, Fps30);      // 512
    d.FillRow(1, H264, 0, D1, Fps30);       // 1024
    d.FillRow(2, H265, 0, MP1, Fps30);      // 1024
    d.FillRow(3, Smart264, 1, MP2, Fps30);  // 1024
    d.FillRow(4, H264, 0, MP12, Fps30);     // 12288
    d.StepChannels(1, 2);
    ExpectTotals(7, 512 + 3 * 1024 + 1024 + 1024 + 12288.0);
    d.ClickDelete(1);
    ASSERT_EQ(d.Rows(), 4);
    for (int r = 0; r < 4; ++r)
        EXPECT_EQ(d.Text(r, ColNumber), QString::number(r + 1));
    ExpectDense(4);
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
    d.FillRow(0, H264, 0, D1, Fps30);
    ExpectTotals(1, 1024.0);
    d.ClickDelete(0);
    EXPECT_EQ(d.Rows(), 0);
    ExpectTotals(0, 0.0);
}

TEST_F(Totals, SpinnerOfARowThatMovedUpIsFoundByItself)
{
    // A spinner keeps the id of the row it was made for; after deletions a
    // newer row can stand at that row, and must not answer for it.
    d.AddRows(3);
    d.ClickDelete(2);
    d.ClickDelete(0);
    QTest::qWait(20);
    d.ClickAdd();
    ASSERT_EQ(d.Rows(), 2);
    d.FillRow(0, H264, 0, D1, Fps30);
    ExpectTotals(1, 1024.0);
    d.StepChannels(0, 1);
    ExpectTotals(2, 2048.0);
    d.StepChannels(1, 1);
    ExpectTotals(2, 2048.0);
}

TEST_F(Totals, ClearAllEmptiesTheTableAndReportsZero)
{
    d.AddRows(5);
    d.FillRow(0, H264, 0, D1, Fps30);
    d.FillRow(4, H265, 0, D1, Fps30);
    ExpectTotals(2, 1536.0);
    d.ClickClearAll();
    EXPECT_EQ(d.Rows(), 0);
    ExpectDense(0);
    ExpectTotals(0, 0.0);
    EXPECT_EQ(d.BitrateLabel(), QStringLiteral("0.00 kbps"));
    // An empty table still reports.
    d.Calculator()->SetTotals(5, 100.0);
    d.ClickClearAll();
    ExpectTotals(0, 0.0);
    // Rows added after a clear are numbered from 1 and work.
    d.AddRows(2);
    EXPECT_EQ(d.Text(1, ColNumber), QStringLiteral("2"));
    d.FillRow(1, H264, 0, CIF, Fps30);
    ExpectTotals(1, 512.0);
}

TEST_F(Totals, HandlersPassedTwiceEndInTheSameState)
{
    d.AddRows(2);
    d.FillRow(0, Smart265, 1, MP2, Fps25);
    d.ToggleAudio(0);
    d.FillRow(1, H264, 0, MP12, Fps30);
    d.Choose(1, ColFrameRate, Custom);
    d.TypeCustomRate(1, QStringLiteral("20"));
    CSFQTListCtrl* list = d.List();
    auto snapshot = [&] {
        QStringList s;
        for (int r = 0; r < 2; ++r) {
            for (int c = 0; c < 9; ++c)
                s << d.Text(r, c);
            s << QString::number(d.PreviewShown(r)) << QString::number(d.CustomRateShown(r))
              << d.CustomRateText(r) << QString::number(d.ComboEnabled(r, ColEnvironment));
        }
        s << QString::number(d.Calculator()->GetChannels())
          << QString::number(d.Calculator()->GetTotalBitrate(), 'f', 3);
        return s;
    };
    const QStringList before = snapshot();
    ASSERT_EQ(before[7], QStringLiteral("487"));
    ASSERT_EQ(before[20], QStringLiteral("8192"));
    auto control = [&](CSFQTListCtrl::Register reg, int row) {
        return list->RegisterControl(reg, row);
    };
    // Each handler is given what its control holds now, as a re-entry does.
    auto select = [&](int id, CSFQTListCtrl::Register reg, int row, RowColumn col) {
        list->SelectChanged(id, d.Index(row, col), control(reg, row));
    };
    auto edit = [&](unsigned int id, CSFQTListCtrl::Register reg, int row, const QString& text) {
        std::wstring t = text.toStdWString();
        list->EDIT_OnTextChange(id, t.data(), control(reg, row));
    };
    const struct {
        const char* name;
        std::function<void()> pass;
    } passes[] = {
        { "compression", [&] { select(0x40000000, CSFQTListCtrl::CompressionCombos, 0, ColCompression); } },
        { "environment", [&] { select(0x30000000, CSFQTListCtrl::EnvironmentCombos, 0, ColEnvironment); } },
        { "framerate", [&] { select(0x60000001, CSFQTListCtrl::FrameRateCombos, 1, ColFrameRate); } },
        { "custom", [&] { edit(1, CSFQTListCtrl::CustomRateEdits, 1, d.CustomRateText(1)); } },
        { "bitrate", [&] { edit(0x40000000, CSFQTListCtrl::BitrateEdits, 0, d.Text(0, ColBitrate)); } },
        { "spinner", [&] { list->OnCurrentNumChanged(0, 1, control(CSFQTListCtrl::ChannelSpiners, 0), 0); } },
        { "audio", [&] { list->RADIO_OnClicked(1, 0, tagPOINT{ 0, 0 }, control(CSFQTListCtrl::AudioChecks, 0)); } },
        { "resolution", [&] { select(0x50000001, CSFQTListCtrl::ResolutionCombos, 1, ColResolution); } },
    };
    for (const auto& p : passes) {
        p.pass();
        const QStringList once = snapshot();
        p.pass();
        EXPECT_EQ(snapshot(), once) << p.name;
    }
    // Nothing had anything to change on rows in that state but the
    // resolution, which starts the frame rate at 30 again.
    const QStringList after = snapshot();
    EXPECT_EQ(after.mid(0, 13), before.mid(0, 13));
    EXPECT_EQ(d.Index(1, ColFrameRate), Fps30);
    EXPECT_FALSE(d.CustomRateShown(1));
    EXPECT_EQ(after[20], QStringLiteral("12288"));
}

struct AreaCase {
    int language;
    int resolution;
    const char* bitrate;
};

class Areas : public testing::TestWithParam<AreaCase> {};

TEST_P(Areas, LanguageChoosesTheReferenceColumn)
{
    CProgramEnvironment environment(GetParam().language);
    CMainWindowUnderTest main;
    CPageDriver& d = main.Driver();
    EXPECT_EQ(d.List()->TableFlag(), GetParam().language);
    d.ClickAdd();
    d.FillRow(0, H264, 0, GetParam().resolution, Fps30);
    EXPECT_EQ(d.Text(0, ColBitrate), QString::fromLatin1(GetParam().bitrate));
}

INSTANTIATE_TEST_SUITE_P(Page, Areas,
                         testing::Values(AreaCase{ 0, VGA, "1024" }, AreaCase{ 1, VGA, "512" },
                                         AreaCase{ 0, D1, "1024" }, AreaCase{ 1, D1, "512" },
                                         AreaCase{ 1, CIF, "512" }, AreaCase{ 1, MP1, "2048" }));

// Captions are dictionary keys; in the values %1 and %2 stand for the words
// of the keys day and hour, or device.
struct ModeCase {
    const char* name;
    unsigned int radio;
    const wchar_t* caption;
    const char* zero;   // value with totals of 0
    const char* value;  // value for 4 x 316 kbps
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

std::ostream& operator<<(std::ostream& os, const ModeCase& c)
{
    return os << c.name;
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
    testing::Values(
        ModeCase{ "DiskRequirement", CCalculatorBottom::ID_RADIO_DISK_REQUIREMENT,
                  L"Request Capacity:", "0.00GB", "13.02GB", nullptr, nullptr },
        ModeCase{ "RecordingDays", CCalculatorBottom::ID_RADIO_RECORDING_DAY,
                  L"Recording Days:", "0 %1 0 %2", "2  %1 1.45 %2", L"Day", L"Hour" },
        ModeCase{ "RaidCapacity", CCalculatorBottom::ID_RADIO_RAID, L"Available Capacity:",
                  "3.60TB", "3.60TB", nullptr, nullptr },
        ModeCase{ "RequestDevice", CCalculatorBottom::ID_RADIO_RAID2, L"Request Device:",
                  "0  %1", "1 %1", L"Device", nullptr }),
    [](const testing::TestParamInfo<ModeCase>& info) { return std::string(info.param.name); });

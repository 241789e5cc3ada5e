// The rules of a channel row: what each choice does to the rest of the row,
// the repairs of typed texts, the shown bit rate and the totals.
#include "streams/engine/ChannelRowRules.h"

#include <climits>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace {

TEST(ChannelRowRules, OnlySmartCodecsTakeAScene)
{
    const bool enabled[] = { false, false, false, true, true, false };
    for (int compression = 0; compression <= 5; ++compression)
        EXPECT_EQ(RowSceneEnabled(compression), enabled[compression]) << compression;
    const bool preview[] = { false, true, true, true, false };
    for (int scene = 0; scene <= 4; ++scene)
        EXPECT_EQ(RowPreviewShown(scene), preview[scene]) << scene;
    EXPECT_FALSE(RowPreviewShown(-1));
}

TEST(ChannelRowRules, EveryResolutionStartsAt30)
{
    EXPECT_EQ(RowFrameRateForResolution(0), 0);
    for (int resolution = 1; resolution <= kRowResolution12MP; ++resolution)
        EXPECT_EQ(RowFrameRateForResolution(resolution), kRowFrameRate30) << resolution;
}

struct FrameRateChoice {
    int resolution;
    int frameRate;
    int keptFrameRate;
    int keptResolution;
    bool customShown;
    bool customResets;
};

TEST(ChannelRowRules, FrameRateChoice)
{
    const FrameRateChoice cases[] = {
        // The title takes the resolution with it.
        { 6, 0, 0, 0, false, false },
        { 12, 0, 0, 0, false, false },
        { 6, 7, 7, 6, false, false },
        // 12MP goes no faster than 30.
        { 12, 8, 7, 12, false, false },
        { 12, 9, 7, 12, false, false },
        { 12, 6, 6, 12, false, false },
        { 11, 9, 9, 11, false, false },
        { 0, 9, 9, 0, false, false },
        // "Customize" shows the edit; at 12MP it starts again from "0".
        { 11, 10, 10, 11, true, false },
        { 12, 10, 10, 12, true, true },
        { 0, 10, 10, 0, true, false },
    };
    for (const FrameRateChoice& c : cases) {
        SCOPED_TRACE(testing::Message() << c.resolution << " " << c.frameRate);
        EXPECT_EQ(RowFrameRateAfterChoice(c.resolution, c.frameRate), c.keptFrameRate);
        EXPECT_EQ(RowResolutionAfterFrameRate(c.resolution, c.frameRate), c.keptResolution);
        EXPECT_EQ(RowCustomRateShown(c.frameRate), c.customShown);
        EXPECT_EQ(RowCustomRateResets(c.resolution, c.frameRate), c.customResets);
    }
}

struct TypedText {
    std::wstring typed;
    int resolution;
    std::wstring custom;
    std::wstring bitrate;
};

TEST(ChannelRowRules, TypedTextsAreRepaired)
{
    const TypedText cases[] = {
        { L"", 12, L"", L"" },
        { L"25", 12, L"25", L"25" },
        { L"30", 12, L"30", L"30" },
        { L"31", 12, L"30", L"31" },
        { L"31", 11, L"31", L"31" },
        // Past the last resolution still counts as 12MP for the cap.
        { L"31", 13, L"30", L"31" },
        { L"045", 12, L"30", L"045" },
        { L"1234", 8, L"123", L"1234" },
        { L"1234", 12, L"30", L"1234" },
        { L"12a", 8, L"0", L"0" },
        // Only the kept characters are judged.
        { L"123a", 8, L"123", L"0" },
        { L"-1", 8, L"0", L"0" },
        { L" 5", 8, L"0", L"0" },
        { L"\xFF11\xFF12", 8, L"0", L"0" },
        { L"1234567890", 8, L"123", L"123456789" },
        { L"123456789x", 8, L"123", L"123456789" },
    };
    for (const TypedText& c : cases) {
        SCOPED_TRACE(testing::Message() << std::string(c.typed.begin(), c.typed.end()));
        EXPECT_EQ(RowCustomRateText(c.typed, c.resolution), c.custom);
        EXPECT_EQ(RowTypedBitrateText(c.typed), c.bitrate);
    }
}

TEST(ChannelRowRules, FrameRateValue)
{
    const std::pair<std::pair<int, std::wstring>, int> cases[] = {
        { { 0, L"25" }, 0 },       { { 1, L"25" }, 1 },
        { { 7, L"" }, 30 },        { { 9, L"" }, 60 },
        { { 10, L"25" }, 25 },     { { 10, L"" }, 0 },
        { { 10, L"0" }, 0 },       { { 10, L"12x" }, 12 },
        { { 10, L"1\xFF12" }, 1 }, { { 10, L"1234567890" }, 123456789 },
        { { 11, L"25" }, 0 },      { { -1, L"25" }, 0 },
    };
    for (const auto& [input, value] : cases)
        EXPECT_EQ(RowFrameRateValue(input.first, input.second), value) << input.first;
}

TEST(ChannelRowRules, ReadyWhenCompleteOrShowingANumber)
{
    const std::wstring zero = L"0";
    const std::wstring shown = L"316";
    const std::wstring empty;
    struct Case {
        int compression, resolution, frameRate;
        const std::wstring* text;
        bool ready;
    };
    const Case cases[] = {
        { 1, 3, 4, &zero, true },    { 0, 3, 4, &zero, false },   { 1, 0, 4, &zero, false },
        { 1, 3, 0, &zero, false },   { 0, 0, 0, &shown, true },   { 0, 0, 0, &empty, true },
        { 0, 0, 0, nullptr, false }, { 2, 5, 10, nullptr, true },
    };
    for (const Case& c : cases)
        EXPECT_EQ(RowIsReady(c.compression, c.resolution, c.frameRate, c.text), c.ready)
            << c.compression << c.resolution << c.frameRate;
}

TEST(ChannelRowRules, BitrateTextKeepsThePrintedInteger)
{
    const std::pair<double, std::wstring> cases[] = {
        { 0.0, L"0" },
        { 316.0, L"316" },
        { 316.4, L"316" },
        { 317.5, L"318" },
        { 316.5, L"316" },
        { 4096 * 7 / 30.0, L"956" },
        { 122867712.0, L"122867712" },
        { 4096.0 * 999 / 30, L"136397" },
    };
    for (const auto& [kbps, text] : cases)
        EXPECT_EQ(RowBitrateText(kbps), text) << kbps;
}

struct TotalsCase {
    const char* name;
    std::vector<std::pair<std::wstring, int>> rows;
    unsigned int channels;
    double totalKbps;
};

TEST(ChannelRowRules, TotalsComeFromTheTexts)
{
    const TotalsCase cases[] = {
        { "none", {}, 0, 0.0 },
        { "new row", { { L"0", 1 } }, 0, 0.0 },
        { "free row adds no channels", { { L"316", 4 }, { L"0", 2 } }, 4, 1264.0 },
        { "empty row adds channels only", { { L"316", 4 }, { L"", 2 } }, 6, 1264.0 },
        { "largest row", { { L"12288", 9999 } }, 9999, 122867712.0 },
        { "zeros padded", { { L"00", 3 } }, 3, 0.0 },
        { "stops at a wide digit", { { L"12\xFF15", 2 } }, 2, 24.0 },
        { "32-bit wrap", { { L"1", INT_MAX }, { L"1", INT_MAX } }, 4294967294u, 2.0 * INT_MAX },
    };
    for (const TotalsCase& c : cases) {
        SCOPED_TRACE(c.name);
        ChannelTotals totals;
        for (const auto& [text, count] : c.rows)
            totals.AddRow(text, count);
        EXPECT_EQ(totals.channels, c.channels);
        EXPECT_DOUBLE_EQ(totals.totalKbps, c.totalKbps);
    }
}

// A whole row: D1 at "15" with audio on H.265 shows "316" and counts so.
TEST(ChannelRowRules, RowToTotals)
{
    const double kbps = EstimateRowBitrate(2, 0, 3, RowFrameRateValue(4, L""), true, 0);
    ChannelTotals totals;
    totals.AddRow(RowBitrateText(kbps), 4);
    EXPECT_EQ(totals.channels, 4u);
    EXPECT_DOUBLE_EQ(totals.totalKbps, 1264.0);
}

} // namespace

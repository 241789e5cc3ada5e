// What the controls of a row do to each other, driven by a user's hand on the
// real main window.
#include "calculator/CalculatorBottom.h"
#include "sf/SFComboBox.h"
#include "sf/SFEditCtrl.h"
#include "sf/SFListCtrlIds.h"
#include "sf/SFNumSpiner.h"
#include "tests/streams/PageTestSupport.h"

#include <QApplication>
#include <QDialog>
#include <QString>
#include <QStringList>
#include <functional>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

using namespace Entry;

namespace {

struct RowState {
    bool envEnabled;
    int envIndex;
    bool preview;
    bool custom;
    int resolution;
    int frameRate;
    const char* bitrate;
    const char* customText = nullptr; // checked when given
};

struct RowCase {
    const char* name;
    std::function<void(CPageDriver&)> act;
    RowState expected;
};

class RowStates : public testing::TestWithParam<RowCase> {
protected:
    void SetUp() override { UseProgramEnvironment(0); }
};

// Compression, then resolution and frame rate when given.
auto Row(int compression, int resolution, int frameRate = -1)
{
    return [=](CPageDriver& d) {
        d.Choose(0, ColCompression, compression);
        if (resolution)
            d.Choose(0, ColResolution, resolution);
        if (frameRate >= 0)
            d.Choose(0, ColFrameRate, frameRate);
    };
}

auto CustomRow(int resolution, const char* rate)
{
    return [=](CPageDriver& d) {
        Row(H264, resolution, Custom)(d);
        d.TypeCustomRate(0, QString::fromLatin1(rate));
    };
}

const RowCase kRowCases[] = {
    { "ResolutionSetsThirtyAndTheEstimateFollows",
      Row(H264, D1),
      { false, 0, false, false, D1, Fps30, "1024" } },
    { "SmartCodecWithoutSceneEstimatesAsSceneThree",
      Row(Smart264, MP2),
      { true, 0, false, false, MP2, Fps30, "4096" } },
    { "SmartCodecWithSceneShowsPreview",
      [](CPageDriver& d) {
          d.Choose(0, ColCompression, Smart265);
          d.Choose(0, ColEnvironment, 1);
          d.Choose(0, ColResolution, MP2);
          d.Choose(0, ColFrameRate, Fps25);
          d.ToggleAudio(0);
      },
      { true, 1, true, false, MP2, Fps25, "487" } },
    { "PlainCodecDropsTheScene",
      [](CPageDriver& d) {
          d.Choose(0, ColCompression, Smart264);
          d.Choose(0, ColEnvironment, 2);
          Row(H264, D1)(d);
      },
      { false, 0, false, false, D1, Fps30, "1024" } },
    { "FrameRateTitleDropsTheResolution", Row(H264, D1, 0), { false, 0, false, false, 0, 0, "0" } },
    { "CompressionTitleZeroesAShownNumber",
      [](CPageDriver& d) {
          Row(H264, D1)(d);
          d.Choose(0, ColCompression, 0);
      },
      { false, 0, false, false, D1, Fps30, "0" } },
    { "H265WithAudio",
      [](CPageDriver& d) {
          Row(H265, D1, Fps15)(d);
          d.ToggleAudio(0);
      },
      { false, 0, false, false, D1, Fps15, "316" } },
    { "CustomRateShowsItsEditAndCounts",
      CustomRow(D1, "15"),
      { false, 0, false, true, D1, Custom, "512", "15" } },
    { "ResolutionHidesTheCustomRate",
      [](CPageDriver& d) {
          CustomRow(D1, "15")(d);
          d.Choose(0, ColResolution, MP1);
      },
      { false, 0, false, false, MP1, Fps30, "2048" } },
    { "TwelveMegapixelsFallBackFromSixty",
      Row(H264, MP12, Fps60),
      { false, 0, false, false, MP12, Fps30, "12288" } },
    { "TwelveMegapixelsCustomStartsAtZero",
      Row(H264, MP12, Custom),
      { false, 0, false, true, MP12, Custom, "0", "0" } },
    { "TwelveMegapixelsCapTypedRateAtThirty",
      CustomRow(MP12, "31"),
      { false, 0, false, true, MP12, Custom, "12288", "30" } },
    { "EightMegapixelsKeepThirtyOne",
      CustomRow(MP8, "31"),
      { false, 0, false, true, MP8, Custom, "8465", "31" } },
    { "CustomRateKeepsThreeCharacters",
      CustomRow(D1, "1234"),
      { false, 0, false, true, D1, Custom, "4198", "123" } },
};

// What a user sees of row 0 and the totals.
QStringList Snapshot(CPageDriver& d)
{
    QStringList seen;
    for (ChannelColumn col : { ColCompression, ColEnvironment, ColResolution, ColFrameRate })
        seen << QString::number(d.Index(0, col));
    seen << QString::number(d.ComboEnabled(0, ColEnvironment)) << QString::number(d.PreviewShown(0))
         << QString::number(d.CustomRateShown(0)) << d.CustomRateText(0) << d.Text(0, ColBitrate)
         << QString::number(d.Calculator()->GetChannels())
         << QString::number(d.Calculator()->GetTotalBitrate(), 'f', 0);
    return seen;
}

// Each handler of row 0, fed what its control now holds, as a repeated
// signal would feed it.
std::vector<std::function<void()>> RowHandlers(CPageDriver& d)
{
    using R = CSFQTListCtrl;
    R* list = d.List();
    std::vector<std::function<void()>> handlers;
    const std::pair<R::Register, unsigned int> combos[] = {
        { R::CompressionCombos, SF_LIST_ID_FIRST_COMBO },
        { R::EnvironmentCombos, SF_LIST_ID_BUTTON_COMBO },
        { R::ResolutionCombos, SF_LIST_ID_SECOND_COMBO },
        { R::FrameRateCombos, SF_LIST_ID_EDIT_COMBO }
    };
    for (const auto& [reg, id] : combos) {
        auto* combo = static_cast<CSFComboBox*>(list->RegisterControl(reg, 0));
        handlers.push_back([list, combo, id = id] {
            list->SelectChanged(static_cast<int>(id), combo->GetCurSel(), combo);
        });
    }
    const std::pair<R::Register, unsigned int> edits[] = {
        { R::CustomRateEdits, 0u }, { R::BitrateEdits, SF_LIST_ID_FIRST_COMBO }
    };
    for (const auto& [reg, id] : edits) {
        auto* edit = static_cast<CSFEditCtrl*>(list->RegisterControl(reg, 0));
        handlers.push_back([list, edit, id = id] {
            wchar_t text[32] = {};
            edit->GetWindowTextW(text, 32);
            list->EDIT_OnTextChange(id, text, edit);
        });
    }
    auto* spinner = static_cast<CSFNumSpiner*>(list->RegisterControl(R::ChannelSpiners, 0));
    handlers.push_back(
        [list, spinner] { list->OnCurrentNumChanged(0, spinner->GetCurrentNum(), spinner, 0); });
    return handlers;
}

} // namespace

TEST_P(RowStates, UserActionsLeaveTheRowInItsState)
{
    CMainWindowUnderTest main;
    CPageDriver& d = main.Driver();
    d.ClickAdd();
    ASSERT_EQ(d.Rows(), 1);
    GetParam().act(d);
    const RowState& e = GetParam().expected;
    EXPECT_EQ(d.ComboEnabled(0, ColEnvironment), e.envEnabled);
    EXPECT_EQ(d.Index(0, ColEnvironment), e.envIndex);
    EXPECT_EQ(d.PreviewShown(0), e.preview);
    EXPECT_EQ(d.CustomRateShown(0), e.custom);
    EXPECT_EQ(d.Index(0, ColResolution), e.resolution);
    EXPECT_EQ(d.Index(0, ColFrameRate), e.frameRate);
    EXPECT_EQ(d.Text(0, ColBitrate), QString::fromLatin1(e.bitrate));
    if (e.customText) {
        EXPECT_EQ(d.CustomRateText(0), QString::fromLatin1(e.customText));
    }
    // The totals are the row's text times its one channel.
    const double shown = d.Text(0, ColBitrate).toDouble();
    EXPECT_EQ(d.Calculator()->GetTotalBitrate(), shown);
    EXPECT_EQ(d.Calculator()->GetChannels(), shown == 0 ? 0 : 1);

    // A handler passed through twice ends where it ended the first time.
    const auto handlers = RowHandlers(d);
    for (size_t i = 0; i < handlers.size(); ++i) {
        handlers[i]();
        const QStringList once = Snapshot(d);
        handlers[i]();
        EXPECT_EQ(Snapshot(d), once) << "handler " << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Page, RowStates, testing::ValuesIn(kRowCases),
                         [](const testing::TestParamInfo<RowCase>& info) {
                             return std::string(info.param.name);
                         });

struct RowEdges : testing::Test {
    CProgramEnvironment environment;
    CMainWindowUnderTest main;
    CPageDriver& d = main.Driver();
};

TEST_F(RowEdges, BitrateEditTurnsANonDigitIntoZeroAndKeepsNineDigits)
{
    d.ClickAdd();
    d.StepChannels(0, 2);
    d.TypeBitrate(0, QStringLiteral("12a"));
    EXPECT_EQ(d.Text(0, ColBitrate), QStringLiteral("0"));
    EXPECT_EQ(d.Calculator()->GetChannels(), 0);
    EXPECT_EQ(d.Calculator()->GetTotalBitrate(), 0.0);
    d.TypeBitrate(0, QStringLiteral("1234567890"));
    EXPECT_EQ(d.Text(0, ColBitrate), QStringLiteral("123456789"));
    EXPECT_EQ(d.Calculator()->GetChannels(), 3);
    EXPECT_EQ(d.Calculator()->GetTotalBitrate(), 3 * 123456789.0);
}

TEST_F(RowEdges, TypedRateSurvivesTheSpinnerButNotACombo)
{
    d.ClickAdd();
    d.TypeBitrate(0, QStringLiteral("800"));
    EXPECT_EQ(d.Calculator()->GetTotalBitrate(), 800.0);
    d.StepChannels(0, 1);
    EXPECT_EQ(d.Text(0, ColBitrate), QStringLiteral("800"));
    EXPECT_EQ(d.Calculator()->GetTotalBitrate(), 1600.0);
    d.Choose(0, ColCompression, H264);
    EXPECT_EQ(d.Text(0, ColBitrate), QStringLiteral("0"));
    EXPECT_EQ(d.Calculator()->GetTotalBitrate(), 0.0);
    EXPECT_EQ(d.Calculator()->GetChannels(), 0);
    // On a complete row the audio toggle estimates again.
    d.Choose(0, ColResolution, D1);
    d.TypeBitrate(0, QStringLiteral("700"));
    d.StepChannels(0, 1);
    EXPECT_EQ(d.Text(0, ColBitrate), QStringLiteral("700"));
    EXPECT_EQ(d.Calculator()->GetTotalBitrate(), 2100.0);
    d.ToggleAudio(0);
    EXPECT_EQ(d.Text(0, ColBitrate), QStringLiteral("1084"));
    EXPECT_EQ(d.Calculator()->GetTotalBitrate(), 3252.0);
}

TEST_F(RowEdges, PreviewOpensTheScenesDialog)
{
    d.ClickAdd();
    d.Choose(0, ColCompression, Smart265);
    d.Choose(0, ColEnvironment, 3);
    ASSERT_TRUE(d.PreviewShown(0));

    QSize dialogSize;
    CModalWatch watch([&](QDialog* dialog) {
        dialogSize = dialog->size();
        dialog->reject();
    });
    d.ClickPreview(0);
    EXPECT_EQ(watch.Seen(), 1);
    EXPECT_EQ(dialogSize, QSize(451, 461));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(d.Rows(), 1);
}

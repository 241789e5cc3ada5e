// What the controls of a row do to each other, driven by a user's hand on the
// real main window.
#include "CalculatorBottom.h"
#include "PageTestSupport.h"
#include "QtWait.h"
#include "TallixEventImp.h"

#include <QApplication>
#include <QString>
#include <functional>
#include <gtest/gtest.h>
#include <QTimer>
#include <QDialog>

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

std::ostream& operator<<(std::ostream& os, const RowCase& c)
{
    return os << c.name;
}

class RowStates : public testing::TestWithParam<RowCase> {
protected:
    void SetUp() override { UseProgramEnvironment(0); }
};

const RowCase kRowCases[] = {
    { "CompressionOnlyLeavesZero",
      [](CPageDriver& d) { d.Choose(0, ColCompression, H264); },
      { false, 0, false, false, 0, 0, "0" } },
    { "ResolutionSetsThirtyAndTheEstimateFollows",
      [](CPageDriver& d) {
          d.Choose(0, ColCompression, H264);
          d.Choose(0, ColResolution, D1);
      },
      { false, 0, false, false, D1, Fps30, "1024" } },
    { "ResolutionBeforeCompression",
      [](CPageDriver& d) {
          d.Choose(0, ColResolution, D1);
          d.Choose(0, ColCompression, H264);
      },
      { false, 0, false, false, D1, Fps30, "1024" } },
    { "SmartCodecWithoutSceneEstimatesAsSceneThree",
      [](CPageDriver& d) {
          d.Choose(0, ColCompression, Smart264);
          d.Choose(0, ColResolution, MP2);
      },
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
          d.Choose(0, ColResolution, D1);
          d.Choose(0, ColCompression, H264);
      },
      { false, 0, false, false, D1, Fps30, "1024" } },
    { "SceneBackToTitleHidesPreview",
      [](CPageDriver& d) {
          d.Choose(0, ColCompression, Smart264);
          d.Choose(0, ColEnvironment, 3);
          d.Choose(0, ColEnvironment, 0);
      },
      { true, 0, false, false, 0, 0, "0" } },
    { "FrameRateTitleDropsTheResolution",
      [](CPageDriver& d) {
          d.Choose(0, ColCompression, H264);
          d.Choose(0, ColResolution, D1);
          d.Choose(0, ColFrameRate, 0);
      },
      { false, 0, false, false, 0, 0, "0" } },
    { "CompressionTitleZeroesAShownNumber",
      [](CPageDriver& d) {
          d.Choose(0, ColCompression, H264);
          d.Choose(0, ColResolution, D1);
          d.Choose(0, ColCompression, 0);
      },
      { false, 0, false, false, D1, Fps30, "0" } },
    { "H265WithAudio",
      [](CPageDriver& d) {
          d.Choose(0, ColCompression, H265);
          d.Choose(0, ColResolution, D1);
          d.Choose(0, ColFrameRate, Fps15);
          d.ToggleAudio(0);
      },
      { false, 0, false, false, D1, Fps15, "316" } },
    { "AudioOnAnIncompleteRowStaysSilent",
      [](CPageDriver& d) {
          d.Choose(0, ColCompression, H264);
          d.ToggleAudio(0);
      },
      { false, 0, false, false, 0, 0, "0" } },
    { "CustomRateShowsItsEditAndCounts",
      [](CPageDriver& d) {
          d.Choose(0, ColCompression, H264);
          d.Choose(0, ColResolution, D1);
          d.Choose(0, ColFrameRate, Custom);
          d.TypeCustomRate(0, QStringLiteral("15"));
      },
      { false, 0, false, true, D1, Custom, "512", "15" } },
    { "EmptyCustomRateEstimatesZero",
      [](CPageDriver& d) {
          d.Choose(0, ColCompression, H264);
          d.Choose(0, ColResolution, D1);
          d.Choose(0, ColFrameRate, Custom);
          d.TypeCustomRate(0, QString());
      },
      { false, 0, false, true, D1, Custom, "0" } },
    { "ResolutionHidesTheCustomRate",
      [](CPageDriver& d) {
          d.Choose(0, ColCompression, H264);
          d.Choose(0, ColResolution, D1);
          d.Choose(0, ColFrameRate, Custom);
          d.TypeCustomRate(0, QStringLiteral("15"));
          d.Choose(0, ColResolution, MP1);
      },
      { false, 0, false, false, MP1, Fps30, "2048" } },
    { "TwelveMegapixelsFallBackFromSixty",
      [](CPageDriver& d) {
          d.Choose(0, ColCompression, H264);
          d.Choose(0, ColResolution, MP12);
          d.Choose(0, ColFrameRate, Fps60);
      },
      { false, 0, false, false, MP12, Fps30, "12288" } },
    { "TwelveMegapixelsFallBackFromFortyFive",
      [](CPageDriver& d) {
          d.Choose(0, ColCompression, H264);
          d.Choose(0, ColResolution, MP12);
          d.Choose(0, ColFrameRate, Fps45);
      },
      { false, 0, false, false, MP12, Fps30, "12288" } },
    { "TwelveMegapixelsCustomStartsAtZero",
      [](CPageDriver& d) {
          d.Choose(0, ColCompression, H264);
          d.Choose(0, ColResolution, MP12);
          d.Choose(0, ColFrameRate, Custom);
      },
      { false, 0, false, true, MP12, Custom, "0", "0" } },
    { "TwelveMegapixelsCapTypedRateAtThirty",
      [](CPageDriver& d) {
          d.Choose(0, ColCompression, H264);
          d.Choose(0, ColResolution, MP12);
          d.Choose(0, ColFrameRate, Custom);
          d.TypeCustomRate(0, QStringLiteral("31"));
      },
      { false, 0, false, true, MP12, Custom, "12288", "30" } },
    { "EightMegapixelsKeepThirtyOne",
      [](CPageDriver& d) {
          d.Choose(0, ColCompression, H264);
          d.Choose(0, ColResolution, MP8);
          d.Choose(0, ColFrameRate, Custom);
          d.TypeCustomRate(0, QStringLiteral("31"));
      },
      { false, 0, false, true, MP8, Custom, "8465", "31" } },
    { "EightMegapixelsTakeSixty",
      [](CPageDriver& d) {
          d.Choose(0, ColCompression, H264);
          d.Choose(0, ColResolution, MP8);
          d.Choose(0, ColFrameRate, Fps60);
      },
      { false, 0, false, false, MP8, Fps60, "16384" } },
    { "CustomRateKeepsThreeCharacters",
      [](CPageDriver& d) {
          d.Choose(0, ColCompression, H264);
          d.Choose(0, ColResolution, D1);
          d.Choose(0, ColFrameRate, Custom);
          d.TypeCustomRate(0, QStringLiteral("1234"));
      },
      { false, 0, false, true, D1, Custom, "4198", "123" } },
    { "CustomRateWithALetterBecomesZero",
      [](CPageDriver& d) {
          d.Choose(0, ColCompression, H264);
          d.Choose(0, ColResolution, D1);
          d.Choose(0, ColFrameRate, Custom);
          d.TypeCustomRate(0, QStringLiteral("2x"));
      },
      { false, 0, false, true, D1, Custom, "0", "0" } },
};

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

TEST_F(RowEdges, BitrateEditTurnsANonDigitIntoZeroAndTheTotalsFollow)
{
    d.ClickAdd();
    d.StepChannels(0, 2);
    d.TypeBitrate(0, QStringLiteral("12a"));
    EXPECT_EQ(d.Text(0, ColBitrate), QStringLiteral("0"));
    EXPECT_EQ(d.Calculator()->GetChannels(), 0);
    EXPECT_EQ(d.Calculator()->GetTotalBitrate(), 0.0);
    d.TypeBitrate(0, QStringLiteral("12"));
    EXPECT_EQ(d.Calculator()->GetChannels(), 3);
    EXPECT_EQ(d.Calculator()->GetTotalBitrate(), 36.0);
}

TEST_F(RowEdges, BitrateEditKeepsNineDigits)
{
    d.ClickAdd();
    d.TypeBitrate(0, QStringLiteral("1234567890"));
    EXPECT_EQ(d.Text(0, ColBitrate), QStringLiteral("123456789"));
    EXPECT_EQ(d.Calculator()->GetTotalBitrate(), 123456789.0);
    EXPECT_EQ(d.Calculator()->GetChannels(), 1);
}

TEST_F(RowEdges, TypedRateSurvivesTheSpinnerButNotTheAudioToggle)
{
    d.ClickAdd();
    d.Choose(0, ColCompression, H264);
    d.Choose(0, ColResolution, D1);
    ASSERT_EQ(d.Text(0, ColBitrate), QStringLiteral("1024"));
    d.TypeBitrate(0, QStringLiteral("700"));
    EXPECT_EQ(d.Calculator()->GetTotalBitrate(), 700.0);
    d.StepChannels(0, 2);
    EXPECT_EQ(d.Text(0, ColBitrate), QStringLiteral("700"));
    EXPECT_EQ(d.Calculator()->GetChannels(), 3);
    EXPECT_EQ(d.Calculator()->GetTotalBitrate(), 2100.0);
    d.ToggleAudio(0);
    EXPECT_EQ(d.Text(0, ColBitrate), QStringLiteral("1084"));
    EXPECT_EQ(d.Calculator()->GetTotalBitrate(), 3252.0);
}

TEST_F(RowEdges, TypedRateOnAnIncompleteRowSurvivesTheSpinnerNotACombo)
{
    d.ClickAdd();
    d.TypeBitrate(0, QStringLiteral("800"));
    EXPECT_EQ(d.Calculator()->GetTotalBitrate(), 800.0);
    EXPECT_EQ(d.Calculator()->GetChannels(), 1);
    d.StepChannels(0, 1);
    EXPECT_EQ(d.Text(0, ColBitrate), QStringLiteral("800"));
    EXPECT_EQ(d.Calculator()->GetTotalBitrate(), 1600.0);
    d.Choose(0, ColCompression, H264);
    EXPECT_EQ(d.Text(0, ColBitrate), QStringLiteral("0"));
    EXPECT_EQ(d.Calculator()->GetTotalBitrate(), 0.0);
    EXPECT_EQ(d.Calculator()->GetChannels(), 0);
}

TEST_F(RowEdges, AChoiceByMouseInThePopupWorksLikeTheKeys)
{
    d.ClickAdd();
    d.ChooseByMouse(0, ColCompression, H265);
    d.ChooseByMouse(0, ColResolution, CIF);
    EXPECT_EQ(d.Index(0, ColFrameRate), Fps30);
    EXPECT_EQ(d.Text(0, ColBitrate), QStringLiteral("256"));
}

TEST_F(RowEdges, RowsReactOnlyToTheirOwnControls)
{
    d.AddRows(3);
    d.FillRow(1, H264, 0, D1, Fps30);
    d.FillRow(2, Smart264, 2, MP2, Fps15);
    EXPECT_EQ(d.Text(0, ColBitrate), QStringLiteral("0"));
    EXPECT_EQ(d.Text(1, ColBitrate), QStringLiteral("1024"));
    EXPECT_EQ(d.Text(2, ColBitrate), QStringLiteral("1024"));
    EXPECT_FALSE(d.PreviewShown(1));
    EXPECT_TRUE(d.PreviewShown(2));
    d.Choose(1, ColCompression, Smart264);
    EXPECT_TRUE(d.ComboEnabled(1, ColEnvironment));
    EXPECT_FALSE(d.ComboEnabled(0, ColEnvironment));
    EXPECT_EQ(d.Index(2, ColEnvironment), 2);
    EXPECT_EQ(d.Calculator()->GetTotalBitrate(), 2048.0);
    EXPECT_EQ(d.Calculator()->GetChannels(), 2);
}

TEST_F(RowEdges, PreviewOpensTheScenesDialog)
{
    d.ClickAdd();
    d.Choose(0, ColCompression, Smart265);
    d.Choose(0, ColEnvironment, 3);
    ASSERT_TRUE(d.PreviewShown(0));

    // The preview runs modally inside the click; close it from outside.
    QSize dialogSize;
    QTimer poll;
    poll.setInterval(20);
    QObject::connect(&poll, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        poll.stop();
        dialogSize = dialog->size();
        dialog->reject();
    });
    poll.start();
    d.ClickPreview(0);
    EXPECT_EQ(dialogSize, QSize(451, 461));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(d.Rows(), 1);
}

TEST_F(RowEdges, SelectionNotificationsTellWhereABlankRowGoes)
{
    d.AddRows(3);
    d.FillRow(2, H264, 0, CIF, Fps30);
    CSFQTListCtrl* list = d.List();
    UserClick(list->viewport(), list->visualRect(list->model()->index(1, 0)).center());
    EXPECT_EQ(d.Page()->m_nSelectedRow, 1);
    d.Page()->OnInsertBlankRow();
    ASSERT_EQ(d.Rows(), 4);
    EXPECT_EQ(d.Text(2, ColNumber), QStringLiteral("3"));
    // The row that moved down keeps its controls and its reactions.
    EXPECT_EQ(d.Text(3, ColBitrate), QStringLiteral("512"));
    d.Choose(3, ColResolution, D1);
    EXPECT_EQ(d.Text(3, ColBitrate), QStringLiteral("1024"));
    EXPECT_EQ(d.Calculator()->GetTotalBitrate(), 1024.0);
}

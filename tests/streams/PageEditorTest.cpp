// The stream editor on the real page: its own rate rule as the user's combo
// choices reach it, its one message, and the sub stream toggle.
#include "sf/SFControlTypes.h"
#include "sf/SFFactory.h"
#include "sf/SFView.h"
#include "sf/qt/SFQTStatic.h"
#include "sf/qt/SFQtConvert.h"
#include "streams/TallixEventImp.h"
#include "streams/ViewChannelInfoEditor.h"
#include "tests/streams/PageTestSupport.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <gtest/gtest.h>

namespace {

using Editor = CViewChannelInfoEditor;

constexpr int kFps30 = 7;
constexpr int kFps15 = 10;
constexpr int kRes2MP = 3;
constexpr int kRes8MP = 8;
constexpr int kH264 = 1;
constexpr int kH265 = 2;

struct EditorOnPage : testing::Test {
    CProgramEnvironment environment;
    CMainWindowUnderTest main;
    Editor* editor = nullptr;
    CSFView* view = nullptr;

    void SetUp() override
    {
        editor = new Editor(main.Page(), false);
        view = SFCreateView(editor);
        ASSERT_NE(view, nullptr);
        view->Create(L"", L"", SF_WS_VISIBLE, tagRECT{ 0, 0, 1100, 250 }, main.Page()->GetUIWnd(),
                     0);
    }
    void TearDown() override
    {
        SFDestroyControl(view);
        delete editor;
    }

    template <class T>
    T* Control(const char* kind, unsigned int id) const
    {
        // The form's own: the page above uses some of the same ids.
        QWidget* form = SFWidgetFromHandle(editor->GetUIWnd());
        const QString name = QStringLiteral("%1_%2").arg(QLatin1String(kind)).arg(id);
        return form ? form->findChild<T*>(name) : nullptr;
    }
    QComboBox* Combo(unsigned int firstId, int stream) const
    {
        return Control<QComboBox>("combo", firstId + stream * Editor::IdComboPitch);
    }
    QLineEdit* Rate(int stream) const
    {
        return Control<QLineEdit>("edit", Editor::IdBitrate + stream);
    }

    // The user picks an entry; the editor hears of it as a forwarded change.
    void Choose(unsigned int firstId, int index, int stream = 0)
    {
        UserChoose(Combo(firstId, stream), index);
        editor->OnSelectChanged(static_cast<int>(firstId + stream * Editor::IdComboPitch), index);
    }
    void ClickAdd() { UserClick(Control<QWidget>("button", Editor::IdAdd)); }
};

struct RateCase {
    const char* what;
    int compression;
    int resolution;
    int frameRate; // -1: left as the resolution sets it
    int audio;
    const char* shown;
    int frameRateAfter;
};

class EditorRate : public EditorOnPage, public testing::WithParamInterface<RateCase> {};

TEST_P(EditorRate, FollowsTheEditorsOwnRule)
{
    const RateCase& c = GetParam();
    Choose(Editor::IdCompression, c.compression);
    Choose(Editor::IdResolution, c.resolution);
    if (c.frameRate >= 0)
        Choose(Editor::IdFrameRate, c.frameRate);
    Choose(Editor::IdAudio, c.audio);
    EXPECT_EQ(Rate(0)->text(), QString::fromLatin1(c.shown)) << c.what;
    EXPECT_EQ(Combo(Editor::IdFrameRate, 0)->currentIndex(), c.frameRateAfter) << c.what;
}

INSTANTIATE_TEST_SUITE_P(
    Streams, EditorRate,
    testing::Values(RateCase{ "2MP at 30", kH264, kRes2MP, kFps30, 0, "4080.00", kFps30 },
                    RateCase{ "H.265 takes 0.7", kH265, kRes2MP, kFps30, 0, "2856.00", kFps30 },
                    RateCase{ "audio adds 64", kH265, kRes2MP, kFps30, 1, "2920.00", kFps30 },
                    RateCase{ "8MP starts at 15", kH264, kRes8MP, -1, 0, "8190.00", kFps15 },
                    RateCase{ "8MP is held at 15", kH264, kRes8MP, kFps30, 0, "8190.00", kFps15 },
                    RateCase{ "no compression, no rate", 0, kRes2MP, kFps30, 0, "", kFps30 }));

TEST_F(EditorOnPage, AddWithoutARateShowsTheOneMessageAndAValidRateNone)
{
    QString message;
    {
        CModalWatch watch([&](QDialog* dialog) {
            if (auto* text = dialog->findChild<CSFQTStatic*>())
                message = text->text();
            dialog->reject();
        });
        ClickAdd();
        EXPECT_EQ(watch.Seen(), 1);
    }
    EXPECT_EQ(message, QStringLiteral("Invalid bit rate,please check."));

    Choose(Editor::IdCompression, kH264);
    Choose(Editor::IdResolution, kRes2MP);
    CModalWatch none([](QDialog* dialog) { dialog->reject(); });
    ClickAdd();
    EXPECT_EQ(none.Seen(), 0);
}

TEST_F(EditorOnPage, TheToggleShowsTheSubStreamsWithTheirRatesAndMovesTheButtons)
{
    EXPECT_TRUE(Rate(1)->isHidden());
    UserClick(Control<QWidget>("button", Editor::IdToggle));
    for (int stream = 0; stream < Editor::StreamCount; ++stream) {
        EXPECT_FALSE(Rate(stream)->isHidden()) << stream;
        // Nothing chosen: the rule reads a rate of 0.
        EXPECT_EQ(Rate(stream)->text(), QStringLiteral("0.00")) << stream;
    }
    EXPECT_EQ(Control<QWidget>("button", Editor::IdAdd)->y(), 160);
    EXPECT_EQ(Control<QAbstractButton>("button", Editor::IdToggle)->text(),
              QStringLiteral("Disable Sub Stream"));
    // The page's table makes room for the taller form.
    EXPECT_EQ(main.Driver().List()->y(), 201);
}

} // namespace

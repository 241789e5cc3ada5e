// The stream editor in a host window next to a channel page, driven with
// clicks, popup choices and keys as a user would.

#include "PageTestSupport.h"

#include "SFControlTypes.h"
#include "SFFactory.h"
#include "SFView.h"
#include "TallixEventImp.h"
#include "ViewChannelInfoEditor.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTest>
#include <gtest/gtest.h>

namespace {

using Editor = CViewChannelInfoEditor;

constexpr int kPageWidth = 1100;

// A host that wires the combos to the editor's two-argument handler.
class CWiredEditor : public CViewChannelInfoEditor {
public:
    using CViewChannelInfoEditor::CViewChannelInfoEditor;
    void SelectChanged(int id, int index, void*) override { OnSelectChanged(id, index); }
};

// The editor's view on a light top window of its own.
class CEditorHost {
public:
    CEditorHost(CTallixEventImp* page, bool subStreams)
    {
        m_editor = new CWiredEditor(page, subStreams);
        m_view = SFCreateView(m_editor);
        m_view->SetBGClr(0x00F5F5F5);
        m_view->Create(L"", L"", SF_WS_VISIBLE, tagRECT{ 0, 0, kPageWidth, 230 }, nullptr, 0);
        if (QWidget* w = Window()) {
            w->show();
            w->activateWindow();
            if (!QTest::qWaitForWindowExposed(w))
                ADD_FAILURE() << "the editor was not exposed";
        }
    }
    ~CEditorHost()
    {
        SFDestroyControl(m_view);
        delete m_editor;
    }
    CEditorHost(const CEditorHost&) = delete;
    CEditorHost& operator=(const CEditorHost&) = delete;

    Editor* operator->() const { return m_editor; }
    QWidget* Window() const { return dynamic_cast<QWidget*>(m_view); }

    template <class T>
    T* Find(const char* kind, unsigned int id) const
    {
        return Window()->findChild<T*>(QString::fromLatin1(kind) + QLatin1Char('_') +
                                       QString::number(id));
    }
    QComboBox* Combo(unsigned int first, int stream) const
    {
        return Find<QComboBox>("combo", first + static_cast<unsigned int>(stream) * 7u);
    }
    QLineEdit* Edit(int stream) const
    {
        return Find<QLineEdit>("edit", Editor::IdBitrate + static_cast<unsigned int>(stream));
    }
    QSpinBox* Spinner() const { return Find<QSpinBox>("spinner", Editor::IdChannels); }
    QAbstractButton* Button(unsigned int id) const { return Find<QAbstractButton>("button", id); }

    void Choose(unsigned int first, int stream, int index)
    {
        UserChoose(Combo(first, stream), index);
    }
    void Click(unsigned int id) { UserClick(Button(id)); }

private:
    Editor* m_editor = nullptr;
    CSFView* m_view = nullptr;
};

class EditorFixture : public testing::Test {
protected:
    CProgramEnvironment env;
    CMainWindowUnderTest main;

    CTallixEventImp* Page() const { return main.Page(); }
    QWidget* PageList() const { return dynamic_cast<QWidget*>(Page()->m_pList); }
};

struct RateCase {
    const char* name;
    int stream, compression, resolution;
    int frameRate; // 0: what the resolution sets
    int audio, shownFrameRate;
    const char* text;
};

class EditorRates : public EditorFixture, public testing::WithParamInterface<RateCase> {};

TEST_P(EditorRates, ShowsTheRuleOfTheChosenEntries)
{
    const RateCase& c = GetParam();
    CEditorHost editor(Page(), c.stream != 0);
    if (c.compression)
        editor.Choose(Editor::IdCompression, c.stream, c.compression);
    editor.Choose(Editor::IdResolution, c.stream, c.resolution);
    if (c.frameRate)
        editor.Choose(Editor::IdFrameRate, c.stream, c.frameRate);
    if (c.audio)
        editor.Choose(Editor::IdAudio, c.stream, c.audio);

    EXPECT_EQ(editor.Combo(Editor::IdFrameRate, c.stream)->currentIndex(), c.shownFrameRate);
    EXPECT_EQ(editor.Edit(c.stream)->text(), QString::fromLatin1(c.text));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, EditorRates,
    testing::Values(RateCase{ "H264_2MP_30", 0, 1, 3, 0, 0, 7, "4080.00" },
                    RateCase{ "H265_2MP_30_Audio", 0, 2, 3, 0, 1, 7, "2920.00" },
                    RateCase{ "H264_8MP_StartsAt15", 0, 1, 8, 0, 0, 10, "8190.00" },
                    RateCase{ "H264_12MP_30FallsBackTo15", 0, 1, 9, 7, 0, 10, "12285.00" },
                    RateCase{ "H264_1MP_60", 0, 1, 1, 1, 0, 1, "4080.00" },
                    RateCase{ "NoCompressionShowsNothing", 0, 0, 3, 0, 0, 7, "" },
                    RateCase{ "Sub2_H265_12MP_Audio", 2, 2, 9, 0, 1, 10, "8663.50" }),
    [](const testing::TestParamInfo<RateCase>& info) { return info.param.name; });

class EditorBadRate : public EditorFixture, public testing::WithParamInterface<const char*> {};

TEST_P(EditorBadRate, ShowsTheMessageAndAddsNothing)
{
    CEditorHost editor(Page(), false);
    editor.Choose(Editor::IdCompression, 0, 1);
    editor.Choose(Editor::IdResolution, 0, 3);
    UserType(editor.Edit(0), QString::fromLatin1(GetParam()));

    QString shownText;
    CModalWatch watch([&](QDialog* dialog) {
        for (QLabel* label : dialog->findChildren<QLabel*>())
            shownText += label->text();
        QAbstractButton* ok = dialog->findChild<QAbstractButton*>(QStringLiteral("button_1"));
        ASSERT_NE(ok, nullptr);
        UserClick(ok);
    });
    editor.Click(Editor::IdAdd);

    EXPECT_EQ(watch.Seen(), 1);
    EXPECT_EQ(shownText, QStringLiteral("Invalid bit rate,please check."));
    EXPECT_TRUE(editor->m_mapStreams.empty());
    // A failed add leaves the form as it stands.
    EXPECT_EQ(editor.Edit(0)->text(), QString::fromLatin1(GetParam()));
    EXPECT_EQ(editor.Combo(Editor::IdResolution, 0)->currentIndex(), 3);
}

INSTANTIATE_TEST_SUITE_P(Texts, EditorBadRate, testing::Values("0", "", "abc"));

TEST_F(EditorFixture, AddStoresThreeRecordsWithTheSubRowsHidden)
{
    CEditorHost editor(Page(), false);
    editor.Choose(Editor::IdCompression, 0, 1);
    editor.Choose(Editor::IdResolution, 0, 3);
    editor.Choose(Editor::IdAudio, 0, 1);
    UserType(editor.Spinner(), QStringLiteral("12"));

    CModalWatch watch([](QDialog* dialog) { dialog->reject(); });
    editor.Click(Editor::IdAdd);

    EXPECT_EQ(watch.Seen(), 0);
    EXPECT_EQ(editor->m_nChannels, 12);
    ASSERT_EQ(editor->m_mapStreams.size(), 3u);
    const StreamInfo& main = editor->m_mapStreams.at(0);
    EXPECT_EQ(main.nCompression, 1);
    EXPECT_EQ(main.nResolution, 3);
    EXPECT_EQ(main.nFrameRate, 7);
    EXPECT_EQ(main.nAudio, 1);
    EXPECT_DOUBLE_EQ(main.dBitrate, 4144.0);
    for (int key = 1; key <= 2; ++key) {
        const StreamInfo& sub = editor->m_mapStreams.at(key);
        EXPECT_EQ(sub.nResolution, 0);
        EXPECT_DOUBLE_EQ(sub.dBitrate, 0.0);
    }
}

TEST_F(EditorFixture, SpinnerWrapsAroundItsRange)
{
    CEditorHost editor(Page(), false);
    QSpinBox* spinner = editor.Spinner();
    UserType(spinner, QStringLiteral("256"));
    EXPECT_EQ(spinner->value(), 256);
    QTest::keyClick(spinner, Qt::Key_Up);
    EXPECT_EQ(spinner->value(), 1);
    QTest::keyClick(spinner, Qt::Key_Down);
    EXPECT_EQ(spinner->value(), 256);
}

TEST_F(EditorFixture, ToggleShowsTheSubRowsMovesTheButtonsAndResizesTheList)
{
    CEditorHost editor(Page(), false);
    editor.Choose(Editor::IdCompression, 0, 1);
    editor.Choose(Editor::IdResolution, 0, 3);
    const int w = PageList()->parentWidget()->width();

    editor.Click(Editor::IdToggle);
    EXPECT_TRUE(editor->IsSubStreamsShown());
    EXPECT_EQ(editor.Button(0x804)->text(), QStringLiteral("Disable Sub Stream"));
    EXPECT_EQ(editor.Button(0x804)->geometry(), QRect(10, 160, 150, 25));
    EXPECT_EQ(editor.Button(0xBCC)->geometry(), QRect(904, 160, 72, 25));
    EXPECT_EQ(PageList()->geometry(), QRect(10, 201, w - 20, 220));
    EXPECT_TRUE(editor.Edit(2)->isVisible());
    EXPECT_EQ(editor.Edit(0)->text(), QStringLiteral("4080.00"));

    editor.Click(Editor::IdToggle);
    EXPECT_FALSE(editor->IsSubStreamsShown());
    EXPECT_EQ(editor.Button(0x804)->text(), QStringLiteral("Enable Sub Stream"));
    EXPECT_EQ(editor.Button(0xBCC)->geometry(), QRect(904, 85, 72, 25));
    EXPECT_EQ(PageList()->geometry(), QRect(10, 121, w - 20, 300));
    EXPECT_FALSE(editor.Edit(2)->isVisible());
}

} // namespace

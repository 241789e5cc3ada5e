// The stream editor in a host window next to a channel page, driven with
// clicks, popup choices and keys as a user would.

#include "PageTestSupport.h"

#include "SFControlTypes.h"
#include "SFFactory.h"
#include "SFListCtrl.h"
#include "SFQTComboBox.h"
#include "SFQTStatic.h"
#include "SFView.h"
#include "TallixEventImp.h"
#include "ViewChannelInfoEditor.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QPointer>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

#include "QtWait.h"

namespace {

using Editor = CViewChannelInfoEditor;

constexpr int kPageWidth = 1100;

// A host that wires the combos to the editor's two-argument handler.
class CWiredEditor : public CViewChannelInfoEditor {
public:
    using CViewChannelInfoEditor::CViewChannelInfoEditor;
    void SelectChanged(int id, int index, void*) override { OnSelectChanged(id, index); }
};

unsigned int ComboId(unsigned int first, int stream)
{
    return first + static_cast<unsigned int>(stream) * 7u;
}

// The editor's view on a light top window of its own.
class CEditorHost {
public:
    CEditorHost(CTallixEventImp* page, bool subStreams, bool wired = true)
    {
        m_editor = wired ? new CWiredEditor(page, subStreams) : new Editor(page, subStreams);
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
    Editor* Get() const { return m_editor; }
    QWidget* Window() const { return dynamic_cast<QWidget*>(m_view); }

    template <class T>
    T* Find(const char* kind, unsigned int id) const
    {
        return Window()->findChild<T*>(QString::fromLatin1(kind) + QLatin1Char('_') +
                                       QString::number(id));
    }
    QComboBox* Combo(unsigned int first, int stream) const
    {
        return Find<QComboBox>("combo", ComboId(first, stream));
    }
    QLineEdit* Edit(int stream) const
    {
        return Find<QLineEdit>("edit", Editor::IdBitrate + static_cast<unsigned int>(stream));
    }
    QSpinBox* Spinner() const { return Find<QSpinBox>("spinner", Editor::IdChannels); }
    QAbstractButton* Button(unsigned int id) const { return Find<QAbstractButton>("button", id); }
    QLabel* Label(const QString& text) const
    {
        for (QLabel* label : Window()->findChildren<QLabel*>()) {
            if (label->text() == text)
                return label;
        }
        return nullptr;
    }

    // Opens the combo with a click and picks the entry with the arrow keys.
    void Choose(unsigned int first, int stream, int index)
    {
        QComboBox* combo = Combo(first, stream);
        ASSERT_NE(combo, nullptr);
        UserClick(combo);
        QAbstractItemView* view = combo->view();
        ASSERT_TRUE(QTest::qWaitFor([view] { return view->isVisible(); }, 2000));
        for (int guard = 0; guard < 30 && view->currentIndex().row() != index; ++guard)
            QTest::keyClick(view, view->currentIndex().row() < index ? Qt::Key_Down : Qt::Key_Up);
        QTest::keyClick(view, Qt::Key_Return);
        ASSERT_TRUE(QTest::qWaitFor([view] { return !view->isVisible(); }, 2000));
    }
    void Type(QWidget* w, const QString& text)
    {
        ASSERT_NE(w, nullptr);
        UserClick(w, QPoint(8, w->height() / 2));
        QTest::keyClick(w, Qt::Key_A, Qt::ControlModifier);
        if (text.isEmpty())
            QTest::keyClick(w, Qt::Key_Delete);
        else
            QTest::keyClicks(w, text);
    }
    void Click(unsigned int id) { UserClick(Button(id)); }

private:
    Editor* m_editor = nullptr;
    CSFView* m_view = nullptr;
};

// Runs inspect on the first modal dialog that shows while it lives; inspect
// must close it.
class CModalWatch {
public:
    explicit CModalWatch(std::function<void(QDialog*)> inspect)
        : m_poll(new QTimer(qApp))
    {
        m_poll->setInterval(5);
        QTimer* poll = m_poll;
        QObject::connect(poll, &QTimer::timeout, poll, [this, poll, inspect] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible())
                return;
            poll->stop();
            ++m_seen;
            QPointer<QDialog> alive(dialog);
            inspect(dialog);
            if (alive && alive->isVisible()) {
                ADD_FAILURE() << "the dialog was left open";
                alive->reject();
            }
        });
        m_poll->start();
    }
    ~CModalWatch() { delete m_poll; }
    CModalWatch(const CModalWatch&) = delete;
    CModalWatch& operator=(const CModalWatch&) = delete;

    int Seen() const { return m_seen; }

private:
    QPointer<QTimer> m_poll;
    int m_seen = 0;
};

class EditorFixture : public testing::Test {
protected:
    CProgramEnvironment env;
    CPageOnView page{ kPageWidth };

    CTallixEventImp* Page() const { return page.Page(); }
    QWidget* PageList() const { return dynamic_cast<QWidget*>(Page()->m_pList); }
};

// ---------------------------------------------------------------- rates

struct RateCase {
    const char* name;
    int stream;
    int compression;
    int resolution;
    int frameRate; // 0: what the resolution sets
    int audio;
    int shownFrameRate;
    const char* text;
};

std::ostream& operator<<(std::ostream& os, const RateCase& c)
{
    return os << c.name;
}

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
                    RateCase{ "H265_2MP_30", 0, 2, 3, 0, 0, 7, "2856.00" },
                    RateCase{ "H265_2MP_30_Audio", 0, 2, 3, 0, 1, 7, "2920.00" },
                    RateCase{ "H264_8MP_StartsAt15", 0, 1, 8, 0, 0, 10, "8190.00" },
                    RateCase{ "H264_12MP_30FallsBackTo15", 0, 1, 9, 7, 0, 10, "12285.00" },
                    RateCase{ "H264_8MP_12StaysAt12", 0, 1, 8, 11, 0, 11, "6552.00" },
                    RateCase{ "H264_1MP_60", 0, 1, 1, 1, 0, 1, "4080.00" },
                    RateCase{ "NoCompressionShowsNothing", 0, 0, 3, 0, 0, 7, "" },
                    RateCase{ "Sub1_H264_1MP_30", 1, 1, 1, 0, 0, 7, "2040.00" },
                    RateCase{ "Sub2_H265_12MP_Audio", 2, 2, 9, 0, 1, 10,
                              "8663.50" }),
    [](const testing::TestParamInfo<RateCase>& info) { return info.param.name; });

TEST_F(EditorFixture, AChoiceAloneReachesNoRuleWithoutAHostThatWiresIt)
{
    CEditorHost editor(Page(), false, false);
    editor.Choose(Editor::IdCompression, 0, 1);
    editor.Choose(Editor::IdResolution, 0, 3);
    EXPECT_EQ(editor.Combo(Editor::IdFrameRate, 0)->currentIndex(), 0);
    EXPECT_EQ(editor.Edit(0)->text(), QStringLiteral("0"));
}

// ---------------------------------------------------------------- add

class EditorBadRate : public EditorFixture, public testing::WithParamInterface<const char*> {};

TEST_P(EditorBadRate, ShowsTheMessageAndAddsNothing)
{
    CEditorHost editor(Page(), false);
    editor.Choose(Editor::IdCompression, 0, 1);
    editor.Choose(Editor::IdResolution, 0, 3);
    editor.Type(editor.Edit(0), QString::fromLatin1(GetParam()));

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

INSTANTIATE_TEST_SUITE_P(Texts, EditorBadRate, testing::Values("0", "", "-5", "abc"));

TEST_F(EditorFixture, AddStoresThreeRecordsWithTheSubRowsHidden)
{
    CEditorHost editor(Page(), false);
    editor.Choose(Editor::IdCompression, 0, 1);
    editor.Choose(Editor::IdResolution, 0, 3);
    editor.Choose(Editor::IdAudio, 0, 1);
    editor.Type(editor.Spinner(), QStringLiteral("12"));

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
    editor.Type(spinner, QStringLiteral("256"));
    EXPECT_EQ(spinner->value(), 256);
    QTest::keyClick(spinner, Qt::Key_Up);
    EXPECT_EQ(spinner->value(), 1);
    QTest::keyClick(spinner, Qt::Key_Down);
    EXPECT_EQ(spinner->value(), 256);
}

// ---------------------------------------------------------------- toggle

TEST_F(EditorFixture, ToggleShowsTheSubRowsMovesTheButtonsAndResizesTheList)
{
    CEditorHost editor(Page(), false);
    editor.Choose(Editor::IdCompression, 0, 1);
    editor.Choose(Editor::IdResolution, 0, 3);
    const int w = page.Window()->width();

    editor.Click(Editor::IdToggle);
    EXPECT_TRUE(editor->IsSubStreamsShown());
    EXPECT_EQ(editor.Button(0x804)->text(), QStringLiteral("Disable Sub Stream"));
    EXPECT_EQ(editor.Button(0x804)->geometry(), QRect(10, 160, 150, 25));
    EXPECT_EQ(editor.Button(0x803)->geometry(), QRect(822, 160, 72, 25));
    EXPECT_EQ(editor.Button(0xBCC)->geometry(), QRect(904, 160, 72, 25));
    EXPECT_EQ(editor.Button(0x805)->geometry(), QRect(989, 44, 72, 25));
    EXPECT_EQ(PageList()->geometry(), QRect(10, 201, w - 20, 220));
    for (int stream = 1; stream < Editor::StreamCount; ++stream) {
        EXPECT_TRUE(editor.Combo(Editor::IdFrameRate, stream)->isVisible());
        EXPECT_TRUE(editor.Edit(stream)->isVisible());
    }
    EXPECT_TRUE(editor.Label(QStringLiteral("Sub1 Stream:"))->isVisible());
    EXPECT_EQ(editor.Edit(0)->text(), QStringLiteral("4080.00"));

    editor.Click(Editor::IdToggle);
    EXPECT_FALSE(editor->IsSubStreamsShown());
    EXPECT_EQ(editor.Button(0x804)->text(), QStringLiteral("Enable Sub Stream"));
    EXPECT_EQ(editor.Button(0x804)->geometry(), QRect(10, 85, 150, 25));
    EXPECT_EQ(editor.Button(0xBCC)->geometry(), QRect(904, 85, 72, 25));
    EXPECT_EQ(PageList()->geometry(), QRect(10, 121, w - 20, 300));
    EXPECT_FALSE(editor.Edit(2)->isVisible());
    EXPECT_FALSE(editor.Label(QStringLiteral("Sub2 Stream:"))->isVisible());
}

// ---------------------------------------------------------------- page

TEST_F(EditorFixture, ClearEmptiesThePageAndOkEnablesItsList)
{
    page.Driver().AddRows(2);
    ASSERT_EQ(page.Driver().Rows(), 2);
    CEditorHost editor(Page(), false);
    editor.Click(Editor::IdClear);
    EXPECT_EQ(page.Driver().Rows(), 0);

    Page()->m_pList->EnableWindow(0);
    ASSERT_FALSE(PageList()->isEnabled());
    editor.Click(Editor::IdOk);
    EXPECT_TRUE(PageList()->isEnabled());
}

// ---------------------------------------------------------------- records

TEST_F(EditorFixture, SetFillsTheFormWithTheRulesRatesAndGetReadsItBack)
{
    CEditorHost editor(Page(), true);
    ChannelInfo in;
    in.nChannels = 12;
    in.nRow = 4;
    in.stMain = StreamInfo{ 1, 1, 3, 7, 999.0 };
    in.stSub1 = StreamInfo{ 0, 1, 1, 10, 1.0 };
    in.stSub2 = StreamInfo{ 0, 0, 0, 0, 5.0 };
    editor->SetChannelInfo(in);

    EXPECT_EQ(editor->m_nRow, 4);
    EXPECT_EQ(editor.Spinner()->value(), 12);
    EXPECT_EQ(editor.Combo(Editor::IdResolution, 0)->currentIndex(), 3);
    EXPECT_EQ(editor.Combo(Editor::IdAudio, 0)->currentIndex(), 1);
    EXPECT_EQ(editor.Edit(0)->text(), QStringLiteral("4144.00"));
    EXPECT_EQ(editor.Edit(1)->text(), QStringLiteral("1020.00"));
    EXPECT_EQ(editor.Edit(2)->text(), QStringLiteral("0.00"));

    ChannelInfo out;
    out.nRow = 77;
    editor->GetChannelInfo(&out);
    EXPECT_EQ(out.nRow, 77);
    EXPECT_EQ(out.nChannels, 12);
    EXPECT_EQ(out.stMain.nCompression, 1);
    EXPECT_EQ(out.stMain.nFrameRate, 7);
    EXPECT_DOUBLE_EQ(out.stMain.dBitrate, 4144.0);
    EXPECT_EQ(out.stSub1.nFrameRate, 10);
    EXPECT_DOUBLE_EQ(out.stSub1.dBitrate, 1020.0);
    EXPECT_EQ(out.stSub2.nResolution, 0);
}

// ---------------------------------------------------------------- pictures

TEST_F(EditorFixture, Screenshots)
{
    const QString dir = qEnvironmentVariableIsSet("TALLIX_SHOTS")
                            ? qEnvironmentVariable("TALLIX_SHOTS")
                            : QDir::tempPath() + QStringLiteral("/tallix-editor");
    QDir().mkpath(dir);
    CEditorHost editor(Page(), false);
    editor.Choose(Editor::IdCompression, 0, 2);
    editor.Choose(Editor::IdResolution, 0, 3);
    editor.Choose(Editor::IdAudio, 0, 1);
    const QImage without = editor.Window()->grab().toImage();
    without.save(dir + QStringLiteral("/editor_without_subs.png"));

    editor.Click(Editor::IdToggle);
    editor.Choose(Editor::IdCompression, 1, 1);
    editor.Choose(Editor::IdResolution, 1, 1);
    const QImage with = editor.Window()->grab().toImage();
    with.save(dir + QStringLiteral("/editor_with_subs.png"));

    ASSERT_FALSE(without.isNull());
    // The sub rows' band shows controls only in the second picture.
    const QRect band(113, 77, 640, 60);
    EXPECT_NE(without.copy(band), with.copy(band));
    EXPECT_EQ(without.pixelColor(300, 100), with.pixelColor(300, 20));
}

} // namespace

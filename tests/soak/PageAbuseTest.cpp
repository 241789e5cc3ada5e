// Rough hands on the real main window: pastes far longer than any field,
// characters and keys the fields do not expect, spinners driven past their
// ends, rows added in a burst, and the preview opened and closed again and
// again while its clip plays.
#include "sf/qt/SFApplication.h"
#include "tests/streams/PageTestSupport.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QLineEdit>
#include <QSpinBox>
#include <QTest>
#include <gtest/gtest.h>
#include <utility>

using namespace Entry;

namespace {

using R = CSFQTListCtrl;

struct PageAbuse : testing::Test {
    CProgramEnvironment environment;
    CMainWindowUnderTest main;
    CPageDriver& d = main.Driver();
    // Where the preview finds the scenes' clips.
    const QString appDir = std::exchange(g_strAppDir, QStringLiteral(TALLIX_APP_DIR));

    ~PageAbuse() override { g_strAppDir = appDir; }

    QWidget* Field(R::Register reg, int row, ChannelColumn col)
    {
        d.List()->scrollTo(d.List()->model()->index(row, col));
        return d.Cell(reg, row);
    }
};

// What the user does to a field once it has the focus.
struct Abuse {
    const char* name;
    QString paste;         // through the clipboard, when given
    QString typed;         // key by key
    std::vector<int> keys; // then these keys
};

const QString kLongDigits = QString(20000, QLatin1Char('7'));
// Digits, a snowman, an umlaut, NUL, control characters and line breaks.
const QString kLongMixed =
    QString::fromUtf8("12\xe2\x98\x83\xc3\xbc\0\x01\x1b\t\n", 12).repeated(2000);

const Abuse kAbuses[] = {
    { "LongDigitPaste", kLongDigits, {}, {} },
    { "LongMixedPaste", kLongMixed, {}, { Qt::Key_Return } },
    { "NonAscii",
      {},
      QString::fromUtf8("\xe5\xba\x94\xe7\x94\xa8 \xc3\xbc\xc3\xaf \xe2\x98\x83"),
      {} },
    { "ControlKeys",
      {},
      QStringLiteral("25"),
      { Qt::Key_Home, Qt::Key_Delete, Qt::Key_End, Qt::Key_Backspace, Qt::Key_Backspace,
        Qt::Key_Backspace, Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return,
        Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Insert, Qt::Key_F1 } },
};

struct FieldCase {
    const char* name;
    R::Register reg;
    ChannelColumn col;
    // Longest text the field may end up holding.
    int maxLength;
};

const FieldCase kFields[] = {
    { "Bitrate", R::BitrateEdits, ColBitrate, 9 },
    { "CustomRate", R::CustomRateEdits, ColFrameRate, 3 },
    { "Channels", R::ChannelSpiners, ColChannels, 4 },
};

struct FieldAbuse : PageAbuse, testing::WithParamInterface<std::tuple<FieldCase, Abuse>> {};

TEST_P(FieldAbuse, FieldKeepsAShortNumberAndTheRowLives)
{
    const FieldCase& field = std::get<0>(GetParam());
    const Abuse& abuse = std::get<1>(GetParam());
    d.ClickAdd();
    d.FillRow(0, H264, 0, MP4, Custom);
    QWidget* w = Field(field.reg, 0, field.col);
    ASSERT_NE(w, nullptr);
    UserClick(w, QPoint(8, w->height() / 2));
    QWidget* focus = QApplication::focusWidget();
    ASSERT_TRUE(focus && (focus == w || w->isAncestorOf(focus)));
    QTest::keyClick(focus, Qt::Key_A, Qt::ControlModifier);
    if (!abuse.paste.isNull()) {
        QGuiApplication::clipboard()->setText(abuse.paste);
        QTest::keyClick(focus, Qt::Key_V, Qt::ControlModifier);
    }
    // Key by key with the character as its text, as an input method sends it.
    for (const QChar c : abuse.typed)
        QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_unknown, c,
                            Qt::NoModifier);
    for (int key : abuse.keys) {
        if (QWidget* now = QApplication::focusWidget())
            QTest::keyClick(now, static_cast<Qt::Key>(key));
    }
    QTest::qWait(20);

    ASSERT_EQ(d.Rows(), 1);
    QString text;
    if (const auto* spin = qobject_cast<const QSpinBox*>(w)) {
        EXPECT_GE(spin->value(), spin->minimum());
        EXPECT_LE(spin->value(), spin->maximum());
        text = QString::number(spin->value());
    } else if (const auto* edit = qobject_cast<const QLineEdit*>(w)) {
        text = edit->text();
    } else {
        text = d.Text(0, field.col);
    }
    EXPECT_LE(text.size(), field.maxLength) << text.left(40).toStdString();
    for (const QChar c : text)
        EXPECT_TRUE(c.isDigit()) << "kept " << text.left(40).toStdString();
    // The row's rate and the totals still read as numbers.
    bool ok = false;
    d.Text(0, ColBitrate).toLongLong(&ok);
    EXPECT_TRUE(ok || d.Text(0, ColBitrate).isEmpty()) << d.Text(0, ColBitrate).toStdString();
}

INSTANTIATE_TEST_SUITE_P(Page, FieldAbuse,
                         testing::Combine(testing::ValuesIn(kFields), testing::ValuesIn(kAbuses)),
                         [](const testing::TestParamInfo<FieldAbuse::ParamType>& info) {
                             return std::string(std::get<0>(info.param).name) +
                                    std::get<1>(info.param).name;
                         });

TEST_F(PageAbuse, SpinnerWrapsPastBothEndsByArrowsAndPages)
{
    d.ClickAdd();
    auto* spin = qobject_cast<QSpinBox*>(Field(R::ChannelSpiners, 0, ColChannels));
    ASSERT_NE(spin, nullptr);
    UserClick(spin, QPoint(8, spin->height() / 2));
    struct Step {
        Qt::Key key;
        int times;
        int expected;
    };
    // From 1: down wraps to the top, up from the top wraps to 1; a page of
    // ten past an end lands on the other end.
    const Step steps[] = {
        { Qt::Key_Down, 1, 9999 }, { Qt::Key_Up, 1, 1 },       { Qt::Key_Up, 3, 4 },
        { Qt::Key_Down, 5, 9998 }, { Qt::Key_Up, 2, 1 },       { Qt::Key_PageDown, 1, 9999 },
        { Qt::Key_PageUp, 1, 1 },  { Qt::Key_Down, 40, 9960 },
    };
    for (const Step& s : steps) {
        for (int i = 0; i < s.times; ++i)
            QTest::keyClick(spin, s.key);
        EXPECT_EQ(spin->value(), s.expected) << "after " << s.times << " of key " << s.key;
        EXPECT_EQ(d.Text(0, ColChannels), QString::number(s.expected));
    }
}

TEST_F(PageAbuse, ThreeHundredRowsInABurstAreNumberedAndCountNothing)
{
    for (int i = 0; i < 300; ++i)
        d.ClickAdd();
    ASSERT_EQ(d.Rows(), 300);
    EXPECT_EQ(d.Text(0, ColNumber), QStringLiteral("1"));
    EXPECT_EQ(d.Text(299, ColNumber), QStringLiteral("300"));
    EXPECT_EQ(d.ChannelsLabel(), QStringLiteral("0"));
    d.FillRow(299, H264, 0, CIF, Fps30);
    EXPECT_EQ(d.ChannelsLabel(), QStringLiteral("1"));
    d.ClickClearAll();
    EXPECT_EQ(d.Rows(), 0);
    EXPECT_EQ(d.ChannelsLabel(), QStringLiteral("0"));
}

TEST_F(PageAbuse, PreviewClosedByItsButtonWhileTheClipPlaysAgainAndAgain)
{
    d.ClickAdd();
    d.Choose(0, ColCompression, Smart265);
    d.Choose(0, ColEnvironment, 2);
    ASSERT_TRUE(d.PreviewShown(0));
    constexpr int kOpenings = 8;
    int played = 0;
    for (int i = 0; i < kOpenings; ++i) {
        CModalWatch watch([&](QDialog* dialog) {
            // Closed at once on odd rounds, after frames on even ones.
            if (i % 2 == 0) {
                const bool playing = QTest::qWaitFor(
                    [&] {
                        QWidget* surface =
                            dialog->findChild<QWidget*>(QStringLiteral("vexplaySurface"));
                        return surface && surface->isVisible();
                    },
                    3000);
                played += playing ? 1 : 0;
                QTest::qWait(150);
            }
            UserClick(dialog->findChild<QAbstractButton*>(QStringLiteral("button_2")));
        });
        d.ClickPreview(0);
        ASSERT_EQ(watch.Seen(), 1) << "opening " << i + 1;
        ASSERT_EQ(QApplication::activeModalWidget(), nullptr) << "opening " << i + 1;
    }
    EXPECT_EQ(played, kOpenings / 2);
    EXPECT_EQ(d.Rows(), 1);
    EXPECT_EQ(d.Index(0, ColEnvironment), 2);
}

} // namespace

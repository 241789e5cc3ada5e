// The message dialog through SFShowMessage: its layout for short and long
// texts and each button mode, and every way of closing it.

#include "ShellTestSupport.h"

#include "MainDlgEventImp.h"
#include "MsgDlgEventImp.h"
#include "SFQTButton.h"
#include "SFQTDialog.h"
#include "SFQTStatic.h"
#include "SFShowMessage.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QScreen>
#include <QTest>
#include <functional>
#include <gtest/gtest.h>

#include "QtWait.h"

namespace {

const wchar_t kShort[] = L"Invalid bit rate,please check.";
const wchar_t kLong[] =
    L"The bit rate of this row is outside what the codec can carry at this resolution and frame "
    L"rate. Enter a value between the lowest and the highest rate the table allows, then "
    L"calculate again.";

QAbstractButton* ButtonOf(QDialog* dialog, int id)
{
    return dialog->findChild<QAbstractButton*>(QStringLiteral("button_%1").arg(id));
}

// Shows the message, runs inspect inside its loop, returns its result.
int Show(const wchar_t* text, int mode, const std::function<void(QDialog*)>& inspect)
{
    WhenModalDialogShows(inspect);
    return SFShowMessage(text, L"Error", mode, 0, nullptr);
}

struct LayoutCase {
    const char* name;
    const wchar_t* text;
    int mode;
    int okX;     // -1: hidden
    int cancelX; // -1: hidden
    bool wraps;  // taller than the 50 pixels a short text gets
};

std::ostream& operator<<(std::ostream& os, const LayoutCase& c)
{
    return os << c.name;
}

class MessageLayout : public testing::TestWithParam<LayoutCase> {};

TEST_P(MessageLayout, FollowsTheTextAndTheMode)
{
    CShellData data;
    const LayoutCase& c = GetParam();
    const int result = Show(c.text, c.mode, [&](QDialog* dialog) {
        auto* text = dialog->findChild<CSFQTStatic*>();
        ASSERT_NE(text, nullptr);
        EXPECT_EQ(text->text(), QString::fromWCharArray(c.text));
        EXPECT_EQ(text->pos(), QPoint(20, 37));
        EXPECT_EQ(text->width(), 260);
        if (c.wraps) {
            EXPECT_GT(text->height(), 50);
        } else {
            EXPECT_EQ(text->height(), 50);
        }
        const int textBottom = 37 + text->height();
        const int rowY = textBottom + 10;
        QAbstractButton* ok = ButtonOf(dialog, 1);
        QAbstractButton* cancel = ButtonOf(dialog, 2);
        ASSERT_NE(ok, nullptr);
        ASSERT_NE(cancel, nullptr);
        EXPECT_EQ(ok->isVisible(), c.okX >= 0);
        EXPECT_EQ(cancel->isVisible(), c.cancelX >= 0);
        // Buttons move by MoveWindow(tagRECT*), which reads 72 by 25 inclusive.
        if (c.okX >= 0) {
            EXPECT_EQ(ok->geometry(), QRect(c.okX, rowY, 73, 26));
        }
        if (c.cancelX >= 0) {
            EXPECT_EQ(cancel->geometry(), QRect(c.cancelX, rowY, 73, 26));
        }
        EXPECT_EQ(ok->text(), QStringLiteral("OK"));
        EXPECT_EQ(cancel->text(), QStringLiteral("Cancel"));
        QAbstractButton* close = ButtonOf(dialog, 2003);
        ASSERT_NE(close, nullptr);
        EXPECT_EQ(close->geometry(), QRect(278, 5, 17, 16));
        EXPECT_EQ(close->toolTip(), QStringLiteral("Close"));
        // 300 wide; high to 10 below the buttons, though never below the
        // frame picture's 140.
        EXPECT_EQ(dialog->width(), 301);
        EXPECT_EQ(dialog->height(), std::max(rowY + 25 + 10 + 1, 140));
        EXPECT_EQ(dialog->frameGeometry().center(),
                  QGuiApplication::primaryScreen()->availableGeometry().center());
        EXPECT_TRUE(dialog->windowTitle().isEmpty()) << "the caption is kept, not shown";
        dialog->reject();
    });
    EXPECT_EQ(result, 2);
}

INSTANTIATE_TEST_SUITE_P(
    Modes, MessageLayout,
    testing::Values(LayoutCase{ "ShortOkOnly", kShort, 0, 114, -1, false },
                    LayoutCase{ "ShortOkCancel", kShort, 1, 68, 160, false },
                    LayoutCase{ "ShortUnknownMode", kShort, 5, -1, -1, false },
                    LayoutCase{ "LongOkOnly", kLong, 0, 114, -1, true },
                    LayoutCase{ "LongOkCancel", kLong, 1, 68, 160, true }),
    [](const testing::TestParamInfo<LayoutCase>& info) { return std::string(info.param.name); });

// The rectangle the handler computes, before the window's own rules apply.
TEST(MessageDialog, ShortTextMakesADialogOf300By132)
{
    CShellData data;
    CMsgDlgEventImp handler(kShort, L"Error", 0, 0);
    QWidget host;
    handler.m_pUIWnd = &host;
    CRecordingDialog dialog(&handler);
    handler.SetDlg(&dialog);
    EXPECT_EQ(handler.Dlg_OnInitDialog(true), 1);
    EXPECT_EQ(handler.m_pText, nullptr);
    EXPECT_EQ(handler.Dlg_OnInitDialog(false), 1);
    ASSERT_EQ(dialog.moves.size(), 1u);
    const tagRECT& r = dialog.moves[0];
    EXPECT_EQ((std::vector<long>{ r.left, r.top, r.right, r.bottom }), (std::vector<long>{ 0, 0, 300, 132 }));
    EXPECT_EQ(dialog.calls, (std::vector<std::string>{ "move", "center" }));
    handler.Dlg_Destroy();
    EXPECT_EQ(handler.m_pText, nullptr);
    EXPECT_EQ(handler.m_pBtnOK, nullptr);
}

struct CloseCase {
    const char* name;
    int mode;
    std::function<void(QDialog*)> act;
    int result;
};

std::ostream& operator<<(std::ostream& os, const CloseCase& c)
{
    return os << c.name;
}

class MessageClose : public testing::TestWithParam<CloseCase> {};

TEST_P(MessageClose, GivesItsResult)
{
    CShellData data;
    EXPECT_EQ(Show(kShort, GetParam().mode, GetParam().act), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(
    Ways, MessageClose,
    testing::Values(
        CloseCase{ "Escape", 0, [](QDialog* d) { PressKey(d, Qt::Key_Escape); }, 2 },
        CloseCase{ "Return", 1, [](QDialog* d) { PressKey(d, Qt::Key_Return); }, 1 },
        CloseCase{ "OkButton", 1, [](QDialog* d) { QTest::mouseClick(ButtonOf(d, 1), Qt::LeftButton); }, 1 },
        CloseCase{ "CancelButton", 1, [](QDialog* d) { QTest::mouseClick(ButtonOf(d, 2), Qt::LeftButton); }, 2 },
        CloseCase{ "CloseButton", 0, [](QDialog* d) { QTest::mouseClick(ButtonOf(d, 2003), Qt::LeftButton); }, 2 },
        CloseCase{ "OtherKeysLeaveItOpen", 0,
                   [](QDialog* d) {
                       PressKey(d, Qt::Key_Space);
                       PressKey(d, Qt::Key_A);
                       EXPECT_TRUE(d->isVisible());
                       PressKey(d, Qt::Key_Escape);
                   },
                   2 }),
    [](const testing::TestParamInfo<CloseCase>& info) { return std::string(info.param.name); });

TEST(MessageDialog, CaptionTurnsWhiteWhilePressed)
{
    CShellData data;
    int whileDown = -1;
    int afterUp = -1;
    const int result = Show(kShort, 1, [&](QDialog* dialog) {
        QAbstractButton* ok = ButtonOf(dialog, 1);
        const QRect caption = ok->rect().adjusted(8, 4, -8, -4);
        QTest::mousePress(ok, Qt::LeftButton);
        SaveShot(ok, "message-ok-pressed.png");
        whileDown = CountNear(ok->grab().toImage(), caption, qRgb(255, 255, 255));
        QTest::mouseRelease(ok, Qt::LeftButton);
        afterUp = CountNear(ok->grab().toImage(), caption, qRgb(0, 0, 0));
    });
    EXPECT_EQ(result, 1);
    EXPECT_GT(whileDown, 10) << "white caption on the pressed face";
    EXPECT_GT(afterUp, 10) << "black caption again once released";
}

TEST(MessageDialog, OpensOverItsParentWindow)
{
    CShellData data;
    CMainWindowUnderTest main;
    QWidget* parent = nullptr;
    WhenModalDialogShows([&](QDialog* dialog) {
        parent = dialog->parentWidget();
        SaveShot(dialog, "message-dialog.png");
        PressKey(dialog, Qt::Key_Return);
    });
    EXPECT_EQ(SFShowMessage(kShort, L"Error", 0, 0, main.Event()->GetUIWnd()), 1);
    EXPECT_EQ(parent, main.Window());
}

TEST(MessageDialog, NullTextsShowAnEmptyMessage)
{
    CShellData data;
    QString shown = QStringLiteral("unset");
    Show(nullptr, 0, [&](QDialog* dialog) {
        shown = dialog->findChild<CSFQTStatic*>()->text();
        PressKey(dialog, Qt::Key_Escape);
    });
    EXPECT_TRUE(shown.isEmpty());
    CMsgDlgEventImp handler(nullptr, nullptr, 0, 7);
    EXPECT_TRUE(handler.m_strText.empty());
    EXPECT_TRUE(handler.m_strTitle.empty());
}

} // namespace

// The shell's windows in process: the main window as main brings it up
// (size, place, title, skin, its three buttons and the About dialog they
// open) and the message dialog through SFShowMessage (its layout for short and
// long texts and each button mode, and every way of closing it).

#include "language/LangString.h"
#include "sf/SFFactory.h"
#include "sf/dialogs/SFShowMessage.h"
#include "sf/qt/SFApplication.h"
#include "sf/qt/SFQTMainWindow.h"
#include "sf/qt/SFQTPictureCtrl.h"
#include "sf/qt/SFQTStatic.h"
#include "sf/qt/SFQTView.h"
#include "shell/MainDlgEventImp.h"
#include "shell/ToolBarEventImp.h"
#include "tests/streams/PageTestSupport.h"
#include "tests/support/QtWait.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QImage>
#include <QPointer>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace {

// Points skin path, style sheet and dictionary at the built application
// directory (language 0 English, 1 Chinese), or, by Nothing(), at an empty
// one: the stock look with keys as texts.
class CShellData {
public:
    explicit CShellData(int language = 0)
    {
        SFSetSkinPath(QStringLiteral(TALLIX_APP_DIR "/Bin/Skin/").toStdWString().c_str());
        QFile css(QStringLiteral(TALLIX_APP_DIR "/Tallix_Style.css"));
        qApp->setStyleSheet(css.open(QIODevice::ReadOnly | QIODevice::Text)
                                ? QString::fromUtf8(css.readAll())
                                : QString());
        UseLanguage(TALLIX_APP_DIR, language);
    }
    ~CShellData()
    {
        qApp->setStyleSheet(QString());
        SFSetSkinPath(L"");
        UseLanguage(std::string(), 1);
    }
    static std::unique_ptr<CShellData> Nothing()
    {
        return std::unique_ptr<CShellData>(new CShellData(Empty{}));
    }

private:
    struct Empty {};
    explicit CShellData(Empty)
    {
        SFSetSkinPath((m_empty.path() + QStringLiteral("/Bin/Skin/")).toStdWString().c_str());
        qApp->setStyleSheet(QString());
        UseLanguage(m_empty.path().toStdString(), 0);
    }
    static void UseLanguage(const std::string& dir, int language)
    {
        g_nLanguage = language;
        SFSetLanguageDirForTesting(dir);
        SFResetLanguageForTesting();
    }
    QTemporaryDir m_empty;
};

// Sends a key to whatever would receive it: the focus widget, else the dialog.
void PressKey(QWidget* dialog, int key)
{
    QWidget* target = QApplication::focusWidget();
    if (!target || target->window() != dialog)
        target = dialog;
    QTest::keyClick(target, static_cast<Qt::Key>(key));
}

// Counts the pixels of image within rect that are near colour.
int CountNear(const QImage& image, const QRect& rect, QRgb colour, int tolerance = 40)
{
    int count = 0;
    const QRect area = rect.intersected(image.rect());
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QRgb p = image.pixel(x, y);
            if (std::abs(qRed(p) - qRed(colour)) <= tolerance &&
                std::abs(qGreen(p) - qGreen(colour)) <= tolerance &&
                std::abs(qBlue(p) - qBlue(colour)) <= tolerance)
                ++count;
        }
    }
    return count;
}

// Saves a picture to TALLIX_SHOT_DIR when it is set.
void SaveShot(QWidget* widget, const char* name)
{
    const QByteArray dir = qgetenv("TALLIX_SHOT_DIR");
    if (dir.isEmpty() || !widget)
        return;
    const QString path = QString::fromLocal8Bit(dir) + QLatin1Char('/') + QString::fromLatin1(name);
    EXPECT_TRUE(widget->grab().save(path)) << path.toStdString();
}

// --- the main window ---

QRect Available()
{
    return QGuiApplication::primaryScreen()->availableGeometry();
}

TEST(MainWindow, ComesUpCentredAtItsSizeWithTheProductTitle)
{
    CShellData data;
    CMainWindowUnderTest main;
    QWidget* window = main.Window();
    ASSERT_NE(window, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
    EXPECT_EQ(window->size(), QSize(1100, 750));
    ASSERT_GE(Available().width(), 1100) << "the test screen must hold the window";
    EXPECT_EQ(window->frameGeometry().center(), Available().center());
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Tallix Storage Planner"));
    EXPECT_TRUE(window->windowFlags() & Qt::FramelessWindowHint);
    EXPECT_EQ(main.Event()->GetMainDlg(), main.Dlg());
}

// The window paints its skin: toolbar band, logo, page ground and the faces
// of the three buttons, each as its picture has it.
TEST(MainWindow, PaintsTheSkinPictures)
{
    CShellData data;
    CMainWindowUnderTest main;
    ASSERT_TRUE(QTest::qWaitForWindowExposed(main.Window()));
    const QImage shot = main.Window()->grab().toImage();
    const QString skin = QStringLiteral(TALLIX_APP_DIR "/Bin/Skin/");
    struct Spot {
        const char* image;
        QPoint inImage;
        QPoint inWindow;
    };
    const Spot spots[] = {
        { "bg_toolbar.png", QPoint(600, 30), QPoint(600, 30) },
        { "FrameMain.png", QPoint(8, 745), QPoint(8, 745) },
        { "about-normal.png", QPoint(4, 12), QPoint(1016, 20) },
        { "min-normal.png", QPoint(4, 12), QPoint(1043, 20) },
        { "close-normal.png", QPoint(4, 12), QPoint(1073, 20) },
    };
    for (const Spot& s : spots) {
        const QImage picture(skin + QString::fromLatin1(s.image));
        ASSERT_FALSE(picture.isNull()) << s.image;
        EXPECT_EQ(CountNear(shot, QRect(s.inWindow, QSize(1, 1)), picture.pixel(s.inImage), 6), 1)
            << s.image;
    }
    EXPECT_FALSE(static_cast<CSFQTPictureCtrl*>(main.Find("picture"))->Image().isNull());
    SaveShot(main.Window(), "main-window.png");
}

struct TooltipCase {
    const char* name;
    int language;
    const char* tooltip;
};

class MinimiseTooltip : public testing::TestWithParam<TooltipCase> {};

TEST_P(MinimiseTooltip, ComesFromTheDictionary)
{
    CShellData data(GetParam().language);
    CMainWindowUnderTest main;
    ASSERT_NE(main.Button(CToolBarEventImp::IdMin), nullptr);
    EXPECT_EQ(main.Button(CToolBarEventImp::IdMin)->toolTip(),
              QString::fromUtf8(GetParam().tooltip));
}

INSTANTIATE_TEST_SUITE_P(
    Languages, MinimiseTooltip,
    testing::Values(TooltipCase{ "English", 0, "Min" },
                    TooltipCase{ "Chinese", 1, "\xE6\x9C\x80\xE5\xB0\x8F\xE5\x8C\x96" }),
    [](const testing::TestParamInfo<TooltipCase>& info) { return std::string(info.param.name); });

TEST(MainWindow, WithoutAnyDataShowsTheStockLookAndTheKeys)
{
    auto data = CShellData::Nothing();
    CMainWindowUnderTest main;
    QWidget* window = main.Window();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
    EXPECT_EQ(window->size(), QSize(1100, 750));
    EXPECT_EQ(window->frameGeometry().center(), Available().center());
    EXPECT_EQ(window->windowTitle(), QStringLiteral("ProductName"));
    EXPECT_TRUE(qApp->styleSheet().isEmpty());
    auto* skinned = dynamic_cast<CSFQTMainWindow*>(main.Dlg());
    ASSERT_NE(skinned, nullptr);
    EXPECT_TRUE(skinned->ComposedFrame().isNull());
    EXPECT_TRUE(static_cast<CSFQTPictureCtrl*>(main.Find("picture"))->Image().isNull());
    EXPECT_EQ(main.Button(CToolBarEventImp::IdAbout)->toolTip(), QStringLiteral("About"));
    EXPECT_EQ(main.Button(CToolBarEventImp::IdMin)->toolTip(), QStringLiteral("Min"));
    EXPECT_EQ(main.Button(CToolBarEventImp::IdClose)->toolTip(), QStringLiteral("Close"));
    SaveShot(window, "main-window-bare.png");
}

TEST(MainWindow, MinimiseButtonMinimisesTheWindow)
{
    CShellData data;
    CMainWindowUnderTest main;
    ASSERT_TRUE(QTest::qWaitForWindowExposed(main.Window()));
    QTest::mouseClick(main.Button(CToolBarEventImp::IdMin), Qt::LeftButton);
    EXPECT_EVENTUALLY(main.Window()->isMinimized());
}

TEST(MainWindow, CloseButtonHidesTheWindowAtOnceAndEndsTheLoop)
{
    CShellData data;
    CMainWindowUnderTest main;
    QWidget* window = main.Window();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
    QAbstractButton* close = main.Button(CToolBarEventImp::IdClose);
    ASSERT_NE(close, nullptr);
    bool hiddenAtClick = false;
    bool timedOut = false;
    QTimer::singleShot(0, qApp, [&] {
        QTest::mouseClick(close, Qt::LeftButton);
        hiddenAtClick = !window->isVisible();
    });
    QTimer::singleShot(5000, qApp, [&] {
        timedOut = true;
        QCoreApplication::quit();
    });
    QApplication::exec();
    EXPECT_TRUE(hiddenAtClick) << "the window must go before the loop ends";
    EXPECT_FALSE(timedOut) << "the close button did not end the event loop";
    EXPECT_FALSE(window->isVisible());
}

TEST(MainWindow, TearDownOfTheWindowBeforeItsHandlersLeavesNothingDangling)
{
    CShellData data;
    CMainWindowUnderTest main;
    QPointer<QWidget> close = main.Button(CToolBarEventImp::IdClose);
    ASSERT_FALSE(close.isNull());
    SFDestroyControl(main.Dlg());
    EXPECT_TRUE(close.isNull());
    EXPECT_EQ(main.Event()->GetUIWnd(), nullptr);
    // The handlers go after their window, as main lets them: under the
    // sanitizers a control released twice fails here.
    delete main.Event();
    main.Forget();
}

TEST(AboutDialog, OpensFromTheToolbarAndClosesByItsButton)
{
    CShellData data;
    CMainWindowUnderTest main;
    ASSERT_TRUE(QTest::qWaitForWindowExposed(main.Window()));
    bool inspected = false;
    CModalWatch watch([&](QDialog* dialog) {
        inspected = true;
        EXPECT_EQ(dialog->parentWidget(), main.Window());
        // MoveWindow(tagRECT*) takes 0, 0, 360, 250 as inclusive.
        EXPECT_EQ(dialog->size(), QSize(361, 251));
        EXPECT_EQ(dialog->frameGeometry().center(),
                  QGuiApplication::primaryScreen()->availableGeometry().center());
        auto* picture = dialog->findChild<CSFQTPictureCtrl*>();
        ASSERT_NE(picture, nullptr);
        EXPECT_FALSE(picture->Image().isNull());
        const QList<CSFQTStatic*> lines = dialog->findChildren<CSFQTStatic*>();
        ASSERT_EQ(lines.size(), 2);
        EXPECT_EQ(lines[0]->text(), QStringLiteral("Version 1.0.0"));
        EXPECT_EQ(lines[1]->text(), QStringLiteral("Copyright \u00A9 2026 Tallix"));
        EXPECT_EQ(lines[1]->FontPixels(), 14);
        SaveShot(dialog, "about-dialog.png");
        auto* close = dialog->findChild<QAbstractButton*>(QStringLiteral("button_2"));
        ASSERT_NE(close, nullptr);
        EXPECT_EQ(close->toolTip(), QStringLiteral("Close"));
        QTest::mouseClick(close, Qt::LeftButton);
    });
    QTest::mouseClick(main.Button(CToolBarEventImp::IdAbout), Qt::LeftButton);
    EXPECT_TRUE(inspected);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(main.Window()->findChildren<QDialog*>().isEmpty())
        << "the dialog outlived its call";
    EXPECT_TRUE(main.Window()->isVisible());
}

// --- the message dialog ---

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
    CModalWatch watch(inspect);
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
        if (c.wraps) {
            EXPECT_GT(text->height(), 50);
        } else {
            EXPECT_EQ(text->height(), 50);
        }
        const int rowY = text->geometry().bottom() + 1 + 10;
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
        ASSERT_NE(ButtonOf(dialog, 2003), nullptr);
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

INSTANTIATE_TEST_SUITE_P(Modes, MessageLayout,
                         testing::Values(LayoutCase{ "ShortOkOnly", kShort, 0, 114, -1, false },
                                         LayoutCase{ "ShortOkCancel", kShort, 1, 68, 160, false },
                                         LayoutCase{ "ShortUnknownMode", kShort, 5, -1, -1, false },
                                         LayoutCase{ "LongOkOnly", kLong, 0, 114, -1, true },
                                         LayoutCase{ "LongOkCancel", kLong, 1, 68, 160, true }),
                         [](const testing::TestParamInfo<LayoutCase>& info) {
                             return std::string(info.param.name);
                         });

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
        CloseCase{ "OkButton", 1,
                   [](QDialog* d) { QTest::mouseClick(ButtonOf(d, 1), Qt::LeftButton); }, 1 },
        CloseCase{ "CancelButton", 1,
                   [](QDialog* d) { QTest::mouseClick(ButtonOf(d, 2), Qt::LeftButton); }, 2 },
        CloseCase{ "CloseButton", 0,
                   [](QDialog* d) { QTest::mouseClick(ButtonOf(d, 2003), Qt::LeftButton); }, 2 },
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
    CModalWatch watch([&](QDialog* dialog) {
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
}

} // namespace

// The main window as main brings it up: size, place, title, the toolbar's
// controls, and what its three buttons do.

#include "ShellTestSupport.h"

#include "MainDlgEventImp.h"
#include "SFFactory.h"
#include "SFQTMainWindow.h"
#include "SFQTPictureCtrl.h"
#include "SFQTView.h"
#include "ToolBarEventImp.h"

#include <QAbstractButton>
#include <QApplication>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "QtWait.h"

namespace {

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

struct ControlCase {
    const char* name;
    QRect geometry;
    const char* tooltip;
};

std::ostream& operator<<(std::ostream& os, const ControlCase& c)
{
    return os << c.name;
}

class ToolbarControl : public testing::TestWithParam<ControlCase> {};

TEST_P(ToolbarControl, StandsInItsPlace)
{
    CShellData data;
    CMainWindowUnderTest main;
    QWidget* control = main.Find(GetParam().name);
    ASSERT_NE(control, nullptr) << GetParam().name;
    EXPECT_EQ(control->geometry(), GetParam().geometry);
    EXPECT_TRUE(control->isVisibleTo(main.Window()));
    EXPECT_EQ(control->toolTip(), QString::fromUtf8(GetParam().tooltip));
}

INSTANTIATE_TEST_SUITE_P(
    Toolbar, ToolbarControl,
    testing::Values(ControlCase{ "view_0", QRect(0, 0, 1101, 61), "" },
                    ControlCase{ "view_102", QRect(0, 61, 1101, 690), "" },
                    ControlCase{ "picture", QRect(20, 0, 300, 59), "" },
                    ControlCase{ "button_2025", QRect(1012, 8, 24, 24), "About" },
                    ControlCase{ "button_2001", QRect(1039, 8, 27, 24), "Min" },
                    ControlCase{ "button_2003", QRect(1069, 8, 27, 24), "Close" }),
    [](const testing::TestParamInfo<ControlCase>& info) { return std::string(info.param.name); });

TEST(MainWindow, ToolbarCreatesLogoThenAboutMinimiseClose)
{
    CShellData data;
    CMainWindowUnderTest main;
    QWidget* toolbar = main.Find("view_0");
    ASSERT_NE(toolbar, nullptr);
    QStringList order;
    for (QObject* child : toolbar->children()) {
        if (child->isWidgetType())
            order << child->objectName();
    }
    EXPECT_EQ(order, (QStringList{ QStringLiteral("picture"), QStringLiteral("button_2025"),
                                   QStringLiteral("button_2001"), QStringLiteral("button_2003") }));
    auto* view = qobject_cast<CSFQTView*>(main.Find("view_102"));
    ASSERT_NE(view, nullptr);
    // The page is transparent: the window's frame image is its ground.
    EXPECT_EQ(view->BackgroundColor().alpha(), 0);
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
    int language; // -1: no data at all
    const char* tooltip;
};

class MinimiseTooltip : public testing::TestWithParam<TooltipCase> {};

TEST_P(MinimiseTooltip, ComesFromTheDictionary)
{
    std::unique_ptr<CShellData> data =
        GetParam().language < 0 ? CShellData::Nothing()
                                : std::make_unique<CShellData>(GetParam().language);
    CMainWindowUnderTest main;
    ASSERT_NE(main.Button(2001), nullptr);
    EXPECT_EQ(main.Button(2001)->toolTip(), QString::fromUtf8(GetParam().tooltip));
}

INSTANTIATE_TEST_SUITE_P(Languages, MinimiseTooltip,
                         testing::Values(TooltipCase{ "English", 0, "Min" },
                                         TooltipCase{ "Chinese", 1, "\xE6\x9C\x80\xE5\xB0\x8F\xE5\x8C\x96" },
                                         TooltipCase{ "NoDictionary", -1, "Min" }),
                         [](const testing::TestParamInfo<TooltipCase>& info) {
                             return std::string(info.param.name);
                         });

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
    EXPECT_EQ(main.Button(2025)->toolTip(), QStringLiteral("About"));
    EXPECT_EQ(main.Button(2003)->toolTip(), QStringLiteral("Close"));
    SaveShot(window, "main-window-bare.png");
}

TEST(MainWindow, MinimiseButtonMinimisesTheWindow)
{
    CShellData data;
    CMainWindowUnderTest main;
    ASSERT_TRUE(QTest::qWaitForWindowExposed(main.Window()));
    QTest::mouseClick(main.Button(2001), Qt::LeftButton);
    EXPECT_EVENTUALLY(main.Window()->isMinimized());
}

TEST(MainWindow, CloseButtonHidesTheWindowAtOnceAndEndsTheLoop)
{
    CShellData data;
    CMainWindowUnderTest main;
    QWidget* window = main.Window();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
    QAbstractButton* close = main.Button(2003);
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

TEST(MainWindow, TearDownReleasesTheToolbarBeforeTheHandlers)
{
    CShellData data;
    CMainWindowUnderTest main;
    CToolBarEventImp* toolbar = main.Event()->m_pToolBarEvent;
    ASSERT_NE(toolbar, nullptr);
    ASSERT_NE(toolbar->m_pBtnClose, nullptr);
    SFDestroyControl(main.Dlg());
    // What the window's end leaves for the handlers to see.
    EXPECT_EQ(toolbar->m_pBtnMin, nullptr);
    EXPECT_EQ(toolbar->m_pBtnClose, nullptr);
    EXPECT_EQ(toolbar->m_pBtnAbout, nullptr);
    EXPECT_EQ(main.Event()->m_pUIWnd, nullptr);
    EXPECT_EQ(main.Event()->m_pToolBarView, nullptr);
    delete main.Event();
    // Nothing left for the fixture to release.
    main.Forget();
}

} // namespace

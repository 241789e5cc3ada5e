// Dialogs and main windows: both roads of a click, the OK and Cancel ids,
// modal runs, the order of destruction, frame composition on pixels and the
// caption buttons.

#include "sf/DialogStyle.h"
#include "sf/SFFactory.h"
#include "sf/SFPictureCtrl.h"
#include "sf/SFView.h"
#include "sf/qt/SFCustomEvent.h"
#include "sf/qt/SFFrameSkin.h"
#include "sf/qt/SFKeyMap.h"
#include "sf/qt/SFQTDialog.h"
#include "sf/qt/SFQTMainWindow.h"
#include "sf/qt/SFQTView.h"
#include "tests/sf/SfTestSupport.h"
#include "tests/support/QtWait.h"

#include <QApplication>
#include <QImage>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>
#include <memory>

namespace {

const tagRECT kButtonRect{ 10, 40, 90, 70 };

CTestCommandButton* AddButton(ISFButtonEvent* handler, void* parent, unsigned int id)
{
    auto* button = new CTestCommandButton(handler);
    button->Create(L"Press", SF_WS_VISIBLE, kButtonRect, parent, id);
    return button;
}

std::unique_ptr<CSFQTDialog> ShownDialog(CLoggingDialogHandler* handler)
{
    auto dlg = std::make_unique<CSFQTDialog>(handler);
    dlg->MoveWindow(100, 100, 200, 120);
    dlg->show();
    return dlg;
}

TEST(ClickRoads, DirectCallFirstThenTheViewsMap)
{
    Log log;
    CLoggingViewHandler viewHandler(log);
    CLoggingButtonHandler buttonHandler(log);
    QWidget top;
    CSFView* view = SFCreateView(&viewHandler);
    view->Create(L"", L"", SF_WS_VISIBLE, tagRECT{ 0, 0, 199, 99 }, &top, 3);
    CTestCommandButton* button = AddButton(&buttonHandler, view->GetUIWnd(), 7);
    top.show();
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(log, (Log{ "view:create", "btn:7", "view:7" }));

    // No parent: the direct call still comes, the map hears nothing.
    log.clear();
    CTestCommandButton orphan(&buttonHandler);
    orphan.Create(L"Orphan", SF_WS_VISIBLE, kButtonRect, nullptr, 7);
    QTest::mouseClick(&orphan, Qt::LeftButton);
    EXPECT_EQ(log, (Log{ "btn:7" }));
    SFDestroyControl(view);
    EXPECT_EQ(log.back(), "view:destroy");
}

TEST(DialogIds, IdOneRunsTheMapThenOkThenAccepts)
{
    CLoggingDialogHandler handler;
    auto dlg = ShownDialog(&handler);
    CTestCommandButton* ok = AddButton(&handler, handler.GetUIWnd(), 1);
    ok->show();
    handler.log.clear();
    QTest::mouseClick(ok, Qt::LeftButton);
    EXPECT_EQ(handler.log, (Log{ "btn:1", "mapped:1", "ok" }));
    EXPECT_EQ(dlg->result(), QDialog::Accepted);
    EXPECT_FALSE(dlg->isVisible());
}

TEST(DialogIds, IdTwoRejectsWithNothingMapped)
{
    CLoggingDialogHandler handler;
    auto dlg = ShownDialog(&handler);
    dlg->setResult(QDialog::Accepted);
    CTestCommandButton* cancel = AddButton(nullptr, handler.GetUIWnd(), 2);
    cancel->show();
    handler.log.clear();
    QTest::mouseClick(cancel, Qt::LeftButton);
    EXPECT_EQ(handler.log, (Log{ "cancel" }));
    EXPECT_EQ(dlg->result(), QDialog::Rejected);
    EXPECT_FALSE(dlg->isVisible());
}

TEST(ModalRun, OkButtonGivesOne)
{
    CLoggingDialogHandler handler;
    CSFDialog* dlg = SFCreateDialog(&handler, nullptr, 0);
    handler.onInit = [&] { AddButton(&handler, handler.GetUIWnd(), 1); };
    dlg->Create(L"", nullptr);
    dlg->MoveWindow(0, 0, 200, 120);
    dlg->CenterWindow(nullptr);
    bool sawModal = false;
    QTimer::singleShot(0, [&] {
        QWidget* modal = QApplication::activeModalWidget();
        sawModal = modal == SFWidgetFromHandle(handler.GetUIWnd());
        if (auto* button =
                modal ? modal->findChild<QPushButton*>(QStringLiteral("button_1")) : nullptr)
            QTest::mouseClick(button, Qt::LeftButton);
    });
    EXPECT_EQ(dlg->DoModalDlg(), 1);
    EXPECT_TRUE(sawModal);
    EXPECT_EQ(handler.log, (Log{ "init:create", "init:modal", "btn:1", "mapped:1", "ok" }));
    SFDestroyControl(dlg);
}

TEST(ModalRun, ClosingGivesTwoAndEscapeAloneDoesNotClose)
{
    CLoggingDialogHandler handler;
    CSFDialog* dlg = SFCreateDialog(&handler, nullptr, 0);
    dlg->Create(L"", nullptr);
    dlg->MoveWindow(0, 0, 200, 120);
    bool stillOpenAfterEscape = false;
    QTimer::singleShot(0, [&] {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal)
            return;
        QTest::keyClick(modal, Qt::Key_Escape);
        stillOpenAfterEscape = modal->isVisible();
        QTimer::singleShot(0, modal, [modal] { modal->close(); });
    });
    EXPECT_EQ(dlg->DoModalDlg(), 2);
    EXPECT_TRUE(stillOpenAfterEscape);
    ASSERT_FALSE(handler.keysDown.empty());
    EXPECT_EQ(handler.keysDown.front(), std::make_pair(0u, 27u));
    SFDestroyControl(dlg);

    CLoggingDialogHandler mainHandler;
    CSFDialog* main = SFCreateMainWindow(&mainHandler, nullptr);
    EXPECT_EQ(main->DoModalDlg(), -1);
    SFDestroyControl(main);
}

TEST(CloseEvent, HiddenMainWindowClosedByMessageEndsTheLoop)
{
    CLoggingDialogHandler handler;
    CSFQTMainWindow window(&handler);
    window.MoveWindow(0, 0, 300, 200);
    window.ShowWindow(1);
    QTimer::singleShot(0, &window, [&window] {
        window.ShowWindow(0);
        window.SendDlgMessage(16, 0, 0);
    });
    bool watchdog = false;
    QTimer guard;
    guard.setSingleShot(true);
    QObject::connect(&guard, &QTimer::timeout, [&watchdog] {
        watchdog = true;
        QCoreApplication::quit();
    });
    guard.start(5000);
    QApplication::exec();
    EXPECT_FALSE(watchdog);
    EXPECT_EQ(handler.log, (Log{ "cancel" }));
    EXPECT_EQ(handler.GetUIWnd(), nullptr) << "reject clears the window pointer";
}

TEST(Destruction, HandlerSeesClearedWindowWhileControlsStillExist)
{
    CLoggingDialogHandler handler;
    CSFDialog* dlg = SFCreateDialog(&handler, nullptr, 0);
    CSFPictureCtrl* picture = SFCreatePictureCtrl(nullptr);
    picture->Create(L"logo", SF_WS_VISIBLE, kButtonRect, handler.GetUIWnd(), 4);
    QPointer<QObject> pictureWidget(static_cast<QWidget*>(picture->GetHWnd()));
    bool pictureAliveInDestroy = false;
    handler.onDestroy = [&] {
        pictureAliveInDestroy = !pictureWidget.isNull();
        SFDestroyControl(picture);
        picture = nullptr;
    };
    SFDestroyControl(dlg);
    EXPECT_TRUE(pictureAliveInDestroy);
    EXPECT_TRUE(pictureWidget.isNull());
    EXPECT_EQ(handler.log.back(), "destroy:window-cleared");
    EXPECT_EQ(handler.GetUIWnd(), nullptr);
}

// --- skinned frames ---

class SkinnedWindow : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_skin.IsValid());
        CTestSkin::FillDialogStyle(m_style);
    }

    std::unique_ptr<CSFQTDialog> ShowDialog(int w, int h)
    {
        auto dlg = std::make_unique<CSFQTDialog>(&m_handler);
        dlg->SetSkin(&m_style);
        dlg->Create(L"Title", nullptr);
        dlg->MoveWindow(100, 100, w, h);
        dlg->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(dlg.get()));
        return dlg;
    }

    CTestSkin m_skin;
    DialogStyle m_style;
    CLoggingDialogHandler m_handler;
};

struct Probe {
    int x, y;
    QColor color;
    const char* what;
};

void ExpectPixels(const QImage& image, std::initializer_list<Probe> probes)
{
    for (const Probe& p : probes) {
        EXPECT_EQ(QColor(image.pixel(p.x, p.y)).rgb(), p.color.rgb())
            << p.what << " at " << p.x << "," << p.y;
    }
}

TEST_F(SkinnedWindow, DialogFrameTilesEdgesAndCoversTilesWithCorners)
{
    using namespace SkinColors;
    auto dlg = ShowDialog(200, 100);
    const QImage image = dlg->ComposedFrame().toImage();
    ASSERT_EQ(image.size(), QSize(200, 100));
    dlg->grab().save(QStringLiteral("/tmp/sf_dialog_200x100.png"));
    ExpectPixels(image, {
                            { 5, 5, TopLeft, "top-left corner" },
                            { 10, 5, Top, "first top tile" },
                            { 189, 5, Top, "last top tile" },
                            // The last 7 pixel tile starts at 185 and runs under the corner at 190.
                            { 190, 5, TopRight, "top-right corner over the tile" },
                            { 199, 26, TopRight, "top-right corner" },
                            { 0, 30, LeftTop, "left-top" },
                            { 0, 75, LeftBottom, "left-bottom at H - 20 - 10" },
                            { 5, 95, BottomLeft, "bottom-left" },
                            { 100, 95, Bottom, "bottom tile" },
                            { 195, 95, BottomRight, "bottom-right" },
                            { 199, 30, RightTop, "right-top" },
                            { 199, 75, RightBottom, "right-bottom" },
                            { 100, 50, Background, "interior shows the background colour" },
                        });
    EXPECT_EQ(m_handler.sizeCalls, 1);
}

TEST_F(SkinnedWindow, MainWindowSmallerThanItsFrameIsCutFromIt)
{
    using namespace SkinColors;
    CLoggingDialogHandler handler;
    CSFQTMainWindow window(&handler);
    window.SetSkin(&m_style);
    window.MoveWindow(50, 50, 100, 80);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    const QImage cut = window.ComposedFrame().toImage();
    ASSERT_EQ(cut.size(), QSize(100, 80));
    ExpectPixels(cut, { { 5, 5, TopLeft, "frame image corner" },
                        { 50, 50, Body, "frame image body, not the background" } });

    // Larger than the frame image: composed like a dialog.
    window.MoveWindow(50, 50, 300, 200);
    EXPECT_EVENTUALLY_EQ(window.ComposedFrame().size(), QSize(300, 200));
    ExpectPixels(window.ComposedFrame().toImage(),
                 { { 150, 100, Background, "interior" }, { 295, 195, BottomRight, "corner" } });
}

TEST_F(SkinnedWindow, CaptionButtonCountsNegativeXFromTheRightEdge)
{
    using namespace SkinColors;
    m_style.strBtn1Rect = L"-30,5,20,20";
    m_style.strBtn1Normal = L"40,0,20,20";
    m_style.strBtn1Hover = L"60,0,20,20";
    m_style.strBtn1Pressed = L"60,0,20,20";
    auto dlg = ShowDialog(200, 100);
    EXPECT_EQ(dlg->FrameSkin().ButtonHitRect(1), QRect(170, 5, 20, 20));
    EXPECT_EQ(QColor(dlg->grab().toImage().pixel(175, 10)).rgb(), Btn1Normal.rgb());

    QTest::mouseMove(dlg.get(), QPoint(175, 10));
    EXPECT_EVENTUALLY_EQ(dlg->CurrentCaptionButton(), 1);
    EXPECT_EQ(dlg->CurrentCaptionState(), 1);
    EXPECT_EQ(QColor(dlg->grab().toImage().pixel(175, 10)).rgb(), Btn1Hover.rgb());

    QTest::mouseClick(dlg.get(), Qt::LeftButton, Qt::NoModifier, QPoint(175, 10));
    EXPECT_TRUE(dlg->isVisible()) << "the close is queued";
    EXPECT_EVENTUALLY(!dlg->isVisible());
}

} // namespace

TEST(RoundMask, CornersAreCutOnlyWhenThereAreRadii)
{
    struct Case {
        int rx, ry;
        bool cornerSet;
    };
    for (const Case& c : { Case{ 0, 0, true }, Case{ 4, 5, false } }) {
        const QImage mask = CSFFrameSkin::RoundMask(QSize(40, 30), c.rx, c.ry).toImage();
        const QRgb set = mask.pixel(20, 15);
        EXPECT_EQ(mask.pixel(0, 0) == set, c.cornerSet) << c.rx << "," << c.ry;
        EXPECT_EQ(mask.pixel(39, 29) == set, c.cornerSet) << c.rx << "," << c.ry;
        EXPECT_EQ(mask.pixel(20, 0), set) << "the edges between the corners stay";
        EXPECT_EQ(mask.pixel(0, 15), set);
    }
}

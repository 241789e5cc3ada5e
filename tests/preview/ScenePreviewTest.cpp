// The preview dialog run modally the way the channel page runs it.

#include "PlayManagerUILogic.h"
#include "PreviewTestSupport.h"
#include "SFDialog.h"
#include "SFFactory.h"
#include "SFQTVideoWindow.h"
#include "SFQTVideoWindowPlayWnd.h"
#include "SFQTVideoWindowSubWnd.h"
#include "ScenePlayWinDlgEventImp.h"
#include "VexplayTrace.h"

#include <QAbstractButton>
#include <QImage>
#include <QPainter>
#include <QTest>
#include <gtest/gtest.h>

namespace {

CSFQTVideoWindow* VideoWindowOf(QWidget* dialog)
{
    return dialog->findChild<CSFQTVideoWindow*>(QStringLiteral("videowindow_145"));
}

QWidget* SurfaceOf(QWidget* dialog)
{
    CSFQTVideoWindow* video = VideoWindowOf(dialog);
    return video ? video->findChild<QWidget*>(QStringLiteral("vexplaySurface")) : nullptr;
}

bool Playing(QWidget* dialog)
{
    QWidget* surface = SurfaceOf(dialog);
    return surface && surface->isVisible();
}

void ClickClose(QWidget* dialog)
{
    auto* button = dialog->findChild<QAbstractButton*>(QStringLiteral("button_2"));
    ASSERT_NE(button, nullptr);
    QTest::mouseClick(button, Qt::LeftButton);
}

// Whether the video window shows the skin's "no video" picture.
void ExpectNoVideo(QWidget* dialog)
{
    CSFQTVideoWindow* video = VideoWindowOf(dialog);
    ASSERT_NE(video, nullptr);
    EXPECT_FALSE(Playing(dialog));
    ASSERT_FALSE(video->SkinData().idle.isNull()) << "NoVideo.png did not load";
    QImage expected(video->size(), QImage::Format_RGB32);
    {
        QPainter p(&expected);
        p.drawPixmap(expected.rect(), video->SkinData().idle);
    }
    const QImage shown = video->grab().toImage().convertToFormat(QImage::Format_RGB32);
    for (const QPoint& pt : { QPoint(225, 215), QPoint(40, 40), QPoint(430, 400) })
        EXPECT_EQ(shown.pixel(pt), expected.pixel(pt)) << pt.x() << "," << pt.y();
}

class ScenePreview : public PreviewTest {
};

struct SceneCase {
    int scene;
    const char* title;
    const char* clip;
};

class ScenePreviewScenes : public ScenePreview, public testing::WithParamInterface<SceneCase> {
};

TEST_P(ScenePreviewScenes, PlaysTheScenesClipUntilTheCloseButton)
{
    const SceneCase c = GetParam();
    std::size_t beforeClose = 0;
    const int result = RunPreview(c.scene, [&](QWidget* dialog) {
        EXPECT_EQ(dialog->windowTitle(), QString::fromLatin1(c.title));
        ASSERT_TRUE(WaitFor([dialog] { return Playing(dialog); })) << "no frame shown";
        Idle(800);
        const QString shot = QStringLiteral("/tmp/preview_scene%1.png").arg(c.scene);
        EXPECT_TRUE(dialog->grab().save(shot));

        const std::vector<VexCall> calls = VexTrace::Calls();
        EXPECT_EQ(VexTrace::Ops(), Join({ { "GetPort" }, kClearOps, { "OpenFile" }, kPlayOps }));
        ASSERT_EQ(calls.size(), 9u);
        EXPECT_EQ(calls[5].arg, std::string(TALLIX_APP_DIR) + c.clip);
        EXPECT_EQ(QWidget::find(reinterpret_cast<WId>(calls[8].pointer)), VideoWindowOf(dialog));
        EXPECT_TRUE(calls[8].ok && calls[8].guiThread);
        beforeClose = calls.size();
        ClickClose(dialog);
    });
    EXPECT_EQ(result, 2);
    EXPECT_EQ(VexTrace::Ops(beforeClose), Join({ kClearOps, { "CloseFile" } }));
}

INSTANTIATE_TEST_SUITE_P(Scenes, ScenePreviewScenes,
                         testing::Values(SceneCase{ 1, "Scene 1", "/1low.kvf" },
                                         SceneCase{ 2, "Scene 2", "/1medium.kvf" },
                                         SceneCase{ 3, "Scene 3", "/1high.kvf" }));

class ScenePreviewOutside : public ScenePreview, public testing::WithParamInterface<int> {
};

TEST_P(ScenePreviewOutside, OpensWithNoVideoAndCloses)
{
    const int result = RunPreview(GetParam(), [](QWidget* dialog) {
        EXPECT_TRUE(dialog->windowTitle().isEmpty());
        ExpectNoVideo(dialog);
        if (GetParam() == 0)
            dialog->grab().save(QStringLiteral("/tmp/preview_novideo.png"));
        ClickClose(dialog);
    });
    EXPECT_EQ(result, 2);
    EXPECT_EQ(VexTrace::Count(), 0u) << "nothing was to be played";
}

INSTANTIATE_TEST_SUITE_P(Scenes, ScenePreviewOutside, testing::Values(0, 4, -1));

TEST_F(ScenePreview, LaysOutTheDialogAndItsControls)
{
    RunPreview(0, [](QWidget* dialog) {
        // MoveWindow takes the rectangle 0, 0, 450, 460 as inclusive.
        EXPECT_EQ(dialog->size(), QSize(451, 461));
        CSFQTVideoWindow* video = VideoWindowOf(dialog);
        ASSERT_NE(video, nullptr);
        EXPECT_EQ(video->geometry(), QRect(0, 30, 450, 430));
        EXPECT_EQ(video->GetCurrentSubWinCount(), 1);
        EXPECT_FALSE(video->SubWinCtrlsVisible());
        EXPECT_FALSE(video->SubWinExchangeEnabled());
        EXPECT_EQ(video->IsEnableFrameZoom(), 1);
        auto* button = dialog->findChild<QAbstractButton*>(QStringLiteral("button_2"));
        ASSERT_NE(button, nullptr);
        EXPECT_EQ(button->geometry(), QRect(428, 2, 24, 24));
        EXPECT_EQ(button->toolTip(), QStringLiteral("Close"));
        EXPECT_TRUE(button->isVisible());
        ClickClose(dialog);
    });
}

TEST_F(ScenePreview, MissingClipLeavesNoVideoAndAWorkingCloseButton)
{
    QTemporaryDir empty;
    SetAppDir(empty.path());
    const int result = RunPreview(2, [](QWidget* dialog) {
        Idle(400);
        ExpectNoVideo(dialog);
        EXPECT_EQ(VexTrace::Ops(),
                  Join({ { "GetPort" }, kClearOps, { "OpenFile" }, kClearOps, kPlayOps, kClearOps }));
        ClickClose(dialog);
    });
    EXPECT_EQ(result, 2);
    EXPECT_EQ(VexTrace::Calls().back().op, "CloseFile") << "the held port is given back";
    EXPECT_TRUE(VexTrace::Calls().back().ok);
}

enum class Closing { Escape, CloseWindow };

class ScenePreviewClosing : public ScenePreview, public testing::WithParamInterface<Closing> {
};

TEST_P(ScenePreviewClosing, ALoopingClipStopsAndCallsNothingAfter)
{
    ShortClipDir clips;
    SetAppDir(clips.Path());
    const int result = RunPreview(1, [](QWidget* dialog) {
        ASSERT_TRUE(WaitFor([] { return SuccessfulPlays() >= 3; })) << "the clip did not loop";
        if (GetParam() == Closing::Escape)
            QTest::keyClick(dialog, Qt::Key_Escape);
        else
            dialog->close();
    });
    EXPECT_EQ(result, 2);
    const std::size_t closed = VexTrace::Count();
    EXPECT_EQ(VexTrace::Calls().back().op, "CloseFile");
    Idle(400);
    EXPECT_EQ(VexTrace::Count(), closed) << "the library was called after the dialog closed";
}

INSTANTIATE_TEST_SUITE_P(Ways, ScenePreviewClosing, testing::Values(Closing::Escape, Closing::CloseWindow));

TEST_F(ScenePreview, DestroyingThePlayingWindowStopsThePort)
{
    ShortClipDir clips;
    SetAppDir(clips.Path());
    auto* handler = new CScenePlayWinDlgEventImp;
    CSFDialog* dlg = SFCreateDialog(handler, nullptr, 0);
    ASSERT_NE(dlg, nullptr);
    handler->SetDlg(dlg);
    handler->SetScene(3);
    dlg->Create(L"", nullptr);
    handler->Dlg_OnInitDialog(false);
    dlg->ShowWindow(1);
    ASSERT_TRUE(WaitFor([] { return SuccessfulPlays() >= 2; }));

    SFDestroyControl(dlg);
    EXPECT_EQ(handler->GetPlayManager()->GetPort(), CPlayManagerUILogic::NO_PORT);
    EXPECT_EQ(handler->GetVideoWindow(), nullptr);
    delete handler;
    const std::size_t destroyed = VexTrace::Count();
    Idle(400);
    EXPECT_EQ(VexTrace::Count(), destroyed);
}

} // namespace

// The preview dialog run modally the way the channel page runs it.

#include "sf/qt/SFQTVideoWindow.h"
#include "tests/preview/PreviewTestSupport.h"
#include "tests/preview/VexplayTrace.h"
#include "tests/vexplay/PlaybackStage.h"

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

class ScenePreview : public PreviewTest {};

TEST_F(ScenePreview, PlaysTheScenesClipUntilTheCloseButton)
{
    std::size_t beforeClose = 0;
    const int result = RunPreview(2, [&](QWidget* dialog) {
        EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Scene 2"));
        ASSERT_TRUE(PlaybackStage::WaitFor([dialog] { return Playing(dialog); }, 5000))
            << "no frame shown";
        const std::vector<VexCall> calls = VexTrace::Calls();
        EXPECT_EQ(VexTrace::Ops(), Join({ { "GetPort" }, kClearOps, { "OpenFile" }, kPlayOps }));
        ASSERT_EQ(calls.size(), 9u);
        EXPECT_EQ(calls[5].arg, TALLIX_APP_DIR "/1medium.kvf");
        EXPECT_EQ(QWidget::find(reinterpret_cast<WId>(calls[8].pointer)), VideoWindowOf(dialog));
        EXPECT_TRUE(calls[8].ok && calls[8].guiThread);
        beforeClose = calls.size();
        ClickClose(dialog);
    });
    EXPECT_EQ(result, 2);
    EXPECT_EQ(VexTrace::Ops(beforeClose), Join({ kClearOps, { "CloseFile" } }));
}

class ScenePreviewOutside : public ScenePreview, public testing::WithParamInterface<int> {};

TEST_P(ScenePreviewOutside, OpensWithNoVideoAndCloses)
{
    const int result = RunPreview(GetParam(), [](QWidget* dialog) {
        EXPECT_TRUE(dialog->windowTitle().isEmpty());
        ExpectNoVideo(dialog);
        ClickClose(dialog);
    });
    EXPECT_EQ(result, 2);
    EXPECT_EQ(VexTrace::Count(), 0u) << "nothing was to be played";
}

INSTANTIATE_TEST_SUITE_P(Scenes, ScenePreviewOutside, testing::Values(0, 4));

TEST_F(ScenePreview, MissingClipLeavesNoVideoAndAWorkingCloseButton)
{
    QTemporaryDir empty;
    SetAppDir(empty.path());
    const int result = RunPreview(2, [](QWidget* dialog) {
        PlaybackStage::WaitFor([] { return false; }, 400);
        ExpectNoVideo(dialog);
        EXPECT_EQ(
            VexTrace::Ops(),
            Join({ { "GetPort" }, kClearOps, { "OpenFile" }, kClearOps, kPlayOps, kClearOps }));
        ClickClose(dialog);
    });
    EXPECT_EQ(result, 2);
    EXPECT_EQ(VexTrace::Calls().back().op, "CloseFile") << "the held port is given back";
    EXPECT_TRUE(VexTrace::Calls().back().ok);
}

TEST_F(ScenePreview, EscapeStopsALoopingClipAndCallsNothingAfter)
{
    ShortClipDir clips;
    SetAppDir(clips.Path());
    const int result = RunPreview(1, [](QWidget* dialog) {
        ASSERT_TRUE(PlaybackStage::WaitFor([] { return SuccessfulPlays() >= 3; }, 5000))
            << "the clip did not loop";
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(result, 2);
    const std::size_t closed = VexTrace::Count();
    EXPECT_EQ(VexTrace::Calls().back().op, "CloseFile");
    PlaybackStage::WaitFor([] { return false; }, 400);
    EXPECT_EQ(VexTrace::Count(), closed) << "the library was called after the dialog closed";
}

} // namespace

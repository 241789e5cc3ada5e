// Frame composition on pixels and the caption buttons of skinned windows.

#include "SfTestSupport.h"

#include "DialogStyle.h"
#include "SFApplication.h"
#include "SFFactory.h"
#include "SFPictureCtrl.h"
#include "SFQTDialog.h"
#include "SFQTMainWindow.h"
#include "SFSkinParse.h"

#include <QFontMetrics>
#include <QImage>
#include <QLabel>
#include <QScreen>
#include <QTest>
#include <gtest/gtest.h>

#include "QtWait.h"
#include <memory>

namespace {

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
    ExpectPixels(window.ComposedFrame().toImage(), { { 150, 100, Background, "interior" },
                                                     { 295, 195, BottomRight, "corner" } });
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

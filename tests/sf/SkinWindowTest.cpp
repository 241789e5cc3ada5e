// Frame composition on pixels, caption buttons, dragging, masks, title and
// centring of the skinned windows, and the picture control.

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

TEST_F(SkinnedWindow, TallDialogTilesTheSideEdges)
{
    using namespace SkinColors;
    auto dlg = ShowDialog(200, 300);
    const QImage image = dlg->ComposedFrame().toImage();
    // Left tiles run from 27 + 80 while y < 300 - 20 - 10.
    ExpectPixels(image, { { 0, 107, Left, "first left tile" },
                          { 0, 269, Left, "last left tile" },
                          { 0, 270, LeftBottom, "left-bottom" },
                          { 199, 150, Right, "right tile" } });
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

TEST_F(SkinnedWindow, NoFrameImageMeansNoCompositionAndNoSizeEvent)
{
    m_style.strFrameImage = L"missing.png";
    auto dlg = ShowDialog(200, 100);
    EXPECT_TRUE(dlg->ComposedFrame().isNull());
    EXPECT_EQ(m_handler.sizeCalls, 0);
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

TEST_F(SkinnedWindow, EmptyHitRectangleNeitherDrawsNorTakesClicks)
{
    auto dlg = ShowDialog(200, 100);
    EXPECT_FALSE(CSFFrameSkin::IsValidRect(dlg->FrameSkin().ButtonHitRect(1)));
    QTest::mouseClick(dlg.get(), Qt::LeftButton, Qt::NoModifier, QPoint(195, 2));
    QTest::qWait(20);
    EXPECT_TRUE(dlg->isVisible());
    EXPECT_EQ(dlg->CurrentCaptionButton(), 0);
}

TEST_F(SkinnedWindow, DraggingStopsAtTheAvailableTop)
{
    auto dlg = ShowDialog(200, 100);
    const QRect avail = dlg->screen()->availableGeometry();
    const QPoint start = dlg->pos();
    QTest::mousePress(dlg.get(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 10));
    QTest::mouseMove(dlg.get(), QPoint(60, 10));
    EXPECT_EVENTUALLY_EQ(dlg->pos(), start + QPoint(40, 0));
    QTest::mouseMove(dlg.get(), QPoint(60, -400));
    EXPECT_EVENTUALLY_EQ(dlg->y(), avail.top());
    QTest::mouseRelease(dlg.get(), Qt::LeftButton, Qt::NoModifier, QPoint(60, 10));
    EXPECT_EQ(dlg->y(), avail.top());

    // Below the title nothing drags.
    const QPoint before = dlg->pos();
    QTest::mousePress(dlg.get(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 60));
    QTest::mouseMove(dlg.get(), QPoint(80, 80));
    QTest::mouseRelease(dlg.get(), Qt::LeftButton, Qt::NoModifier, QPoint(80, 80));
    EXPECT_EQ(dlg->pos(), before);
}

TEST_F(SkinnedWindow, RoundCornersCutTheMask)
{
    m_style.strRoundCorner = L"8,8";
    auto rounded = ShowDialog(200, 100);
    EXPECT_FALSE(rounded->mask().contains(QPoint(0, 0)));
    EXPECT_FALSE(rounded->mask().contains(QPoint(199, 99)));
    EXPECT_TRUE(rounded->mask().contains(QPoint(100, 50)));
    EXPECT_TRUE(rounded->mask().contains(QPoint(100, 0)));

    m_style.strRoundCorner = L"0,0";
    auto square = ShowDialog(200, 100);
    EXPECT_TRUE(square->mask().contains(QPoint(0, 0)));
    EXPECT_TRUE(square->mask().contains(QPoint(199, 99)));
}

struct AlignCase {
    const wchar_t* align;
    int expectedAlign; // 0 left, 1 centre, 2 right
};

class TitleAlign : public SkinnedWindow, public testing::WithParamInterface<AlignCase> {
};

TEST_P(TitleAlign, PlacesTheTitleLabel)
{
    m_style.strTitleAlign = GetParam().align;
    auto dlg = ShowDialog(300, 100);
    QLabel* title = dlg->TitleLabel();
    ASSERT_NE(title, nullptr);
    const QFontMetrics fm(title->font());
    const int tw = fm.horizontalAdvance(QStringLiteral("Title")) + 1;
    const int x = GetParam().expectedAlign == 0 ? 15
        : GetParam().expectedAlign == 1         ? (300 - tw) / 2
                                                : 300 - tw;
    EXPECT_EQ(title->geometry(), QRect(QPoint(x, 5), QPoint(x + tw, fm.height() + 6)));
    EXPECT_EQ(title->palette().color(QPalette::WindowText).rgb(), QColor(0x33, 0x33, 0x33).rgb());
    EXPECT_EQ(dlg->windowTitle(), QStringLiteral("Title"));
}

INSTANTIATE_TEST_SUITE_P(Aligns, TitleAlign,
                         testing::Values(AlignCase{ L"left", 0 }, AlignCase{ L"center", 1 },
                                         AlignCase{ L"right", 2 }, AlignCase{ L"Left", 0 },
                                         AlignCase{ L"", 0 }));

TEST_F(SkinnedWindow, WindowSizeCentresAndSetsTheMinimum)
{
    m_style.strWindowSize = L"300,200";
    CSFQTDialog dlg(&m_handler);
    dlg.SetSkin(&m_style);
    const QRect avail = dlg.screen()->availableGeometry();
    EXPECT_EQ(dlg.size(), QSize(300, 200));
    EXPECT_EQ(dlg.pos(), QPoint(avail.x() + (avail.width() - 300) / 2,
                                avail.y() + (avail.height() - 200) / 2));
    EXPECT_EQ(dlg.MinimumSkinSize(), QSize(300, 200));

    // Without a window size the frame image gives the minimum.
    CSFQTDialog plain(&m_handler);
    m_style.strWindowSize.clear();
    plain.SetSkin(&m_style);
    EXPECT_EQ(plain.MinimumSkinSize(), QSize(148, 140));
    plain.MoveWindow(0, 0, 100, 100);
    plain.CenterWindow(nullptr);
    EXPECT_EQ(plain.size(), QSize(148, 140));

    plain.SetDlgWindowPos(nullptr, 5, 6, 250, 150, 2);
    EXPECT_EQ(plain.size(), QSize(250, 150));
    EXPECT_NE(plain.pos(), QPoint(5, 6));
}

TEST(SkinImages, PathWithoutFinalSlashLoadsNothing)
{
    CTestSkin skin;
    ASSERT_TRUE(skin.IsValid());
    EXPECT_NE(SFLoadSkinPixmap(L"Frame.png"), nullptr);
    g_strSkinPath = skin.Dir();
    EXPECT_EQ(SFLoadSkinPixmap(L"Frame.png"), nullptr);
}

TEST(PictureCtrl, CreateIsExclusiveMoveIsInclusiveStyleDecidesVisibility)
{
    CTestSkin skin;
    QWidget parent;
    parent.show();
    CSFPictureCtrl* picture = SFCreatePictureCtrl(nullptr);
    picture->SetImage(L"Frame.png");
    tagRECT rect{ 10, 10, 110, 40 };
    picture->Create(L"Banner", 0, rect, &parent, 3);
    auto* widget = static_cast<QWidget*>(picture->GetHWnd());
    EXPECT_EQ(widget->size(), QSize(100, 30));
    EXPECT_FALSE(widget->isVisible());
    picture->ShowWindow(1);
    EXPECT_TRUE(widget->isVisible());
    picture->MoveWindow(&rect);
    EXPECT_EQ(widget->size(), QSize(101, 31));
    EXPECT_EQ(widget->objectName(), QStringLiteral("picture_3"));
    EXPECT_EQ(widget->accessibleName(), QStringLiteral("Banner"));
    // Stretched picture under centred text: the top-left corner is red.
    EXPECT_EQ(QColor(widget->grab().toImage().pixel(0, 0)).rgb(), SkinColors::TopLeft.rgb());
    SFDestroyControl(picture);
}

} // namespace

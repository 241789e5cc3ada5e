// The video window on screen (offscreen): sub windows at the layout's
// rectangles, zoom, native handles, user gestures and the preview's use.

#include "ISFVideoWindowEvent.h"
#include "SFButton.h"
#include "SFQTVideoWindow.h"
#include "SFQTVideoWindowPlayWnd.h"
#include "SFQTVideoWindowSubWnd.h"
#include "SFRadioBox.h"
#include "SFVideoWindowFactory.h"
#include "SfTestSupport.h"

#include <QImage>
#include <QPainter>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace {

class CLoggingVideoHandler : public ISFVideoWindowEvent {
public:
    Log log;
    void OnLayoutChanged() override { log.push_back("layout"); }
    void OnBnClickedVideoClose(int i, int v) override { Add("close", i, v); }
    void OnBnClickedVideoSnap(int i, int v) override { Add("snap", i, v); }
    void OnBnClickedVideoProperty(int i, int v) override { Add("property", i, v); }
    void OnFocusWndChanged(int a, int b) override { Add("focus", a, b); }
    void OnSubWndExchanged(int a, int b) override { Add("exchange", a, b); }
    void OnSubWinZoom(int i, int v, int z) override { Add("zoom", i, v, z); }
    void VideoWidow_OnLButtonDown(int i, int, tagPOINT&) override { Add("down", i); }
    void VideoWidow_OnLButtonUp(int i, int, tagPOINT&) override { Add("up", i); }

private:
    void Add(const char* what, int a, int b = 0, int c = 0)
    {
        log.push_back(std::string(what) + ":" + std::to_string(a) + "," + std::to_string(b) +
                      "," + std::to_string(c));
    }
};

// The record the preview dialog fills.
ImageVideoWindowStyle PreviewStyle()
{
    ImageVideoWindowStyle s;
    s.strNoVideo = L"NoVideo.png";
    s.strCloseNormal = L"btn_videoclose.png";
    s.strCloseHover = L"btn_videoclose.png";
    s.strCloseDown = L"btn_videoclosedown.png";
    s.strSnapNormal = L"btn_videosnap.png";
    s.strSnapHover = L"btn_videosnap.png";
    s.strSnapDown = L"btn_videosnapdown.png";
    s.strPropertyNormal = L"btn_propertynor.png";
    s.strPropertyDown = L"btn_propertydown.png";
    s.strPropertyHover = L"btn_propertynor.png";
    s.strDragOn = L"btn_dragcheck.png";
    s.strDragOff = L"btn_draguncheck.png";
    s.strButtonSize = L"20,20";
    s.strTitleHeight = L"22";
    s.strBackColor = L"000000";
    s.strFocusColor = L"fa0000";
    s.strTitleColor = L"586f1b";
    s.strDropColor = L"00fa00";
    s.strRecordColor = L"dec700";
    s.strFrameWidth = L"2";
    s.strFocusFrameWidth = L"2";
    return s;
}

QRect Inclusive(const CQTVideoWindowLayout::Rect& r)
{
    return QRect(QPoint(r.left, r.top), QPoint(r.right, r.bottom));
}

class VideoWindow : public testing::Test {
protected:
    void SetUp() override
    {
        m_host = std::make_unique<QWidget>();
        m_host->resize(900, 500);
    }
    void TearDown() override
    {
        m_host.reset();
    }

    // The preview's sequence, with a layout and size of the test's choice.
    CSFQTVideoWindow* Make(DEFAULT_LAYOUT layout, const tagRECT& rect, bool controls = false)
    {
        CSFVideoWindow* window = SFCreateVideoWindow(nullptr, &m_handler, 1, 1);
        EXPECT_NE(window, nullptr);
        ImageVideoWindowStyle style = PreviewStyle();
        window->SetSkin(&style);
        window->Create(L"VideoWindow", rect, m_host.get(), 145);
        window->EableSubWinExchange(0);
        window->SetSubWinCtrlsVisible(controls ? 1 : 0);
        window->SetDefaultLayout(layout);
        window->EableSubWinExchange(0);
        window->SetFrameZoomMode(1);
        return static_cast<CSFQTVideoWindow*>(window);
    }

    void Show()
    {
        m_host->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(m_host.get()));
    }

    CProgramSkin m_skin;
    std::unique_ptr<QWidget> m_host;
    CLoggingVideoHandler m_handler;
};

TEST_F(VideoWindow, PreviewSequenceGivesOneWindowWithThePicture)
{
    CSFQTVideoWindow* w = Make(DEFAULT_LAYOUT_1, tagRECT{ 0, 30, 450, 460 });
    Show();
    EXPECT_EQ(w->geometry(), QRect(0, 30, 450, 430));
    EXPECT_EQ(w->objectName(), QStringLiteral("videowindow_145"));
    EXPECT_TRUE(w->isVisible());
    ASSERT_EQ(w->GetCurrentSubWinCount(), 1);
    EXPECT_EQ(w->SubWindow(0)->geometry(), QRect(0, 0, 450, 430));
    EXPECT_EQ(w->SubWindow(0)->PlayWnd()->geometry(), QRect(0, 0, 450, 430));
    EXPECT_EQ(w->IsEnableFrameZoom(), 1);
    EXPECT_FALSE(w->SubWinExchangeEnabled());
    EXPECT_FALSE(w->SubWinCtrlsVisible());
    EXPECT_FALSE(w->SkinData().idle.isNull()) << "NoVideo.png did not load";

    // The surface shows the picture, stretched.
    QImage expected(450, 430, QImage::Format_RGB32);
    {
        QPainter p(&expected);
        p.drawPixmap(expected.rect(), w->SkinData().idle);
    }
    const QImage shown = w->grab().toImage().convertToFormat(QImage::Format_RGB32);
    for (const QPoint& pt : { QPoint(225, 215), QPoint(30, 30), QPoint(440, 420) })
        EXPECT_EQ(shown.pixel(pt), expected.pixel(pt)) << pt.x() << "," << pt.y();
}

TEST_F(VideoWindow, CurrentHandleIsTheControlsNativeWindow)
{
    CSFQTVideoWindow* w = Make(DEFAULT_LAYOUT_1, tagRECT{ 0, 30, 450, 460 });
    void* handle = w->GetCurrentWinHandle();
    ASSERT_NE(handle, nullptr);
    EXPECT_EQ(QWidget::find(reinterpret_cast<WId>(handle)), w);
    EXPECT_EQ(w->GetCurrentWinHandle(), handle);
}

TEST_F(VideoWindow, SubWindowHandlesAreNativeSurfacesOnDemand)
{
    CSFQTVideoWindow* w = Make(DEFAULT_LAYOUT_4, tagRECT{ 0, 0, 400, 300 });
    Show();
    ASSERT_EQ(w->GetCurrentSubWinCount(), 4);
    EXPECT_FALSE(w->SubWindow(1)->PlayWnd()->testAttribute(Qt::WA_NativeWindow));
    for (int i = 0; i < 4; ++i) {
        void* handle = w->GetSubWinHandle(i);
        ASSERT_NE(handle, nullptr) << i;
        EXPECT_EQ(QWidget::find(reinterpret_cast<WId>(handle)), w->SubWindow(i)->PlayWnd()) << i;
    }
    EXPECT_NE(w->GetSubWinHandle(0), w->GetSubWinHandle(1));
    EXPECT_EQ(w->GetSubWinHandle(4), nullptr);
    EXPECT_EQ(w->GetSubWinHandle(-1), nullptr);
}

class VideoWindowLayouts : public VideoWindow, public testing::WithParamInterface<int> {};

// Each ready layout tiles the control: every sub window at its rectangle,
// no overlap, no pixel left over.
TEST_P(VideoWindowLayouts, PlacesSubWindowsAtTheLayoutsRectangles)
{
    CSFQTVideoWindow* w = Make(static_cast<DEFAULT_LAYOUT>(GetParam()), tagRECT{ 0, 0, 451, 433 });
    Show();
    const CQTVideoWindowLayout& layout = w->Layout();
    ASSERT_EQ(w->GetCurrentSubWinCount(), layout.Count());
    std::vector<int> covered(451 * 433, 0);
    for (int i = 0; i < w->GetCurrentSubWinCount(); ++i) {
        const QRect g = w->SubWindow(i)->geometry();
        EXPECT_EQ(g, Inclusive(layout.Rects()[i])) << i;
        EXPECT_TRUE(w->SubWindow(i)->isVisible()) << i;
        for (int y = g.top(); y <= g.bottom(); ++y)
            for (int x = g.left(); x <= g.right(); ++x)
                ++covered[static_cast<size_t>(y * 451 + x)];
    }
    EXPECT_EQ(std::count(covered.begin(), covered.end(), 1), 451 * 433);
}

INSTANTIATE_TEST_SUITE_P(Ready, VideoWindowLayouts, testing::Range(0, 10));

TEST_F(VideoWindow, ResizingMovesTheSubWindows)
{
    CSFQTVideoWindow* w = Make(DEFAULT_LAYOUT_4, tagRECT{ 0, 0, 400, 300 });
    Show();
    // Index 0 of the ready text is the bottom right window.
    EXPECT_EQ(w->SubWindow(0)->geometry(), QRect(200, 150, 200, 150));
    w->MoveWindow(0, 0, 301, 201);
    EXPECT_EQ(w->SubWindow(0)->geometry(), QRect(150, 100, 151, 101));
    EXPECT_EQ(w->SubWindow(3)->geometry(), QRect(0, 0, 150, 100));
}

TEST_F(VideoWindow, DoubleClickZoomsAndSetLayoutEndsIt)
{
    CSFQTVideoWindow* w = Make(DEFAULT_LAYOUT_4, tagRECT{ 0, 0, 400, 300 });
    Show();
    m_handler.log.clear();
    QTest::mouseDClick(w->SubWindow(2), Qt::LeftButton, {}, QPoint(50, 50));
    ASSERT_EQ(w->ZoomedIndex(), 2);
    EXPECT_EQ(w->GetVideoWindowMode(), VIDEOWINDOWMODE_ZOOMED);
    EXPECT_EQ(w->SubWindow(2)->geometry(), QRect(0, 0, 400, 300));
    EXPECT_FALSE(w->SubWindow(0)->isVisible());
    EXPECT_NE(std::find(m_handler.log.begin(), m_handler.log.end(), "zoom:2,-1,1"),
              m_handler.log.end());

    // A resize keeps the zoomed window over everything.
    w->MoveWindow(0, 0, 420, 320);
    EXPECT_EQ(w->SubWindow(2)->geometry(), QRect(0, 0, 420, 320));

    ASSERT_EQ(w->SetLayout(CSFVideoWindow::GetDefaultLayout(DEFAULT_LAYOUT_4)), 1);
    EXPECT_EQ(w->ZoomedIndex(), -1);
    EXPECT_EQ(w->GetVideoWindowMode(), VIDEOWINDOWMODE_NORMAL);
    for (int i = 0; i < 4; ++i) {
        EXPECT_TRUE(w->SubWindow(i)->isVisible()) << i;
        EXPECT_EQ(w->SubWindow(i)->geometry(), Inclusive(w->Layout().Rects()[i])) << i;
    }
}

TEST_F(VideoWindow, ZoomNeedsTheZoomFlag)
{
    CSFQTVideoWindow* w = Make(DEFAULT_LAYOUT_4, tagRECT{ 0, 0, 400, 300 });
    w->SetFrameZoomMode(0);
    Show();
    QTest::mouseDClick(w->SubWindow(1), Qt::LeftButton, {}, QPoint(10, 10));
    EXPECT_EQ(w->ZoomedIndex(), -1);
}

TEST_F(VideoWindow, TextThatDoesNotParseKeepsTheLayout)
{
    CSFQTVideoWindow* w = Make(DEFAULT_LAYOUT_1_5, tagRECT{ 0, 0, 400, 300 });
    char before[4096];
    const int length = w->GetLayout(before, sizeof before);
    ASSERT_GT(length, 0);
    ASSERT_LT(length, static_cast<int>(sizeof before));
    EXPECT_EQ(w->SetLayout("1/1/1/400:300/0:0:400:300"), 0);
    EXPECT_EQ(w->SetLayout("70/70/1/400:300//"), 0);
    EXPECT_EQ(w->SetLayout(nullptr), 0);
    w->SetDefaultLayout(static_cast<DEFAULT_LAYOUT>(10));
    char after[4096];
    w->GetLayout(after, sizeof after);
    EXPECT_STREQ(after, before);
    EXPECT_EQ(w->GetCurrentSubWinCount(), 6);

    // A short buffer gets the start of the text, terminated.
    char small[8];
    EXPECT_EQ(w->GetLayout(small, sizeof small), length);
    EXPECT_EQ(std::string(small), std::string(before, 7));
}

TEST_F(VideoWindow, IdsFollowTheSubWindows)
{
    CSFQTVideoWindow* w = Make(DEFAULT_LAYOUT_4, tagRECT{ 0, 0, 400, 300 });
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(w->GetSubWinID(i), i);
        EXPECT_EQ(w->GetSubWinIndexFromID(i), i);
    }
    EXPECT_EQ(w->GetSubWinID(4), -1);
    EXPECT_EQ(w->GetSubWinID(-1), -1);
    EXPECT_EQ(w->GetSubWinIndexFromID(77), -1);
    w->SetSubWinVideoByID(2, 9);
    EXPECT_EQ(w->SubWindow(2)->Video(), 9);
    // Fewer windows: the surplus goes, the rest stay as they were.
    w->SetDefaultLayout(DEFAULT_LAYOUT_1);
    EXPECT_EQ(w->GetCurrentSubWinCount(), 1);
    EXPECT_EQ(w->GetSubWinID(1), -1);
    EXPECT_EQ(w->GetSubWinHandle(1), nullptr);
}

TEST_F(VideoWindow, ClickMovesTheFocusAndReportsIt)
{
    CSFQTVideoWindow* w = Make(DEFAULT_LAYOUT_4, tagRECT{ 0, 0, 400, 300 });
    Show();
    m_handler.log.clear();
    QTest::mouseClick(w->SubWindow(3), Qt::LeftButton, {}, QPoint(20, 20));
    EXPECT_EQ(w->GetCurrentSubWinIndex(), 3);
    EXPECT_EQ(m_handler.log, (Log{ "focus:0,3,0", "down:3,0,0", "up:3,0,0" }));
}

TEST_F(VideoWindow, DragOntoAnotherWindowExchangesThem)
{
    CSFQTVideoWindow* w = Make(DEFAULT_LAYOUT_4, tagRECT{ 0, 0, 400, 300 });
    w->EableSubWinExchange(1);
    Show();
    const QRect first = w->SubWindow(0)->geometry();
    const QRect second = w->SubWindow(1)->geometry();
    m_handler.log.clear();
    // From window 0 (bottom right) onto window 1 (bottom left).
    QTest::mousePress(w->SubWindow(0), Qt::LeftButton, {}, QPoint(50, 50));
    QTest::mouseMove(w->SubWindow(0), QPoint(-100, 50));
    QTest::mouseRelease(w->SubWindow(0), Qt::LeftButton, {}, QPoint(-100, 50));
    EXPECT_EQ(m_handler.log.back(), "exchange:0,1,0");
    EXPECT_EQ(w->GetSubWinID(0), 1);
    EXPECT_EQ(w->GetSubWinID(1), 0);
    EXPECT_EQ(w->SubWindow(0)->geometry(), first);
    EXPECT_EQ(w->SubWindow(1)->geometry(), second);

    // Not when exchanging is off.
    w->EableSubWinExchange(0);
    QTest::mousePress(w->SubWindow(0), Qt::LeftButton, {}, QPoint(50, 50));
    QTest::mouseRelease(w->SubWindow(0), Qt::LeftButton, {}, QPoint(-100, 50));
    EXPECT_EQ(w->GetSubWinID(0), 1);
}

TEST_F(VideoWindow, TitleBarButtonsReportTheirSubWindow)
{
    CSFQTVideoWindow* w = Make(DEFAULT_LAYOUT_4, tagRECT{ 0, 0, 400, 300 }, true);
    Show();
    w->SetSubWinVideo(1, 5);
    CSFQTVideoWindowSubWnd* sub = w->SubWindow(1);
    // Below a title bar of 22 inside a frame of 2.
    EXPECT_EQ(sub->PlayWnd()->geometry(), QRect(2, 24, 196, 124));
    struct Case {
        int id;
        const char* expected;
    };
    for (const Case& c : { Case{ CSFQTVideoWindowSubWnd::ID_CLOSE, "close:1,5,0" },
                           Case{ CSFQTVideoWindowSubWnd::ID_SNAP, "snap:1,5,0" },
                           Case{ CSFQTVideoWindowSubWnd::ID_PROPERTY, "property:1,5,0" } }) {
        auto* button = dynamic_cast<QWidget*>(sub->Button(c.id));
        ASSERT_NE(button, nullptr) << c.id;
        EXPECT_TRUE(button->isVisible());
        EXPECT_EQ(button->size(), QSize(20, 20));
        m_handler.log.clear();
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(10, 10));
        EXPECT_EQ(m_handler.log, Log{ c.expected });
    }
    auto* toggle = dynamic_cast<QWidget*>(sub->DragToggle());
    ASSERT_NE(toggle, nullptr);
    ASSERT_TRUE(sub->DragEnabled());
    QTest::mouseClick(toggle, Qt::LeftButton, {}, QPoint(10, 10));
    EXPECT_FALSE(sub->DragEnabled());

    w->SetSubWinCtrlsVisible(0);
    EXPECT_FALSE(dynamic_cast<QWidget*>(sub->Button(CSFQTVideoWindowSubWnd::ID_CLOSE))->isVisible());
    EXPECT_EQ(sub->PlayWnd()->geometry(), QRect(2, 2, 196, 146));
}

TEST_F(VideoWindow, RenderSubWinShowsAFrame)
{
    CSFQTVideoWindow* w = Make(DEFAULT_LAYOUT_1, tagRECT{ 0, 0, 40, 30 });
    std::vector<unsigned char> pixels(4 * 4 * 4, 0);
    for (size_t i = 0; i < pixels.size(); i += 4) {
        pixels[i + 2] = 0xff; // red, in BGRA memory order
        pixels[i + 3] = 0xff;
    }
    EXPECT_EQ(w->RenderSubWin(0, pixels.data(), RENDER_DATA_RGB32, 4, 4), 1);
    EXPECT_EQ(w->SubWindow(0)->PlayWnd()->Frame().pixelColor(1, 1), QColor(255, 0, 0));
    EXPECT_EQ(w->RenderSubWin(1, pixels.data(), RENDER_DATA_RGB32, 4, 4), 0);
    EXPECT_EQ(w->RenderSubWin(0, nullptr, RENDER_DATA_RGB32, 4, 4), 0);
    EXPECT_EQ(w->RenderSubWin(0, pixels.data(), RENDER_DATA_YV12, 4, 4), 0);
    EXPECT_EQ(w->RenderSubWin(0, pixels.data(), RENDER_DATA_RGB32, -4, 4), 0);
}

// A picture for the eye: the 2 by 2 layout as the preview would skin it and
// the layout with joined cells with its title bars, side by side.
TEST_F(VideoWindow, Screenshot)
{
    CSFQTVideoWindow* grid = Make(DEFAULT_LAYOUT_4, tagRECT{ 0, 0, 440, 330 });
    CSFQTVideoWindow* joined = Make(DEFAULT_LAYOUT_1_5, tagRECT{ 450, 0, 890, 330 }, true);
    joined->SetSubWinRecordState(2, 1);
    Show();
    const QImage shot = m_host->grab(QRect(0, 0, 890, 330)).toImage();
    ASSERT_TRUE(shot.save(QStringLiteral("/tmp/videowindow.png")));

    // The current window has the focus frame, the others a frame of the
    // gap colour; the joined window spans two cells.
    const QRect current = grid->SubWindow(grid->GetCurrentSubWinIndex())->geometry();
    EXPECT_EQ(QColor(shot.pixel(current.topLeft())), QColor(0xfa, 0, 0));
    const QRect other = grid->SubWindow(1)->geometry();
    EXPECT_EQ(QColor(shot.pixel(other.topLeft())), QColor(0, 0, 0));
    EXPECT_EQ(joined->SubWindow(5)->geometry(), QRect(0, 0, 292, 220));
    EXPECT_EQ(QColor(shot.pixel(450 + 100, 2 + 11)), QColor(0x58, 0x6f, 0x1b)) << "title bar";
    const QRect recording = joined->SubWindow(2)->geometry().translated(450, 0);
    EXPECT_EQ(QColor(shot.pixel(recording.topLeft())), QColor(0xde, 0xc7, 0x00));
}

} // namespace

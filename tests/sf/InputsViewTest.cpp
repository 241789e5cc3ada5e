// The page container: colour or image background, the alpha rule of
// SetBGClr, the frame, the round mask and the handler's view events.

#include "InputsTestSupport.h"

#include "SFApplication.h"
#include "SFControlTypes.h"
#include "SFFactory.h"
#include "SFQTView.h"

#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

class CViewRecorder : public ISFViewEvent {
public:
    std::vector<std::string> log;
    CSFQTView* view = nullptr;

    const SF_MSGMAP* GetSFMessageMap() const override
    {
        static const SF_MSGMAP_ENTRY entries[] = { SF_MSGMAP_ENTRY{} };
        static const SF_MSGMAP map = { entries };
        return &map;
    }
    int OnCreate() override
    {
        // Controls are made here: the view must already stand in place.
        log.push_back("create " + std::to_string(view->width()) + "x" +
                      std::to_string(view->height()) + (view->isVisible() ? " shown" : " hidden") +
                      (m_pUIWnd == static_cast<void*>(view) ? " wnd" : ""));
        return 1;
    }
    void OnDestroy() override { log.push_back(m_pUIWnd ? "destroy wnd" : "destroy"); }
    void OnSize(unsigned int type, int cx, int cy) override
    {
        log.push_back("size " + std::to_string(type) + " " + std::to_string(cx) + "x" +
                      std::to_string(cy));
    }
    void OnLButtonDown(unsigned int, tagPOINT pt) override
    {
        log.push_back("down " + std::to_string(pt.x) + "," + std::to_string(pt.y));
    }
    void OnLButtonDblClk(unsigned int, tagPOINT pt) override
    {
        log.push_back("dbl " + std::to_string(pt.x) + "," + std::to_string(pt.y));
    }
};

const QColor kHostColour(10, 200, 10);

struct ViewFixture : testing::Test {
    CViewRecorder handler;
    CInputsHost host{ QSize(300, 200) };
    CSFQTView* view = nullptr;

    void SetUp() override
    {
        host.setAutoFillBackground(true);
        QPalette pal = host.palette();
        pal.setColor(QPalette::Window, kHostColour);
        host.setPalette(pal);
        view = static_cast<CSFQTView*>(SFCreateView(&handler));
        handler.view = view;
        view->Create(L"", L"Page", SF_WS_VISIBLE, tagRECT{ 10, 10, 109, 59 }, host.Handle(), 4);
    }
    void TearDown() override
    {
        if (view)
            SFDestroyControl(static_cast<CSFView*>(view));
    }
    // The view as it appears on its host.
    QColor At(int x, int y) { return QColor(host.grab().toImage().pixel(10 + x, 10 + y)); }
};

TEST_F(ViewFixture, CreateCallsOnCreateWithTheViewInPlace)
{
    // Showing delivers the pending resize first.
    EXPECT_EQ(handler.log, (std::vector<std::string>{ "size 0 100x50", "create 100x50 shown wnd" }));
    EXPECT_EQ(handler.GetUIWnd(), static_cast<void*>(view));
    EXPECT_EQ(view->isShow(), 1);
    EXPECT_EQ(view->isWindow(), 1);
    EXPECT_EQ(view->SubclassWindow(), 1);
}

TEST_F(ViewFixture, DefaultColourAndTheAlphaRule)
{
    EXPECT_EQ(At(50, 25), QColor(92, 101, 118));
    view->SetBGClr(0);
    EXPECT_EQ(At(50, 25), QColor(0, 0, 0));
    // Low byte red, top byte the complement of alpha.
    view->SetBGClr(0x00FF0000u);
    EXPECT_EQ(At(50, 25), QColor(0, 0, 255));
    view->SetBGClr(0xFF0000FFu);
    EXPECT_EQ(view->BackgroundColor(), QColor(255, 0, 0, 0));
    EXPECT_EQ(At(50, 25), kHostColour);
    view->SetBGClr(0x80000000u);
    EXPECT_EQ(view->BackgroundColor().alpha(), 0x7F);
}

TEST_F(ViewFixture, ImageWinsOverColourAndAMissingImageFallsBack)
{
    QTemporaryDir dir;
    QImage image(4, 2, QImage::Format_ARGB32);
    image.fill(QColor(200, 0, 200));
    image.save(dir.filePath(QStringLiteral("bg.png")), "PNG");
    const QString oldSkin = g_strSkinPath;
    g_strSkinPath = dir.path() + QLatin1Char('/');
    view->SetBackground(L"bg.png");
    view->update();
    // Stretched over the whole view.
    EXPECT_EQ(At(0, 0), QColor(200, 0, 200));
    EXPECT_EQ(At(99, 49), QColor(200, 0, 200));
    view->SetBackground(L"none.png");
    view->update();
    EXPECT_EQ(At(50, 25), QColor(92, 101, 118));
    g_strSkinPath = oldSkin;
}

TEST_F(ViewFixture, FrameRunsAlongTheEdge)
{
    view->SetBGClr(0);
    view->SetFrameClr(0x0000FF, 1);
    EXPECT_EQ(At(0, 0), QColor(255, 0, 0));
    EXPECT_EQ(At(99, 49), QColor(255, 0, 0));
    EXPECT_EQ(At(50, 0), QColor(255, 0, 0));
    EXPECT_EQ(At(1, 1), QColor(0, 0, 0));
    view->SetFrameClr(0x0000FF, 0);
    EXPECT_EQ(At(0, 0), QColor(0, 0, 0));
}

TEST_F(ViewFixture, ResizeReportsOnSizeAndAppliesTheRoundMask)
{
    handler.log.clear();
    view->MoveWindow(0, 0, 120, 80);
    EXPECT_EQ(handler.log, (std::vector<std::string>{ "size 0 120x80" }));
    EXPECT_TRUE(view->mask().isEmpty());

    view->SetRoundCornerRadius(12);
    EXPECT_TRUE(view->mask().isEmpty());
    tagRECT r{ 0, 0, 139, 99 };
    view->MoveWindow(&r);
    EXPECT_EQ(view->size(), QSize(140, 100));
    const QRegion mask = view->mask();
    EXPECT_FALSE(mask.contains(QPoint(0, 0)));
    EXPECT_FALSE(mask.contains(QPoint(139, 99)));
    EXPECT_TRUE(mask.contains(QPoint(70, 50)));
    EXPECT_TRUE(mask.contains(QPoint(70, 0)));
    EXPECT_TRUE(mask.contains(QPoint(0, 50)));
}

TEST_F(ViewFixture, LeftClicksAndDoubleClicksReachTheHandler)
{
    handler.log.clear();
    QTest::mouseClick(view, Qt::LeftButton, Qt::NoModifier, QPoint(7, 8));
    QTest::mouseClick(view, Qt::RightButton, Qt::NoModifier, QPoint(9, 9));
    QTest::mouseDClick(view, Qt::LeftButton, Qt::NoModifier, QPoint(20, 21));
    QTest::mouseDClick(view, Qt::RightButton, Qt::NoModifier, QPoint(22, 23));
    // The base class would turn a double click into one more press.
    EXPECT_EQ(handler.log, (std::vector<std::string>{ "down 7,8", "dbl 20,21" }));
}

TEST_F(ViewFixture, DestructionCallsOnDestroyThenClearsTheWindow)
{
    SFDestroyControl(static_cast<CSFView*>(view));
    view = nullptr;
    EXPECT_EQ(handler.log.back(), "destroy wnd");
    EXPECT_EQ(handler.GetUIWnd(), nullptr);
}

} // namespace

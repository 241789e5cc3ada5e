// The image toggle: release inside flips and reports, outside does nothing,
// SetCheck is silent; its painting.

#include "ButtonsTestSupport.h"

#include "SFFactory.h"
#include "SFQTRadioBox.h"

#include <QPropertyAnimation>
#include <QTest>
#include <gtest/gtest.h>
#include <vector>

namespace {

const tagRECT kRect{ 20, 20, 170, 50 }; // 150 by 30

class RadioEvents : public testing::Test {
protected:
    void SetUp() override
    {
        m_radio = static_cast<CSFQTRadioBox*>(SFCreateRadioBox(&m_handler));
        m_radio->Create(L"Disk Requirement", SF_WS_VISIBLE, kRect, m_host.Page(), 7);
        ParkCursor();
        ASSERT_TRUE(m_host.Show());
    }
    void TearDown() override { SFDestroyControl(m_radio); }

    Log m_log;
    CButtonHost m_host{ m_log };
    CRadioLogger m_handler{ m_log };
    CSFQTRadioBox* m_radio = nullptr;
};

TEST_F(RadioEvents, ReleaseInsideFlipsAndReportsOnBothRoads)
{
    const QPoint at(30, 12);
    QTest::mousePress(m_radio, Qt::LeftButton, {}, at);
    EXPECT_EQ(m_radio->State(), 2);
    QTest::mouseRelease(m_radio, Qt::LeftButton, {}, at);
    EXPECT_EQ(m_radio->State(), 0);
    EXPECT_EQ(m_radio->GetCheck(), 1);
    EXPECT_TRUE(m_radio->isChecked());
    EXPECT_EQ(m_log, (Log{ "radio:7=1", "view:7" }));
    EXPECT_EQ(m_handler.lastPoint.x, 30);
    EXPECT_EQ(m_handler.lastPoint.y, 12);
    EXPECT_EQ(m_handler.lastSender, static_cast<void*>(static_cast<CSFRadioBox*>(m_radio)));

    // A second click unchecks: it is a toggle, not a radio group.
    QTest::mouseClick(m_radio, Qt::LeftButton, {}, at);
    EXPECT_EQ(m_radio->GetCheck(), 0);
    EXPECT_FALSE(m_radio->isChecked());
    EXPECT_EQ(m_log, (Log{ "radio:7=1", "view:7", "radio:7=0", "view:7" }));
}

TEST_F(RadioEvents, ReleaseOutsideKeepsTheCheckAndSaysNothing)
{
    m_radio->SetCheck(1);
    QTest::mousePress(m_radio, Qt::LeftButton, {}, QPoint(10, 10));
    QTest::mouseRelease(m_radio, Qt::LeftButton, {}, QPoint(200, 10));
    EXPECT_EQ(m_radio->GetCheck(), 1);
    EXPECT_EQ(m_radio->State(), 0);
    EXPECT_TRUE(m_log.empty()) << m_log.front();
}

TEST_F(RadioEvents, SetCheckIsSilentAndResetsTheState)
{
    QTest::mousePress(m_radio, Qt::LeftButton);
    m_radio->SetCheck(5);
    EXPECT_EQ(m_radio->GetCheck(), 1);
    EXPECT_EQ(m_radio->State(), 0);
    m_radio->SetCheck(0);
    EXPECT_EQ(m_radio->GetCheck(), 0);
    EXPECT_TRUE(m_log.empty());
    QTest::mouseRelease(m_radio, Qt::LeftButton, {}, QPoint(-3, 5));
}

TEST_F(RadioEvents, HoverStatesAndFadeOnRelease)
{
    QTest::mouseMove(m_radio, QPoint(20, 10));
    EXPECT_EQ(m_radio->State(), 1);
    QTest::mouseMove(&m_host.Top(), QPoint(390, 190));
    EXPECT_EQ(m_radio->State(), 0);

    m_radio->EnableAnimation(1);
    QTest::mouseClick(m_radio, Qt::LeftButton);
    ASSERT_NE(m_radio->Animation(), nullptr);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_radio->Animation() == nullptr; }));
    EXPECT_FLOAT_EQ(m_radio->GetPicTransparence(), 1.0f);
}

TEST(RadioFacade, AlignFlagsAndTruncatedTextCopy)
{
    CSFQTRadioBox radio(nullptr);
    radio.Create(L"RAID Calculator", 0, tagRECT{ 10, 10, 110, 40 }, nullptr, 0xBC6);
    EXPECT_FALSE(radio.autoExclusive());
    EXPECT_EQ(radio.objectName(), QStringLiteral("radio_3014"));
    tagRECT r{ 10, 10, 110, 40 };
    radio.MoveWindow(&r); // inclusive, through MoveWindow(x, y, w, h)
    EXPECT_EQ(radio.geometry(), QRect(10, 10, 101, 31));

    const std::pair<unsigned long, int> aligns[] = { { 0, 384 }, { 1, 388 }, { 2, 386 }, { 3, 390 } };
    for (const auto& [flags, expected] : aligns) {
        radio.SetTextAlign(flags);
        EXPECT_EQ(radio.TextFlags(), expected) << flags;
    }

    wchar_t buffer[8];
    std::fill(std::begin(buffer), std::end(buffer), L'#');
    EXPECT_EQ(radio.GetWindowTextW(buffer, 4), 4);
    EXPECT_EQ(std::wstring(buffer, 5), L"RAID#"); // no terminator
}

// Picture 40 by 10 in a box 150 by 30; colours tell the pieces apart.
class RadioPaint : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_skin.IsValid());
        WriteSolidPicture(m_skin, "on.png", QSize(40, 10), Qt::red);
        WriteSolidPicture(m_skin, "off.png", QSize(40, 10), Qt::blue);
        WriteSolidPicture(m_skin, "ondis.png", QSize(40, 10), Qt::darkRed);
        WriteSolidPicture(m_skin, "offdis.png", QSize(40, 10), Qt::darkBlue);
        m_radio = static_cast<CSFQTRadioBox*>(SFCreateRadioBox(nullptr));
        m_radio->Create(L"", SF_WS_VISIBLE, kRect, m_host.Page(), 8);
        ImageRadioBox style{ L"on.png", L"on.png", L"on.png", L"off.png", L"off.png", L"off.png",
                             L"ondis.png", L"offdis.png" };
        ASSERT_EQ(m_radio->SetSkin(&style), 1);
        ASSERT_TRUE(m_host.Show());
    }
    void TearDown() override { SFDestroyControl(m_radio); }

    QImage Shot() { return GrabOnHost(m_radio); }

    CTestSkin m_skin;
    Log m_log;
    CButtonHost m_host{ m_log };
    CSFQTRadioBox* m_radio = nullptr;
};

TEST_F(RadioPaint, PictureByCheckAndEnablingCentredVertically)
{
    QImage image = Shot();
    EXPECT_EQ(image.pixelColor(0, 10), QColor(Qt::blue)); // rows 10..19
    EXPECT_EQ(image.pixelColor(39, 19), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(0, 9), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(40, 15), QColor(Qt::white));
    m_radio->SetCheck(1);
    EXPECT_EQ(Shot().pixelColor(5, 15), QColor(Qt::red));
    m_radio->SetEnabled(0);
    EXPECT_EQ(Shot().pixelColor(5, 15), QColor(Qt::darkRed));
    EXPECT_EQ(m_radio->State(), 3);
    m_radio->SetEnabled(1);
    EXPECT_EQ(Shot().pixelColor(5, 15), QColor(Qt::red));
}

TEST_F(RadioPaint, BackgroundFullOrBesideThePicture)
{
    m_radio->SetBkColor(0x00FF00, 0xFFFF00); // green when checked, cyan when not
    EXPECT_EQ(Shot().pixelColor(149, 0), QColor(Qt::cyan));
    m_radio->SetBkRect(false);
    QImage image = Shot();
    EXPECT_EQ(image.pixelColor(100, 1), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(100, 2), QColor(Qt::cyan));
    EXPECT_EQ(image.pixelColor(100, 27), QColor(Qt::cyan)); // to height - 3
    EXPECT_EQ(image.pixelColor(100, 28), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(5, 3), QColor(Qt::white)); // not under the picture
    m_radio->SetCheck(1);
    image = Shot();
    EXPECT_EQ(image.pixelColor(100, 28), QColor(Qt::green)); // to height - 2
    EXPECT_EQ(image.pixelColor(100, 29), QColor(Qt::white));
}

TEST_F(RadioPaint, ExpandedBackgroundTilesToTheRightEdge)
{
    m_radio->SetExpendBGImge(1);
    const QImage image = Shot();
    EXPECT_EQ(image.pixelColor(149, 15), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(85, 15), QColor(Qt::blue));
}

TEST_F(RadioPaint, TextStartsAfterPictureAndOffset)
{
    QFont big = m_radio->font();
    big.setPixelSize(20);
    m_radio->setFont(big);
    m_radio->SetTextColor(0x000000);
    m_radio->SetTextAlign(0); // left
    m_radio->SetWindowTextW(L"WWW");
    for (int offset : { 0, 30 }) {
        m_radio->SetTextOffset(offset);
        const QImage image = Shot();
        int firstDark = -1;
        for (int x = 0; x < image.width() && firstDark < 0; ++x)
            for (int y = 0; y < image.height(); ++y)
                if (qGray(image.pixel(x, y)) < 100 && image.pixelColor(x, y) != QColor(Qt::blue)) {
                    firstDark = x;
                    break;
                }
        EXPECT_GE(firstDark, 39 + offset + 2) << offset;
        EXPECT_LE(firstDark, 39 + offset + 6) << offset;
    }
}

} // namespace

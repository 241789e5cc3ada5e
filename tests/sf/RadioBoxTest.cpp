// The image toggle: release inside flips and reports, outside does nothing,
// SetCheck is silent.

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

} // namespace

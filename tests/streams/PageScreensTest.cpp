// The main window with five varied rows, pictured in each calculator mode.
// The pictures go to screens/ beside the test executable.
#include "CalculatorBottom.h"
#include "PageTestSupport.h"
#include "TallixEventImp.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QScrollBar>
#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>

using namespace Entry;

TEST(PageScreens, FiveRowsInEachCalculatorMode)
{
    CProgramEnvironment environment;
    CMainWindowUnderTest main;
    CPageDriver& d = main.Driver();
    d.AddRows(5);
    d.FillRow(0, H264, 0, D1, Fps30);
    d.FillRow(1, Smart265, 1, MP2, Fps25);
    d.ToggleAudio(1);
    d.FillRow(2, H265, 0, MP12, Custom);
    d.TypeCustomRate(2, QStringLiteral("20"));
    d.FillRow(3, Smart264, 0, MP4, Fps15);
    d.StepChannels(3, 7);
    d.StepChannels(4, 2);
    d.TypeBitrate(4, QStringLiteral("2000"));
    ASSERT_EQ(d.Text(1, ColBitrate), QStringLiteral("487"));
    ASSERT_EQ(d.Text(2, ColBitrate), QStringLiteral("4096"));
    ASSERT_EQ(d.Text(3, ColBitrate), QStringLiteral("2048"));
    // 1024 + 487 + 4096 + 8 * 2048 + 3 * 2000
    EXPECT_EQ(d.Calculator()->GetTotalBitrate(), 27991.0);
    EXPECT_EQ(d.Calculator()->GetChannels(), 14);
    EXPECT_EQ(d.BitrateLabel(), QStringLiteral("27.33 Mbps"));

    const QString dir = QCoreApplication::applicationDirPath() + QStringLiteral("/screens/");
    ASSERT_TRUE(QDir().mkpath(dir));
    const unsigned int radios[4] = { CCalculatorBottom::ID_RADIO_DISK_REQUIREMENT,
                                     CCalculatorBottom::ID_RADIO_RECORDING_DAY,
                                     CCalculatorBottom::ID_RADIO_RAID,
                                     CCalculatorBottom::ID_RADIO_RAID2 };
    QWidget* list = dynamic_cast<QWidget*>(d.Page()->m_pList);
    // The columns are wider than the table: scrolled to the right end, the
    // delete buttons show; the mode pictures show the table from its left.
    QScrollBar* across = d.List()->horizontalScrollBar();
    across->setValue(across->maximum());
    EXPECT_TRUE(main.Window()->grab().save(dir + QStringLiteral("page_right.png")));
    across->setValue(0);
    // A row's popup, made on its first opening, in the look of the others.
    auto* combo = qobject_cast<QComboBox*>(d.Combo(0, ColResolution));
    UserClick(combo);
    ASSERT_TRUE(QTest::qWaitFor([combo] { return combo->view()->isVisible(); }, 2000));
    EXPECT_TRUE(combo->view()->window()->grab().save(dir + QStringLiteral("page_popup.png")));
    QTest::keyClick(combo->view(), Qt::Key_Escape);
    for (int mode = 0; mode < 4; ++mode) {
        d.ClickMode(radios[mode]);
        EXPECT_EQ(d.Calculator()->GetMode(), mode);
        const QImage shot = main.Window()->grab().toImage();
        ASSERT_EQ(shot.size(), QSize(1100, 750));
        EXPECT_TRUE(shot.save(dir + QStringLiteral("page_mode%1.png").arg(mode)));
        // The table stands where the page put it, its rows painted.
        const QPoint rowArea = list->mapTo(main.Window(), QPoint(5, 36 + 45 + 22));
        EXPECT_NE(shot.pixelColor(rowArea), QColor(Qt::black));
    }
}

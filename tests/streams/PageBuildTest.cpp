// The page as it stands after OnCreate, and a new row.
#include "CalculatorBottom.h"
#include "PageTestSupport.h"
#include "QtWait.h"
#include "SFButton.h"
#include "SFListCtrlIds.h"
#include "SFMessageMap.h"
#include "SFStatic.h"
#include "SFView.h"
#include "TallixEventImp.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QSpinBox>
#include <gtest/gtest.h>

namespace {

template <class T>
QWidget* W(T* control)
{
    return dynamic_cast<QWidget*>(control);
}

struct PageBuild : testing::Test {
    void SetUp() override { UseProgramEnvironment(0); }
};

} // namespace

TEST_F(PageBuild, MeasuresItsHostViewAndLaysOutTheTableAndThePanel)
{
    for (int width : { 1101, 900 }) {
        CPageOnView host(width);
        CTallixEventImp* page = host.Page();
        ASSERT_TRUE(page->m_pList && page->m_pCalculatorView);
        // Create takes the list's rectangle as exclusive, the view's as inclusive.
        EXPECT_EQ(W(page->m_pList)->geometry(), QRect(QPoint(25, 56), QPoint(width - 26, 392)));
        EXPECT_EQ(W(page->m_pCalculatorView)->geometry(),
                  QRect(QPoint(25, 393), QPoint(width - 25, 680)));
        EXPECT_EQ(page->m_pCalculator->m_rcPage.right, width - 25);
        EXPECT_EQ(page->m_pCalculator->m_rcPage.top, 393);
    }
}

TEST_F(PageBuild, ButtonsCarryTheirLabelsAndTakeClicksOnTheWords)
{
    CMainWindowUnderTest main;
    CTallixEventImp* page = main.Page();
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(W(page->m_pBtnAdd)->geometry(), QRect(QPoint(24, 10), QPoint(154, 45)));
    EXPECT_EQ(W(page->m_pBtnClear)->geometry(), QRect(QPoint(170, 10), QPoint(269, 45)));
    QWidget* addLabel = W(page->m_pLabelAdd);
    QWidget* clearLabel = W(page->m_pLabelClear);
    EXPECT_TRUE(addLabel->isVisible() && clearLabel->isVisible());
    wchar_t text[64] = {};
    page->m_pLabelAdd->GetStaticText(text, 64);
    EXPECT_EQ(std::wstring(text), L"Add Stream");
    page->m_pLabelClear->GetStaticText(text, 64);
    EXPECT_EQ(std::wstring(text), L"Clear All");
    // The words stand over their buttons.
    QWidget* parent = addLabel->parentWidget();
    const QObjectList& order = parent->children();
    EXPECT_GT(order.indexOf(addLabel), order.indexOf(W(page->m_pBtnAdd)));
    EXPECT_GT(order.indexOf(clearLabel), order.indexOf(W(page->m_pBtnClear)));

    CPageDriver& d = main.Driver();
    d.ClickAdd();
    d.ClickAdd();
    EXPECT_EQ(d.Rows(), 2);
    d.ClickClearAll();
    EXPECT_EQ(d.Rows(), 0);
}

TEST_F(PageBuild, TableHasNineColumnsOfTheirWidths)
{
    CMainWindowUnderTest main;
    CSFQTListCtrl* list = main.Driver().List();
    ASSERT_EQ(list->columnCount(), 9);
    const char* const headings[9] = { "NO.",        "Channels",  "Compression",
                                      "Environment", "Resolution", "FrameRate",
                                      "Audio",       "Bitrate/Ch(Kbps)", "Operation" };
    const int widths[9] = { 52, 89, 141, 194, 152, 194, 73, 147, 126 };
    for (int c = 0; c < 9; ++c) {
        EXPECT_EQ(list->horizontalHeaderItem(c)->text(), QString::fromLatin1(headings[c])) << c;
        // The last section stretches over what is left.
        if (c < 8) {
            EXPECT_EQ(list->columnWidth(c), widths[c]) << c;
        }
    }
    EXPECT_EQ(list->horizontalHeader()->height(), 36);
    EXPECT_EQ(list->ControlId(), 0x7DEu);
    EXPECT_EQ(list->GetExtendedStyle(), 0x20ul);
}

TEST_F(PageBuild, CalculatorStartsFromZeroTotalsInItsFirstMode)
{
    CMainWindowUnderTest main;
    CPageDriver& d = main.Driver();
    EXPECT_EQ(d.Calculator()->GetMode(), 0);
    EXPECT_EQ(d.ChannelsLabel(), QStringLiteral("0"));
    EXPECT_EQ(d.BitrateLabel(), QStringLiteral("0.00 kbps"));
    EXPECT_EQ(d.ResultValue(), QStringLiteral("0.00GB"));
}

TEST_F(PageBuild, MessageMapHasItsSevenEntriesInOrder)
{
    CTallixEventImp page(nullptr);
    const SF_MSGMAP_ENTRY* e = page.GetSFMessageMap()->lpEntries;
    const unsigned int expected[7][3] = { { 0x111, 0, 0x7DA }, { 0x111, 0, 0x7D9 },
                                          { 0x111, 0, 0x803 }, { 0x111, 0, 0x812 },
                                          { 0x111, 0, 0xBCC }, { 0x4E, 3, 0x7DE },
                                          { 0x4E, 2, 0x7DE } };
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(e[i].nMessage, expected[i][0]) << i;
        EXPECT_EQ(e[i].nCode, expected[i][1]) << i;
        EXPECT_EQ(e[i].nID, expected[i][2]) << i;
        EXPECT_EQ(e[i].nLastID, expected[i][2]) << i;
    }
    EXPECT_EQ(e[7].pfn, nullptr);
}

TEST_F(PageBuild, NewRowStartsInItsFirstState)
{
    CMainWindowUnderTest main;
    CPageDriver& d = main.Driver();
    d.ClickAdd();
    ASSERT_EQ(d.Rows(), 1);
    EXPECT_EQ(d.Text(0, ColNumber), QStringLiteral("1"));
    EXPECT_EQ(d.Text(0, ColChannels), QStringLiteral("1"));
    EXPECT_EQ(d.Text(0, ColCompression), QStringLiteral("--Compression--"));
    EXPECT_EQ(d.Text(0, ColEnvironment), QStringLiteral("--Environment--"));
    EXPECT_EQ(d.Text(0, ColResolution), QStringLiteral("--Resolution--"));
    EXPECT_EQ(d.Text(0, ColFrameRate), QStringLiteral("--FrameRate--"));
    EXPECT_EQ(d.Text(0, ColAudio), QStringLiteral("0"));
    EXPECT_EQ(d.Text(0, ColBitrate), QStringLiteral("0"));
    EXPECT_FALSE(d.ComboEnabled(0, ColEnvironment));
    EXPECT_FALSE(d.PreviewShown(0));
    EXPECT_FALSE(d.CustomRateShown(0));
    EXPECT_EQ(d.CustomRateText(0), QStringLiteral("0"));

    QComboBox* env = qobject_cast<QComboBox*>(d.Combo(0, ColEnvironment));
    ASSERT_NE(env, nullptr);
    ASSERT_EQ(env->count(), 4);
    EXPECT_EQ(env->itemText(3), QStringLiteral("Scene 3"));
    QAbstractButton* preview =
        qobject_cast<QAbstractButton*>(d.Cell(CSFQTListCtrl::EnvironmentButtons, 0));
    ASSERT_NE(preview, nullptr);
    EXPECT_EQ(preview->text(), QStringLiteral("Preview"));
    QComboBox* rate = qobject_cast<QComboBox*>(d.Combo(0, ColFrameRate));
    ASSERT_EQ(rate->count(), 11);
    EXPECT_EQ(rate->itemText(10), QStringLiteral("Customize"));
    EXPECT_EQ(qobject_cast<QComboBox*>(d.Combo(0, ColResolution))->itemText(12),
              QStringLiteral("12MP"));
    EXPECT_EQ(qobject_cast<QComboBox*>(d.Combo(0, ColCompression))->itemText(4),
              QStringLiteral("smart265"));
    QSpinBox* spin = qobject_cast<QSpinBox*>(d.Cell(CSFQTListCtrl::ChannelSpiners, 0));
    ASSERT_NE(spin, nullptr);
    EXPECT_EQ(spin->minimum(), 1);
    EXPECT_EQ(spin->maximum(), 9999);
    EXPECT_TRUE(spin->wrapping());
    EXPECT_EQ(d.Cell(CSFQTListCtrl::DeleteButtons, 0)->toolTip(), QStringLiteral("Delete"));
    EXPECT_EQ(d.Cell(CSFQTListCtrl::DeleteButtons, 0)->size(), QSize(22, 27));
    EXPECT_EQ(d.List()->rowHeight(0), 45);
}

// Cell variants that the channel table does not use: progress, a plain edit,
// operate buttons and the check column with its header check.
#include "ListCtrlTestSupport.h"

#include "SFListCtrlIds.h"
#include "SFListNotify.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QHeaderView>
#include <QLineEdit>
#include <QProgressBar>
#include <QTest>
#include <gtest/gtest.h>
#include <set>

namespace {

template <class T>
T* CellChild(CSFQTListCtrl* list, int row, int col, const char* name)
{
    QWidget* page = list->indexWidget(list->model()->index(row, col));
    return page ? page->findChild<T*>(QString::fromLatin1(name)) : nullptr;
}

class ListVariants : public ListFixture {
protected:
    ListVariants() : ListFixture(QSize(1100, 300)) {}

    void SetUp() override
    {
        for (int r = 0; r < 3; ++r)
            list->InsertItem(r, (L"row " + std::to_wstring(r)).c_str());
    }
};

TEST_F(ListVariants, ProgressEditAndOperateCellsReportLikeTheOthers)
{
    ImageProgressCtrlStyle bar;
    bar.strTextColor = L"333333";
    list->SetItemProgress(0, 2, 40, bar);
    list->SetProgress(0, 75);
    list->SetProgress(2, 10); // no bar in that row
    ASSERT_TRUE(CellChild<QProgressBar>(list, 0, 2, "progress"));
    EXPECT_EQ(ItemText(list, 0, 2), L"75");

    list->SetItemText(1, 3, L"edit me");
    list->SetItemEdit(1, 3);
    QLineEdit* edit = CellChild<QLineEdit>(list, 1, 3, "edit");
    ASSERT_TRUE(edit);
    EXPECT_EQ(edit->text(), QStringLiteral("edit me"));
    edit->setFocus();
    QTest::keyClicks(edit, QStringLiteral("!"));
    EXPECT_EQ(ItemText(list, 1, 3), L"edit me!");

    // Two operate buttons share one page; each reports its own id and row.
    list->AddOperateBtn(2, 4, L"Go", 0x900, RowDeleteStyle(), 40, 24);
    list->AddOperateBtn(2, 4, L"Stop", 0x901, RowDeleteStyle(), 40, 24);
    QAbstractButton* go = CellChild<QAbstractButton>(list, 2, 4, "operate_2304");
    QAbstractButton* stop = CellChild<QAbstractButton>(list, 2, 4, "operate_2305");
    ASSERT_TRUE(go && stop);
    EXPECT_EQ(go->size(), QSize(40, 24));
    QTest::mouseClick(stop, Qt::LeftButton, Qt::NoModifier, stop->rect().center());
    EXPECT_EQ(page.events.back(), "button:2305/2");
    EXPECT_EQ(list->currentRow(), 2);
    list->SetBtnEnable(0x901, false);
    EXPECT_FALSE(stop->isEnabled());
    EXPECT_TRUE(go->isEnabled());

    // A second button in the delete cell when a second tool tip is given.
    list->SetItemWidget(1, 8, L"Delete", L"More", RowDeleteStyle(), RowDeleteStyle());
    QAbstractButton* more = CellChild<QAbstractButton>(list, 1, 8, "operate");
    ASSERT_TRUE(more);
    EXPECT_EQ(more->toolTip(), QStringLiteral("More"));
    QTest::mouseClick(more, Qt::LeftButton, Qt::NoModifier, more->rect().center());
    EXPECT_EQ(page.events.back(), "button:" + std::to_string(SF_LIST_ID_SECOND_BUTTON) + "/1");

    QFile sheet(QStringLiteral(TALLIX_APP_DIR "/Tallix_Style.css"));
    if (sheet.open(QIODevice::ReadOnly))
        qApp->setStyleSheet(QString::fromUtf8(sheet.readAll()));
    QTest::qWait(30);
    host.Window()->grab().save(QStringLiteral("/tmp/list-variants.png"));
    qApp->setStyleSheet(QString());

    // Deleting the first row keeps the variant registers in step too.
    list->DeleteItems(0);
    EXPECT_EQ(ItemText(list, 0, 3), L"edit me!");
    list->SetProgress(0, 5); // the bar went with its row
    EXPECT_EQ(ItemText(list, 0, 2), L"");
    QTest::mouseClick(go, Qt::LeftButton, Qt::NoModifier, go->rect().center());
    EXPECT_EQ(page.events.back(), "button:2304/1");
}

TEST_F(ListVariants, HeaderCheckSetsEveryRow)
{
    const int col = list->InsertColumnCheck(0, RowAudioStyle());
    EXPECT_EQ(col, 0);
    EXPECT_EQ(list->columnCount(), 10);
    QWidget* headerCheck =
        list->horizontalHeader()->viewport()->findChild<QWidget*>(QStringLiteral("headercheck"));
    ASSERT_TRUE(headerCheck);
    EXPECT_TRUE(headerCheck->isVisible());
    EXPECT_TRUE(list->horizontalHeader()->sectionViewportPosition(0) <= headerCheck->x());

    list->SetAllCheck(1);
    for (int r = 0; r < 3; ++r)
        EXPECT_EQ(list->GetCheck(r), 1) << r;
    // The user's click on the header check turns it off, and every row with it.
    QTest::mouseClick(headerCheck, Qt::LeftButton, Qt::NoModifier, headerCheck->rect().center());
    for (int r = 0; r < 3; ++r)
        EXPECT_EQ(list->IsCheck(r), 0) << r;
    EXPECT_EQ(list->SetCheck(1, 1), 1);
    EXPECT_EQ(list->GetCheck(1), 1);
    EXPECT_EQ(list->SetCheck(9, 1), 0);
    // A new row comes with its check off.
    list->InsertItem(3, L"row 3");
    EXPECT_EQ(list->GetCheck(3), 0);
    EXPECT_EQ(list->item(3, 0)->checkState(), Qt::Unchecked);
}

TEST_F(ListVariants, SelectionWalkAndHitTest)
{
    int rows[2] = { 2, 0 };
    list->SetSelectionStyle(2);
    list->SetItemSelected(rows, 2, true);
    std::set<int> selected;
    list->GetSelectRow(selected);
    EXPECT_EQ(selected, std::set<int>({ 0, 2 }));
    void* pos = list->GetFirstSelectedItemPosition();
    EXPECT_EQ(list->GetNextSelectedItem(pos), 0);
    EXPECT_EQ(list->GetNextSelectedItem(pos), 2);
    EXPECT_EQ(pos, nullptr);
    EXPECT_EQ(list->GetNextSelectedItem(pos), -1);

    SFListHitTestInfo hit{};
    const QPoint at = CellCentre(list, 1, 2);
    hit.pt = tagPOINT{ at.x(), at.y() };
    EXPECT_EQ(list->SubItemHitTest(&hit), 1);
    EXPECT_EQ(hit.iSubItem, 2);
    hit.pt = tagPOINT{ 5, list->viewport()->height() - 2 };
    EXPECT_EQ(list->SubItemHitTest(&hit), -1);
    EXPECT_EQ(hit.iSubItem, -1);
}

} // namespace

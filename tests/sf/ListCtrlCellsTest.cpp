// Cell pages of a channel row: the ids its controls report with, the
// registers, deletion and the list's own events.
#include "ListCtrlTestSupport.h"

#include "SFButton.h"
#include "SFComboBox.h"
#include "SFEditCtrl.h"
#include "SFListCtrlIds.h"
#include "SFNumSpiner.h"
#include "SFRadioBox.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPointer>
#include <QSpinBox>
#include <QTest>
#include <algorithm>
#include <map>
#include <string>
#include <vector>
#include <gtest/gtest.h>

namespace {

using R = CSFQTListCtrl;

void FlushDeletes()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

std::vector<int> Sorted(QList<int> rows)
{
    std::sort(rows.begin(), rows.end());
    return std::vector<int>(rows.begin(), rows.end());
}

std::vector<int> Range(int n)
{
    std::vector<int> out;
    for (int i = 0; i < n; ++i)
        out.push_back(i);
    return out;
}

class ListCells : public ListFixture {
};

TEST_F(ListCells, GetItemTextReadsTheCellControls)
{
    AddRows(2);
    const struct {
        int col;
        const wchar_t* text;
    } cases[] = { { 0, L"2" },           { 1, L"1" },         { 2, L"--Compression--" },
                  { 3, L"--Environment--" }, { 5, L"--FrameRate--" }, { 6, L"0" },
                  { 7, L"0" } };
    for (const auto& c : cases)
        EXPECT_EQ(ItemText(list, 1, c.col), c.text) << c.col;
    wchar_t small[4] = { L'x', L'x', L'x', L'x' };
    EXPECT_EQ(list->GetItemText(1, 2, small, 4), 3);
    EXPECT_EQ(std::wstring(small), L"--C");
    EXPECT_EQ(list->GetItemText(5, 2, small, 4), 0);
    EXPECT_EQ(small[0], L'\0');
}

// Each control reports with its id when the user works it: the kind in the
// high bits, the row below.
struct IdCase {
    const char* name;
    R::Register reg;
    const char* kind;
    unsigned int base;
    bool rowInId;
    std::function<void(QWidget*)> act;
};

void PrintTo(const IdCase& c, std::ostream* os)
{
    *os << c.name;
}

class ListIds : public ListCells, public testing::WithParamInterface<IdCase> {};

TEST_P(ListIds, ControlReportsItsKindAndRow)
{
    const IdCase& c = GetParam();
    AddRows(3);
    QWidget* w = RowWidget(list, c.reg, 2);
    ASSERT_TRUE(w);
    w->setEnabled(true);
    w->show();
    list->cellEvents.clear();
    c.act(w);
    const CellEvent* e = list->Last(c.kind);
    ASSERT_TRUE(e);
    EXPECT_EQ(e->id, c.rowInId ? c.base + 2 : c.base);
    if (c.reg != R::DeleteButtons && c.reg != R::EnvironmentButtons) {
        EXPECT_EQ(e->sender, list->RegisterControl(c.reg, 2));
    }
}

void KeyDown(QWidget* w)
{
    w->setFocus();
    QTest::keyClick(w, Qt::Key_Down);
}

void Click(QWidget* w)
{
    QTest::mouseClick(w, Qt::LeftButton, Qt::NoModifier, w->rect().center());
}

void Type(QWidget* w)
{
    w->setFocus();
    QTest::keyClicks(w, QStringLiteral("7"));
}

INSTANTIATE_TEST_SUITE_P(
    Row, ListIds,
    testing::Values(
        IdCase{ "Compression", R::CompressionCombos, "select", 0x40000000u, true, KeyDown },
        IdCase{ "Channels", R::ChannelSpiners, "num", 0u, true,
                [](QWidget* w) { QTest::keyClick(w, Qt::Key_Up); } },
        IdCase{ "Bitrate", R::BitrateEdits, "text", 0x40000000u, true, Type },
        IdCase{ "Audio", R::AudioChecks, "radio", 0u, true, Click },
        IdCase{ "Delete", R::DeleteButtons, "btn", 0x856u, false, Click }),
    [](const testing::TestParamInfo<IdCase>& info) { return std::string(info.param.name); });

TEST_F(ListCells, DeletingAMiddleRowKeepsEveryRegisterDense)
{
    AddRows(5);
    void* below[R::RegisterCount];
    for (int reg = 0; reg < R::RegisterCount; ++reg)
        below[reg] = list->RegisterControl(static_cast<R::Register>(reg), 3);
    QPointer<QWidget> gone = RowWidget(list, R::CompressionCombos, 2);
    QPointer<QWidget> goneDelete = RowWidget(list, R::DeleteButtons, 2);

    EXPECT_EQ(list->DeleteItems(2), 1);

    EXPECT_EQ(list->GetItemCount(), 4);
    for (int reg = 0; reg < R::RegisterCount; ++reg) {
        const auto r = static_cast<R::Register>(reg);
        EXPECT_EQ(Sorted(list->RegisterRows(r)), Range(4)) << reg;
        // The former row 3 is row 2 now, with its own controls.
        EXPECT_EQ(list->RegisterControl(r, 2), below[reg]) << reg;
    }
    EXPECT_EQ(list->indexWidget(list->model()->index(2, 2))->objectName(),
              QStringLiteral("cell_2_2"));
    EXPECT_EQ(ItemText(list, 2, 0), L"4"); // renumbering is the page's work
    EXPECT_EQ(list->currentRow(), 2);
    EXPECT_EQ(list->currentColumn(), 8);
    FlushDeletes();
    EXPECT_TRUE(gone.isNull());
    EXPECT_TRUE(goneDelete.isNull());

    // A row inserted in the middle pushes the rows below it down.
    list->InsertItem(1, L"new");
    for (int reg = 0; reg < R::RegisterCount; ++reg) {
        const auto r = static_cast<R::Register>(reg);
        EXPECT_EQ(Sorted(list->RegisterRows(r)), std::vector<int>({ 0, 2, 3, 4 })) << reg;
        EXPECT_EQ(list->RegisterControl(r, 3), below[reg]) << reg;
    }
}

TEST_F(ListCells, DeleteAllEmptiesTheRegistersAndReportsZeroTotals)
{
    AddRows(3);
    QPointer<QWidget> combo = RowWidget(list, R::ResolutionCombos, 1);
    page.events.clear();
    EXPECT_EQ(list->DeleteAllItems(), 1);
    EXPECT_EQ(list->GetItemCount(), 0);
    EXPECT_EQ(list->columnCount(), 9);
    for (int reg = 0; reg < R::RegisterCount; ++reg)
        EXPECT_TRUE(list->RegisterRows(static_cast<R::Register>(reg)).isEmpty()) << reg;
    EXPECT_EQ(page.events, std::vector<std::string>({ "totals:0/0" }));
    FlushDeletes();
    EXPECT_TRUE(combo.isNull());
    // An empty table reports the same.
    EXPECT_EQ(list->DeleteAllItems(), 1);
    EXPECT_EQ(page.Count("totals:0/0"), 2);
    AddRows(1);
    EXPECT_EQ(Sorted(list->RegisterRows(R::DeleteButtons)), Range(1));
}

TEST_F(ListCells, DeleteButtonSelectsItsRowAndReportsOnBothRoads)
{
    AddRows(3);
    page.onButton = [this](int, int row) { list->DeleteItems(row); };
    QWidget* del = RowWidget(list, R::DeleteButtons, 1);
    Click(del);
    EXPECT_EQ(page.events.front(), "button:2134/1");
    EXPECT_EQ(page.commands, std::vector<unsigned int>({ 0x856u }));
    EXPECT_EQ(list->GetItemCount(), 2);
    EXPECT_EQ(Sorted(list->RegisterRows(R::DeleteButtons)), Range(2));
    FlushDeletes();
}

TEST_F(ListCells, SortingMovesEachRowWithItsControls)
{
    AddRows(4);
    const wchar_t* numbers[] = { L"3", L"1", L"4", L"2" };
    std::map<std::wstring, std::vector<void*>> controlsOf;
    for (int row = 0; row < 4; ++row) {
        list->SetItemText(row, 0, numbers[row]);
        for (int reg = 0; reg < R::RegisterCount; ++reg)
            controlsOf[numbers[row]].push_back(list->RegisterControl(static_cast<R::Register>(reg), row));
    }
    list->SetHeaderSortEnable(1);
    QHeaderView* header = list->horizontalHeader();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(header->sectionViewportPosition(0) + 5, header->height() / 2));

    for (int row = 0; row < 4; ++row) {
        const std::wstring number = ItemText(list, row, 0);
        EXPECT_EQ(number, std::to_wstring(row + 1));
        for (int reg = 0; reg < R::RegisterCount; ++reg) {
            const auto r = static_cast<R::Register>(reg);
            EXPECT_EQ(list->RegisterControl(r, row), controlsOf[number][reg]) << row << " " << reg;
        }
        // The combo still lives in the page of its own row's cell.
        QWidget* page = list->indexWidget(list->model()->index(row, 2));
        ASSERT_NE(page, nullptr);
        EXPECT_EQ(RowWidget(list, R::CompressionCombos, row)->parentWidget(), page);
        EXPECT_EQ(page->objectName(), QStringLiteral("cell_%1_2").arg(row));
    }
}

} // namespace

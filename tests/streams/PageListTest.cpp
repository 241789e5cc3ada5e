// The list control under the page's rows: what its cells read, each cell
// control acting on its own row, the registers through deletion and
// insertion, sorting, and the clicks that select a row.
#include "calculator/CalculatorBottom.h"
#include "streams/TallixEventImp.h"
#include "tests/streams/PageTestSupport.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QPointer>
#include <QTest>
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

using namespace Entry;

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

struct PageList : testing::Test {
    CProgramEnvironment environment;
    CMainWindowUnderTest main;
    CPageDriver& d = main.Driver();
    CSFQTListCtrl* list = d.List();

    QPoint CellCentre(int row, int col) const
    {
        return list->visualRect(list->model()->index(row, col)).center();
    }
};

TEST_F(PageList, GetItemTextReadsTheCellControls)
{
    d.AddRows(2);
    const struct {
        int col;
        const char* text;
    } cases[] = { { 0, "2" },
                  { 1, "1" },
                  { 2, "--Compression--" },
                  { 3, "--Environment--" },
                  { 5, "--FrameRate--" },
                  { 6, "0" },
                  { 7, "0" } };
    for (const auto& c : cases)
        EXPECT_EQ(d.Text(1, c.col), QString::fromLatin1(c.text)) << c.col;
    wchar_t small[4] = { L'x', L'x', L'x', L'x' };
    EXPECT_EQ(list->GetItemText(1, 2, small, 4), 3);
    EXPECT_EQ(std::wstring(small), L"--C");
    EXPECT_EQ(list->GetItemText(5, 2, small, 4), 0);
    EXPECT_EQ(small[0], L'\0');
}

// A user's hand on a control of row 2 changes row 2 alone: each control
// reports with its row.
struct OwnRowCase {
    const char* name;
    std::function<void(CPageDriver&)> act;
    ChannelColumn col;
    const char* untouched;
    const char* changed;
};

class PageListOwnRow : public PageList, public testing::WithParamInterface<OwnRowCase> {};

TEST_P(PageListOwnRow, ControlActsOnItsRow)
{
    const OwnRowCase& c = GetParam();
    d.AddRows(4);
    c.act(d);
    for (int row = 0; row < 4; ++row)
        EXPECT_EQ(d.Text(row, c.col), QString::fromLatin1(row == 2 ? c.changed : c.untouched))
            << row;
}

INSTANTIATE_TEST_SUITE_P(
    Row, PageListOwnRow,
    testing::Values(
        OwnRowCase{ "Compression", [](CPageDriver& d) { d.Choose(2, ColCompression, H265); },
                    ColCompression, "--Compression--", "H.265" },
        OwnRowCase{ "Channels", [](CPageDriver& d) { d.StepChannels(2, 2); }, ColChannels, "1",
                    "3" },
        OwnRowCase{ "Bitrate", [](CPageDriver& d) { d.TypeBitrate(2, QStringLiteral("7")); },
                    ColBitrate, "0", "7" },
        OwnRowCase{ "Audio", [](CPageDriver& d) { d.ToggleAudio(2); }, ColAudio, "0", "1" }),
    [](const testing::TestParamInfo<OwnRowCase>& info) { return std::string(info.param.name); });

TEST_F(PageList, DeletingAMiddleRowKeepsEveryRegisterDense)
{
    d.AddRows(5);
    void* below[R::RegisterCount];
    for (int reg = 0; reg < R::RegisterCount; ++reg)
        below[reg] = list->RegisterControl(static_cast<R::Register>(reg), 3);
    QPointer<QWidget> gone = d.Cell(R::CompressionCombos, 2);
    QPointer<QWidget> goneDelete = d.Cell(R::DeleteButtons, 2);

    d.ClickDelete(2);

    ASSERT_EQ(d.Rows(), 4);
    for (int reg = 0; reg < R::RegisterCount; ++reg) {
        const auto r = static_cast<R::Register>(reg);
        EXPECT_EQ(Sorted(list->RegisterRows(r)), Range(4)) << reg;
        // The former row 3 is row 2 now, with its own controls.
        EXPECT_EQ(list->RegisterControl(r, 2), below[reg]) << reg;
    }
    EXPECT_EQ(list->indexWidget(list->model()->index(2, 2))->objectName(),
              QStringLiteral("cell_2_2"));
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

TEST_F(PageList, ClearAllEmptiesTheRegistersAndFreesTheControls)
{
    d.AddRows(3);
    d.TypeBitrate(1, QStringLiteral("100"));
    ASSERT_EQ(d.Calculator()->GetChannels(), 1);
    QPointer<QWidget> combo = d.Cell(R::ResolutionCombos, 1);
    d.ClickClearAll();
    EXPECT_EQ(d.Rows(), 0);
    EXPECT_EQ(list->columnCount(), 9);
    for (int reg = 0; reg < R::RegisterCount; ++reg)
        EXPECT_TRUE(list->RegisterRows(static_cast<R::Register>(reg)).isEmpty()) << reg;
    EXPECT_EQ(d.Calculator()->GetChannels(), 0);
    EXPECT_EQ(d.ChannelsLabel(), QStringLiteral("0"));
    FlushDeletes();
    EXPECT_TRUE(combo.isNull());
    d.ClickAdd();
    EXPECT_EQ(Sorted(list->RegisterRows(R::DeleteButtons)), Range(1));
}

TEST_F(PageList, SortingMovesEachRowWithItsControls)
{
    d.AddRows(4);
    const wchar_t* numbers[] = { L"3", L"1", L"4", L"2" };
    std::map<std::wstring, std::vector<void*>> controlsOf;
    for (int row = 0; row < 4; ++row) {
        list->SetItemText(row, 0, numbers[row]);
        for (int reg = 0; reg < R::RegisterCount; ++reg)
            controlsOf[numbers[row]].push_back(
                list->RegisterControl(static_cast<R::Register>(reg), row));
    }
    list->SetHeaderSortEnable(1);
    QHeaderView* header = list->horizontalHeader();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(header->sectionViewportPosition(0) + 5, header->height() / 2));

    for (int row = 0; row < 4; ++row) {
        const std::wstring number = d.Text(row, ColNumber).toStdWString();
        EXPECT_EQ(number, std::to_wstring(row + 1));
        for (int reg = 0; reg < R::RegisterCount; ++reg) {
            const auto r = static_cast<R::Register>(reg);
            EXPECT_EQ(list->RegisterControl(r, row), controlsOf[number][reg]) << row << " " << reg;
        }
        // The combo still lives in the page of its own row's cell.
        QWidget* page = list->indexWidget(list->model()->index(row, 2));
        ASSERT_NE(page, nullptr);
        EXPECT_EQ(d.Cell(R::CompressionCombos, row)->parentWidget(), page);
        EXPECT_EQ(page->objectName(), QStringLiteral("cell_%1_2").arg(row));
    }
}

TEST_F(PageList, ClicksOnARowSelectItAndClicksBelowTheRowsDoNot)
{
    d.AddRows(3);
    UserClick(list->viewport(), CellCentre(1, 0));
    EXPECT_EQ(d.Page()->GetSelectedRow(), 1);
    UserClick(list->viewport(), CellCentre(2, 0));
    EXPECT_EQ(d.Page()->GetSelectedRow(), 2);
    UserClick(list->viewport(), QPoint(10, list->viewport()->height() - 5));
    EXPECT_EQ(d.Page()->GetSelectedRow(), 2);
}

} // namespace

// Cell pages of a channel row: what a new row holds, the ids its controls
// report with, the registers, deletion and the list's own events.
#include "ListCtrlTestSupport.h"

#include "SFButton.h"
#include "SFComboBox.h"
#include "SFEditCtrl.h"
#include "SFListCtrlIds.h"
#include "SFNumSpiner.h"
#include "SFRadioBox.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QPointer>
#include <QSpinBox>
#include <QTest>
#include <algorithm>
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

using Strings = std::vector<std::string>;

Strings Items(const QWidget* w)
{
    Strings out;
    const QComboBox* combo = qobject_cast<const QComboBox*>(w);
    for (int i = 0; combo && i < combo->count(); ++i)
        out.push_back(combo->itemText(i).toStdString());
    return out;
}

class ListCells : public ListFixture {
};

TEST_F(ListCells, NewRowHoldsItsControlsInTheirFirstState)
{
    AddRows(1);
    EXPECT_EQ(list->GetItemCount(), 1);
    EXPECT_EQ(ItemText(list, 0, 0), L"1");
    EXPECT_EQ(list->rowHeight(0), 45);

    QWidget* compression = RowWidget(list, R::CompressionCombos, 0);
    QWidget* environment = RowWidget(list, R::EnvironmentCombos, 0);
    QWidget* resolution = RowWidget(list, R::ResolutionCombos, 0);
    QWidget* frameRate = RowWidget(list, R::FrameRateCombos, 0);
    ASSERT_TRUE(compression && environment && resolution && frameRate);
    EXPECT_EQ(Items(compression),
              Strings({ "--Compression--", "H.264", "H.265", "smart264", "smart265" }));
    EXPECT_EQ(Items(environment),
              Strings({ "--Environment--", "Scene 1", "Scene 2", "Scene 3" }));
    EXPECT_EQ(Items(resolution),
              Strings({ "--Resolution--", "CIF", "VGA", "D1", "1MP", "1.3MP", "2MP", "3MP",
                            "4MP", "5MP", "6MP", "8MP", "12MP" }));
    EXPECT_EQ(Items(frameRate), Strings({ "--FrameRate--", "1", "5", "10", "15", "20", "25",
                                              "30", "45", "60", "Customize" }));
    for (QWidget* combo : { compression, environment, resolution, frameRate }) {
        EXPECT_EQ(qobject_cast<QComboBox*>(combo)->currentIndex(), 0);
        EXPECT_EQ(combo->size(), QSize(135, 32));
        EXPECT_TRUE(combo->isVisible());
    }
    EXPECT_FALSE(environment->isEnabled());
    EXPECT_TRUE(compression->isEnabled());

    QWidget* preview = RowWidget(list, R::EnvironmentButtons, 0);
    ASSERT_TRUE(preview);
    EXPECT_FALSE(preview->isVisible());
    EXPECT_EQ(qobject_cast<QAbstractButton*>(preview)->text(), QStringLiteral("Preview"));
    EXPECT_GE(preview->minimumWidth(), 50);
    EXPECT_EQ(preview->maximumSize(), QSize(70, 32));

    QLineEdit* custom = qobject_cast<QLineEdit*>(RowWidget(list, R::CustomRateEdits, 0));
    ASSERT_TRUE(custom);
    EXPECT_FALSE(custom->isVisible());
    EXPECT_EQ(custom->text(), QStringLiteral("0"));
    EXPECT_EQ(custom->minimumSize(), QSize(50, 26));
    EXPECT_EQ(custom->maximumSize(), QSize(50, 32));

    QSpinBox* channels = qobject_cast<QSpinBox*>(RowWidget(list, R::ChannelSpiners, 0));
    ASSERT_TRUE(channels);
    EXPECT_TRUE(channels->isVisible());
    EXPECT_EQ(channels->value(), 1);
    EXPECT_EQ(channels->minimum(), 1);
    EXPECT_EQ(channels->maximum(), 9999);
    EXPECT_TRUE(channels->wrapping());

    CSFRadioBox* audio = static_cast<CSFRadioBox*>(list->RegisterControl(R::AudioChecks, 0));
    ASSERT_TRUE(audio);
    EXPECT_EQ(audio->GetCheck(), 0);
    EXPECT_TRUE(RowWidget(list, R::AudioChecks, 0)->isVisible());

    QLineEdit* bitrate = qobject_cast<QLineEdit*>(RowWidget(list, R::BitrateEdits, 0));
    ASSERT_TRUE(bitrate);
    EXPECT_EQ(bitrate->text(), QStringLiteral("0"));
    EXPECT_TRUE(bitrate->isVisible());

    QWidget* del = RowWidget(list, R::DeleteButtons, 0);
    ASSERT_TRUE(del);
    EXPECT_EQ(del->size(), QSize(22, 27));
    EXPECT_EQ(del->toolTip(), QStringLiteral("Delete"));
    EXPECT_TRUE(del->isVisible());

    // Every control stands in the page of its own cell.
    const int columns[R::RegisterCount] = { 1, 2, 3, 3, 4, 5, 5, 6, 7, 8 };
    for (int reg = 0; reg < R::RegisterCount; ++reg) {
        QWidget* w = RowWidget(list, static_cast<R::Register>(reg), 0);
        ASSERT_TRUE(w) << reg;
        EXPECT_EQ(w->parentWidget(), list->indexWidget(list->model()->index(0, columns[reg])))
            << reg;
        EXPECT_EQ(w->parentWidget()->objectName(),
                  QStringLiteral("cell_0_%1").arg(columns[reg]));
        EXPECT_FALSE(w->objectName().isEmpty());
    }
}

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
        IdCase{ "Environment", R::EnvironmentCombos, "select", 0x30000000u, true, KeyDown },
        IdCase{ "Compression", R::CompressionCombos, "select", 0x40000000u, true, KeyDown },
        IdCase{ "Resolution", R::ResolutionCombos, "select", 0x50000000u, true, KeyDown },
        IdCase{ "FrameRate", R::FrameRateCombos, "select", 0x60000000u, true, KeyDown },
        IdCase{ "Channels", R::ChannelSpiners, "num", 0u, true,
                [](QWidget* w) { QTest::keyClick(w, Qt::Key_Up); } },
        IdCase{ "CustomRate", R::CustomRateEdits, "text", 0u, true, Type },
        IdCase{ "Bitrate", R::BitrateEdits, "text", 0x40000000u, true, Type },
        IdCase{ "Audio", R::AudioChecks, "radio", 0u, true, Click },
        IdCase{ "Preview", R::EnvironmentButtons, "btn", 0x30000000u, true, Click },
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

TEST_F(ListCells, DeletingTheLastRowMovesTheCurrentCellUp)
{
    AddRows(3);
    EXPECT_EQ(list->DeleteItems(2), 1);
    EXPECT_EQ(list->currentRow(), 1);
    EXPECT_EQ(list->currentColumn(), 8);
    EXPECT_EQ(list->DeleteItems(7), 0);
    EXPECT_EQ(list->DeleteItems(-1), 0);
    EXPECT_EQ(list->GetItemCount(), 2);
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

TEST_F(ListCells, AudioPreviewAndReleaseReachThePage)
{
    AddRows(2);
    Click(RowWidget(list, R::AudioChecks, 1));
    EXPECT_EQ(page.Count("audio:1"), 1);
    EXPECT_EQ(list->GetCheck(1), 1);
    EXPECT_EQ(list->CurrentRow(), 1);

    // "Preview" opens the scene chosen in its own row.
    CSFComboBox* scenes = static_cast<CSFComboBox*>(list->RegisterControl(R::EnvironmentCombos, 1));
    scenes->EnableWindow(1);
    scenes->SetCurSel(2);
    list->SetItemShow(1, 3, SF_LIST_ID_ENVIRONMENT + 1, true);
    QWidget* preview = RowWidget(list, R::EnvironmentButtons, 1);
    EXPECT_TRUE(preview->isVisible());
    EXPECT_FALSE(RowWidget(list, R::EnvironmentButtons, 0)->isVisible());
    Click(preview);
    EXPECT_EQ(page.Count("scene:2"), 1);
    list->SetItemShow(1, 3, SF_LIST_ID_ENVIRONMENT + 1, false);
    EXPECT_FALSE(preview->isVisible());
    // An id of another kind shows nothing.
    list->SetItemShow(1, 3, SF_LIST_ID_DELETE + 7, true);
    EXPECT_FALSE(preview->isVisible());

    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, CellCentre(list, 0, 0));
    EXPECT_EQ(page.events.back(), "release:0");
    EXPECT_TRUE(list->IsSelected(0));
}

TEST_F(ListCells, ListWithoutHandlerOrCellsStaysQuiet)
{
    CRecordingList bare(nullptr);
    EXPECT_EQ(bare.SetSkin(nullptr), 0);
    bare.SetItemComboBox(1, 0, 0, 0, RowComboStyle(), L"x", nullptr, nullptr);
    bare.InsertColumn(0, L"A", 0, -1, -1);
    bare.InsertItem(0, L"a");
    bare.SetItemComboBox(7, 0, 0, 0, RowComboStyle(), L"x", nullptr, nullptr);
    bare.SetItemComboBox(0, 0, 0, 0, RowComboStyle(), nullptr, nullptr, nullptr);
    EXPECT_EQ(Items(RowWidget(&bare, R::EnvironmentCombos, 0)), Strings({ "" }));
    EXPECT_EQ(bare.DeleteAllItems(), 1);
    EXPECT_EQ(bare.DeleteItems(0), 0);
}

} // namespace

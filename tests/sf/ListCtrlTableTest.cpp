// The table side of the list control: notifications, the double-click
// editor, sorting with cell pages, and how a skinned channel table looks.
#include "ListCtrlTestSupport.h"

#include "SFComboBox.h"
#include "SFEditCtrl.h"
#include "SFListNotify.h"
#include "SFNumSpiner.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QHeaderView>
#include <QImage>
#include <QPointer>
#include <QScrollBar>
#include <QTest>
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>

namespace {

using R = CSFQTListCtrl;

class ListTable : public ListFixture {
protected:
    QWidget* Viewport() const { return list->viewport(); }
};

struct NoticeCase {
    const char* name;
    std::function<void(CRecordingList*)> act;
    unsigned int code;
    int row;
    int col;
};

void PrintTo(const NoticeCase& c, std::ostream* os)
{
    *os << c.name;
}

class ListNotices : public ListTable, public testing::WithParamInterface<NoticeCase> {};

TEST_P(ListNotices, RecordCarriesRowAndColumnOrMinusOne)
{
    const NoticeCase& c = GetParam();
    AddRows(3);
    page.notices.clear();
    c.act(list);
    const std::vector<ListNotice> got = page.Notices(c.code);
    ASSERT_FALSE(got.empty());
    const ListNotice& n = got.back();
    EXPECT_EQ(n.row, c.row);
    EXPECT_EQ(n.col, c.col);
    EXPECT_EQ(n.id, kListId);
    EXPECT_EQ(n.hdrCode, c.code);
    EXPECT_EQ(n.idFrom, kListId);
    EXPECT_TRUE(n.tailZero);
}

QPoint BelowRows(CRecordingList* l)
{
    return QPoint(10, l->viewport()->height() - 5);
}

QPoint Section(CRecordingList* l, int s)
{
    QHeaderView* h = l->horizontalHeader();
    return QPoint(h->sectionViewportPosition(s) + h->sectionSize(s) / 2, h->height() / 2);
}

INSTANTIATE_TEST_SUITE_P(
    Codes, ListNotices,
    testing::Values(
        NoticeCase{ "ClickOnRow",
                    [](CRecordingList* l) {
                        QTest::mouseClick(l->viewport(), Qt::LeftButton, Qt::NoModifier,
                                          CellCentre(l, 1, 0));
                    },
                    2, 1, 0 },
        NoticeCase{ "ClickBelowRows",
                    [](CRecordingList* l) {
                        QTest::mouseClick(l->viewport(), Qt::LeftButton, Qt::NoModifier,
                                          BelowRows(l));
                    },
                    2, -1, -1 },
        NoticeCase{ "DoubleClickOnRow",
                    [](CRecordingList* l) {
                        UserDoubleClick(l->viewport(), CellCentre(l, 2, 0));
                    },
                    3, 2, 0 },
        NoticeCase{ "DoubleClickBelowRows",
                    [](CRecordingList* l) {
                        UserDoubleClick(l->viewport(), BelowRows(l));
                    },
                    3, -1, -1 },
        NoticeCase{ "HeaderClick",
                    [](CRecordingList* l) {
                        QTest::mouseClick(l->horizontalHeader()->viewport(), Qt::LeftButton,
                                          Qt::NoModifier, Section(l, 4));
                    },
                    9, -1, 4 },
        NoticeCase{ "HeaderClickOnMissingSection",
                    [](CRecordingList* l) { l->EmitHeadClickFun(12); }, 9, -1, -1 },
        NoticeCase{ "ItemChange", [](CRecordingList* l) { l->SetItemText(1, 0, L"x"); }, 10, 1,
                    0 },
        NoticeCase{ "CellChangeOfMissingRow",
                    [](CRecordingList* l) { l->OnCellChanged(5, 2, 0); }, 10, -1, 2 }),
    [](const testing::TestParamInfo<NoticeCase>& info) { return std::string(info.param.name); });

TEST_F(ListTable, DoubleClickOpensAnEditorOnlyInEditableColumns)
{
    for (int r = 0; r < 2; ++r) {
        list->InsertItem(r, L"a");
        list->SetItemText(r, 1, L"b");
        list->SetItemText(r, 2, L"c");
    }
    list->SetItemEditable(1, 1);
    auto open = [this](int r, int c) {
        return list->QAbstractItemView::isPersistentEditorOpen(list->model()->index(r, c));
    };
    auto dclick = [this](int r, int c) {
        UserDoubleClick(Viewport(), CellCentre(list, r, c));
    };
    page.notices.clear();

    dclick(0, 0);
    EXPECT_FALSE(open(0, 0));
    EXPECT_FALSE(list->EditorCell().isValid());
    ASSERT_EQ(page.Notices(3).size(), 1u);

    dclick(0, 1);
    EXPECT_TRUE(open(0, 1));
    EXPECT_EQ(list->currentIndex(), list->model()->index(0, 1));
    EXPECT_EQ(list->EditorCell(), list->model()->index(0, 1));
    QWidget* editor = list->viewport()->findChild<QWidget*>(QStringLiteral("celleditor"));
    ASSERT_TRUE(editor);
    EXPECT_EQ(editor->geometry(), list->visualRect(list->model()->index(0, 1)));
    ASSERT_EQ(page.Notices(3).size(), 2u);
    EXPECT_EQ(page.Notices(3).back().col, 1);

    dclick(1, 1);
    EXPECT_FALSE(open(0, 1));
    EXPECT_TRUE(open(1, 1));

    // Another column closes the former editor and opens none.
    dclick(1, 2);
    EXPECT_FALSE(open(1, 1));
    EXPECT_FALSE(open(1, 2));
    EXPECT_EQ(page.Notices(3).size(), 4u);
}

TEST_F(ListTable, SortingKeepsEveryRowWithItsCellPages)
{
    AddRows(3);
    const wchar_t* keys[3] = { L"b", L"c", L"a" };
    QPointer<QWidget> combos[3];
    void* spiners[3];
    for (int r = 0; r < 3; ++r) {
        list->SetItemText(r, 0, keys[r]);
        static_cast<CSFComboBox*>(list->RegisterControl(R::CompressionCombos, r))->SetCurSel(r + 1);
        combos[r] = RowWidget(list, R::CompressionCombos, r);
        spiners[r] = list->RegisterControl(R::ChannelSpiners, r);
    }
    auto expectOrder = [&](const int (&order)[3]) {
        for (int r = 0; r < 3; ++r) {
            const int from = order[r];
            EXPECT_EQ(ItemText(list, r, 0), keys[from]) << r;
            EXPECT_EQ(RowWidget(list, R::CompressionCombos, r), combos[from].data()) << r;
            EXPECT_EQ(list->RegisterControl(R::ChannelSpiners, r), spiners[from]) << r;
            const QModelIndex cell = list->model()->index(r, 2);
            EXPECT_EQ(combos[from]->parentWidget(), list->indexWidget(cell)) << r;
            EXPECT_EQ(list->indexWidget(cell)->objectName(), QStringLiteral("cell_%1_2").arg(r));
            EXPECT_TRUE(QTest::qWaitFor(
                [&] { return list->indexWidget(cell)->geometry() == list->visualRect(cell); }))
                << r;
        }
    };

    // Without the sort switched on a header click only notifies.
    QTest::mouseClick(list->horizontalHeader()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      Section(list, 0));
    expectOrder({ 0, 1, 2 });

    list->SetHeaderSortEnable(1);
    list->SetSortIndicatorShown(1);
    QTest::mouseClick(list->horizontalHeader()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      Section(list, 0));
    expectOrder({ 2, 0, 1 });
    EXPECT_EQ(ItemText(list, 0, 2), L"smart264");
    QTest::mouseClick(list->horizontalHeader()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      Section(list, 0));
    expectOrder({ 1, 0, 2 });
    EXPECT_EQ(page.Notices(9).size(), 3u);

    // The registers stay usable: deleting after a sort keeps them dense.
    list->DeleteItems(0);
    QList<int> rows = list->RegisterRows(R::CompressionCombos);
    std::sort(rows.begin(), rows.end());
    EXPECT_EQ(rows, QList<int>({ 0, 1 }));
    EXPECT_EQ(RowWidget(list, R::CompressionCombos, 0), combos[0].data());
}

// A channel table in the program's skin and style sheet: every cell kind,
// every visible state of a row. The picture goes to /tmp/list.png.
TEST_F(ListTable, SkinnedTableShowsTheRowColourBehindItsCells)
{
    QFile sheet(QStringLiteral(TALLIX_APP_DIR "/Tallix_Style.css"));
    ASSERT_TRUE(sheet.open(QIODevice::ReadOnly));
    qApp->setStyleSheet(QString::fromUtf8(sheet.readAll()));

    AddRows(4);
    auto combo = [this](R::Register reg, int row) {
        return static_cast<CSFComboBox*>(list->RegisterControl(reg, row));
    };
    // Row 1: a smart codec with a scene, audio on, a typed rate.
    combo(R::CompressionCombos, 1)->SetCurSel(3);
    combo(R::EnvironmentCombos, 1)->EnableWindow(1);
    combo(R::EnvironmentCombos, 1)->SetCurSel(2);
    list->SetItemShow(1, 3, 0x30000001u, true);
    combo(R::ResolutionCombos, 1)->SetCurSel(6);
    combo(R::FrameRateCombos, 1)->SetCurSel(7);
    list->SetCheck(1, 1);
    static_cast<CSFEditCtrl*>(list->RegisterControl(R::BitrateEdits, 1))->SetWindowTextW(L"2048");
    // Row 2: a custom frame rate.
    combo(R::CompressionCombos, 2)->SetCurSel(2);
    combo(R::ResolutionCombos, 2)->SetCurSel(8);
    combo(R::FrameRateCombos, 2)->SetCurSel(10);
    RowWidget(list, R::CustomRateEdits, 2)->show();
    static_cast<CSFEditCtrl*>(list->RegisterControl(R::CustomRateEdits, 2))->SetWindowTextW(L"12");
    static_cast<CSFNumSpiner*>(list->RegisterControl(R::ChannelSpiners, 2))->SetCurrentNum(16);
    // Row 3: selected.
    combo(R::CompressionCombos, 3)->SetCurSel(1);
    list->selectRow(3);

    QTest::qWait(50);
    const QImage shot = host.Window()->grab().toImage();
    shot.save(QStringLiteral("/tmp/list.png"));
    const QImage rows = list->viewport()->grab().toImage();
    // The right end, with the delete buttons.
    list->horizontalScrollBar()->setValue(list->horizontalScrollBar()->maximum());
    QTest::qWait(30);
    host.Window()->grab().save(QStringLiteral("/tmp/list-right.png"));
    EXPECT_EQ(list->horizontalHeader()->offset(), list->horizontalScrollBar()->value());
    list->horizontalScrollBar()->setValue(0);

    // No slate view background anywhere in a cell page, and the row colour
    // shows beside the controls.
    const QColor slate(92, 101, 118);
    for (int r = 0; r < 3; ++r) {
        for (int c = 1; c < 9; ++c) {
            const QRect cell = list->visualRect(list->model()->index(r, c));
            const QRect seen = cell & rows.rect();
            for (int y = seen.top(); y <= seen.bottom(); y += 3)
                for (int x = seen.left(); x <= seen.right(); x += 3)
                    ASSERT_NE(rows.pixelColor(x, y), slate) << r << "," << c;
        }
    }
    const QColor rowColours[2] = { QColor(0xe4, 0xe4, 0xe4), QColor(0xF5, 0xF5, 0xF5) };
    for (int r = 0; r < 3; ++r) {
        const QRect cell = list->visualRect(list->model()->index(r, 4));
        const QWidget* res = RowWidget(list, R::ResolutionCombos, r);
        const QPoint beside(cell.left() + res->geometry().right() + 6, cell.center().y());
        EXPECT_EQ(rows.pixelColor(beside), rowColours[r % 2]) << r;
        // Controls stand inside their cells, centred in the row's height.
        for (int reg = 0; reg < R::RegisterCount; ++reg) {
            const QWidget* w = RowWidget(list, static_cast<R::Register>(reg), r);
            if (!w->isVisible())
                continue;
            const QRect inView(w->parentWidget()->mapTo(list->viewport(), w->pos()), w->size());
            const QRect page(w->parentWidget()->pos(), w->parentWidget()->size());
            EXPECT_TRUE(page.contains(inView)) << r << "," << reg;
            EXPECT_LE(std::abs(inView.center().y() - page.center().y()), 1) << r << "," << reg;
        }
        // Each page covers its whole cell: the item padding of the style
        // sheet must not squeeze it.
        for (int c = 1; c < 9; ++c) {
            const QModelIndex cell = list->model()->index(r, c);
            EXPECT_EQ(list->indexWidget(cell)->geometry(), list->visualRect(cell)) << r << "," << c;
        }
    }
    qApp->setStyleSheet(QString());
}

} // namespace

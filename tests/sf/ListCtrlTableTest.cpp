// The table side of the list control: the records of its notifications.
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

} // namespace

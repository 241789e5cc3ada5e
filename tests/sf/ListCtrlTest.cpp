// The list control as a generic table: a row binder fills the cell combos and
// hears each cell's event with the row that the registers give, even after
// rows moved; without one the list stays a plain table.

#include "sf/ISFListCtrlEvent.h"
#include "sf/ISFListRowBinder.h"
#include "sf/SFButton.h"
#include "sf/SFComboBox.h"
#include "sf/SFEditCtrl.h"
#include "sf/SFFactory.h"
#include "sf/SFListCtrlIds.h"
#include "sf/qt/SFQTListCtrl.h"
#include "tests/sf/SfTestSupport.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <QWidget>
#include <QWindow>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace {

using R = CSFQTListCtrl;

std::string Narrow(const std::wstring& text)
{
    return QString::fromStdWString(text).toStdString();
}

// A click through the window, as the user's lands.
void Click(QWidget* w)
{
    ASSERT_NE(w, nullptr);
    ASSERT_TRUE(QTest::qWaitFor([w] { return w->isVisible(); }, 2000));
    QWidget* top = w->window();
    const QPoint p = w->mapTo(top, w->rect().center());
    QTest::mouseMove(top->windowHandle(), p);
    QTest::mouseClick(top->windowHandle(), Qt::LeftButton, Qt::NoModifier, p);
}

class CFakeBinder : public ISFListRowBinder {
public:
    explicit CFakeBinder(Log& log) : m_log(log) {}
    std::vector<std::wstring> ComboEntries(int type) const override
    {
        return { L"fixed" + std::to_wstring(type) };
    }
    void ComboChanged(ISFListRowCells&, int type, int row, int index) override
    {
        Put("combo" + std::to_string(type), row, std::to_string(index));
    }
    void ComboButtonClicked(ISFListRowCells&, int row) override { Put("button", row, ""); }
    void ComboEditChanged(ISFListRowCells&, int row, const std::wstring& text) override
    {
        Put("comboedit", row, Narrow(text));
    }
    void EditChanged(ISFListRowCells&, int row, const std::wstring& text) override
    {
        Put("edit", row, Narrow(text));
    }
    void SpinerChanged(ISFListRowCells&, int row) override { Put("spin", row, ""); }
    void CheckClicked(ISFListRowCells&, int row) override { Put("check", row, ""); }
    void UpdateRow(ISFListRowCells&, int row, int totalsOnly, int keep) override
    {
        Put("update", row, std::to_string(totalsOnly) + std::to_string(keep));
    }
    int IsRowReady(ISFListRowCells&, int) override { return 0; }

private:
    void Put(const std::string& what, int row, const std::string& detail)
    {
        m_log.push_back(what + ":" + std::to_string(row) + ":" + detail);
    }
    Log& m_log;
};

class CListHandler : public ISFListCtrlEvent {
public:
    explicit CListHandler(Log& log) : m_log(log) {}
    void Audio_OnClicked(int row) override { m_log.push_back("audio:" + std::to_string(row)); }
    void CalculatorResoult(int channels, double total) override
    {
        m_log.push_back("totals:" + std::to_string(channels) + ":" + std::to_string(total));
    }

private:
    Log& m_log;
};

// Columns: spinner, the four combo types, check, edit.
constexpr int kColumns = 7;

class ListCtrlTest : public testing::Test {
protected:
    void Build(bool withBinder, int rows)
    {
        host.resize(1400, 500);
        host.show();
        list = dynamic_cast<R*>(SFCreateListCtrl(&handler));
        ASSERT_NE(list, nullptr);
        if (withBinder)
            SFSetListRowBinder(list, std::make_unique<CFakeBinder>(log));
        list->Create(SF_WS_VISIBLE, tagRECT{ 0, 0, 1400, 500 }, SFHandleFromWidget(&host), 7, true);
        for (int c = 0; c < kColumns; ++c)
            list->InsertColumn(c, L"", 0, 180, -1);
        for (int r = 0; r < rows; ++r) {
            list->InsertItem(r, L"");
            list->SetItemNumSpiner(r, 0, 99, 1, r, ImageNumSpinerStyle());
            for (int type = 0; type < SF_LIST_COMBO_TYPE_COUNT; ++type)
                list->SetItemComboBox(type, r, 1 + type, 0, ImageComboBoxStyle(), L"title",
                                      L"extra", items);
            list->SetItemCheckWidget(r, 5, ImageRadioBox());
            list->SetItemEditCtrl(r, 6, 0);
        }
        QTest::qWait(1);
        // Building reports too, before the controls have rows.
        log.clear();
    }
    void TearDown() override { SFDestroyControl(list); }

    QWidget* Cell(R::Register reg, int row) const
    {
        list->scrollTo(list->model()->index(row, 0));
        return list->CellWidget(list->RegisterControl(reg, row));
    }
    std::vector<std::string> Entries(R::Register reg) const
    {
        std::vector<std::string> entries;
        if (const QComboBox* combo = qobject_cast<QComboBox*>(Cell(reg, 0))) {
            for (int i = 0; i < combo->count(); ++i)
                entries.push_back(combo->itemText(i).toStdString());
        }
        return entries;
    }
    // Each kind of cell, as a user works it, in the given row.
    void WorkRow(int row)
    {
        for (R::Register reg : { R::EnvironmentCombos, R::CompressionCombos, R::ResolutionCombos,
                                 R::FrameRateCombos }) {
            QWidget* combo = Cell(reg, row);
            ASSERT_NE(combo, nullptr);
            combo->setEnabled(true);
            combo->setFocus();
            QTest::keyClick(combo, Qt::Key_Down);
        }
        static_cast<CSFEditCtrl*>(list->RegisterControl(R::CustomRateEdits, row))->ShowWindow(1);
        for (R::Register reg : { R::CustomRateEdits, R::BitrateEdits }) {
            QWidget* edit = Cell(reg, row);
            ASSERT_NE(edit, nullptr);
            edit->setFocus();
            QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(edit, QStringLiteral("5"));
        }
        QWidget* spin = Cell(R::ChannelSpiners, row);
        spin->setFocus();
        QTest::keyClick(spin, Qt::Key_Up);
        Click(Cell(R::AudioChecks, row));
        static_cast<CSFButton*>(list->RegisterControl(R::EnvironmentButtons, row))->ShowWindow(1);
        Click(Cell(R::EnvironmentButtons, row));
    }

    Log log;
    CListHandler handler{ log };
    QWidget host;
    R* list = nullptr;
    const std::wstring items[4] = { L"button", L"s1", L"s2", L"s3" };
};

TEST_F(ListCtrlTest, BinderEntriesStandBetweenTitleAndCallerEntries)
{
    using V = std::vector<std::string>;
    struct Case {
        bool binder;
        R::Register reg;
        V entries;
    };
    const Case cases[] = {
        { false, R::EnvironmentCombos, V{ "title", "s1", "s2", "s3" } },
        { false, R::CompressionCombos, V{ "title" } },
        { false, R::ResolutionCombos, V{ "title" } },
        { false, R::FrameRateCombos, V{ "title", "extra" } },
        { true, R::EnvironmentCombos, V{ "title", "fixed0", "s1", "s2", "s3" } },
        { true, R::CompressionCombos, V{ "title", "fixed1" } },
        { true, R::ResolutionCombos, V{ "title", "fixed2" } },
        { true, R::FrameRateCombos, V{ "title", "fixed3", "extra" } },
    };
    for (const bool binder : { false, true }) {
        Build(binder, 1);
        for (const Case& c : cases) {
            if (c.binder == binder) {
                EXPECT_EQ(Entries(c.reg), c.entries) << binder << " " << c.reg;
            }
        }
        SFDestroyControl(list);
        list = nullptr;
    }
}

// The third row, once the first is gone, still carries ids made for row 2:
// the events must name row 1.
TEST_F(ListCtrlTest, EventsReachTheBinderWithTheRowOfTheRegister)
{
    Build(true, 3);
    list->DeleteItems(0);
    EXPECT_EQ(log, Log({ "update:-1:10" }));
    log.clear();
    WorkRow(1);
    list->UpdateBitrate(0, 1);
    EXPECT_EQ(log,
              Log({ "combo0:1:1", "combo1:1:1", "combo2:1:1", "combo3:1:1", "comboedit:1:5",
                    "edit:1:5", "spin:1:", "check:1:", "audio:1", "button:1:", "update:1:01" }));
    log.clear();
    list->DeleteAllItems();
    EXPECT_EQ(log, Log({ "update:-1:10" }));
}

TEST_F(ListCtrlTest, WithoutBinderTheTableOnlyReportsItsOwnEvents)
{
    Build(false, 3);
    list->DeleteItems(0);
    WorkRow(1);
    list->UpdateBitrate(0, 0);
    EXPECT_EQ(list->IsRowReady(), 0);
    list->DeleteAllItems();
    EXPECT_EQ(log, Log({ "audio:1" }));
}

} // namespace

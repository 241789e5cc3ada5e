// The edit control: one commit per Return or focus loss,
// text change events for code and user, and text truncation.

#include "InputsTestSupport.h"
#include "SfTestSupport.h"

#include "SFControlTypes.h"
#include "SFFactory.h"
#include "SFQTEditCtrl.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

namespace {

const tagRECT kEditRect{ 10, 10, 110, 35 };

struct EditFixture : testing::Test {
    CInputsHandler handler;
    CInputsHost host;
    CSFQTEditCtrl* edit = nullptr;
    QLineEdit* other = nullptr;

    void SetUp() override
    {
        edit = static_cast<CSFQTEditCtrl*>(SFCreateEditCtrl(&handler));
        edit->Create(SF_WS_VISIBLE, kEditRect, host.Handle(), 0x811, false);
        other = new QLineEdit(&host);
        other->setGeometry(10, 60, 100, 25);
        other->show();
    }
    void TearDown() override { SFDestroyControl(static_cast<CSFEditCtrl*>(edit)); }

    void TypeIntoEdit(const QString& text)
    {
        edit->setFocus();
        EXPECT_TRUE(edit->hasFocus());
        QTest::keyClicks(edit, text);
    }
};

enum class CommitWay { Return, Enter, Tab, ClickElsewhere, FocusElsewhere };

struct CommitCase {
    CommitWay way;
    const char* name;
};

void PrintTo(const CommitCase& c, std::ostream* os)
{
    *os << c.name;
}

class EditCommit : public EditFixture, public testing::WithParamInterface<CommitCase> {};

TEST_P(EditCommit, FiresExactlyOnceAndLeavesTheField)
{
    TypeIntoEdit(QStringLiteral("42"));
    handler.events.clear();
    switch (GetParam().way) {
    case CommitWay::Return:
        QTest::keyClick(edit, Qt::Key_Return);
        break;
    case CommitWay::Enter:
        QTest::keyClick(edit, Qt::Key_Enter);
        break;
    case CommitWay::Tab:
        QTest::keyClick(edit, Qt::Key_Tab);
        break;
    case CommitWay::ClickElsewhere:
        QTest::mouseClick(other, Qt::LeftButton);
        break;
    case CommitWay::FocusElsewhere:
        other->setFocus(Qt::MouseFocusReason);
        break;
    }
    ASSERT_EQ(handler.Count("enter"), 1);
    EXPECT_EQ(handler.events.back().text, L"42");
    EXPECT_EQ(handler.events.back().id, 0x811u);
    EXPECT_FALSE(edit->hasFocus());
}

INSTANTIATE_TEST_SUITE_P(Ways, EditCommit,
                         testing::Values(CommitCase{ CommitWay::Return, "Return" },
                                         CommitCase{ CommitWay::Tab, "Tab" },
                                         CommitCase{ CommitWay::ClickElsewhere, "Click" }),
                         [](const testing::TestParamInfo<CommitCase>& info) {
                             return std::string(info.param.name);
                         });

TEST_F(EditFixture, AfterAReturnTheNextFocusLossStillCommits)
{
    TypeIntoEdit(QStringLiteral("7"));
    QTest::keyClick(edit, Qt::Key_Return);
    TypeIntoEdit(QStringLiteral("8"));
    other->setFocus(Qt::TabFocusReason);
    ASSERT_EQ(handler.Count("enter"), 2);
    EXPECT_EQ(handler.events.back().text, L"78");
}

TEST_F(EditFixture, ReturnWithoutFocusCommitsOnceAndLeavesNoSkipBehind)
{
    // A Return delivered to an edit that has no focus raises a single
    // editingFinished; the next commit must not be swallowed.
    other->setFocus();
    edit->setText(QStringLiteral("5"));
    handler.events.clear();
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(handler.Count("enter"), 1);
    TypeIntoEdit(QStringLiteral("6"));
    other->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(handler.Count("enter"), 2);
}

TEST_F(EditFixture, TextChangeFiresForCodeAndUserWithTheControlAsSender)
{
    edit->SetWindowTextW(L"24");
    ASSERT_EQ(handler.Count("text"), 1);
    EXPECT_EQ(handler.events.back().text, L"24");
    EXPECT_EQ(handler.events.back().sender, static_cast<CSFEditCtrl*>(edit));

    // A handler that writes back into the field passes through again.
    handler.onTextChange = [this](const wchar_t* text) {
        if (std::wstring(text) == L"9")
            edit->SetWindowTextW(L"90");
    };
    handler.events.clear();
    edit->SetWindowTextW(L"9");
    ASSERT_EQ(handler.Count("text"), 2);
    EXPECT_EQ(handler.events[1].text, L"90");
    EXPECT_EQ(edit->text(), QStringLiteral("90"));

    handler.onTextChange = nullptr;
    handler.events.clear();
    TypeIntoEdit(QStringLiteral("1"));
    EXPECT_EQ(handler.Count("text"), 1);
    EXPECT_EQ(handler.events.back().text, L"901");
}

struct TruncCase {
    const wchar_t* text;
    int size;
    const wchar_t* expected;
    int result;
};

void PrintTo(const TruncCase& c, std::ostream* os)
{
    *os << c.size;
}

class EditTruncation : public testing::TestWithParam<TruncCase> {};

TEST_P(EditTruncation, KeepsAtMostSizeMinusOneAndReportsFullLength)
{
    const TruncCase& c = GetParam();
    CSFQTEditCtrl edit(nullptr);
    edit.SetWindowTextW(c.text);
    wchar_t buffer[16] = {};
    EXPECT_EQ(edit.GetWindowTextW(buffer, c.size), c.result);
    EXPECT_EQ(std::wstring(buffer), std::wstring(c.expected));
}

INSTANTIATE_TEST_SUITE_P(Sizes, EditTruncation,
                         testing::Values(TruncCase{ L"123456789012", 9, L"12345678", 12 },
                                         TruncCase{ L"12345678", 9, L"12345678", 8 },
                                         TruncCase{ L"abc", 0, L"", 3 }));

} // namespace

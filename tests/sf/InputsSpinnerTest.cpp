// The number spinner: it reports changes made from code as well as by the
// user and wraps when asked.

#include "InputsTestSupport.h"

#include "SFApplication.h"
#include "SFFactory.h"
#include "SFQTNumSpiner.h"

#include <QTest>
#include <gtest/gtest.h>

namespace {

struct SpinnerFixture : testing::Test {
    CInputsHandler handler;
    CInputsHost host;
    CSFQTNumSpiner* spin = nullptr;

    void SetUp() override
    {
        spin = static_cast<CSFQTNumSpiner*>(SFCreateNumSpiner(&handler));
        spin->Create(L"ignored", tagRECT{ 10, 10, 132, 42 }, host.Handle(), 0x7EB);
        spin->SetRange(1, 3650);
        spin->SetCurrentNum(1);
        spin->show();
        handler.events.clear();
    }
    void TearDown() override { SFDestroyControl(static_cast<CSFNumSpiner*>(spin)); }
};

TEST_F(SpinnerFixture, SetCurrentNumFiresWhenTheValueChanges)
{
    spin->SetCurrentNum(30);
    ASSERT_EQ(handler.Values("num"), (std::vector<int>{ 30 }));
    EXPECT_EQ(handler.events.back().id, 0x7EBu);
    EXPECT_EQ(handler.events.back().sender, static_cast<CSFNumSpiner*>(spin));
    spin->SetCurrentNum(30);
    EXPECT_EQ(handler.Count("num"), 1);
    // Out of range is clamped by Qt and reported as the clamped value.
    spin->SetCurrentNum(99999);
    EXPECT_EQ(handler.Values("num"), (std::vector<int>{ 30, 3650 }));
    EXPECT_EQ(spin->GetCurrentNum(), 3650);
}

struct StepCase {
    const char* name;
    bool wrap;
    int start;
    Qt::Key key;
    int expected;
};

void PrintTo(const StepCase& c, std::ostream* os)
{
    *os << c.name;
}

class SpinnerSteps : public SpinnerFixture, public testing::WithParamInterface<StepCase> {};

TEST_P(SpinnerSteps, ArrowKeysStepAndWrapOnlyWhenCircular)
{
    const StepCase& c = GetParam();
    spin->SetCircleStep(c.wrap ? 1 : 0);
    spin->SetCurrentNum(c.start);
    handler.events.clear();
    spin->setFocus();
    QTest::keyClick(spin, c.key);
    EXPECT_EQ(spin->GetCurrentNum(), c.expected);
    EXPECT_EQ(handler.Count("num"), c.start == c.expected ? 0 : 1);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, SpinnerSteps,
    testing::Values(StepCase{ "UpWraps", true, 3650, Qt::Key_Up, 1 },
                    StepCase{ "DownWraps", true, 1, Qt::Key_Down, 3650 },
                    StepCase{ "UpStops", false, 3650, Qt::Key_Up, 3650 },
                    StepCase{ "DownStops", false, 1, Qt::Key_Down, 1 },
                    StepCase{ "Up", true, 5, Qt::Key_Up, 6 }),
    [](const testing::TestParamInfo<StepCase>& info) { return std::string(info.param.name); });

} // namespace

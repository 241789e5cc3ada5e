// The number spinner: it reports changes made from code as well as by the
// user, wraps when asked, and is skinned by one style sheet.

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

TEST_F(SpinnerFixture, TypedValueIsReportedAndStepsFollowTheStep)
{
    spin->setFocus();
    spin->selectAll();
    QTest::keyClicks(spin, QStringLiteral("42"));
    QTest::keyClick(spin, Qt::Key_Return);
    EXPECT_EQ(spin->GetCurrentNum(), 42);
    EXPECT_EQ(handler.Values("num").back(), 42);

    spin->SetStep(10);
    EXPECT_EQ(spin->GetStep(), 10);
    spin->StepUp();
    EXPECT_EQ(spin->GetCurrentNum(), 52);
    spin->StepDown();
    spin->StepDown();
    EXPECT_EQ(handler.Values("num").back(), 32);
    int lo = 0, hi = 0;
    spin->GetRange(lo, hi);
    EXPECT_EQ(lo, 1);
    EXPECT_EQ(hi, 3650);
}

TEST(SpinnerFacade, CreateNeitherShowsNorHidesAndSkinIsNineRules)
{
    CInputsHost host;
    auto* spin = static_cast<CSFQTNumSpiner*>(SFCreateNumSpiner(nullptr));
    spin->Create(nullptr, tagRECT{ 10, 10, 132, 42 }, host.Handle(), 9);
    EXPECT_EQ(spin->geometry(), QRect(10, 10, 122, 32));
    EXPECT_EQ(spin->objectName(), QStringLiteral("spinner_9"));
    EXPECT_FALSE(spin->testAttribute(Qt::WA_WState_ExplicitShowHide));
    EXPECT_FALSE(spin->hasFrame());
    tagRECT moved{ 10, 10, 132, 42 };
    spin->MoveWindow(&moved);
    EXPECT_EQ(spin->size(), QSize(123, 33));

    const QString oldSkin = g_strSkinPath;
    g_strSkinPath = QStringLiteral("/s/");
    ImageNumSpinerStyle style;
    style.strFrame = L"f.png";
    style.strDownNormal = L"dn.png";
    style.strDownHover = L"unused.png";
    style.strDownPressed = L"dp.png";
    style.strDownDisabled = L"dd.png";
    style.strUpNormal = L"un.png";
    style.strUpHover = L"unused.png";
    style.strUpPressed = L"up.png";
    style.strUpDisabled = L"ud.png";
    EXPECT_EQ(spin->SetSkin(&style), 1);
    EXPECT_EQ(spin->styleSheet(),
              QStringLiteral(
                  "QSpinBox { padding: 0 8px; border-image: url(/s/f.png);}"
                  "QSpinBox::up-button {width: 21px; border-image: url(/s/un.png);}"
                  "QSpinBox::up-button:hover {border-image: url(/s/un.png);}"
                  "QSpinBox::up-button:pressed {border-image: url(/s/up.png);}"
                  "QSpinBox::up-button:disabled {border-image: url(/s/ud.png);}"
                  "QSpinBox::down-button {width: 21px; border-image: url(/s/dn.png);}"
                  "QSpinBox::down-button:hover {border-image: url(/s/dn.png);}"
                  "QSpinBox::down-button:pressed {border-image: url(/s/dp.png);}"
                  "QSpinBox::down-button:disabled {border-image: url(/s/dd.png);}"));
    g_strSkinPath = oldSkin;

    CSFQTNumSpiner origin(nullptr);
    origin.SetOriginStyle(1);
    EXPECT_EQ(origin.SetSkin(&style), 0);
    EXPECT_TRUE(origin.styleSheet().isEmpty());
    SFDestroyControl(static_cast<CSFNumSpiner*>(spin));
}

} // namespace

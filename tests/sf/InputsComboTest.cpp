// The combo box: only a user's choice reaches the handler, the wheel does
// nothing, and the control survives the destruction of its popup.

#include "InputsTestSupport.h"
#include "SfTestSupport.h"

#include "SFControlTypes.h"
#include "SFFactory.h"
#include "SFQTComboBox.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>
#include <functional>
#include <gtest/gtest.h>

namespace {

const QColor kNormal(255, 0, 0);
const QColor kNormalEdge(255, 255, 0);
const QColor kUp(0, 0, 255);
const QColor kDown(0, 160, 0);
const QColor kOther(90, 90, 90);

// A strip cut like the table's row combo: normal at 0, open upwards at 26,
// open downwards at 78, each one pixel larger than its nominal size.
void WriteComboStrip(const QString& dir)
{
    QImage image(131, 105, QImage::Format_ARGB32);
    image.fill(kOther);
    QPainter p(&image);
    p.fillRect(QRect(0, 0, 131, 26), kNormal);
    p.fillRect(QRect(0, 25, 131, 1), kNormalEdge);
    p.fillRect(QRect(130, 0, 1, 26), kNormalEdge);
    p.fillRect(QRect(0, 26, 131, 27), kUp);
    p.fillRect(QRect(0, 78, 131, 27), kDown);
    p.end();
    image.save(dir + QStringLiteral("/strip.png"), "PNG");
}

// The row combo's record, cut from the strip.
ImageComboBoxStyle RowStyle()
{
    ImageComboBoxStyle s = RowComboStyle();
    s.strImage = L"strip.png";
    s.strPressedDownMode = L"stretch";
    return s;
}

struct ComboFixture : testing::Test {
    CTestSkin skin;
    CInputsHandler handler;
    std::unique_ptr<CInputsHost> host;
    CSFQTComboBox* combo = nullptr;

    // The combo is 131 by 26, so that its slice maps one to one.
    void Build(const QPoint& hostAt = QPoint(50, 50), int items = 4)
    {
        WriteComboStrip(skin.Dir());
        host = std::make_unique<CInputsHost>(QSize(300, 60), hostAt);
        combo = static_cast<CSFQTComboBox*>(SFCreateComboBox(&handler));
        combo->Create(SF_WS_VISIBLE, tagRECT{ 10, 10, 141, 36 }, host->Handle(), 0x40);
        ImageComboBoxStyle style = RowStyle();
        ASSERT_EQ(combo->SetSkin(&style), 1);
        for (int i = 0; i < items; ++i)
            combo->AddString((L"Item " + std::to_wstring(i)).c_str());
    }
    void TearDown() override
    {
        if (combo && combo->view()->isVisible())
            combo->hidePopup();
        SFDestroyControl(static_cast<CSFComboBox*>(combo));
    }

    void OpenByClick()
    {
        QTest::mouseClick(combo, Qt::LeftButton, Qt::NoModifier, QPoint(20, 13));
        ASSERT_TRUE(QTest::qWaitForWindowExposed(combo->view()->window()));
    }
    void ChooseByClick(int row)
    {
        QWidget* viewport = combo->view()->viewport();
        const QRect item =
            combo->view()->visualRect(combo->model()->index(row, 0)) & viewport->rect();
        // A freshly opened popup takes no release for a double-click interval;
        // the plain style gives its list no mouse tracking, so a real user
        // simply clicks a moment later.
        QTest::qWait(QApplication::doubleClickInterval() + 50);
        QTest::mouseClick(viewport, Qt::LeftButton, Qt::NoModifier, item.center());
    }
};

TEST_F(ComboFixture, AChoiceInThePopupFiresOnce)
{
    Build();
    OpenByClick();
    EXPECT_TRUE(combo->PopupOpen());
    EXPECT_EQ(combo->view()->visualRect(combo->model()->index(1, 0)).height(), 25);
    ChooseByClick(2);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !combo->view()->isVisible(); }));
    ASSERT_EQ(handler.Count("select"), 1);
    EXPECT_EQ(handler.events.back().value, 2);
    EXPECT_EQ(handler.events.back().id, 0x40u);
    EXPECT_EQ(handler.events.back().sender, static_cast<CSFComboBox*>(combo));
    EXPECT_FALSE(combo->PopupOpen());
    EXPECT_EQ(combo->GetCurSel(), 2);
}

struct SilentCase {
    const char* name;
    std::function<void(CSFComboBox*)> act;
    int expectedCount;
    int expectedSel;
};

void PrintTo(const SilentCase& c, std::ostream* os)
{
    *os << c.name;
}

class ComboSilent : public ComboFixture, public testing::WithParamInterface<SilentCase> {};

TEST_P(ComboSilent, SettersFireNothingAndTheUserStillIsHeard)
{
    Build();
    handler.events.clear();
    GetParam().act(combo);
    EXPECT_EQ(handler.Count("select"), 0);
    EXPECT_EQ(combo->GetCount(), GetParam().expectedCount);
    EXPECT_EQ(combo->GetCurSel(), GetParam().expectedSel);

    // The connection is back: a key choice of the user is reported.
    if (combo->GetCount() < 2)
        combo->AddString(L"more"), combo->AddString(L"more");
    combo->SetCurSel(0);
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Down);
    ASSERT_EQ(handler.Count("select"), 1);
    EXPECT_EQ(handler.events.back().value, 1);
}

INSTANTIATE_TEST_SUITE_P(
    Setters, ComboSilent,
    testing::Values(
        SilentCase{ "SetCurSel", [](CSFComboBox* c) { c->SetCurSel(3); }, 4, 3 },
        SilentCase{ "DeleteCurrent", [](CSFComboBox* c) { c->DeleteString(0); }, 3, 0 },
        SilentCase{ "ResetContent",
                    [](CSFComboBox* c) {
                        c->SetCurSel(3);
                        c->ResetContent();
                    },
                    0, -1 }),
    [](const testing::TestParamInfo<SilentCase>& info) { return std::string(info.param.name); });

TEST_F(ComboFixture, TheWheelChangesNothing)
{
    Build();
    combo->SetCurSel(1);
    combo->setFocus();
    const QPointF at(20, 13);
    for (int delta : { -120, 120, -120 }) {
        QWheelEvent wheel(at, combo->mapToGlobal(at), QPoint(), QPoint(0, delta), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(combo, &wheel);
    }
    EXPECT_EQ(combo->GetCurSel(), 1);
    EXPECT_EQ(handler.Count("select"), 0);
}

TEST(ComboLifetime, PopupMadeOnFirstOpeningAndFreedWithTheCombo)
{
    // The popup's style sheet style leans on the combo's plain style while
    // the combo's children go down.
    CTestSkin skin;
    WriteComboStrip(skin.Dir());
    CInputsHost host;
    for (int round = 0; round < 2; ++round) {
        auto* combo = static_cast<CSFQTComboBox*>(SFCreateComboBox(nullptr));
        combo->Create(SF_WS_VISIBLE, tagRECT{ 10, 10, 141, 36 }, host.Handle(), 1);
        ImageComboBoxStyle style = RowStyle();
        combo->SetSkin(&style);
        combo->AddString(L"a");
        combo->AddString(L"b");
        QApplication::processEvents();
        EXPECT_TRUE(combo->findChildren<QAbstractItemView*>().isEmpty());
        EXPECT_TRUE(combo->styleSheet().isEmpty());
        combo->showPopup();
        EXPECT_TRUE(combo->PopupOpen());
        EXPECT_FALSE(combo->styleSheet().isEmpty());
        QPointer<QAbstractItemView> view = combo->view();
        EXPECT_EQ(view->visualRect(combo->model()->index(1, 0)).height(), CSFQTComboBox::RowHeight);
        if (round == 0)
            combo->hidePopup();
        SFDestroyControl(static_cast<CSFComboBox*>(combo));
        EXPECT_TRUE(view.isNull());
    }
}

} // namespace

// The input controls: edit, combo box, label and number spinner, under real
// keys, clicks and wheel.

#include "sf/ISFComboBoxEvent.h"
#include "sf/ISFEditCtrlEvent.h"
#include "sf/ISFNumSpinerEvent.h"
#include "sf/ImageComboBoxStyle.h"
#include "sf/SFControlTypes.h"
#include "sf/SFFactory.h"
#include "sf/qt/SFQTComboBox.h"
#include "sf/qt/SFQTEditCtrl.h"
#include "sf/qt/SFQTNumSpiner.h"
#include "sf/qt/SFQTStatic.h"
#include "tests/sf/SfTestSupport.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QPointer>
#include <QPropertyAnimation>
#include <QTest>
#include <QWheelEvent>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace {

struct InputEvent {
    std::string kind;
    unsigned int id;
    std::wstring text;
    int value;
    void* sender;
};

class CInputsHandler : public ISFEditCtrlEvent, public ISFComboBoxEvent, public ISFNumSpinerEvent {
public:
    std::vector<InputEvent> events;
    // Runs inside the text change call, as a page's handler would.
    std::function<void(const wchar_t*)> onTextChange;

    void EDIT_OnTextChange(unsigned int id, wchar_t* text, void* sender) override
    {
        events.push_back({ "text", id, text ? text : L"", 0, sender });
        if (onTextChange)
            onTextChange(text);
    }
    void SelectChanged(int id, int index, void* sender) override
    {
        events.push_back({ "select", static_cast<unsigned int>(id), L"", index, sender });
    }
    void OnCurrentNumChanged(unsigned int id, int value, void* sender, int) override
    {
        events.push_back({ "num", id, L"", value, sender });
    }

    int Count(const std::string& kind) const
    {
        int n = 0;
        for (const InputEvent& e : events)
            n += e.kind == kind ? 1 : 0;
        return n;
    }
    std::vector<int> Values(const std::string& kind) const
    {
        std::vector<int> out;
        for (const InputEvent& e : events)
            if (e.kind == kind)
                out.push_back(e.value);
        return out;
    }
};

// A shown, active top-level window that controls are placed on.
class CInputsHost : public QWidget {
public:
    explicit CInputsHost(const QSize& size = QSize(400, 300))
    {
        setGeometry(QRect(QPoint(50, 50), size));
        show();
        activateWindow();
        if (!QTest::qWaitForWindowActive(this))
            qWarning("host window did not become active");
    }
    void* Handle() { return this; }
};

// --- the edit control: text change events for code and user, and text
// truncation ---

const tagRECT kEditRect{ 10, 10, 110, 35 };

// One control from its factory on a host page, released after the test.
template <class QtControl>
struct ControlFixture : testing::Test {
    CInputsHandler handler;
    CInputsHost host;
    QtControl* control = nullptr;

    template <class Facade>
    void Take(Facade* made)
    {
        control = static_cast<QtControl*>(made);
    }
    void TearDown() override { SFDestroyControl(control); }
};

struct EditFixture : ControlFixture<CSFQTEditCtrl> {
    CSFQTEditCtrl*& edit = control;

    void SetUp() override
    {
        Take(SFCreateEditCtrl(&handler));
        edit->Create(SF_WS_VISIBLE, kEditRect, host.Handle(), 0x811, false);
    }

    void TypeIntoEdit(const QString& text)
    {
        edit->setFocus();
        EXPECT_TRUE(edit->hasFocus());
        QTest::keyClicks(edit, text);
    }
};

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

// --- the combo box: only a user's choice reaches the handler, the wheel does
// nothing, and the control survives the destruction of its popup ---

// A picture the size of the table's row combo strip, for its slices.
void WriteComboStrip(const QString& dir)
{
    QImage image(131, 105, QImage::Format_ARGB32);
    image.fill(QColor(90, 90, 90));
    image.save(dir + QStringLiteral("/strip.png"), "PNG");
}

// The cuts of the table's row combo.
ImageComboBoxStyle RowStyle()
{
    ImageComboBoxStyle s;
    s.strImage = L"strip.png";
    s.strNormal = L"0,0,130,25";
    s.strHover = L"0,0,130,25";
    s.strPressedDown = L"0,78,130,26";
    s.strPressedUp = L"0,26,130,26";
    s.strDisabled = L"0,26,130,25";
    s.strSlice6 = L"0,0,130,25";
    s.strSlice7 = L"0,26,130,25";
    return s;
}

struct ComboFixture : testing::Test {
    CTestSkin skin;
    CInputsHandler handler;
    std::unique_ptr<CInputsHost> host;
    CSFQTComboBox* combo = nullptr;

    void Build()
    {
        WriteComboStrip(skin.Dir());
        host = std::make_unique<CInputsHost>(QSize(300, 60));
        combo = static_cast<CSFQTComboBox*>(SFCreateComboBox(&handler));
        combo->Create(SF_WS_VISIBLE, tagRECT{ 10, 10, 141, 36 }, host->Handle(), 0x40);
        ImageComboBoxStyle style = RowStyle();
        ASSERT_EQ(combo->SetSkin(&style), 1);
        for (int i = 0; i < 4; ++i)
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
    testing::Values(SilentCase{ "SetCurSel", [](CSFComboBox* c) { c->SetCurSel(3); }, 4, 3 },
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

// --- the label: DrawText-like alignment flags and the flash that ends black ---

CSFQTStatic* MakeLabel(CInputsHost& host, const wchar_t* text, const tagRECT& rect)
{
    auto* label = static_cast<CSFQTStatic*>(SFCreateStatic(nullptr));
    label->Create(text, SF_WS_VISIBLE, rect, host.Handle(), 5);
    return label;
}

struct AlignCase {
    unsigned int in;
    unsigned int flags;
};

void PrintTo(const AlignCase& c, std::ostream* os)
{
    *os << c.in;
}

class StaticAlign : public testing::TestWithParam<AlignCase> {};

TEST_P(StaticAlign, DrawTextBitsBecomeQtFlags)
{
    CSFQTStatic label(nullptr);
    EXPECT_EQ(label.GetTextAlignFlag(), 385u);
    label.SetTextAlignFlag(GetParam().in);
    EXPECT_EQ(label.GetTextAlignFlag(), GetParam().flags) << "in " << GetParam().in;
}

INSTANTIATE_TEST_SUITE_P(Bits, StaticAlign,
                         testing::Values(AlignCase{ 0x3, 0x2 },       // right wins over centre
                                         AlignCase{ 0x2015, 0x1284 }, // the message dialog's 8213
                                         AlignCase{ 0x30, 0x301 }));  // single line undoes the wrap

TEST(StaticTwinkle, FlashesTwiceAndEndsBlack)
{
    CInputsHost host;
    CSFQTStatic* label = MakeLabel(host, L"12.00GB", tagRECT{ 0, 0, 120, 30 });
    label->SetTextColor(0x0000FF);
    label->SetTwinkleDuration(200);
    label->StartTwinkle();
    ASSERT_TRUE(label->TwinkleRunning());
    auto* animation = label->findChild<QPropertyAnimation*>();
    ASSERT_NE(animation, nullptr);
    EXPECT_EQ(animation->propertyName(), QByteArray("Color"));
    EXPECT_EQ(animation->loopCount(), 2);
    EXPECT_EQ(animation->keyValueAt(0.5).value<QColor>(), QColor(0, 0, 0, 0));
    EXPECT_TRUE(QTest::qWaitFor([label] { return label->TextColor().alpha() < 128; }, 2000));
    EXPECT_TRUE(QTest::qWaitFor([label] { return !label->TwinkleRunning(); }, 3000));
    EXPECT_EQ(label->TextColor(), QColor(0, 0, 0, 255));

    // A running flash on a disabled label is left alone.
    label->SetTwinkleDuration(5000);
    label->StartTwinkle();
    QPropertyAnimation* first = label->findChildren<QPropertyAnimation*>().last();
    ASSERT_TRUE(QTest::qWaitFor([first] { return first->currentTime() >= 100; }, 2000));
    label->setEnabled(false);
    label->StartTwinkle();
    EXPECT_EQ(label->findChildren<QPropertyAnimation*>().last(), first);
    EXPECT_GE(first->currentTime(), 100);
    label->setEnabled(true);
    label->StartTwinkle();
    EXPECT_LT(label->findChildren<QPropertyAnimation*>().last()->currentTime(), 100);
    EXPECT_EQ(label->findChildren<QPropertyAnimation*>().size(), 1);
    SFDestroyControl(static_cast<CSFStatic*>(label));
}

// --- the number spinner: it reports changes made from code as well as by
// the user and wraps when asked ---

struct SpinnerFixture : ControlFixture<CSFQTNumSpiner> {
    CSFQTNumSpiner*& spin = control;

    void SetUp() override
    {
        Take(SFCreateNumSpiner(&handler));
        spin->Create(L"ignored", tagRECT{ 10, 10, 132, 42 }, host.Handle(), 0x7EB);
        spin->SetRange(1, 3650);
        spin->SetCurrentNum(1);
        spin->show();
        handler.events.clear();
    }
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

INSTANTIATE_TEST_SUITE_P(Keys, SpinnerSteps,
                         testing::Values(StepCase{ "UpWraps", true, 3650, Qt::Key_Up, 1 },
                                         StepCase{ "DownWraps", true, 1, Qt::Key_Down, 3650 },
                                         StepCase{ "UpStops", false, 3650, Qt::Key_Up, 3650 },
                                         StepCase{ "DownStops", false, 1, Qt::Key_Down, 1 },
                                         StepCase{ "Up", true, 5, Qt::Key_Up, 6 }),
                         [](const testing::TestParamInfo<StepCase>& info) {
                             return std::string(info.param.name);
                         });

} // namespace

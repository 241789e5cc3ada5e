// One host window with every input control in its states, skinned from the
// generated skin directory. With TALLIX_INPUTS_SHOT set, the picture (with
// the open popup laid over it) is saved there for a look by eye.

#include "InputsTestSupport.h"
#include "SfTestSupport.h"

#include "SFControlTypes.h"
#include "SFFactory.h"
#include "SFQTComboBox.h"
#include "SFQTEditCtrl.h"
#include "SFQTNumSpiner.h"
#include "SFQTStatic.h"
#include "SFQTView.h"

#include <QAbstractItemView>
#include <QImage>
#include <QPainter>
#include <QTest>
#include <gtest/gtest.h>
#include <vector>

namespace {

ImageComboBoxStyle PanelCombo()
{
    ImageComboBoxStyle s;
    s.strImage = L"ComboBox.png";
    s.strNormal = L"0,0,150,40";
    s.strHover = L"0,0,150,40";
    s.strPressedDown = L"0,48,150,40";
    s.strPressedUp = L"0,48,150,40";
    s.strDisabled = L"0,142,150,40";
    s.strSlice6 = L"0,0,150,40";
    s.strSlice7 = L"0,48,150,40";
    s.strNormalMode = s.strHoverMode = s.strPressedUpMode = s.strPressedDownMode =
        s.strDisabledMode = s.strSlice6Mode = L"tile";
    return s;
}

class CShowcaseView : public ISFViewEvent {
public:
    const SF_MSGMAP* GetSFMessageMap() const override
    {
        static const SF_MSGMAP_ENTRY entries[] = { SF_MSGMAP_ENTRY{} };
        static const SF_MSGMAP map = { entries };
        return &map;
    }
};

TEST(Showcase, EveryControlInItsStates)
{
    CProgramSkin skin;
    CInputsHost host(QSize(760, 420), QPoint(20, 20));
    CShowcaseView leftHandler, rightHandler;
    CSFView* left = SFCreateView(&leftHandler);
    left->SetBackground(L"BottomBg(2).png");
    left->Create(L"", L"left", SF_WS_VISIBLE, tagRECT{ 0, 0, 379, 419 }, host.Handle(), 1);
    CSFView* right = SFCreateView(&rightHandler);
    right->SetBGClr(0x00F4EEE8);
    right->SetFrameClr(0x00808080, 1);
    right->Create(L"", L"right", SF_WS_VISIBLE, tagRECT{ 380, 0, 759, 419 }, host.Handle(), 2);
    void* l = leftHandler.GetUIWnd();
    void* r = rightHandler.GetUIWnd();

    std::vector<CSFEditCtrl*> edits;
    std::vector<CSFComboBox*> combos;
    std::vector<CSFStatic*> labels;

    auto edit = [&](int y, const wchar_t* text, bool readOnly) {
        CSFEditCtrl* e = SFCreateEditCtrl(nullptr);
        e->Create(SF_WS_VISIBLE, tagRECT{ 20, y, 150, y + 24 }, l, 0x816, false);
        e->SetWindowTextW(text);
        if (readOnly)
            e->SetReadOnly(1);
        edits.push_back(e);
    };
    edit(20, L"24", false);
    edit(54, L"1024 (read-only)", true);

    auto combo = [&](const tagRECT& rect, ImageComboBoxStyle style, int items, bool enabled) {
        CSFComboBox* c = SFCreateComboBox(nullptr);
        c->Create(SF_WS_VISIBLE, rect, l, 0x80A);
        c->SetSkin(&style);
        const wchar_t* names[] = { L"32GB", L"64GB", L"128GB", L"1TB", L"2TB", L"Customize" };
        for (int i = 0; i < items; ++i)
            c->AddString(names[i]);
        c->EnableWindow(enabled ? 1 : 0);
        combos.push_back(c);
        return static_cast<CSFQTComboBox*>(c);
    };
    CSFQTComboBox* closed = combo(tagRECT{ 20, 90, 147, 126 }, PanelCombo(), 6, true);
    combo(tagRECT{ 20, 136, 147, 172 }, PanelCombo(), 6, false);
    CSFQTComboBox* open = combo(tagRECT{ 200, 20, 335, 53 }, RowComboStyle(), 4, true);
    combo(tagRECT{ 200, 200, 335, 233 }, RowComboStyle(), 4, true);

    CSFNumSpiner* spin = SFCreateNumSpiner(nullptr);
    spin->Create(nullptr, tagRECT{ 20, 190, 142, 221 }, l, 0x7EB);
    ImageNumSpinerStyle spinStyle;
    spinStyle.strFrame = L"bg_time_noal.png";
    spin->SetSkin(&spinStyle);
    spin->SetRange(1, 3650);
    spin->SetCircleStep(1);
    spin->SetCurrentNum(7);
    // Create neither shows nor hides a spinner; pages show theirs.
    spin->ShowWindow(1);

    auto label = [&](const wchar_t* text, const tagRECT& rect, int size, int bold,
                     unsigned int align, unsigned int colour) {
        CSFStatic* s = SFCreateStatic(nullptr);
        s->SetTextAlignFlag(align);
        s->Create(text, SF_WS_VISIBLE, rect, r, 0);
        s->SetTextSize(size);
        s->SetTextBold(bold);
        s->SetTextColor(colour);
        labels.push_back(s);
        return s;
    };
    label(L"Total", tagRECT{ 10, 10, 80, 35 }, 18, 0, 5, 0);
    label(L"Channels", tagRECT{ 90, 10, 190, 35 }, 15, 1, 6, 0);
    // Pages set the caption's text again after sizing it, which lets it grow.
    label(L"", tagRECT{ 10, 50, 125, 70 }, 16, 0, 4, 0)->SetStaticText(L"Request Capacity:");
    label(L"12.34GB", tagRECT{ 160, 45, 370, 70 }, 22, 1, 4, 0);
    label(L"Devices Tips in red", tagRECT{ 10, 90, 360, 115 }, 16, 0, 0, 0xFF);
    label(L"Recordable  Space", tagRECT{ 10, 125, 200, 150 }, 16, 0, 2, 0x6B6B6B);
    CSFStatic* filled = label(L"On a background", tagRECT{ 10, 160, 200, 185 }, 14, 0, 5, 0xFFFFFF);
    filled->SetBgColor(0x00A08060, 1);
    CSFStatic* wrapped = label(L"A longer message that wraps over two lines in its box",
                               tagRECT{ 10, 200, 200, 240 }, 12, 0, 0x15, 0);
    wrapped->SetWordWrap(1);
    CSFStatic* grown = label(L"", tagRECT{ 10, 260, 40, 270 }, 16, 0, 0, 0x008000);
    grown->SetStaticText(L"grew to fit this text");

    // The skins loaded: closed combos show their normal slice.
    EXPECT_TRUE(closed->SliceSet(CSFQTComboBox::Normal));
    const QImage face = closed->grab().toImage();
    EXPECT_NE(face.pixelColor(4, face.height() / 2).alpha(), 0);

    open->showPopup();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(open->view()->window()));
    EXPECT_EQ(open->PaintedSlice(), CSFQTComboBox::PressedDown);
    QImage shot = host.grab().toImage();
    {
        QWidget* popup = open->view()->window();
        QPainter p(&shot);
        p.drawPixmap(host.mapFromGlobal(popup->mapToGlobal(QPoint(0, 0))), popup->grab());
    }
    const QByteArray path = qgetenv("TALLIX_INPUTS_SHOT");
    if (!path.isEmpty()) {
        EXPECT_TRUE(shot.save(QString::fromLocal8Bit(path), "PNG"));
    }
    open->hidePopup();

    for (CSFEditCtrl* e : edits)
        SFDestroyControl(e);
    for (CSFComboBox* c : combos)
        SFDestroyControl(c);
    for (CSFStatic* s : labels)
        SFDestroyControl(s);
    SFDestroyControl(spin);
    SFDestroyControl(left);
    SFDestroyControl(right);
}

} // namespace

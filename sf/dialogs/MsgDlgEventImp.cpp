#include "sf/dialogs/MsgDlgEventImp.h"

#include "language/LangString.h"
#include "platform/WinTypes.h"
#include "sf/DialogStyle.h"
#include "sf/SFButton.h"
#include "sf/SFDialog.h"
#include "sf/SFFactory.h"
#include "sf/SFRect.h"
#include "sf/SFStatic.h"
#include "sf/dialogs/SFReleaseControls.h"
#include "sf/dialogs/SFSkinRecords.h"

namespace {

constexpr int kOkId = 1;
constexpr int kCancelId = 2;
constexpr unsigned int kCloseButtonId = 2003;
constexpr unsigned int kEscapeKey = 27;
constexpr unsigned int kReturnKey = 13;
constexpr unsigned long kTextStyle = 0x10010000ul;
constexpr unsigned long kButtonStyle = 0x10000ul;
constexpr int kTitleHeight = 27;
constexpr int kMargin = 10;
constexpr int kTextInset = 20;
constexpr int kButtonGap = 20;
constexpr int kMinTextHeight = 50;
constexpr unsigned int kTextAlign = DT_CENTER | DT_VCENTER | DT_WORDBREAK | DT_EDITCONTROL;
constexpr unsigned int kPressedTextColor = 0xFFFFFF;

CSFButton* MakeTextButton(CMsgDlgEventImp* handler, const wchar_t* key, const tagRECT& rect,
                          unsigned int id)
{
    CSFButton* button = SFCreateButton(handler);
    if (!button)
        return nullptr;
    button->Create(GetLangString(key, 0), kButtonStyle, rect, handler->GetUIWnd(), id);
    ImageButtonStyle style = SFImageButtonStyle(L"btn_normal.png", L"btn_hover.png",
                                                L"btn_press.png", L"btn_disabled.png");
    button->SetSkin(&style);
    button->ShowWindow(0);
    return button;
}

void PlaceButton(CSFButton* button, CSFRect* rect)
{
    if (!button)
        return;
    button->MoveWindow(rect);
    button->ShowWindow(1);
}

} // namespace

SF_BEGIN_MSGMAP(CMsgDlgEventImp)
    SF_ON_COMMAND(kCloseButtonId, OnBtnClose)
SF_END_MSGMAP()

CMsgDlgEventImp::CMsgDlgEventImp(const wchar_t* text, const wchar_t* title, int btnMode,
                                 int reserved)
    : m_pDlg(nullptr), m_pText(nullptr), m_pBtnOK(nullptr), m_pBtnCancel(nullptr),
      m_pBtnClose(nullptr), m_strText(text ? text : L""), m_strTitle(title ? title : L""),
      m_nBtnMode(btnMode), m_nReserved(reserved)
{
}

CMsgDlgEventImp::~CMsgDlgEventImp()
{
}

void CMsgDlgEventImp::GetStyle(DialogStyle& style)
{
    // Short sides and a wider bottom, for a box that may be only 140 high.
    style = SFSmallDialogStyle();
    SFSetDialogSides(style, L"0,37,1,30", L"147,37,1,30");
    style.strBottom = L"10,130,30,10";
    style.strRoundCorner = L"4,5";
}

int CMsgDlgEventImp::Dlg_OnInitDialog(bool bCreateOnly)
{
    if (bCreateOnly)
        return 1;
    CSFRect rcDlg(0, 0, 300, 90);
    CSFRect rcBtn(0, 0, 72, 25);

    CSFRect rcText = rcDlg;
    rcText.top = kTitleHeight + kMargin;
    rcText.bottom -= rcBtn.Height() + kMargin;
    rcText.left += kTextInset;
    rcText.right -= kTextInset;

    m_pText = SFCreateStatic(nullptr);
    if (m_pText) {
        m_pText->SetTextAlignFlag(kTextAlign);
        m_pText->Create(m_strText.c_str(), kTextStyle, rcText, GetUIWnd(), 0);
        int w = 0;
        int h = 0;
        m_pText->GetTextSize(w, h);
        rcText.right = rcText.left + w;
        rcText.bottom = rcText.top + h;
        if (h < kMinTextHeight)
            rcText.bottom = rcText.top + kMinTextHeight;
        // Only the height follows the text: a long unbroken line runs past
        // the dialog's edge rather than widen it.
        m_pText->MoveWindow(&rcText);
    }

    m_pBtnOK = MakeTextButton(this, L"OK", rcBtn, kOkId);
    m_pBtnCancel = MakeTextButton(this, L"Cancel", rcBtn, kCancelId);

    rcBtn.MoveToY(rcText.bottom + kMargin);
    if (m_nBtnMode == 0) {
        rcBtn.MoveToX((rcDlg.Width() - rcBtn.Width()) / 2);
        PlaceButton(m_pBtnOK, &rcBtn);
    } else if (m_nBtnMode == 1) {
        rcBtn.MoveToX((rcDlg.Width() - rcBtn.Width() * 2 - kButtonGap) / 2);
        PlaceButton(m_pBtnOK, &rcBtn);
        rcBtn.OffsetRect(rcBtn.Width() + kButtonGap, 0);
        PlaceButton(m_pBtnCancel, &rcBtn);
    }
    rcDlg.bottom = rcBtn.bottom + kMargin;

    m_pBtnClose =
        SFCreateCloseButton(nullptr, tagRECT{ rcDlg.Width() - 22, 5, rcDlg.Width() - 5, 21 },
                            GetUIWnd(), kCloseButtonId);

    if (m_pDlg) {
        m_pDlg->MoveWindow(&rcDlg);
        m_pDlg->CenterWindow(nullptr);
    }
    return 1;
}

void CMsgDlgEventImp::Dlg_OnOK()
{
}

void CMsgDlgEventImp::Dlg_OnCancel()
{
}

void CMsgDlgEventImp::OnDlgSize(unsigned int, int&, int&)
{
}

void CMsgDlgEventImp::Dlg_Destroy()
{
    SFReleaseControls(m_pBtnOK, m_pBtnCancel, m_pBtnClose, m_pText);
}

void CMsgDlgEventImp::OnDlgKeyDown(unsigned int, unsigned int key)
{
    if (!m_pDlg)
        return;
    if (key == kEscapeKey)
        m_pDlg->MFCCancel();
    else if (key == kReturnKey)
        m_pDlg->MFCOK();
}

void CMsgDlgEventImp::BTN_OnLButtonDown(int id, unsigned int, tagPOINT)
{
    if (id == kOkId && m_pBtnOK)
        m_pBtnOK->SetTextColor(kPressedTextColor);
    else if (id == kCancelId && m_pBtnCancel)
        m_pBtnCancel->SetTextColor(kPressedTextColor);
}

void CMsgDlgEventImp::BTN_OnLButtonUp(int id, unsigned int, tagPOINT)
{
    if (id == kOkId && m_pBtnOK)
        m_pBtnOK->SetTextColor(0);
    else if (id == kCancelId && m_pBtnCancel)
        m_pBtnCancel->SetTextColor(0);
}

void CMsgDlgEventImp::OnBtnClose()
{
    if (m_pDlg)
        m_pDlg->MFCCancel();
}

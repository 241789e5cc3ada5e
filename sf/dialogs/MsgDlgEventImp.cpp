#include "sf/dialogs/MsgDlgEventImp.h"

#include "sf/DialogStyle.h"
#include "sf/ImageButtonStyle.h"
#include "language/LangString.h"
#include "sf/SFButton.h"
#include "sf/SFDialog.h"
#include "sf/SFFactory.h"
#include "sf/SFRect.h"
#include "sf/SFStatic.h"

SF_BEGIN_MSGMAP(CMsgDlgEventImp)
    SF_ON_COMMAND(2003, OnBtnClose)
SF_END_MSGMAP()

namespace {

constexpr int kTitleHeight = 27;
constexpr int kMargin = 10;
constexpr int kButtonGap = 20;
constexpr int kMinTextHeight = 50;
// DT_CENTER | DT_VCENTER | DT_WORDBREAK | DT_EDITCONTROL
constexpr unsigned int kTextAlign = 8213;

void SkinTextButton(CSFButton* button)
{
    ImageButtonStyle style;
    style.strNormal = L"btn_normal.png";
    style.strHover = L"btn_hover.png";
    style.strPressed = L"btn_press.png";
    style.strDisabled = L"btn_disabled.png";
    button->SetSkin(&style);
}

} // namespace

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
    style.strLeftTop = L"0,37,1,30";
    style.strLeft = L"0,37,1,30";
    style.strLeftBottom = L"0,37,1,30";
    style.strBottom = L"10,130,30,10";
    style.strRightBottom = L"147,37,1,30";
    style.strRight = L"147,37,1,30";
    style.strRightTop = L"147,37,1,30";
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
    rcText.left += 20;
    rcText.right -= 20;

    m_pText = SFCreateStatic(nullptr);
    if (m_pText) {
        m_pText->SetTextAlignFlag(kTextAlign);
        m_pText->Create(m_strText.c_str(), 0x10010000, rcText, GetUIWnd(), 0);
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

    m_pBtnOK = SFCreateButton(this);
    if (m_pBtnOK) {
        m_pBtnOK->Create(GetLangString(L"OK", 0), 0x10000, rcBtn, GetUIWnd(), 1);
        SkinTextButton(m_pBtnOK);
        m_pBtnOK->ShowWindow(0);
    }
    m_pBtnCancel = SFCreateButton(this);
    if (m_pBtnCancel) {
        m_pBtnCancel->Create(GetLangString(L"Cancel", 0), 0x10000, rcBtn, GetUIWnd(), 2);
        SkinTextButton(m_pBtnCancel);
        m_pBtnCancel->ShowWindow(0);
    }

    rcBtn.MoveToY(rcText.bottom + kMargin);
    if (m_nBtnMode == 0) {
        rcBtn.MoveToX((rcDlg.Width() - rcBtn.Width()) / 2);
        if (m_pBtnOK) {
            m_pBtnOK->MoveWindow(&rcBtn);
            m_pBtnOK->ShowWindow(1);
        }
    } else if (m_nBtnMode == 1) {
        rcBtn.MoveToX((rcDlg.Width() - rcBtn.Width() * 2 - kButtonGap) / 2);
        if (m_pBtnOK) {
            m_pBtnOK->MoveWindow(&rcBtn);
            m_pBtnOK->ShowWindow(1);
        }
        rcBtn.OffsetRect(rcBtn.Width() + kButtonGap, 0);
        if (m_pBtnCancel) {
            m_pBtnCancel->MoveWindow(&rcBtn);
            m_pBtnCancel->ShowWindow(1);
        }
    }
    rcDlg.bottom = rcBtn.bottom + kMargin;

    m_pBtnClose = SFCreateButton(nullptr);
    if (m_pBtnClose) {
        const tagRECT rcClose{ rcDlg.Width() - 22, 5, rcDlg.Width() - 5, 21 };
        m_pBtnClose->Create(L"", 0x10000000, rcClose, GetUIWnd(), 2003);
        ImageButtonStyle style;
        style.strNormal = L"close-normal.png";
        style.strHover = L"close-hover.png";
        style.strPressed = L"close-pressed.png";
        style.strDisabled = L"close-disabled.png";
        m_pBtnClose->SetSkin(&style);
        m_pBtnClose->SetToolTipText(GetLangString(L"Close", 0));
    }

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
    SFDestroyControl(m_pBtnOK);
    m_pBtnOK = nullptr;
    SFDestroyControl(m_pBtnCancel);
    m_pBtnCancel = nullptr;
    SFDestroyControl(m_pBtnClose);
    m_pBtnClose = nullptr;
    SFDestroyControl(m_pText);
    m_pText = nullptr;
}

void CMsgDlgEventImp::OnDlgKeyDown(unsigned int, unsigned int key)
{
    if (!m_pDlg)
        return;
    if (key == 27)
        m_pDlg->MFCCancel();
    else if (key == 13)
        m_pDlg->MFCOK();
}

void CMsgDlgEventImp::BTN_OnLButtonDown(int id, unsigned int, tagPOINT)
{
    if (id == 1 && m_pBtnOK)
        m_pBtnOK->SetTextColor(0xFFFFFF);
    else if (id == 2 && m_pBtnCancel)
        m_pBtnCancel->SetTextColor(0xFFFFFF);
}

void CMsgDlgEventImp::BTN_OnLButtonUp(int id, unsigned int, tagPOINT)
{
    if (id == 1 && m_pBtnOK)
        m_pBtnOK->SetTextColor(0);
    else if (id == 2 && m_pBtnCancel)
        m_pBtnCancel->SetTextColor(0);
}

void CMsgDlgEventImp::OnBtnClose()
{
    if (m_pDlg)
        m_pDlg->MFCCancel();
}

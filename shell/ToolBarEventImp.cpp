#include "shell/ToolBarEventImp.h"

#include "shell/AboutDlgEventImp.h"
#include "sf/DialogStyle.h"
#include "sf/ImageButtonStyle.h"
#include "language/LangString.h"
#include "shell/MainDlgEventImp.h"
#include "sf/qt/SFApplication.h"
#include "sf/SFButton.h"
#include "sf/SFDialog.h"
#include "sf/SFFactory.h"
#include "sf/SFPictureCtrl.h"
#include "sf/qt/SFQtConvert.h"

#include <string>

SF_BEGIN_MSGMAP(CToolBarEventImp)
    SF_ON_COMMAND(2001, OnBtnMin)
    SF_ON_COMMAND(2003, OnBtnClose)
    SF_ON_COMMAND(2025, OnBtnAbout)
SF_END_MSGMAP()

namespace {

struct ToolButton {
    CSFButton* CToolBarEventImp::*slot;
    unsigned int id;
    tagRECT rect;
    const wchar_t* images[4];
    const wchar_t* tooltipKey;
    bool tooltipEnable;
};

// In order of creation, left to right; each button starts 3 pixels after the
// one before it.
const ToolButton kToolButtons[] = {
    { &CToolBarEventImp::m_pBtnAbout, 2025, { 1012, 8, 1036, 32 },
      { L"about-normal.png", L"about-hover.png", L"about-pressed.png", L"about-disabled.png" },
      L"About", false },
    { &CToolBarEventImp::m_pBtnMin, 2001, { 1039, 8, 1066, 32 },
      { L"min-normal.png", L"min-hover.png", L"min-pressed.png", L"min-disabled.png" },
      L"Min", true },
    { &CToolBarEventImp::m_pBtnClose, 2003, { 1069, 8, 1096, 32 },
      { L"close-normal.png", L"close-hover.png", L"close-pressed.png", L"close-disabled.png" },
      L"Close", false },
};

} // namespace

CToolBarEventImp::CToolBarEventImp(CMainDlgEventImp* pMain)
    : m_pLogo(nullptr), m_pMain(pMain), m_pBtnClose(nullptr), m_pBtnMin(nullptr),
      m_pBtnAbout(nullptr)
{
}

CToolBarEventImp::~CToolBarEventImp()
{
}

int CToolBarEventImp::OnCreate()
{
    m_pLogo = SFCreatePictureCtrl(nullptr);
    if (m_pLogo) {
        m_pLogo->SetImage(L"Tallix_LOGO.png");
        const tagRECT rcLogo{ 20, 0, 320, 59 };
        m_pLogo->Create(L"", 0x50000000, rcLogo, GetUIWnd(), static_cast<unsigned int>(-1));
    }
    // Clicks reach OnBtn... through the view's map, not a button handler.
    for (const ToolButton& b : kToolButtons) {
        CSFButton* button = SFCreateButton(nullptr);
        this->*b.slot = button;
        if (!button)
            continue;
        button->Create(L"", 0x10000000, b.rect, GetUIWnd(), b.id);
        ImageButtonStyle style;
        style.strNormal = b.images[0];
        style.strHover = b.images[1];
        style.strPressed = b.images[2];
        style.strDisabled = b.images[3];
        button->SetSkin(&style);
        if (b.tooltipEnable)
            button->SetTooltipEnable(1);
        button->SetToolTipText(GetLangString(b.tooltipKey, 0));
    }
    return 1;
}

void CToolBarEventImp::OnDestroy()
{
    SFDestroyControl(m_pBtnMin);
    m_pBtnMin = nullptr;
    SFDestroyControl(m_pBtnClose);
    m_pBtnClose = nullptr;
    SFDestroyControl(m_pBtnAbout);
    m_pBtnAbout = nullptr;
}

void CToolBarEventImp::OnBtnMin()
{
    if (CSFDialog* dlg = m_pMain ? m_pMain->GetMainDlg() : nullptr)
        dlg->MacShowMinimize(true);
}

void CToolBarEventImp::OnBtnClose()
{
    CSFDialog* dlg = m_pMain ? m_pMain->GetMainDlg() : nullptr;
    if (!dlg)
        return;
    // Hidden first: however long the shutdown takes, no window is left on screen.
    dlg->ShowWindow(0);
    dlg->SendDlgMessage(16, 0, 0);
}

void CToolBarEventImp::OnBtnAbout()
{
    DialogStyle style;
    SFGetAppPath();
    const std::wstring strAbout = L"About";
    const std::wstring strVersion = L"ProductVer";
    const std::wstring strCopyright = L"CopyrightString";
    const std::wstring strWebSite = L"WebSite";
    // Four lookups: the dictionary's five result buffers keep all of them alive.
    CAboutDlgEventImp* handler = new CAboutDlgEventImp(
        GetLangString(strAbout.c_str(), 0), L"AboutPic.png", GetLangString(strVersion.c_str(), 0),
        GetLangString(strCopyright.c_str(), 0), GetLangString(strWebSite.c_str(), 0));
    handler->GetStyle(style);
    CSFDialog* dlg =
        SFCreateDialog(handler, SFWidgetFromHandle(m_pMain ? m_pMain->GetUIWnd() : nullptr), 0);
    handler->SetDlg(dlg);
    if (dlg) {
        dlg->SetSkin(&style);
        dlg->Create(L"", nullptr);
        dlg->SetDrawBackGround(1);
        dlg->DoModalDlg();
        SFDestroyControl(dlg);
    }
    delete handler;
}

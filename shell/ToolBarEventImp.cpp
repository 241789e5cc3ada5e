#include "shell/ToolBarEventImp.h"

#include "language/LangString.h"
#include "sf/DialogStyle.h"
#include "sf/SFButton.h"
#include "sf/SFControlTypes.h"
#include "sf/SFDialog.h"
#include "sf/SFFactory.h"
#include "sf/SFPictureCtrl.h"
#include "sf/dialogs/SFReleaseControls.h"
#include "sf/dialogs/SFSkinRecords.h"
#include "sf/qt/SFApplication.h"
#include "sf/qt/SFQtConvert.h"
#include "shell/AboutDlgEventImp.h"
#include "shell/MainDlgEventImp.h"

#include <string>

namespace {

constexpr unsigned long kLogoStyle = 0x50000000ul;
constexpr unsigned int kNoId = static_cast<unsigned int>(-1);
constexpr unsigned int kCloseMessage = 16;

struct ToolButton {
    unsigned int id;
    tagRECT rect;
    const wchar_t* images[4];
    const wchar_t* tooltipKey;
    bool tooltipEnable;
};

// In order of creation, left to right; each button starts 3 pixels after the
// one before it.
const ToolButton kToolButtons[] = {
    { CToolBarEventImp::IdAbout,
      { 1012, 8, 1036, 32 },
      { L"about-normal.png", L"about-hover.png", L"about-pressed.png", L"about-disabled.png" },
      L"About",
      false },
    { CToolBarEventImp::IdMin,
      { 1039, 8, 1066, 32 },
      { L"min-normal.png", L"min-hover.png", L"min-pressed.png", L"min-disabled.png" },
      L"Min",
      true },
    { CToolBarEventImp::IdClose,
      { 1069, 8, 1096, 32 },
      { L"close-normal.png", L"close-hover.png", L"close-pressed.png", L"close-disabled.png" },
      L"Close",
      false },
};

} // namespace

SF_BEGIN_MSGMAP(CToolBarEventImp)
    SF_ON_COMMAND(IdMin, OnBtnMin)
    SF_ON_COMMAND(IdClose, OnBtnClose)
    SF_ON_COMMAND(IdAbout, OnBtnAbout)
SF_END_MSGMAP()

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
        m_pLogo->Create(L"", kLogoStyle, rcLogo, GetUIWnd(), kNoId);
    }
    // Clicks reach OnBtn... through the view's map, not a button handler.
    // In the order of kToolButtons.
    CSFButton** const targets[] = { &m_pBtnAbout, &m_pBtnMin, &m_pBtnClose };
    int made = 0;
    for (const ToolButton& b : kToolButtons) {
        CSFButton* button = SFCreateButton(nullptr);
        *targets[made++] = button;
        if (!button)
            continue;
        button->Create(L"", SF_WS_VISIBLE, b.rect, GetUIWnd(), b.id);
        ImageButtonStyle style =
            SFImageButtonStyle(b.images[0], b.images[1], b.images[2], b.images[3]);
        button->SetSkin(&style);
        if (b.tooltipEnable)
            button->SetTooltipEnable(1);
        button->SetToolTipText(GetLangString(b.tooltipKey, 0));
    }
    return 1;
}

void CToolBarEventImp::OnDestroy()
{
    SFReleaseControls(m_pBtnMin, m_pBtnClose, m_pBtnAbout);
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
    dlg->SendDlgMessage(kCloseMessage, 0, 0);
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
    CAboutDlgEventImp* handler =
        new CAboutDlgEventImp(GetLangString(strAbout.c_str(), 0), L"AboutPic.png",
                              GetLangString(strVersion.c_str(), 0),
                              GetLangString(strCopyright.c_str(), 0),
                              GetLangString(strWebSite.c_str(), 0));
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

#include "shell/MainDlgEventImp.h"

#include "sf/DialogStyle.h"
#include "sf/SFControlTypes.h"
#include "sf/SFFactory.h"
#include "sf/SFView.h"
#include "sf/dialogs/SFSkinRecords.h"
#include "shell/ToolBarEventImp.h"
#include "streams/TallixEventImp.h"

namespace {

constexpr unsigned int kPageViewId = 102;
constexpr unsigned int kWhite = 0xFFFFFFFF;

} // namespace

SF_BEGIN_MSGMAP(CMainDlgEventImp)
SF_END_MSGMAP()

CMainDlgEventImp::CMainDlgEventImp()
    : m_pDlg(nullptr), m_pToolBarView(nullptr), m_pToolBarEvent(new CToolBarEventImp(this)),
      m_pPageView(nullptr), m_pPageEvent(new CTallixEventImp(this))
{
}

CMainDlgEventImp::~CMainDlgEventImp()
{
    delete m_pToolBarEvent;
    m_pToolBarEvent = nullptr;
    delete m_pPageEvent;
    m_pPageEvent = nullptr;
}

void CMainDlgEventImp::GetMainDlgStyle(DialogStyle& style)
{
    style = DialogStyle();
    style.strFrameImage = L"FrameMain.png";
    style.strBackgroundImage = L"bgColorMain.png";
    style.strBackgroundMode = L"tile";
    style.strBackgroundColor = L"000000";
    style.strTopLeft = L"0,0,10,1";
    style.strTopLeftMode = L"tile";
    style.strTop = L"30,0,1,1";
    style.strTopMode = L"stretch";
    style.strTopRight = L"138,0,10,1";
    SFSetDialogSides(style, L"0,65,1,1", L"147,65,1,1");
    style.strBottomLeft = L"0,139,10,1";
    style.strBottom = L"10,139,30,1";
    style.strBottomRight = L"138,139,10,1";
    style.strTitleFont = L"Tahoma";
    style.strTitleFontSize = L"11";
    style.strTitleColor = L"333333";
    style.strTitleColorInactive = L"999999";
    style.strTitleAlign = L"left";
    style.strTitleRect = L"0,0,1100,60";
    style.nResizable = 0;
    style.strWindowSize = L"1100,750";
}

int CMainDlgEventImp::Dlg_OnInitDialog(bool)
{
    m_pToolBarView = SFCreateView(m_pToolBarEvent);
    if (m_pToolBarView) {
        m_pToolBarView->SetBackground(L"bg_toolbar.png");
        const tagRECT rcToolBar{ 0, 0, 1100, 60 };
        m_pToolBarView->Create(L"", L"", SF_WS_VISIBLE, rcToolBar, GetUIWnd(), 0);
    }
    m_pPageView = SFCreateView(m_pPageEvent);
    if (m_pPageView) {
        const tagRECT rcPage{ 0, 61, 1100, 750 };
        m_pPageView->Create(L"", L"", 0, rcPage, GetUIWnd(), kPageViewId);
        m_pPageView->SetBGClr(kWhite);
        m_pPageView->ShowWindow(1);
    }
    return 1;
}

void CMainDlgEventImp::Dlg_Destroy()
{
    // The views themselves go down with the window, as its Qt children.
    SFDestroyView(m_pToolBarView);
    SFDestroyView(m_pPageView);
    m_pToolBarView = nullptr;
    m_pPageView = nullptr;
}

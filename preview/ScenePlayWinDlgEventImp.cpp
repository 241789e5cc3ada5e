#include "preview/ScenePlayWinDlgEventImp.h"

#include "sf/DialogStyle.h"
#include "sf/ImageButtonStyle.h"
#include "sf/ImageVideoWindowStyle.h"
#include "language/LangString.h"
#include "preview/PlayManagerUILogic.h"
#include "sf/qt/SFApplication.h"
#include "sf/SFButton.h"
#include "sf/SFDialog.h"
#include "sf/SFFactory.h"
#include "sf/SFVideoWindow.h"
#include "sf/SFVideoWindowFactory.h"

namespace {

struct SceneEntry {
    const wchar_t* titleKey;
    const wchar_t* clip;
};

const SceneEntry kScenes[] = {
    { L"Scene 1", L"/1low.kvf" },
    { L"Scene 2", L"/1medium.kvf" },
    { L"Scene 3", L"/1high.kvf" },
};

const SceneEntry* FindScene(int scene)
{
    if (scene < 1 || scene > 3)
        return nullptr;
    return &kScenes[scene - 1];
}

void FillVideoWindowStyle(ImageVideoWindowStyle& s)
{
    s.strNoVideo = L"NoVideo.png";
    s.strCloseNormal = L"btn_videoclose.png";
    s.strCloseHover = L"btn_videoclose.png";
    s.strCloseDown = L"btn_videoclosedown.png";
    s.strSnapNormal = L"btn_videosnap.png";
    s.strSnapHover = L"btn_videosnap.png";
    s.strSnapDown = L"btn_videosnapdown.png";
    s.strPropertyNormal = L"btn_propertynor.png";
    s.strPropertyDown = L"btn_propertydown.png";
    s.strPropertyHover = L"btn_propertynor.png";
    s.strDragOn = L"btn_dragcheck.png";
    s.strDragOff = L"btn_draguncheck.png";
    s.strButtonSize = L"20,20";
    s.strTitleHeight = L"22";
    s.strBackColor = L"000000";
    s.strFocusColor = L"fa0000";
    s.strTitleColor = L"586f1b";
    s.strDropColor = L"00fa00";
    s.strRecordColor = L"dec700";
    s.strFrameWidth = L"2";
    s.strFocusFrameWidth = L"2";
}

} // namespace

SF_BEGIN_MSGMAP(CScenePlayWinDlgEventImp)
    SF_ON_COMMAND(2, OnBtnClose)
SF_END_MSGMAP()

CScenePlayWinDlgEventImp::CScenePlayWinDlgEventImp()
    : m_pDlg(nullptr), m_pVideoWindow(nullptr), m_pPlayManager(new CPlayManagerUILogic),
      m_pBtnClose(nullptr), m_nScene(0)
{
}

CScenePlayWinDlgEventImp::~CScenePlayWinDlgEventImp()
{
    delete m_pPlayManager;
    m_pPlayManager = nullptr;
}

const wchar_t* CScenePlayWinDlgEventImp::SceneTitleKey(int scene)
{
    const SceneEntry* entry = FindScene(scene);
    return entry ? entry->titleKey : nullptr;
}

const wchar_t* CScenePlayWinDlgEventImp::SceneClip(int scene)
{
    const SceneEntry* entry = FindScene(scene);
    return entry ? entry->clip : nullptr;
}

void CScenePlayWinDlgEventImp::GetStyle(DialogStyle& s)
{
    s = SFSmallDialogStyle();
    s.strFrameImage = L"background.png";
}

void CScenePlayWinDlgEventImp::SetDlg(CSFDialog* dlg)
{
    m_pDlg = dlg;
}

void CScenePlayWinDlgEventImp::SetScene(int scene)
{
    m_nScene = scene;
}

int CScenePlayWinDlgEventImp::Dlg_OnInitDialog(bool bCreateOnly)
{
    if (bCreateOnly)
        return 1;

    tagRECT rcDlg = { 0, 0, 450, 460 };
    const int width = rcDlg.right - rcDlg.left;

    m_pBtnClose = SFCreateButton(this);
    if (m_pBtnClose) {
        const tagRECT rcClose = { width - 22, 2, width + 2, 26 };
        m_pBtnClose->Create(L"", 0x10000000, rcClose, GetUIWnd(), 2);
        ImageButtonStyle closeStyle;
        closeStyle.strNormal = L"close-normal.png";
        closeStyle.strHover = L"close-hover.png";
        closeStyle.strPressed = L"close-pressed.png";
        closeStyle.strDisabled = L"close-disabled.png";
        m_pBtnClose->SetSkin(&closeStyle);
        m_pBtnClose->SetToolTipText(GetLangString(L"Close", 0));
    }

    ImageVideoWindowStyle videoStyle;
    FillVideoWindowStyle(videoStyle);
    m_pVideoWindow = SFCreateVideoWindow(nullptr, this, 1, 1);
    void* hWnd = nullptr;
    if (m_pVideoWindow) {
        m_pVideoWindow->SetSkin(&videoStyle);
        tagRECT rcVideo = rcDlg;
        rcVideo.top = 30;
        m_pVideoWindow->Create(L"VideoWindow", rcVideo, m_pDlg ? m_pDlg->GetUIWnd() : nullptr, 145);
        m_pVideoWindow->EableSubWinExchange(0);
        m_pVideoWindow->SetSubWinCtrlsVisible(0);
        m_pVideoWindow->SetDefaultLayout(DEFAULT_LAYOUT_1);
        m_pVideoWindow->EableSubWinExchange(0);
        m_pVideoWindow->SetFrameZoomMode(1);
        hWnd = m_pVideoWindow->GetCurrentWinHandle();
    }

    const wchar_t* clip = SceneClip(m_nScene);
    if (clip && m_pPlayManager)
        m_pPlayManager->PlayFile(SFGetAppPath() + clip, hWnd);

    if (m_pDlg) {
        m_pDlg->MoveWindow(&rcDlg);
        m_pDlg->CenterWindow(nullptr);
    }
    return 1;
}

void CScenePlayWinDlgEventImp::OnBtnClose()
{
    if (m_pPlayManager)
        m_pPlayManager->Stop();
}

void CScenePlayWinDlgEventImp::Dlg_OnCancel()
{
    if (m_pPlayManager)
        m_pPlayManager->Stop();
}

void CScenePlayWinDlgEventImp::OnDlgKeyDown(unsigned int, unsigned int key)
{
    if (key == 27 && m_pDlg)
        m_pDlg->MFCCancel();
}

void CScenePlayWinDlgEventImp::Dlg_Destroy()
{
    if (m_pPlayManager)
        m_pPlayManager->Stop();
    SFDestroyControl(m_pBtnClose);
    m_pDlg = nullptr;
    m_pBtnClose = nullptr;
    // It goes down with the window right after this.
    m_pVideoWindow = nullptr;
}

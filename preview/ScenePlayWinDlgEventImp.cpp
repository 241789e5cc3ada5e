#include "preview/ScenePlayWinDlgEventImp.h"

#include "language/LangString.h"
#include "preview/PlayManagerUILogic.h"
#include "sf/DialogStyle.h"
#include "sf/ImageVideoWindowStyle.h"
#include "sf/SFButton.h"
#include "sf/SFDialog.h"
#include "sf/SFFactory.h"
#include "sf/SFVideoWindow.h"
#include "sf/SFVideoWindowFactory.h"
#include "sf/dialogs/SFSkinRecords.h"
#include "sf/qt/SFApplication.h"

namespace {

struct SceneEntry {
    const wchar_t* titleKey;
    const wchar_t* clip;
};

constexpr unsigned int kCloseButtonId = 2;
constexpr unsigned int kVideoWindowId = 145;
constexpr unsigned int kEscapeKey = 27;
constexpr int kVideoTop = 30;

const SceneEntry kScenes[] = {
    { L"Scene 1", L"/1low.kvf" },
    { L"Scene 2", L"/1medium.kvf" },
    { L"Scene 3", L"/1high.kvf" },
};

const SceneEntry* FindScene(int scene)
{
    if (scene < 1 || scene > static_cast<int>(sizeof(kScenes) / sizeof(kScenes[0])))
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
    SF_ON_COMMAND(kCloseButtonId, OnBtnClose)
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

    m_pBtnClose = SFCreateCloseButton(this, tagRECT{ width - 22, 2, width + 2, 26 }, GetUIWnd(),
                                      kCloseButtonId);

    ImageVideoWindowStyle videoStyle;
    FillVideoWindowStyle(videoStyle);
    m_pVideoWindow = SFCreateVideoWindow(nullptr, this, 1, 1);
    void* hWnd = nullptr;
    if (m_pVideoWindow) {
        m_pVideoWindow->SetSkin(&videoStyle);
        tagRECT rcVideo = rcDlg;
        rcVideo.top = kVideoTop;
        m_pVideoWindow->Create(L"VideoWindow", rcVideo, m_pDlg ? m_pDlg->GetUIWnd() : nullptr,
                               kVideoWindowId);
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
    if (key == kEscapeKey && m_pDlg)
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

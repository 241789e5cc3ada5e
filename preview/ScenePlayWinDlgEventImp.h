#pragma once
// The modal preview of one scene's sample clip, looping in a video window.

#include "sf/ISFButtonEvent.h"
#include "sf/ISFDialogEvent.h"
#include "sf/ISFVideoWindowEvent.h"

#include <string>

struct DialogStyle;
class CPlayManagerUILogic;
class CSFButton;
class CSFDialog;
class CSFVideoWindow;

class CScenePlayWinDlgEventImp : public ISFDialogEvent,
                                 public ISFButtonEvent,
                                 public ISFVideoWindowEvent {
    SF_DECLARE_MSGMAP()
public:
    CScenePlayWinDlgEventImp();
    ~CScenePlayWinDlgEventImp() override;
    CScenePlayWinDlgEventImp(const CScenePlayWinDlgEventImp&) = delete;
    CScenePlayWinDlgEventImp& operator=(const CScenePlayWinDlgEventImp&) = delete;

    void GetStyle(DialogStyle& style);
    void SetDlg(CSFDialog* dlg);
    void SetScene(int scene);

    int Dlg_OnInitDialog(bool bCreateOnly) override;
    // However the window closes, nothing may play on into a handler that
    // is about to go.
    void Dlg_OnCancel() override;
    void Dlg_Destroy() override;
    // Escape closes the preview, as it does the message dialog.
    void OnDlgKeyDown(unsigned int modifiers, unsigned int key) override;

    void OnBtnClose();

    // The scene table: the title key and the clip relative to the
    // application directory; null for a scene outside 1 to 3.
    static const wchar_t* SceneTitleKey(int scene);
    static const wchar_t* SceneClip(int scene);

    CPlayManagerUILogic* GetPlayManager() const { return m_pPlayManager; }
    CSFVideoWindow* GetVideoWindow() const { return m_pVideoWindow; }

private:
    CSFDialog* m_pDlg;
    CSFVideoWindow* m_pVideoWindow;
    CPlayManagerUILogic* m_pPlayManager;
    std::wstring m_strReserved;
    CSFButton* m_pBtnClose;
    int m_nScene;
};

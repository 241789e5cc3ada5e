#pragma once
// The About dialog: banner picture, version and copyright lines, close button.

#include "sf/ISFButtonEvent.h"
#include "sf/ISFDialogEvent.h"
#include "sf/SFFwd.h"

#include <string>

struct DialogStyle;

class CAboutDlgEventImp : public ISFDialogEvent, public ISFButtonEvent {
    SF_DECLARE_MSGMAP()
public:
    // The web site text is taken and not kept: no control shows it.
    CAboutDlgEventImp(const wchar_t* title, const wchar_t* picture, const wchar_t* version,
                      const wchar_t* copyright, const wchar_t* webSite);
    CAboutDlgEventImp(const CAboutDlgEventImp&) = delete;
    CAboutDlgEventImp& operator=(const CAboutDlgEventImp&) = delete;
    ~CAboutDlgEventImp() override;

    void GetStyle(DialogStyle& style);
    void SetDlg(CSFDialog* dlg) { m_pDlg = dlg; }

    int Dlg_OnInitDialog(bool bCreateOnly) override;
    void Dlg_Destroy() override;

    // Only for control id 1000, the web site link, which is never created.
    void BTN_OnLButtonDown(int id, unsigned int flags, tagPOINT pt) override;
    void BTN_OnLButtonUp(int id, unsigned int flags, tagPOINT pt) override;
    void BTN_OnMouseMove(int id, unsigned int flags, tagPOINT pt) override;
    void BTN_OnMouseLeave(int id, unsigned int flags, long data) override;
    void OnWebSite();

private:
    // The link's text colour follows the mouse.
    void TintWebSite(int id, unsigned int color);

    CSFDialog* m_pDlg;
    CSFPictureCtrl* m_pPicture;
    CSFStatic* m_pVersion;
    CSFStatic* m_pCopyright;
    CSFButton* m_pWebSite;
    CSFButton* m_pBtnClose;
    std::wstring m_strVersion;
    std::wstring m_strCopyright;
    std::wstring m_strTitle;
    std::wstring m_strPicture;
};

#pragma once
// Handler of the main window: the toolbar view on top, the channel list page
// below it, both made once and kept for the life of the window.

#include "sf/ISFButtonEvent.h"
#include "sf/ISFDialogEvent.h"

struct DialogStyle;
class CSFDialog;
class CSFView;
class CTallixEventImp;
class CToolBarEventImp;

class CMainDlgEventImp : public ISFDialogEvent, public ISFButtonEvent {
    SF_DECLARE_MSGMAP()
public:
    CMainDlgEventImp();
    CMainDlgEventImp(const CMainDlgEventImp&) = delete;
    CMainDlgEventImp& operator=(const CMainDlgEventImp&) = delete;
    ~CMainDlgEventImp() override;

    // The main window's skin record.
    void GetMainDlgStyle(DialogStyle& style);
    void SetMainDlg(CSFDialog* dlg) { m_pDlg = dlg; }
    CSFDialog* GetMainDlg() const { return m_pDlg; }

    // The main window calls this once, from Create, with bCreateOnly true.
    int Dlg_OnInitDialog(bool bCreateOnly) override;
    void Dlg_Destroy() override;

    // The channel list page below the toolbar.
    CTallixEventImp* GetPageEvent() const { return m_pPageEvent; }

private:
    CSFDialog* m_pDlg;
    CSFView* m_pToolBarView;
    CToolBarEventImp* m_pToolBarEvent;
    CSFView* m_pPageView;
    CTallixEventImp* m_pPageEvent;
};

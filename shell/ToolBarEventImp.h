#pragma once
// Handler of the toolbar view: the logo and the About, minimise and close
// buttons that stand in for a title bar.

#include "sf/ISFButtonEvent.h"
#include "sf/ISFRadioBoxEvent.h"
#include "sf/ISFViewEvent.h"

class CMainDlgEventImp;
class CSFButton;
class CSFPictureCtrl;

class CToolBarEventImp : public ISFViewEvent, public ISFButtonEvent, public ISFRadioBoxEvent {
    SF_DECLARE_MSGMAP()
public:
    // Control ids of the buttons, left to right: About, minimise, close.
    enum : unsigned int { IdAbout = 2025, IdMin = 2001, IdClose = 2003 };

    explicit CToolBarEventImp(CMainDlgEventImp* pMain);
    CToolBarEventImp(const CToolBarEventImp&) = delete;
    CToolBarEventImp& operator=(const CToolBarEventImp&) = delete;
    ~CToolBarEventImp() override;

    int OnCreate() override;
    void OnDestroy() override;

    void OnBtnMin();
    void OnBtnClose();
    void OnBtnAbout();

private:
    CSFPictureCtrl* m_pLogo;
    CMainDlgEventImp* m_pMain;
    CSFButton* m_pBtnClose;
    CSFButton* m_pBtnMin;
    CSFButton* m_pBtnAbout;
};

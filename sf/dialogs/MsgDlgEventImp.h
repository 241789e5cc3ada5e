#pragma once
// The message dialog: a wrapped text over OK, or OK and Cancel. Its height
// follows the text; its width is fixed.

#include "sf/ISFButtonEvent.h"
#include "sf/ISFDialogEvent.h"
#include "sf/SFFwd.h"

#include <string>

struct DialogStyle;

class CMsgDlgEventImp : public ISFDialogEvent, public ISFButtonEvent {
    SF_DECLARE_MSGMAP()
public:
    // btnMode 0: OK only; 1: OK and Cancel; anything else: no button.
    CMsgDlgEventImp(const wchar_t* text, const wchar_t* title, int btnMode, int reserved);
    CMsgDlgEventImp(const CMsgDlgEventImp&) = delete;
    CMsgDlgEventImp& operator=(const CMsgDlgEventImp&) = delete;
    ~CMsgDlgEventImp() override;

    void GetStyle(DialogStyle& style);
    void SetDlg(CSFDialog* dlg) { m_pDlg = dlg; }

    int Dlg_OnInitDialog(bool bCreateOnly) override;
    void Dlg_OnOK() override;
    void Dlg_OnCancel() override;
    void OnDlgSize(unsigned int type, int& cx, int& cy) override;
    void Dlg_Destroy() override;
    void OnDlgKeyDown(unsigned int modifiers, unsigned int key) override;

    void BTN_OnLButtonDown(int id, unsigned int flags, tagPOINT pt) override;
    void BTN_OnLButtonUp(int id, unsigned int flags, tagPOINT pt) override;

    void OnBtnClose();

private:
    CSFDialog* m_pDlg;
    CSFStatic* m_pText;
    CSFButton* m_pBtnOK;
    CSFButton* m_pBtnCancel;
    CSFButton* m_pBtnClose;
    std::wstring m_strText;
    std::wstring m_strTitle;
    int m_nBtnMode;
    // Kept as the caller passes it; nothing reads it.
    [[maybe_unused]] int m_nReserved;
};

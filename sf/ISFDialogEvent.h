#pragma once
// Events of a skinned window, for the handler that owns the window.

#include "sf/SFEventBase.h"

class ISFDialogEvent : public CSFEventBase {
public:
    ISFDialogEvent() : m_pUIWnd(nullptr) {}
    ~ISFDialogEvent() override {}

    virtual int Dlg_OnInitDialog(bool bCreateOnly) = 0;
    virtual void Dlg_OnOK() {}
    virtual void Dlg_OnCancel() {}
    virtual void OnDlgSize(unsigned int /*type*/, int& /*cx*/, int& /*cy*/) {}
    // 1 keeps the window open.
    virtual int Dlg_Close() { return 0; }
    virtual void Dlg_Destroy() {}
    virtual void OnDlgNcActivate(int /*active*/) {}
    virtual void OnDlgFileDrop(const wchar_t* /*path*/) {}
    virtual void OnDlgMouseLeave() {}
    virtual void OnDlgMouseHover() {}
    virtual void OnDlgShowWindow(int /*show*/, unsigned int /*status*/) {}
    virtual void OnDlgTimer(unsigned int /*timerId*/) {}
    virtual void OnDlgKeyDown(unsigned int /*modifiers*/, unsigned int /*isKey*/) {}
    virtual void OnDlgKeyUp(unsigned int /*modifiers*/, unsigned int /*isKey*/) {}
    virtual void OnMsgScreenLock(int /*locked*/) {}
    virtual void OnMacMenu(unsigned int /*menuId*/) {}

    // The parent to give every control of this window.
    void* GetUIWnd() const { return m_pUIWnd; }

    void* m_pUIWnd;
};

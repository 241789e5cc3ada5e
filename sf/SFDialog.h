#pragma once
// Abstract skinned window; CSFQTDialog and CSFQTMainWindow realise it.

#include "platform/WinTypes.h"
#include "sf/DialogStyle.h"
#include "sf/ISFDialogEvent.h"

class CSFDialog {
public:
    explicit CSFDialog(ISFDialogEvent* handler = nullptr);
    CSFDialog(const CSFDialog&) = default;
    CSFDialog& operator=(const CSFDialog&) = default;
    virtual ~CSFDialog() {}

    virtual int* GetThisMessageIDs();
    virtual int CreateDlg(void* /*parent*/) { return 0; }
    // 1 for OK, 2 for Cancel.
    virtual int DoModalDlg() { return 0; }
    virtual int Create(const wchar_t* /*title*/, void* /*parent*/) { return 0; }
    virtual void ShowWindow(int /*show*/) {}
    virtual void MoveWindow(tagRECT* /*rect*/) {}
    virtual void MoveWindow(int /*x*/, int /*y*/, int /*w*/, int /*h*/) {}
    virtual void MFCOK() {}
    virtual void MFCCancel() {}
    virtual void CenterWindow(void** /*reserved*/) {}
    virtual void SetSkin(DialogStyle* /*style*/) {}
    virtual void Screen2Client(tagPOINT* /*pt*/) {}
    virtual void Screen2Client(tagRECT* /*rect*/) {}
    virtual void GetDlgClientRect(tagRECT* /*rect*/) {}
    virtual void GetDlgWindowRect(tagRECT* /*rect*/) {}
    virtual void SendDlgMessage(unsigned int /*msg*/, unsigned int /*wParam*/, long /*lParam*/) {}
    virtual int IsDlgZoomed() { return 0; }
    virtual void SetDrawBackGround(int /*draw*/) {}
    virtual int DlgIsWindow() { return 0; }
    virtual int SetDlgWindowPos(void* /*insertAfter*/, int /*x*/, int /*y*/, int /*cx*/, int /*cy*/,
                                unsigned int /*flags*/)
    {
        return 0;
    }
    virtual int ModifyDlgStyleEx(unsigned long /*remove*/, unsigned long /*add*/,
                                 unsigned int /*flags*/)
    {
        return 0;
    }
    virtual void SetWindowTextW(const wchar_t* /*text*/) {}
    virtual void SetDlgIcon(unsigned int /*resourceId*/) {}
    virtual void SetDlgIcon(const wchar_t* /*file*/) {}
    virtual int IsDlgVisible() { return 0; }
    virtual void EnableNcLBtnDown(int /*enable*/) {}
    virtual unsigned int SetDlgTimer(unsigned int /*id*/, unsigned int /*ms*/) { return 0; }
    virtual int KillDlgTimer(unsigned int /*id*/) { return 0; }
    virtual void SetSizeRoundCorner(const wchar_t* /*size*/) {}
    virtual void MacShowFullScreen(bool /*full*/) {}
    virtual void MacShowMinimize(bool /*minimize*/) {}
    virtual void MacShowMaximize(bool /*maximize*/) {}
    virtual int HasFocus() { return 0; }
    virtual void SetFocus() {}
    virtual int IsActiveWindow() { return 0; }
    virtual void ActiveWindow() {}
    virtual void AddMenuMac(const wchar_t* /*text*/, int /*id*/) {}
    virtual void AddMenuAction(const wchar_t* /*text*/, int /*menuId*/, int /*actionId*/) {}

    void* GetUIWnd() const { return m_pHandler ? m_pHandler->GetUIWnd() : nullptr; }

protected:
    ISFDialogEvent* m_pHandler;
};

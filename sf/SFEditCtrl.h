#pragma once
// Abstract single-line edit; CSFQTEditCtrl realises it.

#include "sf/ISFEditCtrlEvent.h"
#include "platform/WinTypes.h"

class CSFEditCtrl {
public:
    explicit CSFEditCtrl(ISFEditCtrlEvent* handler = nullptr)
        : m_pHandler(handler), m_nID(static_cast<unsigned int>(-1)) {}
    CSFEditCtrl(const CSFEditCtrl&) = default;
    CSFEditCtrl& operator=(const CSFEditCtrl&) = default;
    virtual ~CSFEditCtrl() {}

    virtual int Create(unsigned long /*style*/, const tagRECT& /*rect*/, void* /*parent*/,
                       unsigned int /*id*/, bool /*password*/) { return 0; }
    virtual void SetCursor() {}
    virtual int SetSkin(const wchar_t* /*image*/) { return 0; }
    virtual void ShowWindow(int /*show*/) {}
    virtual void MoveWindow(tagRECT* /*rect*/) {}
    virtual void MoveWindow(int /*x*/, int /*y*/, int /*w*/, int /*h*/) {}
    virtual int GetWindowTextW(wchar_t* /*buffer*/, int /*size*/) const { return 0; }
    virtual void SetWindowTextW(const wchar_t* /*text*/) {}
    virtual void EnableWindow(int /*enable*/) {}
    virtual void SetReadOnly(int /*readOnly*/) {}
    virtual void GetEditCtrolPos(tagRECT& /*rect*/) {}
    virtual void SetRegExp() {}

protected:
    ISFEditCtrlEvent* m_pHandler;
    unsigned int m_nID;
};

#pragma once
// Abstract picture with optional centred text; CSFQTPictureCtrl realises it.

#include "sf/ISFPictureCtrlEvent.h"
#include "platform/WinTypes.h"

class CSFPictureCtrl {
public:
    explicit CSFPictureCtrl(ISFPictureCtrlEvent* handler = nullptr)
        : m_pHandler(handler), m_nID(static_cast<unsigned int>(-1)) {}
    CSFPictureCtrl(const CSFPictureCtrl&) = default;
    CSFPictureCtrl& operator=(const CSFPictureCtrl&) = default;
    virtual ~CSFPictureCtrl() {}

    virtual int Create(const wchar_t* /*text*/, unsigned long /*style*/, const tagRECT& /*rect*/,
                       void* /*parent*/, unsigned int /*id*/) { return 0; }
    virtual void SetCursor() {}
    virtual int SetSkin() { return 1; }
    virtual void ShowWindow(int /*show*/) {}
    virtual void MoveWindow(tagRECT* /*rect*/) {}
    virtual void MoveWindow(int /*x*/, int /*y*/, int /*w*/, int /*h*/) {}
    virtual void SetImage(const wchar_t* /*file*/) {}
    virtual void SetDrawPicture(int /*draw*/) {}
    virtual void* GetHWnd() { return nullptr; }
    virtual void SetWindowTextW(const wchar_t* /*text*/) {}

protected:
    ISFPictureCtrlEvent* m_pHandler;
    unsigned int m_nID;
};

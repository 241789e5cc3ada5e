#pragma once
// Abstract picture with optional centred text; CSFQTPictureCtrl realises it.

#include "platform/WinTypes.h"
#include "sf/ISFPictureCtrlEvent.h"
#include "sf/SFControl.h"

class CSFPictureCtrl : public CSFControl<ISFPictureCtrlEvent> {
public:
    explicit CSFPictureCtrl(ISFPictureCtrlEvent* handler = nullptr) : CSFControl(handler) {}

    virtual void SetImage(const wchar_t* /*file*/) {}
    virtual void SetDrawPicture(int /*draw*/) {}
    virtual void* GetHWnd() { return nullptr; }
    virtual void SetWindowTextW(const wchar_t* /*text*/) {}
};

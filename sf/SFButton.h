#pragma once
// Abstract image button; CSFQTButton realises it.

#include "platform/WinTypes.h"
#include "sf/ISFButtonEvent.h"
#include "sf/ImageButtonStyle.h"
#include "sf/SFControl.h"
#include "sf/SFControlTypes.h"

class CSFButton : public CSFControl<ISFButtonEvent, ImageButtonStyle> {
public:
    explicit CSFButton(ISFButtonEvent* handler = nullptr) : CSFControl(handler) {}

    virtual void EnableWindow(int /*enable*/) {}
    virtual void SetTextColor(unsigned long /*color*/) {}
    virtual void SetTextOffset(int /*x*/, int /*y*/) {}
    virtual void SetTextAlign(unsigned int /*flags*/) {}
    virtual void SetTooltipEnable(int /*enable*/) {}
    virtual void SetToolTipText(const wchar_t* /*text*/) {}
    virtual int GetWindowTextW(wchar_t* /*buffer*/, int /*size*/) const { return 0; }
    virtual void SetWindowTextW(const wchar_t* /*text*/) {}
    virtual void GetBTNWindowRect(tagRECT* /*rect*/) {}
    virtual void EnableAnimation(int /*enable*/) {}
    virtual bool IsEnabled() { return false; }
    virtual void SetBtnState(int /*state*/) {}
    virtual void SetIconPos(ICON_POS /*pos*/) {}
};

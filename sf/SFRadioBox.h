#pragma once
// Abstract image toggle; CSFQTRadioBox realises it.

#include "platform/WinTypes.h"
#include "sf/ISFRadioBoxEvent.h"
#include "sf/SFToggle.h"

class CSFRadioBox : public CSFToggle<ISFRadioBoxEvent> {
public:
    explicit CSFRadioBox(ISFRadioBoxEvent* handler = nullptr) : CSFToggle(handler) {}

    virtual void SetBoldHeavy(int /*bold*/) {}
    virtual void SetTextColor(unsigned long /*color*/) {}
    virtual void SetTextOffset(int /*offset*/) {}
    virtual void SetTextAlign(unsigned long /*flags*/) {}
    virtual void GetRadioClientRect(tagRECT* /*rect*/) {}
    virtual void GetRadioWindowRect(tagRECT* /*rect*/) {}
    virtual void SetImageInfo(void*, void*) {}
    virtual void SetBkColor(unsigned long /*checked*/, unsigned long /*unchecked*/) {}
    virtual void SetBkRect(bool /*full*/) {}
    virtual void SetTooltipEnable(int /*enable*/) {}
    virtual void SetToolTipText(const wchar_t* /*text*/) {}
    virtual int IsWindowVisible() { return 0; }
    virtual int IsWindow() { return 0; }
    virtual void Invalidate(int /*erase*/) {}
    virtual void SetEnabled(int /*enable*/) {}
    virtual void EnableAnimation(int /*enable*/) {}
    virtual void SetExpendBGImge(int /*expand*/) {}
    virtual void SetIconAlign(unsigned long /*align*/) {}
};

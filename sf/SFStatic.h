#pragma once
// Abstract label; CSFQTStatic realises it.

#include "platform/WinTypes.h"
#include "sf/ISFStaticEvent.h"
#include "sf/SFControl.h"

class CSFStatic : public CSFControl<ISFStaticEvent> {
public:
    explicit CSFStatic(ISFStaticEvent* handler = nullptr) : CSFControl(handler) {}

    virtual int GetStaticText(wchar_t* /*buffer*/, int /*size*/) const { return 0; }
    virtual void SetStaticText(const wchar_t* /*text*/) {}
    virtual void SetTextAlignFlag(unsigned int /*flags*/) {}
    virtual unsigned int GetTextAlignFlag() { return 0; }
    virtual void SetTextColor(unsigned int /*color*/) {}
    virtual void SetTextBold(int /*bold*/) {}
    virtual void GetTextSize(int& /*w*/, int& /*h*/) {}
    virtual void SetBgColor(unsigned int /*color*/, int /*enable*/) {}
    virtual void SetTextSize(int /*pixels*/) {}
    virtual void GetStaticCtrolPos(tagRECT& /*rect*/) {}
    virtual void SetTextOffset(int /*offset*/) {}
    virtual void SetWordWrap(int /*wrap*/) {}
    virtual int GetWordWrap() { return 0; }
    virtual void SetWrapAnywhere(int /*wrap*/) {}
    virtual int GetWrapAnywher() { return 0; }
    virtual void SetToolTipText(const wchar_t* /*text*/) {}
    virtual void SetTooltipEnable(int /*enable*/) {}
    virtual tagRECT GetGeometry() { return tagRECT{ 0, 0, 0, 0 }; }
    virtual void StartTwinkle() {}
};

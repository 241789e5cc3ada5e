#pragma once
// Abstract number spinner; CSFQTNumSpiner realises it.

#include "platform/WinTypes.h"
#include "sf/ISFNumSpinerEvent.h"
#include "sf/ImageNumSpinerStyle.h"
#include "sf/SFControlBase.h"

class CSFNumSpiner : public CSFControlBase<ISFNumSpinerEvent> {
public:
    explicit CSFNumSpiner(ISFNumSpinerEvent* handler = nullptr) : CSFControlBase(handler) {}

    // No style argument: the spinner is neither shown nor hidden by Create.
    virtual int Create(const wchar_t* /*text*/, const tagRECT& /*rect*/, void* /*parent*/,
                       unsigned int /*id*/)
    {
        return 0;
    }
    virtual void SetRange(int /*min*/, int /*max*/) {}
    virtual void GetRange(int& /*min*/, int& /*max*/) {}
    virtual void SetStep(int /*step*/) {}
    virtual int GetStep() { return 0; }
    virtual void SetCurrentNum(int /*value*/) {}
    virtual int GetCurrentNum() { return 0; }
    virtual void StepUp() {}
    virtual void StepDown() {}
    virtual int SetSkin(ImageNumSpinerStyle* /*style*/) { return 0; }
    virtual void ShowWindow(int /*show*/) {}
    virtual void MoveWindow(tagRECT* /*rect*/) {}
    virtual void MoveWindow(int /*x*/, int /*y*/, int /*w*/, int /*h*/) {}
    virtual void EnableWindow(int /*enable*/) {}
    virtual void SetCircleStep(int /*circle*/) {}
    virtual void SetOriginStyle(int /*origin*/) {}
};

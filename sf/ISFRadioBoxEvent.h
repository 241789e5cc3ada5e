#pragma once

#include "platform/WinTypes.h"

class ISFRadioBoxEvent {
public:
    virtual ~ISFRadioBoxEvent() {}
    // sender is the CSFRadioBox*.
    virtual void RADIO_OnClicked(int /*checked*/, int /*id*/, tagPOINT /*pt*/, void* /*sender*/) {}
    virtual void RADIO_OnShowWindow(int, unsigned int, int) {}
};

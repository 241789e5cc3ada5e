#pragma once

#include "platform/WinTypes.h"

class ISFCheckBoxEvent {
public:
    virtual ~ISFCheckBoxEvent() {}
    virtual void BTN_OnLButtonDown() {}
    virtual void BTN_OnLButtonUp() {}
    virtual void BTN_OnMouseMove() {}
    virtual void Check_OnCheckStateChanged(int /*id*/, int /*state*/, tagPOINT /*pt*/) {}
};

#pragma once

#include "platform/WinTypes.h"

class ISFStaticEvent {
public:
    virtual ~ISFStaticEvent() {}
    virtual void STATIC_OnLButtonDown(unsigned int /*id*/, unsigned int /*flags*/, tagPOINT /*pt*/)
    {
    }
    virtual void STATIC_OnLButtonUp(unsigned int /*id*/, unsigned int /*flags*/, tagPOINT /*pt*/) {}
    virtual void STATIC_OnMouseMove(unsigned int /*id*/, unsigned int /*flags*/, tagPOINT /*pt*/) {}
};

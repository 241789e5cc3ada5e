#pragma once

#include "platform/WinTypes.h"

class ISFPictureCtrlEvent {
public:
    virtual ~ISFPictureCtrlEvent() {}
    virtual void PICTRL_OnLButtonDown(unsigned int /*id*/, unsigned int /*flags*/, tagPOINT /*pt*/)
    {
    }
    virtual void PICTRL_OnLButtonUp(unsigned int /*id*/, unsigned int /*flags*/, tagPOINT /*pt*/) {}
    virtual void PICTRL_OnMouseMove(unsigned int /*id*/, unsigned int /*flags*/, tagPOINT /*pt*/) {}
};

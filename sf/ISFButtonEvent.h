#pragma once

#include "platform/WinTypes.h"

class ISFButtonEvent {
public:
    virtual ~ISFButtonEvent() {}
    virtual void BTN_OnLButtonDown(int /*id*/, unsigned int /*flags*/, tagPOINT /*pt*/) {}
    virtual void BTN_OnLButtonUp(int /*id*/, unsigned int /*flags*/, tagPOINT /*pt*/) {}
    virtual void BTN_OnMouseMove(int /*id*/, unsigned int /*flags*/, tagPOINT /*pt*/) {}
    virtual void BTN_OnMouseLeave(int /*id*/, unsigned int /*flags*/, long /*data*/) {}
    virtual void BTN_OnClicked(int /*id*/) {}
    virtual void BTN_OnCustomerClicked() {}
};

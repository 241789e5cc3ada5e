#pragma once
// Events of a view, the container a page is built on.

#include "platform/WinTypes.h"
#include "sf/SFEventBase.h"

class ISFViewEvent : public CSFEventBase {
public:
    ISFViewEvent() : m_pUIWnd(nullptr) {}
    ~ISFViewEvent() override {}

    virtual int OnCreate() { return 0; }
    virtual void OnDestroy() {}
    virtual void OnSize(unsigned int /*type*/, int /*cx*/, int /*cy*/) {}
    virtual void OnLButtonDown(unsigned int /*flags*/, tagPOINT /*pt*/) {}
    virtual void OnLButtonDblClk(unsigned int /*flags*/, tagPOINT /*pt*/) {}

    // The parent to give every control of this view.
    void* GetUIWnd() const { return m_pUIWnd; }

    void* m_pUIWnd;
};

#pragma once
// Abstract image button; CSFQTButton realises it.

#include "sf/ISFButtonEvent.h"
#include "sf/ImageButtonStyle.h"
#include "sf/SFControlTypes.h"
#include "platform/WinTypes.h"

class CSFButton {
public:
    explicit CSFButton(ISFButtonEvent* handler = nullptr)
        : m_pHandler(handler), m_nID(static_cast<unsigned int>(-1)) {}
    CSFButton(const CSFButton&) = default;
    CSFButton& operator=(const CSFButton&) = default;
    virtual ~CSFButton() {}

    virtual int Create(const wchar_t* /*text*/, unsigned long /*style*/, const tagRECT& /*rect*/,
                       void* /*parent*/, unsigned int /*id*/) { return 0; }
    virtual void SetCursor() {}
    virtual int SetSkin(ImageButtonStyle* /*style*/) { return 0; }
    virtual void ShowWindow(int /*show*/) {}
    virtual void MoveWindow(tagRECT* /*rect*/) {}
    virtual void MoveWindow(int /*x*/, int /*y*/, int /*w*/, int /*h*/) {}
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

protected:
    ISFButtonEvent* m_pHandler;
    unsigned int m_nID;
};

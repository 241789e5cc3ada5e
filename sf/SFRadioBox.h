#pragma once
// Abstract image toggle; CSFQTRadioBox realises it.

#include "sf/ISFRadioBoxEvent.h"
#include "sf/ImageRadioBox.h"
#include "platform/WinTypes.h"

class CSFRadioBox {
public:
    explicit CSFRadioBox(ISFRadioBoxEvent* handler = nullptr)
        : m_pHandler(handler), m_nID(static_cast<unsigned int>(-1)) {}
    CSFRadioBox(const CSFRadioBox&) = default;
    CSFRadioBox& operator=(const CSFRadioBox&) = default;
    virtual ~CSFRadioBox() {}

    virtual int Create(const wchar_t* /*text*/, unsigned long /*style*/, const tagRECT& /*rect*/,
                       void* /*parent*/, unsigned int /*id*/) { return 0; }
    virtual void SetCursor() {}
    virtual int SetSkin(ImageRadioBox* /*style*/) { return 0; }
    virtual void ShowWindow(int /*show*/) {}
    virtual void MoveWindow(tagRECT* /*rect*/) {}
    virtual void MoveWindow(int /*x*/, int /*y*/, int /*w*/, int /*h*/) {}
    virtual void SetCheck(int /*check*/) {}
    virtual int GetCheck() const { return 0; }
    virtual int GetWindowTextW(wchar_t* /*buffer*/, int /*size*/) const { return 0; }
    virtual void SetWindowTextW(const wchar_t* /*text*/) {}
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

protected:
    ISFRadioBoxEvent* m_pHandler;
    unsigned int m_nID;
};

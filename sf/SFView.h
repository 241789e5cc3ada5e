#pragma once
// Abstract view, the container of a page; CSFQTView realises it.

#include "platform/WinTypes.h"
#include "sf/ISFViewEvent.h"
#include "sf/SFControlBase.h"
#include "sf/SFControlTypes.h"

class CSFView : public CSFControlBase<ISFViewEvent> {
public:
    explicit CSFView(ISFViewEvent* handler = nullptr);

    virtual int Create(const wchar_t* /*className*/, const wchar_t* /*title*/,
                       unsigned long /*style*/, const tagRECT& /*rect*/, void* /*parent*/,
                       unsigned int /*id*/)
    {
        return 0;
    }
    virtual void ShowWindow(int /*show*/) {}
    virtual void SetBackground(const wchar_t* /*image*/) {}
    virtual void MoveWindow(tagRECT* /*rect*/) {}
    virtual void MoveWindow(int /*x*/, int /*y*/, int /*w*/, int /*h*/) {}
    virtual void GetViewClientRect(tagRECT* /*rect*/) {}
    virtual void GetViewWindowRect(tagRECT* /*rect*/) {}
    virtual void Screen2Client(tagPOINT* /*pt*/) {}
    virtual void Screen2Client(tagRECT* /*rect*/) {}
    virtual int isShow() { return 0; }
    virtual int isWindow() { return 0; }
    virtual int SubclassWindow() { return 0; }
    virtual void* UnsubclassWindow() { return nullptr; }
    virtual void SetRoundCornerRadius(unsigned int /*radius*/) {}
    virtual void SetBGClr(unsigned int /*color*/) {}
    virtual void SetParentWindow(void* /*parent*/, WINDOW_TYPE /*type*/) {}
    virtual void SetFrameClr(unsigned int /*color*/, int /*enable*/) {}

    void* GetUIWnd() const { return m_pHandler ? m_pHandler->GetUIWnd() : nullptr; }
};

inline CSFView::CSFView(ISFViewEvent* handler) : CSFControlBase(handler)
{
    if (m_pHandler)
        m_pHandler->ResetMessageIDs();
}

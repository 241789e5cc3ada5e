#pragma once
// The leading operations that the abstract text controls share, in their slot
// order after the destructor: Create, SetCursor, SetSkin, ShowWindow and both
// MoveWindow. Each control adds its own operations after them. Skin is the
// style record SetSkin takes; without one SetSkin takes no argument and has
// nothing to fail on.

#include "platform/WinTypes.h"
#include "sf/SFControlBase.h"

template <class Handler, class... Skin>
class CSFControl : public CSFControlBase<Handler> {
public:
    explicit CSFControl(Handler* handler = nullptr) : CSFControlBase<Handler>(handler) {}

    virtual int Create(const wchar_t* /*text*/, unsigned long /*style*/, const tagRECT& /*rect*/,
                       void* /*parent*/, unsigned int /*id*/)
    {
        return 0;
    }
    virtual void SetCursor() {}
    virtual int SetSkin(Skin*... /*style*/) { return sizeof...(Skin) == 0 ? 1 : 0; }
    virtual void ShowWindow(int /*show*/) {}
    virtual void MoveWindow(tagRECT* /*rect*/) {}
    virtual void MoveWindow(int /*x*/, int /*y*/, int /*w*/, int /*h*/) {}
};

#pragma once
// What the abstract image toggle and check box share after the leading
// operations: the check and the text, in this slot order.

#include "sf/ImageRadioBox.h"
#include "sf/SFControl.h"

template <class Handler>
class CSFToggle : public CSFControl<Handler, ImageRadioBox> {
public:
    explicit CSFToggle(Handler* handler = nullptr) : CSFControl<Handler, ImageRadioBox>(handler) {}

    virtual void SetCheck(int /*check*/) {}
    virtual int GetCheck() const { return 0; }
    virtual int GetWindowTextW(wchar_t* /*buffer*/, int /*size*/) const { return 0; }
    virtual void SetWindowTextW(const wchar_t* /*text*/) {}
};

#pragma once
// Abstract single-line edit; CSFQTEditCtrl realises it.

#include "platform/WinTypes.h"
#include "sf/ISFEditCtrlEvent.h"
#include "sf/SFControlBase.h"

#include <cstddef>
#include <string>
#include <vector>

class CSFEditCtrl : public CSFControlBase<ISFEditCtrlEvent> {
public:
    explicit CSFEditCtrl(ISFEditCtrlEvent* handler = nullptr) : CSFControlBase(handler) {}

    virtual int Create(unsigned long /*style*/, const tagRECT& /*rect*/, void* /*parent*/,
                       unsigned int /*id*/, bool /*password*/)
    {
        return 0;
    }
    virtual void SetCursor() {}
    virtual int SetSkin(const wchar_t* /*image*/) { return 0; }
    virtual void ShowWindow(int /*show*/) {}
    virtual void MoveWindow(tagRECT* /*rect*/) {}
    virtual void MoveWindow(int /*x*/, int /*y*/, int /*w*/, int /*h*/) {}
    virtual int GetWindowTextW(wchar_t* /*buffer*/, int /*size*/) const { return 0; }
    virtual void SetWindowTextW(const wchar_t* /*text*/) {}
    virtual void EnableWindow(int /*enable*/) {}
    virtual void SetReadOnly(int /*readOnly*/) {}
    virtual void GetEditCtrolPos(tagRECT& /*rect*/) {}
    virtual void SetRegExp() {}
};

// At most maxChars characters of the edit; the edit does not end a short
// text itself, hence the zeroed buffer.
inline std::wstring SFEditText(const CSFEditCtrl* edit, int maxChars)
{
    if (maxChars < 0)
        maxChars = 0;
    std::vector<wchar_t> buffer(static_cast<std::size_t>(maxChars) + 1, L'\0');
    if (edit)
        edit->GetWindowTextW(buffer.data(), maxChars + 1);
    return std::wstring(buffer.data());
}

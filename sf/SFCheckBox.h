#pragma once
// Abstract check box; the application creates none.

#include "sf/ISFCheckBoxEvent.h"
#include "sf/ImageRadioBox.h"
#include "platform/WinTypes.h"

class CSFCheckBox {
public:
    explicit CSFCheckBox(ISFCheckBoxEvent* handler = nullptr)
        : m_pHandler(handler), m_nID(static_cast<unsigned int>(-1)) {}
    CSFCheckBox(const CSFCheckBox&) = default;
    CSFCheckBox& operator=(const CSFCheckBox&) = default;
    virtual ~CSFCheckBox() {}

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
    virtual void EnableWindow(int /*enable*/) {}

protected:
    ISFCheckBoxEvent* m_pHandler;
    unsigned int m_nID;
};

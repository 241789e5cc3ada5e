#pragma once
// Abstract combo box; CSFQTComboBox realises it.

#include "platform/WinTypes.h"
#include "sf/ISFComboBoxEvent.h"
#include "sf/ImageComboBoxStyle.h"
#include "sf/SFControlBase.h"

class CSFComboBox : public CSFControlBase<ISFComboBoxEvent> {
public:
    explicit CSFComboBox(ISFComboBoxEvent* handler = nullptr) : CSFControlBase(handler) {}

    virtual int Create(unsigned long /*style*/, const tagRECT& /*rect*/, void* /*parent*/,
                       unsigned int /*id*/)
    {
        return 0;
    }
    virtual void SetCursor() {}
    virtual int SetSkin(ImageComboBoxStyle* /*style*/) { return 0; }
    virtual void ShowWindow(int /*show*/) {}
    virtual void MoveWindow(tagRECT* /*rect*/) {}
    virtual void MoveWindow(int /*x*/, int /*y*/, int /*w*/, int /*h*/) {}
    virtual int AddString(const wchar_t* /*text*/) { return 0; }
    virtual int DeleteString(unsigned int /*index*/) { return 0; }
    virtual int GetLBText(int /*index*/, wchar_t* /*buffer*/) const { return 0; }
    virtual int GetCurSel() const { return 0; }
    virtual int SetCurSel(int /*index*/) { return 0; }
    virtual int GetCount() const { return 0; }
    virtual void EnableWindow(int /*enable*/) {}
    virtual void SetOriginStyle(int /*origin*/) {}
    virtual void Clear() {}
    virtual void ResetContent() {}
};

#pragma once

class ISFEditCtrlEvent {
public:
    virtual ~ISFEditCtrlEvent() {}
    // sender is the CSFEditCtrl*.
    virtual void EDIT_OnTextChange(unsigned int /*id*/, wchar_t* /*text*/, void* /*sender*/) {}
    virtual void EDIT_OnEnterPressed(unsigned int /*id*/, wchar_t* /*text*/) {}
};

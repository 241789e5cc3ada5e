#pragma once

class ISFListCtrlEvent {
public:
    virtual ~ISFListCtrlEvent() {}
    virtual void Selection_OnMouseRelease(int /*row*/) {}
    virtual void OnButton(int /*id*/, int /*row*/) {}
    virtual void Audio_OnClicked(int /*row*/) {}
    virtual void CalculatorResoult(int /*channels*/, double /*totalKbps*/) {}
    virtual void ViewScene(int /*scene*/) {}
};

#pragma once

class ISFComboBoxEvent {
public:
    virtual ~ISFComboBoxEvent() {}
    // Only a choice of the user; sender is the CSFComboBox*.
    virtual void SelectChanged(int /*id*/, int /*index*/, void* /*sender*/) {}
};

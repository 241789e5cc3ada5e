#pragma once
// Abstract check box; the application creates none.

#include "sf/ISFCheckBoxEvent.h"
#include "sf/SFToggle.h"
#include "platform/WinTypes.h"

class CSFCheckBox : public CSFToggle<ISFCheckBoxEvent> {
public:
    explicit CSFCheckBox(ISFCheckBoxEvent* handler = nullptr) : CSFToggle(handler) {}

    virtual void EnableWindow(int /*enable*/) {}
};

#pragma once
// Abstract check box; the application creates none.

#include "platform/WinTypes.h"
#include "sf/ISFCheckBoxEvent.h"
#include "sf/SFToggle.h"

class CSFCheckBox : public CSFToggle<ISFCheckBoxEvent> {
public:
    explicit CSFCheckBox(ISFCheckBoxEvent* handler = nullptr) : CSFToggle(handler) {}

    virtual void EnableWindow(int /*enable*/) {}
};

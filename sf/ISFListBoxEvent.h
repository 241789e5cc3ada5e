#pragma once

// Interface of a control the application does not create.
class ISFListBoxEvent {
public:
    virtual ~ISFListBoxEvent() {}
};

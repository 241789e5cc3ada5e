#pragma once

// Interface of a control the application does not create.
class ISFProgressCtrlEvent {
public:
    virtual ~ISFProgressCtrlEvent() {}
};

#pragma once

// Interface of a control the application does not create.
class ISFGroupBoxEvent {
public:
    virtual ~ISFGroupBoxEvent() {}
};

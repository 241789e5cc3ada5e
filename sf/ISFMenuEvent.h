#pragma once

class ISFMenuEvent {
public:
    virtual ~ISFMenuEvent() {}
    virtual void Menu_OnAction(int /*id*/) {}
};

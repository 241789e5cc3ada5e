#pragma once
// The event a control sends to its parent window for the message map.

#include "sf/SFMessageMap.h"

#include <QEvent>

class CSFCustomEvent : public QEvent {
public:
    CSFCustomEvent(unsigned int message, unsigned int code, SF_WPARAM wParam, SF_LPARAM lParam);
    ~CSFCustomEvent() override;

    // Registered once, during static initialisation.
    static QEvent::Type EventType();

    unsigned int message;
    unsigned int code;
    SF_WPARAM wParam;
    SF_LPARAM lParam;
};

#pragma once
// The roads from a control to the message map of its parent window's handler.

#include "sf/SFMessageMap.h"

class CSFCustomEvent;
class CSFEventBase;
class QEvent;
class QObject;

// Whether e is one of the framework's own events.
bool SFIsCustomEvent(const QEvent* e);

// Looks the event up in the handler's map and calls the member it names.
// Returns whether an entry was found.
bool SFDispatchMessageMap(CSFEventBase* handler, const CSFCustomEvent& e);

// A control's command (273, code 0, id) to its Qt parent, delivered at once;
// nothing happens for a control without parent.
void SFSendCommandEvent(QObject* control, unsigned int id);
// A control's notification (78) to its Qt parent, delivered at once.
void SFSendNotifyEvent(QObject* control, unsigned int code, void* record, unsigned int id);

// UI message 275 with the id in lParam; target is the window's GetUIWnd().
void SFSendUIMessage(void* target, unsigned int id, unsigned int wParam);
// The same, queued; the only entry meant for other threads.
void SFPostUIMessage(void* target, unsigned int id, unsigned int wParam);

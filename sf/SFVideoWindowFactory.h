#pragma once
// Where application code gets its video window.

class CSFVideoWindow;
class ISFVideoWindowEvent;

// A new video window of rows by columns equal sub windows, made by Create;
// parent may be null, as Create sets it. Null if it cannot be allocated.
CSFVideoWindow* SFCreateVideoWindow(void* parent, ISFVideoWindowEvent* handler, int rows,
                                    int columns);
// Deletes the control and its widget; null is ignored.
void SFDestroyControl(CSFVideoWindow* control);

#pragma once
// The program's one modal message box.

// Returns 1 when accepted, 2 when cancelled, closed or escaped. btnMode 0
// shows OK, 1 OK and Cancel. The title is kept but not shown; reserved is
// unused. parent is a GetUIWnd() value, or null.
int SFShowMessage(const wchar_t* text, const wchar_t* title, int btnMode, int reserved,
                  void* parent);

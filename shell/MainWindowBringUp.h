#pragma once
// The main window's bring-up, as main runs it and as tests repeat it.

struct DialogStyle;
class CMainDlgEventImp;
class CSFDialog;

// Makes the handler (with its toolbar and page handlers), fills style with
// the main window's skin, creates, sizes, centres and shows the window.
// Returns the window, null if it could not be made; event receives the
// handler either way. The caller tears down: SFDestroyControl on the window,
// then delete the handler.
CSFDialog* BringUpMainWindow(DialogStyle& style, CMainDlgEventImp*& event);

#pragma once
// The main window's bring-up, as main runs it and as tests repeat it.

struct DialogStyle;
class CMainDlgEventImp;
class CSFDialog;
class QApplication;

// What comes before the window, in main's order: the framework on app, the
// application directory, skin path and style sheet, the desktop entry, the
// language choice and the settings.
void PrepareProgram(QApplication& app);

// Makes the handler (with its toolbar and page handlers), fills style with
// the main window's skin, creates, sizes, centres and shows the window.
// Returns the window, null if it could not be made; event receives the
// handler either way. The caller tears down: SFDestroyControl on the window,
// then delete the handler.
CSFDialog* BringUpMainWindow(DialogStyle& style, CMainDlgEventImp*& event);

// What follows the event loop: the window, the framework, then the handler;
// both pointers end null.
void TearDownProgram(CSFDialog*& dlg, CMainDlgEventImp*& event);

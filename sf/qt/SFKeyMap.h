#pragma once
// Key codes that skinned windows hand to OnDlgKeyDown, Win32 style.

#include <Qt>

// Shift 16; Ctrl 17 in its place; Alt then OR-ed with 18.
unsigned int SFMapKeyModifiers(Qt::KeyboardModifiers modifiers);
// Dialog table: Return 13, unknown keys 0.
unsigned int SFMapDialogKey(int qtKey);
// Main window table: unknown keys keep their Qt code.
unsigned int SFMapMainWindowKey(int qtKey);

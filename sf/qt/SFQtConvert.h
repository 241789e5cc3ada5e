#pragma once
// Crossings between the facade's Win32-style values and Qt's.

#include "platform/WinTypes.h"

#include <QRect>
#include <QString>
#include <string>

class QWidget;

// Wide text through UTF-8; null gives an empty string.
QString SFToQString(const wchar_t* text);
QString SFToQString(const std::wstring& text);

// The void* windows of the facade are QWidget pointers.
QWidget* SFWidgetFromHandle(void* handle);
void* SFHandleFromWidget(QWidget* widget);

// Create takes right and bottom as one past the last pixel.
QRect SFRectForCreate(const tagRECT& rect);
// MoveWindow(tagRECT*) of most controls takes right and bottom as the last pixel.
QRect SFRectInclusive(const tagRECT& rect);
// (x, y, x + w - 1, y + h - 1).
QRect SFRectFromXYWH(int x, int y, int w, int h);
tagRECT SFToTagRectExclusive(const QRect& rect);
tagRECT SFToTagRectInclusive(const QRect& rect);

// Copies at most size - 1 characters and a terminator; returns the whole
// text's length, which is what callers expect.
int SFCopyText(const QString& text, wchar_t* buffer, int size);

// Shown or hidden by the visible bit of a window style.
void SFApplyVisibleStyle(QWidget* widget, unsigned long style);

// Names a control for tests and screen readers: "<kind>_<id>" unless the
// caller named it already; a non-empty label becomes its accessible name.
void SFNameControl(QWidget* widget, const char* kind, unsigned int id, const QString& label);

#pragma once
// Reading colours, rectangles and sizes from skin strings, and skin images.

#include <QColor>
#include <QPixmap>
#include <QRect>
#include <QSize>
#include <memory>
#include <string>

// "RRGGBB"; any other length gives opaque black.
QColor SFParseColor(const wchar_t* text);
QColor SFParseColor(const std::wstring& text);
// Win32 COLORREF: red in the low byte; always opaque.
QColor SFColorFromRef(unsigned long ref);
// "x,y,width,height" to the inclusive (x, y, x + width - 1, y + height - 1);
// empty gives (0, 0, -1, -1).
QRect SFParseRect(const wchar_t* text);
QRect SFParseRect(const std::wstring& text);
// "w,h"; anything but exactly two parts gives (0, 0).
QSize SFParseSize(const wchar_t* text);
QSize SFParseSize(const std::wstring& text);

// The skin path with the file name appended, nothing between them; empty
// when something other than a regular file lies there.
QString SFSkinFilePath(const std::wstring& file);
// The text as a style-sheet string, quotes included: install paths may hold
// quotes, backslashes, '$', '%' or any character, and unquoted they break the
// widget's whole sheet. The empty text stays empty.
QString SFCssQuoted(const QString& text);
// A PNG of the skin directory, or null when the file does not load.
std::unique_ptr<QPixmap> SFLoadSkinPixmap(const std::wstring& file);

#pragma once
// Code page conversion between narrow text and wchar_t text.
// 65001 is UTF-8; 0 is the charset of the user's locale. Lengths of -1 mean
// "zero-terminated, terminator included"; an output size of 0 asks for the
// length needed. Returns the number of elements written (or needed), 0 on
// failure (unknown code page, output too small).

#include "platform/WinTypes.h"

int MultiByteToWideChar(UINT codePage, DWORD flags, const char* src, int srcLen, wchar_t* dst,
                        int dstLen);
int WideCharToMultiByte(UINT codePage, DWORD flags, const wchar_t* src, int srcLen, char* dst,
                        int dstLen, const char* defaultChar, BOOL* usedDefaultChar);

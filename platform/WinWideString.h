#pragma once
// The C runtime's wide-string helpers that the program uses.

#include "platform/WinTypes.h"

#include <cstddef>

int _wtoi(const wchar_t* text);
long _wtol(const wchar_t* text);
wchar_t* _ltow(long value, wchar_t* buffer, int radix);

// Copies src with its terminator when it fits in count elements and returns 0.
// Otherwise leaves an empty string in dst (when it can) and returns an error,
// where the Windows runtime would end the process.
errno_t wcscpy_s(wchar_t* dst, std::size_t count, const wchar_t* src);

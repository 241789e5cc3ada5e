#pragma once
// Coordinate arithmetic that wraps like the 32-bit Win32 code instead of
// overflowing, so odd rectangles never reach undefined behaviour.

#include "platform/WinTypes.h"

namespace sf_detail {

inline LONG WrapAdd(LONG a, LONG b)
{
    return static_cast<LONG>(static_cast<DWORD>(a) + static_cast<DWORD>(b));
}

inline LONG WrapSub(LONG a, LONG b)
{
    return static_cast<LONG>(static_cast<DWORD>(a) - static_cast<DWORD>(b));
}

inline LONG WrapNeg(LONG a)
{
    return static_cast<LONG>(0u - static_cast<DWORD>(a));
}

} // namespace sf_detail

#pragma once
// Win32 base types as the rest of the program spells them.

#include <cstdint>

typedef int BOOL;
typedef std::uint32_t DWORD;
typedef std::uint32_t UINT;
typedef std::int32_t LONG;
typedef int errno_t;

#ifndef TRUE
#define TRUE 1
#endif
#ifndef FALSE
#define FALSE 0
#endif

// Win32 path limit; Linux paths may be longer, so buffers that hold the
// executable's path use SF_MAX_PATH instead.
#define MAX_PATH 260
#define SF_MAX_PATH 4096

#define CP_ACP 0
#define CP_UTF8 65001

struct tagPOINT {
    LONG x;
    LONG y;
};

struct tagSIZE {
    LONG cx;
    LONG cy;
};

struct tagRECT {
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};

typedef tagPOINT POINT;
typedef tagSIZE SIZE;
typedef tagRECT RECT;
typedef tagRECT* LPRECT;
typedef const tagRECT* LPCRECT;

// DrawText's alignment bits, as text labels take them.
constexpr unsigned int DT_LEFT = 0x0, DT_CENTER = 0x1, DT_RIGHT = 0x2, DT_VCENTER = 0x4,
                       DT_WORDBREAK = 0x10, DT_SINGLELINE = 0x20, DT_EDITCONTROL = 0x2000;

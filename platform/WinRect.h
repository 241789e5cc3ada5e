#pragma once
// Rectangle functions with the results the Win32 functions of these names give.

#include "platform/WinTypes.h"

BOOL SetRect(tagRECT* rc, int left, int top, int right, int bottom);
BOOL SetRectEmpty(tagRECT* rc);
BOOL CopyRect(tagRECT* dst, const tagRECT* src);
BOOL IsRectEmpty(const tagRECT* rc);
BOOL EqualRect(const tagRECT* a, const tagRECT* b);
BOOL PtInRect(const tagRECT* rc, tagPOINT pt);
BOOL OffsetRect(tagRECT* rc, int dx, int dy);
BOOL InflateRect(tagRECT* rc, int dx, int dy);
BOOL IntersectRect(tagRECT* dst, const tagRECT* a, const tagRECT* b);
BOOL UnionRect(tagRECT* dst, const tagRECT* a, const tagRECT* b);
BOOL SubtractRect(tagRECT* dst, const tagRECT* a, const tagRECT* b);

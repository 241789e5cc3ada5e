#include "platform/WinRect.h"

#include <algorithm>

namespace {

// Win32 coordinates wrap on overflow instead of trapping.
LONG addWrapped(LONG a, LONG b)
{
    return static_cast<LONG>(static_cast<DWORD>(a) + static_cast<DWORD>(b));
}

LONG negWrapped(LONG a)
{
    return static_cast<LONG>(0u - static_cast<DWORD>(a));
}

// Adds the four amounts to left, top, right and bottom.
BOOL moveEdges(tagRECT* rc, LONG dl, LONG dt, LONG dr, LONG db)
{
    if (!rc)
        return FALSE;
    rc->left = addWrapped(rc->left, dl);
    rc->top = addWrapped(rc->top, dt);
    rc->right = addWrapped(rc->right, dr);
    rc->bottom = addWrapped(rc->bottom, db);
    return TRUE;
}

// Empties dst and reports that the result is empty.
BOOL emptyResult(tagRECT* dst)
{
    SetRectEmpty(dst);
    return FALSE;
}

} // namespace

BOOL SetRect(tagRECT* rc, int left, int top, int right, int bottom)
{
    if (!rc)
        return FALSE;
    rc->left = left;
    rc->top = top;
    rc->right = right;
    rc->bottom = bottom;
    return TRUE;
}

BOOL SetRectEmpty(tagRECT* rc)
{
    return SetRect(rc, 0, 0, 0, 0);
}

BOOL CopyRect(tagRECT* dst, const tagRECT* src)
{
    if (!dst || !src)
        return FALSE;
    *dst = *src;
    return TRUE;
}

BOOL IsRectEmpty(const tagRECT* rc)
{
    return !rc || rc->right <= rc->left || rc->bottom <= rc->top;
}

BOOL EqualRect(const tagRECT* a, const tagRECT* b)
{
    if (!a || !b)
        return FALSE;
    return a->left == b->left && a->top == b->top && a->right == b->right && a->bottom == b->bottom;
}

BOOL PtInRect(const tagRECT* rc, tagPOINT pt)
{
    if (!rc)
        return FALSE;
    return pt.x >= rc->left && pt.x < rc->right && pt.y >= rc->top && pt.y < rc->bottom;
}

BOOL OffsetRect(tagRECT* rc, int dx, int dy)
{
    return moveEdges(rc, dx, dy, dx, dy);
}

BOOL InflateRect(tagRECT* rc, int dx, int dy)
{
    return moveEdges(rc, negWrapped(dx), negWrapped(dy), dx, dy);
}

BOOL IntersectRect(tagRECT* dst, const tagRECT* a, const tagRECT* b)
{
    if (!dst || !a || !b)
        return FALSE;
    if (IsRectEmpty(a) || IsRectEmpty(b) || a->left >= b->right || b->left >= a->right ||
        a->top >= b->bottom || b->top >= a->bottom)
        return emptyResult(dst);
    // dst may alias a or b: the whole result is made before it is stored.
    *dst = tagRECT{ std::max(a->left, b->left), std::max(a->top, b->top),
                    std::min(a->right, b->right), std::min(a->bottom, b->bottom) };
    return TRUE;
}

BOOL UnionRect(tagRECT* dst, const tagRECT* a, const tagRECT* b)
{
    if (!dst || !a || !b)
        return FALSE;
    const bool aEmpty = IsRectEmpty(a);
    const bool bEmpty = IsRectEmpty(b);
    if (aEmpty && bEmpty)
        return emptyResult(dst);
    if (aEmpty || bEmpty)
        *dst = aEmpty ? *b : *a;
    else
        *dst = tagRECT{ std::min(a->left, b->left), std::min(a->top, b->top),
                        std::max(a->right, b->right), std::max(a->bottom, b->bottom) };
    return TRUE;
}

BOOL SubtractRect(tagRECT* dst, const tagRECT* a, const tagRECT* b)
{
    if (!dst || !a || !b)
        return FALSE;
    if (IsRectEmpty(a))
        return emptyResult(dst);
    tagRECT result = *a;
    tagRECT cut;
    if (IntersectRect(&cut, a, b)) {
        if (EqualRect(&cut, &result))
            return emptyResult(dst);
        // Only a cut through the full height or width leaves a rectangle.
        if (cut.top == result.top && cut.bottom == result.bottom) {
            if (cut.left == result.left)
                result.left = cut.right;
            else if (cut.right == result.right)
                result.right = cut.left;
        } else if (cut.left == result.left && cut.right == result.right) {
            if (cut.top == result.top)
                result.top = cut.bottom;
            else if (cut.bottom == result.bottom)
                result.bottom = cut.top;
        }
    }
    *dst = result;
    return TRUE;
}

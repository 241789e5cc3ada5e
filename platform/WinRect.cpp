#include "platform/WinRect.h"

#include <algorithm>

namespace {

// Win32 coordinates wrap on overflow instead of trapping.
LONG addWrapped(LONG a, LONG b)
{
    return static_cast<LONG>(static_cast<DWORD>(a) + static_cast<DWORD>(b));
}

LONG subWrapped(LONG a, LONG b)
{
    return static_cast<LONG>(static_cast<DWORD>(a) - static_cast<DWORD>(b));
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
    return a->left == b->left && a->top == b->top && a->right == b->right
        && a->bottom == b->bottom;
}

BOOL PtInRect(const tagRECT* rc, tagPOINT pt)
{
    if (!rc)
        return FALSE;
    return pt.x >= rc->left && pt.x < rc->right && pt.y >= rc->top && pt.y < rc->bottom;
}

BOOL OffsetRect(tagRECT* rc, int dx, int dy)
{
    if (!rc)
        return FALSE;
    rc->left = addWrapped(rc->left, dx);
    rc->right = addWrapped(rc->right, dx);
    rc->top = addWrapped(rc->top, dy);
    rc->bottom = addWrapped(rc->bottom, dy);
    return TRUE;
}

BOOL InflateRect(tagRECT* rc, int dx, int dy)
{
    if (!rc)
        return FALSE;
    rc->left = subWrapped(rc->left, dx);
    rc->right = addWrapped(rc->right, dx);
    rc->top = subWrapped(rc->top, dy);
    rc->bottom = addWrapped(rc->bottom, dy);
    return TRUE;
}

BOOL IntersectRect(tagRECT* dst, const tagRECT* a, const tagRECT* b)
{
    if (!dst || !a || !b)
        return FALSE;
    if (IsRectEmpty(a) || IsRectEmpty(b) || a->left >= b->right || b->left >= a->right
        || a->top >= b->bottom || b->top >= a->bottom) {
        SetRectEmpty(dst);
        return FALSE;
    }
    // dst may alias a or b, so compute before storing.
    const tagRECT r = { std::max(a->left, b->left), std::max(a->top, b->top),
                        std::min(a->right, b->right), std::min(a->bottom, b->bottom) };
    *dst = r;
    return TRUE;
}

BOOL UnionRect(tagRECT* dst, const tagRECT* a, const tagRECT* b)
{
    if (!dst || !a || !b)
        return FALSE;
    const bool aEmpty = IsRectEmpty(a);
    const bool bEmpty = IsRectEmpty(b);
    if (aEmpty && bEmpty) {
        SetRectEmpty(dst);
        return FALSE;
    }
    if (aEmpty) {
        *dst = *b;
    } else if (bEmpty) {
        *dst = *a;
    } else {
        const tagRECT r = { std::min(a->left, b->left), std::min(a->top, b->top),
                            std::max(a->right, b->right), std::max(a->bottom, b->bottom) };
        *dst = r;
    }
    return TRUE;
}

BOOL SubtractRect(tagRECT* dst, const tagRECT* a, const tagRECT* b)
{
    if (!dst || !a || !b)
        return FALSE;
    if (IsRectEmpty(a)) {
        SetRectEmpty(dst);
        return FALSE;
    }
    tagRECT result = *a;
    tagRECT cut;
    if (IntersectRect(&cut, a, b)) {
        if (EqualRect(&cut, &result)) {
            SetRectEmpty(dst);
            return FALSE;
        }
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

#include "sf/SFRect.h"

#include "platform/WinMath.h"
#include "platform/WinRect.h"
#include "sf/SFWrapMath.h"

#include <cstdint>
#include <utility>

using sf_detail::WrapAdd;
using sf_detail::WrapNeg;
using sf_detail::WrapSub;

CSFRect::CSFRect(int l, int t, int r, int b)
{
    left = l;
    top = t;
    right = r;
    bottom = b;
}

CSFRect::CSFRect(const tagRECT& srcRect)
{
    ::CopyRect(this, &srcRect);
}

CSFRect::CSFRect(const tagRECT* lpSrcRect)
{
    if (lpSrcRect)
        ::CopyRect(this, lpSrcRect);
    else
        ::SetRectEmpty(this);
}

CSFRect::CSFRect(tagPOINT point, tagSIZE size)
{
    left = point.x;
    top = point.y;
    right = WrapAdd(point.x, size.cx);
    bottom = WrapAdd(point.y, size.cy);
}

CSFRect::CSFRect(tagPOINT topLeft, tagPOINT bottomRight)
{
    left = topLeft.x;
    top = topLeft.y;
    right = bottomRight.x;
    bottom = bottomRight.y;
}

int CSFRect::Width() const
{
    return WrapSub(right, left);
}

int CSFRect::Height() const
{
    return WrapSub(bottom, top);
}

CSFSize CSFRect::Size() const
{
    return CSFSize(Width(), Height());
}

// left/top and right/bottom have the layout of a tagPOINT.
CSFPoint& CSFRect::TopLeft()
{
    return *reinterpret_cast<CSFPoint*>(&left);
}

CSFPoint& CSFRect::BottomRight()
{
    return *reinterpret_cast<CSFPoint*>(&right);
}

const CSFPoint& CSFRect::TopLeft() const
{
    return *reinterpret_cast<const CSFPoint*>(&left);
}

const CSFPoint& CSFRect::BottomRight() const
{
    return *reinterpret_cast<const CSFPoint*>(&right);
}

CSFPoint CSFRect::CenterPoint() const
{
    const std::int64_t cx = (static_cast<std::int64_t>(left) + right) / 2;
    const std::int64_t cy = (static_cast<std::int64_t>(top) + bottom) / 2;
    return CSFPoint(static_cast<int>(cx), static_cast<int>(cy));
}

void CSFRect::SwapLeftRight(tagRECT* lpRect)
{
    if (lpRect)
        std::swap(lpRect->left, lpRect->right);
}

void CSFRect::SwapLeftRight()
{
    SwapLeftRight(this);
}

bool CSFRect::IsRectEmpty() const
{
    return ::IsRectEmpty(this) != FALSE;
}

bool CSFRect::IsRectNull() const
{
    return left == 0 && right == 0 && top == 0 && bottom == 0;
}

bool CSFRect::PtInRect(tagPOINT point) const
{
    return ::PtInRect(this, point) != FALSE;
}

void CSFRect::SetRect(int x1, int y1, int x2, int y2)
{
    ::SetRect(this, x1, y1, x2, y2);
}

void CSFRect::SetRect(tagPOINT topLeft, tagPOINT bottomRight)
{
    ::SetRect(this, topLeft.x, topLeft.y, bottomRight.x, bottomRight.y);
}

void CSFRect::SetRectEmpty()
{
    ::SetRectEmpty(this);
}

void CSFRect::CopyRect(const tagRECT* lpSrcRect)
{
    ::CopyRect(this, lpSrcRect);
}

bool CSFRect::EqualRect(const tagRECT* lpRect) const
{
    return ::EqualRect(this, lpRect) != FALSE;
}

void CSFRect::InflateRect(int x, int y)
{
    ::InflateRect(this, x, y);
}

void CSFRect::InflateRect(tagSIZE size)
{
    ::InflateRect(this, size.cx, size.cy);
}

void CSFRect::InflateRect(const tagRECT* lpRect)
{
    if (!lpRect)
        return;
    InflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

void CSFRect::InflateRect(int l, int t, int r, int b)
{
    left = WrapSub(left, l);
    top = WrapSub(top, t);
    right = WrapAdd(right, r);
    bottom = WrapAdd(bottom, b);
}

void CSFRect::DeflateRect(int x, int y)
{
    ::InflateRect(this, WrapNeg(x), WrapNeg(y));
}

void CSFRect::DeflateRect(tagSIZE size)
{
    DeflateRect(size.cx, size.cy);
}

void CSFRect::DeflateRect(const tagRECT* lpRect)
{
    if (!lpRect)
        return;
    DeflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

void CSFRect::DeflateRect(int l, int t, int r, int b)
{
    InflateRect(WrapNeg(l), WrapNeg(t), WrapNeg(r), WrapNeg(b));
}

void CSFRect::OffsetRect(int x, int y)
{
    ::OffsetRect(this, x, y);
}

void CSFRect::OffsetRect(tagPOINT point)
{
    ::OffsetRect(this, point.x, point.y);
}

void CSFRect::OffsetRect(tagSIZE size)
{
    ::OffsetRect(this, size.cx, size.cy);
}

void CSFRect::MoveToY(int y)
{
    bottom = WrapAdd(Height(), y);
    top = y;
}

void CSFRect::MoveToX(int x)
{
    right = WrapAdd(Width(), x);
    left = x;
}

void CSFRect::MoveToXY(int x, int y)
{
    MoveToX(x);
    MoveToY(y);
}

void CSFRect::MoveToXY(tagPOINT point)
{
    MoveToXY(point.x, point.y);
}

bool CSFRect::IntersectRect(const tagRECT* lpRect1, const tagRECT* lpRect2)
{
    return ::IntersectRect(this, lpRect1, lpRect2) != FALSE;
}

bool CSFRect::UnionRect(const tagRECT* lpRect1, const tagRECT* lpRect2)
{
    return ::UnionRect(this, lpRect1, lpRect2) != FALSE;
}

bool CSFRect::SubtractRect(const tagRECT* lpRectSrc1, const tagRECT* lpRectSrc2)
{
    return ::SubtractRect(this, lpRectSrc1, lpRectSrc2) != FALSE;
}

void CSFRect::NormalizeRect()
{
    if (left > right)
        std::swap(left, right);
    if (top > bottom)
        std::swap(top, bottom);
}

CSFRect CSFRect::MulDiv(int nMultiplier, int nDivisor) const
{
    return CSFRect(::MulDiv(left, nMultiplier, nDivisor), ::MulDiv(top, nMultiplier, nDivisor),
                   ::MulDiv(right, nMultiplier, nDivisor), ::MulDiv(bottom, nMultiplier, nDivisor));
}

CSFRect& CSFRect::operator=(const tagRECT& srcRect)
{
    ::CopyRect(this, &srcRect);
    return *this;
}

bool CSFRect::operator==(const tagRECT& rect) const
{
    return ::EqualRect(this, &rect) != FALSE;
}

bool CSFRect::operator!=(const tagRECT& rect) const
{
    return !(*this == rect);
}

void CSFRect::operator+=(tagPOINT point)
{
    OffsetRect(point);
}

void CSFRect::operator+=(tagSIZE size)
{
    OffsetRect(size);
}

void CSFRect::operator+=(const tagRECT* lpRect)
{
    InflateRect(lpRect);
}

void CSFRect::operator-=(tagPOINT point)
{
    OffsetRect(WrapNeg(point.x), WrapNeg(point.y));
}

void CSFRect::operator-=(tagSIZE size)
{
    OffsetRect(WrapNeg(size.cx), WrapNeg(size.cy));
}

void CSFRect::operator-=(const tagRECT* lpRect)
{
    DeflateRect(lpRect);
}

void CSFRect::operator&=(const tagRECT& rect)
{
    const tagRECT self = *this;
    ::IntersectRect(this, &self, &rect);
}

void CSFRect::operator|=(const tagRECT& rect)
{
    const tagRECT self = *this;
    ::UnionRect(this, &self, &rect);
}

CSFRect CSFRect::operator+(tagPOINT point) const
{
    CSFRect rect(*this);
    rect.OffsetRect(point);
    return rect;
}

CSFRect CSFRect::operator-(tagPOINT point) const
{
    CSFRect rect(*this);
    rect -= point;
    return rect;
}

CSFRect CSFRect::operator+(tagSIZE size) const
{
    CSFRect rect(*this);
    rect.OffsetRect(size);
    return rect;
}

CSFRect CSFRect::operator-(tagSIZE size) const
{
    CSFRect rect(*this);
    rect -= size;
    return rect;
}

CSFRect CSFRect::operator+(const tagRECT* lpRect) const
{
    CSFRect rect(*this);
    rect.InflateRect(lpRect);
    return rect;
}

CSFRect CSFRect::operator-(const tagRECT* lpRect) const
{
    CSFRect rect(*this);
    rect.DeflateRect(lpRect);
    return rect;
}

CSFRect CSFRect::operator&(const tagRECT& rect2) const
{
    CSFRect rect;
    ::IntersectRect(&rect, this, &rect2);
    return rect;
}

CSFRect CSFRect::operator|(const tagRECT& rect2) const
{
    CSFRect rect;
    ::UnionRect(&rect, this, &rect2);
    return rect;
}

#include "sf/SFPoint.h"

#include "sf/SFRect.h"
#include "sf/SFSize.h"
#include "sf/SFWrapMath.h"

using sf_detail::WrapAdd;
using sf_detail::WrapNeg;
using sf_detail::WrapSub;

CSFPoint::CSFPoint(long dwPoint)
{
    const unsigned long bits = static_cast<unsigned long>(dwPoint);
    x = static_cast<short>(bits & 0xFFFFu);
    y = static_cast<short>((bits >> 16) & 0xFFFFu);
}

void CSFPoint::Offset(int xOffset, int yOffset)
{
    x = WrapAdd(x, xOffset);
    y = WrapAdd(y, yOffset);
}

void CSFPoint::Offset(tagPOINT point)
{
    Offset(point.x, point.y);
}

void CSFPoint::Offset(tagSIZE size)
{
    Offset(size.cx, size.cy);
}

void CSFPoint::SetPoint(int X, int Y)
{
    x = X;
    y = Y;
}

bool CSFPoint::operator==(tagPOINT point) const
{
    return x == point.x && y == point.y;
}

bool CSFPoint::operator!=(tagPOINT point) const
{
    return !(*this == point);
}

void CSFPoint::operator+=(tagSIZE size)
{
    Offset(size.cx, size.cy);
}

void CSFPoint::operator-=(tagSIZE size)
{
    Offset(WrapNeg(size.cx), WrapNeg(size.cy));
}

void CSFPoint::operator+=(tagPOINT point)
{
    Offset(point.x, point.y);
}

void CSFPoint::operator-=(tagPOINT point)
{
    Offset(WrapNeg(point.x), WrapNeg(point.y));
}

CSFPoint CSFPoint::operator+(tagSIZE size) const
{
    return CSFPoint(WrapAdd(x, size.cx), WrapAdd(y, size.cy));
}

CSFPoint CSFPoint::operator-(tagSIZE size) const
{
    return CSFPoint(WrapSub(x, size.cx), WrapSub(y, size.cy));
}

CSFPoint CSFPoint::operator-() const
{
    return CSFPoint(WrapNeg(x), WrapNeg(y));
}

CSFPoint CSFPoint::operator+(tagPOINT point) const
{
    return CSFPoint(WrapAdd(x, point.x), WrapAdd(y, point.y));
}

CSFSize CSFPoint::operator-(tagPOINT point) const
{
    return CSFSize(WrapSub(x, point.x), WrapSub(y, point.y));
}

CSFRect CSFPoint::operator+(const tagRECT* lpRect) const
{
    CSFRect rect(lpRect);
    rect.OffsetRect(x, y);
    return rect;
}

CSFRect CSFPoint::operator-(const tagRECT* lpRect) const
{
    CSFRect rect(lpRect);
    rect.OffsetRect(WrapNeg(x), WrapNeg(y));
    return rect;
}

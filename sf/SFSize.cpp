#include "sf/SFSize.h"

#include "sf/SFPoint.h"
#include "sf/SFRect.h"
#include "sf/SFWrapMath.h"

#include <cstdint>

using sf_detail::WrapAdd;
using sf_detail::WrapNeg;
using sf_detail::WrapSub;

CSFSize::CSFSize(int initCX, int initCY)
{
    cx = initCX;
    cy = initCY;
}

CSFSize::CSFSize(tagSIZE initSize)
{
    cx = initSize.cx;
    cy = initSize.cy;
}

CSFSize::CSFSize(tagPOINT initPt)
{
    cx = initPt.x;
    cy = initPt.y;
}

CSFSize::CSFSize(unsigned long dwSize)
{
    // Only the 32 bits a DWORD holds take part.
    const std::int32_t bits = static_cast<std::int32_t>(static_cast<std::uint32_t>(dwSize));
    cx = static_cast<short>(bits & 0xFFFF);
    cy = bits >> 16;
}

bool CSFSize::operator==(tagSIZE size) const
{
    return cx == size.cx && cy == size.cy;
}

bool CSFSize::operator!=(tagSIZE size) const
{
    return !(*this == size);
}

void CSFSize::operator+=(tagSIZE size)
{
    cx = WrapAdd(cx, size.cx);
    cy = WrapAdd(cy, size.cy);
}

void CSFSize::operator-=(tagSIZE size)
{
    cx = WrapSub(cx, size.cx);
    cy = WrapSub(cy, size.cy);
}

void CSFSize::SetSize(int CX, int CY)
{
    cx = CX;
    cy = CY;
}

CSFSize CSFSize::operator+(tagSIZE size) const
{
    return CSFSize(WrapAdd(cx, size.cx), WrapAdd(cy, size.cy));
}

CSFSize CSFSize::operator-(tagSIZE size) const
{
    return CSFSize(WrapSub(cx, size.cx), WrapSub(cy, size.cy));
}

CSFSize CSFSize::operator-() const
{
    return CSFSize(WrapNeg(cx), WrapNeg(cy));
}

// Moving a point or a rectangle by a size is moving it by the point of the
// same values.
CSFPoint CSFSize::operator+(tagPOINT point) const
{
    return CSFPoint(point) + *this;
}

CSFPoint CSFSize::operator-(tagPOINT point) const
{
    return -CSFPoint(point) + *this;
}

CSFRect CSFSize::operator+(const tagRECT* lpRect) const
{
    return CSFPoint(*this) + lpRect;
}

CSFRect CSFSize::operator-(const tagRECT* lpRect) const
{
    return CSFPoint(*this) - lpRect;
}

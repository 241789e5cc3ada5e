#include "sf/SFSize.h"

#include "sf/SFPoint.h"
#include "sf/SFRect.h"

#include <cstdint>

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

// A size computes as the point of the same values.
void CSFSize::operator+=(tagSIZE size)
{
    *this = CSFPoint(*this) + size;
}

void CSFSize::operator-=(tagSIZE size)
{
    *this = CSFPoint(*this) - size;
}

void CSFSize::SetSize(int CX, int CY)
{
    cx = CX;
    cy = CY;
}

CSFSize CSFSize::operator+(tagSIZE size) const
{
    return CSFPoint(*this) + size;
}

CSFSize CSFSize::operator-(tagSIZE size) const
{
    return CSFPoint(*this) - size;
}

CSFSize CSFSize::operator-() const
{
    return -CSFPoint(*this);
}

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

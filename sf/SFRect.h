#pragma once
// A rectangle with the operations and the results of the Win32 functions:
// right and bottom lie one past the last pixel.

#include "platform/WinTypes.h"
#include "sf/SFPoint.h"
#include "sf/SFSize.h"

class CSFRect : public tagRECT {
public:
    // Left uninitialised, as a plain tagRECT.
    CSFRect() {}
    CSFRect(int l, int t, int r, int b);
    CSFRect(const tagRECT& srcRect);
    CSFRect(const tagRECT* lpSrcRect);
    CSFRect(tagPOINT point, tagSIZE size);
    CSFRect(tagPOINT topLeft, tagPOINT bottomRight);

    int Width() const;
    int Height() const;
    CSFSize Size() const;
    CSFPoint& TopLeft();
    CSFPoint& BottomRight();
    const CSFPoint& TopLeft() const;
    const CSFPoint& BottomRight() const;
    CSFPoint CenterPoint() const;

    static void SwapLeftRight(tagRECT* lpRect);
    void SwapLeftRight();

    operator tagRECT*() { return this; }
    operator const tagRECT*() const { return this; }

    bool IsRectEmpty() const;
    bool IsRectNull() const;
    bool PtInRect(tagPOINT point) const;

    void SetRect(int x1, int y1, int x2, int y2);
    void SetRect(tagPOINT topLeft, tagPOINT bottomRight);
    void SetRectEmpty();
    void CopyRect(const tagRECT* lpSrcRect);
    bool EqualRect(const tagRECT* lpRect) const;

    void InflateRect(int x, int y);
    void InflateRect(tagSIZE size);
    void InflateRect(const tagRECT* lpRect);
    void InflateRect(int l, int t, int r, int b);
    void DeflateRect(int x, int y);
    void DeflateRect(tagSIZE size);
    void DeflateRect(const tagRECT* lpRect);
    void DeflateRect(int l, int t, int r, int b);

    void OffsetRect(int x, int y);
    void OffsetRect(tagPOINT point);
    void OffsetRect(tagSIZE size);
    void MoveToY(int y);
    void MoveToX(int x);
    void MoveToXY(int x, int y);
    void MoveToXY(tagPOINT point);

    bool IntersectRect(const tagRECT* lpRect1, const tagRECT* lpRect2);
    bool UnionRect(const tagRECT* lpRect1, const tagRECT* lpRect2);
    bool SubtractRect(const tagRECT* lpRectSrc1, const tagRECT* lpRectSrc2);

    // Swaps left with right and top with bottom where they are reversed.
    void NormalizeRect();
    // Each field scaled by MulDiv, rounded as the Win32 function rounds.
    CSFRect MulDiv(int nMultiplier, int nDivisor) const;

    CSFRect& operator=(const tagRECT& srcRect);
    bool operator==(const tagRECT& rect) const;
    bool operator!=(const tagRECT& rect) const;
    void operator+=(tagPOINT point);
    void operator+=(tagSIZE size);
    void operator+=(const tagRECT* lpRect);
    void operator-=(tagPOINT point);
    void operator-=(tagSIZE size);
    void operator-=(const tagRECT* lpRect);
    void operator&=(const tagRECT& rect);
    void operator|=(const tagRECT& rect);

    CSFRect operator+(tagPOINT point) const;
    CSFRect operator-(tagPOINT point) const;
    CSFRect operator+(tagSIZE size) const;
    CSFRect operator-(tagSIZE size) const;
    CSFRect operator+(const tagRECT* lpRect) const;
    CSFRect operator-(const tagRECT* lpRect) const;
    CSFRect operator&(const tagRECT& rect2) const;
    CSFRect operator|(const tagRECT& rect2) const;
};

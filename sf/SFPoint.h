#pragma once
// A point with the operations of the Win32 geometry helpers.

#include "platform/WinTypes.h"

class CSFSize;
class CSFRect;

class CSFPoint : public tagPOINT {
public:
    // Left uninitialised, as a plain tagPOINT.
    CSFPoint() {}
    CSFPoint(int initX, int initY) : tagPOINT{ initX, initY } {}
    CSFPoint(tagPOINT initPt) : tagPOINT(initPt) {}
    CSFPoint(tagSIZE initSize) : tagPOINT{ initSize.cx, initSize.cy } {}
    // Low 16 bits to x, high 16 bits to y, each sign-extended.
    CSFPoint(long dwPoint);

    void Offset(int xOffset, int yOffset);
    void Offset(tagPOINT point);
    void Offset(tagSIZE size);
    void SetPoint(int X, int Y);

    bool operator==(tagPOINT point) const;
    bool operator!=(tagPOINT point) const;
    void operator+=(tagSIZE size);
    void operator-=(tagSIZE size);
    void operator+=(tagPOINT point);
    void operator-=(tagPOINT point);

    CSFPoint operator+(tagSIZE size) const;
    CSFPoint operator-(tagSIZE size) const;
    CSFPoint operator-() const;
    CSFPoint operator+(tagPOINT point) const;
    CSFSize operator-(tagPOINT point) const;

    // The rectangle moved by this point.
    CSFRect operator+(const tagRECT* lpRect) const;
    CSFRect operator-(const tagRECT* lpRect) const;
};

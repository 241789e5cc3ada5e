#pragma once
// A size with the operations of the Win32 geometry helpers.

#include "platform/WinTypes.h"

class CSFPoint;
class CSFRect;

class CSFSize : public tagSIZE {
public:
    // Left uninitialised, as a plain tagSIZE.
    CSFSize() {}
    CSFSize(int initCX, int initCY) : tagSIZE{ initCX, initCY } {}
    CSFSize(tagSIZE initSize) : tagSIZE(initSize) {}
    CSFSize(tagPOINT initPt) : tagSIZE{ initPt.x, initPt.y } {}
    // Low 16 bits sign-extended to cx, the high half to cy.
    CSFSize(unsigned long dwSize);

    bool operator==(tagSIZE size) const;
    bool operator!=(tagSIZE size) const;
    void operator+=(tagSIZE size);
    void operator-=(tagSIZE size);
    void SetSize(int CX, int CY);

    CSFSize operator+(tagSIZE size) const;
    CSFSize operator-(tagSIZE size) const;
    CSFSize operator-() const;
    CSFPoint operator+(tagPOINT point) const;
    CSFPoint operator-(tagPOINT point) const;
    // The rectangle moved by this size.
    CSFRect operator+(const tagRECT* lpRect) const;
    CSFRect operator-(const tagRECT* lpRect) const;
};

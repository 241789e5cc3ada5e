#pragma once
// Skin of the list control.

#include <string>

struct ListCtrlStyle {
    std::wstring strImage;
    // "x,y,width,height" on the image, each read only if not empty.
    std::wstring strSlice1;
    std::wstring strSlice2;
    std::wstring strSlice3;
    std::wstring strSlice4;
    std::wstring strSlice5;
    std::wstring strSlice6;
    std::wstring strSlice7;
    std::wstring strSlice8;
    std::wstring strSlice9;
    std::wstring strSlice10;
    std::wstring strSlice11;
    std::wstring strSlice12;
    std::wstring strSlice13;
    std::wstring strSlice14;
    std::wstring strSlice15;
    std::wstring strSlice16;
    std::wstring strSlice17;
    std::wstring strSlice18;
    std::wstring strSlice19;
    std::wstring strSlice20;
    // "stretch" sets the stretch flag of the slice of the same number.
    std::wstring strSlice1Mode;
    std::wstring strSlice2Mode;
    std::wstring strSlice3Mode;
    std::wstring strSlice4Mode;
    std::wstring strSlice5Mode;
    std::wstring strSlice6Mode;
    std::wstring strSlice7Mode;
    std::wstring strSlice8Mode;
    std::wstring strSlice9Mode;
    std::wstring strSlice10Mode;
    std::wstring strSlice11Mode;
    std::wstring strSlice12Mode;
    std::wstring strSlice13Mode;
    std::wstring strSlice14Mode;
    std::wstring strSlice15Mode;
    std::wstring strSlice16Mode;
    std::wstring strSlice17Mode;
    std::wstring strSlice18Mode;
    std::wstring strSlice19Mode;
    std::wstring strSlice20Mode;
    // Six hexadecimal digits RRGGBB.
    std::wstring strRowColor1;
    std::wstring strRowColor2;
    std::wstring strColor3;
    std::wstring strColor4;
    std::wstring strColor5;
    int nReserved1 = 0;
    int nReserved2 = 0;
    int nHeaderHeight = 0;
    int nRowHeight = 0;
};

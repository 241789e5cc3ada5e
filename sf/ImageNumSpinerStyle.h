#pragma once
// Pictures of a number spinner; the reserved strings are read by nothing.

#include <string>

struct ImageNumSpinerStyle {
    std::wstring strFrame;
    std::wstring strDownNormal;
    std::wstring strDownHover;
    std::wstring strDownPressed;
    std::wstring strDownDisabled;
    std::wstring strDownReserved1;
    std::wstring strDownReserved2;
    std::wstring strDownReserved3;
    std::wstring strUpNormal;
    std::wstring strUpHover;
    std::wstring strUpPressed;
    std::wstring strUpDisabled;
    std::wstring strUpReserved1;
    std::wstring strUpReserved2;
    std::wstring strUpReserved3;
};

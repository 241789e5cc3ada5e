#pragma once
// Pictures of an image button, files in the skin directory.

#include <string>

struct ImageButtonStyle {
    std::wstring strNormal;
    std::wstring strHover;
    std::wstring strPressed;
    std::wstring strDisabled;
    std::wstring strReserved1;
    std::wstring strReserved2;
    std::wstring strReserved3;
    std::wstring strReserved4;
};

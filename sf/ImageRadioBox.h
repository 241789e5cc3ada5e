#pragma once
// Pictures of an image toggle, files in the skin directory.

#include <string>

struct ImageRadioBox {
    std::wstring strCheckedNormal;
    std::wstring strCheckedHover;
    std::wstring strCheckedPressed;
    std::wstring strUncheckedNormal;
    std::wstring strUncheckedHover;
    std::wstring strUncheckedPressed;
    std::wstring strCheckedDisabled;
    std::wstring strUncheckedDisabled;
};

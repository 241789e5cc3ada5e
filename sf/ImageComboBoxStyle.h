#pragma once
// A combo box painted from slices ("x,y,width,height") of one image.

#include <string>

struct ImageComboBoxStyle {
    std::wstring strImage;
    std::wstring strNormal;
    std::wstring strHover;
    std::wstring strPressedDown;
    std::wstring strPressedUp;
    std::wstring strDisabled;
    std::wstring strSlice6;
    std::wstring strSlice7;
    // "stretch" or anything else; note the order of the two pressed modes.
    std::wstring strNormalMode;
    std::wstring strHoverMode;
    std::wstring strPressedUpMode;
    std::wstring strPressedDownMode;
    std::wstring strDisabledMode;
    std::wstring strSlice6Mode;
    std::wstring strSlice7Mode;
};

#pragma once
// Pictures of a progress bar cell.

#include <string>

struct ImageProgressCtrlStyle {
    std::wstring strBackground;
    std::wstring strChunk;
    std::wstring strTextColor;
};

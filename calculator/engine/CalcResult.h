#pragma once
// What one recalculation puts on the value label.

#include <string>

struct CalcResult {
    std::wstring strValue;
    // Flash the value label after setting the text.
    bool bTwinkle = true;
    // Request-device answers on one line must sit in the one-line rectangle.
    bool bFixValueRect = false;
};

#pragma once

#include "language/SFConvertedText.h"

// Narrow copy of a wide text, converted in the constructor.
class CSFTextA : public CSFConvertedText<char> {
public:
    CSFTextA(const wchar_t* text, unsigned int codePage);
    // Converts exactly length elements; the result is terminated only when
    // the length counted the terminator.
    CSFTextA(const wchar_t* text, int length, unsigned int codePage);
};

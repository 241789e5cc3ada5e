#pragma once

#include "language/SFConvertedText.h"

// Wide copy of a narrow text, converted in the constructor.
class CSFTextW : public CSFConvertedText<wchar_t> {
public:
    CSFTextW(const char* text, unsigned int codePage);
    // Converts exactly length bytes; the result is terminated only when the
    // length counted the terminator.
    CSFTextW(const char* text, int length, unsigned int codePage);
};

#include "calculator/engine/RaidReference.h"

const int g_aBayClass[kBayClassCount] = { 8, 16, 24, 36, 48 };

const char g_aHotSpaceLayout[kBayClassCount][kHotSpaceLayoutSize] = {
    "8(hot-space)",           "5+5+5+1(hot-space)",     "9+9+5+1(hot-space)",
    "9+9+5+5+5+3(hot-space)", "9+9+9+9+9+3(hot-space)",
};

const int g_aRaid5DataDisks[kBayClassCount] = { 6, 12, 20, 28, 40 };

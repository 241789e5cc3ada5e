#include "streams/engine/ResolutionTable.h"

const ResolutionSize g_stResolutionNtsc[kResolutionRowCount] = {
    { 704, 480 },   { 352, 480 },   { 704, 240 },   { 352, 240 },   { 176, 120 },   { 640, 480 },
    { 320, 240 },   { 480, 480 },   { 160, 128 },   { 800, 592 },   { 1024, 768 },  { 1280, 800 },
    { 1280, 1024 }, { 1600, 1024 }, { 1600, 1200 }, { 1920, 1200 }, { 240, 192 },   { 1280, 720 },
    { 1920, 1080 }, { 1280, 960 },  { 1872, 1408 }, { 3744, 1408 }, { 2048, 1536 }, { 2432, 2050 },
    { 1216, 1024 }, { 1408, 1024 }, { 3296, 2472 }, { 2560, 1920 }, { 960, 480 },   { 960, 720 },
    { 640, 360 },   { 320, 180 },   { 160, 90 },
};

const ResolutionSize g_stResolutionPal[kResolutionRowCount] = {
    { 704, 576 },   { 352, 576 },   { 704, 288 },   { 352, 288 },   { 176, 144 },   { 640, 480 },
    { 320, 240 },   { 480, 480 },   { 160, 128 },   { 800, 592 },   { 1024, 768 },  { 1280, 800 },
    { 1280, 1024 }, { 1600, 1024 }, { 1600, 1200 }, { 1920, 1200 }, { 240, 192 },   { 1280, 720 },
    { 1920, 1080 }, { 1280, 960 },  { 1872, 1408 }, { 3744, 1408 }, { 2048, 1536 }, { 2432, 2050 },
    { 1216, 1024 }, { 1408, 1024 }, { 3296, 2472 }, { 2560, 1920 }, { 960, 576 },   { 960, 720 },
    { 640, 360 },   { 320, 180 },   { 160, 90 },
};

const ResolutionSize g_stResolutionDescending[kResolutionPalRowCount] = {
    { 3296, 2472 }, { 3072, 2048 }, { 3744, 1408 }, { 2048, 1536 }, { 1920, 1080 }, { 1280, 720 },
    { 960, 576 },   { 704, 576 },   { 640, 480 },   { 704, 288 },   { 352, 288 },   { 176, 144 },
};

void ResolutionIndexToSize(int index, int* width, int* height, int bNtsc)
{
    const ResolutionSize* table = bNtsc ? g_stResolutionNtsc : g_stResolutionDescending;
    const int count = bNtsc ? kResolutionRowCount : kResolutionPalRowCount;
    if (index < 0 || index >= count)
        return;
    if (width)
        *width = table[index].nWidth;
    if (height)
        *height = table[index].nHeight;
}

int SizeToResolutionIndex(int width, int height, int bNtsc)
{
    const ResolutionSize* table = bNtsc ? g_stResolutionNtsc : g_stResolutionPal;
    for (int i = 0; i < kResolutionRowCount; ++i) {
        if (table[i].nWidth == width && table[i].nHeight == height)
            return i;
    }
    return 0;
}

#pragma once
// Resolution index <-> frame size, as the conversion library numbers them.

struct ResolutionSize {
    int nWidth;
    int nHeight;
};

constexpr int kResolutionRowCount = 33;
constexpr int kResolutionPalRowCount = 12;

// The 33 rows in both norms; the PAL column differs only where the NTSC
// line count does.
extern const ResolutionSize g_stResolutionNtsc[kResolutionRowCount];
extern const ResolutionSize g_stResolutionPal[kResolutionRowCount];
// What ResolutionIndexToSize gives with bNtsc zero: a list of its own,
// largest first, not the PAL column above.
extern const ResolutionSize g_stResolutionDescending[kResolutionPalRowCount];

// An index outside the table leaves width and height untouched.
void ResolutionIndexToSize(int index, int* width, int* height, int bNtsc);

// First matching row of the 33-row table in the given norm; 0 when none
// matches, the same as row 0.
int SizeToResolutionIndex(int width, int height, int bNtsc);

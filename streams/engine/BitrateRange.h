#pragma once
// The conversion library's older span formula and its helpers. No page shows
// these results; they are kept as the library has them.

constexpr int kRangeFrameRateCount = 21;
// Entries 1 to 21 of the frame-rate index: "60" down to "1".
extern const char* const g_szRangeFrameRates[kRangeFrameRateCount];

// resolutionIndex 1 is the largest size of the bNtsc-zero list; index 0 or a
// frame-rate index of 0 gives 0 and 0. fullFrameRate outside 1..149 means 50.
void GetBitrateRange(int resolutionIndex, int frameRateIndex, unsigned* minKbps, unsigned* maxKbps,
                     int codec, int codecFlag, int fullFrameRate);

// Mean of the span that GetBitrateRange gives, which it also hands out.
int GetBitrateEstimate(int resolutionIndex, int frameRateIndex, int codec, int codecFlag,
                       unsigned* minKbps, unsigned* maxKbps, int fullFrameRate);

// Nearest multiple of step, halves up; step 0 keeps value. Negative values
// always round towards zero, and step 1 adds one.
int RoundToStep(int value, int step);

constexpr int kCodecNameCount = 8;
constexpr int kQualityNameCount = 6;
extern const char* const g_szCodecNames[kCodecNameCount];
extern const char* const g_szQualityNames[kQualityNameCount];

#pragma once
// Bit rate of one row of the channel list, from its combo selections.

// Row combo sizes, title entry included.
constexpr int kCompressionCount = 5;
constexpr int kEnvironmentCount = 4;
constexpr int kResolutionCount = 13;

// Both columns are indexed from 1; index 0 belongs to the title entry.
extern const double g_dReferenceKbpsArea1[kResolutionCount];
extern const double g_dReferenceKbpsOther[kResolutionCount];
extern const double g_dCompressionFactor[kCompressionCount][kEnvironmentCount];

constexpr double kReferenceFrameRate = 30.0;
constexpr double kAudioKbps = 60.0;

// Kbps of one channel. compression, environment and resolution are combo
// indexes; frameRate is the number itself. area 1 picks the first column.
double EstimateRowBitrate(int compression, int environment, int resolution, int frameRate,
                          bool audio, int area);

// Combo entries after the title. Compression and resolution are shown as they
// are; environment names are dictionary keys.
constexpr int kCompressionEntryCount = 4;
constexpr int kEnvironmentEntryCount = 3;
constexpr int kResolutionEntryCount = 12;
constexpr int kRowFrameRateEntryCount = 9;

extern const wchar_t* const g_szCompressionEntries[kCompressionEntryCount];
extern const wchar_t* const g_szEnvironmentEntries[kEnvironmentEntryCount];
extern const wchar_t* const g_szResolutionEntries[kResolutionEntryCount];
// Frame-rate combo entries 1 to 9; the combo adds "Customize" after them.
extern const wchar_t* const g_szRowFrameRateEntries[kRowFrameRateEntryCount];
// The same numbers narrow, for atoi.
extern const char* const g_szRowFrameRates[kRowFrameRateEntryCount];

// Dictionary keys of the title entries and of the last frame-rate entry.
extern const wchar_t* const g_szCompressionTitle;
extern const wchar_t* const g_szEnvironmentTitle;
extern const wchar_t* const g_szResolutionTitle;
extern const wchar_t* const g_szFrameRateTitle;
extern const wchar_t* const g_szFrameRateCustomize;

#include "streams/engine/BitrateEstimate.h"

// VGA and D1 are cheaper in area 1 on purpose.
const double g_dReferenceKbpsArea1[kResolutionCount] = { 0,    512,  512,  512,  2048, 2048, 4096,
                                                         4096, 4096, 6144, 6144, 8192, 12288 };
const double g_dReferenceKbpsOther[kResolutionCount] = { 0,    512,  1024, 1024, 2048, 2048, 4096,
                                                         4096, 4096, 6144, 6144, 8192, 12288 };

// Rows by compression, columns by environment. A smart codec without a scene
// counts as scene 3.
const double g_dCompressionFactor[kCompressionCount][kEnvironmentCount] = {
    { 0, 0, 0, 0 },
    { 1, 1, 1, 1 },
    { 0.5, 0.5, 0.5, 0.5 },
    { 1, 0.25, 0.5, 1 },
    { 0.5, 0.125, 0.25, 0.5 },
};

double EstimateRowBitrate(int compression, int environment, int resolution, int frameRate,
                          bool audio, int area)
{
    if (compression == 0 || resolution == 0 || frameRate == 0)
        return 0.0;
    // Combos never send these, but a stray index must not read past a table.
    if (compression < 0 || compression >= kCompressionCount || resolution < 0 ||
        resolution >= kResolutionCount)
        return 0.0;
    if (environment < 0 || environment >= kEnvironmentCount)
        environment = 0;

    const double reference =
        area == 1 ? g_dReferenceKbpsArea1[resolution] : g_dReferenceKbpsOther[resolution];
    double value = reference * frameRate / kReferenceFrameRate;
    value *= g_dCompressionFactor[compression][environment];
    if (audio)
        value += kAudioKbps;
    return value;
}

const wchar_t* const g_szCompressionEntries[kCompressionEntryCount] = { L"H.264", L"H.265",
                                                                        L"smart264", L"smart265" };
const wchar_t* const g_szEnvironmentEntries[kEnvironmentEntryCount] = { L"Scene 1", L"Scene 2",
                                                                        L"Scene 3" };
const wchar_t* const g_szResolutionEntries[kResolutionEntryCount] = {
    L"CIF", L"VGA", L"D1", L"1MP", L"1.3MP", L"2MP", L"3MP", L"4MP", L"5MP", L"6MP", L"8MP", L"12MP"
};
const wchar_t* const g_szRowFrameRateEntries[kRowFrameRateEntryCount] = { L"1",  L"5",  L"10",
                                                                          L"15", L"20", L"25",
                                                                          L"30", L"45", L"60" };
const char* const g_szRowFrameRates[kRowFrameRateEntryCount] = { "1",  "5",  "10", "15", "20",
                                                                 "25", "30", "45", "60" };

const wchar_t* const g_szCompressionTitle = L"--Compression--";
const wchar_t* const g_szEnvironmentTitle = L"--Environment--";
const wchar_t* const g_szResolutionTitle = L"--Resolution--";
const wchar_t* const g_szFrameRateTitle = L"--FrameRate--";
const wchar_t* const g_szFrameRateCustomize = L"Customize";

#pragma once
// What one choice in a row of the channel list does to the rest of that row,
// the text its bit-rate cell gets, and how the rows add up to the totals.
// Indexes are combo indexes, 0 being the title entry, as in EstimateRowBitrate.

#include "streams/engine/BitrateEstimate.h"

#include <string>

constexpr int kRowResolution12MP = 12;
constexpr int kRowFrameRate30 = 7;
constexpr int kRowFrameRate45 = 8;
constexpr int kRowFrameRate60 = 9;
// "Customize", the last entry of the frame-rate combo.
constexpr int kRowFrameRateCustom = kRowFrameRateEntryCount + 1;

constexpr int kRowCustomRateMaxChars = 3;
constexpr int kRowCustomRateCap = 30;
constexpr int kRowBitrateMaxChars = 9;
// How much of a bit-rate text the totals read.
constexpr int kRowTotalsReadChars = 100;

// Compression: only a smart codec lets a scene be chosen; otherwise the scene
// combo goes back to its title and is disabled.
bool RowSceneEnabled(int compressionIndex);

// The Preview button stands exactly while a scene is chosen.
bool RowPreviewShown(int sceneIndex);

// Resolution: the frame-rate index it sets, title for title and "30" otherwise.
int RowFrameRateForResolution(int resolutionIndex);

// Frame rate: the index that stays; "45" and "60" become "30" at 12MP.
int RowFrameRateAfterChoice(int resolutionIndex, int frameRateIndex);

// Frame rate: the resolution index that stays; the title resets it too.
int RowResolutionAfterFrameRate(int resolutionIndex, int frameRateIndex);

// Frame rate: the custom edit is shown only while "Customize" is chosen.
bool RowCustomRateShown(int frameRateIndex);

// Frame rate: choosing "Customize" at 12MP writes "0" into the custom edit.
bool RowCustomRateResets(int resolutionIndex, int frameRateIndex);

// Custom rate: what a typed text becomes: at most 3 characters, "0" for any
// non-digit, "30" above 30 at 12MP or above. An empty text stays empty.
std::wstring RowCustomRateText(const std::wstring& typed, int resolutionIndex);

// Bit rate: what a typed text becomes: at most 9 characters, "0" for any
// non-digit. An empty text stays empty.
std::wstring RowTypedBitrateText(const std::wstring& typed);

// Decimal digits only; the empty text passes.
bool RowTextIsDigits(const std::wstring& text);

// Frames per second of the row: the entry's number, atoi of at most 9
// characters of the custom text for "Customize", 0 for the title.
int RowFrameRateValue(int frameRateIndex, const std::wstring& customText);

// Whether a change of the row is worth a new estimate: a row that shows a
// number always is, an untouched one only once compression, resolution and
// frame rate are all chosen. bitrateText null: the row has no bit-rate cell.
bool RowIsReady(int compressionIndex, int resolutionIndex, int frameRateIndex,
                const std::wstring* bitrateText);

// The text the row's bit-rate edit gets from an estimate: "%.0f", and "0"
// when nothing is printed.
std::wstring RowBitrateText(double kbps);

// Totals of the list, formed from the bit-rate texts rather than estimates.
struct ChannelTotals {
    unsigned int channels = 0;
    double totalKbps = 0.0;
    // atof of the text times the count; the count joins the channels unless
    // the text is exactly "0". The channel sum wraps as 32-bit unsigned.
    void AddRow(const std::wstring& bitrateText, int channelCount);
};

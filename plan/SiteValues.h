#pragma once
// The values a site file and the options accept, read into the indexes and
// texts of the window's controls, with the wording of what was expected.

#include <string>

namespace SiteValues {

extern const char* const kChannelsExpected;
extern const char* const kSceneExpected;
extern const char* const kAudioExpected;
extern const char* const kBitrateExpected;

// The lists of names, for the messages.
std::string CompressionExpected();
std::string ResolutionExpected();
std::string FrameRateExpected();

std::string Lower(const std::string& strText);
std::string Narrow(const wchar_t* pszText);

// Decimal digits only (at most nMaxDigits), nMin to nMax.
bool ParseWhole(const std::string& strText, int nMin, int nMax, int nMaxDigits, int& nValue);

bool ParseChannels(const std::string& strText, int& nChannels);
// Combo indexes from 1; names compare without regard to case.
bool ParseCompression(const std::string& strText, int& nIndex);
bool ParseScene(const std::string& strText, int& nScene);
bool ParseResolution(const std::string& strText, int& nIndex);
// A listed rate gives its combo index; any other whole number 0-999 the
// "Customize" entry and the number as the custom edit would hold it.
bool ParseFrameRate(const std::string& strText, int& nIndex, std::string& strCustom);
bool ParseAudio(const std::string& strText, bool& bAudio);
// Empty: no override. Otherwise 1 to 9 digits, kept as typed.
bool ParseTypedBitrate(const std::string& strText, bool& bTyped, std::string& strTyped);

// "H.264" ... "smart265" for combo indexes 1 to 4, empty text otherwise.
const char* CompressionName(int nIndex);
// The capacity combo's item at nIndex ("32GB" ... "16TB").
std::string CapacityItem(int nIndex);
// RAID device types and levels by combo index, as the options name them.
extern const char* const kRaidDevices[4];
extern const char* const kRaidLevels[3];

} // namespace SiteValues

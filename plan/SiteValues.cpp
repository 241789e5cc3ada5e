#include "plan/SiteValues.h"

#include "calculator/engine/CapacityTable.h"
#include "plan/SiteRow.h"
#include "streams/engine/BitrateEstimate.h"

#include <cstdio>

namespace SiteValues {

const char* const kChannelsExpected = "a whole number 1-9999";
const char* const kSceneExpected = "0 (none), 1, 2 or 3";
const char* const kAudioExpected = "on or off";
const char* const kBitrateExpected = "empty or a whole number of Kbps, at most 9 digits";

namespace {

// The custom frame-rate edit keeps three characters.
const int kCustomRateMax = 999;
const int kCustomRateDigits = 3;
const int kBitrateDigits = 9;
const int kMaxChannels = 9999;

const char* const kCompressionNames[kCompressionEntryCount] = { "H.264", "H.265", "smart264",
                                                                "smart265" };

std::string JoinAlternatives(const std::string* pItems, int nCount)
{
    std::string strList;
    for (int i = 0; i < nCount; ++i) {
        if (i > 0)
            strList += (i + 1 == nCount) ? " or " : ", ";
        strList += pItems[i];
    }
    return strList;
}

std::string NameText(const char* pszText)
{
    return pszText ? pszText : "";
}
std::string NameText(const wchar_t* pszText);

// Index from 1 of strText in the names, or 0.
template <class Name>
int FindName(const std::string& strText, const Name* pNames, int nCount)
{
    const std::string strLower = Lower(strText);
    for (int i = 0; i < nCount; ++i) {
        if (strLower == Lower(NameText(pNames[i])))
            return i + 1;
    }
    return 0;
}

std::string NameText(const wchar_t* pszText)
{
    return Narrow(pszText);
}

} // namespace

std::string Lower(const std::string& strText)
{
    std::string strLower = strText;
    for (char& c : strLower) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    return strLower;
}

std::string Narrow(const wchar_t* pszText)
{
    // The names compared here are ASCII.
    std::string strText;
    for (const wchar_t* p = pszText; p && *p; ++p)
        strText += static_cast<char>(*p < 0x80 ? *p : '?');
    return strText;
}

std::string CompressionExpected()
{
    std::string aNames[kCompressionEntryCount];
    for (int i = 0; i < kCompressionEntryCount; ++i)
        aNames[i] = kCompressionNames[i];
    return JoinAlternatives(aNames, kCompressionEntryCount);
}

std::string ResolutionExpected()
{
    std::string aNames[kResolutionEntryCount];
    for (int i = 0; i < kResolutionEntryCount; ++i)
        aNames[i] = Narrow(g_szResolutionEntries[i]);
    return JoinAlternatives(aNames, kResolutionEntryCount);
}

std::string FrameRateExpected()
{
    std::string aNames[kRowFrameRateEntryCount + 1];
    for (int i = 0; i < kRowFrameRateEntryCount; ++i)
        aNames[i] = g_szRowFrameRates[i];
    aNames[kRowFrameRateEntryCount] = "a custom whole number 0-999";
    return JoinAlternatives(aNames, kRowFrameRateEntryCount + 1);
}

bool ParseWhole(const std::string& strText, int nMin, int nMax, int nMaxDigits, int& nValue)
{
    if (strText.empty() || static_cast<int>(strText.size()) > nMaxDigits)
        return false;
    long long nRead = 0;
    for (char c : strText) {
        if (c < '0' || c > '9')
            return false;
        nRead = nRead * 10 + (c - '0');
    }
    if (nRead < nMin || nRead > nMax)
        return false;
    nValue = static_cast<int>(nRead);
    return true;
}

bool ParseChannels(const std::string& strText, int& nChannels)
{
    return ParseWhole(strText, 1, kMaxChannels, kBitrateDigits, nChannels);
}

bool ParseCompression(const std::string& strText, int& nIndex)
{
    const int nFound = FindName(strText, kCompressionNames, kCompressionEntryCount);
    if (nFound == 0)
        return false;
    nIndex = nFound;
    return true;
}

bool ParseScene(const std::string& strText, int& nScene)
{
    return ParseWhole(strText, 0, kEnvironmentEntryCount, 1, nScene);
}

bool ParseResolution(const std::string& strText, int& nIndex)
{
    const int nFound = FindName(strText, g_szResolutionEntries, kResolutionEntryCount);
    if (nFound == 0)
        return false;
    nIndex = nFound;
    return true;
}

bool ParseFrameRate(const std::string& strText, int& nIndex, std::string& strCustom)
{
    int nRate = 0;
    // Leading zeros are allowed on the way in; the custom edit keeps three
    // characters, so the number is what is kept.
    if (!ParseWhole(strText, 0, kCustomRateMax, kBitrateDigits, nRate))
        return false;
    const std::string strRate = std::to_string(nRate);
    for (int i = 0; i < kRowFrameRateEntryCount; ++i) {
        if (strRate == g_szRowFrameRates[i]) {
            nIndex = i + 1;
            strCustom.clear();
            return true;
        }
    }
    if (static_cast<int>(strRate.size()) > kCustomRateDigits)
        return false;
    nIndex = kRowFrameRateCustom;
    strCustom = strRate;
    return true;
}

bool ParseAudio(const std::string& strText, bool& bAudio)
{
    const std::string strLower = Lower(strText);
    if (strLower == "on" || strLower == "off") {
        bAudio = strLower == "on";
        return true;
    }
    return false;
}

bool ParseTypedBitrate(const std::string& strText, bool& bTyped, std::string& strTyped)
{
    if (strText.empty()) {
        bTyped = false;
        strTyped.clear();
        return true;
    }
    int nIgnored = 0;
    if (!ParseWhole(strText, 0, 999999999, kBitrateDigits, nIgnored))
        return false;
    bTyped = true;
    strTyped = strText;
    return true;
}

const char* const kRaidDevices[4] = { "KTR6", "MQS50", "MQS70", "MQS71" };
const char* const kRaidLevels[3] = { "RAID1", "RAID5", "RAID6" };

const char* CompressionName(int nIndex)
{
    return (nIndex >= 1 && nIndex <= kCompressionEntryCount) ? kCompressionNames[nIndex - 1] : "";
}

std::string CapacityItem(int nIndex)
{
    if (nIndex < 0 || nIndex >= kCapacityItemCount)
        return "custom";
    const double dGB = g_aCapacityNominal[nIndex];
    char szItem[32] = {};
    if (dGB < 1024.0)
        std::snprintf(szItem, sizeof(szItem), "%.0fGB", dGB);
    else
        std::snprintf(szItem, sizeof(szItem), "%.0fTB", dGB / 1024.0);
    return szItem;
}

} // namespace SiteValues

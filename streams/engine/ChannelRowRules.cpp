#include "streams/engine/ChannelRowRules.h"

#include <cstdio>
#include <cstdlib>
#include <cwchar>

namespace {

// The texts were read as UTF-8 by atoi and atof, which stop at the first
// byte of a non-ASCII character anyway: the ASCII head gives the same number.
std::string AsciiHead(const std::wstring& text)
{
    std::string head;
    for (const wchar_t c : text) {
        if (c == L'\0' || static_cast<unsigned long>(c) >= 0x80ul)
            break;
        head.push_back(static_cast<char>(c));
    }
    return head;
}

bool IsChoice(int index)
{
    return index != 0;
}

} // namespace

bool RowSceneEnabled(int compressionIndex)
{
    return compressionIndex == 3 || compressionIndex == 4;
}

bool RowPreviewShown(int sceneIndex)
{
    return sceneIndex >= 1 && sceneIndex <= 3;
}

int RowFrameRateForResolution(int resolutionIndex)
{
    return IsChoice(resolutionIndex) ? kRowFrameRate30 : 0;
}

int RowFrameRateAfterChoice(int resolutionIndex, int frameRateIndex)
{
    if (resolutionIndex == kRowResolution12MP &&
        (frameRateIndex == kRowFrameRate45 || frameRateIndex == kRowFrameRate60))
        return kRowFrameRate30;
    return frameRateIndex;
}

int RowResolutionAfterFrameRate(int resolutionIndex, int frameRateIndex)
{
    return IsChoice(frameRateIndex) ? resolutionIndex : 0;
}

bool RowCustomRateShown(int frameRateIndex)
{
    return frameRateIndex == kRowFrameRateCustom;
}

bool RowCustomRateResets(int resolutionIndex, int frameRateIndex)
{
    return resolutionIndex == kRowResolution12MP && frameRateIndex == kRowFrameRateCustom;
}

bool RowTextIsDigits(const std::wstring& text)
{
    for (const wchar_t c : text) {
        if (c < L'0' || c > L'9')
            return false;
    }
    return true;
}

std::wstring RowCustomRateText(const std::wstring& typed, int resolutionIndex)
{
    std::wstring cut = typed.substr(0, kRowCustomRateMaxChars);
    if (!RowTextIsDigits(cut))
        return L"0";
    // At most three digits: no overflow.
    if (resolutionIndex >= kRowResolution12MP &&
        std::wcstol(cut.c_str(), nullptr, 10) > kRowCustomRateCap)
        return L"30";
    return cut;
}

std::wstring RowTypedBitrateText(const std::wstring& typed)
{
    const std::wstring cut = typed.substr(0, kRowBitrateMaxChars);
    return RowTextIsDigits(cut) ? cut : L"0";
}

int RowFrameRateValue(int frameRateIndex, const std::wstring& customText)
{
    if (frameRateIndex == kRowFrameRateCustom)
        return std::atoi(AsciiHead(customText.substr(0, kRowBitrateMaxChars)).c_str());
    if (frameRateIndex > 0 && frameRateIndex <= kRowFrameRateEntryCount)
        return std::atoi(g_szRowFrameRates[frameRateIndex - 1]);
    return 0;
}

bool RowIsReady(int compressionIndex, int resolutionIndex, int frameRateIndex,
                const std::wstring* bitrateText)
{
    if (bitrateText && *bitrateText != L"0")
        return true;
    return IsChoice(compressionIndex) && IsChoice(resolutionIndex) && IsChoice(frameRateIndex);
}

std::wstring RowBitrateText(double kbps)
{
    char printed[256] = {};
    std::snprintf(printed, sizeof(printed), "%.0f", kbps);
    const std::wstring text(printed, printed + std::char_traits<char>::length(printed));
    return text.empty() ? std::wstring(L"0") : text;
}

void ChannelTotals::AddRow(const std::wstring& bitrateText, int channelCount)
{
    totalKbps += std::atof(AsciiHead(bitrateText).c_str()) * channelCount;
    if (bitrateText != L"0")
        channels += static_cast<unsigned int>(channelCount);
}

#include "streams/engine/BitrateRange.h"

#include "streams/engine/ResolutionTable.h"

#include <cstdint>
#include <cstdlib>

const char* const g_szRangeFrameRates[kRangeFrameRateCount] = { "60", "55", "50", "45", "40", "35",
                                                                "30", "25", "20", "15", "12", "10",
                                                                "9",  "8",  "7",  "6",  "5",  "4",
                                                                "3",  "2",  "1" };

const char* const g_szCodecNames[kCodecNameCount] = { "MPEG4", "MS_MPEG4", "MPEG2",     "MPEG1",
                                                      "H263",  "MJPG",     "FCC_MPEG4", "H264" };
const char* const g_szQualityNames[kQualityNameCount] = { "Worst", "Worse",  "Bad",
                                                          "Good",  "Better", "Best" };

namespace {

constexpr std::int64_t kCifNtscPixels = 352 * 240;
constexpr std::int64_t kCifPalPixels = 352 * 288;

} // namespace

void GetBitrateRange(int resolutionIndex, int frameRateIndex, unsigned* minKbps, unsigned* maxKbps,
                     int codec, int codecFlag, int fullFrameRate)
{
    std::int64_t full = fullFrameRate;
    if (full < 1)
        full = 50;
    if (full > 149)
        full = 50;

    int width = 0;
    int height = 0;
    if (resolutionIndex > 0)
        ResolutionIndexToSize(resolutionIndex - 1, &width, &height, 0);

    std::int64_t frameRate = 0;
    // An index past the list reads as no frame rate rather than past the array.
    if (frameRateIndex > 0 && frameRateIndex <= kRangeFrameRateCount)
        frameRate = std::atoi(g_szRangeFrameRates[frameRateIndex - 1]);

    const std::int64_t pixels = static_cast<std::int32_t>(width * height);
    const std::int64_t divisor = (codec == 1 && codecFlag != 0) ? kCifNtscPixels : kCifPalPixels;

    // Dividing by the full rate before scaling by pixels truncates early; the
    // results depend on that order.
    const std::int64_t low = ((full + 2) * frameRate * 7 / full) * pixels / divisor;
    const std::int64_t high = ((full + 2) * frameRate * 40 / full) * pixels / divisor;

    if (minKbps)
        *minKbps = static_cast<unsigned>(static_cast<std::uint64_t>(low));
    if (maxKbps)
        *maxKbps = static_cast<unsigned>(static_cast<std::uint64_t>(high));
}

int GetBitrateEstimate(int resolutionIndex, int frameRateIndex, int codec, int codecFlag,
                       unsigned* minKbps, unsigned* maxKbps, int fullFrameRate)
{
    unsigned low = 0;
    unsigned high = 0;
    GetBitrateRange(resolutionIndex, frameRateIndex, &low, &high, codec, codecFlag, fullFrameRate);
    if (minKbps)
        *minKbps = low;
    if (maxKbps)
        *maxKbps = high;
    // Widened so the sum cannot overflow; the halving still truncates to zero.
    const std::int64_t sum =
        static_cast<std::int64_t>(static_cast<std::int32_t>(low)) + static_cast<std::int32_t>(high);
    return static_cast<int>(sum / 2);
}

int RoundToStep(int value, int step)
{
    if (step == 0)
        return value;
    // 64-bit so that INT_MIN % -1 and the step past INT_MAX stay defined;
    // the result keeps the low 32 bits as the 32-bit version would.
    const std::int64_t v = value;
    const std::int64_t s = step;
    const std::int64_t r = v % s;
    const std::int64_t half = s / 2;
    const std::int64_t result = r < half ? v - r : v - r + s;
    return static_cast<int>(static_cast<std::uint32_t>(static_cast<std::uint64_t>(result)));
}

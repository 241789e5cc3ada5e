#include "calculator/engine/CapacityUnits.h"

#include "calculator/engine/BoundedFormat.h"

namespace {

const double kUnitThreshold = 10000.0;
const double kUnitStep = 1024.0;

// The capacity text buffer holds 512 characters; bit rates and counts get the
// same, which fits any double printed with two decimals.
const std::size_t kValueTextCount = 512;

const wchar_t* const kCapacityUnits[kCapacityUnitCount] = { L"GB", L"TB", L"PB", L"EB" };

SteppedValue StepUnit(double dValue, int nLastUnit)
{
    SteppedValue stepped = { dValue, 0 };
    while (kUnitThreshold < stepped.dValue) {
        stepped.dValue = stepped.dValue / kUnitStep;
        ++stepped.nUnit;
        if (stepped.nUnit == nLastUnit)
            break;
    }
    return stepped;
}

} // namespace

SteppedValue StepCapacityUnit(double dGB)
{
    return StepUnit(dGB, kCapacityUnitCount - 1);
}

SteppedValue StepBitrateUnit(double dKbps)
{
    return StepUnit(dKbps, kBitrateUnitCount - 1);
}

const wchar_t* CapacityUnitText(int nUnit)
{
    if (nUnit < 0 || nUnit >= kCapacityUnitCount)
        return L"";
    return kCapacityUnits[nUnit];
}

std::wstring FormatCapacityGB(double dGB)
{
    const SteppedValue stepped = StepCapacityUnit(dGB);
    // Windows' "%s" in a wide format is a wide string; here that is "%ls".
    return FormatBounded(kValueTextCount, L"%.2f%ls", stepped.dValue,
                         CapacityUnitText(stepped.nUnit));
}

std::wstring FormatTotalBitrate(double dKbps)
{
    const SteppedValue stepped = StepBitrateUnit(dKbps);
    switch (stepped.nUnit) {
    case 0:
        return FormatBounded(kValueTextCount, L"%.2f kbps", stepped.dValue);
    case 1:
        return FormatBounded(kValueTextCount, L"%.2f Mbps", stepped.dValue);
    default:
        return FormatBounded(kValueTextCount, L"%.2f Gbps", stepped.dValue);
    }
}

std::wstring FormatChannelCount(int nChannels)
{
    return FormatBounded(kValueTextCount, L"%d", nChannels);
}

#include "calculator/engine/DiskRequirement.h"

#include "calculator/engine/CapacityUnits.h"

const wchar_t* const kZeroDiskRequirementText = L"0.00GB";

double DiskRequirementGB(int nDays, double dTotalBitrate)
{
    return nDays * dTotalBitrate * 3600 * 24 / 1024 / 8 / 1024;
}

CalcResult CalcDiskRequirement(int nDays, double dTotalBitrate)
{
    CalcResult result;
    if (dTotalBitrate == 0.0) {
        result.strValue = kZeroDiskRequirementText;
        result.bTwinkle = false;
        return result;
    }
    result.strValue = FormatCapacityGB(DiskRequirementGB(nDays, dTotalBitrate));
    return result;
}

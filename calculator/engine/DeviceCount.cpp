#include "calculator/engine/DeviceCount.h"

#include "calculator/engine/BoundedFormat.h"
#include "calculator/engine/DiskRequirement.h"
#include "calculator/engine/RaidCapacity.h"
#include "calculator/engine/RaidTables.h"
#include "calculator/engine/SaturatingTruncate.h"

#include <climits>

namespace {

const std::size_t kDeviceTextCount = 512;

} // namespace

double RaidDeviceCapacityGB(int nDiskSel, int nDataDisks)
{
    const long long nDiskTB = static_cast<long long>(nDiskSel) + 1;
    return static_cast<double>(nDiskTB * nDataDisks) * kRaidUsableShare * 1024;
}

long long RequestDeviceCount(double dNeedGB, double dCapacityGB)
{
    const double dRatio = dNeedGB / dCapacityGB;
    long long nDevices = TruncateToInt64(dRatio);
    if (static_cast<double>(nDevices) < dRatio && nDevices < LLONG_MAX)
        ++nDevices;
    return nDevices;
}

std::wstring FormatZeroDevices(const wchar_t* pszDevice)
{
    return FormatBounded(kDeviceTextCount, L"%lld  %ls", 0LL, SafeWord(pszDevice));
}

std::wstring FormatDeviceCount(long long nDevices, const wchar_t* pszDevice,
                               const wchar_t* pszDevices)
{
    const wchar_t* pszWord = nDevices > 1 ? pszDevices : pszDevice;
    if (nDevices >= kDeviceCountTwoLines)
        return FormatBounded(kDeviceTextCount, L"%lld\r\n%ls", nDevices, SafeWord(pszWord));
    return FormatBounded(kDeviceTextCount, L"%lld %ls", nDevices, SafeWord(pszWord));
}

CalcResult CalcDeviceCount(const CRaidTables& tables, double dTotalBitrate, int nDays, int nDevice,
                           int nLevel, int nBaySel, int nDiskSel, const wchar_t* pszDevice,
                           const wchar_t* pszDevices)
{
    CalcResult result;
    if (dTotalBitrate == 0.0) {
        result.strValue = FormatZeroDevices(pszDevice);
        result.bFixValueRect = true;
        return result;
    }

    const int nDisks = tables.LookupDataDisks(nDevice, nLevel, nBaySel);
    const double dCapacity = RaidDeviceCapacityGB(nDiskSel, nDisks);
    const double dNeed = DiskRequirementGB(nDays, dTotalBitrate);
    if (dCapacity == 0.0) {
        result.strValue = FormatZeroDevices(pszDevice);
        return result;
    }

    const long long nDevices = RequestDeviceCount(dNeed, dCapacity);
    result.strValue = FormatDeviceCount(nDevices, pszDevice, pszDevices);
    result.bFixValueRect = nDevices < kDeviceCountTwoLines;
    return result;
}

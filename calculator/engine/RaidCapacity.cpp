#include "calculator/engine/RaidCapacity.h"

#include "calculator/engine/BoundedFormat.h"
#include "calculator/engine/RaidTables.h"

namespace {

const std::size_t kRaidTextCount = 512;

} // namespace

double RaidAvailableTB(int nDiskSel, int nDataDisks)
{
    // 64-bit so that no selection can overflow; the table's products are small.
    const long long nDiskTB = static_cast<long long>(nDiskSel) + 1;
    return static_cast<double>(nDiskTB * nDataDisks) * kRaidUsableShare;
}

std::wstring FormatRaidAvailable(double dTB)
{
    return FormatBounded(kRaidTextCount, L"%.2fTB", dTB);
}

CalcResult CalcRaidCapacity(const CRaidTables& tables, int nDevice, int nLevel, int nBaySel,
                            int nDiskSel)
{
    CalcResult result;
    const int nDisks = tables.LookupDataDisks(nDevice, nLevel, nBaySel);
    result.strValue = FormatRaidAvailable(RaidAvailableTB(nDiskSel, nDisks));
    return result;
}

#include "calculator/engine/RaidTables.h"

#include "calculator/engine/BoundedFormat.h"

namespace {

const std::size_t kBayItemCount = 32;

} // namespace

CRaidTables::CRaidTables()
{
    InitBayOptions();
    InitDataDiskTable();
}

void CRaidTables::InitBayOptions()
{
    const std::vector<int> vecSmall = { 8, 16 };
    const std::vector<int> vecLarge = { 16, 24, 36, 48 };
    const std::vector<int> vecLargeNo16 = { 24, 36, 48 };

    for (int nLevel = LEVEL_RAID1; nLevel <= LEVEL_RAID6; ++nLevel) {
        m_mapBayOptions[DEV_KTR6][nLevel] = vecSmall;
        m_mapBayOptions[DEV_MQS50][nLevel] = vecLarge;
        m_mapBayOptions[DEV_MQS70][nLevel] = vecLarge;
    }
    m_mapBayOptions[DEV_MQS71][LEVEL_RAID1] = vecLarge;
    m_mapBayOptions[DEV_MQS71][LEVEL_RAID5] = vecLargeNo16;
    m_mapBayOptions[DEV_MQS71][LEVEL_RAID6] = vecLargeNo16;
}

void CRaidTables::InitDataDiskTable()
{
    struct Row {
        int nDevice;
        int nLevel;
        std::vector<int> vecDisks; // by bay list position
    };
    // MQS71 with RAID 5 on 48 bays carries 41, one more than MQS50 and MQS70.
    const Row aRows[] = {
        { DEV_KTR6, LEVEL_RAID1, { 4, 8 } },
        { DEV_KTR6, LEVEL_RAID5, { 6, 12 } },
        { DEV_KTR6, LEVEL_RAID6, { 4, 10 } },
        { DEV_MQS50, LEVEL_RAID1, { 8, 12, 18, 24 } },
        { DEV_MQS50, LEVEL_RAID5, { 12, 20, 30, 40 } },
        { DEV_MQS50, LEVEL_RAID6, { 10, 16, 26, 36 } },
        { DEV_MQS70, LEVEL_RAID1, { 8, 12, 18, 24 } },
        { DEV_MQS70, LEVEL_RAID5, { 12, 20, 30, 40 } },
        { DEV_MQS70, LEVEL_RAID6, { 10, 16, 26, 36 } },
        { DEV_MQS71, LEVEL_RAID1, { 8, 12, 18, 24 } },
        { DEV_MQS71, LEVEL_RAID5, { 20, 30, 41 } },
        { DEV_MQS71, LEVEL_RAID6, { 18, 28, 38 } },
    };
    for (const Row& row : aRows) {
        for (std::size_t i = 0; i < row.vecDisks.size(); ++i)
            m_mapDataDisks[row.nDevice][row.nLevel][static_cast<int>(i)] = row.vecDisks[i];
    }
}

int CRaidTables::LookupBayCount(int nDevice, int nLevel, unsigned nIndex) const
{
    const std::vector<int>* pBays = FindBayOptions(nDevice, nLevel);
    if (!pBays || nIndex >= pBays->size())
        return 0;
    return (*pBays)[nIndex];
}

int CRaidTables::LookupDataDisks(int nDevice, int nLevel, int nBayIndex) const
{
    const auto itDevice = m_mapDataDisks.find(nDevice);
    if (itDevice == m_mapDataDisks.end())
        return 0;
    const auto itLevel = itDevice->second.find(nLevel);
    if (itLevel == itDevice->second.end())
        return 0;
    const auto itBay = itLevel->second.find(nBayIndex);
    if (itBay == itLevel->second.end())
        return 0;
    return itBay->second;
}

const std::vector<int>* CRaidTables::FindBayOptions(int nDevice, int nLevel) const
{
    const auto itDevice = m_mapBayOptions.find(nDevice);
    if (itDevice == m_mapBayOptions.end())
        return nullptr;
    const auto itLevel = itDevice->second.find(nLevel);
    if (itLevel == itDevice->second.end())
        return nullptr;
    return &itLevel->second;
}

std::wstring CRaidTables::FormatBayItem(int nBays)
{
    return FormatBounded(kBayItemCount, L"%d bay", nBays);
}

int CRaidTables::SelectRememberedBays(const std::vector<int>& vecBays, int& nRemembered)
{
    for (std::size_t i = 0; i < vecBays.size(); ++i) {
        if (vecBays[i] == nRemembered)
            return static_cast<int>(i);
    }
    nRemembered = vecBays.empty() ? 0 : vecBays.front();
    return -1;
}

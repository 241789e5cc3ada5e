#pragma once
// The RAID device model: which bay counts each device type and RAID level
// offer, and how many disks of each such layout carry data. Hot spares and
// group sizes are settled by hand in the tables, not computed.

#include <map>
#include <string>
#include <vector>

class CRaidTables {
public:
    // Device type combo indexes.
    enum { DEV_KTR6 = 0, DEV_MQS50 = 1, DEV_MQS70 = 2, DEV_MQS71 = 3 };
    // RAID level combo indexes.
    enum { LEVEL_RAID1 = 0, LEVEL_RAID5 = 1, LEVEL_RAID6 = 2 };

    typedef std::map<int, std::map<int, std::vector<int>>> BayOptionsMap;
    typedef std::map<int, std::map<int, std::map<int, int>>> DataDisksMap;

    CRaidTables();

    // Bay count at position nIndex of the device's and level's list; 0 when
    // either key is missing or the index is out of the list (-1 included).
    int LookupBayCount(int nDevice, int nLevel, unsigned nIndex) const;
    // Data disks by device, level and bay list position; 0 when any key is
    // missing.
    int LookupDataDisks(int nDevice, int nLevel, int nBayIndex) const;

    // The bay list of a device and level, or null when there is none.
    const std::vector<int>* FindBayOptions(int nDevice, int nLevel) const;

    // Bay combo item text, "%d bay".
    static std::wstring FormatBayItem(int nBays);
    // Where a rebuilt bay combo should stand: the position of nRemembered in
    // vecBays, or -1 when it is not there, in which case nRemembered becomes
    // the first entry (0 for an empty list) and the combo stays on its first
    // item.
    static int SelectRememberedBays(const std::vector<int>& vecBays, int& nRemembered);

    const BayOptionsMap& GetBayOptions() const { return m_mapBayOptions; }
    const DataDisksMap& GetDataDisks() const { return m_mapDataDisks; }

private:
    void InitBayOptions();
    void InitDataDiskTable();

    BayOptionsMap m_mapBayOptions;
    DataDisksMap m_mapDataDisks;
};

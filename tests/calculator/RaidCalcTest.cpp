#include "calculator/engine/DeviceCount.h"
#include "calculator/engine/RaidCapacity.h"
#include "calculator/engine/RaidTables.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

std::size_t CountDataDisks(const CRaidTables& tables)
{
    std::size_t nCount = 0;
    for (const auto& device : tables.GetDataDisks())
        for (const auto& level : device.second)
            nCount += level.second.size();
    return nCount;
}

TEST(RaidTablesTest, LookupsOutsideTheTablesFindNothingAndInsertNothing)
{
    const CRaidTables tables;
    EXPECT_EQ(CountDataDisks(tables), 40u);
    EXPECT_EQ(tables.LookupDataDisks(4, 0, 0), 0);
    EXPECT_EQ(tables.LookupDataDisks(-1, -1, -1), 0);
    EXPECT_EQ(tables.LookupBayCount(4, 0, 0), 0);
    EXPECT_EQ(tables.FindBayOptions(-1, 0), nullptr);
    // KTR6 with RAID 0 offers two bay counts: indexes past them find nothing.
    EXPECT_EQ(tables.LookupBayCount(0, 0, 2), 0);
    EXPECT_EQ(tables.LookupBayCount(0, 0, static_cast<unsigned>(-1)), 0);
    EXPECT_EQ(tables.LookupDataDisks(0, 0, 2), 0);
    EXPECT_EQ(tables.LookupDataDisks(0, 0, -1), 0);
    EXPECT_EQ(CountDataDisks(tables), 40u);
}

TEST(RaidTablesTest, RememberedBaysFollowTheUser)
{
    const CRaidTables tables;
    // First rebuild after start: 0 is in no list.
    int nRemembered = 0;
    EXPECT_EQ(CRaidTables::SelectRememberedBays(*tables.FindBayOptions(0, 0), nRemembered), -1);
    EXPECT_EQ(nRemembered, 8);
    // The user picks "16 bay" on KTR6.
    nRemembered = tables.LookupBayCount(0, 0, 1);
    EXPECT_EQ(nRemembered, 16);
    // MQS71 with RAID 5 offers no 16: back to its smallest offer.
    EXPECT_EQ(CRaidTables::SelectRememberedBays(*tables.FindBayOptions(3, 1), nRemembered), -1);
    EXPECT_EQ(nRemembered, 24);
    // MQS50 offers 24 at its second place.
    EXPECT_EQ(CRaidTables::SelectRememberedBays(*tables.FindBayOptions(1, 1), nRemembered), 1);
    EXPECT_EQ(nRemembered, 24);

    std::vector<int> vecEmpty;
    nRemembered = 36;
    EXPECT_EQ(CRaidTables::SelectRememberedBays(vecEmpty, nRemembered), -1);
    EXPECT_EQ(nRemembered, 0);
}

struct CapacityCase {
    int nDevice;
    int nLevel;
    int nBaySel;
    int nDiskSel;
    const wchar_t* pszText;
};

class RaidCapacityTest : public ::testing::TestWithParam<CapacityCase> {};

TEST_P(RaidCapacityTest, AvailableTB)
{
    const CRaidTables tables;
    const CapacityCase& c = GetParam();
    const CalcResult result = CalcRaidCapacity(tables, c.nDevice, c.nLevel, c.nBaySel, c.nDiskSel);
    EXPECT_EQ(result.strValue, c.pszText);
    EXPECT_TRUE(result.bTwinkle);
}

INSTANTIATE_TEST_SUITE_P(Layouts, RaidCapacityTest,
                         ::testing::Values(
                             // 1 * 4 * 0.9
                             CapacityCase{ 0, 0, 0, 0, L"3.60TB" },
                             // 4 * 12 * 0.9
                             CapacityCase{ 0, 1, 1, 3, L"43.20TB" },
                             // 16 * 41 * 0.9
                             CapacityCase{ 3, 1, 2, 15, L"590.40TB" },
                             CapacityCase{ 3, 2, 0, 9, L"162.00TB" },
                             // Selections without an entry give no disks.
                             CapacityCase{ 0, 0, -1, 0, L"0.00TB" },
                             CapacityCase{ 4, 0, 0, 0, L"0.00TB" },
                             CapacityCase{ 0, 0, 0, -1, L"0.00TB" }));

struct DeviceCase {
    const char* pszName;
    double dRate;
    int nDays;
    int nDevice;
    int nLevel;
    int nBaySel;
    int nDiskSel;
    const wchar_t* pszText;
    bool bFixValueRect;
};

class DeviceCountTest : public ::testing::TestWithParam<DeviceCase> {};

TEST_P(DeviceCountTest, RequestDevice)
{
    const CRaidTables tables;
    const DeviceCase& c = GetParam();
    const CalcResult result = CalcDeviceCount(tables, c.dRate, c.nDays, c.nDevice, c.nLevel,
                                              c.nBaySel, c.nDiskSel, L"Device", L"Devices");
    EXPECT_EQ(result.strValue, c.pszText);
    EXPECT_EQ(result.bFixValueRect, c.bFixValueRect);
    EXPECT_TRUE(result.bTwinkle);
}

INSTANTIATE_TEST_SUITE_P(
    Answers, DeviceCountTest,
    ::testing::Values(
        // need 126562.5, capacity 265420.8: ratio 0.4768
        DeviceCase{ "OneDevice", 409600.0, 30, 1, 2, 3, 7, L"1 Device", true },
        // need 22118.4 is exactly twice the 11059.2 of one device.
        DeviceCase{ "ExactlyTwo", 2147483.648, 1, 0, 0, 0, 2, L"2 Devices", true },
        DeviceCase{ "JustAboveTwo", 2147483.649, 1, 0, 0, 0, 2, L"3 Devices", true },
        // One device holds 3686.4 GB.
        DeviceCase{ "Ratio99998Half", 35790857262.42133, 1, 0, 0, 0, 0, L"99999 Devices", true },
        DeviceCase{ "Ratio99999Half", 35791215176.36267, 1, 0, 0, 0, 0, L"100000\r\nDevices",
                    false },
        DeviceCase{ "ZeroRate", 0.0, 30, 1, 2, 3, 7, L"0  Device", true },
        DeviceCase{ "NoDataDisks", 409600.0, 30, 0, 0, -1, 0, L"0  Device", false },
        DeviceCase{ "UnknownDevice", 409600.0, 30, 7, 0, 0, 0, L"0  Device", false }),
    [](const ::testing::TestParamInfo<DeviceCase>& info) {
        return std::string(info.param.pszName);
    });

TEST(DeviceCountTest, HugeDemandStaysOnTwoLines)
{
    const CRaidTables tables;
    const CalcResult result =
        CalcDeviceCount(tables, 1e300, 3650, 0, 0, 0, 0, L"Device", L"Devices");
    EXPECT_EQ(result.strValue, L"9223372036854775807\r\nDevices");
    EXPECT_FALSE(result.bFixValueRect);
}

} // namespace

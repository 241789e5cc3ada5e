#include <gtest/gtest.h>

#include <vector>

#include "RaidTables.h"

namespace {

struct LayoutCase {
    int nDevice;
    int nLevel;
    std::vector<int> vecBays;
    std::vector<int> vecDisks;
};

class RaidLayoutTest : public ::testing::TestWithParam<LayoutCase> {};

TEST_P(RaidLayoutTest, BaysAndDataDisks)
{
    const CRaidTables tables;
    const LayoutCase& c = GetParam();
    ASSERT_EQ(c.vecBays.size(), c.vecDisks.size());
    const std::vector<int>* pBays = tables.FindBayOptions(c.nDevice, c.nLevel);
    ASSERT_NE(pBays, nullptr);
    EXPECT_EQ(*pBays, c.vecBays);
    for (std::size_t i = 0; i < c.vecBays.size(); ++i) {
        EXPECT_EQ(tables.LookupBayCount(c.nDevice, c.nLevel, static_cast<unsigned>(i)), c.vecBays[i]);
        EXPECT_EQ(tables.LookupDataDisks(c.nDevice, c.nLevel, static_cast<int>(i)), c.vecDisks[i]);
    }
    const int nPast = static_cast<int>(c.vecBays.size());
    EXPECT_EQ(tables.LookupBayCount(c.nDevice, c.nLevel, static_cast<unsigned>(nPast)), 0);
    EXPECT_EQ(tables.LookupBayCount(c.nDevice, c.nLevel, static_cast<unsigned>(-1)), 0);
    EXPECT_EQ(tables.LookupDataDisks(c.nDevice, c.nLevel, nPast), 0);
    EXPECT_EQ(tables.LookupDataDisks(c.nDevice, c.nLevel, -1), 0);
}

INSTANTIATE_TEST_SUITE_P(Devices, RaidLayoutTest, ::testing::Values(
    LayoutCase{0, 0, {8, 16}, {4, 8}},
    LayoutCase{1, 2, {16, 24, 36, 48}, {10, 16, 26, 36}},
    LayoutCase{3, 1, {24, 36, 48}, {20, 30, 41}},
    LayoutCase{3, 2, {24, 36, 48}, {18, 28, 38}}));

std::size_t CountDataDisks(const CRaidTables& tables)
{
    std::size_t nCount = 0;
    for (const auto& device : tables.GetDataDisks())
        for (const auto& level : device.second)
            nCount += level.second.size();
    return nCount;
}

TEST(RaidTablesTest, FortyEntriesAndLookupsInsertNothing)
{
    const CRaidTables tables;
    EXPECT_EQ(CountDataDisks(tables), 40u);
    EXPECT_EQ(tables.LookupDataDisks(4, 0, 0), 0);
    EXPECT_EQ(tables.LookupDataDisks(-1, -1, -1), 0);
    EXPECT_EQ(tables.LookupBayCount(4, 0, 0), 0);
    EXPECT_EQ(tables.FindBayOptions(-1, 0), nullptr);
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

} // namespace

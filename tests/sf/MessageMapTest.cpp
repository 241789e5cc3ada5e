// Message map search and the handler-side dispatch.

#include "sf/ISFButtonEvent.h"
#include "sf/ISFDialogEvent.h"
#include "sf/SFMessageMap.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

// Search on a raw table: the end entry stops it, ranges are inclusive and
// unsigned, and the first match in table order wins.
const SF_MSGMAP_ENTRY kTable[] = {
    { SF_MSG_COMMAND, 0, 10, 20, SF_SIG_VOID, 0, nullptr },                   // 0
    { SF_MSG_COMMAND, 0, 15, 30, SF_SIG_VOID, 0, nullptr },                   // 1 overlaps 0
    { SF_MSG_NOTIFY, 2, 10, 10, SF_SIG_NOTIFY, 0, nullptr },                  // 2
    { SF_MSG_COMMAND, 0, 0xFFFFFFF0u, 0xFFFFFFFFu, SF_SIG_VOID, 0, nullptr }, // 3
    { 0, 0, 0, 0, SF_SIG_END, 0, nullptr },
    { SF_MSG_COMMAND, 0, 100, 100, SF_SIG_VOID, 0, nullptr }, // past the end
};

struct SearchCase {
    unsigned int message;
    unsigned int code;
    unsigned int id;
    int expected; // index into kTable, -1 for none
};

class MapSearch : public testing::TestWithParam<SearchCase> {};

TEST_P(MapSearch, FindsFirstMatchingEntry)
{
    const SearchCase c = GetParam();
    const SF_MSGMAP_ENTRY* found = SFFindMessageEntry(kTable, c.message, c.code, c.id);
    if (c.expected < 0)
        EXPECT_EQ(found, nullptr);
    else
        EXPECT_EQ(found, &kTable[c.expected]);
}

INSTANTIATE_TEST_SUITE_P(
    Table, MapSearch,
    testing::Values(SearchCase{ SF_MSG_COMMAND, 0, 10, 0 }, SearchCase{ SF_MSG_COMMAND, 0, 20, 0 },
                    SearchCase{ SF_MSG_COMMAND, 0, 9, -1 },
                    SearchCase{ SF_MSG_COMMAND, 0, 17, 0 }, // overlap: table order
                    SearchCase{ SF_MSG_COMMAND, 0, 21, 1 }, SearchCase{ SF_MSG_COMMAND, 0, 31, -1 },
                    SearchCase{ SF_MSG_COMMAND, 1, 12, -1 }, // code must match
                    SearchCase{ SF_MSG_NOTIFY, 2, 10, 2 }, SearchCase{ SF_MSG_NOTIFY, 3, 10, -1 },
                    SearchCase{ SF_MSG_COMMAND, 0, 0xFFFFFFFFu, 3 },
                    SearchCase{ SF_MSG_COMMAND, 0, 100, -1 })); // after the end entry

TEST(MapSearchEdges, EmptyAndNullTablesHoldNothing)
{
    const SF_MSGMAP_ENTRY onlyEnd[] = { { 0, 0, 0, 0, SF_SIG_END, 0, nullptr } };
    for (unsigned int message : { 0u, SF_MSG_NOTIFY, SF_MSG_COMMAND })
        EXPECT_EQ(SFFindMessageEntry(onlyEnd, message, 0, 0), nullptr);
    EXPECT_EQ(SFFindMessageEntry(static_cast<const SF_MSGMAP_ENTRY*>(nullptr), SF_MSG_COMMAND, 0,
                                 1),
              nullptr);
    EXPECT_EQ(SFFindMessageEntry(static_cast<const SF_MSGMAP*>(nullptr), SF_MSG_COMMAND, 0, 1),
              nullptr);
}

// A handler whose window interface is not its first base, so reaching it from
// the CSFEventBase subobject needs a pointer adjustment.
struct Payload {
    virtual ~Payload() {}
    std::string name = "multi";
    std::vector<std::string> log;
};

class CMultiHandler : public ISFButtonEvent, public Payload, public ISFDialogEvent {
    SF_DECLARE_MSGMAP()
public:
    int Dlg_OnInitDialog(bool) override { return 1; }

    void OnApply() { log.push_back(name + ":apply"); }
    void OnRange() { log.push_back(name + ":range"); }
    void OnRow(tagNMHDR* hdr, long* result)
    {
        log.push_back(name + ":row" + std::to_string(hdr ? hdr->code : 0u));
        if (result)
            *result = 42;
    }
    void OnVoidNotify() { log.push_back(name + ":voidnotify"); }
};

SF_BEGIN_MSGMAP(CMultiHandler)
    SF_ON_COMMAND(3, OnApply)
    SF_ON_COMMAND_RANGE(10, 20, OnRange)
    SF_ON_NOTIFY(2, 7, OnRow)
    SF_MAP_ENTRY(SF_MSG_NOTIFY, 9, 7, 7, SF_SIG_VOID, OnVoidNotify)
    SF_MAP_ENTRY(SF_MSG_COMMAND, 0, 4, 4, SF_SIG_NOTIFY, OnRow)
SF_END_MSGMAP()

TEST(MessageMapDispatch, MemberOfAHandlerWithSeveralBasesReadsItsOwnFields)
{
    CMultiHandler h;
    CSFEventBase* base = &h;
    ASSERT_NE(static_cast<void*>(base), static_cast<void*>(&h)) << "the test needs an offset base";

    base->Dlg_OnCommand(3);
    base->Dlg_OnCommand(15);
    base->Dlg_OnCommand(21); // not mapped
    base->Dlg_OnCommand(4);  // mapped with the notify signature: commands call signature 1 only
    tagNMHDR hdr{ nullptr, 7, 99 };
    long result = 0;
    base->OnNotifyClick(0x10002, 7, &hdr, &result); // only the low 16 bits of the code count
    base->OnNotifyClick(9, 7, &hdr, &result);

    const std::vector<std::string> expected = { "multi:apply", "multi:range", "multi:row99",
                                                "multi:voidnotify" };
    EXPECT_EQ(h.log, expected);
    EXPECT_EQ(result, 42);
}

} // namespace

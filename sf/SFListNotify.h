#pragma once
// What the list control hands its parent window with a notification, and
// the record of SubItemHitTest.

#include "platform/WinTypes.h"
#include "sf/SFMessageMap.h"

// Notification codes of the list control (message 78).
constexpr unsigned int SF_LIST_NOTIFY_CLICK = 2;
constexpr unsigned int SF_LIST_NOTIFY_DBLCLICK = 3;
constexpr unsigned int SF_LIST_NOTIFY_HEADER_CLICK = 9;
constexpr unsigned int SF_LIST_NOTIFY_ITEM_CHANGED = 10;

// 48 bytes, zeroed before it is filled; lives on the sender's stack only for
// the time of the call.
struct SFListNotifyRecord {
    tagNMHDR hdr;
    int iItem;    // row, -1 when there is none
    int iSubItem; // column, -1 when there is none
    unsigned char reserved[48 - sizeof(tagNMHDR) - 2 * sizeof(int)];
};
static_assert(sizeof(SFListNotifyRecord) == 48, "the notification record is 48 bytes");

// pt in, the row and column under it out (-1 where there is none).
struct SFListHitTestInfo {
    tagPOINT pt;
    unsigned int flags;
    int iItem;
    int iSubItem;
};

#pragma once
// Ids of the controls that the list control builds in its cells. A row
// control carries its kind in the high bits and the row it was made for
// below; the row may be stale after a deletion, the kind never is.

constexpr unsigned int SF_LIST_ID_KIND_MASK = 0xF0000000u;
constexpr unsigned int SF_LIST_ID_ENVIRONMENT = 0x30000000u; // combo and Preview button
constexpr unsigned int SF_LIST_ID_COMPRESSION = 0x40000000u; // combo, and the bit-rate edit
constexpr unsigned int SF_LIST_ID_RESOLUTION = 0x50000000u;
constexpr unsigned int SF_LIST_ID_FRAMERATE = 0x60000000u;

// Channel spinner, audio toggle and custom frame-rate edit carry the row alone.

// The first button of SetItemWidget (the row's delete button), the same in all rows.
constexpr unsigned int SF_LIST_ID_DELETE = 0x856u;
// Its optional second button.
constexpr unsigned int SF_LIST_ID_SECOND_BUTTON = 0x857u;
// The check in the header of InsertColumnCheck.
constexpr unsigned int SF_LIST_ID_HEADER_CHECK = 0x858u;

#pragma once
// Ids of the controls that the list control builds in its cells. A row
// control carries its kind in the high bits and the row it was made for
// below; the row may be stale after a deletion, the kind never is.

constexpr unsigned int SF_LIST_ID_KIND_MASK = 0xF0000000u;
constexpr unsigned int SF_LIST_ID_BUTTON_COMBO = 0x30000000u; // combo and the button beside it
constexpr unsigned int SF_LIST_ID_FIRST_COMBO = 0x40000000u;  // combo, and the row's edit
constexpr unsigned int SF_LIST_ID_SECOND_COMBO = 0x50000000u;
constexpr unsigned int SF_LIST_ID_EDIT_COMBO = 0x60000000u;

// The spinner, the check and the edit beside a combo carry the row alone.

// Types of SetItemComboBox, with the id bases above in this order.
constexpr int SF_LIST_COMBO_WITH_BUTTON = 0;
constexpr int SF_LIST_COMBO_FIRST_PLAIN = 1;
constexpr int SF_LIST_COMBO_SECOND_PLAIN = 2;
constexpr int SF_LIST_COMBO_WITH_EDIT = 3;
constexpr int SF_LIST_COMBO_TYPE_COUNT = 4;

// The first button of SetItemWidget (the row's delete button), the same in all rows.
constexpr unsigned int SF_LIST_ID_DELETE = 0x856u;
// Its optional second button.
constexpr unsigned int SF_LIST_ID_SECOND_BUTTON = 0x857u;
// The check in the header of InsertColumnCheck.
constexpr unsigned int SF_LIST_ID_HEADER_CHECK = 0x858u;

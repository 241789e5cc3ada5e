#pragma once
// Reference data of the five bay classes: RAID 5 group layouts with hot
// spares. No displayed number is taken from here; the data disk table of
// CRaidTables decides (it says 30 for 36 bays where this says 28).

const int kBayClassCount = 5;
const int kHotSpaceLayoutSize = 30;

extern const int g_aBayClass[kBayClassCount];
extern const char g_aHotSpaceLayout[kBayClassCount][kHotSpaceLayoutSize];
extern const int g_aRaid5DataDisks[kBayClassCount];

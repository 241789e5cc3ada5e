#pragma once
// The storage media offered for recording days, and typed capacities.

const int kCapacityItemCount = 13; // "32GB" to "16TB"; "Customize" has no row

// Decimal GB to binary GB, cut to seven decimals.
const double kBinaryGBPerGB = 0.9313225;

// Nominal size in GB (1 TB counted as 1024 GB) and formatted size in binary
// GB, by capacity combo index. Only the formatted size enters a result.
extern const double g_aCapacityNominal[kCapacityItemCount];
extern const double g_aCapacityReal[kCapacityItemCount];

// g_aCapacityReal[nIndex], or 0 for an index without a row.
double CapacityRealGB(int nIndex);

// Binary GB of a typed capacity: the text as read from the edit (count 9, so
// only its first 8 characters count), narrowed and parsed as atof does, then
// times 0.9313225, and times 1024 when the unit is TB.
double CustomCapacityGB(const wchar_t* pszText, bool bInTB);

// The raw capacity of the recording-day mode: typed or from the table.
double RawCapacityGB(bool bCustomCapacity, const wchar_t* pszCustomText, bool bCustomInTB,
                     int nCapacityIndex);

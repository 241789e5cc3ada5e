#pragma once
// Number of RAID devices that a number of recording days needs.

#include "calculator/engine/CalcResult.h"

#include <string>

class CRaidTables;

// From this count on, the word goes to a second line.
const long long kDeviceCountTwoLines = 100000;

// GB of one device: ((disk selection + 1) * data disks) * 0.9 * 1024.
double RaidDeviceCapacityGB(int nDiskSel, int nDataDisks);

// need / capacity rounded up; an exact quotient stays as it is.
long long RequestDeviceCount(double dNeedGB, double dCapacityGB);

// "%lld  %ls" (two blanks) with 0: the answer for a zero rate or capacity.
std::wstring FormatZeroDevices(const wchar_t* pszDevice);
// "%lld %ls", or "%lld\r\n%ls" from 100000 devices on; the plural word for
// more than one device.
std::wstring FormatDeviceCount(long long nDevices, const wchar_t* pszDevice,
                               const wchar_t* pszDevices);

// The whole answer. Always flashed; bFixValueRect is set on the paths that
// guard the one-line value rectangle (zero rate, and counts below 100000),
// not on a zero capacity nor on a two-line count.
CalcResult CalcDeviceCount(const CRaidTables& tables, double dTotalBitrate, int nDays, int nDevice,
                           int nLevel, int nBaySel, int nDiskSel, const wchar_t* pszDevice,
                           const wchar_t* pszDevices);

#pragma once
// Available capacity of one RAID device.

#include "calculator/engine/CalcResult.h"

#include <string>

class CRaidTables;

// Share of the nominal disk capacity counted as usable on a RAID device. Not
// the recordable percentage setting.
const double kRaidUsableShare = 0.9;

// TB of one device: (disk selection + 1) * data disks as an integer, then
// times 0.9.
double RaidAvailableTB(int nDiskSel, int nDataDisks);

// "%.2fTB", never another unit.
std::wstring FormatRaidAvailable(double dTB);

// The whole answer from the four combo selections; always flashed. The total
// bit rate plays no part.
CalcResult CalcRaidCapacity(const CRaidTables& tables, int nDevice, int nLevel, int nBaySel,
                            int nDiskSel);

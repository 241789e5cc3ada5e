#pragma once
// Disk requirement: the capacity that a number of recording days occupies.

#include "calculator/engine/CalcResult.h"

// The value shown for a total bit rate of 0; it is not flashed.
extern const wchar_t* const kZeroDiskRequirementText; // "0.00GB"

// Binary GB that nDays of recording at dTotalBitrate kbps take, round the
// clock: days * rate * 3600 * 24 / 1024 / 8 / 1024, in this order.
double DiskRequirementGB(int nDays, double dTotalBitrate);

// The whole answer: "0.00GB" without flash for a zero rate, otherwise the
// stepped capacity ("%.2f%s", GB to EB) with flash.
CalcResult CalcDiskRequirement(int nDays, double dTotalBitrate);

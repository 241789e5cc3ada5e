#pragma once
// Display units: capacities from GB to EB, bit rates from kbps to Gbps. A
// value moves to the next unit only while it is above 10000 in the current one.

#include <string>

struct SteppedValue {
    double dValue;
    int nUnit; // index into the unit list of the stepping used
};

const int kCapacityUnitCount = 4; // "GB", "TB", "PB", "EB"
const int kBitrateUnitCount = 3;  // "kbps", "Mbps", "Gbps"

// Steps a capacity in binary GB by 1024 while above 10000, at most to "EB".
SteppedValue StepCapacityUnit(double dGB);
// Steps a bit rate in kbps by 1024 while above 10000, at most to "Gbps".
SteppedValue StepBitrateUnit(double dKbps);

// "GB", "TB", "PB", "EB" for 0 to 3; empty text for any other index.
const wchar_t* CapacityUnitText(int nUnit);

// "%.2f%s" of the stepped capacity, e.g. "147.66GB".
std::wstring FormatCapacityGB(double dGB);

// The totals line of the panel: "%.2f kbps" / "%.2f Mbps" / "%.2f Gbps".
std::wstring FormatTotalBitrate(double dKbps);
// "%d" of the channel count.
std::wstring FormatChannelCount(int nChannels);

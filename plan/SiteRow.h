#pragma once
// One line of a site file: one row of the channel table, as combo indexes
// and texts the way the row's controls would hold them.

#include "streams/engine/ChannelRowRules.h"

#include <string>

struct SiteRow {
    int nLine = 0;             // 1-based line in the file
    int nChannels = 1;         // 1 to 9999
    int nCompression = 0;      // combo index, 1 "H.264" to 4 "smart265"
    int nScene = 0;            // 0 none, 1 to 3
    int nResolution = 0;       // combo index, 1 "CIF" to 12 "12MP"
    int nFrameRateIndex = 0;   // combo index, 1 to 9, or the "Customize" entry
    std::string strCustomRate; // the custom edit's digits, with the "Customize" entry
    bool bAudio = false;
    bool bTypedBitrate = false;  // a bitrate column overrides the estimate
    std::string strTypedBitrate; // digits as typed, at most 9
};

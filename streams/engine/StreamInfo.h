#pragma once
// One stream of a channel group, as values: the stream editor fills it.

#include <map>

struct StreamInfo {
    int nAudio = 0;       // 0 off, 1 on
    int nCompression = 0; // 0 none, 1 "H.264", 2 "H.265"
    int nResolution = 0;  // combo index
    int nFrameRate = 0;   // combo index
    double dBitrate = 0;  // Kbps
};

// Keys 0 main stream, 1 first sub stream, 2 second sub stream.
typedef std::map<int, StreamInfo> StreamInfoMap;

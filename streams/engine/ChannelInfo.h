#pragma once
// A whole channel group by value.

#include "streams/engine/StreamInfo.h"

struct ChannelInfo {
    int nChannels = 0;
    StreamInfo stMain;
    StreamInfo stSub1;
    StreamInfo stSub2;
    int nRow = 0; // the row it stands for in the list
};

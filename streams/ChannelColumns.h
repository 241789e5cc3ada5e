#pragma once
// Columns of a row of the channel list, left to right.

enum ChannelColumn {
    ColNumber,
    ColChannels,
    ColCompression,
    ColEnvironment,
    ColResolution,
    ColFrameRate,
    ColAudio,
    ColBitrate,
    ColOperation,
    ChannelColumnCount
};

#pragma once
// The playback library, mapped on first use: it brings FFmpeg's hundred-odd
// shared libraries, which the program would otherwise map, relocate and
// initialise before its window shows, for a preview most sessions never open.

#include "vexplay/vexplay.h"

class CVexplayLibrary {
public:
    // The library's entry points, or null when it could not be loaded; the
    // library then stays unloaded and every call into it fails.
    static const CVexplayLibrary* Get();

    decltype(&vexplay_GetPort) GetPort = nullptr;
    decltype(&vexplay_OpenFile) OpenFile = nullptr;
    decltype(&vexplay_CloseFile) CloseFile = nullptr;
    decltype(&vexplay_Play) Play = nullptr;
    decltype(&vexplay_SetPlayFlag) SetPlayFlag = nullptr;
    decltype(&vexplay_SetFileEndCallback) SetFileEndCallback = nullptr;
    decltype(&vexplay_SetCallback125) SetCallback125 = nullptr;
    decltype(&vexplay_SetCallback157) SetCallback157 = nullptr;
    decltype(&vexplay_SetCallback109) SetCallback109 = nullptr;

private:
    CVexplayLibrary() = default;
    bool Load();
};

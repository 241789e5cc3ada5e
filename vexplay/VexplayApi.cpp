// The library's C entry points. Nothing may escape them but a result.

#include "vexplay/vexplay.h"

#include "vexplay/PortTable.h"

namespace {

template <typename Op>
int Guarded(Op op)
{
    try {
        return op() ? 1 : 0;
    } catch (...) {
        return 0;
    }
}

vexplay::PortTable& Ports()
{
    return vexplay::PortTable::Instance();
}

} // namespace

extern "C" {

int vexplay_GetPort(int* port)
{
    return Guarded([&] { return Ports().GetPort(port); });
}

int vexplay_OpenFile(int port, const char* path)
{
    return Guarded([&] { return Ports().OpenFile(port, path); });
}

int vexplay_CloseFile(int port)
{
    return Guarded([&] { return Ports().CloseFile(port); });
}

int vexplay_Play(int port, void* hWnd)
{
    return Guarded([&] { return Ports().Play(port, hWnd); });
}

int vexplay_SetPlayFlag(int port, int flag)
{
    return Guarded([&] { return Ports().SetPlayFlag(port, flag); });
}

int vexplay_SetFileEndCallback(int port, VEXPLAY_CALLBACK callback, void* user)
{
    return Guarded([&] { return Ports().SetFileEndCallback(port, callback, user); });
}

int vexplay_SetCallback125(int port, VEXPLAY_CALLBACK callback, void* user)
{
    return Guarded([&] { return Ports().SetOtherCallback(port, 0, callback, user); });
}

int vexplay_SetCallback157(int port, VEXPLAY_CALLBACK callback, void* user)
{
    return Guarded([&] { return Ports().SetOtherCallback(port, 1, callback, user); });
}

int vexplay_SetCallback109(int port, VEXPLAY_CALLBACK callback, void* user)
{
    return Guarded([&] { return Ports().SetOtherCallback(port, 2, callback, user); });
}

} // extern "C"

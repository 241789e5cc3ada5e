// The program's side of the playback library's header: each call goes to the
// library, loaded on the first one, and fails when it cannot be loaded.
#include "vexplay/VexplayLibrary.h"

namespace {

template <class Entry, class... Args>
int Forward(Entry CVexplayLibrary::*entry, Args... args)
{
    const CVexplayLibrary* library = CVexplayLibrary::Get();
    return library ? (library->*entry)(args...) : 0;
}

} // namespace

extern "C" {

int vexplay_GetPort(int* port)
{
    return Forward(&CVexplayLibrary::GetPort, port);
}

int vexplay_OpenFile(int port, const char* path)
{
    return Forward(&CVexplayLibrary::OpenFile, port, path);
}

int vexplay_CloseFile(int port)
{
    return Forward(&CVexplayLibrary::CloseFile, port);
}

int vexplay_Play(int port, void* hWnd)
{
    return Forward(&CVexplayLibrary::Play, port, hWnd);
}

int vexplay_SetPlayFlag(int port, int flag)
{
    return Forward(&CVexplayLibrary::SetPlayFlag, port, flag);
}

int vexplay_SetFileEndCallback(int port, VEXPLAY_CALLBACK callback, void* user)
{
    return Forward(&CVexplayLibrary::SetFileEndCallback, port, callback, user);
}

int vexplay_SetCallback125(int port, VEXPLAY_CALLBACK callback, void* user)
{
    return Forward(&CVexplayLibrary::SetCallback125, port, callback, user);
}

int vexplay_SetCallback157(int port, VEXPLAY_CALLBACK callback, void* user)
{
    return Forward(&CVexplayLibrary::SetCallback157, port, callback, user);
}

int vexplay_SetCallback109(int port, VEXPLAY_CALLBACK callback, void* user)
{
    return Forward(&CVexplayLibrary::SetCallback109, port, callback, user);
}

} // extern "C"

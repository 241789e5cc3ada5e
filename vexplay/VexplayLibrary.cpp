#include "vexplay/VexplayLibrary.h"

#include "platform/WinModule.h"

#include <QLoggingCategory>
#include <dlfcn.h>
#include <string>

namespace {

Q_LOGGING_CATEGORY(lcVexplayLoad, "tallix.vexplay.load", QtWarningMsg)

constexpr const char* kLibraryName = "libvexplay.so";

// Beside the executable first, where the program keeps everything it reads.
void* OpenLibrary()
{
    char path[4096] = {};
    const DWORD length = GetModuleFileNameA(nullptr, path, sizeof path);
    if (length > 0 && length < sizeof path) {
        std::string beside(path, length);
        beside.erase(beside.find_last_of('/') + 1);
        if (void* handle = dlopen((beside + kLibraryName).c_str(), RTLD_NOW | RTLD_LOCAL))
            return handle;
    }
    // The run path of an executable built outside the program's directory.
    return dlopen(kLibraryName, RTLD_NOW | RTLD_LOCAL);
}

template <class F>
bool Resolve(void* handle, const char* name, F& entry)
{
    entry = reinterpret_cast<F>(dlsym(handle, name));
    return entry != nullptr;
}

} // namespace

const CVexplayLibrary* CVexplayLibrary::Get()
{
    static const CVexplayLibrary* library = [] {
        auto* loaded = new CVexplayLibrary;
        if (loaded->Load())
            return static_cast<const CVexplayLibrary*>(loaded);
        delete loaded;
        return static_cast<const CVexplayLibrary*>(nullptr);
    }();
    return library;
}

bool CVexplayLibrary::Load()
{
    void* handle = OpenLibrary();
    if (!handle) {
        qCWarning(lcVexplayLoad) << "cannot load" << kLibraryName << dlerror();
        return false;
    }
    // Never unloaded: its threads may outlive any moment chosen for it.
    const bool complete = Resolve(handle, "vexplay_GetPort", GetPort) &&
                          Resolve(handle, "vexplay_OpenFile", OpenFile) &&
                          Resolve(handle, "vexplay_CloseFile", CloseFile) &&
                          Resolve(handle, "vexplay_Play", Play) &&
                          Resolve(handle, "vexplay_SetPlayFlag", SetPlayFlag) &&
                          Resolve(handle, "vexplay_SetFileEndCallback", SetFileEndCallback) &&
                          Resolve(handle, "vexplay_SetCallback125", SetCallback125) &&
                          Resolve(handle, "vexplay_SetCallback157", SetCallback157) &&
                          Resolve(handle, "vexplay_SetCallback109", SetCallback109);
    if (!complete)
        qCWarning(lcVexplayLoad) << kLibraryName << "lacks an entry point";
    return complete;
}

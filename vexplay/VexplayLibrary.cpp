#include "vexplay/VexplayLibrary.h"

#include "platform/WinModule.h"

#include <QLoggingCategory>
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <dlfcn.h>
#include <elf.h>
#include <fcntl.h>
#include <link.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

Q_LOGGING_CATEGORY(lcVexplayLoad, "tallix.vexplay.load", QtWarningMsg)

constexpr const char* kLibraryName = "libvexplay.so";

#if defined(__x86_64__)
constexpr unsigned kOwnMachine = EM_X86_64;
#elif defined(__aarch64__)
constexpr unsigned kOwnMachine = EM_AARCH64;
#elif defined(__i386__)
constexpr unsigned kOwnMachine = EM_386;
#else
constexpr unsigned kOwnMachine = EM_NONE; // not checked
#endif

bool Covers(std::uint64_t size, std::uint64_t offset, std::uint64_t length)
{
    return offset <= size && length <= size - offset;
}

// dlopen maps the file and faults (SIGBUS) on any page past its end, and
// blocks on a FIFO: only a regular file whose headers and loadable segments
// all lie inside it is handed over.
bool SafeToMap(const std::string& path)
{
    const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0)
        return false;
    bool safe = false;
    struct stat st;
    ElfW(Ehdr) header;
    if (::fstat(fd, &st) == 0 && S_ISREG(st.st_mode) &&
        ::pread(fd, &header, sizeof header, 0) == static_cast<ssize_t>(sizeof header)) {
        const auto size = static_cast<std::uint64_t>(st.st_size);
        const bool own =
            std::memcmp(header.e_ident, ELFMAG, SELFMAG) == 0 &&
            header.e_ident[EI_CLASS] == (sizeof(void*) == 8 ? ELFCLASS64 : ELFCLASS32) &&
            header.e_type == ET_DYN &&
            (kOwnMachine == EM_NONE || header.e_machine == kOwnMachine) &&
            header.e_phentsize == sizeof(ElfW(Phdr)) && header.e_phnum > 0;
        std::vector<ElfW(Phdr)> segments(own ? header.e_phnum : 0);
        const std::uint64_t table = std::uint64_t(header.e_phnum) * sizeof(ElfW(Phdr));
        safe = own && Covers(size, header.e_phoff, table) &&
               Covers(size, header.e_shoff, std::uint64_t(header.e_shnum) * header.e_shentsize) &&
               ::pread(fd, segments.data(), table, static_cast<off_t>(header.e_phoff)) ==
                   static_cast<ssize_t>(table);
        for (std::size_t i = 0; safe && i < segments.size(); ++i) {
            if (segments[i].p_type == PT_LOAD)
                safe = Covers(size, segments[i].p_offset, segments[i].p_filesz);
        }
    }
    ::close(fd);
    return safe;
}

// Beside the executable first, where the program keeps everything it reads.
void* OpenLibrary()
{
    char path[4096] = {};
    const DWORD length = GetModuleFileNameA(nullptr, path, sizeof path);
    if (length > 0 && length < sizeof path) {
        std::string beside(path, length);
        beside.erase(beside.find_last_of('/') + 1);
        beside += kLibraryName;
        struct stat st;
        if (::lstat(beside.c_str(), &st) == 0) {
            // A damaged library of our own is no reason to take someone else's.
            if (!SafeToMap(beside)) {
                qCWarning(lcVexplayLoad) << "refusing" << beside.c_str();
                return nullptr;
            }
            return dlopen(beside.c_str(), RTLD_NOW | RTLD_LOCAL);
        }
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

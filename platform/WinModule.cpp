#include "platform/WinModule.h"

#include <climits>
#include <cstdlib>
#include <cstring>
#include <string>
#include <unistd.h>

namespace {

std::string executablePath()
{
    // realpath resolves every link on the way; readlink still answers when the
    // file has been replaced or removed since start.
    if (char* resolved = realpath("/proc/self/exe", nullptr)) {
        std::string path(resolved);
        std::free(resolved);
        return path;
    }
    std::string path(PATH_MAX, '\0');
    const ssize_t n = readlink("/proc/self/exe", &path[0], path.size());
    if (n <= 0 || static_cast<std::size_t>(n) >= path.size())
        return std::string();
    path.resize(static_cast<std::size_t>(n));
    return path;
}

} // namespace

DWORD GetModuleFileNameA(void* module, char* buffer, DWORD size)
{
    if (module || !buffer || size == 0)
        return 0;
    const std::string path = executablePath();
    if (path.size() >= size) {
        std::memcpy(buffer, path.data(), size - 1);
        buffer[size - 1] = '\0';
        return size;
    }
    std::memcpy(buffer, path.c_str(), path.size() + 1);
    return static_cast<DWORD>(path.size());
}

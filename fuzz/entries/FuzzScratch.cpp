#include "fuzz/entries/FuzzScratch.h"

#include "fuzz/entries/FuzzCheck.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace {

std::string g_dir;

void RemoveDir()
{
    std::error_code ignored;
    std::filesystem::remove_all(g_dir, ignored);
}

} // namespace

const std::string& FuzzScratch::Dir()
{
    if (g_dir.empty()) {
        const char* tmp = std::getenv("TMPDIR");
        std::string pattern = std::string(tmp && *tmp ? tmp : "/tmp") + "/tallix-fuzz-XXXXXX";
        FUZZ_CHECK(mkdtemp(pattern.data()) != nullptr);
        g_dir = pattern;
        std::atexit(RemoveDir);
    }
    return g_dir;
}

std::string FuzzScratch::Write(const std::string& name, const uint8_t* data, size_t size)
{
    std::string path = Dir() + "/" + name;
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    out.close();
    FUZZ_CHECK(out.good());
    return path;
}

void FuzzScratch::Remove(const std::string& name)
{
    std::error_code ignored;
    std::filesystem::remove(Dir() + "/" + name, ignored);
}

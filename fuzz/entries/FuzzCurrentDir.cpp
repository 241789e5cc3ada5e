#include "fuzz/entries/FuzzCurrentDir.h"

#include "fuzz/entries/FuzzCheck.h"

#include <filesystem>

FuzzCurrentDir::FuzzCurrentDir(const std::string& dir)
    : m_previous(std::filesystem::current_path().string())
{
    std::filesystem::current_path(dir);
}

FuzzCurrentDir::~FuzzCurrentDir()
{
    std::error_code error;
    std::filesystem::current_path(m_previous, error);
    FUZZ_CHECK(!error);
}

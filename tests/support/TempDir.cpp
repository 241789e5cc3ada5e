#include "tests/support/TempDir.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

TempDir::TempDir()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "tallix-test-XXXXXX").string();
    if (!mkdtemp(pattern.data()))
        throw std::runtime_error("mkdtemp failed");
    m_path = pattern;
}

TempDir::~TempDir()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

void TempDir::Write(const std::string& name, const std::string& content) const
{
    std::ofstream out(File(name), std::ios::binary | std::ios::trunc);
    out << content;
}

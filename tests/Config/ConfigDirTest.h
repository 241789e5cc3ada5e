#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <unistd.h>

// Runs each test in a fresh temporary directory: the settings file is
// relative to the current directory.
class ConfigDirTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        m_previous = std::filesystem::current_path();
        std::string pattern = (std::filesystem::temp_directory_path() / "tallix-config-XXXXXX").string();
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        m_dir = pattern;
        std::filesystem::current_path(m_dir);
    }

    void TearDown() override
    {
        if (m_dir.empty())
            return;
        std::filesystem::current_path(m_previous);
        std::error_code ignored;
        std::filesystem::remove_all(m_dir, ignored);
    }

    static void WriteConfig(const std::string& bytes)
    {
        std::ofstream out("config.xml", std::ios::binary | std::ios::trunc);
        out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }

    static std::string ReadConfig()
    {
        std::ifstream in("config.xml", std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }

private:
    std::filesystem::path m_previous;
    std::filesystem::path m_dir;
};

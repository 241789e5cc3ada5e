#include "platform/WinModule.h"

#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>

namespace {

std::string modulePath()
{
    char buf[SF_MAX_PATH];
    const DWORD n = GetModuleFileNameA(nullptr, buf, sizeof buf);
    EXPECT_GT(n, 0u);
    EXPECT_EQ(n, std::strlen(buf));
    return std::string(buf, n);
}

TEST(GetModuleFileNameA, NamesThisTestBinary)
{
    const std::string path = modulePath();
    ASSERT_FALSE(path.empty());
    EXPECT_EQ(path.front(), '/');
    EXPECT_EQ(path.substr(path.rfind('/') + 1), "platform_test");
    struct stat named = {};
    struct stat running = {};
    ASSERT_EQ(stat(path.c_str(), &named), 0);
    ASSERT_EQ(stat("/proc/self/exe", &running), 0);
    EXPECT_EQ(named.st_dev, running.st_dev);
    EXPECT_EQ(named.st_ino, running.st_ino);
}

TEST(GetModuleFileNameA, CutsToSizeMinusOneAndReturnsSize)
{
    const std::string path = modulePath();
    const auto len = static_cast<DWORD>(path.size());
    char buf[SF_MAX_PATH];

    std::memset(buf, 'x', sizeof buf);
    EXPECT_EQ(GetModuleFileNameA(nullptr, buf, len + 1), len);
    EXPECT_EQ(std::string(buf), path);

    std::memset(buf, 'x', sizeof buf);
    EXPECT_EQ(GetModuleFileNameA(nullptr, buf, len), len);
    EXPECT_EQ(std::string(buf), path.substr(0, len - 1));
    EXPECT_EQ(buf[len], 'x');

    std::memset(buf, 'x', sizeof buf);
    EXPECT_EQ(GetModuleFileNameA(nullptr, buf, 1), 1u);
    EXPECT_EQ(buf[0], '\0');
    EXPECT_EQ(buf[1], 'x');

    EXPECT_EQ(GetModuleFileNameA(nullptr, buf, 0), 0u);
    EXPECT_EQ(buf[0], '\0');
}

TEST(GetModuleFileNameA, OtherModulesAreUnknown)
{
    char buf[16];
    int dummy = 0;
    EXPECT_EQ(GetModuleFileNameA(&dummy, buf, sizeof buf), 0u);
    EXPECT_EQ(GetModuleFileNameA(nullptr, nullptr, 16), 0u);
}

} // namespace

// Runs the real executable from a copy of its directory and reads the
// start-up diagnostics it prints when asked to. TALLIX_EXIT_AFTER_START makes
// it click its own close button once its event loop runs.
#include "tests/support/BadXml.h"
#include "tests/support/TempDir.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <sys/wait.h>

namespace fs = std::filesystem;

namespace {

struct RunResult {
    int exitCode = -1;
    std::string output;
};

RunResult RunCommand(const std::string& command)
{
    RunResult result;
    FILE* pipe = popen((command + " 2>&1").c_str(), "r");
    if (!pipe)
        return result;
    char buffer[4096];
    std::size_t n;
    while ((n = fread(buffer, 1, sizeof buffer, pipe)) > 0)
        result.output.append(buffer, n);
    int status = pclose(pipe);
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return result;
}

const char* kStartEnv =
    "env QT_QPA_PLATFORM=offscreen TALLIX_EXIT_AFTER_START=1 QT_LOGGING_RULES='tallix.start.debug=true' ";

// A private application directory, so tests can change its files.
class AppCopy {
public:
    AppCopy() { fs::copy(TALLIX_APP_DIR, m_dir.File("app"), fs::copy_options::recursive); }
    std::string Dir() const { return m_dir.File("app"); }
    void Write(const std::string& name, const std::string& content) const
    {
        m_dir.Write("app/" + name, content);
    }
    void Remove(const std::string& name) const { fs::remove(Dir() + "/" + name); }
    RunResult Start() const
    {
        // Started from elsewhere: the program must find its files by itself.
        return RunCommand("cd / && " + std::string(kStartEnv) + "'" + Dir() + "/tallix'");
    }

private:
    TempDir m_dir;
};

bool Has(const RunResult& r, const std::string& line)
{
    return r.output.find(line) != std::string::npos;
}

TEST(StartupTest, ShippedDirectoryStartsInEnglishWithDefaults)
{
    AppCopy app;
    RunResult r = app.Start();
    EXPECT_EQ(r.exitCode, 0) << r.output;
    EXPECT_TRUE(Has(r, "style sheet applied")) << r.output;
    EXPECT_TRUE(Has(r, "language 0")) << r.output;
    EXPECT_TRUE(Has(r, "recordable percentage 90")) << r.output;
    EXPECT_TRUE(Has(r, "product name Tallix Storage Planner")) << r.output;
    EXPECT_TRUE(Has(r, "main window 1100 by 750 shown, title Tallix Storage Planner")) << r.output;
}

TEST(StartupTest, ExecutableAloneStillShowsItsWindow)
{
    TempDir dir;
    const std::string exe = dir.File("tallix");
    fs::copy_file(TALLIX_EXE, exe);
    RunResult r = RunCommand("cd / && " + std::string(kStartEnv) + "'" + exe + "'");
    EXPECT_EQ(r.exitCode, 0) << r.output;
    EXPECT_TRUE(Has(r, "style sheet none")) << r.output;
    EXPECT_TRUE(Has(r, "language 1")) << r.output;
    EXPECT_TRUE(Has(r, "main window 1100 by 750 shown, title ProductName")) << r.output;
    // Nothing written beside it.
    EXPECT_EQ(std::distance(fs::directory_iterator(dir.Path()), fs::directory_iterator()), 1);
}

TEST(StartupTest, NormalRunPrintsNothing)
{
    // A desktop session has a runtime directory; without one Qt itself warns.
    TempDir runtime;
    fs::permissions(runtime.Path(), fs::perms::owner_all, fs::perm_options::replace);
    RunResult r = RunCommand(
        "cd / && env QT_QPA_PLATFORM=offscreen TALLIX_EXIT_AFTER_START=1 XDG_RUNTIME_DIR='" +
        runtime.Path() + "' '" + std::string(TALLIX_EXE) + "'");
    EXPECT_EQ(r.exitCode, 0);
    // Only Qt's offscreen platform says this; on a display (see e2e_close.sh)
    // the output is empty.
    const std::string offscreenOnly = "This plugin does not support setting window masks\n";
    std::string output = r.output;
    for (std::size_t at; (at = output.find(offscreenOnly)) != std::string::npos;)
        output.erase(at, offscreenOnly.size());
    EXPECT_EQ(output, "");
}

struct StartCase {
    const char* name;
    const char* file;
    const char* content; // null removes the file
    const char* expected;
};

class StartupFilesTest : public ::testing::TestWithParam<StartCase> {};

TEST_P(StartupFilesTest, ReadsItsFilesFromTheApplicationDirectory)
{
    AppCopy app;
    if (GetParam().content)
        app.Write(GetParam().file, GetParam().content);
    else
        app.Remove(GetParam().file);
    RunResult r = app.Start();
    EXPECT_EQ(r.exitCode, 0) << r.output;
    EXPECT_TRUE(Has(r, GetParam().expected)) << r.output;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, StartupFilesTest,
    ::testing::Values(
        StartCase{ "Config85", "config.xml",
                   "<Setting><UIConfig><RecordblePersentage value=\"85\"/></UIConfig></Setting>",
                   "recordable percentage 85" },
        StartCase{ "Chinese", "Language.xml", "<Language><Select value=\"1\"/></Language>",
                   "product name Tallix \xE5\xAD\x98" },
        StartCase{ "NoStyleSheet", "Tallix_Style.css", nullptr, "style sheet none" }),
    [](const ::testing::TestParamInfo<StartCase>& info) { return std::string(info.param.name); });

class StartupBadFileTest : public ::testing::TestWithParam<BadXmlCase> {};

TEST_P(StartupBadFileTest, EveryFileFallsBack)
{
    AppCopy app;
    for (const char* file : { "Language.xml", "Lang_en.xml", "Lang_cn.xml", "config.xml" }) {
        if (GetParam().present)
            app.Write(file, GetParam().content);
        else
            app.Remove(file);
    }
    RunResult r = app.Start();
    EXPECT_EQ(r.exitCode, 0) << r.output.substr(0, 2000);
    EXPECT_TRUE(Has(r, "language 1"));
    EXPECT_TRUE(Has(r, "recordable percentage 90"));
    EXPECT_TRUE(Has(r, "product name ProductName"));
}

INSTANTIATE_TEST_SUITE_P(Files, StartupBadFileTest, ::testing::ValuesIn(BadXmlCases()),
                         [](const ::testing::TestParamInfo<BadXmlCase>& info) {
                             return std::string(info.param.name);
                         });

std::string ReadFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

TEST(StartupTest, InstalledLinkFindsTheDataBesideADesktopEntryAndIcon)
{
    TempDir prefix;
    RunResult install = RunCommand("cmake --install '" + std::string(TALLIX_BINARY_DIR) +
                                   "' --prefix '" + prefix.Path() + "'");
    ASSERT_EQ(install.exitCode, 0) << install.output;
    std::string link = prefix.File("bin/tallix");
    ASSERT_TRUE(fs::is_symlink(link));
    RunResult r = RunCommand("cd / && " + std::string(kStartEnv) + "'" + link + "'");
    EXPECT_EQ(r.exitCode, 0) << r.output;
    EXPECT_TRUE(Has(r, "application directory " + prefix.Path() + "/lib/tallix")) << r.output;
    EXPECT_TRUE(Has(r, "product name Tallix Storage Planner")) << r.output;

    const std::string entry = ReadFile(prefix.File("share/applications/tallix.desktop"));
    EXPECT_NE(entry.find("[Desktop Entry]\nType=Application\n"), std::string::npos) << entry;
    EXPECT_NE(entry.find("\nExec=\"" + link + "\"\n"), std::string::npos) << entry;
    EXPECT_NE(entry.find("\nIcon=tallix\n"), std::string::npos) << entry;
    EXPECT_NE(entry.find("\nStartupWMClass=tallix\n"), std::string::npos) << entry;
    // A 256 by 256 PNG, where the icon theme's folder says.
    const std::string icon = ReadFile(prefix.File("share/icons/hicolor/256x256/apps/tallix.png"));
    ASSERT_GE(icon.size(), 24u);
    EXPECT_EQ(icon.substr(1, 3), "PNG");
    EXPECT_EQ(icon.substr(16, 8), std::string("\0\0\x01\0\0\0\x01\0", 8));
}

TEST(StartupTest, RunCommandWithoutDisplayExplainsXvfb)
{
    RunResult r = RunCommand("env -u DISPLAY -u WAYLAND_DISPLAY '" +
                             std::string(TALLIX_SOURCE_DIR) + "/tools/run.sh'");
    EXPECT_NE(r.exitCode, 0);
    EXPECT_TRUE(Has(r, "display")) << r.output;
    EXPECT_TRUE(Has(r, "xvfb-run")) << r.output;
}

} // namespace

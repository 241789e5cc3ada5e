// Every stored fuzz input, the seeds and the inputs that once broke a
// target, goes through its target's entry: none may crash, hang or trip a
// sanitizer. A crash ends the process, so the input is named before it runs.

#include "fuzz/entries/FuzzEntries.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

struct Target {
    const char* name;
    int (*entry)(const uint8_t*, size_t);
};

const Target kTargets[] = {
    { "layout", FuzzLayout },
    { "dictionary", FuzzDictionary },
    { "language_choice", FuzzLanguageChoice },
    { "settings", FuzzSettings },
    { "coded_settings", FuzzCodedSettings },
    { "wide_digits", FuzzWideDigits },
    { "skin_strings", FuzzSkinStrings },
    { "clip", FuzzClip },
    { "site_file", FuzzSiteFile },
};

const fs::path kFuzzDir = fs::path(TALLIX_SOURCE_DIR) / "fuzz";

std::vector<fs::path> Inputs(const fs::path& dir)
{
    std::vector<fs::path> files;
    if (fs::is_directory(dir))
        for (const fs::directory_entry& entry : fs::directory_iterator(dir))
            if (entry.is_regular_file())
                files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

std::string Read(const fs::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return { std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>() };
}

class FuzzReplay : public testing::TestWithParam<Target> {};

TEST_P(FuzzReplay, StoredInputsPass)
{
    const Target& target = GetParam();
    const std::vector<fs::path> seeds = Inputs(kFuzzDir / "corpus" / target.name);
    EXPECT_FALSE(seeds.empty()) << "no seeds for " << target.name;
    std::vector<fs::path> inputs = seeds;
    const std::vector<fs::path> regressions = Inputs(kFuzzDir / "regressions" / target.name);
    inputs.insert(inputs.end(), regressions.begin(), regressions.end());

    for (const fs::path& input : inputs) {
        std::printf("replaying %s\n", input.c_str());
        std::fflush(stdout);
        const std::string bytes = Read(input);
        EXPECT_EQ(target.entry(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size()), 0)
            << input;
    }
}

INSTANTIATE_TEST_SUITE_P(Targets, FuzzReplay, testing::ValuesIn(kTargets),
                         [](const testing::TestParamInfo<Target>& info) {
                             return std::string(info.param.name);
                         });

// An input filed under a name no target has would never run.
TEST(FuzzInputs, EveryFolderNamesATarget)
{
    std::set<std::string> names;
    for (const Target& target : kTargets)
        names.insert(target.name);
    for (const char* kind : { "corpus", "regressions" }) {
        for (const fs::directory_entry& entry : fs::directory_iterator(kFuzzDir / kind)) {
            EXPECT_TRUE(entry.is_directory()) << entry.path();
            EXPECT_EQ(names.count(entry.path().filename().string()), 1u) << entry.path();
        }
    }
}

} // namespace

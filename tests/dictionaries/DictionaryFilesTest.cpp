// The language files shipped beside the program: they load as the program
// loads them and answer every key the code looks up.

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <tinyxml.h>

namespace {

namespace fs = std::filesystem;
using Texts = std::map<std::string, std::string>;

const std::string kDataDir = std::string(TALLIX_SOURCE_DIR) + "/data/";

// Keys the program's pages ask for, including those whose pages are built
// from tables rather than literal calls. Spellings are the code's own.
const char* const kPageKeys[] = {
    "ProductName",
    "ProductVer",
    "CopyrightString",
    "WebSite",
    "About",
    "Min",
    "Close",
    "OK",
    "Cancel",
    "Preview",
    "Scene 1",
    "Scene 2",
    "Scene 3",
    "Add Streaming",
    "Clear All",
    "NO.",
    "Channels",
    "Compression",
    "Environment",
    "Resolution",
    "FrameRate",
    "Audio",
    "Bitrate/Ch(Kbps)",
    "Operation",
    "--Compression--",
    "--Environment--",
    "--Resolution--",
    "Customize",
    "--FrameRate--",
    "Delete",
    "Main Stream:",
    "Sub1 Stream:",
    "Sub2 Stream:",
    "H.264",
    "H.265",
    "Audio OFF",
    "Audio ON",
    "0   -   0 (Kbps)",
    "Enable Sub Stream",
    "Disable Sub Stream",
    "Clear",
    "Add",
    "Ok",
    "Error",
    "Invalid bit rate,please check.",
    "Disk Requirement",
    "Recording day",
    "RAID Calculator",
    "RAID Calculator2",
    "SD Card Capacity",
    "Record Plan",
    "Device Drives",
    "HDD Capcity",
    "Dev Type",
    "RAID Volume",
    "Devices Tips",
    "24 hours per day",
    "Customize(hours)",
    "Sun.",
    "Mon.",
    "Tues.",
    "Wed.",
    "Thur.",
    "Fri.",
    "Sat.",
    "RAID 1",
    "RAID 5",
    "RAID 6",
    "Recordable  Space",
    "Total",
    "Storage Capacity",
    "Recording Day",
    "Recording Days:",
    "Hour",
    "Day",
    "Week",
    "Request Capacity:",
    "Available Capacity:",
    "Request Device:",
    "Device",
    "Devices",
};

// Texts that are the product's own rather than a label, and captions whose
// key is too long for the box the panel gives it.
const std::set<std::string> kOwnTexts = {
    "ProductName",  "ProductVer",          "CopyrightString", "WebSite",
    "Devices Tips", "Available Capacity:", "Request Device:", "Add Streaming",
};

// Keys whose text reads the same in every language.
const std::set<std::string> kUntranslated = {
    "WebSite", "H.264", "H.265", "RAID 1", "RAID 5", "RAID 6", "0   -   0 (Kbps)",
};

// Characters of a UTF-8 text, or -1 when it is no valid UTF-8.
long Utf8Length(const std::string& s)
{
    long count = 0;
    for (size_t i = 0; i < s.size(); ++count) {
        const unsigned char c = static_cast<unsigned char>(s[i]);
        const size_t n = c < 0x80           ? 1
                         : (c >> 5) == 0x6  ? 2
                         : (c >> 4) == 0xE  ? 3
                         : (c >> 3) == 0x1E ? 4
                                            : 0;
        if (n == 0 || i + n > s.size())
            return -1;
        for (size_t k = 1; k < n; ++k)
            if ((static_cast<unsigned char>(s[i + k]) >> 6) != 0x2)
                return -1;
        i += n;
    }
    return count;
}

// Every child of the root must be an element with a name and a value, each
// key there once, its text UTF-8 and short enough for the lookup's buffer.
Texts Load(const std::string& file)
{
    Texts texts;
    TiXmlDocument doc;
    if (!doc.LoadFile((kDataDir + file).c_str()) || !doc.RootElement()) {
        ADD_FAILURE() << file << ": " << doc.ErrorDesc();
        return texts;
    }
    for (const TiXmlNode* node = doc.RootElement()->FirstChild(); node;
         node = node->NextSibling()) {
        const TiXmlElement* e = node->ToElement();
        const char* key = e ? e->Attribute("name") : nullptr;
        const char* text = e ? e->Attribute("value") : nullptr;
        if (!key || !text) {
            ADD_FAILURE() << file << " line " << node->Row()
                          << " is no entry with a name and a value";
            continue;
        }
        EXPECT_TRUE(texts.emplace(key, text).second) << "duplicate key \"" << key << "\"";
        EXPECT_GE(Utf8Length(key), 0) << "key is no UTF-8: " << key;
        const long n = Utf8Length(text);
        EXPECT_TRUE(n > 0 && n < 1024)
            << "text of \"" << key << "\" is empty, too long or no UTF-8";
    }
    EXPECT_FALSE(texts.empty()) << file;
    return texts;
}

// Keys of GetLangString(L"...") calls in the program's sources: not the
// tests, hidden folders or build trees.
std::set<std::string> KeysInSources()
{
    const std::regex call(R"re(GetLangString\s*\(\s*L"([^"\\\n]+)")re");
    std::set<std::string> keys;
    int files = 0;
    for (fs::recursive_directory_iterator it(TALLIX_SOURCE_DIR), end; it != end; ++it) {
        const fs::path& p = it->path();
        const std::string name = p.filename().string();
        if (it->is_directory()) {
            if (name == "tests" || name[0] == '.' || name.rfind("build", 0) == 0 ||
                fs::exists(p / "CMakeCache.txt"))
                it.disable_recursion_pending();
            continue;
        }
        if (p.extension() != ".cpp" && p.extension() != ".h")
            continue;
        std::stringstream text;
        text << std::ifstream(p).rdbuf();
        const std::string s = text.str();
        for (std::sregex_iterator m(s.begin(), s.end(), call), end; m != end; ++m)
            keys.insert((*m)[1]);
        ++files;
    }
    EXPECT_GT(files, 0) << "no sources below " << TALLIX_SOURCE_DIR;
    return keys;
}

class Dictionary : public ::testing::TestWithParam<const char*> {};

TEST_P(Dictionary, AnswersEveryKeyTheSourcesAndPagesAskFor)
{
    const Texts texts = Load(GetParam());
    for (const std::string& key : KeysInSources())
        EXPECT_TRUE(texts.count(key)) << "missing key \"" << key << "\"";
    for (const char* key : kPageKeys)
        EXPECT_TRUE(texts.count(key)) << "missing key \"" << key << "\"";
}

INSTANTIATE_TEST_SUITE_P(Files, Dictionary, ::testing::Values("Lang_en.xml", "Lang_cn.xml"),
                         [](const ::testing::TestParamInfo<const char*>& info) {
                             return std::string(info.param).substr(5, 2);
                         });

TEST(Dictionaries, ShareOneKeySetAndTranslateTheLabels)
{
    const Texts en = Load("Lang_en.xml");
    const Texts cn = Load("Lang_cn.xml");
    for (const auto& [key, text] : en) {
        EXPECT_TRUE(cn.count(key)) << "only in English: \"" << key << "\"";
        EXPECT_EQ(text == key, !kOwnTexts.count(key)) << "English text of \"" << key << "\"";
    }
    for (const auto& [key, text] : cn) {
        EXPECT_TRUE(en.count(key)) << "only in Chinese: \"" << key << "\"";
        if (key != "WebSite") {
            EXPECT_EQ(text == key, kUntranslated.count(key) == 1)
                << "Chinese text of \"" << key << "\"";
        }
    }
}

TEST(LanguageChoice, SelectsEnglish)
{
    TiXmlDocument doc;
    ASSERT_TRUE(doc.LoadFile((kDataDir + "Language.xml").c_str())) << doc.ErrorDesc();
    const TiXmlElement* first =
        doc.RootElement() ? doc.RootElement()->FirstChildElement() : nullptr;
    ASSERT_NE(first, nullptr);
    EXPECT_STREQ(first->Attribute("value"), "0");
}

} // namespace

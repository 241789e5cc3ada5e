// Guards the language files shipped beside the program: they must load with
// the program's loader and answer every key the code looks up.

#include "DictionaryFile.h"
#include "SourceKeyScanner.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

const std::string kDataDir = std::string(TALLIX_SOURCE_DIR) + "/data/";

// Keys the program's pages ask for, including those whose pages are built
// from tables rather than literal calls. Spellings are the code's own.
const char* const kPageKeys[] = {
    "ProductName", "ProductVer", "CopyrightString", "WebSite", "About", "Min", "Close",
    "OK", "Cancel",
    "Preview", "Scene 1", "Scene 2", "Scene 3",
    "Add Streaming", "Clear All", "NO.", "Channels", "Compression", "Environment",
    "Resolution", "FrameRate", "Audio", "Bitrate/Ch(Kbps)", "Operation",
    "--Compression--", "--Environment--", "--Resolution--", "Customize", "--FrameRate--",
    "Delete",
    "Main Stream:", "Sub1 Stream:", "Sub2 Stream:", "H.264", "H.265", "Audio OFF",
    "Audio ON", "0   -   0 (Kbps)", "Enable Sub Stream", "Disable Sub Stream", "Clear",
    "Add", "Ok", "Error", "Invalid bit rate,please check.",
    "Disk Requirement", "Recording day", "RAID Calculator", "RAID Calculator2",
    "SD Card Capacity", "Record Plan", "Device Drives", "HDD Capcity", "Dev Type",
    "RAID Volume", "Devices Tips", "24 hours per day", "Customize(hours)",
    "Sun.", "Mon.", "Tues.", "Wed.", "Thur.", "Fri.", "Sat.", "RAID 1", "RAID 5", "RAID 6",
    "Recordable  Space", "Total", "Storage Capacity", "Recording Day", "Recording Days:",
    "Hour", "Day", "Week", "Request Capacity:", "Available Capacity:", "Request Device:",
    "Device", "Devices",
};

// Texts that are the product's own rather than a label, and captions whose
// key is too long for the box the panel gives it.
const std::set<std::string> kOwnTexts = {
    "ProductName", "ProductVer", "CopyrightString", "WebSite", "Devices Tips",
    "Available Capacity:", "Request Device:", "Add Streaming",
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
        const size_t n = c < 0x80 ? 1 : (c >> 5) == 0x6 ? 2 : (c >> 4) == 0xE ? 3 : (c >> 3) == 0x1E ? 4 : 0;
        if (n == 0 || i + n > s.size())
            return -1;
        for (size_t k = 1; k < n; ++k)
            if ((static_cast<unsigned char>(s[i + k]) >> 6) != 0x2)
                return -1;
        i += n;
    }
    return count;
}

std::map<std::string, std::string> AsMap(const CDictionaryFile& dict)
{
    return std::map<std::string, std::string>(dict.Entries().begin(), dict.Entries().end());
}

std::set<std::string> KeysOf(const CDictionaryFile& dict)
{
    std::set<std::string> keys;
    for (const auto& e : dict.Entries())
        keys.insert(e.first);
    return keys;
}

// --- the key scanner itself, so a silent miss cannot hide missing keys ---

struct ExtractCase {
    const char* name;
    const char* source;
    std::set<std::string> keys;
};

class SourceKeyExtraction : public ::testing::TestWithParam<ExtractCase> {};

TEST_P(SourceKeyExtraction, FindsExactlyTheLiteralKeys)
{
    EXPECT_EQ(CSourceKeyScanner::ExtractKeys(GetParam().source), GetParam().keys);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, SourceKeyExtraction,
    ::testing::Values(
        ExtractCase{"Plain", "s->SetText(GetLangString(L\"Close\", 0));", {"Close"}},
        ExtractCase{"BlanksKept", "GetLangString( L\"Recordable  Space\" , 0)", {"Recordable  Space"}},
        ExtractCase{"ArgumentOnNextLine", "GetLangString(\n        L\"Day\", 0)", {"Day"}},
        ExtractCase{"EscapedQuote", "GetLangString(L\"Say \\\"hi\\\"\", 0)", {"Say \"hi\""}},
        ExtractCase{"EscapedBackslash", "GetLangString(L\"a\\\\b\", 0)", {"a\\b"}},
        ExtractCase{"TwoInOneLine", "f(GetLangString(L\"A\", 0), GetLangString(L\"B\", 0));", {"A", "B"}},
        ExtractCase{"Utf8Key", "GetLangString(L\"\xE4\xB8\xAD\", 0)", {"\xE4\xB8\xAD"}},
        ExtractCase{"EmptyKeySkipped", "GetLangString(L\"\", 0)", {}},
        ExtractCase{"VariableIgnored", "GetLangString(key, 0)", {}},
        ExtractCase{"NarrowLiteralIgnored", "GetLangString(\"x\", 0)", {}},
        ExtractCase{"Declaration", "const wchar_t* GetLangString(const wchar_t* key, int reserved);", {}},
        ExtractCase{"LineComment", "// GetLangString(L\"Old\", 0)\nGetLangString(L\"New\", 0)", {"New"}},
        ExtractCase{"BlockComment", "/* GetLangString(L\"Old\", 0) */ x = 1;", {}},
        ExtractCase{"InsideStringLiteral", "const char* s = \"GetLangString(L\\\"x\\\")\";", {}},
        ExtractCase{"OtherIdentifier", "MyGetLangString(L\"x\"); GetLangStringEx(L\"y\");", {}},
        ExtractCase{"CharConstantQuote", "c = '\"'; GetLangString(L\"K\", 0);", {"K"}},
        ExtractCase{"Unterminated", "GetLangString(L\"open", {}}),
    [](const ::testing::TestParamInfo<ExtractCase>& info) { return std::string(info.param.name); });

// A scratch tree below the system's temporary folder, removed afterwards.
class ScratchTree : public ::testing::Test {
protected:
    void SetUp() override
    {
        m_root = fs::temp_directory_path()
                 / ("tallix_keyscan_" + std::to_string(::testing::UnitTest::GetInstance()->random_seed())
                    + "_" + std::to_string(reinterpret_cast<std::uintptr_t>(this)));
        fs::create_directories(m_root);
    }
    void TearDown() override
    {
        std::error_code ec;
        fs::remove_all(m_root, ec);
    }
    void Write(const std::string& rel, const std::string& text)
    {
        const fs::path p = m_root / rel;
        fs::create_directories(p.parent_path());
        std::ofstream(p, std::ios::binary) << text;
    }
    fs::path m_root;
};

TEST_F(ScratchTree, ScanSkipsTestsHiddenAndBuildFolders)
{
    Write("shell/Page.cpp", "GetLangString(L\"A\", 0);");
    Write("sf/qt/Ctrl.h", "GetLangString(L\"B\", 0);");
    Write("notes.txt", "GetLangString(L\"TextFile\", 0);");
    Write("tests/shell/PageTest.cpp", "GetLangString(L\"Test\", 0);");
    Write(".git/x.h", "GetLangString(L\"Hidden\", 0);");
    Write("build-x/gen/moc.cpp", "GetLangString(L\"Build\", 0);");
    Write("out/CMakeCache.txt", "");
    Write("out/gen/moc.cpp", "GetLangString(L\"Out\", 0);");
    int files = 0;
    const std::set<std::string> keys = CSourceKeyScanner::ScanTree(m_root.string(), files);
    EXPECT_EQ(keys, (std::set<std::string>{"A", "B"}));
    EXPECT_EQ(files, 2);
}

TEST(SourceKeyScan, ReadsTheSourceTree)
{
    int files = 0;
    CSourceKeyScanner::ScanTree(TALLIX_SOURCE_DIR, files);
    EXPECT_GT(files, 0) << "no *.cpp or *.h found below " << TALLIX_SOURCE_DIR;
}

// --- each dictionary on its own ---

class Dictionary : public ::testing::TestWithParam<const char*> {
protected:
    Dictionary() : m_dict(kDataDir + GetParam()) {}
    CDictionaryFile m_dict;
};

TEST_P(Dictionary, LoadsWithEveryChildAFullEntry)
{
    ASSERT_TRUE(m_dict.Parsed()) << m_dict.Error();
    EXPECT_TRUE(m_dict.Faults().empty()) << ::testing::PrintToString(m_dict.Faults());
    EXPECT_FALSE(m_dict.Entries().empty());
}

TEST_P(Dictionary, HasNoDuplicateKeys)
{
    std::set<std::string> seen;
    for (const auto& e : m_dict.Entries())
        EXPECT_TRUE(seen.insert(e.first).second) << "duplicate key \"" << e.first << "\"";
}

TEST_P(Dictionary, TextsAreUtf8AndFitTheLookupBuffer)
{
    for (const auto& e : m_dict.Entries()) {
        EXPECT_GE(Utf8Length(e.first), 0) << "key is no UTF-8: " << e.first;
        const long n = Utf8Length(e.second);
        EXPECT_GE(n, 0) << "text of \"" << e.first << "\" is no UTF-8";
        EXPECT_LT(n, 1024) << "text of \"" << e.first << "\" is too long";
        EXPECT_FALSE(e.second.empty()) << "text of \"" << e.first << "\" is empty";
    }
}

TEST_P(Dictionary, AnswersEveryKeyTheSourcesAskFor)
{
    int files = 0;
    const std::set<std::string> asked = CSourceKeyScanner::ScanTree(TALLIX_SOURCE_DIR, files);
    const std::set<std::string> have = KeysOf(m_dict);
    for (const std::string& key : asked)
        EXPECT_TRUE(have.count(key)) << "missing key \"" << key << "\"";
}

TEST_P(Dictionary, AnswersEveryKeyThePagesAskFor)
{
    const std::set<std::string> have = KeysOf(m_dict);
    for (const char* key : kPageKeys)
        EXPECT_TRUE(have.count(key)) << "missing key \"" << key << "\"";
}

TEST_P(Dictionary, KeepsNamesThatAreNotTranslated)
{
    const std::map<std::string, std::string> texts = AsMap(m_dict);
    for (const std::string& key : kUntranslated) {
        if (key == "WebSite")
            continue;
        const auto it = texts.find(key);
        ASSERT_NE(it, texts.end()) << key;
        EXPECT_EQ(it->second, key);
    }
}

INSTANTIATE_TEST_SUITE_P(Files, Dictionary, ::testing::Values("Lang_en.xml", "Lang_cn.xml"),
                         [](const ::testing::TestParamInfo<const char*>& info) {
                             return std::string(info.param).substr(5, 2);
                         });

// --- the two dictionaries together ---

TEST(Dictionaries, ShareOneKeySet)
{
    const CDictionaryFile en(kDataDir + "Lang_en.xml");
    const CDictionaryFile cn(kDataDir + "Lang_cn.xml");
    const std::set<std::string> enKeys = KeysOf(en);
    const std::set<std::string> cnKeys = KeysOf(cn);
    for (const std::string& key : enKeys)
        EXPECT_TRUE(cnKeys.count(key)) << "only in English: \"" << key << "\"";
    for (const std::string& key : cnKeys)
        EXPECT_TRUE(enKeys.count(key)) << "only in Chinese: \"" << key << "\"";
}

TEST(Dictionaries, EnglishLabelsReadAsTheirKeys)
{
    const CDictionaryFile en(kDataDir + "Lang_en.xml");
    for (const auto& e : en.Entries()) {
        if (kOwnTexts.count(e.first)) {
            EXPECT_NE(e.second, e.first) << "\"" << e.first << "\" needs a text of its own";
        } else {
            EXPECT_EQ(e.second, e.first);
        }
    }
}

TEST(Dictionaries, ChineseLabelsAreTranslated)
{
    const CDictionaryFile cn(kDataDir + "Lang_cn.xml");
    for (const auto& e : cn.Entries()) {
        if (!kUntranslated.count(e.first)) {
            EXPECT_NE(e.second, e.first) << "\"" << e.first << "\" is still English";
        }
    }
}

TEST(LanguageChoice, SelectsEnglish)
{
    TiXmlDocument doc;
    ASSERT_TRUE(doc.LoadFile((kDataDir + "Language.xml").c_str())) << doc.ErrorDesc();
    const TiXmlElement* root = doc.RootElement();
    ASSERT_NE(root, nullptr);
    const TiXmlElement* first = root->FirstChildElement();
    ASSERT_NE(first, nullptr);
    const char* value = first->Attribute("value");
    ASSERT_NE(value, nullptr);
    EXPECT_STREQ(value, "0");
}

}  // namespace

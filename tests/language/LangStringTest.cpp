#include "language/LangString.h"

#include "language/XmlFileLoader.h"
#include "tests/support/BadXml.h"
#include "tests/support/TempDir.h"

#include <cwchar>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <tinyxml.h>

namespace {

const char* kEnglish = "<Language>"
                       "<String name=\"Close\" value=\"Close\"/>"
                       "<String name=\"ProductName\" value=\"Tallix Storage Planner\"/>"
                       "</Language>";

class LangStringTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        SFSetLanguageDirForTesting(m_dir.Path());
        SFResetLanguageForTesting();
        g_nLanguage = 1;
    }
    void TearDown() override
    {
        SFSetLanguageDirForTesting(std::string());
        SFResetLanguageForTesting();
        g_nLanguage = 1;
    }
    std::wstring Lookup(const wchar_t* key) { return GetLangString(key, 0); }

    TempDir m_dir;
};

TEST_F(LangStringTest, ChoiceSelectsDictionary)
{
    m_dir.Write("Language.xml", "<Language><Select value=\"0\"/></Language>");
    m_dir.Write("Lang_en.xml", kEnglish);
    m_dir.Write(
        "Lang_cn.xml",
        "<Language><String name=\"ProductName\" value=\"Tallix 存储规划工具\"/></Language>");
    ReadLanguageChoice();
    EXPECT_EQ(g_nLanguage, 0);
    EXPECT_EQ(Lookup(L"ProductName"), L"Tallix Storage Planner");

    SFResetLanguageForTesting();
    g_nLanguage = 1;
    // Text outside any single-byte code page comes through UTF-8 intact.
    EXPECT_EQ(Lookup(L"ProductName"), L"Tallix \u5b58\u50a8\u89c4\u5212\u5de5\u5177");
}

struct ChoiceCase {
    const char* name;
    const char* content;
    int expected;
};

class LanguageChoiceTest : public LangStringTest,
                           public ::testing::WithParamInterface<ChoiceCase> {};

TEST_P(LanguageChoiceTest, ReadsFirstChildElementValue)
{
    m_dir.Write("Language.xml", GetParam().content);
    g_nLanguage = 1;
    ReadLanguageChoice();
    EXPECT_EQ(g_nLanguage, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Files, LanguageChoiceTest,
    ::testing::Values(
        ChoiceCase{ "English", "<Language><Select value=\"0\"/></Language>", 0 },
        ChoiceCase{ "AnyRootName", "<Whatever><Pick value=\"0\"/></Whatever>", 0 },
        ChoiceCase{ "Declaration",
                    "<?xml version=\"1.0\" encoding=\"UTF-8\"?><L><S value=\"0\"/></L>", 0 },
        ChoiceCase{ "CommentFirst", "<L><!-- 1 is Chinese --><S value=\"0\"/></L>", 0 },
        ChoiceCase{ "OtherCode", "<L><S value=\"7\"/></L>", 7 },
        ChoiceCase{ "NotANumber", "<L><S value=\"chinese\"/></L>", 0 },
        ChoiceCase{ "NoValue", "<L><S/></L>", 0 },
        ChoiceCase{ "NoChildElement", "<L>text only</L>", 1 }),
    [](const ::testing::TestParamInfo<ChoiceCase>& info) { return std::string(info.param.name); });

class BadFileTest : public LangStringTest, public ::testing::WithParamInterface<BadXmlCase> {};

TEST_P(BadFileTest, LanguageChoiceKeepsChinese)
{
    if (GetParam().present)
        m_dir.Write("Language.xml", GetParam().content);
    ReadLanguageChoice();
    EXPECT_EQ(g_nLanguage, 1);
}

TEST_P(BadFileTest, DictionaryFallsBackToKeys)
{
    g_nLanguage = 0;
    if (GetParam().present)
        m_dir.Write("Lang_en.xml", GetParam().content);
    EXPECT_EQ(Lookup(L"Close"), L"Close");
    EXPECT_EQ(Lookup(L"HDD Capcity"), L"HDD Capcity");
    // Once the file is repaired, the next lookup finds it.
    m_dir.Write("Lang_en.xml", "<Language><String name=\"Close\" value=\"Shut\"/></Language>");
    EXPECT_EQ(Lookup(L"Close"), L"Shut");
}

INSTANTIATE_TEST_SUITE_P(Files, BadFileTest, ::testing::ValuesIn(BadXmlCases()),
                         [](const ::testing::TestParamInfo<BadXmlCase>& info) {
                             return std::string(info.param.name);
                         });

TEST_F(LangStringTest, DirectoriesInPlaceOfFilesAreIgnored)
{
    std::filesystem::create_directory(m_dir.File("Language.xml"));
    std::filesystem::create_directory(m_dir.File("Lang_cn.xml"));
    ReadLanguageChoice();
    EXPECT_EQ(g_nLanguage, 1);
    EXPECT_EQ(Lookup(L"Close"), L"Close");
}

TEST_F(LangStringTest, LoadedDictionaryIsNeverReread)
{
    g_nLanguage = 0;
    m_dir.Write("Lang_en.xml", "<Language></Language>");
    EXPECT_EQ(Lookup(L"Close"), L"Close");
    m_dir.Write("Lang_en.xml", "<Language><String name=\"Close\" value=\"Shut\"/></Language>");
    EXPECT_EQ(Lookup(L"Close"), L"Close");
    // Nor does a later change of the language code matter.
    g_nLanguage = 1;
    EXPECT_EQ(Lookup(L"Close"), L"Close");
}

TEST_F(LangStringTest, EntriesAreTolerantOfOddChildren)
{
    g_nLanguage = 0;
    m_dir.Write("Lang_en.xml", "<Language>"
                               "<!-- toolbar -->"
                               "<String name=\"Min\" value=\"Minimise\"/>"
                               "loose text"
                               "<String name=\"Close\"/>"
                               "<String value=\"orphan\"/>"
                               "<String name=\"Min\" value=\"Minimize\"/>"
                               "<String name=\"\" value=\"blank\"/>"
                               "</Language>");
    EXPECT_EQ(Lookup(L"Min"), L"Minimize"); // the later entry wins
    EXPECT_EQ(Lookup(L"Close"), L"Close");
    EXPECT_EQ(Lookup(L""), L"blank");
}

TEST_F(LangStringTest, UnknownLanguageCodeShowsKeys)
{
    g_nLanguage = 7;
    m_dir.Write("Lang_en.xml", kEnglish);
    m_dir.Write("Lang_cn.xml", kEnglish);
    EXPECT_EQ(Lookup(L"ProductName"), L"ProductName");
    EXPECT_EQ(Lookup(L""), L"");
}

TEST_F(LangStringTest, LongTextsAreCut)
{
    g_nLanguage = 0;
    m_dir.Write("Lang_en.xml", "<L><S name=\"Long\" value=\"" + std::string(1500, 'y') +
                                   "\"/><S name=\"Edge\" value=\"" + std::string(1023, 'z') +
                                   "\"/></L>");
    EXPECT_EQ(Lookup(L"Long"), std::wstring(1023, L'y'));
    EXPECT_EQ(Lookup(L"Edge"), std::wstring(1023, L'z'));
    std::wstring longKey(2000, L'k');
    EXPECT_EQ(Lookup(longKey.c_str()), std::wstring(1023, L'k'));
}

TEST_F(LangStringTest, FiveBuffersRotate)
{
    g_nLanguage = 0;
    m_dir.Write("Lang_en.xml", kEnglish);
    const wchar_t* first = GetLangString(L"Close", 0);
    const wchar_t* held[4];
    const wchar_t* keys[4] = { L"a", L"b", L"c", L"d" };
    for (int i = 0; i < 4; ++i)
        held[i] = GetLangString(keys[i], 0);
    EXPECT_STREQ(first, L"Close");
    for (int i = 0; i < 4; ++i)
        EXPECT_STREQ(held[i], keys[i]);
    const wchar_t* sixth = GetLangString(L"ProductName", 0);
    EXPECT_EQ(sixth, first);
    EXPECT_STREQ(first, L"Tallix Storage Planner");
}

struct DepthCase {
    const char* text;
    int depth;
};

class NestingDepthTest : public ::testing::TestWithParam<DepthCase> {};

TEST_P(NestingDepthTest, CountsOnlyElementNesting)
{
    EXPECT_EQ(CXmlFileLoader::NestingDepth(GetParam().text, 100), GetParam().depth);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, NestingDepthTest,
    ::testing::Values(DepthCase{ "", 0 }, DepthCase{ "plain", 0 }, DepthCase{ "<a/>", 0 },
                      DepthCase{ "<a><b/><c></c></a>", 2 }, DepthCase{ "<a><b><c>", 3 },
                      DepthCase{ "<a x=\"<b>\" y='>'><c/></a>", 1 },
                      DepthCase{ "<?xml version=\"1.0\"?><!-- <a><a> --><r><![CDATA[<x><y>]]></r>",
                                 1 },
                      DepthCase{ "<!DOCTYPE r><r></r></r></r><s>", 1 },
                      DepthCase{ "<<<<3 < 4", 0 }));

TEST(XmlFileLoaderTest, RefusesDeepNestingBeforeParsing)
{
    std::string deep;
    for (int i = 0; i < 50000; ++i)
        deep += "<a>";
    EXPECT_GT(CXmlFileLoader::NestingDepth(deep, CXmlFileLoader::kMaxDepth),
              CXmlFileLoader::kMaxDepth);
    TiXmlDocument doc;
    EXPECT_FALSE(CXmlFileLoader::Parse(doc, deep));
    EXPECT_TRUE(doc.Error());
    EXPECT_EQ(doc.FirstChild(), nullptr);
}

TEST(XmlFileLoaderTest, LoadsLikeTinyXml)
{
    TempDir dir;
    dir.Write("a.xml", "<Setting>\r\n<UIConfig>\r<R value=\"85\"/></UIConfig></Setting>");
    TiXmlDocument doc;
    ASSERT_TRUE(CXmlFileLoader::Load(doc, dir.File("a.xml")));
    int value = 0;
    doc.RootElement()
        ->FirstChildElement("UIConfig")
        ->FirstChildElement("R")
        ->QueryIntAttribute("value", &value);
    EXPECT_EQ(value, 85);

    TiXmlDocument missing;
    EXPECT_FALSE(CXmlFileLoader::Load(missing, dir.File("none.xml")));
    EXPECT_TRUE(missing.Error());
}

} // namespace

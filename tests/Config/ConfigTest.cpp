// The settings file: what a broken or odd file gives when loaded, and the
// ranges of scaled settings.

#include "Config/ConfigXMLPersistImp.h"
#include "Config/VexUISetting.h"
#include "Config/VexUISettingItem.h"
#include "tests/support/BadXml.h"
#include "tests/support/TempDir.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

namespace {

// Runs each test in a fresh temporary directory: the settings file is
// relative to the current directory.
class ConfigDirTest : public ::testing::Test {
protected:
    void SetUp() override { std::filesystem::current_path(m_dir.Path()); }
    void TearDown() override { std::filesystem::current_path(m_previous); }

    static void WriteConfig(const std::string& bytes)
    {
        std::ofstream("config.xml", std::ios::binary | std::ios::trunc) << bytes;
    }
    static VexUISetting* LoadFromFile(VexUISetting* setting)
    {
        setting->SetPersistent(new CConfigXMLPersistImp(""));
        setting->Load();
        return setting;
    }

private:
    std::filesystem::path m_previous = std::filesystem::current_path();
    TempDir m_dir;
};

std::string WithValue(const std::string& value)
{
    return "<Setting><UIConfig><RecordblePersentage value=\"" + value +
           "\" Default=\"90\" Min=\"0\" Max=\"0\" Scale=\"0\" /></UIConfig></Setting>";
}

std::string Nested(int depth)
{
    std::string text;
    for (int i = 0; i < depth; ++i)
        text += "<a>";
    for (int i = 0; i < depth; ++i)
        text += "</a>";
    return text;
}

struct FileCase {
    const char* name;
    std::string content;
    DWORD expected;
};

void PrintTo(const FileCase& c, std::ostream* os)
{
    *os << c.name;
}

const FileCase kFileCases[] = {
    { "TruncatedInValue", "<Setting><UIConfig><RecordblePersentage value=\"8", 90 },
    { "WrongRootName", "<Other><UIConfig><RecordblePersentage value=\"85\"/></UIConfig></Other>",
      85 },
    { "NoRoot", "<UIConfig><RecordblePersentage value=\"85\"/></UIConfig>", 90 },
    { "DeclarationHead", "<?xml version=\"1.0\" ?>" + WithValue("85"), 90 },
    { "CommentHead", "<!-- settings -->" + WithValue("85"), 90 },
    { "CommentInside",
      "<Setting><!-- c --><UIConfig><!-- c --><RecordblePersentage value=\"85\"/></UIConfig></Setting>",
      85 },
    { "Nested50000AfterSetting", WithValue("85") + Nested(50000), 90 },
    { "TenMegabytesBeforeSetting",
      "<Pad>" + std::string(10 * 1024 * 1024, 'x') + "</Pad>" + WithValue("85"), 90 },
    { "Value85", WithValue("85"), 85 },
    { "Value150NoRange", WithValue("150"), 150 },
    { "ValueZero", WithValue("0"), 0 },
    { "ValueNotNumber", WithValue("abc"), 90 },
    { "ValueAbsent",
      "<Setting><UIConfig><RecordblePersentage Default=\"85\"/></UIConfig></Setting>", 90 },
    { "OtherSection", "<Setting><Other><RecordblePersentage value=\"85\"/></Other></Setting>", 90 },
    { "CrLf",
      "<Setting>\r\n<UIConfig>\r\n<RecordblePersentage value=\"85\"/>\r\n</UIConfig>\r\n</Setting>\r\n",
      85 },
};

class ConfigFileTest : public ConfigDirTest, public ::testing::WithParamInterface<FileCase> {};

TEST_P(ConfigFileTest, LoadsPercentage)
{
    WriteConfig(GetParam().content);
    VexUISetting setting;
    EXPECT_EQ(GetParam().expected, LoadFromFile(&setting)->m_nRecordblePersentage);
}

INSTANTIATE_TEST_SUITE_P(Files, ConfigFileTest, ::testing::ValuesIn(kFileCases),
                         [](const ::testing::TestParamInfo<FileCase>& info) {
                             return std::string(info.param.name);
                         });

class ConfigBadFileTest : public ConfigDirTest, public ::testing::WithParamInterface<BadXmlCase> {};

TEST_P(ConfigBadFileTest, KeepsTheDefault)
{
    if (GetParam().present)
        WriteConfig(GetParam().content);
    VexUISetting setting;
    EXPECT_EQ(90u, LoadFromFile(&setting)->m_nRecordblePersentage);
}

INSTANTIATE_TEST_SUITE_P(Files, ConfigBadFileTest, ::testing::ValuesIn(BadXmlCases()),
                         [](const ::testing::TestParamInfo<BadXmlCase>& info) {
                             return std::string(info.param.name);
                         });

TEST_F(ConfigDirTest, DirectoryInPlaceOfTheFileKeepsTheDefault)
{
    std::filesystem::create_directory("config.xml");
    VexUISetting setting;
    EXPECT_EQ(90u, LoadFromFile(&setting)->m_nRecordblePersentage);
}

class TestSetting : public VexUISetting {
public:
    using VexUISetting::AddSetting;
};

TEST_F(ConfigDirTest, LoadWithoutReaderTakesDefault)
{
    VexUISetting setting;
    setting.Load();
    EXPECT_EQ(90u, setting.m_nRecordblePersentage);
}

TEST_F(ConfigDirTest, SecondLoadRereadsTheFile)
{
    VexUISetting setting;
    LoadFromFile(&setting);
    setting.m_nRecordblePersentage = 1;
    setting.Load();
    EXPECT_EQ(90u, setting.m_nRecordblePersentage);
}

struct ScaledCase {
    const char* fileValue;
    DWORD expected;
};

void PrintTo(const ScaledCase& c, std::ostream* os)
{
    *os << c.fileValue;
}

class ScaledSetting : public VexUISetting {
public:
    ScaledSetting()
    {
        AddSetting(new VexUISettingItem(L"UIConfig", L"Sized", &m_nSized, 2048, 1024, 1, 4));
    }
    DWORD m_nSized = 0;
};

class ScaledRangeTest : public ConfigDirTest, public ::testing::WithParamInterface<ScaledCase> {};

TEST_P(ScaledRangeTest, ClampsIntoScaledBounds)
{
    WriteConfig(std::string("<Setting><UIConfig><Sized value=\"") + GetParam().fileValue +
                "\"/></UIConfig></Setting>");
    ScaledSetting setting;
    LoadFromFile(&setting);
    EXPECT_EQ(GetParam().expected, setting.m_nSized);
    EXPECT_EQ(90u, setting.m_nRecordblePersentage);
}

INSTANTIATE_TEST_SUITE_P(Values, ScaledRangeTest,
                         ::testing::Values(ScaledCase{ "9000", 4096 }, ScaledCase{ "100", 1024 },
                                           ScaledCase{ "1024", 1024 }, ScaledCase{ "4096", 4096 },
                                           ScaledCase{ "2000", 2000 }, ScaledCase{ "abc", 2048 },
                                           ScaledCase{ "-1", 4096 }),
                         [](const ::testing::TestParamInfo<ScaledCase>& info) {
                             return "Index" + std::to_string(info.index);
                         });

TEST_F(ConfigDirTest, EmptyStringFallsBackToDefault)
{
    WriteConfig("<Setting><S><Text value=\"\"/></S></Setting>");
    std::wstring text = L"stale";
    TestSetting setting;
    setting.AddSetting(new VexUISettingItem(L"S", L"Text", &text, L"fallback", 0, 0, 0));
    LoadFromFile(&setting);
    EXPECT_EQ(L"fallback", text);
}

} // namespace

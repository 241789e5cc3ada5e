// The settings file: what a broken or odd file gives, each value type read
// and written, the ranges of scaled settings, and the encoded form.

#include "ConfigXMLPersistImp.h"
#include "VexUISetting.h"
#include "VexUISettingItem.h"

#include "BadXml.h"
#include "TempDir.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <vector>

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
    static std::string ReadConfig()
    {
        std::ifstream in("config.xml", std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
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

void PrintTo(const FileCase& c, std::ostream* os) { *os << c.name; }

const FileCase kFileCases[] = {
    {"TruncatedInValue", "<Setting><UIConfig><RecordblePersentage value=\"8", 90},
    {"WrongRootName", "<Other><UIConfig><RecordblePersentage value=\"85\"/></UIConfig></Other>", 85},
    {"NoRoot", "<UIConfig><RecordblePersentage value=\"85\"/></UIConfig>", 90},
    {"DeclarationHead", "<?xml version=\"1.0\" ?>" + WithValue("85"), 90},
    {"CommentHead", "<!-- settings -->" + WithValue("85"), 90},
    {"CommentInside",
     "<Setting><!-- c --><UIConfig><!-- c --><RecordblePersentage value=\"85\"/></UIConfig></Setting>", 85},
    {"Nested50000AfterSetting", WithValue("85") + Nested(50000), 90},
    {"TenMegabytesBeforeSetting", "<Pad>" + std::string(10 * 1024 * 1024, 'x') + "</Pad>" + WithValue("85"), 90},
    {"Value85", WithValue("85"), 85},
    {"Value150NoRange", WithValue("150"), 150},
    {"ValueZero", WithValue("0"), 0},
    {"ValueNotNumber", WithValue("abc"), 90},
    {"ValueAbsent", "<Setting><UIConfig><RecordblePersentage Default=\"85\"/></UIConfig></Setting>", 90},
    {"OtherSection", "<Setting><Other><RecordblePersentage value=\"85\"/></Other></Setting>", 90},
    {"CrLf", "<Setting>\r\n<UIConfig>\r\n<RecordblePersentage value=\"85\"/>\r\n</UIConfig>\r\n</Setting>\r\n", 85},
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

class ConfigReadTest : public ConfigDirTest {
protected:
    void SetUp() override
    {
        ConfigDirTest::SetUp();
        WriteConfig(
            "<Setting><S>"
            "<Int value=\"-7\"/><Yes value=\"YES\"/><No value=\"no\"/><One value=\"1\"/>"
            "<Dbl value=\"2.5\"/><Str value=\"Gr\xC3\xBC\xC3\x9F" "e\"/><EmptyStr value=\"\"/>"
            "<Bad value=\"abc\"/><None/>"
            "</S></Setting>");
    }
};

TEST_F(ConfigReadTest, ReadsEachType)
{
    CConfigXMLPersistImp config("ignored");
    EXPECT_EQ(-7, config.ReadInt(L"S", L"Int", 5, 0));
    EXPECT_EQ(0xFFFFFFF9u, config.ReadDword(L"S", L"Int", 5, 0));
    EXPECT_TRUE(config.ReadBool(L"S", L"Yes", false, 0));
    EXPECT_FALSE(config.ReadBool(L"S", L"No", true, 0));
    EXPECT_TRUE(config.ReadBool(L"S", L"One", false, 0));
    EXPECT_DOUBLE_EQ(2.5, config.ReadDouble(L"S", L"Dbl", 1.0, 0));
    EXPECT_EQ(L"Gr\u00FC\u00DFe", config.ReadString(L"S", L"Str", L"x", 0, 0));
    EXPECT_EQ(L"", config.ReadString(L"S", L"EmptyStr", L"x", 0, 0));
}

TEST_F(ConfigReadTest, MissingOrUnreadableGivesDefault)
{
    CConfigXMLPersistImp config("");
    for (const wchar_t* name : {L"Bad", L"None", L"Missing"}) {
        EXPECT_EQ(5, config.ReadInt(L"S", name, 5, 0)) << name;
        EXPECT_EQ(6u, config.ReadDword(L"S", name, 6, 0)) << name;
        EXPECT_TRUE(config.ReadBool(L"S", name, true, 0)) << name;
        EXPECT_DOUBLE_EQ(1.5, config.ReadDouble(L"S", name, 1.5, 0)) << name;
    }
    EXPECT_EQ(L"x", config.ReadString(L"S", L"None", L"x", 0, 0));
    EXPECT_EQ(L"", config.ReadString(L"S", L"Missing", L"", 0, 0));
    EXPECT_EQ(5, config.ReadInt(L"T", L"Int", 5, 0));
    EXPECT_EQ(5, config.ReadInt(nullptr, nullptr, 5, 0));
}

TEST_F(ConfigDirTest, ParseTextFillsAnEmptyDocumentUnlessTooDeep)
{
    CConfigXMLPersistImp config("");
    config.ParseText(nullptr);
    EXPECT_EQ(5, config.ReadInt(L"A", L"B", 5, 0));
    config.ParseText("<S><A><B value=\"3\"/></A></S>");
    EXPECT_EQ(3, config.ReadInt(L"A", L"B", 5, 0));
    // Too deep a text is refused before it is parsed.
    config.ParseText(Nested(50000).c_str());
    EXPECT_EQ(5, config.ReadInt(L"a", L"a", 5, 0));
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

TEST_F(ConfigDirTest, SecondLoadRereadsWithoutDuplicating)
{
    VexUISetting setting;
    LoadFromFile(&setting);
    setting.m_nRecordblePersentage = 1;
    setting.Load();
    EXPECT_EQ(90u, setting.m_nRecordblePersentage);
    setting.Save();
    std::string saved = ReadConfig();
    ASSERT_NE(std::string::npos, saved.find("RecordblePersentage"));
    EXPECT_EQ(saved.find("RecordblePersentage"), saved.rfind("RecordblePersentage"));
}

struct ScaledCase {
    const char* fileValue;
    DWORD expected;
};

void PrintTo(const ScaledCase& c, std::ostream* os) { *os << c.fileValue; }

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
                         ::testing::Values(ScaledCase{"9000", 4096}, ScaledCase{"100", 1024},
                                           ScaledCase{"1024", 1024}, ScaledCase{"4096", 4096},
                                           ScaledCase{"2000", 2000}, ScaledCase{"abc", 2048},
                                           ScaledCase{"-1", 4096}),
                         [](const ::testing::TestParamInfo<ScaledCase>& info) {
                             return "Index" + std::to_string(info.index);
                         });

TEST_F(ConfigDirTest, SavesShippedRecord)
{
    VexUISetting setting;
    setting.Load();
    setting.Save();
    EXPECT_EQ("<Setting>\n"
              "    <UIConfig>\n"
              "        <RecordblePersentage value=\"90\" Default=\"90\" Min=\"0\" Max=\"0\" Scale=\"0\" />\n"
              "    </UIConfig>\n"
              "</Setting>\n",
              ReadConfig());
}

struct Values {
    bool b = false;
    DWORD d = 0;
    double f = 0.0;
    std::wstring s;
};

void Register(TestSetting& setting, Values& v)
{
    setting.AddSetting(new VexUISettingItem(L"First", L"Flag", &v.b, true, 1, 0, 1));
    setting.AddSetting(new VexUISettingItem(L"First", L"Count", &v.d, 7, 0, 0, 0));
    setting.AddSetting(new VexUISettingItem(L"Second", L"Ratio", &v.f, 0.5, 0, 0, 0));
    setting.AddSetting(new VexUISettingItem(L"Second", L"Text", &v.s, L"none", 0, 0, 0));
}

TEST_F(ConfigDirTest, SaveThenLoadRoundTripsEveryType)
{
    Values written;
    {
        TestSetting setting;
        Register(setting, written);
        setting.Load();
        EXPECT_TRUE(written.b);
        EXPECT_EQ(7u, written.d);
        EXPECT_EQ(L"none", written.s);
        written = {false, 4000000000u, 0.1, L"Gr\u00FC\u00DFe \u4E2D"};
        setting.Save();
    }
    Values read;
    TestSetting setting;
    Register(setting, read);
    LoadFromFile(&setting);
    EXPECT_EQ(written.b, read.b);
    EXPECT_EQ(written.d, read.d);
    EXPECT_DOUBLE_EQ(written.f, read.f);
    EXPECT_EQ(written.s, read.s);
    EXPECT_EQ(90u, setting.m_nRecordblePersentage);
}

TEST_F(ConfigDirTest, EmptyStringFallsBackToDefault)
{
    WriteConfig("<Setting><S><Text value=\"\"/></S></Setting>");
    std::wstring text = L"stale";
    TestSetting setting;
    setting.AddSetting(new VexUISettingItem(L"S", L"Text", &text, L"fallback", 0, 0, 0));
    LoadFromFile(&setting);
    EXPECT_EQ(L"fallback", text);
}

TEST_F(ConfigDirTest, EncodedRoundTrip)
{
    VexUISetting setting;
    ASSERT_TRUE(setting.WriteEncoded(new unsigned char[4]{0x00, 0x41, 0xFF, 0x80}, 4));
    EXPECT_EQ(std::string("0\0\0\0" "260\0" "-4\0\0" "-512", 16), ReadConfig());

    unsigned char* data = setting.ReadEncoded();
    ASSERT_NE(nullptr, data);
    EXPECT_EQ(std::vector<unsigned char>({0x00, 0x41, 0xFF, 0x80}),
              std::vector<unsigned char>(data, data + 4));
    delete[] data;
}

TEST_F(ConfigDirTest, EncodedReadTakesWholeGroupsAndNeedsAFile)
{
    VexUISetting setting;
    EXPECT_EQ(nullptr, setting.ReadEncoded());
    WriteConfig(std::string("508\0" "12", 6));
    unsigned char* data = setting.ReadEncoded();
    ASSERT_NE(nullptr, data);
    EXPECT_EQ(0x7F, data[0]);
    delete[] data;
    std::filesystem::remove("config.xml");
    std::filesystem::create_directory("config.xml");
    EXPECT_EQ(nullptr, setting.ReadEncoded());

    // Failing to open keeps the caller's buffer.
    unsigned char* buffer = new unsigned char[1]{0x41};
    EXPECT_FALSE(setting.WriteEncoded(buffer, 1));
    EXPECT_EQ(0x41, buffer[0]);
    delete[] buffer;
}

} // namespace

#include "ConfigXMLPersistImp.h"
#include "VexUISetting.h"

#include "ConfigDirTest.h"

#include <filesystem>
#include <functional>
#include <random>
#include <string>

namespace {

std::string WithValue(const std::string& value)
{
    return "<Setting><UIConfig><RecordblePersentage value=\"" + value +
           "\" Default=\"90\" Min=\"0\" Max=\"0\" Scale=\"0\" /></UIConfig></Setting>";
}

std::string Nested(int depth)
{
    std::string text;
    text.reserve(static_cast<std::size_t>(depth) * 7);
    for (int i = 0; i < depth; ++i)
        text += "<a>";
    for (int i = 0; i < depth; ++i)
        text += "</a>";
    return text;
}

std::string RandomBytes(std::size_t count)
{
    std::mt19937 engine(20240611u);
    std::string bytes(count, '\0');
    for (char& c : bytes)
        c = static_cast<char>(engine() & 0xFF);
    return bytes;
}

struct FileCase {
    const char* name;
    std::function<void()> prepare;
    DWORD expected;
};

void PrintTo(const FileCase& c, std::ostream* os) { *os << c.name; }

void Write(const std::string& bytes)
{
    std::ofstream out("config.xml", std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::function<void()> File(std::string bytes)
{
    return [bytes] { Write(bytes); };
}

const FileCase kFileCases[] = {
    {"Missing", [] {}, 90},
    {"Empty", File(""), 90},
    {"TruncatedInValue", File("<Setting><UIConfig><RecordblePersentage value=\"8"), 90},
    {"TruncatedInName", File("<Setting><UIConfig><RecordblePers"), 90},
    {"NotXml", File("RecordblePersentage=85\n"), 90},
    {"WrongRootName", File("<Other><UIConfig><RecordblePersentage value=\"85\"/></UIConfig></Other>"), 85},
    {"NoRoot", File("<UIConfig><RecordblePersentage value=\"85\"/></UIConfig>"), 90},
    {"DeclarationHead", File("<?xml version=\"1.0\" ?>" + WithValue("85")), 90},
    {"CommentHead", File("<!-- settings -->" + WithValue("85")), 90},
    {"CommentInside",
     File("<Setting><!-- c --><UIConfig><!-- c --><RecordblePersentage value=\"85\"/></UIConfig></Setting>"), 85},
    {"Nested50000", File(Nested(50000)), 90},
    {"Nested50000AfterSetting", File(WithValue("85") + Nested(50000)), 90},
    {"TenMegabytes", File("<Pad>" + std::string(10 * 1024 * 1024, 'x') + "</Pad>" + WithValue("85")), 90},
    {"RandomBinary", File(RandomBytes(64 * 1024)), 90},
    {"Directory", [] { std::filesystem::create_directory("config.xml"); }, 90},
    {"Value85", File(WithValue("85")), 85},
    {"Value150NoRange", File(WithValue("150")), 150},
    {"ValueZero", File(WithValue("0")), 0},
    {"ValueNotNumber", File(WithValue("abc")), 90},
    {"ValueAbsent", File("<Setting><UIConfig><RecordblePersentage Default=\"85\"/></UIConfig></Setting>"), 90},
    {"OtherSection", File("<Setting><Other><RecordblePersentage value=\"85\"/></Other></Setting>"), 90},
    {"CrLf", File("<Setting>\r\n<UIConfig>\r\n<RecordblePersentage value=\"85\"/>\r\n</UIConfig>\r\n</Setting>\r\n"), 85},
};

class ConfigFileTest : public ConfigDirTest, public ::testing::WithParamInterface<FileCase> {};

TEST_P(ConfigFileTest, LoadsPercentage)
{
    GetParam().prepare();
    VexUISetting setting;
    setting.SetPersistent(new CConfigXMLPersistImp(""));
    setting.Load();
    EXPECT_EQ(GetParam().expected, setting.m_nRecordblePersentage);
}

INSTANTIATE_TEST_SUITE_P(Files, ConfigFileTest, ::testing::ValuesIn(kFileCases),
                         [](const ::testing::TestParamInfo<FileCase>& info) {
                             return std::string(info.param.name);
                         });

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

TEST_F(ConfigDirTest, ParseTextFillsEmptyDocument)
{
    CConfigXMLPersistImp config("");
    config.ParseText(nullptr);
    EXPECT_EQ(5, config.ReadInt(L"A", L"B", 5, 0));
    config.ParseText("<S><A><B value=\"3\"/></A></S>");
    EXPECT_EQ(3, config.ReadInt(L"A", L"B", 5, 0));
}

TEST_F(ConfigDirTest, ParseTextRefusesDeepNesting)
{
    CConfigXMLPersistImp config("");
    config.ParseText(Nested(50000).c_str());
    EXPECT_EQ(5, config.ReadInt(L"a", L"a", 5, 0));
}

} // namespace

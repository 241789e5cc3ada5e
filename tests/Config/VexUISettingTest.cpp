#include "ConfigXMLPersistImp.h"
#include "VexUISetting.h"
#include "VexUISettingItem.h"

#include "ConfigDirTest.h"

#include <filesystem>
#include <string>
#include <tinyxml.h>
#include <vector>

namespace {

class TestSetting : public VexUISetting {
public:
    using VexUISetting::AddSetting;
};

VexUISetting* LoadFromFile(VexUISetting* setting)
{
    setting->SetPersistent(new CConfigXMLPersistImp(""));
    setting->Load();
    return setting;
}

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

TEST_F(ConfigDirTest, SaveThenLoadKeepsShippedValue)
{
    {
        VexUISetting setting;
        setting.Load();
        setting.m_nRecordblePersentage = 85;
        setting.Save();
    }
    VexUISetting loaded;
    LoadFromFile(&loaded);
    EXPECT_EQ(85u, loaded.m_nRecordblePersentage);
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

TEST_F(ConfigDirTest, SaveStartsSectionWheneverItChanges)
{
    DWORD a = 1, b = 2, c = 3;
    TestSetting setting;
    setting.AddSetting(new VexUISettingItem(L"A", L"One", &a, 0, 0, 0, 0));
    setting.AddSetting(new VexUISettingItem(L"B", L"Two", &b, 0, 0, 0, 0));
    setting.AddSetting(new VexUISettingItem(L"A", L"Three", &c, 0, 0, 0, 0));
    setting.Save();

    TiXmlDocument doc;
    ASSERT_TRUE(doc.LoadFile("config.xml"));
    std::vector<std::string> sections;
    for (TiXmlElement* e = doc.RootElement()->FirstChildElement(); e; e = e->NextSiblingElement())
        sections.push_back(e->ValueStr() + "/" + e->FirstChildElement()->ValueStr());
    EXPECT_EQ((std::vector<std::string>{"A/One", "B/Two", "A/Three"}), sections);
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

TEST_F(ConfigDirTest, EncodedReadIgnoresPartialGroup)
{
    WriteConfig(std::string("508\0" "12", 6));
    VexUISetting setting;
    unsigned char* data = setting.ReadEncoded();
    ASSERT_NE(nullptr, data);
    EXPECT_EQ(0x7F, data[0]);
    delete[] data;
}

TEST_F(ConfigDirTest, EncodedWithoutFile)
{
    VexUISetting setting;
    EXPECT_EQ(nullptr, setting.ReadEncoded());
    std::filesystem::create_directory("config.xml");
    EXPECT_EQ(nullptr, setting.ReadEncoded());

    // Failing to open keeps the caller's buffer.
    unsigned char* buffer = new unsigned char[1]{0x41};
    EXPECT_FALSE(setting.WriteEncoded(buffer, 1));
    EXPECT_EQ(0x41, buffer[0]);
    delete[] buffer;
}

} // namespace

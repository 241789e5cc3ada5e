#include "ConfigAssert.h"
#include "VexUISetting.h"
#include "VexUISettingItem.h"

#include "ConfigDirTest.h"

#include <functional>
#include <memory>
#include <string>
#include <tinyxml.h>
#include <vector>

namespace {

struct Report {
    unsigned int line;
    std::string text;
    bool operator==(const Report& other) const { return line == other.line && text == other.text; }
};

void PrintTo(const Report& r, std::ostream* os) { *os << r.line << ": " << r.text; }

std::vector<Report> g_reports;
std::vector<std::string> g_files;

void Capture(const char* file, unsigned int line, const char* text)
{
    g_files.push_back(file);
    g_reports.push_back({line, text});
}

class AssertCapture : public ConfigDirTest {
protected:
    void SetUp() override
    {
        ConfigDirTest::SetUp();
        g_reports.clear();
        g_files.clear();
        m_previous = SetConfigAssertHook(&Capture);
#ifdef NDEBUG
        GTEST_SKIP() << "assertions are compiled out";
#endif
    }
    void TearDown() override
    {
        SetConfigAssertHook(m_previous);
        ConfigDirTest::TearDown();
    }

    static void ExpectFiles()
    {
        for (const std::string& file : g_files)
            EXPECT_EQ(".\\Config\\VexUISetting", file);
    }

private:
    ConfigAssertHook m_previous = nullptr;
};

struct Targets {
    bool b = false;
    DWORD d = 0;
    double f = 0.0;
    std::wstring s;
};

const char kBoolPointers[] = "! m_pDword && ! m_pFloat && NULL == m_pString";
const char kBoolRange[] = "m_nScale == 1 && m_nMin == 0 && m_nMax == 1";
const char kRange[] = "( m_nScale == 0 && m_nMin == 0 && m_nMax == 0 ) || ( m_nScale && m_nMin < m_nMax )";
const char kNoRange[] = "m_nScale == 0 && m_nMin == 0 && m_nMax == 0";

struct BreachCase {
    const char* name;
    std::function<VexUISettingItem*(Targets&)> make;
    std::vector<Report> load;
    std::vector<Report> save;
};

void PrintTo(const BreachCase& c, std::ostream* os) { *os << c.name; }

const BreachCase kBreaches[] = {
    {"BoolAlsoDword",
     [](Targets& t) {
         auto* item = new VexUISettingItem(L"S", L"N", &t.b, false, 1, 0, 1);
         item->m_pDword = &t.d;
         return item;
     },
     {{154, kBoolPointers}}, {{198, kBoolPointers}}},
    {"BoolRange",
     [](Targets& t) { return new VexUISettingItem(L"S", L"N", &t.b, false, 0, 0, 0); },
     {{155, kBoolRange}}, {{199, kBoolRange}}},
    {"DwordAlsoFloat",
     [](Targets& t) {
         auto* item = new VexUISettingItem(L"S", L"N", &t.d, 0, 0, 0, 0);
         item->m_pFloat = &t.f;
         return item;
     },
     {{160, "! m_pFloat && m_pString == NULL"}}, {{215, "! m_pFloat && NULL == m_pString"}}},
    {"DwordMinAboveMax",
     [](Targets& t) { return new VexUISettingItem(L"S", L"N", &t.d, 0, 1024, 4, 1); },
     {{162, kRange}}, {{217, kRange}}},
    {"DwordRangeWithoutScale",
     [](Targets& t) { return new VexUISettingItem(L"S", L"N", &t.d, 0, 0, 1, 2); },
     {{162, kRange}}, {{217, kRange}}},
    {"DwordDefaultOutOfRange",
     [](Targets& t) { return new VexUISettingItem(L"S", L"N", &t.d, 5, 1, 10, 20); },
     {{167, "( m_DwordDefault >= m_nMin * m_nScale ) && ( m_DwordDefault <= m_nMax * m_nScale )"}},
     {}},
    {"FloatAlsoString",
     [](Targets& t) {
         auto* item = new VexUISettingItem(L"S", L"N", &t.f, 0.0, 0, 0, 0);
         item->m_pString = &t.s;
         return item;
     },
     {{173, "NULL == m_pString"}}, {{228, "NULL == m_pString"}}},
    {"FloatRange",
     [](Targets& t) { return new VexUISettingItem(L"S", L"N", &t.f, 0.0, 1, 0, 1); },
     {{174, kNoRange}}, {{229, kNoRange}}},
    {"StringRange",
     [](Targets& t) { return new VexUISettingItem(L"S", L"N", &t.s, L"", 1, 0, 1); },
     {{179, kNoRange}}, {{236, kNoRange}}},
    {"ValidDword",
     [](Targets& t) { return new VexUISettingItem(L"S", L"N", &t.d, 2048, 1024, 1, 4); },
     {}, {}},
};

class BreachTest : public AssertCapture, public ::testing::WithParamInterface<BreachCase> {};

TEST_P(BreachTest, ReportsOnLoadAndSave)
{
    Targets targets;
    std::unique_ptr<VexUISettingItem> item(GetParam().make(targets));

    item->Load(nullptr);
    EXPECT_EQ(GetParam().load, g_reports);
    ExpectFiles();

    g_reports.clear();
    TiXmlElement section("S");
    item->Save(&section);
    EXPECT_EQ(GetParam().save, g_reports);
    ExpectFiles();
}

INSTANTIATE_TEST_SUITE_P(Records, BreachTest, ::testing::ValuesIn(kBreaches),
                         [](const ::testing::TestParamInfo<BreachCase>& info) {
                             return std::string(info.param.name);
                         });

class TestSetting : public VexUISetting {
public:
    using VexUISetting::AddSetting;
};

TEST_F(AssertCapture, SaveWithoutSectionElementReports)
{
    DWORD value = 0;
    TestSetting setting;
    setting.AddSetting(new VexUISettingItem(L"", L"N", &value, 0, 0, 0, 0));
    setting.Save();
    EXPECT_EQ((std::vector<Report>{{191, "msgs != NULL"}}), g_reports);
    ExpectFiles();
}

TEST_F(AssertCapture, ShippedRecordNeverReports)
{
    VexUISetting setting;
    setting.Load();
    setting.Save();
    EXPECT_TRUE(g_reports.empty());
}

TEST_F(AssertCapture, BreachedRangeIsNotApplied)
{
    Targets targets;
    VexUISettingItem item(L"S", L"N", &targets.d, 9000, 1024, 4, 1);
    item.Load(nullptr);
    EXPECT_EQ(9000u, targets.d);
}

TEST(ConfigAssertDeathTest, DefaultReportAborts)
{
#ifdef NDEBUG
    GTEST_SKIP() << "assertions are compiled out";
#endif
    EXPECT_DEATH(ConfigAssertFailed("m_nScale == 0", ".\\Config\\VexUISetting", 174),
                 "\\.\\\\Config\\\\VexUISetting\\(174\\): m_nScale == 0");
}

} // namespace

#include "language/TextConvert.h"

#include "language/SFStreamConvert.h"
#include "platform/WinTypes.h"

#include <gtest/gtest.h>
#include <string>

using SF_SOFT_BASE::CSFStreamConvert;

namespace {

struct RoundTrip {
    const char* utf8;
    const wchar_t* wide;
};

const RoundTrip kRoundTrips[] = {
    { "", L"" },
    { "RecordblePersentage", L"RecordblePersentage" },
    { "\xE7\xA1\xAC\xE7\x9B\x98\xE5\xAE\xB9\xE9\x87\x8F", L"\u786c\u76d8\u5bb9\u91cf" },
    { "Copyright \xC2\xA9 2026", L"Copyright \u00a9 2026" },
    { "\xF0\x9F\x93\xB9 cam", L"\U0001F4F9 cam" },
};

TEST(StreamConvertTest, RoundTripsUtf8BothWays)
{
    for (const RoundTrip& t : kRoundTrips) {
        CSFStreamConvert fromNarrow(t.utf8, CP_UTF8);
        EXPECT_EQ(fromNarrow.GetWString(), t.wide) << t.utf8;
        EXPECT_STREQ(fromNarrow.GetA(), t.utf8);

        CSFStreamConvert fromWide(t.wide, CP_UTF8);
        EXPECT_EQ(fromWide.GetAString(), t.utf8);
        EXPECT_STREQ(fromWide.GetW(), t.wide);
    }
}

TEST(StreamConvertTest, ReuseAndClear)
{
    CSFStreamConvert conv;
    EXPECT_EQ(conv.GetA(), nullptr);
    EXPECT_EQ(conv.GetW(), nullptr);
    EXPECT_STREQ(conv.W2A(L"UIConfig", CP_ACP), "UIConfig");
    EXPECT_STREQ(conv.A2W("Setting", CP_UTF8), L"Setting");
    EXPECT_STREQ(conv.GetA(), "Setting");
    EXPECT_EQ(conv.W2A(nullptr, CP_UTF8), nullptr);
    conv.Clear();
    EXPECT_EQ(conv.GetWString(), L"");
    EXPECT_EQ(conv.GetAString(), "");
}

TEST(StreamConvertTest, InvalidUtf8BecomesReplacement)
{
    CSFStreamConvert conv("a\xFF"
                          "b",
                          CP_UTF8);
    EXPECT_EQ(conv.GetWString(), L"a\uFFFDb");
}

struct DigitsCase {
    const wchar_t* text;
    int limit;
    int result;
    int value;
};

class ParseWideDigitsTest : public ::testing::TestWithParam<DigitsCase> {};

TEST_P(ParseWideDigitsTest, ReadsDigitsUpToLimit)
{
    int value = -1;
    EXPECT_EQ(ParseWideDigits(GetParam().text, &value, GetParam().limit), GetParam().result);
    EXPECT_EQ(value, GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ParseWideDigitsTest,
    ::testing::Values(DigitsCase{ L"", 9, 1, 0 }, DigitsCase{ L"24", 9, 1, 24 },
                      DigitsCase{ L"123456789012", 9, 1, 123456789 },
                      DigitsCase{ L"12a4", 9, 0, 12 }, DigitsCase{ L"-5", 9, 0, 0 },
                      DigitsCase{ L" 7", 9, 0, 0 }, DigitsCase{ L"007", 2, 1, 0 },
                      DigitsCase{ L"99999", 0, 1, 0 },
                      // Overlong numbers wrap instead of stopping.
                      DigitsCase{ L"4294967297", 10, 1, 1 }));

} // namespace

#include "platform/WinCodePage.h"

#include "platform/WinCharset.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

namespace {

const wchar_t kFffd = 0xFFFD;

// The two-call pattern over an explicit length.
std::wstring toWide(UINT codePage, const std::string& bytes)
{
    const int len = static_cast<int>(bytes.size());
    const int n = MultiByteToWideChar(codePage, 0, bytes.data(), len, nullptr, 0);
    std::wstring out(static_cast<std::size_t>(n), L'#');
    EXPECT_EQ(MultiByteToWideChar(codePage, 0, bytes.data(), len, &out[0], n), n);
    return out;
}

std::string toNarrow(UINT codePage, const std::wstring& text)
{
    const int len = static_cast<int>(text.size());
    const int n = WideCharToMultiByte(codePage, 0, text.data(), len, nullptr, 0, nullptr, nullptr);
    std::string out(static_cast<std::size_t>(n), '#');
    EXPECT_EQ(WideCharToMultiByte(codePage, 0, text.data(), len, &out[0], n, nullptr, nullptr), n);
    return out;
}

struct Utf8Case {
    const char* name;
    std::string bytes;
    std::wstring wide;
};

std::ostream& operator<<(std::ostream& os, const Utf8Case& c)
{
    return os << c.name;
}

class Utf8RoundTripTest : public ::testing::TestWithParam<Utf8Case> {};

TEST_P(Utf8RoundTripTest, BothWays)
{
    const Utf8Case& c = GetParam();
    EXPECT_EQ(toWide(CP_UTF8, c.bytes), c.wide);
    EXPECT_EQ(toNarrow(CP_UTF8, c.wide), c.bytes);
}

INSTANTIATE_TEST_SUITE_P(
    Table, Utf8RoundTripTest,
    ::testing::Values(
        Utf8Case{ "ascii", "HDD Capcity", L"HDD Capcity" },
        Utf8Case{ "twoByte", "\xC3\xA9t\xC3\xA9", L"\u00E9t\u00E9" },
        Utf8Case{ "threeByte", "\xE7\xA1\xAC\xE7\x9B\x98", L"\u786C\u76D8" },
        Utf8Case{ "fourByte",
                  "a\xF0\x9F\x98\x80"
                  "b",
                  L"a\U0001F600b" },
        Utf8Case{ "limits",
                  "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF",
                  L"\x7F\x80\x7FF\x800\xFFFF\U00010000\U0010FFFF" }));

class Utf8InvalidTest : public ::testing::TestWithParam<Utf8Case> {};

TEST_P(Utf8InvalidTest, MaximalSubpartsBecomeReplacement)
{
    const Utf8Case& c = GetParam();
    EXPECT_EQ(toWide(CP_UTF8, c.bytes), c.wide);
}

const std::wstring R1(1, kFffd);
const std::wstring R2(2, kFffd);
const std::wstring R3(3, kFffd);
const std::wstring R4(4, kFffd);

INSTANTIATE_TEST_SUITE_P(
    Table, Utf8InvalidTest,
    ::testing::Values(Utf8Case{ "loneContinuation",
                                "a\x80"
                                "b",
                                L"a" + R1 + L"b" },
                      Utf8Case{ "truncatedAtEnd", "\xE7\xA1", R1 },
                      Utf8Case{ "truncatedBeforeAscii", "\xF0\x9F\x98z", R1 + L"z" },
                      Utf8Case{ "truncatedBeforeLead", "\xC3\xC3\xA9", R1 + L"\u00E9" },
                      Utf8Case{ "overlongTwo", "\xC0\xAF", R2 },
                      Utf8Case{ "overlongFour", "\xF0\x80\x80\xAF", R4 },
                      Utf8Case{ "surrogate", "\xED\xA0\x80", R3 },
                      Utf8Case{ "aboveMax", "\xF4\x90\x80\x80", R4 },
                      Utf8Case{ "leadF5", "\xF5\x80", R2 },
                      Utf8Case{ "byteFF",
                                "\xFF"
                                "a",
                                R1 + L"a" },
                      // The example of the Unicode standard's table 3-8.
                      Utf8Case{ "unicodeExample",
                                "\x61\xF1\x80\x80\xE1\x80\xC2\x62\x80\x63\x80\xBF\x64",
                                L"a" + R3 + L"b" + R1 + L"c" + R2 + L"d" }));

TEST(Utf8Encode, InvalidWideValuesBecomeReplacement)
{
    const std::string fffd = "\xEF\xBF\xBD";
    const std::wstring bad = { L'a',
                               static_cast<wchar_t>(0xD800),
                               static_cast<wchar_t>(0xDFFF),
                               static_cast<wchar_t>(0x110000),
                               static_cast<wchar_t>(-1),
                               L'b' };
    EXPECT_EQ(toNarrow(CP_UTF8, bad), "a" + fffd + fffd + fffd + fffd + "b");
}

TEST(CodePageLengths, MinusOneCountsAndWritesTheTerminator)
{
    EXPECT_EQ(MultiByteToWideChar(CP_UTF8, 0, "h\xC3\xA9", -1, nullptr, 0), 3);
    wchar_t wide[4] = { L'#', L'#', L'#', L'#' };
    EXPECT_EQ(MultiByteToWideChar(CP_UTF8, 0, "h\xC3\xA9", -1, wide, 4), 3);
    EXPECT_EQ(std::wstring(wide), L"h\u00E9");
    EXPECT_EQ(wide[3], L'#');

    EXPECT_EQ(WideCharToMultiByte(CP_UTF8, 0, L"h\u00E9", -1, nullptr, 0, nullptr, nullptr), 4);
    char narrow[5] = { '#', '#', '#', '#', '#' };
    EXPECT_EQ(WideCharToMultiByte(CP_UTF8, 0, L"h\u00E9", -1, narrow, 5, nullptr, nullptr), 4);
    EXPECT_EQ(std::string(narrow), "h\xC3\xA9");
    EXPECT_EQ(narrow[4], '#');
}

TEST(CodePageLengths, ExplicitLengthWritesNoTerminator)
{
    wchar_t wide[4] = { L'#', L'#', L'#', L'#' };
    EXPECT_EQ(MultiByteToWideChar(CP_UTF8, 0, "abc", 2, wide, 4), 2);
    EXPECT_EQ(wide[1], L'b');
    EXPECT_EQ(wide[2], L'#');
    // Embedded zeros are plain characters.
    EXPECT_EQ(MultiByteToWideChar(CP_UTF8, 0, "a\0b", 3, nullptr, 0), 3);
}

TEST(CodePageLengths, TooSmallOutputFailsWithoutWriting)
{
    wchar_t wide[4] = { L'#', L'#', L'#', L'#' };
    EXPECT_EQ(MultiByteToWideChar(CP_UTF8, 0, "abc", -1, wide, 3), 0);
    EXPECT_EQ(wide[3], L'#');
    char narrow[4] = { '#', '#', '#', '#' };
    EXPECT_EQ(WideCharToMultiByte(CP_UTF8, 0, L"\u786C", 1, narrow, 2, nullptr, nullptr), 0);
    EXPECT_EQ(narrow[2], '#');
}

TEST(CodePageLengths, BadArgumentsGiveZero)
{
    wchar_t wide[4];
    char narrow[4];
    BOOL used = FALSE;
    EXPECT_EQ(MultiByteToWideChar(1252, 0, "abc", -1, wide, 4), 0);
    EXPECT_EQ(MultiByteToWideChar(CP_UTF8, 0, nullptr, -1, wide, 4), 0);
    EXPECT_EQ(MultiByteToWideChar(CP_UTF8, 0, "abc", 0, wide, 4), 0);
    EXPECT_EQ(MultiByteToWideChar(CP_UTF8, 0, "abc", -2, wide, 4), 0);
    EXPECT_EQ(MultiByteToWideChar(CP_UTF8, 0, "abc", -1, wide, -1), 0);
    EXPECT_EQ(MultiByteToWideChar(CP_UTF8, 0, "abc", -1, nullptr, 4), 0);
    EXPECT_EQ(WideCharToMultiByte(936, 0, L"abc", -1, narrow, 4, nullptr, nullptr), 0);
    EXPECT_EQ(WideCharToMultiByte(CP_UTF8, 0, nullptr, -1, narrow, 4, nullptr, nullptr), 0);
    EXPECT_EQ(WideCharToMultiByte(CP_UTF8, 0, L"abc", -1, narrow, 4, "?", nullptr), 0);
    EXPECT_EQ(WideCharToMultiByte(CP_UTF8, 0, L"abc", -1, narrow, 4, nullptr, &used), 0);
}

// Code page 0 follows LC_ALL of the environment; each test sets its own.
class LocaleCodePageTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        const char* saved = std::getenv("LC_ALL");
        m_hadLcAll = saved != nullptr;
        if (saved)
            m_savedLcAll = saved;
    }
    void TearDown() override
    {
        if (m_hadLcAll)
            setenv("LC_ALL", m_savedLcAll.c_str(), 1);
        else
            unsetenv("LC_ALL");
    }

private:
    bool m_hadLcAll = false;
    std::string m_savedLcAll;
};

TEST_F(LocaleCodePageTest, Utf8Locale)
{
    setenv("LC_ALL", "C.UTF-8", 1);
    EXPECT_EQ(platform::LocaleCharset(), "UTF-8");
    EXPECT_EQ(toWide(CP_ACP, "\xE7\xA1\xAC\xC3"), L"\u786C" + R1);
    EXPECT_EQ(toNarrow(CP_ACP, L"\u786C\U0001F600"), "\xE7\xA1\xAC\xF0\x9F\x98\x80");
    EXPECT_EQ(MultiByteToWideChar(CP_ACP, 0, "ab", -1, nullptr, 0), 3);
}

TEST_F(LocaleCodePageTest, BareCLocaleIsTakenAsUtf8)
{
    for (const char* name : { "C", "POSIX", "xx_XX.NoSuchCharset" }) {
        setenv("LC_ALL", name, 1);
        EXPECT_EQ(platform::LocaleCharset(), "UTF-8") << name;
        EXPECT_EQ(toWide(CP_ACP, "\xC3\xA9"), L"\u00E9") << name;
    }
}

TEST_F(LocaleCodePageTest, UsedDefaultCharReportsReplacement)
{
    setenv("LC_ALL", "C.UTF-8", 1);
    char narrow[8];
    BOOL used = TRUE;
    EXPECT_EQ(WideCharToMultiByte(CP_ACP, 0, L"ab", 2, narrow, 8, nullptr, &used), 2);
    EXPECT_FALSE(used);
    const wchar_t lone[] = { static_cast<wchar_t>(0xD800), 0 };
    EXPECT_EQ(WideCharToMultiByte(CP_ACP, 0, lone, 1, narrow, 8, nullptr, &used), 3);
    EXPECT_TRUE(used);
}

// Charsets no installed locale names, through the same conversion.
TEST(Charset, DoubleByte)
{
    std::wstring wide;
    ASSERT_TRUE(platform::CharsetToWide("GBK",
                                        "\xD3\xB2\xC5\xCC"
                                        "a",
                                        5, wide));
    EXPECT_EQ(wide, L"\u786C\u76D8a");
    // A truncated pair at the end.
    ASSERT_TRUE(platform::CharsetToWide("GBK", "a\xD3", 2, wide));
    EXPECT_EQ(wide, L"a" + R1);

    std::string narrow;
    const std::wstring text = L"\u786C\U0001F600";
    bool used = false;
    ASSERT_TRUE(platform::WideToCharset("GBK", text.data(), text.size(), '?', &used, narrow));
    EXPECT_EQ(narrow, "\xD3\xB2?");
    EXPECT_TRUE(used);
}

TEST(Charset, UnknownCharsetFails)
{
    std::wstring wide;
    std::string narrow;
    EXPECT_FALSE(platform::CharsetToWide("NO-SUCH-CHARSET", "a", 1, wide));
    EXPECT_FALSE(platform::WideToCharset("NO-SUCH-CHARSET", L"a", 1, '?', nullptr, narrow));
}

} // namespace

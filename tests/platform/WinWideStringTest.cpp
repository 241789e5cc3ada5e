#include "platform/WinWideString.h"

#include <cerrno>
#include <climits>
#include <cwchar>
#include <gtest/gtest.h>
#include <ostream>
#include <string>

namespace {

struct ParseCase {
    const wchar_t* text;
    int expected;
};

std::ostream& operator<<(std::ostream& os, const ParseCase& c)
{
    if (!*c.text)
        return os << "empty";
    for (const wchar_t* p = c.text; *p; ++p)
        os << (*p > L' ' && *p < 0x7F ? static_cast<char>(*p) : '_');
    return os;
}

class WideParseTest : public ::testing::TestWithParam<ParseCase> {};

TEST_P(WideParseTest, WtoiAndWtolAgree)
{
    const ParseCase& c = GetParam();
    EXPECT_EQ(_wtoi(c.text), c.expected);
    EXPECT_EQ(_wtol(c.text), static_cast<long>(c.expected));
}

INSTANTIATE_TEST_SUITE_P(Table, WideParseTest,
                         ::testing::Values(ParseCase{ L"42", 42 }, ParseCase{ L"  -17abc", -17 },
                                           ParseCase{ L"+8", 8 }, ParseCase{ L"\t\n\v\f\r 12", 12 },
                                           ParseCase{ L"12.9", 12 }, ParseCase{ L"abc", 0 },
                                           ParseCase{ L"", 0 }, ParseCase{ L"- 5", 0 },
                                           ParseCase{ L"2147483647", INT_MAX },
                                           ParseCase{ L"-2147483648", INT_MIN },
                                           // 32-bit saturation, as with the Windows long.
                                           ParseCase{ L"2147483648", INT_MAX },
                                           ParseCase{ L"99999999999999999999999", INT_MAX },
                                           ParseCase{ L"-99999999999999999999999", INT_MIN }));

TEST(WideParse, OverflowSetsErrnoAndNullGivesZero)
{
    errno = 0;
    EXPECT_EQ(_wtol(L"4294967296"), static_cast<long>(INT_MAX));
    EXPECT_EQ(errno, ERANGE);
    EXPECT_EQ(_wtoi(nullptr), 0);
    EXPECT_EQ(_wtol(nullptr), 0);
}

struct FormatCase {
    long value;
    int radix;
    const wchar_t* expected;
};

std::ostream& operator<<(std::ostream& os, const FormatCase& c)
{
    return os << c.value << " radix " << c.radix;
}

class LtowTest : public ::testing::TestWithParam<FormatCase> {};

TEST_P(LtowTest, MatchesMsRuntime)
{
    const FormatCase& c = GetParam();
    wchar_t buf[40];
    std::wmemset(buf, L'#', 40);
    EXPECT_EQ(_ltow(c.value, buf, c.radix), buf);
    EXPECT_EQ(std::wstring(buf), std::wstring(c.expected));
    EXPECT_EQ(buf[std::wcslen(buf) + 1], L'#');
}

INSTANTIATE_TEST_SUITE_P(Table, LtowTest,
                         ::testing::Values(FormatCase{ 0, 10, L"0" }, FormatCase{ 24, 10, L"24" },
                                           FormatCase{ -1, 10, L"-1" },
                                           FormatCase{ INT_MIN, 10, L"-2147483648" },
                                           FormatCase{ 255, 16, L"ff" }, FormatCase{ 35, 36, L"z" },
                                           // Radixes other than ten show the unsigned 32-bit value.
                                           FormatCase{ -1, 16, L"ffffffff" },
                                           FormatCase{ -1, 2, L"11111111111111111111111111111111" },
                                           FormatCase{ 0x100000005L, 10, L"5" },
                                           FormatCase{ 123, 1, L"" }));

TEST(WcscpyS, CopiesWhenTheTerminatorFits)
{
    wchar_t dst[4] = { L'#', L'#', L'#', L'#' };
    EXPECT_EQ(wcscpy_s(dst, 4, L"abc"), 0);
    EXPECT_EQ(std::wstring(dst), L"abc");
    EXPECT_EQ(wcscpy_s(dst, 4, L""), 0);
    EXPECT_EQ(dst[0], L'\0');
}

TEST(WcscpyS, TooLongLeavesEmptyAndDoesNotOverrun)
{
    wchar_t dst[5] = { L'#', L'#', L'#', L'#', L'!' };
    EXPECT_EQ(wcscpy_s(dst, 4, L"abcd"), ERANGE);
    EXPECT_EQ(dst[0], L'\0');
    EXPECT_EQ(dst[4], L'!');
    // An unterminated source is read no further than count.
    const wchar_t unterminated[4] = { L'a', L'b', L'c', L'd' };
    EXPECT_EQ(wcscpy_s(dst, 4, unterminated), ERANGE);
}

TEST(WcscpyS, BadArguments)
{
    wchar_t dst[2] = { L'#', L'#' };
    EXPECT_EQ(wcscpy_s(nullptr, 2, L"a"), EINVAL);
    EXPECT_EQ(wcscpy_s(dst, 0, L"a"), EINVAL);
    EXPECT_EQ(dst[0], L'#');
    EXPECT_EQ(wcscpy_s(dst, 2, nullptr), EINVAL);
    EXPECT_EQ(dst[0], L'\0');
}

} // namespace

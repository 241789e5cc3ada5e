#include "platform/WinWideString.h"

#include <cerrno>
#include <cstdint>
#include <limits>

namespace {

bool isBlank(wchar_t c)
{
    return c == L' ' || c == L'\t' || c == L'\n' || c == L'\v' || c == L'\f' || c == L'\r';
}

// Windows long is 32 bits, so the conversions saturate at those limits.
std::int32_t parseInt32(const wchar_t* text)
{
    if (!text) {
        errno = EINVAL;
        return 0;
    }
    while (isBlank(*text))
        ++text;
    bool negative = false;
    if (*text == L'-' || *text == L'+')
        negative = *text++ == L'-';
    const std::int64_t limit =
        negative ? -static_cast<std::int64_t>(std::numeric_limits<std::int32_t>::min())
                 : std::numeric_limits<std::int32_t>::max();
    std::int64_t value = 0;
    bool overflow = false;
    for (; *text >= L'0' && *text <= L'9'; ++text) {
        if (overflow)
            continue;
        value = value * 10 + (*text - L'0');
        overflow = value > limit;
    }
    if (overflow) {
        errno = ERANGE;
        return negative ? std::numeric_limits<std::int32_t>::min()
                        : std::numeric_limits<std::int32_t>::max();
    }
    return static_cast<std::int32_t>(negative ? -value : value);
}

} // namespace

int _wtoi(const wchar_t* text)
{
    return parseInt32(text);
}

long _wtol(const wchar_t* text)
{
    return parseInt32(text);
}

wchar_t* _ltow(long value, wchar_t* buffer, int radix)
{
    if (!buffer)
        return nullptr;
    if (radix < 2 || radix > 36) {
        buffer[0] = L'\0';
        return buffer;
    }
    // Only the 32 bits a Windows long holds take part.
    const auto bits = static_cast<std::uint32_t>(value);
    std::uint32_t magnitude = bits;
    wchar_t* out = buffer;
    if (radix == 10 && static_cast<std::int32_t>(bits) < 0) {
        *out++ = L'-';
        magnitude = 0u - bits;
    }
    wchar_t digits[32];
    int count = 0;
    const auto base = static_cast<std::uint32_t>(radix);
    do {
        const std::uint32_t d = magnitude % base;
        digits[count++] = static_cast<wchar_t>(d < 10 ? L'0' + d : L'a' + (d - 10));
        magnitude /= base;
    } while (magnitude != 0);
    while (count > 0)
        *out++ = digits[--count];
    *out = L'\0';
    return buffer;
}

errno_t wcscpy_s(wchar_t* dst, std::size_t count, const wchar_t* src)
{
    if (!dst || count == 0)
        return EINVAL;
    if (!src) {
        dst[0] = L'\0';
        return EINVAL;
    }
    std::size_t len = 0;
    while (len < count && src[len] != L'\0')
        ++len;
    if (len == count) {
        dst[0] = L'\0';
        return ERANGE;
    }
    for (std::size_t i = 0; i <= len; ++i)
        dst[i] = src[i];
    return 0;
}

#include "fuzz/entries/FuzzCheck.h"
#include "fuzz/entries/FuzzEntries.h"
#include "language/TextConvert.h"
#include "platform/WinTypes.h"

#include <cstring>
#include <cwchar>
#include <string>
#include <vector>

namespace {

// What the parse must give: digits up to the end or the limit, wrapping
// like an unsigned 32-bit number.
int Expected(const std::wstring& text, int maxLength, int* value)
{
    unsigned int result = 0;
    *value = 0;
    for (int i = 0; i < maxLength && i < static_cast<int>(text.size()); ++i) {
        if (text[i] < L'0' || text[i] > L'9')
            return 0;
        result = result * 10u + static_cast<unsigned int>(text[i] - L'0');
        *value = static_cast<int>(result);
    }
    return 1;
}

std::wstring WideText(const uint8_t* data, size_t size, bool fourBytes)
{
    std::wstring text;
    if (fourBytes) {
        for (size_t i = 0; i + 4 <= size; i += 4) {
            int32_t c;
            std::memcpy(&c, data + i, 4);
            text += static_cast<wchar_t>(c);
        }
    } else {
        text.assign(data, data + size);
    }
    // The text ends at its first zero, as the parser sees it.
    return text.substr(0, text.find(L'\0'));
}

void Conversions(const uint8_t* data, size_t size)
{
    const std::string narrow(reinterpret_cast<const char*>(data), size);
    for (unsigned int codePage :
         { static_cast<unsigned int>(CP_UTF8), static_cast<unsigned int>(CP_ACP) }) {
        for (int length : { 0, 1, 7, 64 }) {
            std::vector<wchar_t> wide(static_cast<size_t>(length) + 1, L'#');
            const int n =
                NarrowToWideInto(narrow.c_str(), length ? wide.data() : nullptr, length, codePage);
            FUZZ_CHECK(n >= 0);
            if (length > 0 && n > 0) {
                FUZZ_CHECK(n <= length);
                FUZZ_CHECK(wide[static_cast<size_t>(n) - 1] == L'\0');
            }
            if (length > 0 && n == 0)
                FUZZ_CHECK(wide[0] == L'\0');
            FUZZ_CHECK(wide[static_cast<size_t>(length)] == L'#');
            if (length > 0 && n > 0) {
                std::vector<char> back(static_cast<size_t>(length) * 4 + 1, '#');
                const int m = WideToNarrowInto(wide.data(), back.data(), length * 4, codePage);
                FUZZ_CHECK(m >= 0 && m <= length * 4);
                FUZZ_CHECK(back[static_cast<size_t>(length) * 4] == '#');
            }
        }
    }
}

} // namespace

int FuzzWideDigits(const uint8_t* data, size_t size)
{
    if (size < 3)
        return 0;
    const bool fourBytes = data[0] & 1;
    const int maxLength = static_cast<int16_t>(data[1] | (data[2] << 8));
    const std::wstring text = WideText(data + 3, size - 3, fourBytes);

    int value = -1;
    const int result = ParseWideDigits(text.c_str(), &value, maxLength);
    int expectedValue = -1;
    FUZZ_CHECK(result == Expected(text, maxLength, &expectedValue));
    FUZZ_CHECK(value == expectedValue);

    // A printed number reads back.
    wchar_t printed[12];
    IntToWideInto(value, printed);
    int again = -1;
    if (value >= 0) {
        FUZZ_CHECK(ParseWideDigits(printed, &again, 12) == 1);
        FUZZ_CHECK(again == value);
    }

    Conversions(data + 3, size - 3);
    return 0;
}

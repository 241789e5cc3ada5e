#include "language/TextConvert.h"

#include "platform/WinCodePage.h"

#include <cwchar>

int WideToNarrowInto(const wchar_t* text, char* buffer, int bufferLength, unsigned int codePage)
{
    int written =
        WideCharToMultiByte(codePage, 0, text, -1, buffer, bufferLength, nullptr, nullptr);
    // A failed conversion must not leave the caller an unterminated buffer.
    if (written == 0 && buffer && bufferLength > 0)
        buffer[0] = '\0';
    return written;
}

int NarrowToWideInto(const char* text, wchar_t* buffer, int bufferLength, unsigned int codePage)
{
    int written = MultiByteToWideChar(codePage, 0, text, -1, buffer, bufferLength);
    if (written == 0 && buffer && bufferLength > 0)
        buffer[0] = L'\0';
    return written;
}

void IntToWideInto(int value, wchar_t* buffer)
{
    std::swprintf(buffer, 12, L"%d", value);
}

int ParseWideDigits(const wchar_t* text, int* value, int maxLength)
{
    // Unsigned, so that an overlong number wraps as it did on the original
    // platform instead of being undefined.
    unsigned int result = 0;
    *value = 0;
    for (int i = 0; text && i < maxLength && text[i] != L'\0'; ++i) {
        if (text[i] < L'0' || text[i] > L'9')
            return 0;
        result = result * 10u + static_cast<unsigned int>(text[i] - L'0');
        *value = static_cast<int>(result);
    }
    return 1;
}

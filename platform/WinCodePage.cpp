#include "platform/WinCodePage.h"

#include "platform/WinCharset.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <cwchar>
#include <string>

namespace {

// Hands the converted text over by the two-call rule: a size of 0 asks for
// the count, a smaller buffer gets nothing.
template <typename Text>
int deliver(const Text& text, typename Text::value_type* dst, int dstLen)
{
    if (text.size() > static_cast<std::size_t>(INT_MAX))
        return 0;
    const int needed = static_cast<int>(text.size());
    if (dstLen == 0)
        return needed;
    if (needed > dstLen)
        return 0;
    std::copy(text.begin(), text.end(), dst);
    return needed;
}

bool badArguments(const void* src, int srcLen, const void* dst, int dstLen)
{
    return !src || srcLen == 0 || srcLen < -1 || dstLen < 0 || (dstLen > 0 && !dst);
}

} // namespace

int MultiByteToWideChar(UINT codePage, DWORD /*flags*/, const char* src, int srcLen, wchar_t* dst,
                        int dstLen)
{
    if (badArguments(src, srcLen, dst, dstLen))
        return 0;
    const std::size_t len = srcLen == -1 ? std::strlen(src) + 1 : static_cast<std::size_t>(srcLen);
    std::wstring wide;
    if (codePage == CP_UTF8)
        wide = platform::Utf8ToWide(src, len);
    else if (codePage != CP_ACP ||
             !platform::CharsetToWide(platform::LocaleCharset(), src, len, wide))
        return 0;
    return deliver(wide, dst, dstLen);
}

int WideCharToMultiByte(UINT codePage, DWORD /*flags*/, const wchar_t* src, int srcLen, char* dst,
                        int dstLen, const char* defaultChar, BOOL* usedDefaultChar)
{
    if (badArguments(src, srcLen, dst, dstLen))
        return 0;
    const std::size_t len = srcLen == -1 ? std::wcslen(src) + 1 : static_cast<std::size_t>(srcLen);
    std::string narrow;
    if (codePage == CP_UTF8) {
        // UTF-8 has no default character; Windows refuses one.
        if (defaultChar || usedDefaultChar)
            return 0;
        narrow = platform::WideToUtf8(src, len);
    } else if (codePage == CP_ACP) {
        bool used = false;
        if (!platform::WideToCharset(platform::LocaleCharset(), src, len,
                                     defaultChar ? *defaultChar : '?', &used, narrow))
            return 0;
        if (usedDefaultChar)
            *usedDefaultChar = used ? TRUE : FALSE;
    } else {
        return 0;
    }
    return deliver(narrow, dst, dstLen);
}

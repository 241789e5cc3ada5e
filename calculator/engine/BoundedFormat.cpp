#include "calculator/engine/BoundedFormat.h"

#include "calculator/engine/NumericLocaleGuard.h"

#include <cstdarg>
#include <cwchar>
#include <vector>

namespace {

// Far beyond any text of the calculator; only a runaway format reaches it.
const std::size_t kMaxGrownCount = std::size_t(1) << 20;

int FormatInto(std::vector<wchar_t>& buffer, const wchar_t* pszFormat, va_list args)
{
    va_list copy;
    va_copy(copy, args);
    const int nWritten = std::vswprintf(buffer.data(), buffer.size(), pszFormat, copy);
    va_end(copy);
    return nWritten;
}

} // namespace

std::wstring FormatBounded(std::size_t nCount, const wchar_t* pszFormat, ...)
{
    if (nCount == 0 || !pszFormat)
        return std::wstring();

    CNumericLocaleGuard locale;
    va_list args;
    va_start(args, pszFormat);

    std::wstring strText;
    std::vector<wchar_t> buffer(nCount);
    int nWritten = FormatInto(buffer, pszFormat, args);
    if (nWritten >= 0) {
        strText.assign(buffer.data(), static_cast<std::size_t>(nWritten));
    } else {
        // Too long for the buffer: format in full, then keep what would fit.
        std::size_t nGrown = nCount;
        while (nWritten < 0 && nGrown < kMaxGrownCount) {
            nGrown *= 2;
            buffer.assign(nGrown, L'\0');
            nWritten = FormatInto(buffer, pszFormat, args);
        }
        if (nWritten >= 0) {
            strText.assign(buffer.data(), static_cast<std::size_t>(nWritten));
            if (strText.size() > nCount - 1)
                strText.resize(nCount - 1);
        }
    }

    va_end(args);
    return strText;
}

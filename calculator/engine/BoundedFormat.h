#pragma once
// swprintf into a buffer of a fixed number of wide characters.

#include <cstddef>
#include <string>

// Formats as swprintf would into a buffer of nCount characters (terminator
// included). A text that does not fit is cut to nCount - 1 characters instead
// of failing. Numbers always use the "C" locale.
std::wstring FormatBounded(std::size_t nCount, const wchar_t* pszFormat, ...);

// Null words from a failed lookup print as empty text.
inline const wchar_t* SafeWord(const wchar_t* pszWord)
{
    return pszWord ? pszWord : L"";
}

#pragma once
// The conversions behind the code pages: an exact UTF-8 codec and iconv for
// the charset of the user's locale. Kept apart from the Win32 entry points so
// that charsets no installed locale names can be tried directly.

#include <cstddef>
#include <string>

namespace platform {

// UTF-8 to wchar_t; each maximal ill-formed subpart becomes U+FFFD.
std::wstring Utf8ToWide(const char* src, std::size_t len);

// wchar_t to UTF-8; surrogates and values beyond U+10FFFF become U+FFFD, and
// *replaced (when given) tells whether that happened.
std::string WideToUtf8(const wchar_t* src, std::size_t len, bool* replaced = nullptr);

// The charset code page 0 stands for: the LC_CTYPE charset of the environment,
// with the bare C locale's ASCII taken as UTF-8.
std::string LocaleCharset();

// Conversion from the named charset; undecodable bytes become U+FFFD.
// False when the charset is unknown.
bool CharsetToWide(const std::string& charset, const char* src, std::size_t len, std::wstring& out);

// Conversion to the named charset; unmappable characters become defaultChar
// and set *usedDefault. False when the charset is unknown.
bool WideToCharset(const std::string& charset, const wchar_t* src, std::size_t len,
                   char defaultChar, bool* usedDefault, std::string& out);

} // namespace platform

#include "platform/WinCharset.h"

#include <cctype>
#include <cerrno>
#include <cstdint>
#include <iconv.h>
#include <langinfo.h>
#include <locale.h>

namespace platform {

namespace {

constexpr wchar_t kReplacement = 0xFFFD;

// The well-formed lead bytes of more than one byte: trail bytes that follow,
// payload bits of the lead, and the bounds on the first trail byte, which rule
// out overlong forms, surrogates and values beyond U+10FFFF.
struct Utf8Lead {
    unsigned char first;
    unsigned char last;
    int trail;
    unsigned char mask;
    unsigned char lo;
    unsigned char hi;
};

constexpr Utf8Lead kUtf8Leads[] = {
    { 0xC2, 0xDF, 1, 0x1F, 0x80, 0xBF }, { 0xE0, 0xE0, 2, 0x0F, 0xA0, 0xBF },
    { 0xE1, 0xEC, 2, 0x0F, 0x80, 0xBF }, { 0xED, 0xED, 2, 0x0F, 0x80, 0x9F },
    { 0xEE, 0xEF, 2, 0x0F, 0x80, 0xBF }, { 0xF0, 0xF0, 3, 0x07, 0x90, 0xBF },
    { 0xF1, 0xF3, 3, 0x07, 0x80, 0xBF }, { 0xF4, 0xF4, 3, 0x07, 0x80, 0x8F },
};

const Utf8Lead* findLead(unsigned char lead)
{
    for (const Utf8Lead& form : kUtf8Leads) {
        if (lead >= form.first && lead <= form.last)
            return &form;
    }
    return nullptr;
}

bool isUtf8(const std::string& charset)
{
    std::string name;
    for (char c : charset) {
        if (c != '-' && c != '_')
            name.push_back(static_cast<char>(std::toupper(static_cast<unsigned char>(c))));
    }
    return name == "UTF8";
}

// Owns an iconv descriptor for the length of one conversion.
class IconvHandle {
public:
    IconvHandle(const char* to, const char* from) : m_cd(iconv_open(to, from)) {}
    ~IconvHandle()
    {
        if (valid())
            iconv_close(m_cd);
    }
    IconvHandle(const IconvHandle&) = delete;
    IconvHandle& operator=(const IconvHandle&) = delete;

    bool valid() const { return m_cd != reinterpret_cast<iconv_t>(-1); }

    // Converts as much as iconv takes in one step, appending to out; returns
    // false with errno set when it stopped at a bad or unmappable unit.
    template <typename Out>
    bool step(char** in, std::size_t* inLeft, Out& out)
    {
        char chunk[1024];
        char* outPtr = chunk;
        std::size_t outLeft = sizeof chunk;
        const std::size_t r = iconv(m_cd, in, inLeft, &outPtr, &outLeft);
        const int err = errno;
        append(out, chunk, sizeof chunk - outLeft);
        errno = err;
        if (r != static_cast<std::size_t>(-1))
            return true;
        // A full chunk is no failure, unless not even one unit fitted.
        return err == E2BIG && outLeft < sizeof chunk;
    }

    // Writes the return to the initial shift state, for stateful charsets.
    template <typename Out>
    void reset(Out& out)
    {
        char chunk[64];
        char* outPtr = chunk;
        std::size_t outLeft = sizeof chunk;
        iconv(m_cd, nullptr, nullptr, &outPtr, &outLeft);
        append(out, chunk, sizeof chunk - outLeft);
    }

private:
    static void append(std::string& out, const char* data, std::size_t n) { out.append(data, n); }
    static void append(std::wstring& out, const char* data, std::size_t n)
    {
        const std::size_t count = n / sizeof(wchar_t);
        const std::size_t at = out.size();
        out.resize(at + count);
        std::char_traits<char>::copy(reinterpret_cast<char*>(&out[at]), data,
                                     count * sizeof(wchar_t));
    }

    iconv_t m_cd;
};

} // namespace

std::wstring Utf8ToWide(const char* src, std::size_t len)
{
    std::wstring out;
    out.reserve(len);
    const auto* s = reinterpret_cast<const unsigned char*>(src);
    std::size_t i = 0;
    while (i < len) {
        const unsigned char lead = s[i++];
        if (lead < 0x80) {
            out.push_back(static_cast<wchar_t>(lead));
            continue;
        }
        const Utf8Lead* form = findLead(lead);
        if (!form) {
            out.push_back(kReplacement);
            continue;
        }
        int trail = form->trail;
        unsigned char lo = form->lo;
        unsigned char hi = form->hi;
        std::uint32_t cp = lead & form->mask;
        bool complete = true;
        for (; trail > 0; --trail) {
            if (i >= len || s[i] < lo || s[i] > hi) {
                complete = false;
                break;
            }
            cp = (cp << 6) | (s[i++] & 0x3Fu);
            lo = 0x80;
            hi = 0xBF;
        }
        out.push_back(complete ? static_cast<wchar_t>(cp) : kReplacement);
    }
    return out;
}

std::string WideToUtf8(const wchar_t* src, std::size_t len, bool* replaced)
{
    std::string out;
    out.reserve(len);
    for (std::size_t i = 0; i < len; ++i) {
        auto cp = static_cast<std::uint32_t>(src[i]);
        if ((cp >= 0xD800 && cp <= 0xDFFF) || cp > 0x10FFFF) {
            cp = kReplacement;
            if (replaced)
                *replaced = true;
        }
        if (cp < 0x80) {
            out.push_back(static_cast<char>(cp));
        } else if (cp < 0x800) {
            out.push_back(static_cast<char>(0xC0 | (cp >> 6)));
            out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
        } else if (cp < 0x10000) {
            out.push_back(static_cast<char>(0xE0 | (cp >> 12)));
            out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
        } else {
            out.push_back(static_cast<char>(0xF0 | (cp >> 18)));
            out.push_back(static_cast<char>(0x80 | ((cp >> 12) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
        }
    }
    return out;
}

std::string LocaleCharset()
{
    std::string charset;
    // Read from the environment each time, not from the process's setlocale.
    if (locale_t loc = newlocale(LC_CTYPE_MASK, "", static_cast<locale_t>(0))) {
        if (const char* codeset = nl_langinfo_l(CODESET, loc))
            charset = codeset;
        freelocale(loc);
    }
    // Plain ASCII names no real charset: the bare C locale, or a locale
    // that is not installed.
    if (charset.empty() || charset == "ANSI_X3.4-1968")
        charset = "UTF-8";
    return charset;
}

bool CharsetToWide(const std::string& charset, const char* src, std::size_t len, std::wstring& out)
{
    out.clear();
    if (isUtf8(charset)) {
        out = Utf8ToWide(src, len);
        return true;
    }
    IconvHandle cd("WCHAR_T", charset.c_str());
    if (!cd.valid())
        return false;
    char* in = const_cast<char*>(src);
    std::size_t inLeft = len;
    while (inLeft > 0) {
        if (!cd.step(&in, &inLeft, out)) {
            // A bad or truncated sequence: replace its first byte and go on.
            cd.reset(out);
            out.push_back(kReplacement);
            ++in;
            --inLeft;
        }
    }
    cd.reset(out);
    return true;
}

bool WideToCharset(const std::string& charset, const wchar_t* src, std::size_t len,
                   char defaultChar, bool* usedDefault, std::string& out)
{
    out.clear();
    if (isUtf8(charset)) {
        out = WideToUtf8(src, len, usedDefault);
        return true;
    }
    IconvHandle cd(charset.c_str(), "WCHAR_T");
    if (!cd.valid())
        return false;
    char* in = reinterpret_cast<char*>(const_cast<wchar_t*>(src));
    std::size_t inLeft = len * sizeof(wchar_t);
    while (inLeft > 0) {
        if (!cd.step(&in, &inLeft, out)) {
            cd.reset(out);
            out.push_back(defaultChar);
            if (usedDefault)
                *usedDefault = true;
            in += sizeof(wchar_t);
            inLeft -= sizeof(wchar_t);
        }
    }
    cd.reset(out);
    return true;
}

} // namespace platform

#include "language/SFStreamConvert.h"

#include "platform/WinCodePage.h"

#include <cstddef>
#include <string>

namespace {

// A new copy of text, terminator included.
template <class Char>
Char* Duplicate(const Char* text)
{
    const std::size_t size = std::char_traits<Char>::length(text) + 1;
    Char* copy = new Char[size];
    std::char_traits<Char>::copy(copy, text, size);
    return copy;
}

// convert(nullptr, 0) measures; the text then goes into a zeroed buffer one longer.
template <class Char, class Convert>
Char* Converted(Convert convert)
{
    const int needed = convert(nullptr, 0);
    Char* out = new Char[needed + 1]();
    if (needed > 0)
        convert(out, needed);
    return out;
}

} // namespace

namespace SF_SOFT_BASE {

CSFStreamConvert::CSFStreamConvert() : m_pszA(nullptr), m_pszW(nullptr)
{
}

CSFStreamConvert::CSFStreamConvert(const wchar_t* text, unsigned int codePage)
    : m_pszA(nullptr), m_pszW(nullptr)
{
    FromWide(text, codePage);
}

CSFStreamConvert::CSFStreamConvert(const char* text, unsigned int codePage)
    : m_pszA(nullptr), m_pszW(nullptr)
{
    FromNarrow(text, codePage);
}

CSFStreamConvert::~CSFStreamConvert()
{
    Clear();
}

const char* CSFStreamConvert::W2A(const wchar_t* text, unsigned int codePage)
{
    Clear();
    FromWide(text, codePage);
    return m_pszA;
}

const wchar_t* CSFStreamConvert::A2W(const char* text, unsigned int codePage)
{
    Clear();
    FromNarrow(text, codePage);
    return m_pszW;
}

std::string CSFStreamConvert::GetAString() const
{
    return m_pszA ? std::string(m_pszA) : std::string();
}

std::wstring CSFStreamConvert::GetWString() const
{
    return m_pszW ? std::wstring(m_pszW) : std::wstring();
}

void CSFStreamConvert::Clear()
{
    delete[] m_pszA;
    delete[] m_pszW;
    m_pszA = nullptr;
    m_pszW = nullptr;
}

void CSFStreamConvert::FromWide(const wchar_t* text, unsigned int codePage)
{
    if (!text)
        return;
    m_pszW = Duplicate(text);
    m_pszA = Converted<char>([&](char* out, int size) {
        return WideCharToMultiByte(codePage, 0, text, -1, out, size, nullptr, nullptr);
    });
}

void CSFStreamConvert::FromNarrow(const char* text, unsigned int codePage)
{
    if (!text)
        return;
    m_pszA = Duplicate(text);
    m_pszW = Converted<wchar_t>([&](wchar_t* out, int size) {
        return MultiByteToWideChar(codePage, 0, text, -1, out, size);
    });
}

} // namespace SF_SOFT_BASE

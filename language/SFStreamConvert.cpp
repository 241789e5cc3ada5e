#include "language/SFStreamConvert.h"

#include <cstring>
#include <cwchar>

#include "platform/WinCodePage.h"

namespace SF_SOFT_BASE {

CSFStreamConvert::CSFStreamConvert() : m_pszA(nullptr), m_pszW(nullptr) {}

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
    std::size_t length = std::wcslen(text);
    m_pszW = new wchar_t[length + 1];
    std::wmemcpy(m_pszW, text, length + 1);

    int needed = WideCharToMultiByte(codePage, 0, text, -1, nullptr, 0, nullptr, nullptr);
    m_pszA = new char[needed + 1]();
    if (needed > 0)
        WideCharToMultiByte(codePage, 0, text, -1, m_pszA, needed, nullptr, nullptr);
}

void CSFStreamConvert::FromNarrow(const char* text, unsigned int codePage)
{
    if (!text)
        return;
    std::size_t length = std::strlen(text);
    m_pszA = new char[length + 1];
    std::memcpy(m_pszA, text, length + 1);

    int needed = MultiByteToWideChar(codePage, 0, text, -1, nullptr, 0);
    m_pszW = new wchar_t[needed + 1]();
    if (needed > 0)
        MultiByteToWideChar(codePage, 0, text, -1, m_pszW, needed);
}

} // namespace SF_SOFT_BASE

#include "language/SFTextA.h"

#include "platform/WinCodePage.h"

CSFTextA::CSFTextA(const wchar_t* text, unsigned int codePage) : CSFTextA(text, -1, codePage) {}

CSFTextA::CSFTextA(const wchar_t* text, int length, unsigned int codePage)
    : m_psz(nullptr), m_nLength(0)
{
    if (!text)
        return;
    int needed = WideCharToMultiByte(codePage, 0, text, length, nullptr, 0, nullptr, nullptr);
    if (needed <= 0)
        return;
    // One zero element more than converted, so even a counted text can be
    // read safely as a C string.
    m_psz = new char[needed + 1]();
    m_nLength = WideCharToMultiByte(codePage, 0, text, length, m_psz, needed, nullptr, nullptr);
}

CSFTextA::~CSFTextA()
{
    delete[] m_psz;
}

#include "language/SFTextW.h"

#include "platform/WinCodePage.h"

CSFTextW::CSFTextW(const char* text, unsigned int codePage) : CSFTextW(text, -1, codePage) {}

CSFTextW::CSFTextW(const char* text, int length, unsigned int codePage)
    : m_psz(nullptr), m_nLength(0)
{
    if (!text)
        return;
    int needed = MultiByteToWideChar(codePage, 0, text, length, nullptr, 0);
    if (needed <= 0)
        return;
    m_psz = new wchar_t[needed + 1]();
    m_nLength = MultiByteToWideChar(codePage, 0, text, length, m_psz, needed);
}

CSFTextW::~CSFTextW()
{
    delete[] m_psz;
}

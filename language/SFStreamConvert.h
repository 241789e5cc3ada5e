#pragma once

#include <string>

namespace SF_SOFT_BASE {

// Holds a narrow and a wide copy of one text, converted by code page
// (0 the locale's charset, 65001 UTF-8).
class CSFStreamConvert {
public:
    CSFStreamConvert();
    CSFStreamConvert(const wchar_t* text, unsigned int codePage);
    CSFStreamConvert(const char* text, unsigned int codePage);
    virtual ~CSFStreamConvert();

    CSFStreamConvert(const CSFStreamConvert&) = delete;
    CSFStreamConvert& operator=(const CSFStreamConvert&) = delete;

    const char* W2A(const wchar_t* text, unsigned int codePage);
    const wchar_t* A2W(const char* text, unsigned int codePage);

    const char* GetA() const { return m_pszA; }
    const wchar_t* GetW() const { return m_pszW; }
    std::string GetAString() const;
    std::wstring GetWString() const;

    void Clear();

private:
    void FromWide(const wchar_t* text, unsigned int codePage);
    void FromNarrow(const char* text, unsigned int codePage);

    char* m_pszA;
    wchar_t* m_pszW;
};

} // namespace SF_SOFT_BASE

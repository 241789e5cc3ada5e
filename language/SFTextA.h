#pragma once

// Narrow copy of a wide text, converted in the constructor.
class CSFTextA {
public:
    CSFTextA(const wchar_t* text, unsigned int codePage);
    // Converts exactly length elements; the result is terminated only when
    // the length counted the terminator.
    CSFTextA(const wchar_t* text, int length, unsigned int codePage);
    ~CSFTextA();

    CSFTextA(const CSFTextA&) = delete;
    CSFTextA& operator=(const CSFTextA&) = delete;

    const char* Get() const { return m_psz; }
    operator const char*() const { return m_psz; }
    int Length() const { return m_nLength; }

private:
    char* m_psz;
    int m_nLength;
};

#pragma once

// Wide copy of a narrow text, converted in the constructor.
class CSFTextW {
public:
    CSFTextW(const char* text, unsigned int codePage);
    // Converts exactly length bytes; the result is terminated only when the
    // length counted the terminator.
    CSFTextW(const char* text, int length, unsigned int codePage);
    ~CSFTextW();

    CSFTextW(const CSFTextW&) = delete;
    CSFTextW& operator=(const CSFTextW&) = delete;

    const wchar_t* Get() const { return m_psz; }
    operator const wchar_t*() const { return m_psz; }
    int Length() const { return m_nLength; }

private:
    wchar_t* m_psz;
    int m_nLength;
};

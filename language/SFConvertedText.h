#pragma once

// What CSFTextA and CSFTextW share: a converted copy that owns its buffer.
template <class Char>
class CSFConvertedText {
public:
    ~CSFConvertedText() { delete[] m_psz; }

    CSFConvertedText(const CSFConvertedText&) = delete;
    CSFConvertedText& operator=(const CSFConvertedText&) = delete;

    const Char* Get() const { return m_psz; }
    operator const Char*() const { return m_psz; }
    int Length() const { return m_nLength; }

protected:
    // convert(nullptr, 0) measures and convert(buffer, size) converts. One
    // zero element more than converted, so even a counted text can be read
    // safely as a C string; nothing to convert leaves a null pointer.
    template <class Convert>
    explicit CSFConvertedText(Convert convert) : m_psz(nullptr), m_nLength(0)
    {
        const int needed = convert(nullptr, 0);
        if (needed <= 0)
            return;
        m_psz = new Char[needed + 1]();
        m_nLength = convert(m_psz, needed);
    }

private:
    Char* m_psz;
    int m_nLength;
};

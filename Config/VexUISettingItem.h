#pragma once

#include "platform/WinTypes.h"

#include <string>

class IConfigPersistent;
class TiXmlElement;

// One setting bound to a variable. The one target pointer that is set gives
// the record its type. Scale, min and max form the range of a dword record:
// all 0 for none, else [m_nMin * m_nScale, m_nMax * m_nScale].
class VexUISettingItem {
public:
    VexUISettingItem(const wchar_t* section, const wchar_t* name, bool* target, bool def,
                     DWORD scale, DWORD min, DWORD max, DWORD extra = 0, bool extraFlag = false);
    VexUISettingItem(const wchar_t* section, const wchar_t* name, DWORD* target, DWORD def,
                     DWORD scale, DWORD min, DWORD max, DWORD extra = 0, bool extraFlag = false);
    VexUISettingItem(const wchar_t* section, const wchar_t* name, double* target, double def,
                     DWORD scale, DWORD min, DWORD max, DWORD extra = 0, bool extraFlag = false);
    VexUISettingItem(const wchar_t* section, const wchar_t* name, std::wstring* target,
                     const std::wstring& def, DWORD scale, DWORD min, DWORD max, DWORD extra = 0,
                     bool extraFlag = false);

    // Without a reader the default is taken, as for a missing file.
    void Load(IConfigPersistent* persistent);
    // Adds this record's element under msgs, the section element.
    void Save(TiXmlElement* msgs) const;

    const wchar_t* m_pszSection;
    std::wstring m_strName;
    bool* m_pBool;
    DWORD* m_pDword;
    double* m_pFloat;
    std::wstring* m_pString;
    bool m_BoolDefault;
    DWORD m_DwordDefault;
    double m_FloatDefault;
    std::wstring m_StringDefault;
    DWORD m_nScale;
    DWORD m_nMin;
    DWORD m_nMax;
    DWORD m_nExtra;
    bool m_bExtra;

private:
    void Init(const wchar_t* section, const wchar_t* name, DWORD scale, DWORD min, DWORD max,
              DWORD extra, bool extraFlag);
};

#include "Config/VexUISettingItem.h"

#include "Config/ConfigAssert.h"
#include "Config/IConfigPersistent.h"
#include "language/SFStreamConvert.h"

#include <cstddef>
#include <string>
#include <tinyxml.h>

using SF_SOFT_BASE::CSFStreamConvert;

namespace {

// TinyXML's int setter would print large dwords as negative numbers.
void SetDwordAttribute(TiXmlElement* element, const char* name, DWORD value)
{
    element->SetAttribute(name, std::to_string(value).c_str());
}

} // namespace

VexUISettingItem::VexUISettingItem(const wchar_t* section, const wchar_t* name, bool* target,
                                   bool def, DWORD scale, DWORD min, DWORD max, DWORD extra,
                                   bool extraFlag)
{
    Init(section, name, scale, min, max, extra, extraFlag);
    m_pBool = target;
    m_BoolDefault = def;
}

VexUISettingItem::VexUISettingItem(const wchar_t* section, const wchar_t* name, DWORD* target,
                                   DWORD def, DWORD scale, DWORD min, DWORD max, DWORD extra,
                                   bool extraFlag)
{
    Init(section, name, scale, min, max, extra, extraFlag);
    m_pDword = target;
    m_DwordDefault = def;
}

VexUISettingItem::VexUISettingItem(const wchar_t* section, const wchar_t* name, double* target,
                                   double def, DWORD scale, DWORD min, DWORD max, DWORD extra,
                                   bool extraFlag)
{
    Init(section, name, scale, min, max, extra, extraFlag);
    m_pFloat = target;
    m_FloatDefault = def;
}

VexUISettingItem::VexUISettingItem(const wchar_t* section, const wchar_t* name,
                                   std::wstring* target, const std::wstring& def, DWORD scale,
                                   DWORD min, DWORD max, DWORD extra, bool extraFlag)
{
    Init(section, name, scale, min, max, extra, extraFlag);
    m_pString = target;
    m_StringDefault = def;
}

void VexUISettingItem::Init(const wchar_t* section, const wchar_t* name, DWORD scale, DWORD min,
                            DWORD max, DWORD extra, bool extraFlag)
{
    m_pszSection = section;
    m_strName = name ? name : L"";
    m_pBool = nullptr;
    m_pDword = nullptr;
    m_pFloat = nullptr;
    m_pString = nullptr;
    m_BoolDefault = false;
    m_DwordDefault = 0;
    m_FloatDefault = 0.0;
    m_nScale = scale;
    m_nMin = min;
    m_nMax = max;
    m_nExtra = extra;
    m_bExtra = extraFlag;
}

void VexUISettingItem::Load(IConfigPersistent* persistent)
{
    const wchar_t* section = m_pszSection ? m_pszSection : L"";
    const wchar_t* name = m_strName.c_str();

    if (m_pBool) {
        CONFIG_ASSERT(! m_pDword && ! m_pFloat && NULL == m_pString, 154);
        CONFIG_ASSERT(m_nScale == 1 && m_nMin == 0 && m_nMax == 1, 155);
        *m_pBool =
            persistent ? persistent->ReadBool(section, name, m_BoolDefault, 0) : m_BoolDefault;
    } else if (m_pDword) {
        CONFIG_ASSERT(! m_pFloat && m_pString == NULL, 160);
        CONFIG_ASSERT(( m_nScale == 0 && m_nMin == 0 && m_nMax == 0 ) || ( m_nScale && m_nMin < m_nMax ), 162);
        *m_pDword =
            persistent ? persistent->ReadDword(section, name, m_DwordDefault, 0) : m_DwordDefault;
        if (m_nScale != 0 && m_nMin < m_nMax) {
            CONFIG_ASSERT(( m_DwordDefault >= m_nMin * m_nScale ) && ( m_DwordDefault <= m_nMax * m_nScale ), 167);
            // Only the bounds are scaled; the value keeps the file's units.
            DWORD low = m_nMin * m_nScale;
            DWORD high = m_nMax * m_nScale;
            if (*m_pDword < low)
                *m_pDword = low;
            if (*m_pDword > high)
                *m_pDword = high;
        }
    } else if (m_pFloat) {
        CONFIG_ASSERT(NULL == m_pString, 173);
        CONFIG_ASSERT(m_nScale == 0 && m_nMin == 0 && m_nMax == 0, 174);
        *m_pFloat =
            persistent ? persistent->ReadDouble(section, name, m_FloatDefault, 0) : m_FloatDefault;
    } else if (m_pString) {
        CONFIG_ASSERT(m_nScale == 0 && m_nMin == 0 && m_nMax == 0, 179);
        *m_pString = persistent ? persistent->ReadString(section, name, m_StringDefault, 0, 0)
                                : m_StringDefault;
        if (m_pString->empty() && !m_StringDefault.empty())
            *m_pString = m_StringDefault;
    }
}

void VexUISettingItem::Save(TiXmlElement* msgs) const
{
    CONFIG_ASSERT(msgs != NULL, 191);
    if (!msgs)
        return;

    CSFStreamConvert name(m_strName.c_str(), CP_ACP);
    TiXmlElement* element = new TiXmlElement(name.GetAString());
    msgs->LinkEndChild(element);

    if (m_pBool) {
        CONFIG_ASSERT(! m_pDword && ! m_pFloat && NULL == m_pString, 198);
        CONFIG_ASSERT(m_nScale == 1 && m_nMin == 0 && m_nMax == 1, 199);
        element->SetAttribute("value", *m_pBool ? 1 : 0);
        element->SetAttribute("Default", m_BoolDefault ? 1 : 0);
        element->SetAttribute("Min", 0);
        element->SetAttribute("Max", 1);
    } else if (m_pDword) {
        CONFIG_ASSERT(! m_pFloat && NULL == m_pString, 215);
        CONFIG_ASSERT(( m_nScale == 0 && m_nMin == 0 && m_nMax == 0 ) || ( m_nScale && m_nMin < m_nMax ), 217);
        SetDwordAttribute(element, "value", *m_pDword);
        SetDwordAttribute(element, "Default", m_DwordDefault);
        SetDwordAttribute(element, "Min", m_nMin);
        SetDwordAttribute(element, "Max", m_nMax);
        SetDwordAttribute(element, "Scale", m_nScale);
    } else if (m_pFloat) {
        CONFIG_ASSERT(NULL == m_pString, 228);
        CONFIG_ASSERT(m_nScale == 0 && m_nMin == 0 && m_nMax == 0, 229);
        element->SetDoubleAttribute("value", *m_pFloat);
        element->SetDoubleAttribute("Default", m_FloatDefault);
    } else if (m_pString) {
        CONFIG_ASSERT(m_nScale == 0 && m_nMin == 0 && m_nMax == 0, 236);
        // Only "value" is read back; "Default" is for a person reading the file.
        element->SetAttribute("value", CSFStreamConvert(m_pString->c_str(), CP_UTF8).GetAString());
        std::string def;
        if (!m_StringDefault.empty())
            def = CSFStreamConvert(m_StringDefault.c_str(), CP_ACP).GetAString();
        element->SetAttribute("Default", def);
    }
}

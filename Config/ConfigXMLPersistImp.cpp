#include "Config/ConfigXMLPersistImp.h"

#include <cstdio>
#include <sys/stat.h>

#include "language/SFStreamConvert.h"
#include "language/XmlFileLoader.h"

using SF_SOFT_BASE::CSFStreamConvert;

CConfigXMLPersistImp::CConfigXMLPersistImp(std::string /*unused*/)
{
    FILE* file = std::fopen("config.xml", "rb");
    if (!file)
        return;
    // A directory of that name opens too; reading it would fail.
    struct stat info;
    bool regular = fstat(fileno(file), &info) == 0 && S_ISREG(info.st_mode);
    std::fclose(file);
    if (regular)
        CXmlFileLoader::Load(m_doc, "config.xml");
}

TiXmlElement* CConfigXMLPersistImp::FindElement(const wchar_t* section, const wchar_t* name)
{
    if (!section || !name)
        return nullptr;
    CSFStreamConvert sectionA(section, CP_ACP);
    CSFStreamConvert nameA(name, CP_ACP);
    if (!sectionA.GetA() || !nameA.GetA())
        return nullptr;
    // The root's name is not checked: whatever node comes first is taken.
    return TiXmlHandle(&m_doc)
        .FirstChild()
        .FirstChild(sectionA.GetA())
        .FirstChild(nameA.GetA())
        .ToElement();
}

double CConfigXMLPersistImp::ReadDouble(const wchar_t* section, const wchar_t* name, double def,
                                        DWORD /*spare*/)
{
    TiXmlElement* element = FindElement(section, name);
    double value = def;
    if (element && element->QueryDoubleAttribute("value", &value) != TIXML_SUCCESS)
        value = def;
    return value;
}

int CConfigXMLPersistImp::ReadInt(const wchar_t* section, const wchar_t* name, int def,
                                  DWORD /*spare*/)
{
    TiXmlElement* element = FindElement(section, name);
    int value = def;
    if (element && element->QueryIntAttribute("value", &value) != TIXML_SUCCESS)
        value = def;
    return value;
}

bool CConfigXMLPersistImp::ReadBool(const wchar_t* section, const wchar_t* name, bool def,
                                    DWORD /*spare*/)
{
    TiXmlElement* element = FindElement(section, name);
    // TinyXML asserts on an empty text instead of refusing it.
    const char* text = element ? element->Attribute("value") : nullptr;
    bool value = def;
    if (text && *text && element->QueryBoolAttribute("value", &value) != TIXML_SUCCESS)
        value = def;
    return value;
}

DWORD CConfigXMLPersistImp::ReadDword(const wchar_t* section, const wchar_t* name, DWORD def,
                                      DWORD /*spare*/)
{
    TiXmlElement* element = FindElement(section, name);
    if (!element)
        return def;
    int value = 0;
    if (element->QueryIntAttribute("value", &value) != TIXML_SUCCESS)
        return def;
    return static_cast<DWORD>(value);
}

std::wstring CConfigXMLPersistImp::ReadString(const wchar_t* section, const wchar_t* name,
                                              std::wstring def, DWORD /*spare1*/,
                                              DWORD /*spare2*/)
{
    TiXmlElement* element = FindElement(section, name);
    const char* value = element ? element->Attribute("value") : nullptr;
    if (!value)
        return def;
    return CSFStreamConvert(value, CP_UTF8).GetWString();
}

void CConfigXMLPersistImp::ParseText(const char* text)
{
    if (!text)
        return;
    // TinyXML recurses once per nesting level; refuse what would overflow the stack.
    if (CXmlFileLoader::NestingDepth(text, CXmlFileLoader::kMaxDepth) > CXmlFileLoader::kMaxDepth)
        return;
    CXmlFileLoader::ParseWithSpare(m_doc, text, TIXML_ENCODING_UNKNOWN);
}

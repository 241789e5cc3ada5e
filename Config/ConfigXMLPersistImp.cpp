#include "Config/ConfigXMLPersistImp.h"

#include "language/SFStreamConvert.h"
#include "language/XmlFileLoader.h"

#include <sys/stat.h>

using SF_SOFT_BASE::CSFStreamConvert;

namespace {

// The element's "value" as query reads it; def without the element or a readable value.
template <class T>
T QueryValue(const TiXmlElement* element, T def, int (TiXmlElement::*query)(const char*, T*) const)
{
    T value = def;
    if (element && (element->*query)("value", &value) != TIXML_SUCCESS)
        value = def;
    return value;
}

} // namespace

CConfigXMLPersistImp::CConfigXMLPersistImp(std::string /*unused*/)
{
    // Looked at, not opened: opening a FIFO blocks until someone writes to
    // it, and anything but a regular file counts as no settings.
    struct stat info;
    if (::stat("config.xml", &info) == 0 && S_ISREG(info.st_mode))
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
    return QueryValue(FindElement(section, name), def, &TiXmlElement::QueryDoubleAttribute);
}

int CConfigXMLPersistImp::ReadInt(const wchar_t* section, const wchar_t* name, int def,
                                  DWORD /*spare*/)
{
    return QueryValue(FindElement(section, name), def, &TiXmlElement::QueryIntAttribute);
}

bool CConfigXMLPersistImp::ReadBool(const wchar_t* section, const wchar_t* name, bool def,
                                    DWORD /*spare*/)
{
    TiXmlElement* element = FindElement(section, name);
    // TinyXML asserts on an empty text instead of refusing it.
    const char* text = element ? element->Attribute("value") : nullptr;
    if (!text || !*text)
        return def;
    return QueryValue(element, def, &TiXmlElement::QueryBoolAttribute);
}

DWORD CConfigXMLPersistImp::ReadDword(const wchar_t* section, const wchar_t* name, DWORD def,
                                      DWORD /*spare*/)
{
    const int value = QueryValue(FindElement(section, name), static_cast<int>(def),
                                 &TiXmlElement::QueryIntAttribute);
    return static_cast<DWORD>(value);
}

std::wstring CConfigXMLPersistImp::ReadString(const wchar_t* section, const wchar_t* name,
                                              std::wstring def, DWORD /*spare1*/, DWORD /*spare2*/)
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

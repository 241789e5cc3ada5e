#include "DictionaryFile.h"

#include <tinyxml.h>

CDictionaryFile::CDictionaryFile(const std::string& path)
{
    TiXmlDocument doc;
    if (!doc.LoadFile(path.c_str())) {
        m_strError = doc.ErrorDesc() ? doc.ErrorDesc() : "unknown error";
        return;
    }
    const TiXmlElement* root = doc.RootElement();
    if (!root) {
        m_strError = "no root element";
        return;
    }
    m_bParsed = true;
    int index = 0;
    for (const TiXmlNode* node = root->FirstChild(); node; node = node->NextSibling(), ++index) {
        const std::string where = "child " + std::to_string(index) + " (line "
                                  + std::to_string(node->Row()) + ")";
        const TiXmlElement* e = node->ToElement();
        if (!e) {
            m_vecFaults.push_back(where + " is no element");
            continue;
        }
        const char* name = e->Attribute("name");
        const char* value = e->Attribute("value");
        if (!name || !value) {
            m_vecFaults.push_back(where + " lacks \"name\" or \"value\"");
            continue;
        }
        m_vecEntries.emplace_back(name, value);
    }
}

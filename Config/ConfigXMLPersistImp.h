#pragma once

#include "Config/IConfigPersistent.h"

#include <string>
#include <tinyxml.h>

// Settings read from "config.xml" in the current directory.
class CConfigXMLPersistImp : public IConfigPersistent {
public:
    // The argument is ignored: the file is always "config.xml".
    explicit CConfigXMLPersistImp(std::string unused);

    double ReadDouble(const wchar_t* section, const wchar_t* name, double def,
                      DWORD spare) override;
    int ReadInt(const wchar_t* section, const wchar_t* name, int def, DWORD spare) override;
    bool ReadBool(const wchar_t* section, const wchar_t* name, bool def, DWORD spare) override;
    DWORD ReadDword(const wchar_t* section, const wchar_t* name, DWORD def, DWORD spare) override;
    std::wstring ReadString(const wchar_t* section, const wchar_t* name, std::wstring def,
                            DWORD spare1, DWORD spare2) override;
    void ParseText(const char* text) override;

private:
    TiXmlElement* FindElement(const wchar_t* section, const wchar_t* name);

    TiXmlDocument m_doc;
};

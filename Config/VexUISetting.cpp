#include "Config/VexUISetting.h"

#include "Config/IConfigPersistent.h"
#include "Config/VexUISettingItem.h"
#include "language/SFStreamConvert.h"

#include <cstdio>
#include <cstdlib>
#include <new>
#include <string>
#include <sys/stat.h>
#include <tinyxml.h>

using SF_SOFT_BASE::CSFStreamConvert;

VexUISetting g_UISetting;

namespace {
const char kConfigFile[] = "config.xml";
}

VexUISetting::VexUISetting()
    : m_nRecordblePersentage(0), m_pPersistent(nullptr), m_bRegistered(false)
{
}

VexUISetting::~VexUISetting()
{
    delete m_pPersistent;
    for (VexUISettingItem* item : m_listSettings)
        delete item;
    m_listSettings.clear();
}

void VexUISetting::SetPersistent(IConfigPersistent* persistent)
{
    if (persistent == m_pPersistent)
        return;
    delete m_pPersistent;
    m_pPersistent = persistent;
}

void VexUISetting::AddSetting(VexUISettingItem* item)
{
    if (item)
        m_listSettings.push_back(item);
}

void VexUISetting::RegisterSettings()
{
    AddSetting(new VexUISettingItem(L"UIConfig", L"RecordblePersentage", &m_nRecordblePersentage,
                                    90, 0, 0, 0, 0, false));
}

void VexUISetting::Load()
{
    // A second registration would duplicate every record.
    if (!m_bRegistered) {
        RegisterSettings();
        m_bRegistered = true;
    }
    for (VexUISettingItem* item : m_listSettings)
        item->Load(m_pPersistent);
}

void VexUISetting::Save()
{
    TiXmlDocument doc;
    TiXmlElement* root = new TiXmlElement("Setting");
    doc.LinkEndChild(root);

    std::wstring previous;
    TiXmlElement* section = nullptr;
    for (VexUISettingItem* item : m_listSettings) {
        std::wstring current = item->m_pszSection ? item->m_pszSection : L"";
        if (current != previous) {
            section = new TiXmlElement(CSFStreamConvert(current.c_str(), CP_ACP).GetAString());
            root->LinkEndChild(section);
            previous = current;
        }
        item->Save(section);
    }
    doc.SaveFile(kConfigFile);
}

bool VexUISetting::WriteEncoded(const unsigned char* buffer, int length)
{
    FILE* file = std::fopen(kConfigFile, "wb");
    if (!file)
        return false;
    for (int i = 0; buffer && i < length; ++i) {
        char group[5] = { 0, 0, 0, 0, 0 };
        std::snprintf(group, sizeof group, "%d", static_cast<signed char>(buffer[i]) * 4);
        std::fwrite(group, 1, 4, file);
        std::fseek(file, 0, SEEK_END);
    }
    std::fclose(file);
    delete[] buffer;
    return true;
}

unsigned char* VexUISetting::ReadEncoded()
{
    FILE* file = std::fopen(kConfigFile, "rb");
    if (!file)
        return nullptr;
    // A directory opens too, with no meaningful size.
    struct stat info;
    if (fstat(fileno(file), &info) != 0 || !S_ISREG(info.st_mode)) {
        std::fclose(file);
        return nullptr;
    }
    std::fseek(file, 0, SEEK_END);
    long size = std::ftell(file);
    std::fseek(file, 0, SEEK_SET);
    std::size_t count = size > 0 ? static_cast<std::size_t>(size) / 4 : 0;

    unsigned char* data = new (std::nothrow) unsigned char[count]();
    if (!data) {
        std::fclose(file);
        return nullptr;
    }
    for (std::size_t i = 0; i < count; ++i) {
        char group[5] = { 0, 0, 0, 0, 0 };
        if (std::fread(group, 1, 4, file) != 4)
            break;
        // Logical shift: "-4" comes back as 0xFF.
        data[i] = static_cast<unsigned char>(static_cast<unsigned int>(std::atoi(group)) >> 2);
    }
    std::fclose(file);
    return data;
}

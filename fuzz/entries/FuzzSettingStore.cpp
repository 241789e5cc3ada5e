#include "fuzz/entries/FuzzSettingStore.h"

#include "Config/VexUISettingItem.h"

FuzzSettingStore::FuzzSettingStore()
{
    // Sections stay together: the program's own record, in "UIConfig", comes last.
    AddSetting(new VexUISettingItem(L"Other", L"Text", &m_strOther, L"", 0, 0, 0));
    AddSetting(new VexUISettingItem(L"UIConfig", L"Flag", &m_bFlag, true, 1, 0, 1));
    AddSetting(new VexUISettingItem(L"UIConfig", L"Scaled", &m_nScaled, 2048, 1024, 1, 4));
    AddSetting(new VexUISettingItem(L"UIConfig", L"Ratio", &m_dRatio, 0.5, 0, 0, 0));
    AddSetting(new VexUISettingItem(L"UIConfig", L"Name", &m_strName, L"none", 0, 0, 0));
}

#pragma once
// A settings store with one record of every type beside the program's own,
// so that a file can reach every reader.

#include "Config/VexUISetting.h"

#include <string>

class FuzzSettingStore : public VexUISetting {
public:
    FuzzSettingStore();

    bool m_bFlag = false;
    DWORD m_nScaled = 0;
    double m_dRatio = 0.0;
    std::wstring m_strName;
    std::wstring m_strOther;
};

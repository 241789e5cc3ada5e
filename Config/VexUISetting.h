#pragma once

#include "platform/WinTypes.h"

#include <list>

class IConfigPersistent;
class VexUISettingItem;

// The program's settings: records bound to the fields below, read through
// an IConfigPersistent and written as "config.xml".
class VexUISetting {
public:
    VexUISetting();
    ~VexUISetting();

    VexUISetting(const VexUISetting&) = delete;
    VexUISetting& operator=(const VexUISetting&) = delete;

    // Takes ownership.
    void SetPersistent(IConfigPersistent* persistent);
    // Registers the records (the first time only) and reads each in order.
    void Load();
    void Save();

    // The coded form of "config.xml": one 4-byte group per byte. On success
    // WriteEncoded frees buffer (allocated with new[]).
    bool WriteEncoded(const unsigned char* buffer, int length);
    // Null without a file; otherwise a new[] buffer of size / 4 bytes that
    // the caller owns.
    unsigned char* ReadEncoded();

    DWORD m_nRecordblePersentage;

protected:
    // Takes ownership; records load and save in the order they were added.
    void AddSetting(VexUISettingItem* item);

private:
    void RegisterSettings();

    IConfigPersistent* m_pPersistent;
    std::list<VexUISettingItem*> m_listSettings;
    bool m_bRegistered;
};

extern VexUISetting g_UISetting;

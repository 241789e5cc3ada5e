#pragma once
// Root of the window handler interfaces: owns the lookup in the handler's map.

#include "sf/SFMessageMap.h"

class CSFEventBase {
public:
    CSFEventBase();
    CSFEventBase(const CSFEventBase& other);
    CSFEventBase& operator=(const CSFEventBase& other);
    virtual ~CSFEventBase();

    virtual const SF_MSGMAP* GetSFMessageMap() const = 0;
    virtual int* GetThisMessageIDs();

    // Map lookups on this object itself; nothing in the program calls them.
    void Dlg_OnCommand(unsigned int id);
    void OnNotifyClick(unsigned int code, unsigned int id, tagNMHDR* hdr, long* result);
    void OnUIMessage(unsigned int code, unsigned int id, unsigned int wParam, long lParam);

    // Drops the cached id list; a window does this to the handler it is given.
    void ResetMessageIDs();

    int* m_pMessageIDs;
};

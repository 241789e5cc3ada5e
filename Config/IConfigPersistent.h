#pragma once

#include "platform/WinTypes.h"

#include <string>

// Reader of named settings grouped in sections. The spare arguments are
// passed as 0 and read by nobody; they keep the slot signatures stable.
class IConfigPersistent {
public:
    virtual double ReadDouble(const wchar_t* section, const wchar_t* name, double def,
                              DWORD spare) = 0;
    virtual int ReadInt(const wchar_t* section, const wchar_t* name, int def, DWORD spare) = 0;
    virtual bool ReadBool(const wchar_t* section, const wchar_t* name, bool def, DWORD spare) = 0;
    virtual DWORD ReadDword(const wchar_t* section, const wchar_t* name, DWORD def,
                            DWORD spare) = 0;
    virtual std::wstring ReadString(const wchar_t* section, const wchar_t* name, std::wstring def,
                                    DWORD spare1, DWORD spare2) = 0;
    virtual void ParseText(const char* text) = 0;

    // The store deletes its reader through this interface.
    virtual ~IConfigPersistent() {}
};

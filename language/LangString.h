#pragma once
// Text lookup: the English label is the key, the chosen dictionary gives the text.

#include <string>

// 1 Chinese, 0 English. Also selects the reference rate column of the estimate.
extern int g_nLanguage;

// Reads "Language.xml" beside the executable into g_nLanguage.
void ReadLanguageChoice();

// Never null. The result lives in one of five rotating buffers: it stays
// valid for the four lookups that follow.
const wchar_t* GetLangString(const wchar_t* key, int reserved);

// The looked-up text as an owned copy, safe from the rotating buffers.
inline std::wstring LangText(const wchar_t* key)
{
    return GetLangString(key, 0);
}

// Tests point the lookup at another directory and start it afresh.
void SFSetLanguageDirForTesting(const std::string& dir);
void SFResetLanguageForTesting();

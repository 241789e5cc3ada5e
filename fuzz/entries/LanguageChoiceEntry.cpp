#include "fuzz/entries/FuzzCheck.h"
#include "fuzz/entries/FuzzEntries.h"
#include "fuzz/entries/FuzzScratch.h"
#include "language/LangString.h"

#include <string>

int FuzzLanguageChoice(const uint8_t* data, size_t size)
{
    FuzzScratch::Remove("Lang_cn.xml");
    FuzzScratch::Remove("Lang_en.xml");
    FuzzScratch::Write("Language.xml", data, size);
    SFSetLanguageDirForTesting(FuzzScratch::Dir());
    SFResetLanguageForTesting();
    const int language = g_nLanguage;

    ReadLanguageChoice();
    // Whatever it chose, with no dictionary there a lookup shows its key.
    FUZZ_CHECK(std::wstring(GetLangString(L"Close", 0)) == L"Close");

    g_nLanguage = language;
    SFSetLanguageDirForTesting(std::string());
    SFResetLanguageForTesting();
    return 0;
}

#include "fuzz/entries/FuzzCheck.h"
#include "fuzz/entries/FuzzEntries.h"
#include "fuzz/entries/FuzzScratch.h"
#include "language/LangString.h"
#include "language/SFStreamConvert.h"
#include "platform/WinTypes.h"

#include <cwchar>
#include <string>
#include <vector>

namespace {

// The keys the text names, as far as a plain search finds them.
std::vector<std::wstring> NamedKeys(const std::string& text, size_t limit)
{
    std::vector<std::wstring> keys;
    size_t pos = 0;
    while (keys.size() < limit && (pos = text.find("name=\"", pos)) != std::string::npos) {
        pos += 6;
        const size_t end = text.find('"', pos);
        if (end == std::string::npos)
            break;
        const std::string key = text.substr(pos, end - pos);
        SF_SOFT_BASE::CSFStreamConvert wide(key.c_str(), CP_UTF8);
        keys.push_back(wide.GetWString());
        pos = end + 1;
    }
    return keys;
}

void Lookup(const std::wstring& key)
{
    const wchar_t* text = GetLangString(key.c_str(), 0);
    FUZZ_CHECK(text != nullptr);
    FUZZ_CHECK(std::wcslen(text) < 1024);
}

} // namespace

int FuzzDictionary(const uint8_t* data, size_t size)
{
    FuzzScratch::Write("Lang_en.xml", data, size);
    SFSetLanguageDirForTesting(FuzzScratch::Dir());
    SFResetLanguageForTesting();
    const int language = g_nLanguage;
    g_nLanguage = 0;

    Lookup(L"");
    Lookup(L"Close");
    Lookup(std::wstring(1500, L'k'));
    for (const std::wstring& key :
         NamedKeys(std::string(reinterpret_cast<const char*>(data), size), 16))
        Lookup(key);
    // Six lookups cycle through every buffer.
    for (int i = 0; i < 6; ++i)
        Lookup(L"OK");

    g_nLanguage = language;
    SFSetLanguageDirForTesting(std::string());
    SFResetLanguageForTesting();
    return 0;
}

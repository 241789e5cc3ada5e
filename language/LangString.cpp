#include "language/LangString.h"

#include "language/SFStreamConvert.h"
#include "language/XmlFileLoader.h"
#include "platform/WinModule.h"
#include "platform/WinTypes.h"
#include "platform/WinWideString.h"

#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <map>
#include <sys/stat.h>
#include <tinyxml.h>

int g_nLanguage = 1;

namespace {

const int kLangBufferCount = 5;
const int kLangBufferLength = 1024;

typedef std::map<std::wstring, std::wstring> LanguageDictionary;

LanguageDictionary* g_pDictionary = nullptr;
unsigned char g_bDictionaryLoaded = 0;
wchar_t g_szLangBuffers[kLangBufferCount][kLangBufferLength];
int g_nNextLangBuffer = 0;
std::string g_strLangDirOverride;

// Identity of a dictionary file that failed to load: a label per lookup
// would otherwise re-read and re-parse an unchanged broken file each time.
struct FailedFile {
    std::string path;
    off_t size = -1;
    struct timespec mtime = { 0, 0 };
};
FailedFile g_lastFailure;

void DestroyDictionary()
{
    delete g_pDictionary;
    g_pDictionary = nullptr;
}

// The executable's directory with a trailing slash. A backslash is an
// ordinary file-name character here, part of a folder's name.
std::string ExecutableDirectory()
{
    if (!g_strLangDirOverride.empty())
        return g_strLangDirOverride + "/";
    char path[SF_MAX_PATH] = { 0 };
    GetModuleFileNameA(nullptr, path, SF_MAX_PATH);
    const std::string text(path);
    std::size_t slash = text.rfind('/');
    return slash == std::string::npos ? std::string() : text.substr(0, slash + 1);
}

bool SameAsLastFailure(const std::string& path, const struct stat& st)
{
    return g_lastFailure.path == path && g_lastFailure.size == st.st_size &&
           g_lastFailure.mtime.tv_sec == st.st_mtim.tv_sec &&
           g_lastFailure.mtime.tv_nsec == st.st_mtim.tv_nsec;
}

void CopyIntoBuffer(wchar_t* buffer, const wchar_t* text)
{
    // Texts are cut to 1023 characters when the dictionary loads; keys come
    // from the code, but a runaway key must still not end the process.
    if (wcscpy_s(buffer, kLangBufferLength, text) != 0) {
        std::wmemcpy(buffer, text, kLangBufferLength - 1);
        buffer[kLangBufferLength - 1] = L'\0';
    }
}

void LoadDictionary()
{
    const char* fileName = nullptr;
    if (g_nLanguage == 1)
        fileName = "Lang_cn.xml";
    else if (g_nLanguage == 0)
        fileName = "Lang_en.xml";
    else
        return; // no dictionary for other codes: every label shows its key

    std::string path = ExecutableDirectory() + fileName;
    struct stat st;
    bool exists = ::stat(path.c_str(), &st) == 0;
    if (exists && SameAsLastFailure(path, st))
        return;

    TiXmlDocument doc;
    if (!CXmlFileLoader::Load(doc, path)) {
        if (exists) {
            g_lastFailure.path = path;
            g_lastFailure.size = st.st_size;
            g_lastFailure.mtime = st.st_mtim;
        }
        return;
    }

    g_bDictionaryLoaded = 1;
    TiXmlElement* root = doc.RootElement();
    if (!root)
        return;
    for (TiXmlNode* node = root->FirstChild(); node; node = node->NextSibling()) {
        // Comments and text between entries are passed over.
        TiXmlElement* entry = node->ToElement();
        if (!entry)
            continue;
        const char* name = entry->Attribute("name");
        const char* value = entry->Attribute("value");
        if (!name || !value)
            continue;
        SF_SOFT_BASE::CSFStreamConvert key(name, CP_UTF8);
        SF_SOFT_BASE::CSFStreamConvert text(value, CP_UTF8);
        std::wstring shown = text.GetWString();
        if (shown.size() >= static_cast<std::size_t>(kLangBufferLength))
            shown.resize(kLangBufferLength - 1);
        (*g_pDictionary)[key.GetWString()] = shown;
    }
}

} // namespace

void ReadLanguageChoice()
{
    TiXmlDocument doc;
    if (!CXmlFileLoader::Load(doc, ExecutableDirectory() + "Language.xml"))
        return;
    TiXmlElement* root = doc.RootElement();
    TiXmlElement* choice = root ? root->FirstChildElement() : nullptr;
    if (!choice)
        return;
    const char* value = choice->Attribute("value");
    g_nLanguage = std::atoi(value ? value : "");
}

const wchar_t* GetLangString(const wchar_t* key, int /*reserved*/)
{
    if (!key)
        key = L"";
    if (!g_pDictionary) {
        g_pDictionary = new LanguageDictionary;
        std::atexit(DestroyDictionary);
    }
    if (!g_bDictionaryLoaded)
        LoadDictionary();

    wchar_t* buffer = g_szLangBuffers[g_nNextLangBuffer];
    LanguageDictionary::const_iterator found = g_pDictionary->find(key);
    CopyIntoBuffer(buffer, found != g_pDictionary->end() ? found->second.c_str() : key);
    g_nNextLangBuffer = (g_nNextLangBuffer + 1) % kLangBufferCount;
    return buffer;
}

void SFSetLanguageDirForTesting(const std::string& dir)
{
    g_strLangDirOverride = dir;
}

void SFResetLanguageForTesting()
{
    if (g_pDictionary)
        g_pDictionary->clear();
    g_bDictionaryLoaded = 0;
    g_nNextLangBuffer = 0;
    g_lastFailure = FailedFile();
}

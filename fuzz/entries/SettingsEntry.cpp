#include "Config/ConfigXMLPersistImp.h"
#include "fuzz/entries/FuzzCheck.h"
#include "fuzz/entries/FuzzCurrentDir.h"
#include "fuzz/entries/FuzzEntries.h"
#include "fuzz/entries/FuzzScratch.h"
#include "fuzz/entries/FuzzSettingStore.h"

#include <string>

namespace {

// The ranged record stays in its bounds whatever the file says.
void CheckRange(const FuzzSettingStore& store)
{
    FUZZ_CHECK(store.m_nScaled >= 1024 && store.m_nScaled <= 4096);
}

} // namespace

int FuzzSettings(const uint8_t* data, size_t size)
{
    FuzzScratch::Write("config.xml", data, size);
    FuzzCurrentDir inScratch(FuzzScratch::Dir());

    FuzzSettingStore store;
    CConfigXMLPersistImp* reader = new CConfigXMLPersistImp(std::string());
    store.SetPersistent(reader);
    store.Load();
    CheckRange(store);
    reader->ReadInt(L"UIConfig", L"RecordblePersentage", 90, 0);
    reader->ReadString(L"UIConfig", L"RecordblePersentage", std::wstring(), 0, 0);

    // The same text handed over in memory.
    const std::string text(reinterpret_cast<const char*>(data), size);
    reader->ParseText(text.c_str());
    store.Load();
    CheckRange(store);

    // What was read is written out and reads back.
    store.Save();
    FuzzSettingStore reread;
    reread.SetPersistent(new CConfigXMLPersistImp(std::string()));
    reread.Load();
    CheckRange(reread);
    FUZZ_CHECK(reread.m_nRecordblePersentage == store.m_nRecordblePersentage);
    FUZZ_CHECK(reread.m_bFlag == store.m_bFlag);
    return 0;
}

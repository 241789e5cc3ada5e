#include "Config/ConfigXMLPersistImp.h"
#include "fuzz/entries/FuzzCheck.h"
#include "fuzz/entries/FuzzCurrentDir.h"
#include "fuzz/entries/FuzzEntries.h"
#include "fuzz/entries/FuzzScratch.h"
#include "fuzz/entries/FuzzSettingStore.h"

#include <cstring>
#include <memory>
#include <string>

int FuzzCodedSettings(const uint8_t* data, size_t size)
{
    FuzzScratch::Write("config.xml", data, size);
    FuzzCurrentDir inScratch(FuzzScratch::Dir());

    // The bytes as a coded file: decoded, then read as settings text. The
    // decoded buffer carries no terminator of its own.
    FuzzSettingStore store;
    std::unique_ptr<unsigned char[]> decoded(store.ReadEncoded());
    FUZZ_CHECK(decoded != nullptr);
    const std::string text(reinterpret_cast<const char*>(decoded.get()), size / 4);
    CConfigXMLPersistImp* reader = new CConfigXMLPersistImp(std::string());
    reader->ParseText(text.c_str());
    store.SetPersistent(reader);
    store.Load();

    // The bytes as plain data: coding and decoding give them back.
    if (size > 0) {
        unsigned char* plain = new unsigned char[size];
        std::memcpy(plain, data, size);
        FUZZ_CHECK(store.WriteEncoded(plain, static_cast<int>(size)));
        std::unique_ptr<unsigned char[]> back(store.ReadEncoded());
        FUZZ_CHECK(back != nullptr);
        FUZZ_CHECK(std::memcmp(back.get(), data, size) == 0);
    }
    return 0;
}

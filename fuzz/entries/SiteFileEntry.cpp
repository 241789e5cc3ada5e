#include "fuzz/entries/FuzzCheck.h"
#include "fuzz/entries/FuzzEntries.h"
#include "plan/SiteFigures.h"
#include "plan/SiteFileReader.h"

#include <string>

int FuzzSiteFile(const uint8_t* data, size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    const SiteFileResult result = CSiteFileReader::Parse(text);
    if (!result.bOk) {
        FUZZ_CHECK(result.rows.empty());
        FUZZ_CHECK(result.error.nLine >= 1);
        FUZZ_CHECK(result.error.nColumn >= 1);
        FUZZ_CHECK(!result.error.strMessage.empty());
        // The message is one line, whatever the file held.
        FUZZ_CHECK(result.error.strMessage.find('\n') == std::string::npos);
        return 0;
    }
    for (const SiteRow& row : result.rows) {
        FUZZ_CHECK(row.nLine >= 2);
        FUZZ_CHECK(row.nChannels >= 1 && row.nChannels <= 9999);
        FUZZ_CHECK(row.nCompression >= 1 && row.nCompression <= 4);
        FUZZ_CHECK(row.nScene >= 0 && row.nScene <= 3);
        FUZZ_CHECK(row.nResolution >= 1 && row.nResolution <= 12);
        FUZZ_CHECK(row.nFrameRateIndex >= 1 && row.nFrameRateIndex <= kRowFrameRateCustom);
        FUZZ_CHECK(row.strTypedBitrate.size() <= 9);
    }
    for (int area = 0; area <= 1; ++area) {
        const CSiteFigures figures(result.rows, area);
        FUZZ_CHECK(figures.Rows().size() == result.rows.size());
        FUZZ_CHECK(figures.Totals().nChannels >= 0);
        FUZZ_CHECK(figures.Totals().dKbps >= 0.0);
    }
    return 0;
}

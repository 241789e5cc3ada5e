// The site file reader: what a line becomes, and where a bad one is reported.

#include "plan/SiteFileReader.h"

#include "plan/SiteFigures.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

const std::string kHeader = "channels,compression,scene,resolution,fps,audio,bitrate\n";

struct GoodCase {
    const char* pszName;
    std::string strText;
    // Expected first row: channels, compression, scene, resolution, frame-rate
    // index, custom text, audio, typed, typed text, line.
    int nChannels, nCompression, nScene, nResolution, nFrameRateIndex;
    const char* pszCustom;
    bool bAudio, bTyped;
    const char* pszTyped;
    int nLine;
};

TEST(SiteFileReaderTest, ReadsEachFormOfALine)
{
    const GoodCase cases[] = {
        { "plain", kHeader + "4,H.265,0,D1,15,on,\n", 4, 2, 0, 3, 4, "", true, false, "", 2 },
        { "typed zeros kept as typed", kHeader + "2,H.264,0,CIF,30,off,007\n", 2, 1, 0, 1, 7, "",
          false, true, "007", 2 },
        { "custom rate", kHeader + "1,smart265,2,12MP,50,off,\n", 1, 4, 2, 12, 10, "50", false,
          false, "", 2 },
        { "listed rate with zeros", kHeader + "1,H.264,0,2MP,030,off,\n", 1, 1, 0, 6, 7, "", false,
          false, "", 2 },
        { "any order, no bitrate column",
          "audio,fps,resolution,scene,compression,channels\non,25,1.3MP,3,smart264,9999\n", 9999, 3,
          3, 5, 6, "", true, false, "", 2 },
        { "case, blanks and quotes",
          " Channels , COMPRESSION,scene,Resolution,fps,Audio\n\"12\", h.265 ,\"0\",8mp,60,ON\n",
          12, 2, 0, 11, 9, "", true, false, "", 2 },
        { "comments, blank lines, CRLF, BOM",
          "\xEF\xBB\xBF# site A\r\n\r\n" + kHeader +
              "  # first camera\r\n3,H.264,0,VGA,5,off, # yard\r\n",
          3, 1, 0, 2, 2, "", false, false, "", 5 },
    };
    for (const GoodCase& c : cases) {
        SCOPED_TRACE(c.pszName);
        const SiteFileResult result = CSiteFileReader::Parse(c.strText);
        ASSERT_TRUE(result.bOk) << result.error.nLine << ":" << result.error.nColumn << " "
                                << result.error.strMessage;
        ASSERT_EQ(result.rows.size(), 1u);
        const SiteRow& row = result.rows[0];
        EXPECT_EQ(row.nChannels, c.nChannels);
        EXPECT_EQ(row.nCompression, c.nCompression);
        EXPECT_EQ(row.nScene, c.nScene);
        EXPECT_EQ(row.nResolution, c.nResolution);
        EXPECT_EQ(row.nFrameRateIndex, c.nFrameRateIndex);
        EXPECT_EQ(row.strCustomRate, c.pszCustom);
        EXPECT_EQ(row.bAudio, c.bAudio);
        EXPECT_EQ(row.bTypedBitrate, c.bTyped);
        EXPECT_EQ(row.strTypedBitrate, c.pszTyped);
        EXPECT_EQ(row.nLine, c.nLine);
    }
}

TEST(SiteFileReaderTest, AHeaderAloneIsAnEmptySite)
{
    const SiteFileResult result = CSiteFileReader::Parse(kHeader);
    EXPECT_TRUE(result.bOk);
    EXPECT_TRUE(result.rows.empty());
}

struct BadCase {
    const char* pszName;
    std::string strText;
    int nLine;
    int nColumn;
    const char* pszMessage; // a part of the message
};

TEST(SiteFileReaderTest, NamesLineColumnAndWhatWasExpected)
{
    const BadCase cases[] = {
        { "empty file", "", 1, 1, "no header line" },
        { "unknown column", "channels,codec\n", 1, 10,
          "unknown column \"codec\": expected channels, compression" },
        { "column twice", "channels,fps,Channels\n", 1, 14, "column \"Channels\" named twice" },
        { "column missing", "channels,compression,scene,resolution,fps\n", 1, 1,
          "lacks the column \"audio\"" },
        { "too few fields", kHeader + "4,H.265,0,D1,15,on\n", 2, 19, "expected 7 fields" },
        { "too many fields", kHeader + "4,H.265,0,D1,15,on,,9\n", 2, 21, "found 8" },
        { "no channels", kHeader + "0,H.265,0,D1,15,on,\n", 2, 1,
          "bad channels \"0\": expected a whole number 1-9999" },
        { "codec", kHeader + "4,H.266,0,D1,15,on,\n", 2, 3,
          "bad compression \"H.266\": expected H.264, H.265, smart264 or smart265" },
        { "scene", kHeader + "4,smart264,4,D1,15,on,\n", 2, 12, "expected 0 (none), 1, 2 or 3" },
        { "resolution", kHeader + "4,H.265,0,4K,15,on,\n", 2, 11,
          "bad resolution \"4K\": expected CIF, VGA, D1, 1MP, 1.3MP, 2MP" },
        { "rate too high", kHeader + "4,H.265,0,D1,1000,on,\n", 2, 14,
          "expected 1, 5, 10, 15, 20, 25, 30, 45, 60 or a custom whole number 0-999" },
        { "rate with a point", kHeader + "4,H.265,0,D1,12.5,on,\n", 2, 14, "bad fps" },
        { "audio", kHeader + "4,H.265,0,D1,15,yes,\n", 2, 17,
          "bad audio \"yes\": expected on or off" },
        { "bitrate letters", kHeader + "4,H.265,0,D1,15,on,12a\n", 2, 20, "bad bitrate \"12a\"" },
        { "bitrate ten digits", kHeader + "4,H.265,0,D1,15,on,1234567890\n", 2, 20,
          "at most 9 digits" },
        { "unclosed quote", kHeader + "4,\"H.265,0,D1,15,on,\n", 2, 3, "unclosed quote" },
        { "text after a quote", kHeader + "4,\"H.265\"x,0,D1,15,on,\n", 2, 10,
          "text after a closing quote" },
        { "zero byte",
          kHeader + std::string("4,H.2\0"
                                "65,0,D1,15,on,\n",
                                21),
          2, 6, "zero byte" },
        { "second row", kHeader + "4,H.265,0,D1,15,on,\n\n4,H.265,0,D1,15,of,\n", 4, 17,
          "bad audio \"of\"" },
    };
    for (const BadCase& c : cases) {
        SCOPED_TRACE(c.pszName);
        const SiteFileResult result = CSiteFileReader::Parse(c.strText);
        ASSERT_FALSE(result.bOk);
        EXPECT_TRUE(result.rows.empty());
        EXPECT_EQ(result.error.nLine, c.nLine);
        EXPECT_EQ(result.error.nColumn, c.nColumn);
        EXPECT_NE(result.error.strMessage.find(c.pszMessage), std::string::npos)
            << result.error.strMessage;
    }
}

TEST(SiteFileReaderTest, ColumnsCountCharactersNotBytes)
{
    const SiteFileResult result =
        CSiteFileReader::Parse(kHeader + "4,\"\xC3\xA9\xC3\xA9\xC3\xA9\"x,0\n");
    ASSERT_FALSE(result.bOk);
    EXPECT_EQ(result.error.nColumn, 8);
}

// What the table would show for a row: the window's own rules.
struct FigureCase {
    const char* pszName;
    std::string strRow;
    int nArea;
    int nFrameRate;
    const char* pszText;
    int nChannels; // counted channels of the site
    double dKbps;  // total of the site
};

TEST(SiteFiguresTest, RowsShowWhatTheTableShows)
{
    const FigureCase cases[] = {
        { "H.264 D1 15", "4,H.264,3,D1,15,off,", 0, 15, "512", 4, 2048.0 },
        { "H.265 D1 15 audio", "4,H.265,0,D1,15,on,", 0, 15, "316", 4, 1264.0 },
        { "area 1 lowers D1", "1,H.264,0,D1,15,off,", 1, 15, "256", 1, 256.0 },
        { "smart265 rounded", "2,smart265,1,2MP,25,on,", 0, 25, "487", 2, 974.0 },
        { "smart264 without scene", "1,smart264,0,2MP,30,off,", 0, 30, "4096", 1, 4096.0 },
        { "12MP at 60 records 30", "1,H.264,0,12MP,60,off,", 0, 30, "12288", 1, 12288.0 },
        { "12MP custom above 30", "1,H.264,0,12MP,31,off,", 0, 30, "12288", 1, 12288.0 },
        { "8MP custom 31 stays", "1,H.264,0,8MP,31,off,", 0, 31, "8465", 1, 8465.0 },
        { "custom zero", "3,H.264,0,8MP,0,on,", 0, 0, "0", 0, 0.0 },
        { "typed zero counts no channels", "2,H.264,0,D1,15,off,0", 0, 15, "0", 0, 0.0 },
        { "typed 00 counts channels", "2,H.264,0,D1,15,off,00", 0, 15, "00", 2, 0.0 },
        { "typed rate wins", "9999,H.264,0,CIF,1,off,12288", 0, 1, "12288", 9999, 122867712.0 },
    };
    for (const FigureCase& c : cases) {
        SCOPED_TRACE(c.pszName);
        const SiteFileResult result = CSiteFileReader::Parse(kHeader + c.strRow + "\n");
        ASSERT_TRUE(result.bOk) << result.error.strMessage;
        const CSiteFigures figures(result.rows, c.nArea);
        ASSERT_EQ(figures.Rows().size(), 1u);
        EXPECT_EQ(figures.Rows()[0].nFrameRate, c.nFrameRate);
        EXPECT_EQ(figures.Rows()[0].strText, c.pszText);
        EXPECT_EQ(figures.Totals().nChannels, c.nChannels);
        EXPECT_EQ(figures.Totals().dKbps, c.dKbps);
    }
}

} // namespace

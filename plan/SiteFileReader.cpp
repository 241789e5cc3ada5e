#include "plan/SiteFileReader.h"

#include "plan/SiteValues.h"

#include <cstddef>

const char* const CSiteFileReader::kColumnNames[] = { "channels",   "compression", "scene",
                                                      "resolution", "fps",         "audio",
                                                      "bitrate" };

namespace {

enum Column { ColChannels, ColCompression, ColScene, ColResolution, ColFps, ColAudio, ColBitrate };
const int kRequiredColumns = ColBitrate; // all but the bitrate

struct Field {
    std::string strText;
    int nColumn; // where the text starts, 1-based characters
};

// Characters before byte nPos of a UTF-8 line: continuation bytes don't count.
int CharColumn(const std::string& strLine, std::size_t nPos)
{
    int nColumn = 1;
    for (std::size_t i = 0; i < nPos && i < strLine.size(); ++i) {
        if ((static_cast<unsigned char>(strLine[i]) & 0xC0) != 0x80)
            ++nColumn;
    }
    return nColumn;
}

bool IsBlank(char c)
{
    return c == ' ' || c == '\t';
}

class CLineSplitter {
public:
    explicit CLineSplitter(const std::string& strLine) : m_strLine(strLine) {}

    // Splits at commas; a field may be quoted with "" for a quote inside. A
    // '#' outside quotes starts a comment. Returns false with the column of
    // the fault in nBadColumn.
    bool Split(std::vector<Field>& fields, int& nBadColumn, std::string& strWhy)
    {
        std::size_t i = 0;
        const std::size_t n = m_strLine.size();
        for (;;) {
            while (i < n && IsBlank(m_strLine[i]))
                ++i;
            Field field;
            field.nColumn = CharColumn(m_strLine, i);
            if (i < n && m_strLine[i] == '"') {
                const std::size_t nOpen = i++;
                bool bClosed = false;
                while (i < n) {
                    if (m_strLine[i] == '"') {
                        if (i + 1 < n && m_strLine[i + 1] == '"') {
                            field.strText += '"';
                            i += 2;
                            continue;
                        }
                        ++i;
                        bClosed = true;
                        break;
                    }
                    field.strText += m_strLine[i++];
                }
                if (!bClosed) {
                    nBadColumn = CharColumn(m_strLine, nOpen);
                    strWhy = "unclosed quote";
                    return false;
                }
                while (i < n && IsBlank(m_strLine[i]))
                    ++i;
                if (i < n && m_strLine[i] != ',' && m_strLine[i] != '#') {
                    nBadColumn = CharColumn(m_strLine, i);
                    strWhy = "text after a closing quote";
                    return false;
                }
            } else {
                const std::size_t nStart = i;
                while (i < n && m_strLine[i] != ',' && m_strLine[i] != '#')
                    ++i;
                std::size_t nEnd = i;
                while (nEnd > nStart && IsBlank(m_strLine[nEnd - 1]))
                    --nEnd;
                field.strText = m_strLine.substr(nStart, nEnd - nStart);
            }
            fields.push_back(field);
            if (i < n && m_strLine[i] == ',') {
                ++i;
                continue;
            }
            return true; // end of line or a comment
        }
    }

private:
    const std::string& m_strLine;
};

// A line that holds nothing but blanks or a comment.
bool IsEmptyLine(const std::string& strLine)
{
    for (char c : strLine) {
        if (c == '#')
            return true;
        if (!IsBlank(c))
            return false;
    }
    return true;
}

std::string Quoted(const std::string& strText)
{
    // Long or binary junk is cut so that the message stays one short line.
    std::string strShown;
    for (char c : strText.substr(0, 40)) {
        const unsigned char u = static_cast<unsigned char>(c);
        strShown += (u < 0x20 || u == 0x7F) ? '?' : c;
    }
    if (strText.size() > 40)
        strShown += "...";
    return "\"" + strShown + "\"";
}

class CParser {
public:
    explicit CParser(SiteFileResult& result) : m_result(result) {}

    bool Fail(int nLine, int nColumn, const std::string& strMessage)
    {
        m_result.bOk = false;
        m_result.rows.clear();
        m_result.error.nLine = nLine;
        m_result.error.nColumn = nColumn;
        m_result.error.strMessage = strMessage;
        return false;
    }

    bool Header(int nLine, const std::vector<Field>& fields)
    {
        for (int c = 0; c < CSiteFileReader::kColumnCount; ++c)
            m_aColumnAt[c] = -1;
        for (std::size_t f = 0; f < fields.size(); ++f) {
            const std::string strName = SiteValues::Lower(fields[f].strText);
            int nFound = -1;
            for (int c = 0; c < CSiteFileReader::kColumnCount; ++c) {
                if (strName == CSiteFileReader::kColumnNames[c])
                    nFound = c;
            }
            if (nFound < 0)
                return Fail(nLine, fields[f].nColumn,
                            "unknown column " + Quoted(fields[f].strText) + ": expected " +
                                ColumnList());
            if (m_aColumnAt[nFound] >= 0)
                return Fail(nLine, fields[f].nColumn,
                            "column " + Quoted(fields[f].strText) + " named twice");
            m_aColumnAt[nFound] = static_cast<int>(f);
        }
        for (int c = 0; c < kRequiredColumns; ++c) {
            if (m_aColumnAt[c] < 0)
                return Fail(nLine, 1,
                            std::string("the header lacks the column \"") +
                                CSiteFileReader::kColumnNames[c] + "\": expected " + ColumnList());
        }
        m_nFieldCount = fields.size();
        return true;
    }

    bool Row(int nLine, const std::string& strLine, const std::vector<Field>& fields)
    {
        if (fields.size() != m_nFieldCount) {
            const int nColumn = fields.size() > m_nFieldCount ? fields[m_nFieldCount].nColumn
                                                              : CharColumn(strLine, strLine.size());
            return Fail(nLine, nColumn,
                        "expected " + std::to_string(m_nFieldCount) +
                            " fields as in the header, found " + std::to_string(fields.size()));
        }
        if (static_cast<int>(m_result.rows.size()) >= CSiteFileReader::kMaxRows)
            return Fail(nLine, 1,
                        "too many rows: at most " + std::to_string(CSiteFileReader::kMaxRows));
        SiteRow row;
        row.nLine = nLine;
        for (int c = 0; c < CSiteFileReader::kColumnCount; ++c) {
            if (m_aColumnAt[c] < 0)
                continue;
            const Field& field = fields[static_cast<std::size_t>(m_aColumnAt[c])];
            std::string strExpected;
            if (!Value(c, field.strText, row, strExpected))
                return Fail(nLine, field.nColumn,
                            std::string("bad ") + CSiteFileReader::kColumnNames[c] + " " +
                                Quoted(field.strText) + ": expected " + strExpected);
        }
        m_result.rows.push_back(row);
        return true;
    }

private:
    static std::string ColumnList()
    {
        return "channels, compression, scene, resolution, fps, audio and optionally bitrate";
    }

    static bool Value(int nColumn, const std::string& strText, SiteRow& row,
                      std::string& strExpected)
    {
        switch (nColumn) {
        case ColChannels:
            strExpected = SiteValues::kChannelsExpected;
            return SiteValues::ParseChannels(strText, row.nChannels);
        case ColCompression:
            strExpected = SiteValues::CompressionExpected();
            return SiteValues::ParseCompression(strText, row.nCompression);
        case ColScene:
            strExpected = SiteValues::kSceneExpected;
            return SiteValues::ParseScene(strText, row.nScene);
        case ColResolution:
            strExpected = SiteValues::ResolutionExpected();
            return SiteValues::ParseResolution(strText, row.nResolution);
        case ColFps:
            strExpected = SiteValues::FrameRateExpected();
            return SiteValues::ParseFrameRate(strText, row.nFrameRateIndex, row.strCustomRate);
        case ColAudio:
            strExpected = SiteValues::kAudioExpected;
            return SiteValues::ParseAudio(strText, row.bAudio);
        case ColBitrate:
            strExpected = SiteValues::kBitrateExpected;
            return SiteValues::ParseTypedBitrate(strText, row.bTypedBitrate, row.strTypedBitrate);
        default:
            return false;
        }
    }

    SiteFileResult& m_result;
    int m_aColumnAt[CSiteFileReader::kColumnCount] = {};
    std::size_t m_nFieldCount = 0;
};

} // namespace

SiteFileResult CSiteFileReader::Parse(const std::string& strText)
{
    SiteFileResult result;
    CParser parser(result);
    bool bHeaderSeen = false;
    int nLine = 0;
    std::size_t nPos = 0;
    // A UTF-8 byte order mark from a spreadsheet is no part of the header.
    if (strText.compare(0, 3, "\xEF\xBB\xBF") == 0)
        nPos = 3;
    while (nPos < strText.size()) {
        std::size_t nEnd = strText.find('\n', nPos);
        if (nEnd == std::string::npos)
            nEnd = strText.size();
        std::string strLine = strText.substr(nPos, nEnd - nPos);
        nPos = nEnd + 1;
        ++nLine;
        if (!strLine.empty() && strLine.back() == '\r')
            strLine.pop_back();
        const std::size_t nZero = strLine.find('\0');
        if (nZero != std::string::npos) {
            parser.Fail(nLine, CharColumn(strLine, nZero), "a zero byte: a site file is text");
            return result;
        }
        if (IsEmptyLine(strLine))
            continue;
        std::vector<Field> fields;
        int nBadColumn = 0;
        std::string strWhy;
        if (!CLineSplitter(strLine).Split(fields, nBadColumn, strWhy)) {
            parser.Fail(nLine, nBadColumn, strWhy);
            return result;
        }
        if (!bHeaderSeen) {
            if (!parser.Header(nLine, fields))
                return result;
            bHeaderSeen = true;
        } else if (!parser.Row(nLine, strLine, fields)) {
            return result;
        }
    }
    if (!bHeaderSeen) {
        parser.Fail(nLine > 0 ? nLine : 1, 1,
                    "no header line: expected channels, compression, scene, resolution, fps, "
                    "audio and optionally bitrate");
        return result;
    }
    result.bOk = true;
    return result;
}

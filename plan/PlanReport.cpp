#include "plan/PlanReport.h"

#include "calculator/engine/CapacityUnits.h"
#include "language/LangString.h"
#include "language/SFStreamConvert.h"
#include "plan/SiteValues.h"
#include "platform/WinTypes.h"
#include "streams/engine/BitrateEstimate.h"
#include "streams/engine/ChannelRowRules.h"

#include <cstdio>

namespace {

std::string Num(double dValue)
{
    char szText[64] = {};
    std::snprintf(szText, sizeof(szText), "%.15g", dValue);
    return szText;
}

std::string JsonString(const std::string& strText)
{
    std::string strOut = "\"";
    for (char c : strText) {
        const unsigned char u = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            strOut += '\\';
            strOut += c;
        } else if (c == '\n') {
            strOut += "\\n";
        } else if (c == '\r') {
            strOut += "\\r";
        } else if (u < 0x20) {
            char szEscape[8] = {};
            std::snprintf(szEscape, sizeof(szEscape), "\\u%04x", u);
            strOut += szEscape;
        } else {
            strOut += c;
        }
    }
    return strOut + "\"";
}

// A field printed as a number when it reads as one.
bool LooksNumeric(const std::string& strText)
{
    if (strText.empty())
        return false;
    std::size_t i = strText[0] == '-' ? 1 : 0;
    bool bDigit = false;
    bool bPoint = false;
    for (; i < strText.size(); ++i) {
        if (strText[i] >= '0' && strText[i] <= '9')
            bDigit = true;
        else if (strText[i] == '.' && !bPoint)
            bPoint = true;
        else if (strText[i] == 'e' || strText[i] == 'E' || strText[i] == '+' || strText[i] == '-')
            continue;
        else
            return false;
    }
    return bDigit;
}

std::string JsonValue(const std::string& strText)
{
    return LooksNumeric(strText) ? strText : JsonString(strText);
}

std::string CsvField(const std::string& strText)
{
    if (strText.find_first_of(",\"\r\n") == std::string::npos)
        return strText;
    std::string strOut = "\"";
    for (char c : strText) {
        if (c == '"')
            strOut += '"';
        strOut += c;
    }
    return strOut + "\"";
}

std::string OneLine(const std::wstring& strValue)
{
    std::wstring strJoined;
    for (std::size_t i = 0; i < strValue.size(); ++i) {
        if (strValue[i] == L'\r' && i + 1 < strValue.size() && strValue[i + 1] == L'\n') {
            strJoined += L' ';
            ++i;
        } else {
            strJoined += strValue[i];
        }
    }
    return CPlanReport::Utf8(strJoined);
}

} // namespace

CPlanReport::CPlanReport(const PlanOptions& options, const std::vector<SiteRow>& rows,
                         const CSiteFigures& figures, const CPlanAnswers& answers)
    : m_options(options), m_rows(rows), m_figures(figures), m_answers(answers)
{
}

std::string CPlanReport::Utf8(const std::wstring& strText)
{
    return SF_SOFT_BASE::CSFStreamConvert(strText.c_str(), CP_UTF8).GetAString();
}

std::string CPlanReport::TotalsLine(const SiteTotals& totals)
{
    // The column header, in lower case where the language has case.
    std::string strChannels = Utf8(LangText(L"Channels"));
    for (char& c : strChannels) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    return Utf8(LangText(L"Total")) + " " + Utf8(FormatChannelCount(totals.nChannels)) + " " +
           strChannels + ", " + Utf8(FormatTotalBitrate(totals.dKbps));
}

std::string CPlanReport::AnswerLine(const PlanAnswer& answer)
{
    return Utf8(answer.strCaption) + " " + OneLine(answer.strValue);
}

std::string CPlanReport::Format() const
{
    switch (m_options.format) {
    case PlanFormat::Json:
        return Json();
    case PlanFormat::Csv:
        return Csv();
    case PlanFormat::Text:
        break;
    }
    return Text();
}

std::vector<std::string> CPlanReport::RowExplanations() const
{
    std::vector<std::string> lines;
    const std::vector<RowFigure>& figures = m_figures.Rows();
    for (std::size_t i = 0; i < figures.size() && i < m_rows.size(); ++i) {
        const SiteRow& row = m_rows[i];
        const RowFigure& figure = figures[i];
        std::string strLine = "line " + std::to_string(figure.nLine) + ": " +
                              std::to_string(figure.nChannels) + " x ";
        if (figure.bTyped) {
            strLine += "typed rate \"" + figure.strText + "\" Kbps, over the estimate " +
                       Num(figure.dEstimate) + ",";
        } else {
            const int nComp = row.nCompression;
            const int nScene = RowSceneEnabled(nComp) ? row.nScene : 0;
            const double dReference = m_options.nArea == 1 ? g_dReferenceKbpsArea1[row.nResolution]
                                                           : g_dReferenceKbpsOther[row.nResolution];
            strLine += std::string(SiteValues::CompressionName(nComp)) +
                       (nScene ? " scene " + std::to_string(nScene) : "") + " " +
                       SiteValues::Narrow(g_szResolutionEntries[row.nResolution - 1]) + " at " +
                       std::to_string(figure.nFrameRate) + " fps: " + Num(dReference) + " * " +
                       std::to_string(figure.nFrameRate) + " / 30 * " +
                       Num(g_dCompressionFactor[nComp][nScene]) +
                       (row.bAudio ? " + 60 (audio)" : "") + " = " + Num(figure.dEstimate) +
                       ", shown \"" + figure.strText + "\" Kbps";
        }
        strLine += " per channel -> " + Num(figure.dRowKbps) + " kbps";
        if (!figure.bCounted)
            strLine += ", its channels not counted (rate \"0\")";
        lines.push_back(strLine);
    }
    return lines;
}

std::string CPlanReport::TotalsExplanation() const
{
    const SiteTotals& totals = m_figures.Totals();
    return "total = " + Num(totals.dKbps) +
           " kbps, shown in kbps, or divided by 1024 to Mbps and "
           "Gbps while above 10000: " +
           Utf8(FormatTotalBitrate(totals.dKbps)) + "; " + std::to_string(totals.nChannels) +
           " channels; area " + std::to_string(m_options.nArea) +
           " (reference rates of VGA and D1: " + (m_options.nArea == 1 ? "512" : "1024") + " Kbps)";
}

std::string CPlanReport::Text() const
{
    const std::string strIndent = "  ";
    std::string strOut = TotalsLine(m_figures.Totals()) + "\n";
    if (m_options.bExplain) {
        for (const std::string& strLine : RowExplanations())
            strOut += strIndent + strLine + "\n";
        strOut += strIndent + TotalsExplanation() + "\n";
    }
    for (const PlanAnswer& answer : m_answers.Answers()) {
        strOut += AnswerLine(answer) + "\n";
        if (m_options.bExplain) {
            for (const std::string& strLine : answer.explanation)
                strOut += strIndent + strLine + "\n";
        }
    }
    return strOut;
}

std::string CPlanReport::Json() const
{
    const SiteTotals& totals = m_figures.Totals();
    std::string strOut = "{\n  \"totals\": {\"channels\": " + std::to_string(totals.nChannels) +
                         ", \"kbps\": " + Num(totals.dKbps) +
                         ", \"text\": " + JsonString(Utf8(FormatTotalBitrate(totals.dKbps))) +
                         ", \"line\": " + JsonString(TotalsLine(totals)) + "},\n  \"rows\": [";
    const std::vector<RowFigure>& figures = m_figures.Rows();
    for (std::size_t i = 0; i < figures.size(); ++i) {
        const RowFigure& f = figures[i];
        strOut += std::string(i ? "," : "") + "\n    {\"line\": " + std::to_string(f.nLine) +
                  ", \"channels\": " + std::to_string(f.nChannels) +
                  ", \"fps\": " + std::to_string(f.nFrameRate) +
                  ", \"estimate\": " + Num(f.dEstimate) +
                  ", \"typed\": " + (f.bTyped ? "true" : "false") +
                  ", \"text\": " + JsonString(f.strText) + ", \"kbps\": " + Num(f.dRowKbps) +
                  ", \"counted\": " + (f.bCounted ? "true" : "false") + "}";
    }
    strOut += figures.empty() ? "],\n" : "\n  ],\n";
    strOut += "  \"answers\": [";
    const std::vector<PlanAnswer>& answers = m_answers.Answers();
    for (std::size_t i = 0; i < answers.size(); ++i) {
        const PlanAnswer& a = answers[i];
        strOut += std::string(i ? "," : "") +
                  "\n    {\"question\": " + JsonString(CPlanAnswers::KindName(a.kind)) +
                  ", \"caption\": " + JsonString(Utf8(a.strCaption)) +
                  ", \"text\": " + JsonString(Utf8(a.strValue));
        for (const auto& field : a.fields)
            strOut += ", " + JsonString(field.first) + ": " + JsonValue(field.second);
        if (m_options.bExplain) {
            strOut += ", \"explain\": [";
            for (std::size_t k = 0; k < a.explanation.size(); ++k)
                strOut += (k ? ", " : "") + JsonString(a.explanation[k]);
            strOut += "]";
        }
        strOut += "}";
    }
    strOut += answers.empty() ? "]" : "\n  ]";
    if (m_options.bExplain) {
        strOut += ",\n  \"explain\": [";
        std::vector<std::string> lines = RowExplanations();
        lines.push_back(TotalsExplanation());
        for (std::size_t k = 0; k < lines.size(); ++k)
            strOut += std::string(k ? "," : "") + "\n    " + JsonString(lines[k]);
        strOut += "\n  ]";
    }
    return strOut + "\n}\n";
}

std::string CPlanReport::Csv() const
{
    const SiteTotals& totals = m_figures.Totals();
    std::string strOut = "question,field,value\n";
    auto add = [&strOut](const std::string& strQuestion, const std::string& strField,
                         const std::string& strValue) {
        strOut +=
            CsvField(strQuestion) + "," + CsvField(strField) + "," + CsvField(strValue) + "\n";
    };
    add("totals", "channels", std::to_string(totals.nChannels));
    add("totals", "kbps", Num(totals.dKbps));
    add("totals", "text", Utf8(FormatTotalBitrate(totals.dKbps)));
    for (const PlanAnswer& a : m_answers.Answers()) {
        const std::string strKind = CPlanAnswers::KindName(a.kind);
        add(strKind, "caption", Utf8(a.strCaption));
        add(strKind, "text", OneLine(a.strValue));
        for (const auto& field : a.fields)
            add(strKind, field.first, field.second);
        if (m_options.bExplain) {
            for (const std::string& strLine : a.explanation)
                add(strKind, "explain", strLine);
        }
    }
    if (m_options.bExplain) {
        for (const std::string& strLine : RowExplanations())
            add("rows", "explain", strLine);
        add("totals", "explain", TotalsExplanation());
    }
    return strOut;
}

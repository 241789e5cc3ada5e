#pragma once
// Writes the totals and the answers as the window's texts, as JSON or as CSV,
// with the reasoning behind each figure on request.

#include "plan/PlanAnswers.h"
#include "plan/PlanOptions.h"
#include "plan/SiteFigures.h"
#include "plan/SiteRow.h"

#include <string>
#include <vector>

class CPlanReport {
public:
    CPlanReport(const PlanOptions& options, const std::vector<SiteRow>& rows,
                const CSiteFigures& figures, const CPlanAnswers& answers);

    // The whole output, UTF-8, ending in a newline.
    std::string Format() const;

    // "Total 12 channels, 3.45 Mbps" in the chosen language.
    static std::string TotalsLine(const SiteTotals& totals);
    // Caption and value as the window shows them, on one line: a value on
    // two lines is joined by a blank.
    static std::string AnswerLine(const PlanAnswer& answer);

    static std::string Utf8(const std::wstring& strText);

private:
    std::string Text() const;
    std::string Json() const;
    std::string Csv() const;
    std::vector<std::string> RowExplanations() const;
    std::string TotalsExplanation() const;

    const PlanOptions& m_options;
    const std::vector<SiteRow>& m_rows;
    const CSiteFigures& m_figures;
    const CPlanAnswers& m_answers;
};

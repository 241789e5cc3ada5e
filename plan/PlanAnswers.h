#pragma once
// The answers of the four calculator modes for the totals of a site, formed
// by the window's own arithmetic, with the figures that went into each.

#include "plan/PlanOptions.h"
#include "plan/SiteFigures.h"

#include <string>
#include <utility>
#include <vector>

enum class AnswerKind { DiskRequirement, RecordingDays, RaidCapacity, DeviceCount };

struct PlanAnswer {
    AnswerKind kind = AnswerKind::DiskRequirement;
    std::wstring strCaption; // the window's caption, looked up
    std::wstring strValue;   // the window's value text
    // Named numbers and words of the answer, in a fixed order, for the
    // machine-readable formats; values are already printed.
    std::vector<std::pair<std::string, std::string>> fields;
    // How the answer was formed, one line each.
    std::vector<std::string> explanation;
};

class CPlanAnswers {
public:
    // The dictionaries must be chosen before: the words are looked up here.
    CPlanAnswers(const PlanOptions& options, const SiteTotals& totals);

    const std::vector<PlanAnswer>& Answers() const { return m_answers; }

    // Stable names of the answers in the machine-readable formats.
    static const char* KindName(AnswerKind kind);

private:
    PlanAnswer DiskRequirement(const PlanOptions& o, const SiteTotals& t) const;
    PlanAnswer RecordingDays(const PlanOptions& o, const SiteTotals& t) const;
    PlanAnswer RaidCapacity(const PlanOptions& o) const;
    PlanAnswer DeviceCount(const PlanOptions& o, const SiteTotals& t) const;

    std::vector<PlanAnswer> m_answers;
};

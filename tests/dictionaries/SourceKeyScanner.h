#pragma once

#include <set>
#include <string>

// Collects the literal keys that source files hand to GetLangString, so the
// dictionaries can be checked against what the code really asks for.
class CSourceKeyScanner {
public:
    // Keys of GetLangString(L"...") calls in one source text. Comments and
    // other string literals are skipped; calls whose first argument is no
    // wide literal are ignored, as is the empty key.
    static std::set<std::string> ExtractKeys(const std::string& text);

    // Every *.cpp and *.h below root, leaving out the tests, hidden folders
    // and build trees. filesScanned tells how many files were read.
    static std::set<std::string> ScanTree(const std::string& root, int& filesScanned);
};

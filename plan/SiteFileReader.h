#pragma once
// Reads a site file: CSV with a header line naming the columns, one line per
// row of the channel table, empty lines and '#' comments allowed.

#include "plan/SiteRow.h"

#include <string>
#include <vector>

struct SiteFileError {
    int nLine = 0;   // 1-based
    int nColumn = 0; // 1-based, in characters
    std::string strMessage;
};

struct SiteFileResult {
    bool bOk = false;
    std::vector<SiteRow> rows;
    SiteFileError error; // the first fault, when bOk is false
};

class CSiteFileReader {
public:
    // More rows could carry the channel count past a 32-bit int.
    static const int kMaxRows = 100000;

    // The whole text of a file; never throws, stops at the first fault.
    static SiteFileResult Parse(const std::string& strText);

    // Column names in the order they are documented.
    static const char* const kColumnNames[];
    static const int kColumnCount = 7;
};

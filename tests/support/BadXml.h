#pragma once
// Broken inputs shared by the tests of every file the program reads.

#include <string>
#include <vector>

struct BadXmlCase {
    const char* name;
    std::string content; // empty name of file content means "no file at all"
    bool present;
};

// Each case is input that no reader may crash or hang on; none of them
// holds a usable entry.
std::vector<BadXmlCase> BadXmlCases();

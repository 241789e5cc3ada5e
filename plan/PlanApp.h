#pragma once
// The program: options, site file, answers, output, exit status.

#include <iosfwd>
#include <string>
#include <vector>

class CPlanApp {
public:
    enum ExitCode { EXIT_ANSWERED = 0, EXIT_UNREADABLE = 1, EXIT_BAD_INPUT = 2 };

    // args without the program's name. Nothing goes to out unless the run
    // answers; every fault is one line on err.
    static int Run(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

    // The whole file, or false with the reason.
    static bool ReadWholeFile(const std::string& strPath, std::string& strText,
                              std::string& strWhy);

private:
    // The recordable percentage of a settings file, read as the window reads
    // its own "config.xml".
    static bool ReadConfigPercentage(const std::string& strPath, unsigned& nPercent,
                                     std::string& strWhy);
};

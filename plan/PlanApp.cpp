#include "plan/PlanApp.h"

#include "Config/ConfigXMLPersistImp.h"
#include "Config/VexUISetting.h"
#include "language/LangString.h"
#include "plan/PlanAnswers.h"
#include "plan/PlanOptions.h"
#include "plan/PlanReport.h"
#include "plan/SiteFigures.h"
#include "plan/SiteFileReader.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <iostream>
#include <sys/stat.h>
#include <unistd.h>

#ifndef TALLIX_VERSION
#define TALLIX_VERSION "0"
#endif

namespace {

const char kProgram[] = "tallix-plan";

// Holds the working directory of the caller and goes back to it.
class CWorkingDirGuard {
public:
    CWorkingDirGuard() : m_fd(::open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}
    ~CWorkingDirGuard()
    {
        if (m_fd >= 0) {
            if (::fchdir(m_fd) != 0)
                std::perror(kProgram);
            ::close(m_fd);
        }
    }
    CWorkingDirGuard(const CWorkingDirGuard&) = delete;
    CWorkingDirGuard& operator=(const CWorkingDirGuard&) = delete;
    bool Ok() const { return m_fd >= 0; }

private:
    int m_fd;
};

} // namespace

bool CPlanApp::ReadWholeFile(const std::string& strPath, std::string& strText, std::string& strWhy)
{
    FILE* file = strPath == "-" ? stdin : std::fopen(strPath.c_str(), "rb");
    if (!file) {
        strWhy = std::strerror(errno);
        return false;
    }
    struct stat info;
    if (fstat(fileno(file), &info) == 0 && S_ISDIR(info.st_mode)) {
        if (file != stdin)
            std::fclose(file);
        strWhy = "it is a directory";
        return false;
    }
    strText.clear();
    char buffer[65536];
    std::size_t nRead = 0;
    while ((nRead = std::fread(buffer, 1, sizeof(buffer), file)) > 0)
        strText.append(buffer, nRead);
    const bool bFailed = std::ferror(file) != 0;
    if (bFailed)
        strWhy = std::strerror(errno);
    if (file != stdin)
        std::fclose(file);
    return !bFailed;
}

bool CPlanApp::ReadConfigPercentage(const std::string& strPath, unsigned& nPercent,
                                    std::string& strWhy)
{
    std::string strText;
    if (!ReadWholeFile(strPath, strText, strWhy))
        return false;
    // The settings reader takes "config.xml" of the working directory: give it
    // a directory that holds this file under that name and nothing else.
    char szDir[] = "/tmp/tallix-plan-XXXXXX";
    if (!::mkdtemp(szDir)) {
        strWhy = std::strerror(errno);
        return false;
    }
    const std::string strCopy = std::string(szDir) + "/config.xml";
    bool bOk = false;
    if (FILE* copy = std::fopen(strCopy.c_str(), "wb")) {
        bOk = std::fwrite(strText.data(), 1, strText.size(), copy) == strText.size();
        bOk = std::fclose(copy) == 0 && bOk;
    }
    if (bOk) {
        CWorkingDirGuard back;
        if (back.Ok() && ::chdir(szDir) == 0) {
            g_UISetting.SetPersistent(new CConfigXMLPersistImp(std::string()));
            g_UISetting.Load();
            nPercent = g_UISetting.m_nRecordblePersentage;
        } else {
            bOk = false;
        }
    }
    if (!bOk)
        strWhy = "could not take it in";
    std::remove(strCopy.c_str());
    ::rmdir(szDir);
    return bOk;
}

int CPlanApp::Run(const std::vector<std::string>& args, std::ostream& out, std::ostream& err)
{
    const PlanOptionsResult parsed = CPlanOptionParser::Parse(args);
    if (!parsed.bOk) {
        err << kProgram << ": " << parsed.strError << "\n";
        return EXIT_BAD_INPUT;
    }
    PlanOptions options = parsed.options;
    if (options.bHelp) {
        out << CPlanOptionParser::Usage();
        return EXIT_ANSWERED;
    }
    if (options.bVersion) {
        out << kProgram << " " << TALLIX_VERSION << "\n";
        return EXIT_ANSWERED;
    }

    if (!options.strConfigFile.empty() && !options.bPercentGiven) {
        std::string strWhy;
        if (!ReadConfigPercentage(options.strConfigFile, options.nPercent, strWhy)) {
            err << kProgram << ": cannot read \"" << options.strConfigFile << "\": " << strWhy
                << "\n";
            return EXIT_UNREADABLE;
        }
    }

    std::string strText;
    std::string strWhy;
    if (!ReadWholeFile(options.strSiteFile, strText, strWhy)) {
        err << kProgram << ": cannot read \"" << options.strSiteFile << "\": " << strWhy << "\n";
        return EXIT_UNREADABLE;
    }
    const SiteFileResult site = CSiteFileReader::Parse(strText);
    if (!site.bOk) {
        err << (options.strSiteFile == "-" ? std::string("<stdin>") : options.strSiteFile) << ":"
            << site.error.nLine << ":" << site.error.nColumn << ": " << site.error.strMessage
            << "\n";
        return EXIT_BAD_INPUT;
    }

    // The dictionary is picked at the first lookup, beside the executable.
    g_nLanguage = options.nLanguage;
    const CSiteFigures figures(site.rows, options.nArea);
    const CPlanAnswers answers(options, figures.Totals());
    out << CPlanReport(options, site.rows, figures, answers).Format();
    out.flush();
    return out ? EXIT_ANSWERED : EXIT_UNREADABLE;
}

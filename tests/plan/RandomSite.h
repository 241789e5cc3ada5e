#pragma once
// Random site files from a fixed seed, each with the questions asked of it,
// both as tallix-plan's options and as the window's inputs.

#include "plan/SiteRow.h"
#include "tests/plan/WindowPlanDriver.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

struct SiteCase {
    std::vector<SiteRow> rows;
    std::string strCsv;
    // Disk requirement, recording days and RAID capacity in one run; the
    // device count in another, since --raid-days takes over --raid.
    std::vector<std::string> firstArgs;
    std::vector<std::string> deviceArgs;
    WindowInputs inputs;
};

class CRandomSite {
public:
    explicit CRandomSite(std::uint32_t nSeed) : m_random(nSeed) {}
    SiteCase Next();

    // The CSV text of rows, in the plain column order.
    static std::string Csv(const std::vector<SiteRow>& rows);
    // tallix-plan's options for the site's window inputs.
    static void Ask(SiteCase& site);

private:
    int Pick(int nCount); // 0 to nCount - 1
    SiteRow Row();
    std::string Spelled(const std::string& strName);

    std::mt19937 m_random;
};

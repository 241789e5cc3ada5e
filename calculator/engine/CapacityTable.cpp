#include "calculator/engine/CapacityTable.h"

#include "calculator/engine/NumericLocaleGuard.h"
#include "platform/WinCodePage.h"

#include <cstdlib>
#include <string>

const double g_aCapacityNominal[kCapacityItemCount] = {
    32, 64, 128, 1024, 2048, 3072, 4096, 6144, 8192, 10240, 12288, 14336, 16384,
};

const double g_aCapacityReal[kCapacityItemCount] = {
    29.80232,   59.60464,   119.20928, 953.67424,   1907.34848,  2861.02272,  3814.69696,
    5722.04544, 7629.39392, 9536.7424, 11444.09088, 13351.43936, 15258.78784,
};

namespace {

// The edit is read with a count of 9: eight characters and the terminator.
const std::size_t kCustomTextChars = 8;

} // namespace

double CapacityRealGB(int nIndex)
{
    if (nIndex < 0 || nIndex >= kCapacityItemCount)
        return 0.0;
    return g_aCapacityReal[nIndex];
}

double CustomCapacityGB(const wchar_t* pszText, bool bInTB)
{
    std::wstring strWide = pszText ? pszText : L"";
    if (strWide.size() > kCustomTextChars)
        strWide.resize(kCustomTextChars);

    // Room for eight characters of any width in the narrow code page.
    char szNarrow[64] = {};
    if (WideCharToMultiByte(CP_ACP, 0, strWide.c_str(), -1, szNarrow, sizeof(szNarrow), nullptr,
                            nullptr) == 0)
        szNarrow[0] = '\0';
    szNarrow[sizeof(szNarrow) - 1] = '\0';

    double dValue = 0.0;
    {
        CNumericLocaleGuard locale;
        dValue = std::atof(szNarrow);
    }
    if (bInTB)
        return dValue * kBinaryGBPerGB * 1024;
    return dValue * kBinaryGBPerGB;
}

double RawCapacityGB(bool bCustomCapacity, const wchar_t* pszCustomText, bool bCustomInTB,
                     int nCapacityIndex)
{
    if (bCustomCapacity)
        return CustomCapacityGB(pszCustomText, bCustomInTB);
    return CapacityRealGB(nCapacityIndex);
}

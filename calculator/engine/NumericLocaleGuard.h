#pragma once
// Holds the calling thread on the "C" locale for its lifetime, so that numbers
// read and written by the calculator always use a decimal point, whatever the
// user's locale (Qt adopts the environment's locale at start).

#include <clocale>
#include <locale.h>

class CNumericLocaleGuard {
public:
    CNumericLocaleGuard();
    ~CNumericLocaleGuard();

    CNumericLocaleGuard(const CNumericLocaleGuard&) = delete;
    CNumericLocaleGuard& operator=(const CNumericLocaleGuard&) = delete;

private:
    locale_t m_previous;
};

#include "calculator/engine/NumericLocaleGuard.h"

namespace {

locale_t ClassicLocale()
{
    // Made once and kept for the life of the process.
    static const locale_t s_locale = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(0));
    return s_locale;
}

} // namespace

CNumericLocaleGuard::CNumericLocaleGuard() : m_previous(static_cast<locale_t>(0))
{
    const locale_t classic = ClassicLocale();
    if (classic != static_cast<locale_t>(0))
        m_previous = uselocale(classic);
}

CNumericLocaleGuard::~CNumericLocaleGuard()
{
    if (m_previous != static_cast<locale_t>(0))
        uselocale(m_previous);
}

#include "calculator/engine/SaturatingTruncate.h"

#include <climits>
#include <cmath>

long long TruncateToInt64(double dValue)
{
    if (std::isnan(dValue))
        return 0;
    // 2^63 is exact in a double; LLONG_MAX is not.
    const double dLimit = 9223372036854775808.0;
    if (dValue >= dLimit)
        return LLONG_MAX;
    if (dValue < -dLimit)
        return LLONG_MIN;
    return static_cast<long long>(dValue);
}

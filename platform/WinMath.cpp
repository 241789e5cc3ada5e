#include "platform/WinMath.h"

#include <cstdint>
#include <limits>

int MulDiv(int number, int numerator, int denominator)
{
    if (denominator == 0)
        return -1;
    const bool negative = ((number < 0) ^ (numerator < 0)) ^ (denominator < 0);
    const auto magnitude = [](int v) {
        return static_cast<std::uint64_t>(v < 0 ? -static_cast<std::int64_t>(v) : v);
    };
    const std::uint64_t divisor = magnitude(denominator);
    // Adding half the divisor before dividing rounds halves away from zero.
    const std::uint64_t quotient =
        (magnitude(number) * magnitude(numerator) + divisor / 2) / divisor;
    const std::int64_t result =
        negative ? -static_cast<std::int64_t>(quotient) : static_cast<std::int64_t>(quotient);
    if (result > std::numeric_limits<std::int32_t>::max() ||
        result < std::numeric_limits<std::int32_t>::min())
        return -1;
    return static_cast<int>(result);
}

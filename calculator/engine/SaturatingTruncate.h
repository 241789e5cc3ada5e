#pragma once
// Truncation of a double towards zero to a signed 64-bit integer.

// Values beyond the range give the nearest limit and NaN gives 0, where a
// plain cast would be undefined.
long long TruncateToInt64(double dValue);

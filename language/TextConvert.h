#pragma once
// Conversions into buffers the caller owns.

int WideToNarrowInto(const wchar_t* text, char* buffer, int bufferLength, unsigned int codePage);
int NarrowToWideInto(const char* text, wchar_t* buffer, int bufferLength, unsigned int codePage);
void IntToWideInto(int value, wchar_t* buffer);

// Decimal digits only, no sign, no overflow check. Returns 1 when the text
// ends (or maxLength characters are read), 0 at the first non-digit; value
// holds what was read so far.
int ParseWideDigits(const wchar_t* text, int* value, int maxLength);

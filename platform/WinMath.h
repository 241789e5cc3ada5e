#pragma once

// (number * numerator) / denominator with a 64-bit intermediate, rounded half
// away from zero; -1 when the denominator is 0 or the result leaves 32 bits.
int MulDiv(int number, int numerator, int denominator);

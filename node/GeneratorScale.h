#pragma once

#include <cstdint>

// Between a dial of the generator's panel, a range and the number that they mean. An exponent that
// no range has counts as the nearest one.

/// The number at the dial's position, 1000 of which make the range's largest.
float dialNumber(int position, std::int32_t exponent);

/// The position that shows `number`, not rounded up; what an int cannot hold is clamped, NaN is 0.
int dialPosition(float number, std::int32_t exponent);

/// Decimals with which a number of the range is shown: two behind the range's first digit, none for
/// ranges of 100 and more.
int rangeDecimals(std::int32_t exponent);

/// A hundredth of the range.
double rangeStep(std::int32_t exponent);

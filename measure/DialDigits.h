#pragma once

#include <QString>

/// What a seven-segment display shows, and how many digits it needs for it.
struct DialDigits
{
    int count = 0;
    QString text;
};

inline constexpr int maxDialPrecision = 10; ///< places after the point
inline constexpr int firstDialDigits = 6;
inline constexpr const char* firstDialText = "100.00"; ///< before the first value

/// A number of decimals as it is used: from 0 to `maxDialPrecision`.
int boundedPrecision(int precision);

/// The display of `value`: digits before the point, at least one, the point, the decimals, and one
/// more for a sign. Where rounding brings a further digit, as of 9.999 with two decimals, it gets
/// its place. A value that is infinite or no number shows dashes.
DialDigits dialDigits(double value, int precision);

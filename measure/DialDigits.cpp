#include "measure/DialDigits.h"

#include <algorithm>
#include <cmath>

int boundedPrecision(int precision)
{
    return std::clamp(precision, 0, maxDialPrecision);
}

DialDigits dialDigits(double value, int precision)
{
    const int decimals = boundedPrecision(precision);
    if (!std::isfinite(value)) {
        return {decimals + 2, QString(decimals + 2, QLatin1Char('-'))};
    }
    // The logarithm of 0 is minus infinity, and that of small numbers negative: at least one digit.
    const double wholeDigits = std::max(std::log10(std::abs(value)) + 1.0, 1.0);
    const int digits = static_cast<int>(wholeDigits); // at most 309
    DialDigits shown;
    shown.text = QString::asprintf("%*.*f", digits, decimals, value);
    shown.count = decimals + 1 + digits + (value < 0.0 ? 1 : 0);
    shown.count = std::max(shown.count, static_cast<int>(shown.text.size()));
    return shown;
}

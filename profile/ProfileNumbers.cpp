#include "profile/ProfileNumbers.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zul {

namespace {

bool isAsciiDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

} // namespace

int decimalNumber(const QString& text)
{
    constexpr int low = std::numeric_limits<int>::min();
    constexpr int high = std::numeric_limits<int>::max();
    bool isNumber = false;
    const qlonglong number = text.toLongLong(&isNumber, 10);
    if (isNumber) {
        return static_cast<int>(std::clamp<qlonglong>(number, low, high));
    }
    // Of digits alone, but more than 64 bits hold?
    const QString digits = text.trimmed();
    const bool isNegative = digits.startsWith(QLatin1Char('-'));
    const bool hasSign = isNegative || digits.startsWith(QLatin1Char('+'));
    const auto first = digits.begin() + (hasSign ? 1 : 0);
    if (first == digits.end() || !std::all_of(first, digits.end(), isAsciiDigit)) {
        return 0;
    }
    return isNegative ? low : high;
}

double realNumber(const QString& text)
{
    const double number = text.toDouble();
    return std::isfinite(number) ? number : 0.0;
}

void setPosition(const QString& text, std::uint32_t& byte, std::uint32_t& bit)
{
    const QLatin1Char point('.');
    const int first = text.indexOf(point);
    const int second = first < 0 ? -1 : text.indexOf(point, first + 1);
    const int bitLength = second < 0 ? -1 : second - first - 1;
    byte = static_cast<std::uint32_t>(decimalNumber(text.left(first)));
    bit = first < 0 ? 0 : static_cast<std::uint32_t>(decimalNumber(text.mid(first + 1, bitLength)));
}

} // namespace zul

#include "profile/ProfileNumbers.h"

#include <QStringRef>
#include <QVector>

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
    const QVector<QStringRef> parts = text.splitRef(QLatin1Char('.'));
    byte = static_cast<std::uint32_t>(decimalNumber(parts.value(0).toString()));
    bit = static_cast<std::uint32_t>(decimalNumber(parts.value(1).toString()));
}

} // namespace zul

#include "profile/ProfileNumbers.h"

#include <QStringRef>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <limits>

namespace zul {

int decimalNumber(const QString& text)
{
    bool isNumber = false;
    const qlonglong number = text.toLongLong(&isNumber, 10);
    if (!isNumber) {
        // Of digits alone, but more than 64 bits hold?
        const QString digits = text.trimmed();
        const bool isNegative = digits.startsWith(QLatin1Char('-'));
        const auto first = digits.begin() + (isNegative ? 1 : 0);
        const bool isWhole = first != digits.end() &&
                             std::all_of(first, digits.end(), [](QChar c) { return c.isDigit(); });
        if (!isWhole) {
            return 0;
        }
        return isNegative ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
    }
    constexpr qlonglong low = std::numeric_limits<int>::min();
    constexpr qlonglong high = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(number, low, high));
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

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
        // Of all digits, but too many.
        const double large = realNumber(text);
        const bool isWhole = std::all_of(text.begin(), text.end(), [](QChar character) {
            return character.isDigit() || character == QLatin1Char('-');
        });
        if (!isWhole || large == 0.0) {
            return 0;
        }
        return large < 0.0 ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
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

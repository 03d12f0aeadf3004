#include "gui/controls/NumberText.h"

#include <QRegularExpression>

#include <algorithm>
#include <cstdint>
#include <limits>

namespace gui {

QString numberText(int value, int numberType)
{
    switch (numberType) {
    case 0:
        return QString::asprintf("%d", value);
    case 1:
        return QString::asprintf("0x%X", static_cast<unsigned>(value));
    default:
        return {};
    }
}

qlonglong wideNumberFromText(const QString& text)
{
    constexpr int detectBase = 0;
    const QString number = text.trimmed();
    bool isNumber = false;
    const qlonglong value = number.toLongLong(&isNumber, detectBase);
    // Digits of their base alone: "08" is no octal number, and no large one either.
    static const QRegularExpression digits(
        QStringLiteral("^(0[xX][0-9a-fA-F]+|0[0-7]*|[1-9][0-9]*)$"));
    const bool isTooLarge = !isNumber && digits.match(number).hasMatch();
    return isTooLarge ? std::numeric_limits<qlonglong>::max() : value;
}

int numberFromText(const QString& text)
{
    const QString number = text.trimmed();
    const qlonglong value = wideNumberFromText(number);
    constexpr qlonglong allBits = std::numeric_limits<std::uint32_t>::max();
    if (value <= allBits && number.startsWith(QLatin1String("0x"), Qt::CaseInsensitive)) {
        return static_cast<int>(static_cast<std::uint32_t>(value));
    }
    constexpr qlonglong low = std::numeric_limits<int>::min();
    constexpr qlonglong high = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(value, low, high));
}

} // namespace gui

#include "edit/TypedText.h"

#include <QLocale>

#include <cmath>

namespace zul {

QString oneLine(const QString& text)
{
    QString line = text;
    for (QChar& letter : line) {
        const auto category = letter.category();
        if (letter == QLatin1Char('\n') || letter == QLatin1Char('\r') ||
            category == QChar::Separator_Line || category == QChar::Separator_Paragraph) {
            letter = QLatin1Char(' ');
        }
    }
    return line;
}

std::optional<double> typedNumber(const QString& text)
{
    bool isNumber = false;
    const double number = text.trimmed().toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number)) {
        return std::nullopt;
    }
    return number;
}

QString numberText(double number)
{
    // From here to there without an exponent.
    constexpr double smallest = 1e-6;
    constexpr double largest = 1e15;
    const double size = std::fabs(number);
    const bool isPlain = size == 0.0 || (size >= smallest && size < largest);
    return QString::number(number, isPlain ? 'f' : 'g', QLocale::FloatingPointShortest);
}

} // namespace zul

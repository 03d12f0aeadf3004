#include "measure/DialScale.h"

#include "measure/DialDigits.h"

#include <algorithm>
#include <cmath>

double dialShare(double value, double minimum, double maximum)
{
    // The length of a scale of all numbers is not one of them: it is measured in halves.
    const double unit = std::isfinite(maximum - minimum) ? 1.0 : 0.5;
    const double above = value * unit - minimum * unit;
    const double length = maximum * unit - minimum * unit;
    if (length == 0.0) {
        return above > 0.0 ? 1.0 : 0.0;
    }
    const double share = above / length;
    if (!(share > 0.0)) { // also when it is no number
        return 0.0;
    }
    return std::min(share, 1.0);
}

double dialAngle(double value, double minimum, double maximum)
{
    return dialFirstAngle + dialShare(value, minimum, maximum) * dialSweep;
}

QString dialValueText(double value, int precision)
{
    return QString::asprintf("%.*f", boundedPrecision(precision), value);
}

QString dialTitle(const QString& name, const QString& unit)
{
    return name + QStringLiteral(" [") + unit + QLatin1Char(']');
}

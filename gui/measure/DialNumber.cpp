#include "gui/measure/DialNumber.h"

#include "measure/DialDigits.h"

#include <QPalette>

namespace gui {

namespace {

constexpr int minimumWidthPixels = 220;
constexpr int minimumHeightPixels = 60;

} // namespace

DialNumber::DialNumber(QWidget* parent) : QLCDNumber(parent), m_text(QLatin1String(firstDialText))
{
    setDigitCount(firstDialDigits);
    setSegmentStyle(QLCDNumber::Flat);
    setDecMode();
    setMinimumSize(minimumWidthPixels, minimumHeightPixels);
    setAutoFillBackground(true);
    display(m_text);
}

void DialNumber::setColor(const QColor& color)
{
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, color);
    colors.setColor(QPalette::Window, Qt::black);
    setPalette(colors);
}

void DialNumber::showValue(double value, int precision)
{
    const DialDigits shown = dialDigits(value, precision);
    if (shown.count != digitCount()) {
        setDigitCount(shown.count);
        m_text.clear(); // the display dropped what it showed
    }
    if (shown.text != m_text) {
        m_text = shown.text;
        display(m_text);
    }
}

} // namespace gui

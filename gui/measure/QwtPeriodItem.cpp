#include "gui/measure/QwtPeriodItem.h"

#include "core/Clock.h"
#include "core/LowPass.h"
#include "gui/controls/Colors.h"

#include <QPainter>

namespace gui {

namespace {

constexpr QColor bandColor(200, 200, 0);
constexpr QColor lineColor(200, 0, 0);
constexpr QColor borderColor(200, 200, 200);

} // namespace

QwtPeriodItem::QwtPeriodItem(QWidget* parent) : QWidget(parent), m_lastWall(zul::wallClock())
{
    setAttribute(Qt::WA_OpaquePaintEvent); // it fills its rectangle: nothing is drawn below it
}

void QwtPeriodItem::setBackground(const QColor& background)
{
    if (background != m_background) {
        m_background = background;
        update();
    }
}

void QwtPeriodItem::startAt(double period)
{
    if (period != m_period) {
        update();
    }
    m_filtered = period;
    m_period = period;
}

void QwtPeriodItem::setPeriod(double period, double minimum, double maximum, double scale)
{
    const double now = zul::wallClock();
    const int lineBefore = band().line;
    const bool isOther =
        period != m_period || minimum != m_minimum || maximum != m_maximum || scale != m_scale;
    zul::lowPass(period, zul::measuredGain, now - m_lastWall, m_filtered);
    m_lastWall = now;
    m_period = period;
    m_minimum = minimum;
    m_maximum = maximum;
    m_scale = scale;
    if (isOther || band().line != lineBefore) {
        update();
    }
}

PeriodBand QwtPeriodItem::band() const
{
    return periodBand(m_minimum, m_maximum, m_filtered, m_scale, width());
}

void QwtPeriodItem::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_background);
    const PeriodBand shown = band();
    painter.fillRect(shown.left, 0, shown.width, height(), bandColor);
    painter.fillRect(shown.line, 0, 1, height(), lineColor);
    painter.setPen(colors::normalText);
    painter.drawText(rect(), Qt::AlignCenter, periodText(m_minimum, m_period, m_maximum));
    painter.setPen(borderColor);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace gui

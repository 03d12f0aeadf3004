#include "gui/controls/QwtBarItem.h"

#include "core/Clock.h"
#include "core/LowPass.h"
#include "gui/controls/Colors.h"

#include <QPainter>

#include <algorithm>

namespace gui {

namespace {

constexpr QColor barColor(100, 200, 100);

} // namespace

QwtBarItem::QwtBarItem(int index, QWidget* parent)
    : QWidget(parent), m_index(index), m_lastTime(zul::wallClock())
{
    setAttribute(Qt::WA_OpaquePaintEvent); // it fills its rectangle: nothing is drawn below it
}

void QwtBarItem::setBackground(const QColor& background)
{
    if (background != m_background) {
        m_background = background;
        update();
    }
}

void QwtBarItem::setValue(double rate, std::uint32_t maximum)
{
    const double now = zul::wallClock();
    double state = m_rate;
    zul::lowPass(rate, zul::measuredGain, now - m_lastTime, state);
    m_lastTime = now;
    showValues(state, maximum);
}

void QwtBarItem::setRate(double rate, std::uint32_t maximum)
{
    m_lastTime = zul::wallClock();
    showValues(rate, maximum);
}

void QwtBarItem::showValues(double rate, std::uint32_t maximum)
{
    const Shown before = shown();
    m_rate = rate;
    m_maximum = std::max(maximum, std::uint32_t{1});
    const Shown after = shown();
    if (after.barWidth != before.barWidth || after.text != before.text) {
        update();
    }
}

QwtBarItem::Shown QwtBarItem::shown() const
{
    const double share = std::clamp(m_rate / static_cast<double>(m_maximum), 0.0, 1.0);
    return {QString::asprintf("%.0f Msg/s", m_rate), static_cast<int>(width() * share)};
}

void QwtBarItem::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_background);
    const Shown values = shown();
    painter.fillRect(0, 0, values.barWidth, height(), barColor);
    painter.setPen(colors::normalText);
    painter.drawText(rect(), Qt::AlignCenter, values.text);
}

} // namespace gui

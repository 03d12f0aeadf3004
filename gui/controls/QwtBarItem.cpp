#include "gui/controls/QwtBarItem.h"

#include "core/Clock.h"
#include "core/LowPass.h"

#include <QPainter>

#include <algorithm>

namespace gui {

namespace {

constexpr double gain = 0.3;
constexpr QColor barColor(100, 200, 100);

} // namespace

QwtBarItem::QwtBarItem(int index, QWidget* parent)
    : QWidget(parent), m_index(index), m_lastTime(zul::wallClock())
{
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
    zul::lowPass(rate, gain, now - m_lastTime, m_rate);
    m_lastTime = now;
    m_maximum = std::max(maximum, std::uint32_t{1});
    update();
}

void QwtBarItem::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_background);
    const double share = std::clamp(m_rate / static_cast<double>(m_maximum), 0.0, 1.0);
    painter.fillRect(0, 0, static_cast<int>(width() * share), height(), barColor);
    painter.drawText(rect(), Qt::AlignCenter, QString::asprintf("%.0f Msg/s", m_rate));
}

} // namespace gui

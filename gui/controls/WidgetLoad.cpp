#include "gui/controls/WidgetLoad.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int barHeight = 18; // pixels
constexpr int fontPixels = 11;
constexpr double halfLoad = 50.0; // percent
constexpr double fullLoad = 100.0;
constexpr double colorSlope = 5.0; // steps a percent
constexpr QColor liveBackground(230, 255, 230);
constexpr QColor idleBackground(240, 240, 240);

int colorComponent(double value)
{
    constexpr double most = 255.0;
    return static_cast<int>(std::clamp(value, 0.0, most));
}

} // namespace

WidgetLoad::WidgetLoad(QWidget* parent) : QFrame(parent)
{
    setFixedHeight(barHeight);
}

void WidgetLoad::set(std::uint32_t messageRate, double load)
{
    m_messageRate = messageRate;
    m_load = load > 0.0 ? std::min(load, fullLoad) : 0.0; // NaN counts as 0
    repaint();
}

QColor WidgetLoad::barColor(double load)
{
    if (load < halfLoad) {
        return {colorComponent(load * colorSlope), 255, 0};
    }
    return {255, colorComponent((fullLoad - load) * colorSlope), 0};
}

QString WidgetLoad::text() const
{
    return QString::asprintf("%d/s   %.1f %%", static_cast<int>(m_messageRate), m_load);
}

QSize WidgetLoad::sizeHint() const
{
    constexpr int usualWidth = 110;
    return {usualWidth, barHeight};
}

void WidgetLoad::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_messageRate != 0 ? liveBackground : idleBackground);
    painter.fillRect(0, 0, static_cast<int>(m_load * 0.01 * width()), height(), barColor(m_load));
    QFont small = font();
    small.setPixelSize(fontPixels);
    painter.setFont(small);
    painter.setPen(Qt::black);
    painter.drawText(rect(), Qt::AlignCenter, text());
    painter.setPen(Qt::white);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void WidgetLoad::mouseDoubleClickEvent(QMouseEvent*)
{
    emit signalDoubleClicked();
}

#include "gui/measure/WidgetDial.h"

#include "gui/controls/Look.h"
#include "measure/DialScale.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>

namespace {

constexpr int minimumExtent = 100; // pixels
constexpr QColor minorMarkColor(100, 100, 100);
constexpr double textMargin = 16.0; // of a long text, both sides together

} // namespace

WidgetDial::WidgetDial(QWidget* parent) : QFrame(parent)
{
    setFrameStyle(static_cast<int>(QFrame::Box) | static_cast<int>(QFrame::Sunken));
    setAutoFillBackground(true);
    setMinimumSize(minimumExtent, minimumExtent);
}

void WidgetDial::setMinimum(double minimum)
{
    m_minimum = minimum;
    update();
}

void WidgetDial::setMaximum(double maximum)
{
    m_maximum = maximum;
    update();
}

void WidgetDial::setValue(double value)
{
    m_value = value;
    m_hasValue = true;
    update();
}

void WidgetDial::setPrecision(int precision)
{
    m_precision = precision;
    update();
}

void WidgetDial::setName(const QString& name)
{
    m_name = name;
    update();
}

void WidgetDial::setUnit(const QString& unit)
{
    m_unit = unit;
    update();
}

void WidgetDial::setColor(const QColor& color)
{
    m_color = color;
    update();
}

void WidgetDial::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(width() / 2.0, height() / 2.0);
    const double scale = std::min(width(), height()) / dialExtent;
    painter.scale(scale, scale);
    drawMarks(painter, dialMinorMarks, minorMarkColor);
    drawMarks(painter, dialMajorMarks, Qt::black);
    drawNeedle(painter);
    painter.setPen(m_color);
    QFont font = painter.font();
    font.setWeight(gui::boldWeight);
    painter.setFont(font);
    drawText(painter, dialValuePlace, dialValueText(m_value, m_precision));
    drawText(painter, dialNamePlace, dialTitle(m_name, m_unit));
}

void WidgetDial::drawMarks(QPainter& painter, const DialMarks& marks, const QColor& color)
{
    painter.setPen(color);
    for (int i = 0; i < marks.count; ++i) {
        painter.save();
        painter.rotate(dialFirstAngle + i * marks.stepAngle);
        painter.drawLine(QPointF(0.0, -marks.from), QPointF(0.0, -marks.to));
        painter.restore();
    }
}

void WidgetDial::drawNeedle(QPainter& painter) const
{
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_color);
    painter.rotate(m_hasValue ? dialAngle(m_value, m_minimum, m_maximum) : dialFirstAngle);
    QPolygonF needle;
    for (const DialPoint& point : dialNeedle) {
        needle.append(QPointF(point.x, point.y));
    }
    painter.drawConvexPolygon(needle);
    painter.restore();
}

void WidgetDial::drawText(QPainter& painter, const DialTextPlace& place, const QString& text)
{
    const QRectF box(place.left, place.top, place.width, place.height);
    QFont font = painter.font();
    font.setPointSize(place.pointSize);
    // A number that is cut at its ends would look like another: a long text gets smaller letters.
    const double width = QFontMetricsF(font).horizontalAdvance(text);
    const double seen = painter.window().width() / painter.transform().m11();
    const double room = std::min(place.width, seen) - textMargin;
    if (width > room) {
        font.setPointSizeF(std::max(place.pointSize * room / width, 1.0));
    }
    painter.setFont(font);
    painter.drawText(box, Qt::AlignCenter, text);
}

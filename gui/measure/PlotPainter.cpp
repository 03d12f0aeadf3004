#include "gui/measure/PlotPainter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>

namespace gui {

namespace {

constexpr double edge = 2.0; // pixels, which letters may stick out by

QColor colorOf(const PlotColor& color)
{
    return {color.red, color.green, color.blue};
}

QPointF pointOf(const PlotPoint& point)
{
    return {point.x, point.y};
}

struct ItemPainter
{
    QPainter& painter;

    void operator()(const PlotRectangle& item) const
    {
        painter.fillRect(item.left, item.top, item.width, item.height, colorOf(item.color));
    }
    void operator()(const PlotLine& item) const
    {
        painter.setRenderHint(QPainter::Antialiasing, item.isSmooth);
        painter.setPen(QPen(colorOf(item.color), item.width));
        if (item.isSmooth) {
            painter.drawLine(pointOf(item.from), pointOf(item.to));
        } else { // on whole pixels, so that what belongs together stands together
            painter.drawLine(pointOf(item.from).toPoint(), pointOf(item.to).toPoint());
        }
    }
    void operator()(const PlotArrowHead& item) const
    {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(colorOf(item.color));
        QPolygonF corners;
        for (const PlotPoint& corner : item.corners) {
            corners.append(pointOf(corner));
        }
        painter.drawPolygon(corners);
    }
    void operator()(const PlotText& item) const
    {
        // A number at the right end of an axis would be cut, and look like another.
        const double room = painter.window().width() -
                            QFontMetricsF(painter.font()).horizontalAdvance(item.text) - edge;
        painter.setPen(colorOf(item.color));
        painter.drawText(QPointF(std::max(std::min(item.place.x, room), 0.0), item.place.y),
                         item.text);
    }
};

} // namespace

void drawItems(QPainter& painter, const PlotItems& items)
{
    for (const PlotItem& item : items) {
        std::visit(ItemPainter{painter}, item);
    }
}

} // namespace gui

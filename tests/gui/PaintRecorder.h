#pragma once

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QWidget>

#include <cmath>
#include <vector>

namespace zul::test {

/// A line as it was drawn, in pixels of the widget.
struct PaintedLine
{
    QLineF line;
    QColor color;
    double width; ///< pixels
};

struct PaintedPolygon
{
    QPolygonF corners; ///< pixels of the widget
    QColor brush;
    bool hasOutline;
    bool isConvex;
    bool isSmooth;
};

struct PaintedText
{
    QString text;
    QPointF middle; ///< of its base line, pixels of the widget
    double scale;   ///< of the letters
    QFont font;
    QColor color;
};

/// What a widget draws, as it draws it: with the fonts, pens and places that pixels do not tell.
class PaintRecorder : private QPaintEngine, private QPaintDevice
{
public:
    explicit PaintRecorder(QWidget& widget) : QPaintEngine(AllFeatures), m_size(widget.size())
    {
        widget.render(this);
    }

    /// Of what was drawn smoothly, which leaves a frame out.
    std::vector<PaintedLine> lines;
    std::vector<PaintedPolygon> polygons;
    std::vector<PaintedText> texts;

    /// The one text of that wording; an empty one if there is none or are several.
    PaintedText find(const QString& text) const
    {
        PaintedText found{};
        for (const PaintedText& one : texts) {
            if (one.text == text) {
                found = found.text.isEmpty() ? one : PaintedText{};
            }
        }
        return found;
    }

private:
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawPath(const QPainterPath&) override {}
    void drawRects(const QRectF*, int) override {}
    bool isSmooth() const { return painter()->testRenderHint(QPainter::Antialiasing); }
    void drawLines(const QLineF* drawn, int count) override
    {
        for (int i = 0; isSmooth() && i < count; ++i) {
            const QTransform& place = painter()->combinedTransform();
            lines.push_back({place.map(drawn[i]), painter()->pen().color(),
                             painter()->pen().widthF() * std::sqrt(place.determinant())});
        }
    }
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override
    {
        QPolygonF corners;
        for (int i = 0; i < count; ++i) {
            corners.append(painter()->combinedTransform().map(points[i]));
        }
        polygons.push_back({corners, painter()->brush().color(),
                            painter()->pen().style() != Qt::NoPen, mode == ConvexMode, isSmooth()});
    }
    void drawTextItem(const QPointF& place, const QTextItem& item) override
    {
        const QTransform& transform = painter()->combinedTransform();
        texts.push_back({item.text(), transform.map(place + QPointF(item.width() / 2.0, 0.0)),
                         std::sqrt(transform.determinant()), item.font(),
                         painter()->pen().color()});
    }
    QPaintEngine* paintEngine() const override { return const_cast<PaintRecorder*>(this); }
    int metric(PaintDeviceMetric which) const override
    {
        switch (which) {
        case PdmWidth:
            return m_size.width();
        case PdmHeight:
            return m_size.height();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 96;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(QPaintDevice::devicePixelRatioFScale());
        default:
            return 1;
        }
    }

    QSize m_size;
};

} // namespace zul::test

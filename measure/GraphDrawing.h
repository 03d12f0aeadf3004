#pragma once

#include "measure/GraphChannel.h"

#include <cstddef>
#include <initializer_list>
#include <string>
#include <vector>

/// Widths and heights of texts, in pixels.
class GraphTextMetrics
{
public:
    GraphTextMetrics() = default;
    virtual ~GraphTextMetrics();
    GraphTextMetrics(const GraphTextMetrics&) = delete;
    GraphTextMetrics& operator=(const GraphTextMetrics&) = delete;

    virtual int width(const std::string& text) const = 0;
    virtual int height() const = 0;
};

/// A place in pixels, from the bottom left.
struct GraphPoint
{
    float x = 0.0F;
    float y = 0.0F;
};

/// Nothing is drawn outside of it, once set.
struct GraphScissor
{
    bool isSet = false;
    int x = 0;
    int y = 0;
    int width = 0; ///< neither is negative
    int height = 0;
};

/// One thing to draw.
struct GraphItem
{
    enum class Kind { Polygon, Lines, LineStrip, LineLoop, Points, Text };

    Kind kind = Kind::Lines;
    GraphColor color;
    std::size_t first = 0;  ///< of the drawing's points; of a text its number
    std::size_t count = 0;  ///< of points; 1 for a text
    float size = 1.0F;      ///< width of lines, side of points, pixels
    bool isDotted = false;  ///< lines of every other pixel
    GraphScissor scissor{}; ///< of this item
};

/// A text that begins at a place, which lies on its base line.
struct GraphText
{
    GraphPoint place;
    std::string text;
};

/// A picture as a list of things to draw, one above the other. It knows no screen: a widget plays
/// it, and tests read it.
class GraphDrawing
{
public:
    /// Empties the list, whose memory stays.
    void clear();

    void addPolygon(const GraphColor& color, std::initializer_list<GraphPoint> corners);
    void addRectangle(const GraphColor& color, GraphPoint from, GraphPoint to);
    void addLine(const GraphColor& color, GraphPoint from, GraphPoint to, float width = 1.0F,
                 bool isDotted = false);
    void addLoop(const GraphColor& color, std::initializer_list<GraphPoint> corners);
    void addText(const GraphColor& color, GraphPoint place, std::string text);

    /// Points of the shape to come.
    void addPoint(GraphPoint point) { m_points.push_back(point); }
    std::size_t pointCount() const { return m_points.size(); }
    /// Makes one shape of all points from `first` to the last one. One without a point, and a line
    /// of a single one, is left out.
    void addShape(GraphItem item, std::size_t first);

    const GraphColor& background() const { return m_background; }
    void setBackground(const GraphColor& color) { m_background = color; }
    const std::vector<GraphItem>& items() const { return m_items; }
    const std::vector<GraphPoint>& points() const { return m_points; }
    const std::vector<GraphText>& texts() const { return m_texts; }

private:
    void add(GraphItem::Kind kind, const GraphColor& color,
             std::initializer_list<GraphPoint> points, float width = 1.0F, bool isDotted = false);

    GraphColor m_background;
    std::vector<GraphItem> m_items;
    std::vector<GraphPoint> m_points;
    std::vector<GraphText> m_texts;
};

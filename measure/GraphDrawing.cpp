#include "measure/GraphDrawing.h"

#include <utility>

GraphTextMetrics::~GraphTextMetrics() = default;

void GraphDrawing::clear()
{
    m_items.clear();
    m_points.clear();
    m_texts.clear();
}

void GraphDrawing::addPolygon(const GraphColor& color, std::initializer_list<GraphPoint> corners)
{
    add(GraphItem::Kind::Polygon, color, corners);
}

void GraphDrawing::addRectangle(const GraphColor& color, GraphPoint from, GraphPoint to)
{
    addPolygon(color, {from, {to.x, from.y}, to, {from.x, to.y}});
}

void GraphDrawing::addLine(const GraphColor& color, GraphPoint from, GraphPoint to, float width,
                           bool isDotted)
{
    add(GraphItem::Kind::Lines, color, {from, to}, width, isDotted);
}

void GraphDrawing::addLoop(const GraphColor& color, std::initializer_list<GraphPoint> corners)
{
    add(GraphItem::Kind::LineLoop, color, corners);
}

void GraphDrawing::addText(const GraphColor& color, GraphPoint place, std::string text)
{
    m_items.push_back({GraphItem::Kind::Text, color, m_texts.size(), 1});
    m_texts.push_back({place, std::move(text)});
}

void GraphDrawing::addShape(GraphItem item, std::size_t first)
{
    item.first = first;
    item.count = m_points.size() - first;
    const std::size_t least = item.kind == GraphItem::Kind::Points ? 1 : 2;
    if (item.count >= least) {
        m_items.push_back(item);
    }
}

void GraphDrawing::add(GraphItem::Kind kind, const GraphColor& color,
                       std::initializer_list<GraphPoint> points, float width, bool isDotted)
{
    GraphItem item;
    item.kind = kind;
    item.color = color;
    item.size = width;
    item.isDotted = isDotted;
    const std::size_t first = m_points.size();
    m_points.insert(m_points.end(), points);
    addShape(item, first);
}

#include "measure/GraphPainter.h"

#include "measure/GraphLook.h"
#include "measure/GraphScales.h"

#include <algorithm>
#include <cmath>

namespace {

using graphLook::labelGap;
using graphLook::majorTick;
using graphLook::minorTick;
using graphLook::white;

constexpr float baseLine = 0.4F; // of the text's height, below the middle of its tick
constexpr float sampleDot = 3.0F;
constexpr float stripLine = 2.0F;
constexpr GraphColor stripColor{0.5F, 0.5F, 0.5F};
constexpr GraphColor markerColor{1.0F, 1.0F, 0.0F, 0.3F};

GraphScissor scissorOf(const GraphState& state, const GraphChannel& channel)
{
    GraphScissor scissor;
    scissor.isSet = true;
    scissor.x = zul::truncated(state.plotLeft);
    scissor.y = zul::truncated(channel.bandBottom);
    scissor.width = std::max(zul::truncated(state.plotWidth), 0);
    scissor.height = std::max(zul::truncated(channel.bandHeight), 0);
    return scissor;
}

/// A line that grows point by point, and is cut where it leaves what a picture can reach. Since
/// times never descend, a line that goes out and comes back touches nothing in between.
class TraceLine
{
public:
    TraceLine(GraphDrawing& drawing, const GraphItem& line)
        : m_drawing(drawing), m_line(line), m_first(drawing.pointCount())
    {
    }

    void add(const GraphPlace& place)
    {
        const bool isPlaceNear = isNear(place);
        if (m_hasLast && !(m_isLastNear && isPlaceNear)) {
            addCut(place);
        } else if (isPlaceNear) {
            addPoint(place);
        }
        m_last = place;
        m_isLastNear = isPlaceNear;
        m_hasLast = true;
    }

    /// What comes next is another line.
    void end()
    {
        m_drawing.addShape(m_line, m_first);
        m_first = m_drawing.pointCount();
        m_hasLast = false;
    }

private:
    void addPoint(const GraphPlace& place)
    {
        m_drawing.addPoint({static_cast<float>(place.x), static_cast<float>(place.y)});
    }

    void addCut(const GraphPlace& place)
    {
        GraphPlace from = m_last;
        GraphPlace to = place;
        if (!cutSegment(from, to)) {
            return;
        }
        if (!m_isLastNear) {
            addPoint(from);
        }
        addPoint(to);
    }

    GraphDrawing& m_drawing;
    const GraphItem& m_line;
    std::size_t m_first;
    GraphPlace m_last;
    bool m_isLastNear = false;
    bool m_hasLast = false;
};

} // namespace

GraphPainter::GraphPainter(const GraphState& state, const GraphTextMetrics& metrics,
                           GraphDrawing& drawing)
    : m_state(state), m_metrics(metrics), m_drawing(drawing), m_time(timeScale(state))
{
}

void GraphPainter::paint()
{
    m_drawing.setBackground(m_state.backColor);
    m_drawing.addRectangle(m_state.plotColor, {left(), bottom()}, {right(), top()});
    if (!m_state.isSplit()) {
        paintValueAxis(valueScale(m_state), m_state.labelColor);
    }
    paintTimeAxis();
    for (const GraphChannel& channel : m_state.channels) {
        if (!channel.visible) {
            continue;
        }
        if (m_state.isSplit()) {
            paintValueAxis(valueScale(channel), channel.color);
        }
        paintTrace(channel);
    }
    paintMarker();
    if (m_state.cursorOn) {
        paintCursor();
    }
    paintFrame();
    if (m_state.legendOn) {
        paintLegend();
    }
}

void GraphPainter::paintTimeAxis()
{
    if (!m_time.isDrawable()) {
        return;
    }
    const NiceStep step = niceStep(m_time.upper - m_time.lower, m_time.length, timeTickPixels);
    timeTicks(step, m_time.lower, m_time.upper, m_ticks);
    for (const double tick : m_ticks.major) {
        paintTimeTick(tick);
    }
    for (const double tick : m_ticks.minor) {
        const auto x = static_cast<float>(m_time.toPixel(tick));
        m_drawing.addLine(m_state.labelColor, {x, bottom() - minorTick}, {x, bottom()});
    }
}

void GraphPainter::paintTimeTick(double tick)
{
    const auto x = static_cast<float>(m_time.toPixel(tick));
    m_drawing.addLine(m_state.labelColor, {x, bottom() - majorTick}, {x, bottom()});
    const std::string label = timeLabel(tick);
    if (!label.empty()) {
        const float half = static_cast<float>(m_metrics.width(label)) / 2.0F;
        const float y = bottom() - labelGap - static_cast<float>(m_metrics.height());
        m_drawing.addText(m_state.labelColor, {x - half, y}, label);
    }
    if (m_state.gridOn) {
        m_drawing.addLine(m_state.gridColor, {x, bottom()}, {x, top()}, 1.0F, true);
    }
}

void GraphPainter::paintValueAxis(const GraphScale& scale, const GraphColor& color)
{
    if (!scale.isDrawable()) {
        return;
    }
    const NiceStep step = niceStep(scale.upper - scale.lower, scale.length, valueTickPixels);
    valueTicks(step, scale.lower, scale.upper, m_ticks);
    if (m_ticks.major.empty()) {
        return;
    }
    const int decimals = valueDecimals(step.step);
    for (const double tick : m_ticks.major) {
        paintValueTick(scale.toPixel(tick), valueLabel(tick, decimals), color);
    }
    for (const double tick : m_ticks.minor) {
        const auto y = static_cast<float>(scale.toPixel(tick));
        m_drawing.addLine(color, {left() - minorTick, y}, {left(), y});
    }
}

void GraphPainter::paintValueTick(double y, const std::string& label, const GraphColor& color)
{
    const auto pixel = static_cast<float>(y);
    m_drawing.addLine(color, {left() - majorTick, pixel}, {left(), pixel});
    const int width = m_metrics.width(label);
    m_labelWidth = std::max(m_labelWidth, width);
    m_drawing.addText(color,
                      {left() - labelGap - static_cast<float>(width),
                       pixel - static_cast<float>(m_metrics.height()) * baseLine},
                      label);
    if (m_state.gridOn) {
        m_drawing.addLine(m_state.gridColor, {left(), pixel}, {right(), pixel}, 1.0F, true);
    }
}

void GraphPainter::paintTrace(const GraphChannel& channel)
{
    if (!m_time.isDrawable() || !valueScale(channel).isDrawable()) {
        return;
    }
    GraphItem line;
    line.kind = GraphItem::Kind::LineStrip;
    line.color = channel.color;
    line.scissor = scissorOf(m_state, channel);
    const std::size_t firstPoint = m_drawing.pointCount();
    addTracePoints(channel, line);
    if (!channel.showSamples) {
        return;
    }
    GraphItem dots = line;
    dots.kind = GraphItem::Kind::Points;
    dots.color = white;
    dots.size = sampleDot;
    m_drawing.addShape(dots, firstPoint);
}

void GraphPainter::addTracePoints(const GraphChannel& channel, const GraphItem& line)
{
    const GraphScale values = valueScale(channel);
    TraceLine trace(m_drawing, line);
    for (const GraphColumn& column : channel.columns) {
        const double x = m_time.toFarPixel(column.time);
        for (std::uint32_t i = 0; i < column.count; ++i) {
            const double value = column.values[i];
            if (std::isfinite(value)) {
                trace.add({x, values.toFarPixel(value)});
            } else {
                trace.end(); // the line has a gap where there is no number
            }
        }
        if (column.time > m_time.upper) {
            break; // the line has left the plot
        }
    }
    trace.end();
}

void GraphPainter::paintMarker()
{
    if (!m_time.isDrawable()) {
        return;
    }
    const auto pixel = [this](double time) {
        const double most = std::max(m_state.plotLeft, m_state.plotLeft + m_state.plotWidth);
        return static_cast<float>(std::clamp(m_time.toPixel(time), m_state.plotLeft, most));
    };
    m_drawing.addRectangle(markerColor, {pixel(m_state.markerStart), bottom()},
                           {pixel(m_state.markerEnd), top()});
}

void GraphPainter::paintCursor()
{
    if (!m_time.isDrawable()) {
        return;
    }
    const GraphScale values = cursorScale(m_state);
    const double x = m_time.toPixel(m_state.cursorX);
    const double y = values.isDrawable() ? values.toPixel(m_state.cursorY) : 0.0;
    if (m_time.hasPixel(x)) {
        const auto pixel = static_cast<float>(x);
        m_drawing.addLine(white, {pixel, bottom() - majorTick}, {pixel, top()});
    }
    if (y >= m_state.plotBottom && y <= m_state.plotBottom + m_state.plotHeight) {
        const auto pixel = static_cast<float>(y);
        m_drawing.addLine(white, {left() - majorTick, pixel}, {right(), pixel});
    }
    if (m_state.cursorShown) {
        paintCursorTexts(x, y);
    }
}

void GraphPainter::paintFrame()
{
    m_drawing.addLoop(white,
                      {{left(), bottom()}, {right(), bottom()}, {right(), top()}, {left(), top()}});
    if (!m_state.isSplit()) {
        return;
    }
    for (int k = 0; k < m_state.visibleCount; ++k) {
        const auto y = static_cast<float>(m_state.plotBottom +
                                          k * (m_state.plotHeight / m_state.visibleCount));
        m_drawing.addLine(stripColor, {left(), y}, {right(), y}, stripLine);
    }
}

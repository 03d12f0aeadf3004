#pragma once

#include "measure/GraphDrawing.h"
#include "measure/GraphScale.h"
#include "measure/GraphState.h"
#include "measure/GraphTicks.h"

/// Puts one picture of the oscilloscope together, from its state as it is.
class GraphPainter
{
public:
    /// All three outlive the painter.
    GraphPainter(const GraphState& state, const GraphTextMetrics& metrics, GraphDrawing& drawing);

    void paint();

    /// Of the widest label of a value axis that was drawn.
    int labelWidth() const { return m_labelWidth; }

private:
    void paintTimeAxis();
    void paintTimeTick(double tick);
    void paintValueAxis(const GraphScale& scale, const GraphColor& color);
    void paintValueTick(double y, const std::string& label, const GraphColor& color);
    void paintTrace(const GraphChannel& channel);
    void addTracePoints(const GraphChannel& channel, const GraphItem& line);
    void paintMarker();
    void paintCursor();
    void paintCursorTexts(double x, double y);
    void paintFrame();
    void paintLegend();

    float left() const { return static_cast<float>(m_state.plotLeft); }
    float right() const { return static_cast<float>(m_state.plotLeft + m_state.plotWidth); }
    float bottom() const { return static_cast<float>(m_state.plotBottom); }
    float top() const { return static_cast<float>(m_state.plotBottom + m_state.plotHeight); }

    const GraphState& m_state;
    const GraphTextMetrics& m_metrics;
    GraphDrawing& m_drawing;
    GraphScale m_time;
    GraphTicks m_ticks;
    int m_labelWidth = 0;
};

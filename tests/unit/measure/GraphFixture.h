#pragma once

#include "measure/GraphEngine.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace zul::test {

/// Letters of 6 by 13 pixels.
class FixedMetrics : public GraphTextMetrics
{
public:
    static constexpr int letterWidth = 6;
    static constexpr int letterHeight = 13;

    int width(const std::string& text) const override
    {
        return letterWidth * static_cast<int>(text.size());
    }
    int height() const override { return letterHeight; }
};

inline bool isColor(const GraphColor& color, float red, float green, float blue)
{
    return color.red == red && color.green == green && color.blue == blue;
}

/// An engine with a picture of 600 by 350 pixels that is painted until it stands still: the plot is
/// then 300 pixels high.
class GraphTest : public testing::Test
{
protected:
    static constexpr int width = 600;
    static constexpr int height = 350;

    void SetUp() override { m_engine.resizePicture(width, height); }

    const GraphState& state() const { return m_engine.state(); }
    const GraphChannel& channel(std::size_t index = 0) const { return state().channels[index]; }
    /// Paints so often that the plot stands where the labels want it.
    void paint(int times = 2)
    {
        for (int i = 0; i < times; ++i) {
            m_engine.paint(m_metrics, m_drawing);
        }
    }
    /// Shows channels 0 to `count` - 1.
    void show(std::uint32_t count)
    {
        for (std::uint32_t i = 0; i < count; ++i) {
            m_engine.setParameterVisible(i, true);
        }
    }
    void addAt(double time, double value, std::uint32_t channel = 0)
    {
        m_engine.setCurrentTime(time);
        m_engine.addValue(channel, value);
    }

    std::vector<GraphItem> items(GraphItem::Kind kind) const
    {
        std::vector<GraphItem> found;
        for (const GraphItem& item : m_drawing.items()) {
            if (item.kind == kind) {
                found.push_back(item);
            }
        }
        return found;
    }
    std::vector<GraphItem> lines(float red, float green, float blue, bool isDotted = false) const
    {
        std::vector<GraphItem> found;
        for (const GraphItem& item : items(GraphItem::Kind::Lines)) {
            if (isColor(item.color, red, green, blue) && item.isDotted == isDotted) {
                found.push_back(item);
            }
        }
        return found;
    }
    const GraphPoint& point(const GraphItem& item, std::size_t index) const
    {
        return m_drawing.points()[item.first + index];
    }
    const GraphText* text(const std::string& wanted) const
    {
        for (const GraphText& text : m_drawing.texts()) {
            if (text.text == wanted) {
                return &text;
            }
        }
        return nullptr;
    }
    std::vector<std::string> texts() const
    {
        std::vector<std::string> found;
        for (const GraphText& text : m_drawing.texts()) {
            found.push_back(text.text);
        }
        return found;
    }

    GraphEngine m_engine;
    FixedMetrics m_metrics;
    GraphDrawing m_drawing;
};

} // namespace zul::test

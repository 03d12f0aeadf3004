#pragma once

#include "gui/measure/WidgetGraph.h"

#include <QApplication>
#include <QImage>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <memory>

namespace zul::test {

/// A plot of 600 by 350 pixels on the screen, with one visible channel in split mode, of a range of
/// 0 to 10, in manual mode over 0 to 60 s. The plot's rectangle is 300 pixels high.
class GraphGlTest : public testing::Test
{
protected:
    static constexpr int width = 600;
    static constexpr int height = 350;

    void SetUp() override
    {
        ASSERT_TRUE(WidgetGraph::isPossible());
        m_graph = std::make_unique<WidgetGraph>();
        ASSERT_TRUE(m_graph->isValid());
        m_graph->resize(width, height);
        m_graph->setParameterVisible(0, true);
        m_graph->setSplitMode(1);
        m_graph->setParameterYMax(0, 10.0F);
        m_graph->setAutoMode(0);
        m_graph->setCursorOn(false);
        m_graph->setLegendOn(false);
        m_graph->setCurrentTime(0.0);
        m_graph->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(m_graph.get()));
        QApplication::setActiveWindow(m_graph.get());
        m_graph->setFocus();
        picture(); // once to know the widest label
    }

    const GraphState& state() const { return m_graph->state(); }
    QImage picture() { return m_graph->picture(); }
    void addAt(double time, double value, std::uint32_t channel = 0)
    {
        m_graph->setCurrentTime(time);
        m_graph->addValue(channel, value);
    }
    /// The pixel column of a time, and the row, from the top, of a value of the first channel.
    int columnOf(double time) const
    {
        return static_cast<int>(
            std::floor(state().plotLeft +
                       state().plotWidth / (state().xMax - state().xMin) * (time - state().xMin)));
    }
    static int rowOf(double value) { return static_cast<int>(310.0 - 30.0 * value); }
    /// Whether a pixel of this colour is within `reach` of the place.
    static bool isNear(const QImage& image, int x, int y, const QColor& color, int reach = 1)
    {
        for (int dx = -reach; dx <= reach; ++dx) {
            for (int dy = -reach; dy <= reach; ++dy) {
                const QPoint place(x + dx, y + dy);
                if (image.rect().contains(place) && isAlike(image.pixelColor(place), color)) {
                    return true;
                }
            }
        }
        return false;
    }
    static bool isAlike(const QColor& one, const QColor& other)
    {
        constexpr int tolerance = 3;
        return std::abs(one.red() - other.red()) <= tolerance &&
               std::abs(one.green() - other.green()) <= tolerance &&
               std::abs(one.blue() - other.blue()) <= tolerance;
    }
    static int count(const QImage& image, const QRect& area, const QColor& color)
    {
        int found = 0;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                found += isAlike(image.pixelColor(x, y), color) ? 1 : 0;
            }
        }
        return found;
    }
    /// Pixels that a letter of this colour has touched on black, also those of its soft edges.
    static int ink(const QImage& image, const QRect& area, const QColor& color)
    {
        constexpr int faintest = 75;
        int found = 0;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                const QColor pixel = image.pixelColor(x, y);
                const int part = std::max({pixel.red(), pixel.green(), pixel.blue()});
                const QColor shade(color.red() * part / 255, color.green() * part / 255,
                                   color.blue() * part / 255);
                found += part >= faintest && isAlike(pixel, shade) ? 1 : 0;
            }
        }
        return found;
    }
    QRect plot() const
    {
        return {static_cast<int>(state().plotLeft), 10, static_cast<int>(state().plotWidth), 300};
    }

    std::unique_ptr<WidgetGraph> m_graph;
};

} // namespace zul::test

// The texts over the plot: those of the cursor, and the legend.

#include "measure/GraphColumns.h"
#include "measure/GraphLook.h"
#include "measure/GraphPainter.h"
#include "measure/GraphScales.h"

#include <cmath>
#include <string>

namespace {

using graphLook::textGap;
using graphLook::white;

// A text runs out of the picture long before.
constexpr std::size_t mostLetters = 63;

constexpr int timeDecimals = 1;
constexpr int cursorDecimals = 2;
constexpr int legendDecimals = 6;

std::string number(double value, int decimals)
{
    return valueLabel(value, decimals, mostLetters);
}

} // namespace

void GraphPainter::paintCursorTexts(double x, double y)
{
    const auto left = static_cast<float>(x) + textGap;
    m_drawing.addText(white, {left, static_cast<float>(y) + textGap},
                      number(m_state.cursorX, timeDecimals) + '/' +
                          number(m_state.cursorY, cursorDecimals));
    for (const GraphChannel& channel : m_state.channels) {
        if (!channel.visible) {
            continue;
        }
        const std::optional<double> value = valueAt(channel, m_state.cursorX);
        const GraphScale scale = valueScale(channel);
        if (value && scale.isDrawable() && std::isfinite(*value)) {
            m_drawing.addText(channel.color, {left, static_cast<float>(scale.toPixel(*value))},
                              number(*value, cursorDecimals));
        }
    }
}

void GraphPainter::paintLegend()
{
    const auto height = static_cast<float>(m_metrics.height());
    float pitch = height + textGap;
    if (m_state.isSplit() && m_state.visibleCount > 0) {
        pitch = static_cast<float>(m_state.plotHeight / m_state.visibleCount);
    }
    float y = top() - height - textGap;
    for (const GraphChannel& channel : m_state.channels) {
        if (channel.visible) {
            m_drawing.addText(channel.color, {left() + textGap, y},
                              channel.name + "   " + number(channel.current, legendDecimals) +
                                  " [" + channel.unit + ']');
            y -= pitch;
        }
    }
}

#include "measure/GraphEngine.h"

#include "measure/GraphColumns.h"
#include "measure/GraphLook.h"
#include "measure/GraphPainter.h"
#include "measure/GraphScales.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

constexpr std::array<GraphColor, 6> firstColors{{{1.0F, 0.0F, 0.0F},
                                                 {0.0F, 1.0F, 0.0F},
                                                 {0.0F, 0.0F, 1.0F},
                                                 {1.0F, 1.0F, 0.0F},
                                                 {0.0F, 1.0F, 1.0F},
                                                 {1.0F, 0.0F, 1.0F}}};
constexpr double leastZoomSeconds = 1.0;
constexpr double leastAutoSpan = 0.001;
constexpr double autoMargin = 0.1; // of the span, on either side
constexpr double plotBottom = 40.0;
constexpr double heightAroundPlot = 50.0;
// Left of the plot stand its ticks and their labels, and left of these a margin.
constexpr double leftOfPlot = static_cast<double>(graphLook::labelGap) + 5.0;
constexpr double rightMargin = 10.0;

void scaleToSeen(GraphChannel& channel)
{
    const double span = std::max(channel.seenMax - channel.seenMin, leastAutoSpan);
    double margin = span * autoMargin;
    if (!(channel.seenMax + margin > channel.seenMin - margin)) {
        margin = std::fabs(channel.seenMax) * autoMargin; // lost in the digits of so large a value
    }
    channel.yMin = channel.seenMin - margin;
    channel.yMax = channel.seenMax + margin;
}

void forget(GraphChannel& channel)
{
    channel.samples.clear();
    clearColumns(channel);
    channel.fresh = false;
    channel.current = 0.0;
    channel.seenMin = 0.0;
    channel.seenMax = 0.0;
    channel.dataMin = 0.0;
    channel.dataMax = 0.0;
}

} // namespace

GraphEngine::GraphEngine()
{
    setParameterCount(firstChannelCount);
}

GraphEngine::~GraphEngine() = default;

void GraphEngine::requestRepaint() {}

GraphChannel* GraphEngine::find(std::uint32_t channel)
{
    return channel < m_state.channels.size() ? &m_state.channels[channel] : nullptr;
}

double GraphEngine::pixelTime() const
{
    const double seconds = (m_state.xMax - m_state.xMin) / m_state.plotWidth;
    return m_state.plotWidth > 0.0 && seconds > 0.0 ? seconds
                                                    : std::numeric_limits<double>::infinity();
}

void GraphEngine::rebuild()
{
    m_columnsPlotWidth = m_state.plotWidth;
    for (GraphChannel& channel : m_state.channels) {
        rebuild(channel);
    }
}

void GraphEngine::rebuild(GraphChannel& channel) const
{
    if (channel.visible) {
        rebuildColumns(channel, m_state.xMin, m_state.xMax, pixelTime());
    }
}

void GraphEngine::setParameterCount(std::uint32_t count)
{
    m_state.channels.clear();
    m_state.channels.resize(std::clamp(count, 1U, maxChannelCount));
    const std::size_t colored = std::min(firstColors.size(), m_state.channels.size());
    for (std::size_t i = 0; i < colored; ++i) {
        m_state.channels[i].color = firstColors[i];
    }
}

void GraphEngine::setCurrentTime(double time)
{
    if (!std::isfinite(time)) {
        return;
    }
    if (m_state.now > time) {
        for (GraphChannel& channel : m_state.channels) {
            channel.samples.clear();
            channel.hasOldColumns = true;
        }
        rebuild();
    }
    const double span = m_state.xMax - m_state.xMin;
    if (m_state.isAutomatic()) {
        m_state.xMin = time - span;
        m_state.xMax = m_state.xMin + span;
    }
    m_state.now = time;
    m_state.running = true;
    for (GraphChannel& channel : m_state.channels) {
        channel.fresh = false;
    }
    if (m_state.rebuildPending) {
        m_state.rebuildPending = false;
        rebuild();
    }
}

void GraphEngine::addValue(std::uint32_t channel, double value)
{
    GraphChannel* target = find(channel);
    if (target == nullptr || !m_state.running) {
        return;
    }
    const GraphSample sample{m_state.now, value};
    target->samples.push_back(sample);
    const bool isFirst = target->samples.size() == 1;
    target->dataMin = isFirst ? value : std::min(target->dataMin, value);
    target->dataMax = isFirst ? value : std::max(target->dataMax, value);
    if (target->samples.size() > GraphChannel::maxSamples) {
        target->samples.pop_front();
    }
    addToColumns(*target, sample, pixelTime(), m_state.xMin);
    target->current = value;
    target->fresh = true;
}

void GraphEngine::setRange(float seconds)
{
    if (!std::isfinite(seconds)) {
        return;
    }
    if (m_state.isAutomatic()) {
        m_state.xMin = m_state.xMax - static_cast<double>(seconds);
    } else {
        m_state.xMax = m_state.xMin + static_cast<double>(seconds);
    }
    rebuild();
    requestRepaint();
}

void GraphEngine::setSplitMode(std::int32_t mode)
{
    m_state.splitMode = mode;
    requestRepaint();
}

void GraphEngine::setCursorMode(std::int32_t mode)
{
    m_state.cursorMode = mode;
    requestRepaint();
}

void GraphEngine::setAutoMode(std::int32_t mode)
{
    m_state.autoMode = mode;
    m_state.rebuildPending = true;
    requestRepaint();
}

void GraphEngine::setGridOn(bool on)
{
    m_state.gridOn = on;
    requestRepaint();
}

void GraphEngine::setCursorOn(bool on)
{
    m_state.cursorOn = on;
    requestRepaint();
}

void GraphEngine::setLegendOn(bool on)
{
    m_state.legendOn = on;
    requestRepaint();
}

void GraphEngine::setPlotColor(float red, float green, float blue)
{
    m_state.plotColor = {red, green, blue};
    requestRepaint();
}

void GraphEngine::setGridColor(float red, float green, float blue)
{
    m_state.gridColor = {red, green, blue};
    requestRepaint();
}

void GraphEngine::setLabelColor(float red, float green, float blue)
{
    m_state.labelColor = {red, green, blue};
    requestRepaint();
}

void GraphEngine::setBackColor(float red, float green, float blue)
{
    m_state.backColor = {red, green, blue};
    requestRepaint();
}

void GraphEngine::setParameterVisible(std::uint32_t channel, bool on)
{
    if (GraphChannel* target = find(channel)) {
        target->visible = on;
        if (target->hasOldColumns) {
            rebuild(*target); // they may lie right of the time
        }
    }
}

void GraphEngine::setParameterColor(std::uint32_t channel, float red, float green, float blue)
{
    if (GraphChannel* target = find(channel)) {
        target->color = {red, green, blue};
        requestRepaint();
    }
}

void GraphEngine::setParameterLabels(std::uint32_t channel, const std::string& name,
                                     const std::string& unit)
{
    if (GraphChannel* target = find(channel)) {
        target->name = name;
        target->unit = unit;
    }
}

void GraphEngine::setParameterShowSamples(std::uint32_t channel, bool on)
{
    if (GraphChannel* target = find(channel)) {
        target->showSamples = on;
        requestRepaint();
    }
}

void GraphEngine::setParameterAutoScale(std::uint32_t channel, bool on)
{
    if (GraphChannel* target = find(channel)) {
        target->autoScale = on;
        requestRepaint();
    }
}

void GraphEngine::setParameterYMin(std::uint32_t channel, float yMin)
{
    if (GraphChannel* target = find(channel)) {
        target->userYMin = static_cast<double>(yMin);
        requestRepaint();
    }
}

void GraphEngine::setParameterYMax(std::uint32_t channel, float yMax)
{
    if (GraphChannel* target = find(channel)) {
        target->userYMax = static_cast<double>(yMax);
        rebuild();
        requestRepaint();
    }
}

void GraphEngine::clearChannel(std::uint32_t channel)
{
    if (GraphChannel* target = find(channel)) {
        forget(*target);
        requestRepaint();
    }
}

void GraphEngine::removeChannel(std::uint32_t channel)
{
    if (find(channel) == nullptr) {
        return;
    }
    auto& channels = m_state.channels;
    channels.erase(channels.begin() + static_cast<std::ptrdiff_t>(channel));
    channels.emplace_back();
    if (m_state.cursorChannel > channel) {
        --m_state.cursorChannel;
    }
    requestRepaint();
}

void GraphEngine::clearAll()
{
    for (GraphChannel& channel : m_state.channels) {
        channel.samples.clear();
        clearColumns(channel);
        channel.fresh = false;
    }
    m_state.xMin = 0.0;
    m_state.xMax = GraphState::defaultSeconds;
    m_state.yMin = GraphState::defaultYMin;
    m_state.yMax = GraphState::defaultYMax;
    m_state.markerStart = 0.0;
    m_state.markerEnd = 0.0;
    m_state.dataStart = 0.0;
    m_state.dataEnd = 0.0;
    rebuild();
}

void GraphEngine::zoomMarker()
{
    m_state.xMin = m_state.markerStart;
    m_state.xMax = m_state.markerEnd;
    if (m_state.xMax - m_state.xMin < leastZoomSeconds) {
        m_state.xMax = m_state.markerStart + leastZoomSeconds;
    }
    m_state.autoMode = 0;
    rebuild();
    requestRepaint();
}

std::optional<double> GraphEngine::valueAt(std::uint32_t channel, double time) const
{
    return channel < m_state.channels.size() ? ::valueAt(m_state.channels[channel], time)
                                             : std::nullopt;
}

void GraphEngine::resumeAutoMode()
{
    m_state.autoMode = 1;
    m_state.rebuildPending = true;
}

void GraphEngine::reset()
{
    clearAll();
    resumeAutoMode();
    m_state.splitMode = 0;
}

double GraphEngine::timeAt(int x) const
{
    return timeScale(m_state).toValue(x);
}

void GraphEngine::markAt(int x)
{
    m_state.markerStart = timeAt(x);
    m_state.markerEnd = m_state.markerStart;
}

void GraphEngine::moveMarker(int x)
{
    const double time = timeAt(x);
    const double middle = (m_state.markerStart + m_state.markerEnd) / 2.0;
    (time < middle ? m_state.markerStart : m_state.markerEnd) = time;
}

void GraphEngine::orderMarker()
{
    if (m_state.markerStart > m_state.markerEnd) {
        std::swap(m_state.markerStart, m_state.markerEnd);
    }
}

void GraphEngine::holdCursor(int x, int y)
{
    const double fromBottom = m_height - y;
    m_state.cursorShown = true;
    m_state.cursorX = timeAt(x);
    if (m_state.isSplit()) {
        m_state.cursorChannel = channelAt(fromBottom);
    }
    m_state.cursorY = cursorScale(m_state).toValue(fromBottom);
}

void GraphEngine::releaseCursor()
{
    m_state.cursorShown = false;
}

std::uint32_t GraphEngine::channelAt(double y) const
{
    const double band = m_state.plotHeight / std::max(m_state.visibleCount, 1);
    double bottom = m_state.plotBottom;
    for (std::size_t i = m_state.channels.size(); i > 0; --i) {
        if (!m_state.channels[i - 1].visible) {
            continue;
        }
        if (y >= bottom && y < bottom + band) {
            return static_cast<std::uint32_t>(i - 1);
        }
        bottom += band;
    }
    return 0;
}

void GraphEngine::startPan(int x)
{
    m_state.dragStartX = x;
    m_state.dragXMin = m_state.xMin;
    m_state.dragXMax = m_state.xMax;
}

void GraphEngine::panTo(int x)
{
    if (m_state.plotWidth > 0.0) {
        const double seconds =
            (m_state.dragStartX - x) * (m_state.xMax - m_state.xMin) / m_state.plotWidth;
        m_state.xMin = m_state.dragXMin + seconds;
        m_state.xMax = m_state.dragXMax + seconds;
    }
    rebuild();
    m_state.autoMode = 0;
}

void GraphEngine::resizePicture(int width, int height)
{
    m_width = width;
    m_height = height;
    m_state.plotBottom = plotBottom;
    m_state.plotHeight = height - heightAroundPlot;
    rebuild();
}

void GraphEngine::paint(const GraphTextMetrics& metrics, GraphDrawing& drawing)
{
    prepareChannels();
    prepareStrips();
    for (GraphChannel& channel : m_state.channels) {
        if (channel.visible) {
            trimColumns(channel, m_state.xMin);
            updateSeen(channel);
        }
    }
    drawing.clear();
    GraphPainter painter(m_state, metrics, drawing);
    painter.paint();
    m_state.labelWidth = painter.labelWidth();
    m_state.plotLeft = m_state.labelWidth + leftOfPlot;
    m_state.plotWidth = m_width - m_state.plotLeft - rightMargin;
    if (m_state.plotWidth != m_columnsPlotWidth) {
        rebuild(); // the next picture is as wide as this one's labels leave it
    }
}

void GraphEngine::prepareChannels()
{
    bool hasData = false;
    for (std::size_t i = 0; i < m_state.channels.size(); ++i) {
        GraphChannel& channel = m_state.channels[i];
        channel.yMin = channel.userYMin;
        channel.yMax = channel.userYMax;
        if (channel.autoScale) {
            scaleToSeen(channel);
        }
        if (!channel.samples.empty()) {
            const double first = channel.samples.front().time;
            const double last = channel.samples.back().time;
            m_state.dataStart = hasData ? std::min(m_state.dataStart, first) : first;
            m_state.dataEnd = hasData ? std::max(m_state.dataEnd, last) : last;
            hasData = true;
        }
        if (channel.visible && !channel.fresh && m_state.isAutomatic()) {
            // What is held stands for no arrival: the next paint holds the value once more.
            addValue(static_cast<std::uint32_t>(i), channel.current);
            channel.fresh = false;
        }
    }
}

void GraphEngine::prepareStrips()
{
    if (!m_state.isSplit()) {
        // Deliberate: the single graph has one fixed range, whatever its channels' ranges are.
        for (GraphChannel& channel : m_state.channels) {
            channel.yMin = m_state.yMin;
            channel.yMax = m_state.yMax;
            channel.bandBottom = m_state.plotBottom;
            channel.bandHeight = m_state.plotHeight;
        }
        return;
    }
    const auto isVisible = [](const GraphChannel& channel) { return channel.visible; };
    m_state.visibleCount = static_cast<int>(
        std::count_if(m_state.channels.begin(), m_state.channels.end(), isVisible));
    if (m_state.visibleCount == 0) {
        return;
    }
    const double band = m_state.plotHeight / m_state.visibleCount;
    int k = 0;
    for (GraphChannel& channel : m_state.channels) {
        if (channel.visible) {
            ++k;
            channel.bandHeight = band;
            channel.bandBottom = m_state.plotBottom + m_state.plotHeight - k * band;
        }
    }
}

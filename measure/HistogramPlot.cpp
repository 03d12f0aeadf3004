#include "measure/HistogramPlot.h"

#include "measure/Milliseconds.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

constexpr PlotColor blockColor{0, 0, 180};
constexpr PlotColor curveColor{0, 200, 0};
constexpr PlotColor peakColor{255, 0, 0};
constexpr PlotColor textColor{0, 0, 0};
constexpr PlotColor axisColor{0, 0, 0};
constexpr PlotColor gridColor{220, 220, 220};
constexpr PlotColor topLineColor{150, 150, 150};
constexpr PlotColor lastColor{255, 0, 0};

constexpr int curveWidth = 2;
constexpr int axisGap = 10; // from the vertical axis to the plot
constexpr int axisEnd = 20; // of the horizontal axis beyond the plot
constexpr int arrowAbove = 20;
constexpr int horizontalFifths = 4;
constexpr int verticalTenths = 10;

// An arrow head that points upwards, at its place.
constexpr std::array<PlotPoint, 3> arrowHead{{{-5.0, 0.0}, {5.0, 0.0}, {0.0, -10.0}}};

enum class Direction { Up, Right };

PlotItem arrowAt(const PlotColor& color, double x, double y, Direction direction)
{
    PlotArrowHead head{color};
    std::transform(arrowHead.begin(), arrowHead.end(), head.corners.begin(),
                   [&](const PlotPoint& corner) {
                       return direction == Direction::Up ? PlotPoint{x + corner.x, y + corner.y}
                                                         : PlotPoint{x - corner.y, y + corner.x};
                   });
    return head;
}

PlotItem lineOf(const PlotColor& color, double x1, double y1, double x2, double y2)
{
    return PlotLine{color, {x1, y1}, {x2, y2}};
}

PlotItem textAt(const PlotColor& color, double x, double y, const QString& text)
{
    return PlotText{color, {x, y}, text};
}

struct Peak
{
    double x;
    std::uint32_t count;
};

/// The slots of one pixel column: of a hundred that share it, four look the same.
class PeakColumn
{
public:
    explicit PeakColumn(const Peak& peak)
        : m_first(peak), m_lowest(peak), m_highest(peak), m_last(peak)
    {
    }

    bool has(double x) const { return std::floor(x) == std::floor(m_first.x); }
    void add(const Peak& peak)
    {
        if (peak.count < m_lowest.count) {
            m_lowest = peak;
        }
        if (peak.count > m_highest.count) {
            m_highest = peak;
        }
        m_last = peak;
    }
    void appendTo(std::vector<Peak>& peaks) const
    {
        const bool isLowestFirst = m_lowest.x < m_highest.x;
        std::optional<double> before;
        for (const Peak& peak : {m_first, isLowestFirst ? m_lowest : m_highest,
                                 isLowestFirst ? m_highest : m_lowest, m_last}) {
            if (!before || peak.x > *before) {
                peaks.push_back(peak);
                before = peak.x;
            }
        }
    }

private:
    Peak m_first;
    Peak m_lowest;
    Peak m_highest;
    Peak m_last;
};

/// The place of a slot on the axis. A slot may lie left of the plot by half its width, since
/// periods are rounded to slots, and right of it, where its time was rounded. Further out there is
/// none: a period that 32 bits cannot hold has a key that lies anywhere.
std::optional<double> placeOf(const PlotFrame& frame, std::uint32_t key,
                              const HistogramSpacing& spacing)
{
    const double x = frame.x(key / spacing.keysPerSecond);
    const double room = frame.span(spacing.width) / 2.0 + 1.0;
    if (x < PlotFrame::left - room || x > frame.widgetWidth() + room) {
        return std::nullopt;
    }
    return x;
}

std::vector<Peak> peaksOf(const PlotFrame& frame, const HistogramBuckets& buckets,
                          const HistogramSpacing& spacing)
{
    std::vector<Peak> peaks;
    std::optional<PeakColumn> column;
    for (const auto& [key, count] : buckets) {
        const std::optional<double> place = placeOf(frame, key, spacing);
        if (!place) {
            continue;
        }
        const double x = std::max(*place, static_cast<double>(PlotFrame::left));
        if (column && column->has(x)) {
            column->add({x, count});
            continue;
        }
        if (column) {
            column->appendTo(peaks);
        }
        column.emplace(Peak{x, count});
    }
    if (column) {
        column->appendTo(peaks);
    }
    return peaks;
}

void addBlocks(PlotItems& items, const PlotFrame& frame, const HistogramBuckets& buckets,
               const HistogramSpacing& spacing)
{
    const int width = static_cast<int>(frame.span(spacing.width) + 1.0);
    std::optional<PlotRectangle> block;
    for (const auto& [key, count] : buckets) {
        const std::optional<double> place = placeOf(frame, key, spacing);
        if (!place) {
            continue;
        }
        const int begin = static_cast<int>(std::lround(*place - width / 2.0));
        const int left = std::max(begin, PlotFrame::left - axisGap);
        const int right = std::min(begin + width, frame.widgetWidth());
        if (right <= left) {
            continue;
        }
        const int top = static_cast<int>(std::lround(frame.y(count)));
        if (block && block->left == left) {
            block->top = std::min(block->top, top);
            block->width = std::max(block->width, right - left);
            block->height = frame.base() - block->top;
            continue;
        }
        if (block) {
            items.emplace_back(*block);
        }
        block = PlotRectangle{blockColor, left, top, right - left, frame.base() - top};
    }
    if (block) {
        items.emplace_back(*block);
    }
}

void addPeaks(PlotItems& items, const PlotFrame& frame, const HistogramBuckets& buckets,
              const HistogramSpacing& spacing)
{
    const Peak* before = nullptr;
    const std::vector<Peak> peaks = peaksOf(frame, buckets, spacing);
    for (const Peak& peak : peaks) {
        const double y = frame.y(peak.count);
        if (before != nullptr) {
            items.emplace_back(PlotLine{
                curveColor, {before->x, frame.y(before->count)}, {peak.x, y}, curveWidth, true});
        }
        items.push_back(lineOf(peakColor, peak.x, frame.base(), peak.x, y));
        before = &peak;
    }
}

double bounded(double place)
{
    if (std::isnan(place)) {
        return 0.0;
    }
    return std::clamp(place, -PlotFrame::farAway, PlotFrame::farAway);
}

} // namespace

PlotFrame::PlotFrame(PlotSize size, double lowest, double highest, std::uint32_t maxCount)
    : m_width(std::max(size.width - narrowerBy, 0)),
      m_height(std::max(size.height - lowerBy, 0)),
      m_base(size.height - bottom),
      m_widgetWidth(size.width),
      m_lowest(lowest),
      m_range(highest - lowest),
      m_maxCount(maxCount)
{
}

double PlotFrame::span(double value) const
{
    return m_range > 0.0 ? bounded(value / m_range * m_width) : 0.0;
}

double PlotFrame::x(double value) const
{
    return left + span(value - m_lowest);
}

double PlotFrame::y(std::uint32_t count) const
{
    if (m_maxCount == 0) {
        return m_base;
    }
    const double share = std::min(static_cast<double>(count) / m_maxCount, 1.0);
    return m_base - share * m_height;
}

void addGraph(PlotItems& items, const PlotFrame& frame, HistogramMode mode,
              const HistogramBuckets& buckets, const HistogramSpacing& spacing)
{
    if (mode == HistogramMode::BlockGraph) {
        addBlocks(items, frame, buckets, spacing);
    } else {
        addPeaks(items, frame, buckets, spacing);
    }
}

void addAxes(PlotItems& items, const PlotFrame& frame, const char* verticalName)
{
    const int axis = PlotFrame::left - axisGap;
    const int arrowTop = frame.top() - arrowAbove;
    const int arrowRight = frame.right() + axisGap;
    items.push_back(lineOf(axisColor, axis, frame.base(), frame.right() + axisEnd, frame.base()));
    items.push_back(lineOf(axisColor, axis, frame.base(), axis, frame.top()));
    items.push_back(arrowAt(axisColor, axis, arrowTop, Direction::Up));
    items.push_back(arrowAt(axisColor, arrowRight, frame.base(), Direction::Right));
    constexpr int verticalNameRight = 5;
    constexpr int horizontalNameBelow = 15;
    items.push_back(textAt(textColor, PlotFrame::left + verticalNameRight, arrowTop,
                           QLatin1String(verticalName)));
    items.push_back(
        textAt(textColor, arrowRight, frame.base() + horizontalNameBelow, QStringLiteral("T")));
}

void addGrid(PlotItems& items, const PlotFrame& frame)
{
    for (int i = 1; i <= horizontalFifths; ++i) {
        const double y = frame.base() - frame.height() * i / (horizontalFifths + 1.0);
        items.push_back(lineOf(gridColor, PlotFrame::left - axisGap, y, frame.right(), y));
    }
    for (int i = 1; i <= verticalTenths; ++i) {
        const double x = PlotFrame::left + frame.width() * i / static_cast<double>(verticalTenths);
        items.push_back(lineOf(gridColor, x, frame.base(), x, frame.top()));
    }
}

void addTopLine(PlotItems& items, const PlotFrame& frame)
{
    constexpr int fromLeft = 15;
    items.push_back(
        lineOf(topLineColor, PlotFrame::left - fromLeft, frame.top(), frame.right(), frame.top()));
}

void addMark(PlotItems& items, const PlotFrame& frame, const PlotMark& mark, double x,
             double seconds)
{
    if (!frame.isInWidget(x)) {
        return;
    }
    constexpr int textLeft = 20;
    items.push_back(lineOf(mark.color, x, frame.base(), x, frame.base() + mark.length));
    items.push_back(
        textAt(mark.color, x - textLeft, frame.base() + mark.textBelow, msText(seconds)));
}

void addLastMark(PlotItems& items, const PlotFrame& frame, double x)
{
    if (frame.isInWidget(x)) {
        items.push_back(arrowAt(lastColor, x, frame.base(), Direction::Up));
    }
}

void addPeakText(PlotItems& items, const PlotFrame& frame, PeakText place, const QString& text)
{
    constexpr int leftOfPlot = 70;
    constexpr int fromLine = 8;
    const int y = frame.top() + (place == PeakText::AboveLine ? -fromLine : fromLine);
    items.push_back(textAt(textColor, PlotFrame::left - leftOfPlot, y, text));
}

void addSummary(PlotItems& items, int y, const char* label, const QString& value)
{
    constexpr int labelLeft = 30;
    constexpr int valueLeft = 140;
    items.push_back(textAt(textColor, labelLeft, y, QLatin1String(label)));
    items.push_back(textAt(textColor, valueLeft, y, QStringLiteral(": ") + value));
}

void addTotal(PlotItems& items, std::uint32_t count)
{
    constexpr int totalLine = 95; // base line
    addSummary(items, totalLine, "Total Messages", QString::asprintf("%u", count));
}

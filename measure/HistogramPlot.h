#pragma once

#include "measure/HistogramKeys.h"
#include "measure/PlotItems.h"

/// Size of a widget in pixels.
struct PlotSize
{
    int width = 0;
    int height = 0;
};

/// Where the plot of a histogram lies in its widget, and how values map to it. A widget that is too
/// small has a plot without width or height.
class PlotFrame
{
public:
    static constexpr int left = 80;
    static constexpr int bottom = 50;        ///< from the lower edge
    static constexpr int narrowerBy = 130;   ///< plot than widget
    static constexpr int lowerBy = 200;      ///< plot than widget
    static constexpr double farAway = 1.0e6; ///< no place is further out, pixels

    PlotFrame(PlotSize size, double lowest, double highest, std::uint32_t maxCount);

    int width() const { return m_width; }
    int height() const { return m_height; }
    int right() const { return left + m_width; }
    int base() const { return m_base; }
    int top() const { return m_base - m_height; }
    /// The place of a value; a range without length has all at the left end. Bounded to `farAway`.
    double x(double value) const;
    /// The place of a count. With a highest count of 0 that of 0.
    double y(std::uint32_t count) const;
    /// How many pixels `value` spans; 0 in a range without length. Bounded to `farAway`.
    double span(double value) const;
    int widgetWidth() const { return m_widgetWidth; }
    bool isInWidget(double x) const { return x >= 0.0 && x <= m_widgetWidth; }

private:
    int m_width;
    int m_height;
    int m_base;
    int m_widgetWidth;
    double m_lowest;
    double m_range;
    std::uint32_t m_maxCount;
};

/// The x value of a slot is its key, divided by this.
struct HistogramSpacing
{
    double keysPerSecond;
    double width; ///< of a slot, seconds
};

/// The slots of a histogram.
///
/// Block graph: blocks from the base to the count of each slot, centred on it, and cut at the
/// vertical axis and at the widget's right edge; what would lie wholly beyond these is left out.
/// Slots whose blocks have the same pixels share one.
///
/// Line graph: for each slot a smooth line to the top of the one before, and a vertical line from
/// the base. Of slots that share a pixel only the first, the lowest, the highest and the last are
/// drawn.
void addGraph(PlotItems& items, const PlotFrame& frame, HistogramMode mode,
              const HistogramBuckets& buckets, const HistogramSpacing& spacing);

/// Axes with their arrow heads and names.
void addAxes(PlotItems& items, const PlotFrame& frame, const char* verticalName);

void addGrid(PlotItems& items, const PlotFrame& frame);

/// The grey line at the top of the scale.
void addTopLine(PlotItems& items, const PlotFrame& frame);

/// A mark below the base at a value, with the value in milliseconds; nothing if it lies outside of
/// the widget.
struct PlotMark
{
    PlotColor color;
    int length;    ///< of the tick, pixels
    int textBelow; ///< from the base to the text's base line, pixels
};
inline constexpr PlotMark rangeMark{{0, 0, 200}, 20, 32};
inline constexpr PlotMark averageMark{{0, 200, 0}, 10, 45};
void addMark(PlotItems& items, const PlotFrame& frame, const PlotMark& mark, double x,
             double seconds);

/// A red arrow head on the base.
void addLastMark(PlotItems& items, const PlotFrame& frame, double x);

/// A text beside the top of the scale.
enum class PeakText { AboveLine, BelowLine };
void addPeakText(PlotItems& items, const PlotFrame& frame, PeakText place, const QString& text);

/// A line of the summary: a label and what it says.
void addSummary(PlotItems& items, int y, const char* label, const QString& value);

/// The summary's last line.
void addTotal(PlotItems& items, std::uint32_t count);

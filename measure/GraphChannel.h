#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>

/// One received value.
struct GraphSample
{
    double time = 0.0; ///< seconds on the caller's clock
    double value = 0.0;
};

/// What remains of the samples that fell into one pixel column. A line through the filled slots, in
/// their order, shows the envelope of all of them.
struct GraphColumn
{
    static constexpr std::uint32_t slotCount = 4;

    std::uint32_t count = 0; ///< filled slots, 1 to 4
    double time = 0.0;       ///< of the first sample
    /// The first value, the lowest and the highest of the later ones, the last. They are filled in
    /// the order in which the values come. Of four and more values, only finite ones count for the
    /// extremes if there is one among the later ones.
    std::array<double, slotCount> values{};
};

struct GraphColor
{
    float red = 0.0F; ///< each from 0 to 1
    float green = 0.0F;
    float blue = 0.0F;
    float alpha = 1.0F;
};

/// The lowest and the highest of the finite values given; nothing before the first.
struct GraphExtremes
{
    bool isEmpty = true;
    double lowest = 0.0;
    double highest = 0.0;

    void add(const GraphColumn& column);
};

/// The record of one parameter. The oldest sample stands first, and times never descend.
struct GraphChannel
{
    static constexpr std::size_t maxSamples = 100'000;
    /// Columns are bounded as samples are; they outlive them while the time range stands still.
    static constexpr std::size_t maxColumns = maxSamples;

    std::deque<GraphSample> samples;
    std::deque<GraphColumn> columns; ///< of `samples`, for the shown time range
    bool hasOldColumns = false;      ///< the clock went back since they were made
    bool visible = false;            ///< drawn, listed and counted
    bool fresh = false;              ///< a value came since the time was set last
    double current = 0.0;            ///< the value that came last
    double seenMin = 0.0;            ///< of the columns that were drawn last
    double seenMax = 0.0;
    double yMin = 0.0; ///< the range of this paint
    double yMax = 0.0;
    double userYMin = 0.0; ///< the range without auto-scale
    double userYMax = 0.0;
    double dataMin = 0.0; ///< of all values since the last clear
    double dataMax = 0.0;
    double bandBottom = 0.0; ///< the strip that the channel is drawn in, pixels
    double bandHeight = 0.0;
    GraphColor color{1.0F, 1.0F, 1.0F};
    std::string name = "NoName"; ///< Latin-1, as all texts here
    std::string unit;
    bool showSamples = false; ///< a dot on every plotted value
    bool autoScale = false;   ///< the range follows what is seen

    /// Extremes of the first `settledColumns` columns, which change no more: what was walked over
    /// once is not walked over in each paint.
    GraphExtremes settled;
    std::size_t settledColumns = 0;
};

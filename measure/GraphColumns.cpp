#include "measure/GraphColumns.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::size_t lowestSlot = 1;
constexpr std::size_t highestSlot = 2;
constexpr std::size_t lastSlot = 3;

// What is no finite number says nothing about the others: it stands only where none of them came.
void widenExtremes(double& lowest, double& highest, double value)
{
    if (!std::isfinite(value)) {
        return;
    }
    if (!std::isfinite(lowest)) {
        lowest = std::isfinite(highest) ? highest : value;
    }
    if (!std::isfinite(highest)) {
        highest = lowest;
    }
    if (lowest > value) {
        lowest = value;
    }
    if (value > highest) {
        highest = value;
    }
}

void addToColumn(GraphColumn& column, double value)
{
    if (column.count < lastSlot) {
        column.values[column.count++] = value;
        return;
    }
    column.count = GraphColumn::slotCount;
    column.values[lastSlot] = value;
    widenExtremes(column.values[lowestSlot], column.values[highestSlot], value);
}

void forgetSettled(GraphChannel& channel)
{
    channel.settled = GraphExtremes();
    channel.settledColumns = 0;
}

void dropFirstColumn(GraphChannel& channel)
{
    channel.columns.pop_front();
    forgetSettled(channel);
}

bool isFirstSurplus(const GraphChannel& channel, double xMin)
{
    return channel.columns.size() > 1 && xMin > channel.columns[1].time;
}

auto firstAtOrAfter(const std::deque<GraphSample>& samples, double time)
{
    return std::lower_bound(
        samples.begin(), samples.end(), time,
        [](const GraphSample& sample, double bound) { return sample.time < bound; });
}

} // namespace

void GraphExtremes::add(const GraphColumn& column)
{
    for (std::uint32_t i = 0; i < column.count; ++i) {
        const double value = column.values[i];
        if (!std::isfinite(value)) {
            continue;
        }
        lowest = isEmpty ? value : std::min(lowest, value);
        highest = isEmpty ? value : std::max(highest, value);
        isEmpty = false;
    }
}

void addToColumns(GraphChannel& channel, const GraphSample& sample, double pixelTime, double xMin)
{
    auto& columns = channel.columns;
    if (!columns.empty() && !(sample.time - columns.back().time > pixelTime)) {
        addToColumn(columns.back(), sample.value);
        return;
    }
    if (columns.size() >= GraphChannel::maxColumns) {
        if (!isFirstSurplus(channel, xMin)) {
            addToColumn(columns.back(), sample.value); // far right of what is shown
            return;
        }
        dropFirstColumn(channel);
    }
    columns.push_back({1, sample.time, {sample.value}});
}

void clearColumns(GraphChannel& channel)
{
    channel.columns.clear();
    channel.hasOldColumns = false;
    forgetSettled(channel);
}

void rebuildColumns(GraphChannel& channel, double xMin, double xMax, double pixelTime)
{
    clearColumns(channel);
    const auto& samples = channel.samples;
    auto sample = firstAtOrAfter(samples, xMin);
    if (sample - samples.begin() > 1) {
        --sample;
    }
    for (; sample != samples.end(); ++sample) {
        addToColumns(channel, *sample, pixelTime, xMin);
        if (sample->time >= xMax) {
            break;
        }
    }
}

void trimColumns(GraphChannel& channel, double xMin)
{
    while (isFirstSurplus(channel, xMin)) {
        dropFirstColumn(channel);
    }
}

void updateSeen(GraphChannel& channel)
{
    const auto& columns = channel.columns;
    if (columns.empty()) {
        return;
    }
    while (channel.settledColumns + 1 < columns.size()) {
        channel.settled.add(columns[channel.settledColumns++]);
    }
    GraphExtremes seen = channel.settled;
    seen.add(columns.back());
    if (!seen.isEmpty) {
        channel.seenMin = seen.lowest;
        channel.seenMax = seen.highest;
    }
}

std::optional<double> valueAt(const GraphChannel& channel, double time)
{
    const auto& samples = channel.samples;
    // A comparison with what is no number is false: such a time is none of the channel's.
    if (samples.empty() || !(time >= samples.front().time && time <= samples.back().time)) {
        return std::nullopt;
    }
    const auto next = firstAtOrAfter(samples, time);
    if (next == samples.begin()) {
        return next->value;
    }
    const GraphSample& before = *(next - 1);
    return (time - before.time) / (next->time - before.time) * (next->value - before.value) +
           before.value;
}

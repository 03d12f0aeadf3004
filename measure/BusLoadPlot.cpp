#include "measure/BusLoadPlot.h"

#include "measure/BusLoadHistogram.h"

namespace {

constexpr std::uint32_t msPerSecond = 1000;
constexpr int totalLine = 95; // base line

HistogramSpacing spacingOf(const BusLoadHistogram& histogram, HistogramMode mode)
{
    const std::uint32_t resolution = histogram.resolution();
    const double width = static_cast<double>(resolution) / msPerSecond;
    if (mode == HistogramMode::BlockGraph) {
        const std::uint32_t whole = msPerSecond / resolution;
        return {static_cast<double>(whole != 0 ? whole : 1), width};
    }
    return {static_cast<double>(msPerSecond) / resolution, width};
}

} // namespace

PlotItems busLoadPlot(const BusLoadHistogram& histogram, HistogramMode mode, PlotSize size)
{
    const PlotFrame frame(size, histogram.xMin(), histogram.xMax(), histogram.maxCount());
    const HistogramSpacing spacing = spacingOf(histogram, mode);
    PlotItems items;
    if (mode == HistogramMode::BlockGraph) {
        addBlocks(items, frame, histogram.buckets(), spacing);
    } else {
        addPeaks(items, frame, histogram.buckets(), spacing);
    }
    addAxes(items, frame, "Msg/s");
    addGrid(items, frame);
    addMark(items, frame, rangeMark, PlotFrame::left, histogram.xMin());
    addMark(items, frame, rangeMark, frame.right(), histogram.xMax());
    addTopLine(items, frame);
    items.emplace_back(PlotText{plotText,
                                {static_cast<double>(PlotFrame::left - peakTextLeft),
                                 static_cast<double>(frame.top() - peakTextAside)},
                                QString::asprintf("%.0f", histogram.peakRate())});
    addSummary(items, totalLine, "Total Messages", QString::asprintf("%u", histogram.count()));
    return items;
}

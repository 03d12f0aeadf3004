#include "measure/BusLoadPlot.h"

#include "measure/BusLoadHistogram.h"
#include "measure/Milliseconds.h"

namespace {

HistogramSpacing spacingOf(const BusLoadHistogram& histogram, HistogramMode mode)
{
    const std::uint32_t resolution = histogram.resolution();
    const double width = resolution / msPerSecond;
    if (mode == HistogramMode::BlockGraph) {
        const std::uint32_t whole = wholeMsPerSecond / resolution;
        return {static_cast<double>(whole != 0 ? whole : 1), width};
    }
    return {msPerSecond / resolution, width};
}

} // namespace

PlotItems busLoadPlot(const BusLoadHistogram& histogram, HistogramMode mode, PlotSize size)
{
    const PlotFrame frame(size, histogram.xMin(), histogram.xMax(), histogram.maxCount());
    PlotItems items;
    addGraph(items, frame, mode, histogram.buckets(), spacingOf(histogram, mode));
    addAxes(items, frame, "Msg/s");
    addGrid(items, frame);
    addMark(items, frame, rangeMark, PlotFrame::left, histogram.xMin());
    addMark(items, frame, rangeMark, frame.right(), histogram.xMax());
    addTopLine(items, frame);
    addPeakText(items, frame, PeakText::AboveLine, QString::asprintf("%.0f", histogram.peakRate()));
    addTotal(items, histogram.count());
    return items;
}

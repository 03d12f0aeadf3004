#include "measure/SpreadPlot.h"

#include "measure/SpreadHistogram.h"

namespace {

constexpr double msPerSecond = 1000.0;
constexpr double percent = 100.0;
constexpr HistogramSpacing spreadSpacing{static_cast<double>(SpreadHistogram::bucketsPerSecond),
                                         SpreadHistogram::resolutionSeconds};

// Base lines of the summary's lines.
enum SummaryLine {
    AverageLine = 20,
    TotalAverageLine = 35,
    MinimumLine = 50,
    MaximumLine = 65,
    JitterLine = 80,
    TotalLine = 95
};

void addScaleTexts(PlotItems& items, const PlotFrame& frame, const SpreadHistogram& histogram)
{
    constexpr int left = PlotFrame::left - peakTextLeft;
    const auto add = [&](int y, const QString& text) {
        items.emplace_back(
            PlotText{plotText, {static_cast<double>(left), static_cast<double>(y)}, text});
    };
    add(frame.top() - peakTextAside, QString::asprintf("%u", histogram.maxCount()));
    if (histogram.count() != 0) {
        const double share = static_cast<double>(histogram.maxCount()) / histogram.count();
        add(frame.top() + peakTextAside, QString::asprintf("%.2f %%", share * percent));
    }
}

void addSummaries(PlotItems& items, const SpreadHistogram& histogram)
{
    if (histogram.count() == 0) {
        return;
    }
    const double below = histogram.lowest() - histogram.average();
    const double above = histogram.highest() - histogram.average();
    const double jitter = histogram.highest() - histogram.lowest();
    addSummary(items, AverageLine, "Average", msText(histogram.filtered()));
    addSummary(items, TotalAverageLine, "Total Average", msText(histogram.average()));
    addSummary(items, MinimumLine, "Minimum", msText(histogram.lowest()));
    addSummary(items, MaximumLine, "Maximum", msText(histogram.highest()));
    addSummary(items, JitterLine, "Jitter",
               msText(jitter) +
                   QString::asprintf(" (%.3f / %+.3f)", below * msPerSecond, above * msPerSecond));
    addSummary(items, TotalLine, "Total Messages", QString::asprintf("%u", histogram.count()));
}

} // namespace

PlotItems spreadPlot(const SpreadHistogram& histogram, HistogramMode mode, PlotSize size)
{
    const PlotFrame frame(size, histogram.lowest(), histogram.highest(), histogram.maxCount());
    PlotItems items;
    if (mode == HistogramMode::BlockGraph) {
        addBlocks(items, frame, histogram.buckets(), spreadSpacing);
    } else {
        addPeaks(items, frame, histogram.buckets(), spreadSpacing);
    }
    addAxes(items, frame, "Msg Total");
    addGrid(items, frame);
    addMark(items, frame, rangeMark, PlotFrame::left, histogram.lowest());
    addMark(items, frame, rangeMark, frame.right(), histogram.highest());
    addMark(items, frame, rangeMark, frame.x(histogram.filtered()), histogram.filtered());
    addMark(items, frame, averageMark, frame.x(histogram.average()), histogram.average());
    addLastMark(items, frame, frame.x(histogram.last()));
    addTopLine(items, frame);
    addScaleTexts(items, frame, histogram);
    addSummaries(items, histogram);
    return items;
}

#include "measure/SpreadPlot.h"

#include "measure/Milliseconds.h"
#include "measure/SpreadHistogram.h"

namespace {

constexpr double percent = 100.0;
constexpr HistogramSpacing spreadSpacing{static_cast<double>(SpreadHistogram::bucketsPerSecond),
                                         SpreadHistogram::resolutionSeconds};

// Base lines of the summary's lines; the total stands below them.
enum SummaryLine {
    AverageLine = 20,
    TotalAverageLine = 35,
    MinimumLine = 50,
    MaximumLine = 65,
    JitterLine = 80
};

void addPeakTexts(PlotItems& items, const PlotFrame& frame, const SpreadHistogram& histogram)
{
    addPeakText(items, frame, PeakText::AboveLine, QString::asprintf("%u", histogram.maxCount()));
    if (histogram.count() != 0) {
        const double share = static_cast<double>(histogram.maxCount()) / histogram.count();
        addPeakText(items, frame, PeakText::BelowLine,
                    QString::asprintf("%.2f %%", share * percent));
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
    addTotal(items, histogram.count());
}

} // namespace

PlotItems spreadPlot(const SpreadHistogram& histogram, HistogramMode mode, PlotSize size)
{
    const PlotFrame frame(size, histogram.lowest(), histogram.highest(), histogram.maxCount());
    PlotItems items;
    addGraph(items, frame, mode, histogram.buckets(), spreadSpacing);
    addAxes(items, frame, "Msg Total");
    addGrid(items, frame);
    addMark(items, frame, rangeMark, PlotFrame::left, histogram.lowest());
    addMark(items, frame, rangeMark, frame.right(), histogram.highest());
    addMark(items, frame, rangeMark, frame.x(histogram.filtered()), histogram.filtered());
    addMark(items, frame, averageMark, frame.x(histogram.average()), histogram.average());
    addLastMark(items, frame, frame.x(histogram.last()));
    addTopLine(items, frame);
    addPeakTexts(items, frame, histogram);
    addSummaries(items, histogram);
    return items;
}

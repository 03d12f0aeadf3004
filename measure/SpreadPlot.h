#pragma once

#include "measure/HistogramPlot.h"

class SpreadHistogram;

/// The picture of the periods of one message, on white, with their summary.
PlotItems spreadPlot(const SpreadHistogram& histogram, HistogramMode mode, PlotSize size);

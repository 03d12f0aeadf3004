#pragma once

#include "measure/HistogramPlot.h"

class BusLoadHistogram;

/// The picture of the messages over the measure time, on white.
///
/// Deliberate: the blocks stand at times of a whole number of slots in a second, and the lines at
/// the true ones: they differ where the resolution does not divide 1000.
PlotItems busLoadPlot(const BusLoadHistogram& histogram, HistogramMode mode, PlotSize size);

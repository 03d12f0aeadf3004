#pragma once

#include "measure/Statistic.h"

#include <QString>

// Texts of the rows of the views of rates and of periods.

/// "ERROR FRAME" while the last frame is one, else mode and identifier.
///
/// Deliberate: the identifier is hexadecimal in the view of periods, and decimal in that of rates.
QString statisticIdText(const StatisticEntry& entry, StatisticView view);

QString statisticCountText(const StatisticEntry& entry);

bool isErrorFrame(const StatisticEntry& entry);

/// "[min]  last  [max]" of seconds, in milliseconds.
QString periodText(double minimum, double period, double maximum);

/// A cell of the view of periods in pixels, all within its width.
struct PeriodBand
{
    int left = 0;
    int width = 0; ///< of the band from the shortest to the longest period
    int line = 0;  ///< of the smoothed period
};

/// Where periods lie in a cell of that width, whose right end is `scale`. A scale of 0 or below
/// puts all at the left.
PeriodBand periodBand(double minimum, double maximum, double filtered, double scale, int width);

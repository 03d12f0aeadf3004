#pragma once

#include "traffic/ReceiveColumns.h"
#include "traffic/ReceiveTable.h"

/// Whether the row `left` of the table comes before the row `right` when the user sorts by a column
/// of the mode: by numbers where the column shows such, whatever form they are shown in, and by
/// words where it shows words. Values that are no numbers come before all that are, and before them
/// the rows whose cell an error frame has emptied. Where such a frame leaves a cell as it stood,
/// the row goes by what stands there.
bool isReceiveRowLess(const ReceiveTable& table, DisplayMode mode, int column, int left, int right);

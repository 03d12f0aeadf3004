#pragma once

#include "traffic/ReceiveColumns.h"
#include "traffic/ReceiveTable.h"

/// Whether the row `left` of the table comes before the row `right` when the user sorts by a column
/// of the set: by numbers where the column shows such, whatever form they are shown in. Values that
/// are no numbers come before all that are.
bool isReceiveRowLess(const ReceiveTable& table, ReceiveColumnSet set, int column, int left,
                      int right);

#pragma once

#include "measure/PlotItems.h"

class QPainter;

namespace gui {

/// Plays a list of things to draw, from first to last. A text that would end behind the right edge
/// begins further left.
void drawItems(QPainter& painter, const PlotItems& items);

} // namespace gui

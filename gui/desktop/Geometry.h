#pragma once

#include <QRect>

namespace gui {

/// Widest and highest window that a project file can ask for, in pixels. A damaged file could ask
/// for one whose picture does not fit into memory.
inline constexpr int maxWindowExtent = 16384;

/// That geometry, with its size between 1 and `maxWindowExtent`, and its position within as much
/// around 0.
QRect boundedGeometry(int x, int y, int width, int height);

/// `bounded`, moved to the top left of `desktop` if it would lie wholly outside, where no user
/// could reach it.
QRect reachableGeometry(const QRect& bounded, const QRect& desktop);

} // namespace gui

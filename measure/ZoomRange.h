#pragma once

/// Which way a held zoom button goes.
enum class ZoomDirection { None, In, Out };

/// The shown seconds after one more tick of a held zoom button.
///
/// Deliberate: zooming in has no lower bound and zooming out no upper one. A range above 5000
/// seconds falls to it at the first tick in, one below 1 rises to it at the first tick out.
double zoomedRange(double seconds, ZoomDirection direction);

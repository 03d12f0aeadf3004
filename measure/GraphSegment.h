#pragma once

#include <cmath>

/// A place in pixels that may lie anywhere, screens away too.
struct GraphPlace
{
    double x = 0.0;
    double y = 0.0;
};

/// How far from the origin a picture's points may lie, in pixels: farther than any screen, and near
/// enough for single precision to tell hundredths of a pixel.
inline constexpr double farthestPixel = 1e5;

inline bool isNear(const GraphPlace& place)
{
    return std::fabs(place.x) <= farthestPixel && std::fabs(place.y) <= farthestPixel;
}

/// Cuts a line at `farthestPixel`, so that what is left lies where the whole line does, however
/// far its ends are. Neither coordinate is beyond 1e100 in amount.
///
/// Returns false if nothing of the line is left; the ends are of no use then.
bool cutSegment(GraphPlace& from, GraphPlace& to);

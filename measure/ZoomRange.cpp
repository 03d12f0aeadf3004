#include "measure/ZoomRange.h"

#include <algorithm>

namespace {

constexpr double tickFactor = 0.97;
constexpr double mostZoomedIn = 5000.0;
constexpr double leastZoomedOut = 1.0;

} // namespace

double zoomedRange(double seconds, ZoomDirection direction)
{
    switch (direction) {
    case ZoomDirection::In:
        return std::min(mostZoomedIn, seconds * tickFactor);
    case ZoomDirection::Out:
        return std::max(leastZoomedOut, seconds / tickFactor);
    case ZoomDirection::None:
        break;
    }
    return seconds;
}

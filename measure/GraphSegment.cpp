#include "measure/GraphSegment.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

using Coordinate = double GraphPlace::*;

// Moves an end that lies beyond a bound along the line to it. Counting from the end that stays
// keeps the digits of the nearer one.
void pullIn(GraphPlace& end, const GraphPlace& anchor, Coordinate along, Coordinate across)
{
    const double bound = std::copysign(farthestPixel, end.*along);
    if (std::fabs(end.*along) > farthestPixel) {
        const double part = (bound - anchor.*along) / (end.*along - anchor.*along);
        end.*across = anchor.*across + part * (end.*across - anchor.*across);
        end.*along = bound;
    }
}

bool isBeyond(const GraphPlace& from, const GraphPlace& to, Coordinate along)
{
    return std::min(from.*along, to.*along) > farthestPixel ||
           std::max(from.*along, to.*along) < -farthestPixel;
}

} // namespace

bool cutSegment(GraphPlace& from, GraphPlace& to)
{
    for (const auto& [along, across] :
         {std::pair{&GraphPlace::x, &GraphPlace::y}, std::pair{&GraphPlace::y, &GraphPlace::x}}) {
        if (isBeyond(from, to, along)) {
            return false;
        }
        // The farther end first: the other one is the better place to count from.
        const bool isToFarther = std::fabs(to.*along) > std::fabs(from.*along);
        GraphPlace& farther = isToFarther ? to : from;
        GraphPlace& nearer = isToFarther ? from : to;
        pullIn(farther, nearer, along, across);
        pullIn(nearer, farther, along, across);
    }
    return isNear(from) && isNear(to);
}

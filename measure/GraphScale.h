#pragma once

#include "measure/GraphSegment.h"

#include <algorithm>
#include <cmath>
#include <limits>

/// Maps a range of seconds or values to pixels.
struct GraphScale
{
    double lower = 0.0;
    double upper = 0.0;
    double start = 0.0;  ///< pixel of `lower`
    double length = 0.0; ///< pixels from `lower` to `upper`

    /// Whether there is a pixel for each value. A range that is empty, or that is no range of
    /// numbers, has none.
    bool isDrawable() const
    {
        const double perUnit = length / (upper - lower);
        return lower != upper && std::isfinite(upper - lower) && std::isfinite(perUnit);
    }

    /// The pixel of a value of a drawable range, held to `farthestPixel`.
    double toPixel(double value) const
    {
        return std::clamp(toFarPixel(value), -farthestPixel, farthestPixel);
    }

    /// The same where it is, so that a line keeps its slope; beyond 1e100 all lie alike.
    double toFarPixel(double value) const
    {
        constexpr double farOutside = 1e100;
        return std::clamp(length / (upper - lower) * (value - lower) + start, -farOutside,
                          farOutside);
    }

    /// The value at a pixel; `lower` if there are no pixels.
    double toValue(double pixel) const
    {
        const double perUnit = length / (upper - lower);
        if (!std::isfinite(perUnit) || perUnit == 0.0) {
            return lower;
        }
        return (pixel - start) / perUnit + lower;
    }

    /// Whether a pixel lies on the axis, ends included.
    bool hasPixel(double pixel) const { return pixel >= start && pixel <= start + length; }
};

namespace zul {

/// `value` without its fraction, held to the range of int; 0 for what is no number.
inline int truncated(double value)
{
    if (std::isnan(value)) {
        return 0;
    }
    constexpr double low = std::numeric_limits<int>::min();
    constexpr double high = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(value, low, high));
}

} // namespace zul

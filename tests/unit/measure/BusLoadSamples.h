#pragma once

#include "measure/BusLoadHistogram.h"

#include <cstdint>
#include <vector>

namespace zul::test {

/// A bus load with one frame at each of the times, in seconds.
inline BusLoadHistogram loadOf(std::uint32_t resolution, const std::vector<double>& times)
{
    BusLoadHistogram load;
    load.setResolution(resolution);
    for (const double time : times) {
        load.add(time);
    }
    return load;
}

} // namespace zul::test

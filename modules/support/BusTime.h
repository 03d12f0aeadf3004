#pragma once

#include <cstdint>
#include <limits>

namespace canmodule {

/// An instant or a span of bus time in nanoseconds; instants count from 1970-01-01 00:00 UTC.
using BusTime = std::int64_t;

constexpr BusTime never = std::numeric_limits<BusTime>::max();
constexpr BusTime microsecond = 1'000;
constexpr BusTime millisecond = 1'000'000;
constexpr BusTime second = 1'000'000'000;

/// The span in seconds.
constexpr double toSeconds(BusTime span)
{
    return static_cast<double>(span) / static_cast<double>(second);
}

} // namespace canmodule

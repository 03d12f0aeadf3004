#pragma once

#include "modules/support/BusTime.h"

#include <chrono>

namespace canmodule {

/// Now on a clock of the standard library, in nanoseconds since its beginning.
template <typename Clock>
BusTime nowOn()
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(Clock::now().time_since_epoch())
        .count();
}

/// For spans; never jumps.
inline BusTime steadyNow()
{
    return nowOn<std::chrono::steady_clock>();
}

/// For time stamps; since 1970-01-01 00:00 UTC.
inline BusTime wallNow()
{
    return nowOn<std::chrono::system_clock>();
}

} // namespace canmodule

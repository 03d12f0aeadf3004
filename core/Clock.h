#pragma once

#include <functional>

namespace zul {

/// The application clock: wall-clock seconds with millisecond resolution. Every time difference
/// that is not one of frame time stamps comes from it.
double wallClock();

/// Puts another source in place of the system's clock while it lives; for tests. Main thread only,
/// and not nested.
class ClockOverride
{
public:
    explicit ClockOverride(std::function<double()> source);
    ~ClockOverride();
    ClockOverride(const ClockOverride&) = delete;
    ClockOverride& operator=(const ClockOverride&) = delete;
};

} // namespace zul

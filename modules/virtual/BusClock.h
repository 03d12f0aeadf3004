#pragma once

#include "modules/virtual/Vocabulary.h"

#include <chrono>

namespace canvirtual {

/// Where the buses take their time from. Called from any thread; never runs backwards.
class BusClock
{
public:
    BusClock() = default;
    virtual ~BusClock();
    BusClock(const BusClock&) = delete;
    BusClock& operator=(const BusClock&) = delete;

    virtual BusTime now() const = 0;
};

/// Starts at the wall time of its construction and then runs with the steady clock: the user may
/// set the computer's clock without a bus standing still or jumping.
class MonotonicBusClock : public BusClock
{
public:
    MonotonicBusClock();

    BusTime now() const override;

private:
    BusTime m_wallStart = 0;
    std::chrono::steady_clock::time_point m_steadyStart;
};

} // namespace canvirtual

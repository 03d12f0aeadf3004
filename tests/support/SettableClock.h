#pragma once

#include "core/Clock.h"

namespace zul::test {

/// Stands in for the application clock while it lives: the time is what the test sets, in seconds.
class SettableClock
{
public:
    explicit SettableClock(double start = 1000.0) : m_now(start) {}

    double now() const { return m_now; }
    void set(double now) { m_now = now; }
    void advance(double seconds) { m_now += seconds; }

private:
    double m_now;
    ClockOverride m_override{[this] { return m_now; }};
};

} // namespace zul::test

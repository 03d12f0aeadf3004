#include "modules/virtual/BusClock.h"

namespace canvirtual {

namespace {

template <typename Duration>
BusTime nanoseconds(Duration duration)
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(duration).count();
}

} // namespace

BusClock::~BusClock() = default;

MonotonicBusClock::MonotonicBusClock()
    : m_wallStart(nanoseconds(std::chrono::system_clock::now().time_since_epoch())),
      m_steadyStart(std::chrono::steady_clock::now())
{
}

BusTime MonotonicBusClock::now() const
{
    return m_wallStart + nanoseconds(std::chrono::steady_clock::now() - m_steadyStart);
}

} // namespace canvirtual

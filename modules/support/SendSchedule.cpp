#include "modules/support/SendSchedule.h"

#include <algorithm>

namespace canmodule {

void SendSchedule::begin()
{
    clear();
    m_open = true;
}

bool SendSchedule::add(const BusFrame& frame, BusTime delay)
{
    if (!m_open || m_frames.size() >= m_capacity) {
        return false;
    }
    m_frames.push_back(frame);
    m_frames.back().time = delay;
    return true;
}

void SendSchedule::end()
{
    m_open = false;
}

void SendSchedule::start(BusTime now)
{
    m_open = false;
    const auto isSooner = [](const BusFrame& left, const BusFrame& right) {
        return left.time < right.time;
    };
    // Sorting moves every frame several times, and most schedules come sorted.
    if (!std::is_sorted(m_frames.begin(), m_frames.end(), isSooner)) {
        std::stable_sort(m_frames.begin(), m_frames.end(), isSooner);
    }
    m_startedAt = now;
    m_next = 0;
    m_running = true;
}

void SendSchedule::clear()
{
    m_frames.clear();
    m_frames.shrink_to_fit();
    m_next = 0;
    m_open = false;
    m_running = false;
}

} // namespace canmodule

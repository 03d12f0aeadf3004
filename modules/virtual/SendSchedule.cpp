#include "modules/virtual/SendSchedule.h"

#include <algorithm>

namespace canvirtual {

void SendSchedule::begin()
{
    clear();
    m_open = true;
}

bool SendSchedule::add(const PendingFrame& frame)
{
    if (!m_open || m_frames.size() >= capacity) {
        return false;
    }
    m_frames.push_back(frame);
    return true;
}

void SendSchedule::end()
{
    m_open = false;
}

void SendSchedule::start(BusTime now)
{
    m_open = false;
    std::stable_sort(m_frames.begin(), m_frames.end(),
                     [](const PendingFrame& left, const PendingFrame& right) {
                         return left.readyAt < right.readyAt;
                     });
    m_startedAt = now;
    m_next = 0;
    m_running = true;
    loadHead();
}

void SendSchedule::clear()
{
    m_frames.clear();
    m_frames.shrink_to_fit();
    m_next = 0;
    m_open = false;
    m_running = false;
}

void SendSchedule::pop()
{
    ++m_next;
    loadHead();
}

void SendSchedule::loadHead()
{
    if (left() > 0) {
        m_head = m_frames[m_next];
        m_head.readyAt += m_startedAt;
    }
}

} // namespace canvirtual

#pragma once

#include "modules/support/BusFrame.h"

#include <cstddef>
#include <deque>

namespace canmodule {

/// The scheduled-send memory: frames with delays, which go out from the start control on.
///
/// `begin` empties it, `add` fills it, `end` closes it, and `start` lets the delays count. Another
/// `start` plays the same frames again from the first. A `start` without `end` closes it first.
class SendSchedule
{
public:
    /// Somewhat more than the frames of a file of 32 MiB; some 370 MB when full.
    static constexpr std::size_t usualCapacity = 4'200'000;

    explicit SendSchedule(std::size_t capacity = usualCapacity) : m_capacity(capacity) {}

    /// Empties the memory, also while it is running, and opens it for `add`.
    void begin();
    /// Stores `frame`, to go out `delay` after the start. False if the memory is not open or is
    /// full.
    bool add(const BusFrame& frame, BusTime delay);
    void end();
    void start(BusTime now);
    /// Empties and closes the memory.
    void clear();

    bool isOpen() const { return m_open; }

    /// Frames that still have to be sent, whether started or not.
    std::size_t left() const { return m_frames.size() - m_next; }

    /// The next frame, or null if none will be sent.
    const BusFrame* head() const { return m_running && left() > 0 ? &m_frames[m_next] : nullptr; }
    /// The instant at which the head is to be sent; `never` without a head.
    BusTime dueAt() const { return head() != nullptr ? m_startedAt + head()->time : never; }

    /// Takes the head off.
    void pop() { ++m_next; }

private:
    std::deque<BusFrame> m_frames; ///< their times are the delays; by these from `start` on
    std::size_t m_capacity;
    std::size_t m_next = 0;
    BusTime m_startedAt = 0;
    bool m_open = false;
    bool m_running = false;
};

} // namespace canmodule

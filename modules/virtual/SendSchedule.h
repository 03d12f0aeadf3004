#pragma once

#include "modules/virtual/PendingFrame.h"

#include <cstddef>
#include <vector>

namespace canvirtual {

/// The scheduled-send memory: frames with delays, which go out from the start control on.
///
/// `begin` empties it, `add` fills it, `end` closes it, and `start` lets the delays count. Another
/// `start` plays the same frames again from the first. A `start` without `end` closes it first.
class SendSchedule
{
public:
    static constexpr std::size_t capacity = 100'000;

    /// Empties the memory, also while it is running, and opens it for `add`.
    void begin();
    /// Stores `frame`, whose `readyAt` is the delay. False if the memory is not open or is full.
    bool add(const PendingFrame& frame);
    void end();
    void start(BusTime now);
    /// Empties and closes the memory.
    void clear();

    bool isOpen() const { return m_open; }

    /// Frames that still have to be sent, whether started or not.
    std::size_t left() const { return m_frames.size() - m_next; }

    /// The next frame, its `readyAt` now being an instant, or null if none will be sent.
    const PendingFrame* head() const { return m_running && left() > 0 ? &m_head : nullptr; }

    /// Takes the head off.
    void pop();

private:
    void loadHead();

    std::vector<PendingFrame> m_frames; ///< by delay from `start` on
    PendingFrame m_head;
    std::size_t m_next = 0;
    BusTime m_startedAt = 0;
    bool m_open = false;
    bool m_running = false;
};

} // namespace canvirtual

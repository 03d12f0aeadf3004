#pragma once

#include "message/Message.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

namespace canmodule {

/// Messages on their way from a module's own thread to `Device::recvMessage`. Bounded: what does
/// not fit is dropped and counted. One thread pushes, one pops.
class MessageQueue
{
public:
    /// Two seconds of eight saturated buses; some 50 MB when full.
    static constexpr std::size_t usualCapacity = 320'000;
    /// A drain, that is calls of `pop` until null, ends after this many messages, so that a reader
    /// that cannot keep up still comes to an end.
    static constexpr std::size_t drainLimit = 50'000;

    explicit MessageQueue(std::size_t capacity = usualCapacity) : m_capacity(capacity) {}

    /// Moves all messages in, as far as there is room, and empties `messages`. Returns how many
    /// were dropped.
    std::size_t push(std::vector<std::unique_ptr<Message>>& messages);
    /// The oldest message, which is the caller's, or null.
    Message* pop();
    /// Drops all messages, which does not count as a loss.
    void clear();

    /// Messages that wait.
    std::size_t fill() const;
    std::size_t capacity() const { return m_capacity; }

private:
    using Batch = std::vector<std::unique_ptr<Message>>;

    const std::size_t m_capacity;
    mutable std::mutex m_mutex; ///< guards everything below
    Batch m_waiting;
    Batch m_batch; ///< is being handed out
    std::size_t m_next = 0;
    std::size_t m_handedOut = 0; ///< since `pop` last returned null
};

} // namespace canmodule

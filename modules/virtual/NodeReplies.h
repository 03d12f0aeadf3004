#pragma once

#include "modules/virtual/NodeSettings.h"
#include "modules/virtual/PendingFrame.h"

#include <deque>

namespace canvirtual {

/// The answers that a node has still to give, each after the time that it takes to think, and with
/// what is wrong with the node.
class NodeReplies
{
public:
    static constexpr BusTime thinkingTime = 2 * millisecond;
    static constexpr BusTime lateTime = 1'500 * millisecond;
    /// More are dropped: nobody waits for so many.
    static constexpr std::size_t capacity = 1'000;

    explicit NodeReplies(NodeFault fault) : m_fault(fault) {}

    /// Answers what has left the bus at `time`.
    void add(const BusFrame& frame, BusTime time);
    /// The answer as it would go out; ready never if the node is silent.
    PendingFrame prepared(BusFrame frame, BusTime time) const;

    bool isEmpty() const { return m_frames.empty(); }
    /// The next answer, which there must be.
    const PendingFrame& front() const { return m_frames.front(); }
    void pop() { m_frames.pop_front(); }
    /// When the next answer is ready; `never` if there is none.
    BusTime readyAt() const { return m_frames.empty() ? never : m_frames.front().readyAt; }

private:
    NodeFault m_fault;
    std::deque<PendingFrame> m_frames;
};

/// A data frame without contents, extended where the identifier needs it or `isExtended` asks.
BusFrame nodeFrame(std::uint32_t id, std::uint32_t byteCount, bool isExtended);

} // namespace canvirtual

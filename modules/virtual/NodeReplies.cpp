#include "modules/virtual/NodeReplies.h"

namespace canvirtual {

void NodeReplies::add(const BusFrame& frame, BusTime time)
{
    if (m_fault != NodeFault::Silent && m_frames.size() < capacity) {
        m_frames.push_back(prepared(frame, time));
    }
}

PendingFrame NodeReplies::prepared(BusFrame frame, BusTime time) const
{
    if (m_fault == NodeFault::Silent) {
        return makePending(frame, never);
    }
    if (m_fault == NodeFault::WrongIdentifier) {
        // Of an extended one it is the redundancy channel.
        frame.id = isExtended(frame.mode) ? frame.id ^ 1U : frame.id + 1U;
    }
    const BusTime delay = m_fault == NodeFault::Late ? lateTime : thinkingTime;
    return makePending(frame, time + delay);
}

BusFrame nodeFrame(std::uint32_t id, std::uint32_t byteCount, bool isExtended)
{
    BusFrame frame;
    frame.id = id;
    frame.byteCount = byteCount;
    frame.mode = isExtended || id > maxStandardId ? FrameMode::Extended : FrameMode::Standard;
    return frame;
}

} // namespace canvirtual

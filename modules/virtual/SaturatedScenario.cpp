#include "modules/virtual/SaturatedScenario.h"

#include "modules/virtual/Payload.h"

namespace canvirtual {

SaturatedScenario::SaturatedScenario(BusTime start)
{
    BusFrame frame;
    frame.id = identifier;
    frame.byteCount = maxClassicBytes;
    frame.data = {0, 0, 0, 0, 0x55, 0x55, 0x55, 0x55};
    m_pending = makePending(frame, start);
}

BusTime SaturatedScenario::readyAt() const
{
    return m_pending.readyAt;
}

const PendingFrame& SaturatedScenario::offer(BusTime /*start*/)
{
    return m_pending;
}

void SaturatedScenario::sent(BusTime end)
{
    ++m_sequence;
    putBigEndian32(m_pending.frame, 0, m_sequence);
    m_pending.bits = frameBits(m_pending.frame);
    m_pending.readyAt = end;
}

void SaturatedScenario::skipTo(BusTime time)
{
    m_pending.readyAt = time;
}

ShortestScenario::ShortestScenario(BusTime start) : m_readyAt(start)
{
    m_frames.reserve(maxStandardId + 1);
    for (std::uint32_t id = 0; id <= maxStandardId; ++id) {
        BusFrame frame;
        frame.id = id;
        m_frames.push_back(makePending(frame, start));
    }
}

BusTime ShortestScenario::readyAt() const
{
    return m_readyAt;
}

const PendingFrame& ShortestScenario::offer(BusTime /*start*/)
{
    return m_frames[m_next];
}

void ShortestScenario::sent(BusTime end)
{
    m_next = (m_next + 1) % m_frames.size();
    m_frames[m_next].readyAt = end;
    m_readyAt = end;
}

void ShortestScenario::skipTo(BusTime time)
{
    m_frames[m_next].readyAt = time;
    m_readyAt = time;
}

} // namespace canvirtual

#pragma once

#include "modules/virtual/Scenario.h"

#include <vector>

namespace canvirtual {

/// A node that always has an 8-byte frame ready, of the identifier 1701.
///
/// Bytes 0 to 3 count the frames (big-endian), 4 to 7 are 0x55. The identifier is high, so that
/// most frames of others win against it.
class SaturatedScenario : public Scenario
{
public:
    static constexpr std::uint32_t identifier = 1701;

    explicit SaturatedScenario(BusTime start);

    BusTime readyAt() const override;
    const PendingFrame& offer(BusTime start) override;
    void sent(BusTime end) override;
    void skipTo(BusTime time) override;

private:
    PendingFrame m_pending;
    std::uint32_t m_sequence = 0;
};

/// A node that always has a frame without data ready: about 20,500 frames a second at 1 Mbit/s.
/// There is no room for a counter but the identifier, which counts from 0 to 2047 and begins again.
class ShortestScenario : public Scenario
{
public:
    explicit ShortestScenario(BusTime start);

    BusTime readyAt() const override;
    const PendingFrame& offer(BusTime start) override;
    void sent(BusTime end) override;
    void skipTo(BusTime time) override;

private:
    std::vector<PendingFrame>
        m_frames; ///< one for each identifier: the lengths are worked out once
    std::size_t m_next = 0;
    BusTime m_readyAt = 0;
};

} // namespace canvirtual

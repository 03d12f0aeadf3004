#pragma once

#include "modules/virtual/Noise.h"
#include "modules/virtual/Scenario.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace canvirtual {

/// Frames that come each at its own rate, a little unevenly, as from many nodes: those that are due
/// at the same time go out by their identifiers.
///
/// The jitter is at most 2 percent of the period and 2 ms, and does not add up.
class PeriodicScenario : public Scenario
{
public:
    BusTime readyAt() const override;
    const PendingFrame& offer(BusTime start) override;
    void sent(BusTime end) override;
    void skipTo(BusTime time) override;

protected:
    struct Line
    {
        BusFrame frame;     ///< all but the payload stays as it is
        BusTime period = 0; ///< positive
    };

    PeriodicScenario(BusTime start, std::vector<Line> lines);

    /// Sets the payload of the frame number `count` (from 0) of a line; `elapsed` is the time since
    /// the scenario began.
    virtual void fill(std::size_t line, std::uint32_t count, BusTime elapsed, BusFrame& frame) = 0;

    BusTime startedAt() const { return m_start; }

    /// The frame last offered.
    PendingFrame& offered() { return m_offered; }

private:
    struct Timing
    {
        BusTime period = 0;
        BusTime nominal = 0; ///< without jitter
        BusTime due = 0;
        std::uint32_t priority = 0;
        std::uint32_t count = 0;
    };

    void plan(Timing& timing);
    void findEarliest();

    BusTime m_start = 0;
    Noise m_noise;
    std::vector<Line> m_lines;
    std::vector<Timing> m_timings;
    PendingFrame m_offered;
    std::size_t m_offeredLine = 0;
    BusTime m_earliest = never;
};

} // namespace canvirtual

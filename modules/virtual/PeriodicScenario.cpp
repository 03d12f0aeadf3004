#include "modules/virtual/PeriodicScenario.h"

#include <algorithm>
#include <utility>

namespace canvirtual {

namespace {

constexpr std::uint32_t noiseSeed = 825;
constexpr BusTime maxJitter = 2 * millisecond;
constexpr BusTime jitterDivisor = 50;

BusTime scaled(BusTime span, double factor)
{
    return static_cast<BusTime>(static_cast<double>(span) * factor);
}

} // namespace

PeriodicScenario::PeriodicScenario(BusTime start, std::vector<Line> lines)
    : m_start(start), m_noise(noiseSeed), m_lines(std::move(lines))
{
    m_timings.reserve(m_lines.size());
    for (const Line& line : m_lines) {
        Timing timing;
        timing.period = line.period;
        timing.nominal = start + maxJitter + scaled(line.period, m_noise.fraction());
        timing.priority = arbitrationPriority(line.frame);
        plan(timing);
        m_timings.push_back(timing);
    }
    findEarliest();
}

void PeriodicScenario::plan(Timing& timing)
{
    const BusTime jitter = std::min(maxJitter, timing.period / jitterDivisor);
    timing.due = timing.nominal + scaled(jitter, 2 * m_noise.fraction() - 1);
}

void PeriodicScenario::findEarliest()
{
    m_earliest = never;
    for (const Timing& timing : m_timings) {
        m_earliest = std::min(m_earliest, timing.due);
    }
}

BusTime PeriodicScenario::readyAt() const
{
    return m_earliest;
}

const PendingFrame& PeriodicScenario::offer(BusTime start)
{
    const Timing* best = nullptr;
    for (std::size_t line = 0; line < m_timings.size(); ++line) {
        const Timing& timing = m_timings[line];
        if (timing.due <= start && (best == nullptr || timing.priority < best->priority)) {
            best = &timing;
            m_offeredLine = line;
        }
    }
    const Timing& timing = m_timings[m_offeredLine];
    BusFrame frame = m_lines[m_offeredLine].frame;
    fill(m_offeredLine, timing.count, timing.due - m_start, frame);
    m_offered = makePending(frame, timing.due);
    return m_offered;
}

void PeriodicScenario::sent(BusTime /*end*/)
{
    Timing& timing = m_timings[m_offeredLine];
    ++timing.count;
    timing.nominal += timing.period;
    plan(timing);
    findEarliest();
}

void PeriodicScenario::skipTo(BusTime time)
{
    for (Timing& timing : m_timings) {
        if (timing.due >= time) {
            continue;
        }
        const BusTime periods = (time - timing.nominal) / timing.period + 1;
        timing.nominal += periods * timing.period;
        timing.count += static_cast<std::uint32_t>(periods);
        plan(timing);
        timing.due = std::max(timing.due, time);
    }
    findEarliest();
}

} // namespace canvirtual

#include "modules/virtual/FaultScenario.h"

#include "modules/virtual/Payload.h"

#include <algorithm>
#include <array>

namespace canvirtual {

namespace {

struct CalmLine
{
    std::uint32_t id;
    int rateHz;
};

constexpr std::array<CalmLine, 5> calmLines = {{
    {300, 50},
    {301, 50},
    {315, 20},
    {500, 10},
    {920, 5},
}};

constexpr std::uint32_t errorSeed = 11898;

} // namespace

CalmScenario::CalmScenario(BusTime start)
    : PeriodicScenario(start, [] {
          std::vector<Line> lines;
          for (const CalmLine& calmLine : calmLines) {
              Line line;
              line.frame.id = calmLine.id;
              line.frame.byteCount = maxClassicBytes;
              line.period = second / calmLine.rateHz;
              lines.push_back(line);
          }
          return lines;
      }())
{
}

void CalmScenario::fill(std::size_t /*line*/, std::uint32_t count, BusTime elapsed, BusFrame& frame)
{
    putBigEndian32(frame, 0, count);
    putBigEndian32(frame, 4, static_cast<std::uint32_t>(elapsed / millisecond));
}

ErrorFramesScenario::ErrorFramesScenario(BusTime start)
    : CalmScenario(start), m_errorNoise(errorSeed)
{
    planError(start);
}

void ErrorFramesScenario::planError(BusTime after)
{
    m_nextError = after + static_cast<BusTime>(2 * m_errorNoise.fraction() *
                                               static_cast<double>(meanInterval));
}

const PendingFrame& ErrorFramesScenario::offer(BusTime start)
{
    CalmScenario::offer(start);
    PendingFrame& pending = offered();
    if (start >= m_nextError) {
        // Somewhere after the arbitration and before the end.
        constexpr int arbitrationBits = 13;
        const auto room = static_cast<std::uint32_t>(pending.bits.total() - arbitrationBits);
        const int sentBits = arbitrationBits + static_cast<int>(m_errorNoise.next() % room);
        pending.bits = errorFrameBits(sentBits, static_cast<int>(m_errorNoise.next() % 7));
        pending.fate = FrameFate::Destroyed;
    }
    return pending;
}

void ErrorFramesScenario::sent(BusTime end)
{
    if (offered().fate == FrameFate::Destroyed) {
        // Not passed on: the frame is still due, and the node sends it again.
        planError(end);
        return;
    }
    CalmScenario::sent(end);
}

BusOffScenario::BusOffScenario(BusTime start) : CalmScenario(start)
{
    BusFrame frame;
    frame.id = 1;
    frame.byteCount = maxClassicBytes;
    m_failing = makePending(frame, errorTime(0));
    constexpr int bitsBeforeError = 25;
    m_failing.bits = errorFrameBits(bitsBeforeError, 6);
    m_failing.fate = FrameFate::OwnDestroyed;
}

BusTime BusOffScenario::errorTime(std::int64_t number) const
{
    constexpr std::int64_t perCycle = passiveErrors + busOffErrors;
    const BusTime cycleStart = startedAt() + number / perCycle * cycle;
    const std::int64_t inCycle = number % perCycle;
    if (inCycle < passiveErrors) {
        return cycleStart + passivePhase + inCycle * 100 * millisecond;
    }
    return cycleStart + busOffPhase + (inCycle - passiveErrors) * 10 * millisecond;
}

BusTime BusOffScenario::readyAt() const
{
    return std::min(CalmScenario::readyAt(), m_failing.readyAt);
}

const PendingFrame& BusOffScenario::offer(BusTime start)
{
    m_failingOffered = m_failing.readyAt <= start;
    return m_failingOffered ? m_failing : CalmScenario::offer(start);
}

void BusOffScenario::sent(BusTime end)
{
    if (!m_failingOffered) {
        CalmScenario::sent(end);
        return;
    }
    m_failing.readyAt = errorTime(++m_errorNumber);
}

void BusOffScenario::skipTo(BusTime time)
{
    CalmScenario::skipTo(time);
    while (m_failing.readyAt < time) {
        m_failing.readyAt = errorTime(++m_errorNumber);
    }
}

LostDeviceScenario::LostDeviceScenario(BusTime start) : CalmScenario(start) {}

BusTime LostDeviceScenario::lostAt() const
{
    return startedAt() + lifetime;
}

} // namespace canvirtual

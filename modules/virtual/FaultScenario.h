#pragma once

#include "modules/virtual/PeriodicScenario.h"

namespace canvirtual {

/// Calm 11-bit traffic, the base of the scenarios in which something goes wrong. Bytes 0 to 3 count
/// the frames of the identifier (big-endian), 4 to 7 hold the milliseconds since the start.
class CalmScenario : public PeriodicScenario
{
public:
    explicit CalmScenario(BusTime start);

protected:
    void fill(std::size_t line, std::uint32_t count, BusTime elapsed, BusFrame& frame) override;
};

/// About five frames a second are destroyed by an error frame and sent again.
class ErrorFramesScenario : public CalmScenario
{
public:
    static constexpr BusTime meanInterval = second / 5;

    explicit ErrorFramesScenario(BusTime start);

    const PendingFrame& offer(BusTime start) override;
    void sent(BusTime end) override;

private:
    void planError(BusTime after);

    Noise m_errorNoise;
    BusTime m_nextError = 0;
};

/// The device's own transmissions fail: in every cycle its controller becomes passive, then goes
/// bus-off, recovers and is undisturbed for a while.
class BusOffScenario : public CalmScenario
{
public:
    static constexpr BusTime cycle = 16 * second;
    /// From here on one transmission in 100 ms fails, 20 in all: passive after 16.
    static constexpr BusTime passivePhase = 4 * second;
    static constexpr int passiveErrors = 20;
    /// From here on one in 10 ms fails, as many as it takes to go bus-off.
    static constexpr BusTime busOffPhase = 8 * second;
    static constexpr int busOffErrors = 50;

    explicit BusOffScenario(BusTime start);

    BusTime readyAt() const override;
    const PendingFrame& offer(BusTime start) override;
    void sent(BusTime end) override;
    void skipTo(BusTime time) override;

private:
    BusTime errorTime(std::int64_t number) const;

    PendingFrame m_failing;
    std::int64_t m_errorNumber = 0; ///< counted from the start through all cycles
    bool m_failingOffered = false;
};

/// Calm traffic for `lifetime`; then the device is lost, as if its cable had been pulled.
class LostDeviceScenario : public CalmScenario
{
public:
    static constexpr BusTime lifetime = 5 * second;

    explicit LostDeviceScenario(BusTime start);

    BusTime lostAt() const override;
};

} // namespace canvirtual

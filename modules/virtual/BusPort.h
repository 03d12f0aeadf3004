#pragma once

#include "modules/support/SendSchedule.h"
#include "modules/virtual/FaultConfinement.h"
#include "modules/virtual/GeneratorNode.h"
#include "modules/virtual/NodeSettings.h"
#include "modules/virtual/Scenario.h"
#include "modules/virtual/ScenarioId.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <vector>

namespace canvirtual {

/// Where a frame on the bus comes from within its port.
enum class FrameSource { Queue, Schedule, Scenario };

/// A frame on the wire, or one that has just left it.
struct WireFrame
{
    PendingFrame pending;
    BusTime end = 0;
    FrameSource source = FrameSource::Queue;
};

/// What a device brings along when it joins a bus.
struct PortSettings
{
    BusRates rates;
    bool receiveOwn = false;
    ScenarioId scenario = ScenarioId::None;
    NodeSettings node;
    std::shared_ptr<GeneratorMemory> generatorMemory = std::make_shared<GeneratorMemory>();
};

/// Counters of a port since it was opened or its counters were cleared.
struct PortCounters
{
    std::uint64_t received = 0; ///< frames of others
    std::uint64_t sent = 0;
    std::uint64_t errorFrames = 0;
    std::uint64_t lost = 0; ///< frames that found the receive queue full
    std::uint64_t busOff = 0;
    BusTime skipped = 0; ///< time for which no scenario made traffic, see `VirtualBus`
};

/// Traffic since the last status report.
struct PortWindow
{
    std::uint64_t receivedBits = 0;
    std::uint64_t sentBits = 0;
    std::uint64_t receivedFrames = 0;
    std::uint64_t sentFrames = 0;
    BusTime busy = 0; ///< time in which the bus carried anything, intermissions included
};

/// All numbers of a status report.
struct PortReport
{
    PortCounters counters;
    PortWindow window;
    BusTime elapsed = 0; ///< length of the window
    DeviceStatus status = DeviceStatus::Closed;
    int transmitErrors = 0;
    int receiveErrors = 0;
    std::size_t queued = 0;
    std::size_t scheduled = 0;
};

/// One device's connection to a bus: transmit queue, schedule, what is simulated beside the device,
/// controller state and received frames. Every call comes under the lock of the bus.
class BusPort
{
public:
    static constexpr std::size_t transmitCapacity = 2'048;
    static constexpr std::size_t receiveCapacity = 200'000;
    static constexpr BusTime reportInterval = second / 5;

    BusPort(const PortSettings& settings, BusTime openedAt);

    /// Puts `frame` at the end of the transmit queue; false if that is full.
    bool queue(const PendingFrame& frame);

    SendSchedule& schedule() { return m_schedule; }

    /// When the port's next frame is ready; `never` if there is none.
    BusTime readyAt() const;
    /// The port's frame with the lowest priority number among those ready at `start`, and where it
    /// comes from; null if none is ready.
    const PendingFrame* offer(BusTime start, FrameSource& source);
    /// The offered frame is on the wire until `end`.
    void taken(FrameSource source, BusTime end);

    /// A frame has left the wire; `ownFrame` if this port sent it.
    void observe(const WireFrame& wire, bool ownFrame);
    /// Counts `span` as time in which the bus was in use.
    void addBusy(BusTime span) { m_window.busy += span; }

    /// Brings the controller's state, and whether the device is lost, up to `time`.
    void settle(BusTime time);
    /// Drops the scenarios' frames before `time`.
    void skipTo(BusTime time);
    void addSkipped(BusTime span) { m_counters.skipped += span; }

    /// Whether anything but the program makes frames here.
    bool hasScenario() const { return !m_scenarios.empty(); }

    bool isBusOff() const { return m_controller.isBusOff(); }

    bool isLost() const { return m_lost; }

    DeviceStatus status() const;

    /// Exchanges the received frames with the empty `frames`.
    void collect(std::vector<BusFrame>& frames) { frames.swap(m_received); }

    /// True once for every report interval.
    bool isReportDue(BusTime now);
    /// The report at `now`; its window starts anew.
    PortReport report(BusTime now);
    /// Sets the counters to 0 and makes a report due.
    void clearCounters();

private:
    void addScenario(std::unique_ptr<Scenario> scenario);
    BusTime ownReadyAt(BusTime frameReadyAt) const;
    void tellScenarios(const WireFrame& wire, bool ownFrame);
    void countFrame(const WireFrame& wire, bool ownFrame);
    void countError(const WireFrame& wire, bool ownFrame);
    void store(const WireFrame& wire, FrameType type);
    void lose();

    PortSettings m_settings;
    std::deque<PendingFrame> m_queue;
    SendSchedule m_schedule;
    PendingFrame m_scheduled; ///< the head of the schedule, once it takes part in arbitration
    std::vector<std::unique_ptr<Scenario>> m_scenarios; ///< the traffic, the node
    Scenario* m_offering = nullptr; ///< whose frame was offered last, and may be on the wire
    FaultConfinement m_controller;
    std::vector<BusFrame> m_received;
    PortCounters m_counters;
    PortWindow m_window;
    BusTime m_bitTime = 0;
    BusTime m_windowStart = 0;
    BusTime m_nextReport = 0;
    BusTime m_suspendedUntil = 0;
    bool m_lost = false;
};

} // namespace canvirtual

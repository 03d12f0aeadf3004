#pragma once

#include "message/MessageCtrl.h"
#include "modules/virtual/BusClock.h"
#include "modules/virtual/BusPort.h"

#include <cstdint>
#include <mutex>
#include <string>
#include <vector>

namespace canvirtual {

/// A CAN bus without wire: it works out which frame would be on it when, and hands each to all
/// ports at the end of its last bit.
///
/// The bus has no thread. Every call brings it up to the present, so that an idle bus costs
/// nothing. A frame is ready when it is sent, starts when the bus is free, and wins or loses the
/// arbitration against the other frames that are ready then; of one port's transmit queue only the
/// first takes part. A frame that becomes ready in the same instant in which the bus was brought up
/// to the present still takes part, so frames sent "at once" arbitrate.
///
/// Every frame counts as acknowledged, even on a bus with a single port.
///
/// If nobody called for longer than `maxCatchUp` (a debugger, a suspended machine), the scenarios
/// leave out what lies further back than that, and the status report tells how much. Frames that a
/// program queued or scheduled are never left out.
///
/// Thread-safe; one lock a bus, and buses share nothing.
class VirtualBus
{
public:
    static constexpr BusTime maxCatchUp = second;

    /// `clock` outlives the bus.
    explicit VirtualBus(const BusClock& clock);

    /// What `collect` found besides frames.
    struct Collected
    {
        bool lost = false;      ///< the port's hardware is gone
        bool reportDue = false; ///< `report` is filled
        PortReport report;
    };

    /// Joins the bus with a new port. Null if the bus is in use at other bit rates, which `error`
    /// then tells.
    std::unique_ptr<BusPort> attach(const PortSettings& settings, std::string& error);
    /// Leaves the bus; what the port has received until now is put into `frames`. Frames that it
    /// still had to send are dropped, except one that is on the wire.
    void detach(BusPort& port, std::vector<BusFrame>& frames);

    enum class SendResult { Queued, QueueFull, Lost };

    /// Queues `frame` from now on; its `readyAt` is set here.
    SendResult send(BusPort& port, PendingFrame frame);

    enum class ScheduleResult { Stored, NotOpen, Full, Lost };

    /// Stores `frame` in the port's schedule, to go out `delay` after its start.
    ScheduleResult schedule(BusPort& port, const BusFrame& frame, BusTime delay);
    /// Carries out a control; false if it is unknown.
    bool control(BusPort& port, zul::MessageCtrl::ECtrl control);

    /// Moves what the port has received into the empty `frames`.
    Collected collect(BusPort& port, std::vector<BusFrame>& frames);
    DeviceStatus status(BusPort& port);

private:
    BusTime advance();
    void skip(BusTime now);
    bool startNext(BusTime now);
    void start(BusPort& port, FrameSource source, const PendingFrame& frame, BusTime startAt);
    void finish();

    const BusClock& m_clock;
    std::mutex m_mutex;
    std::vector<BusPort*> m_ports;
    BusRates m_rates;
    WireFrame m_wire;
    BusPort* m_sender = nullptr; ///< of the frame on the wire; null if it has left meanwhile
    BusTime m_wireBusy = 0;      ///< time of the frame on the wire with its intermission
    BusTime m_freeAt = 0;        ///< earliest start of the next frame
    BusTime m_advancedTo = 0;
    bool m_wireInUse = false;
};

} // namespace canvirtual

#pragma once

#include "modules/virtual/PendingFrame.h"

namespace canvirtual {

/// The simulated node behind a device: it makes traffic, and the bus asks it when and what.
///
/// All calls come under the lock of the bus. A scenario is deterministic: the same start time and
/// the same bus give the same frames.
class Scenario
{
public:
    Scenario() = default;
    virtual ~Scenario();
    Scenario(const Scenario&) = delete;
    Scenario& operator=(const Scenario&) = delete;

    /// When the next frame is ready; `never` if there will be none.
    virtual BusTime readyAt() const = 0;

    /// The frame that takes part in the arbitration at `start`, which is not before `readyAt()`.
    /// It stays valid until the next call.
    virtual const PendingFrame& offer(BusTime start) = 0;

    /// The offered frame has left the bus at `end` (or, if it was to be destroyed, has been).
    virtual void sent(BusTime end) = 0;

    /// Drops everything before `time`: nobody has looked at the bus for long.
    virtual void skipTo(BusTime time) = 0;

    /// A frame of anybody else has left the bus at `end`. Nothing here.
    virtual void observe(const BusFrame& frame, BusTime end);

    /// When the device's hardware is lost.
    virtual BusTime lostAt() const;
};

} // namespace canvirtual

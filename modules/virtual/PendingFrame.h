#pragma once

#include "modules/virtual/FrameLength.h"

namespace canvirtual {

/// What becomes of a frame on the bus.
enum class FrameFate {
    Arrives,
    /// An error frame of the other nodes destroys it: every node counts a receive error.
    Destroyed,
    /// A transmission of the device's own controller that an error frame destroys: it counts a
    /// transmit error, the other nodes a receive error.
    OwnDestroyed
};

/// A frame that waits for the bus, with all that the bus needs to know of it worked out before.
struct PendingFrame
{
    BusFrame frame;
    FrameBits bits;             ///< with a destroyed frame up to the end of the error delimiter
    std::uint32_t priority = 0; ///< see `arbitrationPriority`
    BusTime readyAt = 0;        ///< takes part in arbitration from here on
    FrameFate fate = FrameFate::Arrives;
};

/// `frame`, ready at `readyAt`, with length and priority.
inline PendingFrame makePending(const BusFrame& frame, BusTime readyAt)
{
    return {frame, frameBits(frame), arbitrationPriority(frame), readyAt, FrameFate::Arrives};
}

} // namespace canvirtual

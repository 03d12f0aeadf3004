#pragma once

#include "message/Message.h"
#include "message/MessageContainer.h"
#include "message/SmartPtr.h"
#include "project/ObjectTransmit.h"

#include <cstdint>
#include <optional>
#include <set>
#include <vector>

/// What a Transmit window sends, and when. It makes the batches, addressed to the object's
/// interface; sending them is the caller's. Lines are named by their index, and one that is out of
/// range is ignored. `now` is the application clock in seconds.
class Transmitter
{
public:
    static constexpr int tickPeriodMs = 1;

    /// Whether a periodic line is to be sent at `now`: the time since its last frame must be
    /// longer than its period, not just as long.
    static bool isDue(const SendMsg& line, double now);
    /// The frame of a line, with all its 64 bytes and without a time stamp.
    static SmartPtr<Message> frameOf(const SendMsg& line);

    /// One turn of the timer: all lines that are due in one batch, in list order; nothing if none
    /// is. What a late turn has missed is not caught up.
    ///
    /// Deliberate: the output switch is not asked; it is for what is sent by hand.
    std::optional<MessageContainer> tick(ObjectTransmit& object, double now);

    /// The frame of one line; nothing while the output is off.
    std::optional<MessageContainer> sendLine(const ObjectTransmit& object, int index);
    /// The frames of several lines, each in a batch of its own; none while the output is off.
    std::vector<MessageContainer> sendLines(const ObjectTransmit& object,
                                            const std::set<int>& indexes);
    /// Takes a line as an editor gives it back: all fields but rate and running state. Its frame,
    /// if edits are sent at once and the output is on.
    ///
    /// Deliberate: the time of the last periodic frame is a field like the others. An editor has
    /// the one of when it got the line, so that an edit makes a running line due.
    std::optional<MessageContainer> edit(ObjectTransmit& object, int index, const SendMsg& edited);

    /// Frames so far.
    std::uint32_t transmitted() const { return m_transmitted; }

private:
    MessageContainer batchOf(const ObjectTransmit& object, const SendMsg& line);

    std::uint32_t m_transmitted = 0;
};

/// The line at `index`; null if there is none.
SendMsg* transmitLine(const ObjectTransmit& object, int index);

#pragma once

#include "modules/support/BusFrame.h"
#include "modules/support/Bytes.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace cannetwork {

using namespace canmodule; // NOLINT(google-build-using-namespace)

/// Largest payload of a UDP datagram over IPv4.
constexpr std::size_t maxDatagram = 65'507;

/// Why a datagram was dropped.
enum class DatagramFault {
    None,
    Version, ///< of another version or kind, or of another protocol
    Cut,     ///< ends before it is complete
    TooLong, ///< goes on behind its end
    Frame,   ///< holds a frame that cannot be, such as one with too many bytes
};

/// Reads the datagrams of a protocol. Every datagram counts as a whole: one with a fault gives no
/// frame.
class DatagramDecoder
{
public:
    virtual ~DatagramDecoder();

    /// Appends the frames of `datagram` to `frames`; their times are left to the caller. On a fault
    /// `frames` stays as it was.
    virtual DatagramFault decode(ByteView datagram, std::vector<BusFrame>& frames) = 0;

    /// Datagrams that are missing so far, by the numbers of those that came.
    virtual std::uint64_t missing() const { return 0; }
};

/// Makes datagrams of frames.
class DatagramEncoder
{
public:
    virtual ~DatagramEncoder();

    /// Adds a frame that has no `frameProblem`. False if it does not fit any more. An empty
    /// datagram takes any frame.
    virtual bool add(const BusFrame& frame) = 0;
    virtual bool isEmpty() const = 0;
    /// No further frame belongs in: the datagram is to be sent now.
    virtual bool isComplete() const = 0;
    /// The datagram as it stands, valid until it changes.
    virtual ByteView finish() = 0;
    /// Begins the next datagram: this one has been sent, or is lost.
    virtual void clear() = 0;
};

} // namespace cannetwork

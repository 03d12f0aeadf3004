#pragma once

#include "modules/virtual/Vocabulary.h"

namespace canvirtual {

/// Bit rates of a bus in bits per second; both are positive.
struct BusRates
{
    std::int32_t nominal = 1'000'000;
    std::int32_t data = 2'000'000; ///< between the bit-rate switch and the CRC delimiter
};

/// Length of something on the wire, by the bit rate it is sent with.
struct FrameBits
{
    int nominal = 0;
    int data = 0;

    int total() const { return nominal + data; }
};

/// Recessive bits between two frames (ISO 11898-1, intermission); no part of a frame's length.
constexpr int intermissionBits = 3;

/// Exact length of a data or remote frame from its start bit to its last end-of-frame bit, with
/// all stuff bits. The bit-rate switch is taken to happen after the BRS bit and after the CRC
/// delimiter; the standard's sample points move both ends by the same amount.
FrameBits frameBits(const BusFrame& frame);

/// Length of a frame that is cut off after `sentBits` bits by an error frame: an error flag of 6
/// bits, `echoBits` (0 to 6) more by which the flags of the other nodes trail it, and the delimiter
/// of 8. All of it counts at the nominal bit rate.
FrameBits errorFrameBits(int sentBits, int echoBits);

/// The arbitration field as a number: of two frames that start together the lower one wins. A
/// standard frame beats an extended one of the same base identifier, a data frame the remote one.
std::uint32_t arbitrationPriority(const BusFrame& frame);

/// Time that `bits` take, rounded up to whole nanoseconds.
BusTime duration(const FrameBits& bits, const BusRates& rates);

} // namespace canvirtual

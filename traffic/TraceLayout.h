#pragma once

#include "message/MessageCan.h"
#include "traffic/TraceFrame.h"

#include <QDateTime>

#include <array>
#include <cstddef>
#include <cstdint>

/// The binary trace file: one header, then records up to the end of the file, without a count, an
/// index or a checksum. The writer is little-endian; readers take both orders.
///
///     Header, 128 bytes                        Record, 28 bytes
///      0  u16  0xABBA, tells the order          0  8 bytes  payload bytes 0 to 7
///      2  u16  0, three times                   8  u8       byte count, low 8 bits
///      8  u32  0                                9  u8       0 data, 1 remote, 255 error
///     12  u16  year                            10  u16      channel, low 16 bits
///     14  u8   month, from 1                   12  u32      identifier; bit 31: 29 bits wide
///     15  u8   day                             16  u32      0
///     16  u8   hour, local time                20  u32      second word of the time stamp
///     17  u8   minute                          24  u32      first word of the time stamp
///     18  u8   second
///     19  u8   0
///     20  u32  0, twice
///     28  100 times "A"
namespace trace_layout {

inline constexpr std::size_t headerSize = 128;
inline constexpr std::size_t recordSize = 28;
inline constexpr std::uint16_t marker = 0xABBA;
inline constexpr std::uint32_t extendedBit = 0x80000000U;

using Header = std::array<std::uint8_t, headerSize>;
using Record = std::array<std::uint8_t, recordSize>;

enum class Order { Little, Big };

/// The header of a trace that starts at `start`, in the time zone that it is given in.
Header headerOf(const QDateTime& start);

/// Whatever the mode of the frame, bit 31 of the identifier is as the frame has it. Bytes above 7
/// are not kept, though the byte count tells of them.
Record recordOf(const zul::MessageCan& frame);

/// The u16 at the start of a header, read as little-endian.
std::uint16_t markerOf(const Header& header);

/// A file whose marker is not the writer's is of the other order; no value is refused.
Order orderOf(const Header& header);

/// The frame of the `recordSize` bytes at `record`. Bit 31 stays in the identifier. A frame type
/// that is none of the three counts as data. Of an error frame time and type alone are read; the
/// channel is not read.
TraceFrame frameOf(const std::uint8_t* record, Order order);

} // namespace trace_layout

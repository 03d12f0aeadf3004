#pragma once

#include "message/MessageContainer.h"

#include <QByteArray>

#include <cstdint>

/// What the server asks of the client's pacing.
struct UploadPacing
{
    std::uint32_t messageSeparation = 1; ///< between two frames, milliseconds
    std::uint32_t blockSize = 16;        ///< bytes of a block
    std::uint32_t blockSeparation = 10;  ///< between two blocks, milliseconds
};

/// Bytes that the checksum adds to a file.
inline constexpr std::uint32_t uploadChecksumBytes = 4;

/// The checksum of a file of `size` bytes.
///
/// Deliberate: it is built like a CRC-32 (polynomial 0x04C11DB7, most significant bit first), but
/// of the numbers of the bytes instead of the bytes, so that it depends on the size alone. Servers
/// expect it like this.
std::uint32_t uploadChecksum(std::uint64_t size);

/// Frames that `size` bytes with their checksum take. Deliberate: a multiple of 8 takes one more,
/// which is empty.
std::uint32_t uploadFrameCount(std::uint64_t size);

/// The file and its checksum as one schedule for the device: begin, the frames with the moments at
/// which each is to be sent, end, start. The first frame goes 0.1 s after the start.
///
/// A block is followed by its separation only when the next frame is made: the frame that fills a
/// block still has the message separation behind it.
MessageContainer uploadSchedule(const QByteArray& file, std::uint32_t dataId,
                                const UploadPacing& pacing);

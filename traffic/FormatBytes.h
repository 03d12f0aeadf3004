#pragma once

#include "message/MessageCan.h"

#include <cstddef>

/// Most characters, with the closing 0, that one line of payload takes.
inline constexpr std::size_t payloadLineCapacity = 80;

/// Bytes in one line of payload.
inline constexpr int bytesPerLine = 16;

/// Writes up to 16 payload bytes from `offset` on, in decimal, behind " %2d-> " with the offset. A
/// blank stands between bytes. A frame that has no byte at `offset` gives an empty line.
///
/// Never writes more than `capacity` characters, the closing 0 included; always returns 0.
int formatBytesDec(char* buffer, std::size_t capacity, const zul::MessageCan& frame, int offset);

/// The same in hexadecimal, each byte as "$%02x".
///
/// Deliberate: a blank follows every byte but the one whose index within its line is one below the
/// frame's byte count, so that every line of a frame of more than 16 bytes ends with a blank.
int formatBytesHex(char* buffer, std::size_t capacity, const zul::MessageCan& frame, int offset);

#pragma once

#include "message/MessageCan.h"

#include <cstddef>

namespace zul {

/// A buffer of this size holds every line of `canAerospaceLine`, with the closing 0.
inline constexpr std::size_t canAerospaceLineCapacity = 256;

/// Writes a CANaerospace frame as one line, such as "NOD   1 FLOAT   0 004 | 2.500000": class of
/// the identifier, node id, data type, service, message code, and the payload as the data type in
/// byte 1 has it. Hexadecimal if `numberType` is 1. The byte count of the frame counts for nothing.
///
/// Deliberate: a character of the payload that is 0 ends the line.
/// Deliberate: unsigned numbers of 32 bits have a sign in decimal: 4294967295 is "-1".
///
/// Never writes more than `capacity` characters, the closing 0 included; always returns 0. Takes no
/// memory.
int canAerospaceLine(char* buffer, std::size_t capacity, const MessageCan& message, int numberType);

} // namespace zul

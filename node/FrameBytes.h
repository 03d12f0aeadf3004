#pragma once

#include "message/MessageCan.h"

#include <cstdint>

// Numbers in payloads, most significant byte first. Bytes beyond the frame's byte count are read
// and written like the others; positions beyond the payload read as 0 and take nothing.

/// Writes the low 16 bits of `value`.
void putWord(zul::MessageCan& frame, int at, std::uint32_t value);
/// Writes 32 bits.
void putLong(zul::MessageCan& frame, int at, std::uint32_t value);
/// The unsigned number of 16 bits.
std::uint32_t wordAt(const zul::MessageCan& frame, int at);
/// The unsigned number of 32 bits.
std::uint32_t longAt(const zul::MessageCan& frame, int at);

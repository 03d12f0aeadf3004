#pragma once

#include "modules/virtual/FlightTables.h"
#include "modules/virtual/Vocabulary.h"

#include <cstddef>
#include <cstdint>

namespace canvirtual {

/// Bytes that a value of `type` takes; 1 for those that lie within a byte, 0 for NODATA, 8 for
/// OPAQUE.
std::size_t arincByteCount(ArincType type);

/// Byte count of a CANaerospace frame of `type`, the four header bytes included.
std::uint32_t canasByteCount(CanasType type);

/// Puts `value`, limited to the parameter's range, into `frame`. Integers are scaled to the range:
/// the signed ones span -max to +max, the unsigned ones min to max. ENUM, BOOL, BCD and ACHAR take
/// the value as it is, OPAQUE fills the frame's bytes with a pattern that starts with it.
void encodeArinc(const ArincParameter& parameter, double value, BusFrame& frame);

/// Header and payload of the frame number `count` at `seconds`.
void encodeCanas(const CanasParameter& parameter, std::uint32_t count, double seconds,
                 BusFrame& frame);

} // namespace canvirtual

#pragma once

#include "message/MessageCan.h"
#include "profile/ProfileParameter.h"

#include <cstdint>
#include <optional>

/// How numbers are read from frames.
///
/// The first eight data bytes are reachable, whatever the byte count of the frame: beyond it counts
/// what the data area holds. What would lie behind byte 7 reads as 0, and so does a byte whose
/// position is above 7. Numbers from frames are big-endian unless told otherwise. Nothing here
/// fails, allocates or locks; every position and code from a file has a defined result, and what a
/// single cannot hold becomes infinite.
namespace zul {

/// The value of a parameter in a frame, by the parameter's kind; 0.0 for a kind that is none.
///
/// The kinds CanAerospace and Raw read a number in single precision, scale it by `scaleFactor` and
/// `scaleOffset`, and round the result to single precision.
double valueOf(const MessageCan& message, const ProfileParameter& parameter);

/// The value of a parameter whose `dtc` is an `ArincType`, of whatever kind it is; 0.0 for other
/// codes. `scaleFactor` and `scaleOffset` play no part.
///
/// Deliberate: signed integers go from -`max` to +`max` and ignore `min`.
/// Deliberate: what lies above the end position of an ENUM is not cut off here, see `enumValue`.
double arincValue(const MessageCan& message, const ProfileParameter& parameter);

/// The bits of an ENUM from start to end position; none if the end lies before the start. A start
/// outside of the eight bytes gives 0.
std::optional<std::uint64_t> enumValue(const MessageCan& message,
                                       const ProfileParameter& parameter);

/// The number at an index of `rawSelections`, as it lies there; big-endian unless `byteOrder`,
/// a number as that of `ProfileParameter::endian`, is 0. An index beyond them reads the bytes 0 to
/// 3 as a single.
///
/// Deliberate: "Int 0..3" reads the bytes 4 to 7, as "Int 4..7" does.
float rawValue(const MessageCan& message, std::uint32_t index, std::uint32_t byteOrder);

} // namespace zul

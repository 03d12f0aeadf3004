#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace zul {
class MessageCan;
}

// The lights of a frame's first eight bytes, and the small numbers on them.

inline constexpr int lightBytes = 8;
inline constexpr int lightBits = 8; ///< of a byte

/// Below any data type of CANaerospace.
inline constexpr int noLightDataType = -1;

/// The number on the light of a byte and a bit, both 0 to 7, or none. For `noLightDataType` it is
/// the bit's number in the payload read as one big-endian word. A data type numbers the bits of the
/// value that it has in the bytes 4 to 7, each value from 0; none stands beyond the values.
std::optional<int> lightNumber(int byte, int bit, int dataType);

/// The data type of a CANaerospace frame, which lies in its second byte. Whether it is such a frame
/// is not asked.
int lightDataType(const zul::MessageCan& frame);

/// By byte and bit. Bytes that the frame does not have are off; of a longer frame the first eight
/// count.
using LightStates = std::array<std::array<bool, lightBits>, lightBytes>;
LightStates lightStates(const zul::MessageCan& frame);

#pragma once

#include "modules/virtual/Vocabulary.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <limits>

namespace canvirtual {

/// Writes the low `bytes` bytes (1 to 8) of `value` at `offset`, most significant first, as both
/// ARINC 825 and CANaerospace order numbers.
inline void putBigEndian(BusFrame& frame, std::size_t offset, std::uint64_t value,
                         std::size_t bytes)
{
    for (std::size_t index = 0; index < bytes; ++index) {
        frame.data.at(offset + index) =
            static_cast<std::uint8_t>(value >> (8U * (bytes - 1 - index)) & 0xFFU);
    }
}

inline void putBigEndian32(BusFrame& frame, std::size_t offset, std::uint32_t value)
{
    putBigEndian(frame, offset, value, 4);
}

/// The number that `putBigEndian32` wrote.
inline std::uint32_t bigEndian32(const BusFrame& frame, std::size_t offset)
{
    std::uint32_t value = 0;
    for (std::size_t index = 0; index < 4; ++index) {
        value = value << 8U | frame.data.at(offset + index);
    }
    return value;
}

/// IEEE 754 single precision; a finite number beyond it becomes the largest one.
inline void putFloat(BusFrame& frame, std::size_t offset, double value)
{
    constexpr double largest = std::numeric_limits<float>::max();
    const double held = std::isfinite(value) ? std::clamp(value, -largest, largest) : value;
    const auto single = static_cast<float>(held);
    std::uint32_t pattern = 0;
    std::memcpy(&pattern, &single, sizeof(pattern));
    putBigEndian32(frame, offset, pattern);
}

/// IEEE 754 double precision.
inline void putDouble(BusFrame& frame, std::size_t offset, double value)
{
    std::uint64_t pattern = 0;
    std::memcpy(&pattern, &value, sizeof(pattern));
    putBigEndian(frame, offset, pattern, 8);
}

} // namespace canvirtual

#pragma once

#include <cstdint>

namespace zul {

/// Linear position of a bit in the first eight data bytes of a frame: 0 is bit 0 of byte 7, 63 is
/// bit 7 of byte 0. Bytes and bits out of range count on, negative ones too, so that
/// the position may lie outside 0 to 63.
constexpr std::int64_t linearPosition(std::uint32_t byte, std::uint32_t bit)
{
    constexpr std::int64_t lastByte = 7;
    constexpr std::int64_t bitsPerByte = 8;
    return static_cast<std::int32_t>(bit) +
           (lastByte - static_cast<std::int32_t>(byte)) * bitsPerByte;
}

} // namespace zul

#pragma once

#include "profile/ProfileParameter.h"

#include <array>
#include <cstdint>
#include <optional>
#include <unordered_map>

namespace zul {

/// Linear position of a bit in the first eight data bytes of a frame: 0 is bit 0 of byte 7, 63 is
/// bit 7 of byte 0. Bytes and bits out of range give a position outside 0 to 63.
constexpr std::int64_t linearPosition(std::uint32_t byte, std::uint32_t bit)
{
    return std::int64_t{bit} + (7 - std::int64_t{byte}) * 8;
}

/// Finds parameters of one profile that share bits of a frame.
class OverlapCheck
{
public:
    /// Marks the bits of a parameter with its line, which is above 0. The line that marked the
    /// first bit that was taken already, or nothing. Marking ends at that bit. Bits outside the 64
    /// of a frame are ignored.
    std::optional<int> mark(const ProfileParameter& parameter, int line);

private:
    static constexpr std::int64_t cellCount = 64;
    using Cells = std::array<int, cellCount>; ///< line that marked a bit last, or 0

    std::unordered_map<std::uint32_t, Cells> m_frames; ///< by identifier
};

} // namespace zul

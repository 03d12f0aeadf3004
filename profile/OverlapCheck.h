#pragma once

#include "profile/ProfileParameter.h"

#include <array>
#include <cstdint>
#include <optional>
#include <unordered_map>

namespace zul {

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

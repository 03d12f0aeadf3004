#pragma once

#include "profile/ProfileParameter.h"

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

namespace zul {

/// Finds parameters of one profile that share bits of a frame.
class OverlapCheck
{
public:
    /// Marks the bits of a parameter with its line. The line that marked the first bit that was
    /// taken already, or nothing. Marking ends at that bit. Bits outside the 64 of a frame are
    /// ignored.
    std::optional<int> mark(const ProfileParameter& parameter, int line);

private:
    /// Bits that were marked by one line, `last` included.
    struct Run
    {
        std::uint8_t first;
        std::uint8_t last;
        int line;
    };

    struct Frame
    {
        std::uint64_t taken = 0;
        std::vector<Run> runs{}; ///< a later one overwrites the earlier ones
    };

    std::unordered_map<std::uint32_t, Frame> m_frames; ///< by identifier
};

} // namespace zul

#include "profile/OverlapCheck.h"

#include "profile/BitPosition.h"

#include <algorithm>

namespace zul {

std::optional<int> OverlapCheck::mark(const ProfileParameter& parameter, int line)
{
    const std::int64_t first = linearPosition(parameter.sppByte, parameter.sppBit);
    const std::int64_t last = linearPosition(parameter.eppByte, parameter.eppBit);
    Cells& cells = m_frames[parameter.id];
    for (std::int64_t i = std::max<std::int64_t>(first, 0); i <= std::min(last, cellCount - 1);
         ++i) {
        int& cell = cells.at(static_cast<std::size_t>(i));
        const int earlier = cell;
        cell = line;
        if (earlier != 0) {
            return earlier;
        }
    }
    return std::nullopt;
}

} // namespace zul

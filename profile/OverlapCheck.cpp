#include "profile/OverlapCheck.h"

#include "profile/BitPosition.h"

#include <algorithm>

namespace zul {

namespace {

constexpr std::int64_t lastBit = 63;

constexpr std::uint64_t bitsUpTo(std::int64_t bit)
{
    return ~std::uint64_t{0} >> (lastBit - bit);
}

} // namespace

std::optional<int> OverlapCheck::mark(const ProfileParameter& parameter, int line)
{
    const std::int64_t first =
        std::max<std::int64_t>(linearPosition(parameter.sppByte, parameter.sppBit), 0);
    std::int64_t last = std::min(linearPosition(parameter.eppByte, parameter.eppBit), lastBit);
    if (first > last) {
        return std::nullopt;
    }
    Frame& frame = m_frames[parameter.id];
    std::optional<int> earlier;
    for (std::int64_t bit = first; bit <= last && !earlier; ++bit) {
        if ((frame.taken >> bit & 1) == 0) {
            continue;
        }
        // The line that marked a bit last is found from the end; each bit that is found is marked
        // anew, so that the search is short however many parameters there are.
        const auto run =
            std::find_if(frame.runs.rbegin(), frame.runs.rend(), [bit](const Run& marked) {
                return marked.first <= bit && bit <= marked.last;
            });
        earlier = run->line;
        last = bit;
    }
    frame.taken |= bitsUpTo(last) & ~(bitsUpTo(first) >> 1);
    frame.runs.push_back({static_cast<std::uint8_t>(first), static_cast<std::uint8_t>(last), line});
    return earlier;
}

} // namespace zul

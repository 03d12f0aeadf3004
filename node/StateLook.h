#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// How a state is shown: its text, and the colour behind it.
struct StateLook
{
    std::int32_t state;
    const char* text;
    std::uint8_t red;
    std::uint8_t green;
    std::uint8_t blue;
};

/// The row of `state`; the first row if it has none.
template <std::size_t Size>
constexpr const StateLook& lookOf(const std::array<StateLook, Size>& looks, std::int32_t state)
{
    for (const StateLook& look : looks) {
        if (look.state == state) {
            return look;
        }
    }
    return looks.front();
}

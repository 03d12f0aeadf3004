#pragma once

#include <cstddef>
#include <cstdint>

namespace canmodule {

/// Bytes that somebody else holds.
struct ByteView
{
    const std::uint8_t* data = nullptr;
    std::size_t size = 0;
};

} // namespace canmodule

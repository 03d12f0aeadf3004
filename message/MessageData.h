#pragma once

#include "message/MessageInterfaceExport.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace zul {

/// The payload of one frame: 64 bytes, 0 until set. A classic frame uses the bytes 0 to 7.
class MESSAGE_INTERFACE_EXPORT MessageData
{
public:
    static constexpr std::int32_t size = 64;

    MessageData();

    /// The byte at `index`, 0 to 63. Outside that range it is a spare byte that reads as 0 and
    /// whose writing changes nothing.
    std::uint8_t& operator[](std::int32_t index);
    const std::uint8_t& operator[](std::int32_t index) const;

private:
    std::array<std::uint8_t, static_cast<std::size_t>(size)> m_bytes{};
};

} // namespace zul

#pragma once

#include <cstdint>
#include <cstring>

namespace zul {

/// Which byte of a number lies first in memory.
enum class HostOrder { Little, Big };

/// The order of this host. It cannot change, so that it is settled when the program is compiled and
/// `bigEndianToHost` becomes one instruction, or none.
inline constexpr HostOrder hostOrder =
    __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__ ? HostOrder::Big : HostOrder::Little;

/// A number whose bytes were copied from a frame, most significant first, as the number that they
/// mean: reversed on a little-endian host, as it is on a big-endian one.
constexpr std::uint16_t bigEndianToHost(std::uint16_t value, HostOrder order = hostOrder)
{
    return order == HostOrder::Big ? value : __builtin_bswap16(value);
}

/// \overload
constexpr std::uint32_t bigEndianToHost(std::uint32_t value, HostOrder order = hostOrder)
{
    return order == HostOrder::Big ? value : __builtin_bswap32(value);
}

/// \overload
constexpr std::uint64_t bigEndianToHost(std::uint64_t value, HostOrder order = hostOrder)
{
    return order == HostOrder::Big ? value : __builtin_bswap64(value);
}

/// The number that lies at `bytes` as the host would have put it there; they need not be aligned.
template <typename Unsigned>
Unsigned loadBits(const std::uint8_t* bytes)
{
    Unsigned bits = 0;
    std::memcpy(&bits, bytes, sizeof bits);
    return bits;
}

/// The number, of whatever type, that has these bits.
template <typename Number, typename Bits>
Number numberOfBits(Bits bits)
{
    static_assert(sizeof(Number) == sizeof(Bits));
    Number number{};
    std::memcpy(&number, &bits, sizeof number);
    return number;
}

} // namespace zul

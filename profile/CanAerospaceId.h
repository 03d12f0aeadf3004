#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// Identifiers and header of CANaerospace: the value of the identifier names the class of the
/// message; the data bytes 0 to 3 are node id, data type, service code and message code.
namespace zul::canaerospace {

inline constexpr int nodeIdByte = 0;
inline constexpr int dataTypeByte = 1;
inline constexpr int serviceCodeByte = 2;
inline constexpr int messageCodeByte = 3;
inline constexpr int payloadByte = 4; ///< the first one; most significant byte first

/// Identifiers up to `last`, from the class before on.
struct MessageClass
{
    std::uint32_t last;
    const char* label;
    bool isNodeService; ///< the service code has a name
};

inline constexpr std::array<MessageClass, 8> messageClasses{{
    {127, "EED", false},
    {199, "NSH", true},
    {299, "UDH", false},
    {1799, "NOD", false},
    {1899, "UDL", false},
    {1999, "DSD", false},
    {2031, "NSL", true},
    {0xffffffff, "29B", false},
}};

constexpr const MessageClass& messageClass(std::uint32_t id)
{
    std::size_t i = 0;
    while (id > messageClasses[i].last) {
        ++i;
    }
    return messageClasses[i];
}

/// Names of the service codes from 0 on.
///
/// Deliberate: the decoder knows the first seven alone, `serviceName`; an editor offers them all.
inline constexpr std::array<const char*, 8> services{"IDS", "NSS", "DDS", "DUS",
                                                     "SCS", "TIS", "FPS", "STS"};
inline constexpr std::uint32_t decodedServices = 7;

/// The name of a service code in a frame of that identifier; null where it is shown as a number.
constexpr const char* serviceName(std::uint32_t id, std::uint32_t code)
{
    return messageClass(id).isNodeService && code < decodedServices ? services[code] : nullptr;
}

} // namespace zul::canaerospace

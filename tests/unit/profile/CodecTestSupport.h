#pragma once

#include "message/MessageCan.h"
#include "profile/DataTypes.h"
#include "profile/ProfileParameter.h"

#include <array>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <string>

/// What the tests of the profile floor's codec share.
namespace zul::test {

using EightBytes = std::array<std::uint8_t, 8>;

/// A frame with these bytes in front, and 0xEE behind them, where the codec is not to look.
inline MessageCan frameOf(const EightBytes& bytes, std::uint32_t id = 0)
{
    MessageCan frame;
    frame.setId(id);
    frame.setByteCount(8);
    for (std::int32_t i = 0; i < MessageData::size; ++i) {
        const auto index = static_cast<std::size_t>(i);
        frame.msg()[i] = index < bytes.size() ? bytes[index] : 0xEE;
    }
    return frame;
}

/// From start to end, as byte and bit.
struct Position
{
    std::uint32_t sppByte = 0;
    std::uint32_t sppBit = 0;
    std::uint32_t eppByte = 0;
    std::uint32_t eppBit = 0;
};

inline ProfileParameter arincParameter(ArincType type, const Position& position, double min = 0.0,
                                       double max = 1.0)
{
    ProfileParameter parameter;
    parameter.parameterKind = ParameterKind::Arinc825;
    parameter.dtc = static_cast<std::uint32_t>(type);
    parameter.sppByte = position.sppByte;
    parameter.sppBit = position.sppBit;
    parameter.eppByte = position.eppByte;
    parameter.eppBit = position.eppBit;
    parameter.min = min;
    parameter.max = max;
    return parameter;
}

/// What sprintf writes.
#if defined(__GNUC__)
__attribute__((format(printf, 1, 2)))
#endif
inline std::string
printed(const char* format, ...)
{
    std::array<char, 2000> buffer{};
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(buffer.data(), buffer.size(), format, arguments);
    va_end(arguments);
    return buffer.data();
}

} // namespace zul::test

#include "modules/virtual/FlightEncoding.h"

#include "modules/virtual/Payload.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace canvirtual {

namespace {

/// How a CANaerospace type lies in the payload.
struct CanasLayout
{
    std::size_t elements;
    std::size_t elementBytes;
};

constexpr std::size_t canasHeaderBytes = 4;

constexpr std::array<CanasLayout, 30> canasLayouts = {{
    {0, 0}, {0, 0}, {1, 4}, {1, 4}, {1, 4}, {1, 4}, // NODATA, ERROR, FLOAT, LONG, ULONG, BLONG
    {1, 2}, {1, 2}, {1, 2},                         // SHORT, USHORT, BSHORT
    {1, 1}, {1, 1}, {1, 1},                         // CHAR, UCHAR, BCHAR
    {2, 2}, {2, 2}, {2, 2},                         // two shorts
    {4, 1}, {4, 1}, {4, 1},                         // four bytes
    {2, 1}, {2, 1}, {2, 1},                         // two bytes
    {1, 4}, {1, 4},                                 // MEMID, CHKSUM
    {1, 1}, {2, 1}, {4, 1},                         // ACHAR, ACHAR_2, ACHAR_4
    {3, 1}, {3, 1}, {3, 1}, {3, 1},                 // three bytes
}};

const CanasLayout& layoutOf(CanasType type)
{
    return canasLayouts.at(static_cast<std::size_t>(type));
}

bool isLetters(CanasType type)
{
    return type == CanasType::AChar || type == CanasType::AChar2 || type == CanasType::AChar3 ||
           type == CanasType::AChar4;
}

/// The integer of `bytes` bytes nearest to `raw`, as its bit pattern; negative ones complemented.
std::uint64_t integerPattern(double raw, std::size_t bytes)
{
    // The largest numbers below 2^63 and 2^64 that a double can hold.
    constexpr double largestSigned = 9'223'372'036'854'774'784.0;
    constexpr double largestUnsigned = 18'446'744'073'709'549'568.0;
    const double rounded = std::round(raw);
    if (rounded < 0.0) {
        return static_cast<std::uint64_t>(
            static_cast<std::int64_t>(std::max(rounded, -largestSigned)));
    }
    const double largest = std::ldexp(1.0, static_cast<int>(bytes * 8)) - 1.0;
    return static_cast<std::uint64_t>(std::min({rounded, largest, largestUnsigned}));
}

/// The number that stands for the whole range of an integer of `bytes` bytes.
double fullScale(std::size_t bytes)
{
    return std::ldexp(1.0, static_cast<int>(bytes * 8)) - 1.0;
}

void putSigned(BusFrame& frame, const ArincParameter& parameter, double value)
{
    const std::size_t bytes = arincByteCount(parameter.type);
    const double raw = value * fullScale(bytes) / (2.0 * parameter.max);
    const double limit = std::ldexp(1.0, static_cast<int>(bytes * 8) - 1) - 1.0;
    putBigEndian(frame, static_cast<std::size_t>(parameter.position.byte),
                 integerPattern(std::clamp(raw, -limit, limit), bytes), bytes);
}

void putUnsigned(BusFrame& frame, const ArincParameter& parameter, double value)
{
    const std::size_t bytes = arincByteCount(parameter.type);
    const double raw = (value - parameter.min) * fullScale(bytes) / (parameter.max - parameter.min);
    putBigEndian(frame, static_cast<std::size_t>(parameter.position.byte),
                 integerPattern(raw, bytes), bytes);
}

void putBits(BusFrame& frame, const BytePosition& position, double value)
{
    const std::uint32_t mask = (1U << static_cast<unsigned>(position.width)) - 1U;
    std::uint8_t& byte = frame.data.at(static_cast<std::size_t>(position.byte));
    const std::uint32_t bits = static_cast<std::uint32_t>(value) & mask;
    byte = static_cast<std::uint8_t>(byte | bits << static_cast<unsigned>(position.bit));
}

void putOpaque(BusFrame& frame, double value)
{
    const auto first = static_cast<std::uint32_t>(value);
    for (std::uint32_t index = 0; index < frame.byteCount; ++index) {
        frame.data.at(index) = static_cast<std::uint8_t>(first + 0x11U * index);
    }
}

} // namespace

std::size_t arincByteCount(ArincType type)
{
    switch (type) {
    case ArincType::NoData:
        return 0;
    case ArincType::Enum:
    case ArincType::Char:
    case ArincType::UChar:
    case ArincType::AChar:
    case ArincType::Bool:
    case ArincType::Bcd:
        return 1;
    case ArincType::Short:
    case ArincType::UShort:
        return 2;
    case ArincType::Long:
    case ArincType::ULong:
    case ArincType::Float:
        return 4;
    case ArincType::Long64:
    case ArincType::ULong64:
    case ArincType::Double:
    case ArincType::Opaque:
        return 8;
    }
    return 0;
}

std::uint32_t canasByteCount(CanasType type)
{
    const CanasLayout& layout = layoutOf(type);
    return static_cast<std::uint32_t>(canasHeaderBytes + layout.elements * layout.elementBytes);
}

void encodeArinc(const ArincParameter& parameter, double value, BusFrame& frame)
{
    const double limited = std::clamp(value, parameter.min, parameter.max);
    const auto offset = static_cast<std::size_t>(parameter.position.byte);
    switch (parameter.type) {
    case ArincType::NoData:
        break;
    case ArincType::Char:
    case ArincType::Short:
    case ArincType::Long:
    case ArincType::Long64:
        putSigned(frame, parameter, limited);
        break;
    case ArincType::UChar:
    case ArincType::UShort:
    case ArincType::ULong:
    case ArincType::ULong64:
        putUnsigned(frame, parameter, limited);
        break;
    case ArincType::AChar:
        frame.data.at(offset) = static_cast<std::uint8_t>(limited);
        break;
    case ArincType::Float:
        putFloat(frame, offset, limited);
        break;
    case ArincType::Double:
        putDouble(frame, offset, limited);
        break;
    case ArincType::Opaque:
        putOpaque(frame, value);
        break;
    case ArincType::Enum:
    case ArincType::Bool:
    case ArincType::Bcd:
        putBits(frame, parameter.position, limited);
        break;
    }
}

void encodeCanas(const CanasParameter& parameter, std::uint32_t count, double seconds,
                 BusFrame& frame)
{
    frame.data[0] = parameter.nodeId;
    frame.data[1] = static_cast<std::uint8_t>(parameter.type);
    frame.data[2] = parameter.serviceCode;
    frame.data[3] = static_cast<std::uint8_t>(count);
    const CanasLayout& layout = layoutOf(parameter.type);
    for (std::size_t element = 0; element < layout.elements; ++element) {
        const std::size_t offset = canasHeaderBytes + element * layout.elementBytes;
        if (isLetters(parameter.type)) {
            frame.data.at(offset) = static_cast<std::uint8_t>(flightNumber[element]);
            continue;
        }
        const double value = parameter.value(seconds + 0.5 * static_cast<double>(element));
        if (parameter.type == CanasType::Float) {
            putFloat(frame, offset, value);
        } else {
            putBigEndian(frame, offset, integerPattern(value, layout.elementBytes),
                         layout.elementBytes);
        }
    }
}

} // namespace canvirtual

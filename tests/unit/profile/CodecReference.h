#pragma once

#include "profile/ProfileParameter.h"
#include "tests/unit/profile/CodecTestSupport.h"

#include <cmath>
#include <optional>

/// The codec once more, byte by byte and bit by bit, to hold the real one against.
namespace zul::test::reference {

inline std::uint64_t byteAt(const EightBytes& bytes, std::uint64_t position)
{
    return position < bytes.size() ? bytes[position] : 0;
}

inline std::uint64_t bigEndian(const EightBytes& bytes, std::uint64_t position, unsigned count)
{
    std::uint64_t value = 0;
    for (unsigned i = 0; i < count; ++i) {
        value = value * 256 + byteAt(bytes, position + i);
    }
    return value;
}

/// With `endian` 0 the first byte is the least significant one.
inline std::uint64_t inOrder(const EightBytes& bytes, unsigned position, unsigned count,
                             std::uint32_t endian)
{
    if (endian != 0) {
        return bigEndian(bytes, position, count);
    }
    std::uint64_t value = 0;
    for (unsigned i = count; i > 0; --i) {
        value = value * 256 + byteAt(bytes, position + i - 1);
    }
    return value;
}

/// `value` of `count` bytes as two's complement.
inline double withSign(std::uint64_t value, unsigned count)
{
    const std::uint64_t highest = std::uint64_t{1} << (8 * count - 1);
    if (value < highest) {
        return static_cast<double>(value);
    }
    // The distance to 0, which 64 bits hold in every case.
    return -(static_cast<double>(highest - 1 - (value - highest) + 1));
}

/// From its sign, exponent and fraction; a not-a-number keeps its sign alone.
inline double ieee(std::uint64_t bits, int exponentBits, int fractionBits)
{
    const double sign = (bits >> (exponentBits + fractionBits)) % 2 != 0 ? -1.0 : 1.0;
    const auto maxExponent = (1 << exponentBits) - 1;
    const auto exponent = static_cast<int>(bits >> fractionBits) & maxExponent;
    const std::uint64_t fraction = bits % (std::uint64_t{1} << fractionBits);
    const int bias = maxExponent / 2;
    if (exponent == maxExponent) {
        return fraction == 0 ? sign * HUGE_VAL : std::copysign(std::nan(""), sign);
    }
    const double hidden = exponent == 0 ? 0.0 : std::ldexp(1.0, fractionBits);
    return sign * std::ldexp(hidden + static_cast<double>(fraction),
                             (exponent == 0 ? 1 : exponent) - bias - fractionBits);
}

inline double ieeeSingle(std::uint64_t bits)
{
    return ieee(bits, 8, 23);
}

inline double ieeeDouble(std::uint64_t bits)
{
    return ieee(bits, 11, 52);
}

inline std::int64_t linear(std::uint32_t byte, std::uint32_t bit)
{
    return std::int64_t{static_cast<std::int32_t>(bit)} +
           (7 - std::int64_t{static_cast<std::int32_t>(byte)}) * 8;
}

/// `count` bits from the start position on, or all there are.
inline std::uint64_t bitsFrom(const EightBytes& bytes, std::int64_t start, std::int64_t count)
{
    std::uint64_t value = 0;
    if (start < 0) {
        return 0;
    }
    for (std::int64_t i = 0; i < count && start + i < 64; ++i) {
        const std::int64_t position = start + i;
        const std::uint64_t byte = bytes[static_cast<std::size_t>(7 - position / 8)];
        value |= (byte >> (position % 8) & 1U) << i;
    }
    return value;
}

inline std::uint64_t startByteBits(const EightBytes& bytes, const ProfileParameter& parameter,
                                   std::uint64_t modulus)
{
    std::uint64_t byte = byteAt(bytes, parameter.sppByte);
    for (std::uint32_t i = 0; i < parameter.sppBit && byte != 0; ++i) {
        byte /= 2;
    }
    return byte % modulus;
}

inline std::optional<std::uint64_t> enumValue(const EightBytes& bytes,
                                              const ProfileParameter& parameter)
{
    const std::int64_t start = linear(parameter.sppByte, parameter.sppBit);
    const std::int64_t end = linear(parameter.eppByte, parameter.eppBit);
    if (end < start) {
        return std::nullopt;
    }
    return bitsFrom(bytes, start, end - start + 1);
}

inline double arincValue(const EightBytes& bytes, const ProfileParameter& parameter)
{
    const auto whole = [&](unsigned count) { return bigEndian(bytes, parameter.eppByte, count); };
    const auto symmetric = [&](std::uint64_t value, unsigned count, double steps) {
        return withSign(value, count) * (2 * parameter.max / steps);
    };
    const auto ranged = [&](std::uint64_t value, double steps) {
        return static_cast<double>(value) * ((parameter.max - parameter.min) / steps) +
               parameter.min;
    };
    switch (parameter.dtc) {
    case 1:
        return enumValue(bytes, parameter)
                   ? static_cast<double>(
                         bitsFrom(bytes, linear(parameter.sppByte, parameter.sppBit), 64))
                   : 0.0;
    case 2:
        return symmetric(whole(1), 1, 255.0);
    case 3:
        return ranged(whole(1), 255.0);
    case 4:
        return static_cast<double>(byteAt(bytes, parameter.sppByte));
    case 5:
        return symmetric(whole(2), 2, 65535.0);
    case 6:
        return ranged(whole(2), 65535.0);
    case 7:
        return symmetric(whole(4), 4, 4294967295.0);
    case 8:
        return ranged(whole(4), 4294967295.0);
    case 9:
        return ieeeSingle(whole(4));
    case 10:
        return symmetric(bigEndian(bytes, 0, 8), 8, 18446744073709551616.0);
    case 11:
        return ranged(bigEndian(bytes, 0, 8), 18446744073709551616.0);
    case 12:
        return ieeeDouble(bigEndian(bytes, 0, 8));
    case 14:
        return static_cast<double>(startByteBits(bytes, parameter, 2));
    case 15:
        return static_cast<double>(startByteBits(bytes, parameter, 16));
    default:
        return 0.0;
    }
}

inline double canAerospaceReading(const EightBytes& bytes, std::uint32_t code)
{
    static const std::array<const char*, 30> readings{
        "none",   "ulong",  "float", "long",  "ulong",  "ulong",  "short",  "ushort",
        "ushort", "char",   "uchar", "uchar", "short",  "ushort", "ushort", "char",
        "uchar",  "header", "char",  "uchar", "header", "ulong",  "ulong",  "uchar",
        "uchar",  "uchar",  "char",  "uchar", "header", "uchar"};
    const std::string reading = code < readings.size() ? readings[code] : "header";
    if (reading == "none") {
        return 0.0;
    }
    if (reading == "ulong") {
        return static_cast<double>(bigEndian(bytes, 4, 4));
    }
    if (reading == "long") {
        return withSign(bigEndian(bytes, 4, 4), 4);
    }
    if (reading == "float") {
        return ieeeSingle(bigEndian(bytes, 4, 4));
    }
    if (reading == "short") {
        return withSign(bigEndian(bytes, 4, 2), 2);
    }
    if (reading == "ushort") {
        return static_cast<double>(bigEndian(bytes, 4, 2));
    }
    if (reading == "char") {
        return withSign(bytes[4], 1);
    }
    if (reading == "uchar") {
        return bytes[4];
    }
    return ieeeSingle(inOrder(bytes, 0, 4, 0)); // on a host whose order that is
}

inline float rawReading(const EightBytes& bytes, std::uint32_t index, std::uint32_t endian)
{
    if (index < 8) {
        return bytes[index];
    }
    if (index < 12) {
        return static_cast<float>(withSign(inOrder(bytes, (index - 8) * 2, 2, endian), 2));
    }
    switch (index) {
    case 12:
    case 13:
        return static_cast<float>(withSign(inOrder(bytes, 4, 4, endian), 4));
    case 15:
        return static_cast<float>(ieeeSingle(inOrder(bytes, 4, 4, endian)));
    case 16:
        // Rounded once: a double between would round twice.
        return static_cast<float>(static_cast<std::int64_t>(inOrder(bytes, 0, 8, endian)));
    case 17:
        return static_cast<float>(ieeeDouble(inOrder(bytes, 0, 8, endian)));
    default:
        return static_cast<float>(ieeeSingle(inOrder(bytes, 0, 4, endian)));
    }
}

inline double scaled(double reading, const ProfileParameter& parameter)
{
    return static_cast<float>(static_cast<double>(static_cast<float>(reading)) *
                                  parameter.scaleFactor +
                              parameter.scaleOffset);
}

inline double valueOf(const EightBytes& bytes, const ProfileParameter& parameter)
{
    switch (static_cast<std::uint32_t>(parameter.parameterKind)) {
    case 0:
        return arincValue(bytes, parameter);
    case 1:
        return scaled(canAerospaceReading(bytes, parameter.dtc), parameter);
    case 2:
        return scaled(rawReading(bytes, parameter.dtc, parameter.endian), parameter);
    default:
        return 0.0;
    }
}

} // namespace zul::test::reference

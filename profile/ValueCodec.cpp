#include "profile/ValueCodec.h"

#include "profile/BitPosition.h"
#include "profile/ByteOrder.h"
#include "profile/CanAerospaceId.h"
#include "profile/DataTypes.h"

#include <limits>
#include <type_traits>

namespace zul {

namespace {

constexpr std::uint32_t bitsPerByte = 8;
constexpr std::uint32_t wordBytes = 8;
constexpr std::uint32_t wordBits = wordBytes * bitsPerByte;

// Of the integers that are scaled to a range: the number of their steps.
constexpr double steps8 = 255.0;
constexpr double steps16 = 65535.0;
constexpr double steps32 = 4294967295.0;
constexpr double steps64 = 18446744073709551616.0; // what 2^64 - 1 rounds to

// With infinities every double lies in the range of float: what is too large becomes infinite.
static_assert(std::numeric_limits<float>::is_iec559 && std::numeric_limits<double>::is_iec559);

/// The eight bytes as one number. The most significant bit of byte 0 is bit 63 of it and the least
/// significant one of byte 7 is bit 0.
std::uint64_t wordOf(const MessageCan& message)
{
    return bigEndianToHost(loadBits<std::uint64_t>(&message.msg()[0]));
}

/// The number whose first byte is `byte`.
template <typename Unsigned>
Unsigned numberAt(std::uint64_t word, std::uint32_t byte)
{
    constexpr std::uint32_t width = sizeof(Unsigned) * bitsPerByte;
    if (byte >= wordBytes) {
        return 0;
    }
    return static_cast<Unsigned>(word << (byte * bitsPerByte) >> (wordBits - width));
}

template <typename Integer>
Integer integerAt(std::uint64_t word, std::uint32_t byte)
{
    return numberOfBits<Integer>(numberAt<std::make_unsigned_t<Integer>>(word, byte));
}

template <typename Integer>
double symmetric(std::uint64_t word, const ProfileParameter& parameter, double steps)
{
    return integerAt<Integer>(word, parameter.eppByte) * (2 * parameter.max / steps);
}

template <typename Integer>
double ranged(std::uint64_t word, const ProfileParameter& parameter, double steps)
{
    return integerAt<Integer>(word, parameter.eppByte) * ((parameter.max - parameter.min) / steps) +
           parameter.min;
}

/// The byte of the start position from its bit on.
std::uint32_t fromStartBit(std::uint64_t word, const ProfileParameter& parameter)
{
    const std::uint32_t byte = numberAt<std::uint8_t>(word, parameter.sppByte);
    return parameter.sppBit < bitsPerByte ? byte >> parameter.sppBit : 0;
}

struct EnumField
{
    explicit EnumField(const ProfileParameter& parameter)
        : start(linearPosition(parameter.sppByte, parameter.sppBit)),
          width(linearPosition(parameter.eppByte, parameter.eppBit) - start + 1)
    {
    }

    /// The word from the start position on; 0 if that is none of its bits.
    std::uint64_t shifted(std::uint64_t word) const
    {
        return start >= 0 && start < wordBits ? word >> start : 0;
    }

    std::int64_t start;
    std::int64_t width;
};

/// By the code of a CANaerospace data type.
///
/// Deliberate: the three forms of BCHAR that have more than one byte fall to the last row, which
/// takes the frame's header for a number.
float canAerospaceReading(std::uint64_t word, std::uint32_t code)
{
    constexpr std::uint32_t payload = canaerospace::payloadByte;
    switch (code) {
    case 0: // NODATA
        return 0.0F;
    case 1:  // ERROR
    case 4:  // ULONG
    case 5:  // BLONG
    case 21: // MEMID
    case 22: // CHKSUM
        return static_cast<float>(numberAt<std::uint32_t>(word, payload));
    case 2: // FLOAT
        return numberOfBits<float>(numberAt<std::uint32_t>(word, payload));
    case 3: // LONG
        return static_cast<float>(integerAt<std::int32_t>(word, payload));
    case 6:  // SHORT
    case 12: // SHORT_2
        return static_cast<float>(integerAt<std::int16_t>(word, payload));
    case 7:  // USHORT
    case 8:  // BSHORT
    case 13: // USHORT_2
    case 14: // BSHORT_2
        return static_cast<float>(numberAt<std::uint16_t>(word, payload));
    case 9:  // CHAR
    case 15: // CHAR_4
    case 18: // CHAR_2
    case 26: // CHAR_3
        return static_cast<float>(integerAt<std::int8_t>(word, payload));
    case 10: // UCHAR
    case 11: // BCHAR
    case 16: // UCHAR_4
    case 19: // UCHAR_2
    case 23: // ACHAR
    case 24: // ACHAR_2
    case 25: // ACHAR_4
    case 27: // UCHAR_3
    case 29: // ACHAR_3
        return static_cast<float>(numberAt<std::uint8_t>(word, payload));
    default:
        // As they lie in the frame: without their reversal.
        return numberOfBits<float>(bigEndianToHost(numberAt<std::uint32_t>(word, 0)));
    }
}

template <typename Unsigned>
Unsigned rawBits(const std::uint8_t* bytes, std::uint32_t byteOrder)
{
    const auto bits = loadBits<Unsigned>(bytes);
    return byteOrder != 0 ? bigEndianToHost(bits) : bits;
}

double scaled(float reading, const ProfileParameter& parameter)
{
    const double value = reading * parameter.scaleFactor + parameter.scaleOffset;
    return static_cast<float>(value);
}

} // namespace

double valueOf(const MessageCan& message, const ProfileParameter& parameter)
{
    switch (parameter.parameterKind) {
    case ParameterKind::Arinc825:
        return arincValue(message, parameter);
    case ParameterKind::CanAerospace:
        return scaled(canAerospaceReading(wordOf(message), parameter.dtc), parameter);
    case ParameterKind::Raw:
        return scaled(rawValue(message, parameter.dtc, parameter.endian), parameter);
    }
    return 0.0; // project files may hold other numbers
}

double arincValue(const MessageCan& message, const ProfileParameter& parameter)
{
    const std::uint64_t word = wordOf(message);
    switch (static_cast<ArincType>(parameter.dtc)) {
    case ArincType::NoData:
    case ArincType::Opaque:
        return 0.0;
    case ArincType::Enum: {
        const EnumField field(parameter);
        return field.width >= 1 ? static_cast<double>(field.shifted(word)) : 0.0;
    }
    case ArincType::Char:
        return symmetric<std::int8_t>(word, parameter, steps8);
    case ArincType::UChar:
        return ranged<std::uint8_t>(word, parameter, steps8);
    case ArincType::AChar:
        return integerAt<std::uint8_t>(word, parameter.sppByte);
    case ArincType::Short:
        return symmetric<std::int16_t>(word, parameter, steps16);
    case ArincType::UShort:
        return ranged<std::uint16_t>(word, parameter, steps16);
    case ArincType::Long:
        return symmetric<std::int32_t>(word, parameter, steps32);
    case ArincType::ULong:
        return ranged<std::uint32_t>(word, parameter, steps32);
    case ArincType::Float:
        return numberOfBits<float>(numberAt<std::uint32_t>(word, parameter.eppByte));
    case ArincType::Long64:
        return static_cast<double>(numberOfBits<std::int64_t>(word)) *
               (2 * parameter.max / steps64);
    case ArincType::ULong64:
        return static_cast<double>(word) * ((parameter.max - parameter.min) / steps64) +
               parameter.min;
    case ArincType::Double:
        return numberOfBits<double>(word);
    case ArincType::Bool:
        return fromStartBit(word, parameter) & 1U;
    case ArincType::Bcd:
        return fromStartBit(word, parameter) & 15U;
    }
    return 0.0;
}

std::optional<std::uint64_t> enumValue(const MessageCan& message, const ProfileParameter& parameter)
{
    const EnumField field(parameter);
    if (field.width < 1) {
        return std::nullopt;
    }
    constexpr std::uint64_t ones = std::numeric_limits<std::uint64_t>::max();
    const std::uint64_t mask = field.width < wordBits ? ones >> (wordBits - field.width) : ones;
    return field.shifted(wordOf(message)) & mask;
}

float rawValue(const MessageCan& message, std::uint32_t index, std::uint32_t byteOrder)
{
    const std::uint8_t* bytes = &message.msg()[0];
    constexpr std::uint32_t firstShort = 8;
    switch (index) {
    case 0:
    case 1:
    case 2:
    case 3:
    case 4:
    case 5:
    case 6:
    case 7:
        return bytes[index];
    case 8:
    case 9:
    case 10:
    case 11: {
        const std::uint32_t offset = (index - firstShort) * sizeof(std::int16_t);
        return numberOfBits<std::int16_t>(rawBits<std::uint16_t>(bytes + offset, byteOrder));
    }
    case 12: // "Int 0..3"
    case 13: // "Int 4..7"
        return static_cast<float>(
            numberOfBits<std::int32_t>(rawBits<std::uint32_t>(bytes + 4, byteOrder)));
    case 15: // "Float 4..7"
        return numberOfBits<float>(rawBits<std::uint32_t>(bytes + 4, byteOrder));
    case 16: // "Long 0..7"
        return static_cast<float>(
            numberOfBits<std::int64_t>(rawBits<std::uint64_t>(bytes, byteOrder)));
    case 17: // "Double 0..7"
        return static_cast<float>(numberOfBits<double>(rawBits<std::uint64_t>(bytes, byteOrder)));
    default: // "Float 0..3", and what is none
        return numberOfBits<float>(rawBits<std::uint32_t>(bytes, byteOrder));
    }
}

} // namespace zul

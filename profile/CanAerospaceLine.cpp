#include "profile/CanAerospaceLine.h"

#include "core/TextWriter.h"
#include "profile/ByteOrder.h"
#include "profile/CanAerospaceId.h"
#include "profile/DataTypes.h"

#include <array>
#include <cstdio>
#include <cstring>

namespace zul {

namespace {

constexpr int hexadecimal = 1; // as a number type

/// What the payload's formats take.
enum class Payload : std::uint8_t {
    Word,           ///< one number of 32 bits
    Float,          ///< one single
    SignedShorts,   ///< two numbers of 16 bits
    UnsignedShorts, ///< two numbers of 16 bits
    SignedBytes,    ///< four bytes
    UnsignedBytes   ///< four bytes
};

/// By the code of the data type. A type of fewer numbers prints the first ones.
constexpr std::array<Payload, canAerospaceTypes.size()> payloads{{
    Payload::UnsignedBytes,  // NODATA
    Payload::Word,           // ERROR
    Payload::Float,          // FLOAT
    Payload::Word,           // LONG
    Payload::Word,           // ULONG
    Payload::Word,           // BLONG
    Payload::SignedShorts,   // SHORT
    Payload::UnsignedShorts, // USHORT
    Payload::UnsignedShorts, // BSHORT
    Payload::SignedBytes,    // CHAR
    Payload::UnsignedBytes,  // UCHAR
    Payload::UnsignedBytes,  // BCHAR
    Payload::SignedShorts,   // SHORT_2
    Payload::UnsignedShorts, // USHORT_2
    Payload::UnsignedShorts, // BSHORT_2
    Payload::SignedBytes,    // CHAR_4
    Payload::UnsignedBytes,  // UCHAR_4
    Payload::UnsignedBytes,  // BCHAR_4
    Payload::SignedBytes,    // CHAR_2
    Payload::UnsignedBytes,  // UCHAR_2
    Payload::UnsignedBytes,  // BCHAR_2
    Payload::Word,           // MEMID
    Payload::Word,           // CHKSUM
    Payload::UnsignedBytes,  // ACHAR
    Payload::UnsignedBytes,  // ACHAR_2
    Payload::UnsignedBytes,  // ACHAR_4
    Payload::SignedBytes,    // CHAR_3
    Payload::UnsignedBytes,  // UCHAR_3
    Payload::UnsignedBytes,  // BCHAR_3
    Payload::UnsignedBytes,  // ACHAR_3
}};

// The longest payload is the lowest single, -340282346638528859811704183484516925440.000000.
using PayloadText = std::array<char, 64>;

// The formats stand in the table of the data types, out of the compiler's sight; a test holds each
// against what it is given here.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
template <typename... Numbers>
void print(PayloadText& text, const char* format, Numbers... numbers)
{
    std::snprintf(text.data(), text.size(), format, numbers...);
}
#pragma GCC diagnostic pop

std::uint32_t wordOf(const std::uint8_t* payload)
{
    return bigEndianToHost(loadBits<std::uint32_t>(payload));
}

/// The 16 bits from `offset` on.
std::uint16_t halfAt(const std::uint8_t* payload, std::size_t offset)
{
    return bigEndianToHost(loadBits<std::uint16_t>(payload + offset));
}

/// `bytes` are those of the payload.
void printPayload(PayloadText& text, const char* format, Payload payload, const std::uint8_t* bytes,
                  int numberType)
{
    switch (payload) {
    case Payload::Word:
        if (numberType == hexadecimal) {
            print(text, format, wordOf(bytes));
        } else {
            print(text, format, numberOfBits<std::int32_t>(wordOf(bytes)));
        }
        break;
    case Payload::Float:
        print(text, format, static_cast<double>(numberOfBits<float>(wordOf(bytes))));
        break;
    case Payload::SignedShorts:
        print(text, format, numberOfBits<std::int16_t>(halfAt(bytes, 0)),
              numberOfBits<std::int16_t>(halfAt(bytes, 2)));
        break;
    case Payload::UnsignedShorts:
        print(text, format, halfAt(bytes, 0), halfAt(bytes, 2));
        break;
    case Payload::SignedBytes:
        print(text, format, static_cast<std::int8_t>(bytes[0]), static_cast<std::int8_t>(bytes[1]),
              static_cast<std::int8_t>(bytes[2]), static_cast<std::int8_t>(bytes[3]));
        break;
    case Payload::UnsignedBytes:
        print(text, format, bytes[0], bytes[1], bytes[2], bytes[3]);
        break;
    }
}

// As "%3d" or, filled with '0', "%03d".
void appendByte(TextWriter& line, std::uint32_t byte, char fill)
{
    constexpr std::uint32_t twoDigits = 10;
    constexpr std::uint32_t threeDigits = 100;
    if (byte < threeDigits) {
        line.append(fill);
    }
    if (byte < twoDigits) {
        line.append(fill);
    }
    line.appendDecimal(byte);
}

// As "$%2X" or, filled with '0', "$%02X".
void appendHexadecimalByte(TextWriter& line, std::uint32_t byte, char fill)
{
    constexpr std::uint32_t twoDigits = 0x10;
    line.append('$');
    if (byte < twoDigits) {
        line.append(fill);
    }
    line.appendHexadecimal(byte);
}

// As "%-7s".
void appendTypeLabel(TextWriter& line, const char* label)
{
    constexpr std::size_t width = 7;
    line.append(label);
    for (std::size_t i = std::strlen(label); i < width; ++i) {
        line.append(' ');
    }
}

void appendHeader(TextWriter& line, std::uint32_t id, const std::uint8_t* bytes, const char* type,
                  int numberType)
{
    const bool isHexadecimal = numberType == hexadecimal;
    const std::uint32_t service = bytes[canaerospace::serviceCodeByte];
    const char* serviceName = canaerospace::serviceName(id, service);
    const auto appendFilled = isHexadecimal ? &appendHexadecimalByte : &appendByte;

    line.append(canaerospace::messageClass(id).label);
    line.append(' ');
    appendFilled(line, bytes[canaerospace::nodeIdByte], ' ');
    line.append(' ');
    appendTypeLabel(line, type);
    line.append(' ');
    if (serviceName != nullptr) {
        line.append(serviceName);
    } else if (isHexadecimal) {
        appendHexadecimalByte(line, service, '0');
    } else {
        line.appendDecimal(service);
    }
    line.append(' ');
    appendFilled(line, bytes[canaerospace::messageCodeByte], '0');
}

} // namespace

int canAerospaceLine(char* buffer, std::size_t capacity, const MessageCan& message, int numberType)
{
    if (capacity == 0) {
        return 0;
    }
    const std::uint8_t* bytes = &message.msg()[0];
    const std::size_t code = bytes[canaerospace::dataTypeByte];
    const bool isKnown = code < canAerospaceTypes.size();
    const CanAerospaceTypeInfo& type = isKnown ? canAerospaceTypes[code] : unknownCanAerospaceType;
    PayloadText payload;
    printPayload(payload, numberType == hexadecimal ? type.hexadecimalFormat : type.decimalFormat,
                 isKnown ? payloads[code] : Payload::UnsignedBytes,
                 bytes + canaerospace::payloadByte, numberType);
    TextWriter line(buffer, capacity);
    appendHeader(line, message.id(), bytes, type.label, numberType);
    line.append(" | ");
    line.append(payload.data());
    return 0;
}

} // namespace zul

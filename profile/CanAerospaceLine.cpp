#include "profile/CanAerospaceLine.h"

#include "core/NumberType.h"
#include "core/TextWriter.h"
#include "profile/ByteOrder.h"
#include "profile/CanAerospaceId.h"
#include "profile/DataTypes.h"

#include <array>
#include <cstdio>
#include <cstring>

namespace zul {

namespace {

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
void printPayload(PayloadText& text, const char* format, CanAerospacePayload payload,
                  const std::uint8_t* bytes, int numberType)
{
    switch (payload) {
    case CanAerospacePayload::Word:
        if (isHexadecimal(numberType)) {
            print(text, format, wordOf(bytes));
        } else {
            print(text, format, numberOfBits<std::int32_t>(wordOf(bytes)));
        }
        break;
    case CanAerospacePayload::Float:
        print(text, format, static_cast<double>(numberOfBits<float>(wordOf(bytes))));
        break;
    case CanAerospacePayload::SignedShorts:
        print(text, format, numberOfBits<std::int16_t>(halfAt(bytes, 0)),
              numberOfBits<std::int16_t>(halfAt(bytes, 2)));
        break;
    case CanAerospacePayload::UnsignedShorts:
        print(text, format, halfAt(bytes, 0), halfAt(bytes, 2));
        break;
    case CanAerospacePayload::SignedBytes:
        print(text, format, static_cast<std::int8_t>(bytes[0]), static_cast<std::int8_t>(bytes[1]),
              static_cast<std::int8_t>(bytes[2]), static_cast<std::int8_t>(bytes[3]));
        break;
    case CanAerospacePayload::UnsignedBytes:
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
    const bool inHexadecimal = isHexadecimal(numberType);
    const std::uint32_t service = bytes[canaerospace::serviceCodeByte];
    const char* serviceName = canaerospace::serviceName(id, service);
    const auto appendFilled = inHexadecimal ? &appendHexadecimalByte : &appendByte;

    line.append(canaerospace::messageClass(id).label);
    line.append(' ');
    appendFilled(line, bytes[canaerospace::nodeIdByte], ' ');
    line.append(' ');
    appendTypeLabel(line, type);
    line.append(' ');
    if (serviceName != nullptr) {
        line.append(serviceName);
    } else if (inHexadecimal) {
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
    printPayload(payload, isHexadecimal(numberType) ? type.hexadecimalFormat : type.decimalFormat,
                 type.payload, bytes + canaerospace::payloadByte, numberType);
    TextWriter line(buffer, capacity);
    appendHeader(line, message.id(), bytes, type.label, numberType);
    line.append(" | ");
    line.append(payload.data());
    return 0;
}

} // namespace zul

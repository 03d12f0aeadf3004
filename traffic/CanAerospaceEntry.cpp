#include "traffic/CanAerospaceEntry.h"

#include "core/NumberType.h"
#include "profile/CanAerospaceId.h"
#include "profile/DataTypes.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace canaerospaceentry {

namespace {

using zul::canaerospace::payloadByte;

static_assert(valueEntries.size() == zul::canAerospaceTypes.size());

constexpr int decimal = 10;
constexpr int hexadecimal = 16;
constexpr int bitsPerByte = 8;
constexpr int valueBytes = 4;
constexpr std::uint8_t blank = 0x20;
// Services are named in identifiers below this one alone.
constexpr std::uint32_t firstIdWithoutServices = 200;

/// A text of a number without its prefix, and the base that this prefix means.
struct NumberEntry
{
    QString digits;
    int base;
};

NumberEntry numberEntry(const QString& text)
{
    const QLatin1String prefix("0x");
    if (!text.contains(prefix)) {
        return {text, decimal};
    }
    QString digits = text;
    digits.remove(prefix);
    return {digits, hexadecimal};
}

// What does not fit the type is no number to these conversions, and 0.
std::uint32_t signedWord(const QString& text)
{
    const NumberEntry entry = numberEntry(text);
    return static_cast<std::uint32_t>(entry.digits.toLong(nullptr, entry.base));
}

std::uint32_t unsignedWord(const QString& text)
{
    const NumberEntry entry = numberEntry(text);
    return static_cast<std::uint32_t>(entry.digits.toULong(nullptr, entry.base));
}

std::uint16_t signedShort(const QString& text)
{
    const NumberEntry entry = numberEntry(text);
    return static_cast<std::uint16_t>(entry.digits.toShort(nullptr, entry.base));
}

std::uint16_t unsignedShort(const QString& text)
{
    const NumberEntry entry = numberEntry(text);
    return entry.digits.toUShort(nullptr, entry.base);
}

std::uint8_t valueByte(const SendMsg& message, int index)
{
    return message.data[payloadByte + index];
}

void setValueByte(SendMsg& message, int index, std::uint8_t value)
{
    message.data[payloadByte + index] = value;
}

std::uint16_t valueShort(const SendMsg& message, int input)
{
    const unsigned high = valueByte(message, 2 * input);
    return static_cast<std::uint16_t>(high << bitsPerByte | valueByte(message, 2 * input + 1));
}

void enterCharacters(SendMsg& message, const QString& text)
{
    const QByteArray letters = text.trimmed().toLatin1();
    for (int i = 0; i < valueBytes; ++i) {
        setValueByte(message, i,
                     i < letters.size() ? static_cast<std::uint8_t>(letters.at(i)) : blank);
    }
}

// Zeros at the end are no letters: a new message is nothing but zeros. Others keep their places, so
// that an edit of one letter does not move those behind it; a line shows them as blanks.
QString characters(const SendMsg& message, int count)
{
    while (count > 0 && valueByte(message, count - 1) == 0) {
        --count;
    }
    QString text;
    for (int i = 0; i < count; ++i) {
        text += QLatin1Char(static_cast<char>(valueByte(message, i)));
    }
    return text;
}

QString intText(int value, std::int32_t numberType)
{
    return isHexadecimal(numberType) ? QString::asprintf("0x%X", static_cast<unsigned>(value))
                                     : QString::asprintf("%d", value);
}

bool isInput(int input, int inputs)
{
    return input >= 0 && input < inputs;
}

} // namespace

std::uint8_t dataType(const SendMsg& message)
{
    return message.data[zul::canaerospace::dataTypeByte];
}

bool isKnownType(const SendMsg& message)
{
    return dataType(message) < valueEntries.size();
}

ValueEntry valueEntry(const SendMsg& message)
{
    constexpr ValueEntry unknown{ValuePage::SingleLine, ValueKind::None, 0};
    return isKnownType(message) ? valueEntries[dataType(message)] : unknown;
}

int lineLength(const SendMsg& message)
{
    const ValueEntry entry = valueEntry(message);
    return entry.kind == ValueKind::Characters ? entry.count : openLength;
}

int lowestBit(const SendMsg& message)
{
    const ValueEntry entry = valueEntry(message);
    return entry.kind == ValueKind::Bits ? valueBits - bitsPerByte * entry.count : 0;
}

void setDataType(SendMsg& message, int code)
{
    message.data[zul::canaerospace::dataTypeByte] = static_cast<std::uint8_t>(code);
    const auto& type = isKnownType(message) ? zul::canAerospaceTypes[dataType(message)]
                                            : zul::unknownCanAerospaceType;
    message.byteCount = static_cast<std::uint32_t>(type.byteCount);
}

void ensureHeader(SendMsg& message)
{
    message.byteCount = std::max(message.byteCount, headerBytes);
}

void enterLine(SendMsg& message, const QString& text)
{
    switch (valueEntry(message).kind) {
    case ValueKind::Signed32:
    case ValueKind::Word32:
        setValueWord(message, signedWord(text));
        break;
    case ValueKind::Unsigned32:
        setValueWord(message, unsignedWord(text));
        break;
    case ValueKind::Characters:
        enterCharacters(message, text);
        break;
    default:
        break;
    }
}

void enterShort(SendMsg& message, int input, const QString& text)
{
    const ValueKind kind = valueEntry(message).kind;
    if (!isInput(input, 2) || (kind != ValueKind::Signed16 && kind != ValueKind::Unsigned16)) {
        return;
    }
    const unsigned value = kind == ValueKind::Signed16 ? signedShort(text) : unsignedShort(text);
    setValueByte(message, 2 * input, static_cast<std::uint8_t>(value >> bitsPerByte));
    setValueByte(message, 2 * input + 1, static_cast<std::uint8_t>(value & 0xFFU));
}

void enterByte(SendMsg& message, int input, const QString& text)
{
    if (!isInput(input, valueBytes)) {
        return;
    }
    switch (valueEntry(message).kind) {
    case ValueKind::Signed8:
        setValueByte(message, input, static_cast<std::uint8_t>(signedShort(text) & 0xFFU));
        break;
    case ValueKind::Unsigned8:
        setValueByte(message, input, static_cast<std::uint8_t>(unsignedShort(text) & 0xFFU));
        break;
    case ValueKind::Characters: {
        const QByteArray letters = text.trimmed().toLatin1();
        setValueByte(message, input,
                     letters.isEmpty() ? blank : static_cast<std::uint8_t>(letters.at(0)));
        break;
    }
    default:
        break;
    }
}

QString lineText(const SendMsg& message, std::int32_t numberType)
{
    const ValueEntry entry = valueEntry(message);
    const std::uint32_t word = valueWord(message);
    switch (entry.kind) {
    case ValueKind::Signed32:
        return intText(static_cast<std::int32_t>(word), numberType);
    case ValueKind::Unsigned32:
    case ValueKind::Word32:
        return isHexadecimal(numberType) ? QString::asprintf("0x%X", word)
                                         : QString::asprintf("%u", word);
    case ValueKind::Characters:
        return characters(message, entry.count);
    default:
        return {};
    }
}

// Deliberate: a negative number has all its 32 bits in hexadecimal, as those of 8 bits have.
QString shortText(const SendMsg& message, int input, std::int32_t numberType)
{
    const ValueKind kind = valueEntry(message).kind;
    if (!isInput(input, 2) || (kind != ValueKind::Signed16 && kind != ValueKind::Unsigned16)) {
        return {};
    }
    const std::uint16_t value = valueShort(message, input);
    return intText(kind == ValueKind::Signed16 ? static_cast<std::int16_t>(value) : int{value},
                   numberType);
}

QString byteText(const SendMsg& message, int input, std::int32_t numberType)
{
    const ValueKind kind = valueEntry(message).kind;
    if (!isInput(input, valueBytes) ||
        (kind != ValueKind::Signed8 && kind != ValueKind::Unsigned8)) {
        return {};
    }
    const std::uint8_t value = valueByte(message, input);
    return intText(kind == ValueKind::Signed8 ? static_cast<std::int8_t>(value) : int{value},
                   numberType);
}

std::uint32_t valueWord(const SendMsg& message)
{
    std::uint32_t word = 0;
    for (int i = 0; i < valueBytes; ++i) {
        word = word << bitsPerByte | valueByte(message, i);
    }
    return word;
}

void setValueWord(SendMsg& message, std::uint32_t word)
{
    for (int i = valueBytes - 1; i >= 0; --i) {
        setValueByte(message, i, static_cast<std::uint8_t>(word & 0xFFU));
        word >>= bitsPerByte;
    }
}

void setValueBit(SendMsg& message, int bit, bool on)
{
    if (!isInput(bit, valueBits)) {
        return;
    }
    const std::uint32_t mask = std::uint32_t{1} << static_cast<unsigned>(bit);
    const std::uint32_t word = valueWord(message);
    setValueWord(message, on ? word | mask : word & ~mask);
}

float singleOf(const QString& text)
{
    bool isNumber = false;
    const float value = text.toFloat(&isNumber);
    return isNumber ? value : 0.0F; // of what is too large the conversion would make infinity
}

QString singleText(float value)
{
    return QString::asprintf("%.2f", static_cast<double>(value));
}

void setActual(SendMsg& message, float actual)
{
    message.actual = actual;
    std::uint32_t bits = 0;
    static_assert(sizeof bits == sizeof actual);
    std::memcpy(&bits, &actual, sizeof bits);
    setValueWord(message, bits);
}

float actualAt(const SendMsg& message, int position)
{
    constexpr double step = 1.0 / sliderMaximum;
    constexpr double largest = std::numeric_limits<float>::max();
    const float span = message.max - message.min;
    const float product = span * static_cast<float>(position);
    const double actual = static_cast<double>(message.min) + static_cast<double>(product) * step;
    return std::isnan(actual) ? 0.0F : static_cast<float>(std::clamp(actual, -largest, largest));
}

int sliderPosition(const SendMsg& message)
{
    constexpr float steps = sliderMaximum;
    const float span = message.max - message.min;
    if (span == 0.0F) {
        return 0;
    }
    const float position = (message.actual - message.min) / span * steps;
    return std::isnan(position) ? 0 : static_cast<int>(std::clamp(position, 0.0F, steps));
}

int sliderPositionFrom(const SendMsg& message, int position)
{
    const bool isScale = message.min < message.max || message.max < message.min;
    return isScale && actualAt(message, position) == message.actual ? position
                                                                    : sliderPosition(message);
}

std::uint8_t serviceCode(const QString& text)
{
    const NumberEntry entry = numberEntry(text.section(QLatin1Char(' '), 0, 0));
    const int code = entry.digits.toInt(nullptr, entry.base);
    return static_cast<std::uint8_t>(static_cast<unsigned>(code) & 0xFFU);
}

bool hasServiceEntry(std::uint32_t id, std::uint8_t code)
{
    return id < firstIdWithoutServices && code < zul::canaerospace::services.size();
}

QString serviceText(std::uint8_t code, std::int32_t numberType)
{
    return isHexadecimal(numberType) ? QString::asprintf("0x%x", unsigned{code})
                                     : QString::asprintf("%d", int{code});
}

} // namespace canaerospaceentry

#include "traffic/TraceLine.h"

#include "core/Latin1.h"
#include "core/NumberType.h"
#include "core/TextWriter.h"
#include "profile/Arinc825Id.h"
#include "profile/CanAerospaceLine.h"
#include "profile/ProfileStore.h"
#include "profile/ValueText.h"
#include "traffic/FormatBytes.h"
#include "traffic/MessageModes.h"

#include <charconv>
#include <iterator>

using zul::MessageCan;

namespace {

constexpr auto decimal = static_cast<std::int32_t>(NumberType::Decimal);
constexpr const char* errorText = "ERROR FRAME";
constexpr const char* errorMarkup = "<b><font color=\"#AA0000\"> ERROR FRAME</font></b><br>";

using Digits = std::array<char, 16>; // more than 32 bits have, with the sign

// As "%0*d", with the width.
void appendZeroFilled(std::string& text, std::int32_t number, std::size_t width)
{
    Digits digits{};
    const char* end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    const char* begin = digits.data();
    const auto length = static_cast<std::size_t>(end - begin);
    if (number < 0) {
        text += *begin++;
    }
    text.append(width > length ? width - length : 0, '0');
    text.append(begin, end);
}

// As "%-*d", with the width.
void appendLeftAligned(std::string& text, std::int32_t number, std::size_t width)
{
    Digits digits{};
    const char* end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    const auto length = static_cast<std::size_t>(end - digits.data());
    text.append(digits.data(), length);
    text.append(width > length ? width - length : 0, ' ');
}

// As "%0*x" or, with the letters of `alphabet`, "%0*X".
void appendHexadecimal(std::string& text, std::uint32_t number, unsigned width,
                       const char* alphabet)
{
    constexpr unsigned bitsPerDigit = 4;
    constexpr unsigned most = 8;
    for (unsigned digit = most; digit-- > 0;) {
        const std::uint32_t rest = number >> bitsPerDigit * digit;
        if (rest != 0 || digit < width) {
            text += alphabet[rest & 0xFU];
        }
    }
}

constexpr const char* lowerCase = "0123456789abcdef";
constexpr const char* upperCase = "0123456789ABCDEF";
constexpr std::size_t decimalIdWidth = 6;

void appendStart(std::string& text, const MessageCan& frame, std::uint32_t number)
{
    constexpr int timeDecimals = 3;
    constexpr std::size_t numberWidth = 5;
    appendZeroFilled(text, static_cast<std::int32_t>(number), numberWidth);
    text += ' ';
    std::array<char, 32> buffer{};
    TextWriter time(buffer.data(), buffer.size());
    time.appendTime(frame.timeStamp(), timeDecimals);
    time.append(' ');
    text += buffer.data();
}

void appendLength(std::string& text, const MessageCan& frame)
{
    if (frame.frameType() == MessageCan::EFrameType::Data) {
        text += 'D';
    } else if (frame.frameType() == MessageCan::EFrameType::Remote) {
        text += 'R';
    } else {
        return;
    }
    appendLeftAligned(text, static_cast<std::int32_t>(frame.byteCount()), 0);
    text += ' ';
}

void appendBytes(std::string& text, const MessageCan& frame, std::int32_t numberType)
{
    std::array<char, payloadLineCapacity> buffer{};
    if (numberType == decimal) {
        formatBytesDec(buffer.data(), buffer.size(), frame, 0);
    } else if (isHexadecimal(numberType)) {
        formatBytesHex(buffer.data(), buffer.size(), frame, 0);
    }
    text += buffer.data();
}

void appendCanLine(std::string& text, const MessageCan& frame, std::uint32_t number,
                   std::int32_t mode, std::int32_t numberType)
{
    appendStart(text, frame, number);
    if (numberType != decimal) {
        constexpr unsigned width = 3;
        text += "S 0x";
        appendHexadecimal(text, frame.id(), width, lowerCase);
    } else {
        text += "S ";
        appendLeftAligned(text, static_cast<std::int32_t>(frame.id()), decimalIdWidth);
    }
    text += ' ';
    appendLength(text, frame);
    if (mode != static_cast<std::int32_t>(DisplayMode::CanAerospace)) {
        appendBytes(text, frame, numberType);
        return;
    }
    std::array<char, zul::canAerospaceLineCapacity> line{};
    zul::canAerospaceLine(line.data(), line.size(), frame, numberType);
    text += line.data();
}

void appendProfileLine(std::string& text, const MessageCan& frame, std::uint32_t number,
                       std::int32_t numberType, const ProfileStore& store)
{
    appendStart(text, frame, number);
    text += frame.mode() == MessageCan::EMsgMode::Standard ? "S " : "E ";
    if (isHexadecimal(numberType)) {
        constexpr unsigned width = 6;
        appendHexadecimal(text, frame.id(), width, upperCase);
    } else {
        appendLeftAligned(text, static_cast<std::int32_t>(frame.id()), decimalIdWidth);
    }
    text += ' ';
    appendLength(text, frame);
    const auto range = store.parameterIndex().equal_range(zul::arinc825::parameterKey(frame.id()));
    if (range.first == range.second) {
        text += "Unknown Type";
        return;
    }
    const ProfileParameter& parameter = std::prev(range.second)->second;
    std::array<char, zul::valueTextCapacity> value{};
    zul::textOf(value.data(), value.size(), frame, store, parameter);
    text += zul::toLatin1(parameter.nme);
    text += " = ";
    text += value.data();
}

void appendLine(std::string& text, const MessageCan& frame, std::uint32_t number, std::int32_t mode,
                std::int32_t numberType, const ProfileStore& store)
{
    switch (static_cast<DisplayMode>(mode)) {
    case DisplayMode::Can:
    case DisplayMode::CanAerospace:
        appendCanLine(text, frame, number, mode, numberType);
        break;
    case DisplayMode::Arinc825Profile:
        appendProfileLine(text, frame, number, numberType, store);
        break;
    default:
        break;
    }
}

} // namespace

void appendTraceFileLine(std::string& text, const MessageCan& frame, std::uint32_t number,
                         std::int32_t traceFormat, std::int32_t numberType,
                         const ProfileStore& store)
{
    if (frame.frameType() == MessageCan::EFrameType::Error) {
        appendStart(text, frame, number);
        text += errorText;
        return;
    }
    appendLine(text, frame, number, traceFormat, numberType, store);
}

void appendTraceScreenLine(std::string& text, const MessageCan& frame, std::uint32_t number,
                           std::int32_t displayMode, std::int32_t numberType,
                           const ProfileStore& store)
{
    if (frame.frameType() == MessageCan::EFrameType::Error) {
        appendStart(text, frame, number);
        text += errorMarkup;
        return;
    }
    appendLine(text, frame, number, displayMode, numberType, store);
}

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

#include <array>
#include <iterator>
#include <string_view>

using zul::MessageCan;

namespace {

constexpr auto decimal = static_cast<std::int32_t>(NumberType::Decimal);
constexpr const char* errorMarkupBegin = "<b><font color=\"#AA0000\"> ";
constexpr const char* errorMarkupEnd = "</font></b><br>";

// As "%0*x" or, with the letters of `alphabet`, "%0*X".
void appendHexadecimal(TextWriter& text, std::uint32_t number, unsigned width, const char* alphabet)
{
    constexpr unsigned bitsPerDigit = 4;
    constexpr unsigned most = 8;
    for (unsigned digit = most; digit-- > 0;) {
        const std::uint32_t rest = number >> bitsPerDigit * digit;
        if (rest != 0 || digit < width) {
            text.append(alphabet[rest & 0xFU]);
        }
    }
}

constexpr const char* lowerCase = "0123456789abcdef";
constexpr const char* upperCase = "0123456789ABCDEF";
constexpr int decimalIdWidth = 6;

/// What stands before the payload: at most 5 numbers of 32 bits.
using Prefix = std::array<char, 96>;

void appendStart(TextWriter& text, const MessageCan& frame, std::uint32_t number)
{
    constexpr int timeDecimals = 3;
    constexpr int numberWidth = 5;
    text.appendZeroFilled(static_cast<std::int32_t>(number), numberWidth);
    text.append(' ');
    text.appendTime(frame.timeStamp(), timeDecimals);
    text.append(' ');
}

void appendStart(std::string& text, const MessageCan& frame, std::uint32_t number)
{
    Prefix buffer;
    TextWriter start(buffer.data(), buffer.size());
    appendStart(start, frame, number);
    text.append(buffer.data(), start.length());
}

void appendLength(TextWriter& text, const MessageCan& frame)
{
    if (frame.frameType() == MessageCan::EFrameType::Data) {
        text.append('D');
    } else if (frame.frameType() == MessageCan::EFrameType::Remote) {
        text.append('R');
    } else {
        return;
    }
    text.appendDecimal(static_cast<std::int32_t>(frame.byteCount()));
    text.append(' ');
}

void appendBytes(std::string& text, const MessageCan& frame, std::int32_t numberType)
{
    std::array<char, payloadLineCapacity> buffer;
    buffer[0] = '\0';
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
    Prefix buffer;
    TextWriter prefix(buffer.data(), buffer.size());
    appendStart(prefix, frame, number);
    if (numberType != decimal) {
        constexpr unsigned width = 3;
        prefix.append("S 0x");
        appendHexadecimal(prefix, frame.id(), width, lowerCase);
    } else {
        prefix.append("S ");
        prefix.appendLeftAligned(static_cast<std::int32_t>(frame.id()), decimalIdWidth);
    }
    prefix.append(' ');
    appendLength(prefix, frame);
    text.append(buffer.data(), prefix.length());
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
    Prefix buffer;
    TextWriter prefix(buffer.data(), buffer.size());
    appendStart(prefix, frame, number);
    prefix.append(frame.mode() == MessageCan::EMsgMode::Standard ? "S " : "E ");
    if (isHexadecimal(numberType)) {
        constexpr unsigned width = 6;
        appendHexadecimal(prefix, frame.id(), width, upperCase);
    } else {
        prefix.appendLeftAligned(static_cast<std::int32_t>(frame.id()), decimalIdWidth);
    }
    prefix.append(' ');
    appendLength(prefix, frame);
    text.append(buffer.data(), prefix.length());
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

// Letters of the payload and names from profiles are to be seen, not obeyed.
void escapeMarkup(std::string& text, std::size_t start)
{
    if (text.find_first_of("<&", start) == std::string::npos) {
        return;
    }
    std::string escaped;
    for (const char letter : std::string_view(text).substr(start)) {
        if (letter == '<') {
            escaped += "&lt;";
        } else if (letter == '&') {
            escaped += "&amp;";
        } else {
            escaped += letter;
        }
    }
    text.resize(start);
    text += escaped;
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
        text += errorFrameText;
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
        text += errorMarkupBegin;
        text += errorFrameText;
        text += errorMarkupEnd;
        return;
    }
    const std::size_t start = text.size();
    appendLine(text, frame, number, displayMode, numberType, store);
    if (displayMode != static_cast<std::int32_t>(DisplayMode::Can)) {
        escapeMarkup(text, start);
    }
}

bool areTraceLinesAlike(const MessageCan& frame, std::int32_t displayMode, std::int32_t traceFormat)
{
    constexpr auto can = static_cast<std::int32_t>(DisplayMode::Can);
    return displayMode == can && traceFormat == can &&
           frame.frameType() != MessageCan::EFrameType::Error;
}

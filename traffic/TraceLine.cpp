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

#include <algorithm>
#include <cstdio>
#include <iterator>

using zul::MessageCan;

namespace {

constexpr auto decimal = static_cast<std::int32_t>(NumberType::Decimal);
constexpr const char* errorText = "ERROR FRAME";
constexpr const char* errorMarkup = "<b><font color=\"#AA0000\"> ERROR FRAME</font></b><br>";

using SmallText = std::array<char, 64>; // more than a number with its marks takes

void appendStart(std::string& text, const MessageCan& frame, std::uint32_t number)
{
    constexpr int timeDecimals = 3;
    SmallText buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%05d ", static_cast<int>(number));
    text += buffer.data();
    TextWriter time(buffer.data(), buffer.size());
    time.appendTime(frame.timeStamp(), timeDecimals);
    time.append(' ');
    text += buffer.data();
}

void appendLength(std::string& text, const MessageCan& frame)
{
    char mark = 'D';
    if (frame.frameType() == MessageCan::EFrameType::Remote) {
        mark = 'R';
    } else if (frame.frameType() != MessageCan::EFrameType::Data) {
        return;
    }
    SmallText buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%c%d ", mark, static_cast<int>(frame.byteCount()));
    text += buffer.data();
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
    SmallText buffer{};
    if (numberType != decimal) {
        std::snprintf(buffer.data(), buffer.size(), "S 0x%03x ", frame.id());
    } else {
        std::snprintf(buffer.data(), buffer.size(), "S %-6d ", static_cast<int>(frame.id()));
    }
    text += buffer.data();
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
    const char letter = frame.mode() == MessageCan::EMsgMode::Standard ? 'S' : 'E';
    SmallText buffer{};
    if (isHexadecimal(numberType)) {
        std::snprintf(buffer.data(), buffer.size(), "%c %06X ", letter, frame.id());
    } else {
        const int id = static_cast<int>(frame.id());
        std::snprintf(buffer.data(), buffer.size(), "%c %-6d ", letter, id);
    }
    text += buffer.data();
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

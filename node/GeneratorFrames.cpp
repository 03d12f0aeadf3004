#include "node/GeneratorFrames.h"

#include "node/FrameBytes.h"

#include <cstring>

namespace generator {

namespace {

// Data types of CANaerospace, the second byte.
constexpr std::uint8_t noData = 0;
constexpr std::uint8_t floatType = 2;
constexpr std::uint8_t unsignedLongType = 4;
constexpr std::uint8_t unsignedCharType = 10;
constexpr std::uint8_t fourUnsignedCharsType = 15;

/// Lets a node store its settings; any other code does not.
constexpr std::uint8_t storeCode = 123;

constexpr int dataAt = 4;
constexpr std::uint32_t headBytes = 4;
constexpr std::uint32_t wholeFrame = 8;

// Bytes and bits of a configuration.
constexpr int separationAt = 4;
constexpr int dataTypeAt = 5;
constexpr int waveformAt = 6;
constexpr int flagsAt = 7;
constexpr std::uint8_t activeFlag = 0x01;
constexpr std::uint8_t constantFlag = 0x10;

std::uint8_t lowByte(std::uint32_t value)
{
    return static_cast<std::uint8_t>(value & 0xFFU);
}

std::uint8_t lowByte(std::int32_t value)
{
    return lowByte(static_cast<std::uint32_t>(value));
}

struct Head
{
    std::uint32_t node;
    std::uint8_t dataType;
    std::uint8_t serviceCode;
    std::uint8_t messageCode;
};

Frame makeFrame(std::uint32_t id, std::uint32_t byteCount, const Head& head)
{
    auto frame = std::make_unique<zul::MessageCan>();
    frame->setMode(zul::MessageCan::EMsgMode::Standard);
    frame->setFrameType(zul::MessageCan::EFrameType::Data);
    frame->setId(id);
    frame->setByteCount(byteCount);
    frame->msg()[0] = lowByte(head.node);
    frame->msg()[1] = head.dataType;
    frame->msg()[2] = head.serviceCode;
    frame->msg()[3] = head.messageCode;
    return frame;
}

std::uint8_t dataTypeOf(ChannelFrame kind)
{
    switch (kind) {
    case ChannelFrame::Frequency:
    case ChannelFrame::Amplitude:
    case ChannelFrame::Offset:
        break;
    case ChannelFrame::CanId:
        return unsignedLongType;
    case ChannelFrame::Configuration:
        return fourUnsignedCharsType;
    }
    return floatType;
}

void putFloat(zul::MessageCan& frame, float number)
{
    std::uint32_t bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    putLong(frame, dataAt, bits);
}

void putConfiguration(zul::MessageCan& frame, const ObjectFunctionGen::GeneratorChannel& channel)
{
    frame.msg()[separationAt] = lowByte(channel.separation);
    frame.msg()[dataTypeAt] = lowByte(channel.dataType);
    frame.msg()[waveformAt] = lowByte(channel.waveForm);
    const std::uint8_t active = channel.active ? activeFlag : std::uint8_t{0};
    frame.msg()[flagsAt] = static_cast<std::uint8_t>(constantFlag | active);
}

} // namespace

Frame searchRequest(std::uint32_t node)
{
    return makeFrame(requestId, headBytes, {node, noData, service::search, 0});
}

Frame nodeIdRequest(std::uint32_t node, std::uint32_t newNode)
{
    return makeFrame(requestId, headBytes,
                     {node, unsignedCharType, service::setNodeId, lowByte(newNode)});
}

Frame baseIdRequest(std::uint32_t node, std::uint32_t baseId)
{
    Frame frame = makeFrame(requestId, wholeFrame, {node, unsignedLongType, service::setBaseId, 0});
    putLong(*frame, dataAt, baseId);
    return frame;
}

Frame baudrateRequest(std::uint32_t node, std::uint32_t index)
{
    Frame frame =
        makeFrame(requestId, headBytes + 1, {node, unsignedCharType, service::setBaudrate, 0});
    frame->msg()[dataAt] = lowByte(index);
    return frame;
}

Frame storeRequest(std::uint32_t node)
{
    return makeFrame(requestId, headBytes, {node, noData, service::storeData, storeCode});
}

Frame channelFrame(ChannelFrame kind, const ObjectFunctionGen::Generator& generator,
                   const ObjectFunctionGen::GeneratorChannel& channel, std::uint8_t messageCode)
{
    const std::uint32_t id =
        static_cast<std::uint32_t>(generator.nodeBaseId) + static_cast<std::uint32_t>(kind);
    Frame frame = makeFrame(id, wholeFrame,
                            {static_cast<std::uint32_t>(generator.nodeId), dataTypeOf(kind),
                             lowByte(channel.channel), messageCode});
    switch (kind) {
    case ChannelFrame::Frequency:
        putFloat(*frame, channel.frequency);
        break;
    case ChannelFrame::Amplitude:
        putFloat(*frame, channel.amplitude);
        break;
    case ChannelFrame::Offset:
        putFloat(*frame, channel.offset);
        break;
    case ChannelFrame::CanId:
        putLong(*frame, dataAt, channel.canId);
        break;
    case ChannelFrame::Configuration:
        putConfiguration(*frame, channel);
        break;
    }
    return frame;
}

} // namespace generator

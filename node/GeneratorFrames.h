#pragma once

#include "message/MessageCan.h"
#include "project/ObjectFunctionGen.h"

#include <cstdint>
#include <memory>

// The frames between the panel and a function generator. All are standard data frames in the form
// of CANaerospace node services: node id, data type, service code, message code, data.

namespace generator {

inline constexpr std::uint32_t requestId = 128;
inline constexpr std::uint32_t replyId = 129;

/// Highest node id plus one.
inline constexpr std::uint32_t nodeCount = 256;

/// Service codes, the third byte of requests and replies.
namespace service {
inline constexpr std::uint8_t storeData = 6;
inline constexpr std::uint8_t setBaudrate = 10;
inline constexpr std::uint8_t setNodeId = 11;
inline constexpr std::uint8_t setBaseId = 110;
inline constexpr std::uint8_t search = 111;
} // namespace service

/// Distance of a channel frame's identifier from the generator's base identifier.
enum class ChannelFrame : std::uint32_t {
    Frequency = 0,
    Amplitude = 1,
    Offset = 2,
    CanId = 3,
    Configuration = 4
};

using Frame = std::unique_ptr<zul::MessageCan>;

/// Asks whether there is a generator with this node id.
Frame searchRequest(std::uint32_t node);
Frame nodeIdRequest(std::uint32_t node, std::uint32_t newNode);
Frame baseIdRequest(std::uint32_t node, std::uint32_t baseId);
/// `index` is that of the rate in `generatorBaudrates`.
Frame baudrateRequest(std::uint32_t node, std::uint32_t index);
/// Asks the node to keep its settings for good.
Frame storeRequest(std::uint32_t node);

/// The frame that brings one part of a channel's settings to the generator.
///
/// Deliberate: it is a standard frame also where the base identifier is larger than 2047.
Frame channelFrame(ChannelFrame kind, const ObjectFunctionGen::Generator& generator,
                   const ObjectFunctionGen::GeneratorChannel& channel, std::uint8_t messageCode);

} // namespace generator

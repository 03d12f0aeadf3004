#pragma once

#include "message/MessageCan.h"
#include "modules/support/BusTime.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace canmodule {

using FrameType = zul::MessageCan::EFrameType;
using FrameMode = zul::MessageCan::EMsgMode;

constexpr std::uint32_t maxStandardId = 0x7FF;
constexpr std::uint32_t maxExtendedId = 0x1FFFFFFF;
constexpr std::uint32_t maxClassicBytes = 8;
constexpr std::uint32_t maxFdBytes = 64;

/// One frame as a bus carries it; `message/` has the form that leaves a module.
struct BusFrame
{
    std::array<std::uint8_t, static_cast<std::size_t>(maxFdBytes)> data{}; ///< 0 from byteCount on
    std::uint32_t id = 0;
    std::uint32_t byteCount = 0;
    FrameType type = FrameType::Data;
    FrameMode mode = FrameMode::Standard;
    BusTime time = 0; ///< when it was received; of a scheduled frame its delay
};

constexpr bool isExtended(FrameMode mode)
{
    return (static_cast<std::uint32_t>(mode) & 1U) != 0;
}

constexpr bool isFd(FrameMode mode)
{
    return static_cast<std::uint32_t>(mode) >= static_cast<std::uint32_t>(FrameMode::StandardFd);
}

constexpr bool hasBitRateSwitch(FrameMode mode)
{
    return static_cast<std::uint32_t>(mode) >= static_cast<std::uint32_t>(FrameMode::StandardFdBrs);
}

/// Number of payload bytes that the wire carries for `byteCount` bytes (ISO 11898-1, DLC coding):
/// classic frames up to 8, FD frames the next of 0 to 8, 12, 16, 20, 24, 32, 48, 64.
std::uint32_t wireByteCount(FrameMode mode, std::uint32_t byteCount);

/// The 4-bit data length code of a payload size that `wireByteCount` returned.
std::uint32_t dataLengthCode(std::uint32_t byteCount);

/// Why `message` cannot be sent, or an empty text if it can: an identifier too large for its mode,
/// an error frame, an FD remote frame (there are none), or an unknown mode or type.
std::string frameProblem(const zul::MessageCan& message);

/// The frame that the wire carries for `message`, which must have no `frameProblem`. The byte count
/// is bounded and rounded up as a controller does; bytes added that way are 0.
BusFrame frameFromMessage(const zul::MessageCan& message);

/// A new message of `frame`.
std::unique_ptr<zul::MessageCan> messageFromFrame(const BusFrame& frame);

} // namespace canmodule

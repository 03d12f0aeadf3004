#include "node/FrameBytes.h"

namespace {

constexpr std::uint32_t byteBits = 8;
constexpr std::uint32_t byteMask = 0xFF;
constexpr std::uint32_t wordBits = 16;

} // namespace

void putWord(zul::MessageCan& frame, int at, std::uint32_t value)
{
    frame.msg()[at] = static_cast<std::uint8_t>((value >> byteBits) & byteMask);
    frame.msg()[at + 1] = static_cast<std::uint8_t>(value & byteMask);
}

void putLong(zul::MessageCan& frame, int at, std::uint32_t value)
{
    putWord(frame, at, value >> wordBits);
    putWord(frame, at + 2, value);
}

std::uint32_t wordAt(const zul::MessageCan& frame, int at)
{
    const std::uint32_t high = frame.msg()[at];
    return (high << byteBits) | frame.msg()[at + 1];
}

std::uint32_t longAt(const zul::MessageCan& frame, int at)
{
    return (wordAt(frame, at) << wordBits) | wordAt(frame, at + 2);
}

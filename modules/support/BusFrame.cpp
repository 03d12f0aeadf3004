#include "modules/support/BusFrame.h"

#include <algorithm>

namespace canmodule {

namespace {

constexpr std::array<std::uint32_t, 16> fdSizes = {0, 1,  2,  3,  4,  5,  6,  7,
                                                   8, 12, 16, 20, 24, 32, 48, 64};
static_assert(fdSizes.back() == maxFdBytes);

} // namespace

std::uint32_t wireByteCount(FrameMode mode, std::uint32_t byteCount)
{
    if (!isFd(mode)) {
        return std::min(byteCount, maxClassicBytes);
    }
    const auto* const size = std::lower_bound(fdSizes.begin(), fdSizes.end(), byteCount);
    return size != fdSizes.end() ? *size : maxFdBytes;
}

std::uint32_t dataLengthCode(std::uint32_t byteCount)
{
    const auto* const size = std::lower_bound(fdSizes.begin(), fdSizes.end() - 1, byteCount);
    return static_cast<std::uint32_t>(size - fdSizes.begin());
}

std::string frameProblem(const zul::MessageCan& message)
{
    if (static_cast<std::uint32_t>(message.mode()) >
        static_cast<std::uint32_t>(FrameMode::ExtendedFdBrs)) {
        return "unknown frame mode";
    }
    if (message.frameType() != FrameType::Data && message.frameType() != FrameType::Remote) {
        return "only data and remote frames can be sent";
    }
    if (message.frameType() == FrameType::Remote && isFd(message.mode())) {
        return "CAN FD has no remote frames";
    }
    if (message.id() > (isExtended(message.mode()) ? maxExtendedId : maxStandardId)) {
        return "identifier too large for the frame mode";
    }
    return {};
}

BusFrame frameFromMessage(const zul::MessageCan& message)
{
    BusFrame frame;
    frame.id = message.id();
    frame.type = message.frameType();
    frame.mode = message.mode();
    frame.byteCount = wireByteCount(frame.mode, message.byteCount());
    if (frame.type == FrameType::Data) {
        const std::uint32_t given = std::min(message.byteCount(), frame.byteCount);
        std::copy_n(&message.msg()[0], given, frame.data.begin());
    }
    return frame;
}

std::unique_ptr<zul::MessageCan> messageFromFrame(const BusFrame& frame)
{
    auto message = std::make_unique<zul::MessageCan>();
    message->setId(frame.id);
    message->setByteCount(frame.byteCount);
    message->setFrameType(frame.type);
    message->setMode(frame.mode);
    message->setTimeStamp(
        zul::MessageCan::TimeStamp{static_cast<std::uint32_t>(frame.time / second),
                                   static_cast<std::uint32_t>(frame.time % second)});
    std::copy_n(frame.data.begin(), frame.byteCount, &message->msg()[0]);
    return message;
}

} // namespace canmodule

#include "node/UploadSchedule.h"

#include "message/MessageCtrl.h"
#include "node/ServiceAddress.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::uint32_t polynomial = 0x04C11DB7;
constexpr std::uint32_t byteBits = 8;
constexpr std::uint32_t topByteShift = 24;
constexpr std::uint32_t topBit = 0x80000000;
constexpr std::uint32_t byteMask = 0xFF;

constexpr std::uint32_t frameBytes = 8;
constexpr std::uint32_t scheduled = 1;
constexpr double firstFrameAt = 0.1;
constexpr double secondsPerMillisecond = 0.001;
constexpr std::size_t controlsOfSchedule = 3;

void addControl(MessageContainer& batch, zul::MessageCtrl::ECtrl id)
{
    auto control = std::make_unique<zul::MessageCtrl>();
    control->setId(id);
    batch.addMessage(SmartPtr<Message>(control.release()));
}

// The bytes of the file, and of the checksum behind it.
class UploadBytes
{
public:
    explicit UploadBytes(const QByteArray& file)
        : m_file(file), m_checksum(uploadChecksum(static_cast<std::uint64_t>(file.size())))
    {
    }

    std::uint64_t size() const
    {
        return static_cast<std::uint64_t>(m_file.size()) + uploadChecksumBytes;
    }

    std::uint8_t at(std::uint64_t index) const
    {
        const auto fileSize = static_cast<std::uint64_t>(m_file.size());
        if (index < fileSize) {
            return static_cast<std::uint8_t>(m_file.at(static_cast<int>(index)));
        }
        const auto behind = static_cast<std::uint32_t>(index - fileSize);
        return static_cast<std::uint8_t>((m_checksum >> (topByteShift - byteBits * behind)) &
                                         byteMask);
    }

private:
    const QByteArray& m_file;
    std::uint32_t m_checksum;
};

} // namespace

std::uint32_t uploadChecksum(std::uint64_t size)
{
    // Each step moves the value by a whole byte, so that only the last four steps are seen in it.
    constexpr std::uint64_t stepsThatShow = 4;
    std::uint32_t crc = 0xFFFFFFFF;
    for (std::uint64_t i = size - std::min(size, stepsThatShow); i < size; ++i) {
        std::uint32_t term = (static_cast<std::uint32_t>(i) & byteMask) << topByteShift;
        for (std::uint32_t bit = 0; bit < byteBits; ++bit) {
            term = (term & topBit) != 0 ? (term << 1) ^ polynomial : term << 1;
        }
        crc = (crc << byteBits) ^ term;
    }
    return ~crc;
}

std::uint32_t uploadFrameCount(std::uint64_t size)
{
    return static_cast<std::uint32_t>((size + uploadChecksumBytes) / frameBytes + 1);
}

MessageContainer uploadSchedule(const QByteArray& file, std::uint32_t dataId,
                                const UploadPacing& pacing)
{
    const UploadBytes bytes(file);
    const std::uint32_t frameCount = uploadFrameCount(static_cast<std::uint64_t>(file.size()));
    MessageContainer batch;
    batch.messages().reserve(frameCount + controlsOfSchedule);
    addControl(batch, zul::MessageCtrl::ECtrl::ScheduleBegin);
    double time = firstFrameAt;
    std::uint32_t bytesOfBlock = 0;
    std::uint64_t next = 0;
    for (std::uint32_t number = 0; number < frameCount; ++number) {
        const auto count =
            static_cast<std::uint32_t>(std::min<std::uint64_t>(bytes.size() - next, frameBytes));
        std::unique_ptr<zul::MessageCan> frame = serviceFrame(dataId, count);
        frame->setCpmMode(scheduled);
        frame->setTimeStamp(time);
        if (bytesOfBlock >= pacing.blockSize) {
            time += pacing.blockSeparation * secondsPerMillisecond;
            bytesOfBlock = 0;
        } else {
            time += pacing.messageSeparation * secondsPerMillisecond;
        }
        for (std::uint32_t i = 0; i < count; ++i) {
            frame->msg()[static_cast<std::int32_t>(i)] = bytes.at(next++);
        }
        bytesOfBlock += count;
        batch.addMessage(SmartPtr<Message>(frame.release()));
    }
    addControl(batch, zul::MessageCtrl::ECtrl::ScheduleEnd);
    addControl(batch, zul::MessageCtrl::ECtrl::ScheduleStart);
    return batch;
}

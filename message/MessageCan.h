#pragma once

#include "message/Message.h"
#include "message/MessageData.h"

#include <cstdint>

namespace zul {

/// One CAN or CAN FD frame.
class MESSAGE_INTERFACE_EXPORT MessageCan : public Message
{
public:
    /// What kind of frame this is. In an error frame identifier and payload mean nothing.
    enum class EFrameType : std::uint32_t { Data = 0, Remote = 1, Error = 255 };

    /// Addressing mode. The odd values carry 29-bit identifiers.
    enum class EMsgMode : std::uint32_t {
        Standard = 0,
        Extended = 1,
        StandardFd = 2,
        ExtendedFd = 3,
        StandardFdBrs = 4, ///< FD with bit-rate switch
        ExtendedFdBrs = 5  ///< FD with bit-rate switch
    };

    /// An instant, or for scheduled sending a delay, as a record of two words.
    struct TimeStamp
    {
        std::uint32_t seconds = 0;
        std::uint32_t nanoseconds = 0;
    };

    MessageCan();
    ~MessageCan() override;
    MessageCan(const MessageCan& other);
    MessageCan& operator=(const MessageCan& other);

    /// The CAN identifier, 11 or 29 bits by `mode()`.
    std::uint32_t id() const { return m_id; }
    void setId(std::uint32_t id) { m_id = id; }

    /// Number of valid payload bytes, 0 to 64. The value is kept as set; readers bound it.
    std::uint32_t byteCount() const { return m_byteCount; }
    void setByteCount(std::uint32_t byteCount) { m_byteCount = byteCount; }

    EFrameType frameType() const { return m_frameType; }
    void setFrameType(EFrameType frameType) { m_frameType = frameType; }

    EMsgMode mode() const { return m_mode; }
    void setMode(EMsgMode mode) { m_mode = mode; }

    /// Channel of the device on which the frame was seen.
    std::uint32_t channel() const { return m_channel; }
    void setChannel(std::uint32_t channel) { m_channel = channel; }

    /// Non-zero marks a frame for the device's scheduled-send memory (see `MessageCtrl`): its time
    /// stamp is then a delay, not an absolute time.
    std::uint32_t cpmMode() const { return m_cpmMode; }
    void setCpmMode(std::uint32_t cpmMode) { m_cpmMode = cpmMode; }

    /// Time of the frame. Both views tell the same instant, whichever setter was used.
    TimeStamp timeStamp() const { return m_timeStamp; }
    /// Time of the frame in seconds; at wall-clock size a double resolves about 0.2 microseconds.
    double timeStampDouble() const
    {
        constexpr double nanosecondsPerSecond = 1e9;
        return m_timeStamp.seconds + m_timeStamp.nanoseconds / nanosecondsPerSecond;
    }
    void setTimeStamp(const TimeStamp& timeStamp) { m_timeStamp = timeStamp; }
    /// Sets the time in seconds, to the nearest nanosecond. What the record cannot hold is clamped:
    /// negative values and NaN to 0, too large ones to 4294967295 s and 999999999 ns.
    void setTimeStamp(double seconds);

    /// The payload.
    MessageData& msg() { return m_data; }
    const MessageData& msg() const { return m_data; }

private:
    MessageData m_data;
    std::uint32_t m_id = 0;
    std::uint32_t m_byteCount = 0;
    EFrameType m_frameType = EFrameType::Data;
    EMsgMode m_mode = EMsgMode::Standard;
    TimeStamp m_timeStamp;
    std::uint32_t m_channel = 0;
    std::uint32_t m_cpmMode = 0;
};

} // namespace zul

#include "message/MessageCan.h"

namespace zul {

MessageCan::MessageCan() = default;

MessageCan::~MessageCan() = default;

MessageCan::MessageCan(const MessageCan& other) = default;

MessageCan& MessageCan::operator=(const MessageCan& other) = default;

std::uint32_t MessageCan::id() const
{
    return m_id;
}

void MessageCan::setId(std::uint32_t id)
{
    m_id = id;
}

std::uint32_t MessageCan::byteCount() const
{
    return m_byteCount;
}

void MessageCan::setByteCount(std::uint32_t byteCount)
{
    m_byteCount = byteCount;
}

MessageCan::EFrameType MessageCan::frameType() const
{
    return m_frameType;
}

void MessageCan::setFrameType(EFrameType frameType)
{
    m_frameType = frameType;
}

MessageCan::EMsgMode MessageCan::mode() const
{
    return m_mode;
}

void MessageCan::setMode(EMsgMode mode)
{
    m_mode = mode;
}

std::uint32_t MessageCan::channel() const
{
    return m_channel;
}

void MessageCan::setChannel(std::uint32_t channel)
{
    m_channel = channel;
}

std::uint32_t MessageCan::cpmMode() const
{
    return m_cpmMode;
}

void MessageCan::setCpmMode(std::uint32_t cpmMode)
{
    m_cpmMode = cpmMode;
}

MessageCan::TimeStamp MessageCan::timeStamp() const
{
    return m_timeStamp;
}

double MessageCan::timeStampDouble() const
{
    return timeStampToDouble(m_timeStamp);
}

void MessageCan::setTimeStamp(const TimeStamp& timeStamp)
{
    m_timeStamp = timeStamp;
}

void MessageCan::setTimeStamp(double seconds)
{
    m_timeStamp = timeStampFromDouble(seconds);
}

MessageData& MessageCan::msg()
{
    return m_data;
}

const MessageData& MessageCan::msg() const
{
    return m_data;
}

} // namespace zul

#include "message/MessageCan.h"

#include <cmath>
#include <limits>

namespace zul {

namespace {

constexpr double nanosecondsPerSecond = 1e9;
constexpr std::uint32_t maxNanoseconds = 999'999'999;

MessageCan::TimeStamp timeStampFromDouble(double seconds)
{
    constexpr auto maxSeconds = std::numeric_limits<std::uint32_t>::max();
    if (!(seconds > 0.0)) { // also catches NaN
        return {};
    }
    if (seconds >= static_cast<double>(maxSeconds) + 1.0) {
        return {maxSeconds, maxNanoseconds};
    }
    const double whole = std::floor(seconds);
    auto wholeSeconds = static_cast<std::uint32_t>(whole);
    auto rest = static_cast<std::uint32_t>(std::lround((seconds - whole) * nanosecondsPerSecond));
    if (rest > maxNanoseconds) {
        if (wholeSeconds == maxSeconds) {
            rest = maxNanoseconds;
        } else {
            ++wholeSeconds;
            rest = 0;
        }
    }
    return {wholeSeconds, rest};
}

double timeStampToDouble(const MessageCan::TimeStamp& timeStamp)
{
    return timeStamp.seconds + timeStamp.nanoseconds / nanosecondsPerSecond;
}

} // namespace

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

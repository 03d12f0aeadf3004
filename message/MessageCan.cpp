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

} // namespace

MessageCan::MessageCan() = default;

MessageCan::~MessageCan() = default;

MessageCan::MessageCan(const MessageCan& other) = default;

MessageCan& MessageCan::operator=(const MessageCan& other) = default;

void MessageCan::setTimeStamp(double seconds)
{
    m_timeStamp = timeStampFromDouble(seconds);
}

} // namespace zul

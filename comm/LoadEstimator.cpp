#include "comm/LoadEstimator.h"

#include "core/LowPass.h"
#include "message/MessageCan.h"
#include "message/MessageStatus.h"

#include <cmath>

namespace comm {

namespace {

using zul::MessageCan;

constexpr double gain = 0.5;
constexpr double windowSeconds = 1.0;

constexpr std::uint32_t shortOverhead = 58; // modes 0 and 2
constexpr std::uint32_t longOverhead = 80;
constexpr std::uint32_t bitsPerByte = 9;

} // namespace

std::uint32_t frameCost(std::uint32_t mode, std::uint32_t byteCount)
{
    // Deliberate: mode 4 has an 11-bit identifier too, yet counts with the long overhead.
    const std::uint32_t overhead = mode == 0 || mode == 2 ? shortOverhead : longOverhead;
    return overhead + bitsPerByte * byteCount;
}

LoadEstimator::LoadEstimator(double now) : m_lastPollTime(now) {}

void LoadEstimator::update(const MessageContainer& batch, Source source, bool isConnected,
                           double now)
{
    const double dt = now - m_lastPollTime;
    m_lastPollTime = now;
    if (source == Source::Status) {
        takeStatus(batch, dt);
    } else {
        countFrames(batch, dt);
    }
    if (!isConnected) {
        m_costs.clear();
        m_rate = 0.0;
        m_busBits = 0.0;
        m_bitSum = 0;
    }
}

void LoadEstimator::countFrames(const MessageContainer& batch, double dt)
{
    if (batch.messages().empty()) {
        m_busTime += dt;
    }
    for (const auto& message : batch.messages()) {
        const auto* frame = message_cast<MessageCan>(message.get());
        if (frame == nullptr || frame->frameType() == MessageCan::EFrameType::Error) {
            continue;
        }
        m_busTime = frame->timeStampDouble();
        const std::uint32_t bits =
            frameCost(static_cast<std::uint32_t>(frame->mode()), frame->byteCount());
        m_bitSum += bits;
        m_costs.push_back({bits, m_busTime});
    }
    // The absolute value: a clock that jumps back empties the window as well.
    while (!m_costs.empty() && std::abs(m_busTime - m_costs.front().time) > windowSeconds) {
        m_bitSum -= m_costs.front().bits;
        m_costs.pop_front();
    }
    zul::lowPass(static_cast<double>(m_costs.size()), gain, dt, m_rate);
    zul::lowPass(static_cast<double>(m_bitSum), gain, dt, m_busBits);
}

void LoadEstimator::takeStatus(const MessageContainer& batch, double dt)
{
    const zul::MessageStatus* last = nullptr;
    for (const auto& message : batch.messages()) {
        if (const auto* status = message_cast<zul::MessageStatus>(message.get())) {
            last = status;
        }
    }
    if (last == nullptr) {
        return;
    }
    const double messages =
        static_cast<double>(last->messageCount0) + static_cast<double>(last->messageCount1);
    m_busBits = static_cast<double>(last->bitCount0) + static_cast<double>(last->bitCount1);
    zul::lowPass(messages, gain, dt, m_rate);
    // Deliberate: no frames are counted here, so this weighs the reported value against 0 and
    // lowers the reading, to about 91 percent at a poll period of 50 ms.
    zul::lowPass(static_cast<double>(m_bitSum), gain, dt, m_busBits);
}

} // namespace comm

#include "bench/SequenceCheck.h"

#include "message/MessageCan.h"
#include "message/MessageStatus.h"

namespace bench {

namespace {

constexpr std::uint32_t identifierMask = 2048 - 1;

std::uint32_t maskOf(Sequence sequence)
{
    return sequence == Sequence::Identifier ? identifierMask : 0xFFFFFFFFU;
}

std::uint32_t numberOf(const zul::MessageCan& frame, Sequence sequence)
{
    if (sequence == Sequence::Identifier) {
        return frame.id();
    }
    const zul::MessageData& bytes = frame.msg();
    return static_cast<std::uint32_t>(bytes[0]) << 24U |
           static_cast<std::uint32_t>(bytes[1]) << 16U |
           static_cast<std::uint32_t>(bytes[2]) << 8U | static_cast<std::uint32_t>(bytes[3]);
}

} // namespace

SequenceCheck::SequenceCheck(Sequence sequence) : m_sequence(sequence) {}

void SequenceCheck::take(const MessageContainer& batch)
{
    for (const auto& message : batch.messages()) {
        if (const auto* frame = message_cast<zul::MessageCan>(message.get())) {
            takeFrame(*frame);
        } else if (const auto* report = message_cast<zul::MessageStatus>(message.get())) {
            for (const zul::DeviceStatusEntry& entry : report->entries) {
                if (entry.label == "Lost frames") {
                    m_lostByDevice = entry.value;
                } else if (entry.label == "Skipped [s]") {
                    m_skippedSeconds = entry.value;
                }
            }
        }
    }
}

void SequenceCheck::takeFrame(const zul::MessageCan& frame)
{
    const std::uint32_t mask = maskOf(m_sequence);
    const std::uint32_t number = numberOf(frame, m_sequence);
    const std::uint32_t gap = (number - m_expected) & mask;
    if (gap > mask / 2) {
        ++m_misplaced; // behind what has come already
    } else {
        m_missing += gap; // the first frame has the number 0
        m_expected = (number + 1) & mask;
    }
    if (m_frames == 0) {
        m_firstTime = frame.timeStampDouble();
    }
    m_lastTime = frame.timeStampDouble();
    ++m_frames;
}

} // namespace bench

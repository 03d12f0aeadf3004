#include "node/IdentificationClient.h"

#include "message/MessageContainer.h"
#include "node/FrameBytes.h"
#include "node/ServiceLink.h"

namespace {

constexpr std::uint32_t identificationService = 0;
constexpr std::uint32_t requestBytes = 2;

// Bytes of the answer; its length is not asked.
constexpr int profileIdAt = 2;
constexpr int profileSubIdAt = 4;
constexpr int lruCodeAt = 6;

} // namespace

IdentificationClient::IdentificationClient(ServiceLink& link) : m_link(link) {}

void IdentificationClient::send()
{
    const std::uint32_t id = requestId(m_address);
    std::unique_ptr<zul::MessageCan> frame = serviceFrame(id, requestBytes);
    putWord(*frame, 0, identificationService);
    MessageContainer batch;
    batch.addMessage(SmartPtr<Message>(frame.release()));
    m_link.sendToNode(batch);
    m_state = State::Waiting;
    m_link.startTimer();
    m_expectedId = id & ~requestBit;
}

bool IdentificationClient::receive(const MessageContainer& batch)
{
    bool any = false;
    for (const SmartPtr<Message>& message : batch.messages()) {
        const zul::MessageCan* frame = answerOf(message.get());
        if (frame == nullptr || frame->id() != m_expectedId) {
            continue;
        }
        any = true;
        m_state = State::Received;
        m_link.stopTimer();
        m_identification = {wordAt(*frame, profileIdAt), wordAt(*frame, profileSubIdAt),
                            wordAt(*frame, lruCodeAt)};
    }
    return any;
}

void IdentificationClient::timeOut()
{
    m_state = State::Timeout;
}

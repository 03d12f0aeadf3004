#pragma once

#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "node/ServiceLink.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace zul::test {

/// Keeps what a client sends, and writes down what it does, in order.
class ServiceTestLink : public ServiceLink
{
public:
    void sendToNode(MessageContainer& batch) override
    {
        log += "send ";
        sent.push_back(batch);
    }
    void startTimer() override { log += "start "; }
    void stopTimer() override { log += "stop "; }

    const MessageCan& frame(std::size_t batch, std::size_t message = 0) const
    {
        return *message_cast<MessageCan>(sent.at(batch).messages().at(message).get());
    }

    std::string log;
    std::vector<MessageContainer> sent;
};

/// A batch with one frame.
inline MessageContainer batchOf(std::uint32_t id, const std::vector<std::uint8_t>& bytes)
{
    auto frame = std::make_unique<MessageCan>();
    frame->setMode(MessageCan::EMsgMode::Extended);
    frame->setId(id);
    frame->setByteCount(static_cast<std::uint32_t>(bytes.size()));
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        frame->msg()[static_cast<std::int32_t>(i)] = bytes[i];
    }
    MessageContainer batch;
    batch.addMessage(SmartPtr<Message>(frame.release()));
    return batch;
}

/// The payload, as far as it counts, in hexadecimal.
inline std::string hexOf(const MessageCan& frame)
{
    constexpr const char* digits = "0123456789ABCDEF";
    std::string text;
    for (std::uint32_t i = 0; i < frame.byteCount(); ++i) {
        const std::uint8_t byte = frame.msg()[static_cast<std::int32_t>(i)];
        text += i > 0 ? " " : "";
        text += digits[byte >> 4];
        text += digits[byte & 15];
    }
    return text;
}

} // namespace zul::test

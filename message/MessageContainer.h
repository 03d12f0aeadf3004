#pragma once

#include "message/Message.h"
#include "message/SmartPtr.h"

#include <cstdint>
#include <string>
#include <vector>

/// A batch of messages on its way between an interface and the windows. Copies share the messages.
class MESSAGE_INTERFACE_EXPORT MessageContainer
{
public:
    using Messages = std::vector<SmartPtr<Message>>;

    MessageContainer();
    ~MessageContainer();
    MessageContainer(const MessageContainer& other);
    MessageContainer(MessageContainer&& other) noexcept;
    MessageContainer& operator=(const MessageContainer& other);
    MessageContainer& operator=(MessageContainer&& other) noexcept;

    void addMessage(SmartPtr<Message> message);

    /// The batch in order.
    Messages& messages() { return m_messages; }
    const Messages& messages() const { return m_messages; }
    std::uint32_t size() const { return static_cast<std::uint32_t>(m_messages.size()); }

    /// On a received batch the name of the interface that produced it, on a batch to send the name
    /// of the interface that is to send it, or "All Interfaces".
    std::string& srcDest() { return m_srcDest; }
    const std::string& srcDest() const { return m_srcDest; }
    void setSrcDest(const std::string& srcDest);

private:
    Messages m_messages;
    std::string m_srcDest;
};

#include "message/MessageContainer.h"

#include <utility>

MessageContainer::MessageContainer() = default;

MessageContainer::~MessageContainer() = default;

MessageContainer::MessageContainer(const MessageContainer& other) = default;

MessageContainer::MessageContainer(MessageContainer&& other) noexcept = default;

MessageContainer& MessageContainer::operator=(const MessageContainer& other) = default;

MessageContainer& MessageContainer::operator=(MessageContainer&& other) noexcept = default;

void MessageContainer::addMessage(SmartPtr<Message> message)
{
    m_messages.push_back(std::move(message));
}

MessageContainer::Messages& MessageContainer::messages()
{
    return m_messages;
}

const MessageContainer::Messages& MessageContainer::messages() const
{
    return m_messages;
}

std::uint32_t MessageContainer::size() const
{
    return static_cast<std::uint32_t>(m_messages.size());
}

std::string& MessageContainer::srcDest()
{
    return m_srcDest;
}

const std::string& MessageContainer::srcDest() const
{
    return m_srcDest;
}

void MessageContainer::setSrcDest(const std::string& srcDest)
{
    m_srcDest = srcDest;
}

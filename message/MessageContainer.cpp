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

void MessageContainer::setSrcDest(const std::string& srcDest)
{
    m_srcDest = srcDest;
}

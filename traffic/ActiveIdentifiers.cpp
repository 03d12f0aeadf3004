#include "traffic/ActiveIdentifiers.h"

#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "profile/Arinc825Id.h"

#include <array>
#include <cstdio>

const std::vector<std::uint32_t>& ActiveIdentifiers::update(const MessageContainer& batch)
{
    m_added.clear();
    for (const auto& message : batch.messages()) {
        const auto* frame = message_cast<zul::MessageCan>(message.get());
        if (frame != nullptr && m_count < maxIdentifiers &&
            m_index.findOrAdd(frame->id(), m_count) == m_count) {
            ++m_count;
            m_added.push_back(frame->id());
        }
    }
    return m_added;
}

void ActiveIdentifiers::clear()
{
    m_index.clear();
    m_count = 0;
}

std::string activeIdentifierText(std::uint32_t identifier)
{
    std::array<char, 16> text{};
    const bool isStandard = identifier <= zul::arinc825::maxStandardId;
    const int length =
        std::snprintf(text.data(), text.size(), isStandard ? "%u" : "0x%x", identifier);
    return {text.data(), static_cast<std::size_t>(length)};
}

#include "message/Message.h"

Message::Message() = default;

Message::Message(std::int32_t type) : m_type(type) {}

// Out of line, as every special member here: one vtable and one type_info, in this library, which
// the run-time type test across modules needs.
Message::~Message() = default;

Message::Message(const Message& other) = default;

Message& Message::operator=(const Message& other) = default;

std::int32_t Message::type() const
{
    return m_type;
}

std::uint32_t Message::moduleWord(int index) const
{
    return index == 0 || index == 1 ? m_moduleWords[static_cast<std::size_t>(index)] : 0;
}

void Message::setModuleWord(int index, std::uint32_t value)
{
    if (index == 0 || index == 1) {
        m_moduleWords[static_cast<std::size_t>(index)] = value;
    }
}

#include "message/MessageData.h"

namespace zul {

namespace {

std::uint8_t& spareByte()
{
    // One for each thread, so that stray writes of two threads do not race.
    static thread_local std::uint8_t spare;
    spare = 0;
    return spare;
}

bool isInside(std::int32_t index)
{
    return index >= 0 && index < MessageData::size;
}

} // namespace

MessageData::MessageData() = default;

std::uint8_t& MessageData::operator[](std::int32_t index)
{
    return isInside(index) ? m_bytes[static_cast<std::size_t>(index)] : spareByte();
}

const std::uint8_t& MessageData::operator[](std::int32_t index) const
{
    return isInside(index) ? m_bytes[static_cast<std::size_t>(index)] : spareByte();
}

} // namespace zul

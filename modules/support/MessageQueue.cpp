#include "modules/support/MessageQueue.h"

#include <algorithm>
#include <iterator>

namespace canmodule {

std::size_t MessageQueue::push(Batch& messages)
{
    std::size_t dropped = 0;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const std::size_t held = m_waiting.size() + m_batch.size() - m_next;
        const std::size_t room = m_capacity - std::min(held, m_capacity);
        const std::size_t taken = std::min(room, messages.size());
        const auto end = messages.begin() + static_cast<std::ptrdiff_t>(taken);
        m_waiting.insert(m_waiting.end(), std::make_move_iterator(messages.begin()),
                         std::make_move_iterator(end));
        dropped = messages.size() - taken;
    }
    messages.clear();
    return dropped;
}

Message* MessageQueue::pop()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_handedOut >= drainLimit) {
        m_handedOut = 0;
        return nullptr;
    }
    if (m_next == m_batch.size()) {
        m_batch.clear();
        m_next = 0;
        m_batch.swap(m_waiting);
    }
    if (m_batch.empty()) {
        m_handedOut = 0;
        return nullptr;
    }
    ++m_handedOut;
    return m_batch[m_next++].release();
}

void MessageQueue::clear()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_waiting.clear();
    m_batch.clear();
    m_next = 0;
    m_handedOut = 0;
}

std::size_t MessageQueue::fill() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_waiting.size() + m_batch.size() - m_next;
}

} // namespace canmodule

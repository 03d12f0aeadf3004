#include "comm/BatchListeners.h"

#include <utility>

namespace comm {

BatchListeners& BatchListeners::instance()
{
    static auto* listeners = new BatchListeners; // lives until process exit
    return *listeners;
}

void BatchListeners::add(Listener listener)
{
    m_listeners.push_back(std::move(listener));
}

void BatchListeners::clear()
{
    m_listeners.clear();
}

void BatchListeners::notify(MessageContainer& batch) const
{
    for (const Listener& listener : m_listeners) {
        listener(batch);
    }
}

} // namespace comm

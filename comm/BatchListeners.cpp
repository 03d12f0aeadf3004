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
    auto listeners = m_listeners != nullptr ? std::make_shared<std::vector<Listener>>(*m_listeners)
                                            : std::make_shared<std::vector<Listener>>();
    listeners->push_back(std::move(listener));
    m_listeners = std::move(listeners);
}

void BatchListeners::clear()
{
    m_listeners.reset();
}

void BatchListeners::notify(MessageContainer& batch) const
{
    if (m_listeners == nullptr) {
        return;
    }
    const auto listeners = m_listeners; // one may add another
    for (const Listener& listener : *listeners) {
        listener(batch);
    }
}

} // namespace comm

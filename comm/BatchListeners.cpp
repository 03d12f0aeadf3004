#include "comm/BatchListeners.h"

#include <algorithm>
#include <utility>

namespace comm {

BatchListeners& BatchListeners::instance()
{
    static auto* listeners = new BatchListeners; // lives until process exit
    return *listeners;
}

int BatchListeners::add(Listener listener)
{
    Listeners listeners = copy();
    listeners.emplace_back(++m_lastNumber, std::move(listener));
    replace(std::move(listeners));
    return m_lastNumber;
}

void BatchListeners::remove(int number)
{
    Listeners listeners = copy();
    listeners.erase(std::remove_if(listeners.begin(), listeners.end(),
                                   [=](const auto& entry) { return entry.first == number; }),
                    listeners.end());
    replace(std::move(listeners));
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
    for (const auto& entry : *listeners) {
        entry.second(batch);
    }
}

BatchListeners::Listeners BatchListeners::copy() const
{
    return m_listeners != nullptr ? *m_listeners : Listeners();
}

void BatchListeners::replace(Listeners listeners)
{
    m_listeners =
        listeners.empty() ? nullptr : std::make_shared<const Listeners>(std::move(listeners));
}

} // namespace comm

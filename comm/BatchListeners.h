#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

class MessageContainer;

namespace comm {

/// Listeners that get every batch of every interface, beside the wired objects.
class BatchListeners
{
public:
    using Listener = std::function<void(MessageContainer& batch)>;

    static BatchListeners& instance();

    /// Gives the number by which `remove` knows the listener.
    int add(Listener listener);
    /// A listener that another one removes may get the batch that is on its way still. Nothing
    /// happens for a number that is unknown.
    void remove(int number);
    void clear();
    void notify(MessageContainer& batch) const;

private:
    using Listeners = std::vector<std::pair<int, Listener>>;

    Listeners copy() const;
    void replace(Listeners listeners);

    // Replaced, never changed: whoever notifies holds on to the list it began with. Null if empty.
    std::shared_ptr<const Listeners> m_listeners;
    int m_lastNumber = 0;
};

} // namespace comm

#pragma once

#include <functional>
#include <memory>
#include <vector>

class MessageContainer;

namespace comm {

/// Listeners that get every batch of every interface, beside the wired objects. A listener
/// registers once and stays.
class BatchListeners
{
public:
    using Listener = std::function<void(MessageContainer& batch)>;

    static BatchListeners& instance();

    void add(Listener listener);
    void clear();
    void notify(MessageContainer& batch) const;

private:
    // Replaced, never changed: whoever notifies holds on to the list it began with. Null if empty.
    std::shared_ptr<const std::vector<Listener>> m_listeners;
};

} // namespace comm

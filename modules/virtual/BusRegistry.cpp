#include "modules/virtual/BusRegistry.h"

#include <utility>

namespace canvirtual {

BusRegistry::BusRegistry(std::unique_ptr<BusClock> clock) : m_clock(std::move(clock)) {}

BusRegistry& BusRegistry::process()
{
    static auto* const registry = new BusRegistry(std::make_unique<MonotonicBusClock>());
    return *registry;
}

std::shared_ptr<VirtualBus> BusRegistry::bus(const std::string& name)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::weak_ptr<VirtualBus>& known = m_buses[name];
    std::shared_ptr<VirtualBus> bus = known.lock();
    if (bus == nullptr) {
        bus = std::make_shared<VirtualBus>(*m_clock);
        known = bus;
    }
    return bus;
}

} // namespace canvirtual

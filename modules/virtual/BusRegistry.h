#pragma once

#include "modules/virtual/BusClock.h"
#include "modules/virtual/VirtualBus.h"

#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace canvirtual {

/// The buses by name, all on one clock. A bus exists as long as somebody holds it. Thread-safe.
class BusRegistry
{
public:
    explicit BusRegistry(std::unique_ptr<BusClock> clock);

    /// The buses of the process, on a monotonic clock. Made at the first call and never destroyed:
    /// reader threads may still be at work while the process exits.
    static BusRegistry& process();

    /// The bus of that name; the registry outlives it.
    std::shared_ptr<VirtualBus> bus(const std::string& name);

private:
    std::unique_ptr<BusClock> m_clock;
    std::mutex m_mutex;
    std::map<std::string, std::weak_ptr<VirtualBus>> m_buses;
};

} // namespace canvirtual

#include "comm/DeviceLink.h"

#include "core/GuardedCall.h"

namespace comm {

DeviceLink::DeviceLink() = default;

void DeviceLink::setDevice(Device* device)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_device = device;
}

void DeviceLink::setConnected()
{
    m_connected = true;
}

bool DeviceLink::close()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const bool closed = zul::guardedCall("close", false, [this] { return m_device->close(); });
    if (m_connected) {
        drainLocked();
    }
    m_connected = false;
    return closed;
}

void DeviceLink::drain()
{
    if (!m_connected) {
        return;
    }
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_connected && m_device != nullptr) {
        drainLocked();
    }
}

void DeviceLink::takeReceived(std::vector<Message*>& empty)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    empty.swap(m_received);
}

void DeviceLink::drainLocked()
{
    constexpr Message* none = nullptr;
    const auto next = [this] { return m_device->recvMessage(); };
    while (Message* message = zul::guardedCall("recvMessage", none, next)) {
        m_received.push_back(message);
    }
}

} // namespace comm

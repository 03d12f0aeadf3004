#pragma once

#include "message/Device.h"

#include <atomic>
#include <mutex>
#include <vector>

namespace comm {

/// The device of an interface as its main thread and its reader thread share it, with the messages
/// that wait for the next poll.
///
/// The lock is held while the device is drained, closed or exchanged, and while messages change
/// hands: a module never sees its device closed or destroyed in the middle of a `recvMessage`.
class DeviceLink
{
public:
    DeviceLink();
    DeviceLink(const DeviceLink&) = delete;
    DeviceLink& operator=(const DeviceLink&) = delete;

    /// The device, or null; main thread. The link does not own it.
    Device* device() const { return m_device; }
    void setDevice(Device* device);

    /// Whether the reader is to read.
    bool isConnected() const { return m_connected; }
    void setConnected();
    /// Closes the device, takes what it still has while connected, and ends the connection. True if
    /// the device could be closed.
    bool close();

    /// Takes what the device has received; on the reader thread. Does nothing while not connected.
    void drain();
    /// Exchanges `empty`, an empty list, for the messages received since the last call. The caller
    /// owns them.
    void takeReceived(std::vector<Message*>& empty);

private:
    void drainLocked();

    std::mutex m_mutex;
    std::atomic<bool> m_connected{false};
    Device* m_device = nullptr;
    std::vector<Message*> m_received;
};

} // namespace comm

#pragma once

#include "message/Device.h"
#include "modules/network/NetworkLink.h"
#include "modules/support/ScheduleThread.h"

#include <atomic>
#include <memory>
#include <mutex>

namespace cannetwork {

/// A bus at the other end of a network.
///
/// `open` takes the settings as they are then; what is set while the device is open waits for the
/// next `open`. The property map always shows what the device uses.
///
/// `recvMessage` may be called on one thread while all else is called on another.
class NetworkDevice : public Device
{
public:
    NetworkDevice();
    ~NetworkDevice() override;
    NetworkDevice(const NetworkDevice&) = delete;
    NetworkDevice& operator=(const NetworkDevice&) = delete;

    bool open() override;
    /// Frames received before the call can still be fetched afterwards.
    bool close() override;
    DeviceStatus status() override;
    std::int32_t baudrate() override;
    bool sendMessage(Message* message) override;
    Message* recvMessage() override;
    void setProperty(std::string key, std::string value) override;

private:
    bool sendFrame(const zul::MessageCan& message);
    bool control(zul::MessageCtrl::ECtrl id);
    bool fail(const std::string& error);
    Message* reportIfDue();

    NetworkSettings m_settings;
    MessageQueue m_queue;
    std::atomic<std::int32_t> m_bitRate{0};

    std::mutex m_linkMutex; ///< guards the links against `recvMessage`, and the three below
    std::unique_ptr<NetworkLink> m_link; ///< null while closed
    LinkCounters m_reported;
    BusTime m_reportedAt = 0;
    BusTime m_nextReport = 0;

    std::unique_ptr<ScheduleThread> m_schedule; ///< sends through the link; null while closed
};

} // namespace cannetwork

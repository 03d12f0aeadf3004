#pragma once

#include "message/Device.h"
#include "modules/virtual/BusRegistry.h"
#include "modules/virtual/DeviceSettings.h"
#include "modules/virtual/StatusReport.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace canvirtual {

/// A CAN interface on a virtual bus.
///
/// `open` takes the settings as they are then; what is set while the device is open waits for the
/// next `open`. The property map always shows what the device uses: a value that it cannot read or
/// does not have is replaced by the one before, and values that depend on one another follow.
///
/// Frames with `cpmMode` 0 go to the transmit queue, the others to the scheduled-send memory, which
/// must be open for them (between `ScheduleBegin` and `ScheduleEnd`): their time stamps are delays,
/// so sending them at once would be wrong.
///
/// `recvMessage` may be called on one thread while all else is called on another. The property map
/// and the error message belong to the latter.
class VirtualDevice : public Device
{
public:
    /// A drain, that is calls of `recvMessage` until null, ends after this many messages, so that a
    /// reader that cannot keep up with its bus still comes to an end.
    static constexpr std::size_t drainLimit = 50'000;

    /// `registry` outlives the device.
    explicit VirtualDevice(BusRegistry& registry);
    ~VirtualDevice() override;
    VirtualDevice(const VirtualDevice&) = delete;
    VirtualDevice& operator=(const VirtualDevice&) = delete;

    bool open() override;
    /// Frames received before the call can still be fetched afterwards.
    bool close() override;
    DeviceStatus status() override;
    /// The bit rate of the bus while open, the one that is set while closed.
    std::int32_t baudrate() override;
    bool sendMessage(Message* message) override;
    Message* recvMessage() override;
    void setProperty(std::string key, std::string value) override;

private:
    bool sendFrame(const zul::MessageCan& message);
    bool storeFrame(const zul::MessageCan& message);
    Message* refill();
    bool fail(const char* error);
    void dropBatch();
    void detach();

    BusRegistry& m_registry;
    std::atomic<std::int32_t> m_bitRate{0};

    std::mutex m_mutex; ///< guards everything below
    DeviceSettings m_settings;
    ReportContext m_context;
    std::shared_ptr<GeneratorMemory> m_generatorMemory = std::make_shared<GeneratorMemory>();
    std::shared_ptr<VirtualBus> m_bus;
    std::unique_ptr<BusPort> m_port; ///< null while closed
    std::vector<BusFrame> m_batch;   ///< fetched from the bus, to be handed out
    std::size_t m_next = 0;
    std::size_t m_handedOut = 0; ///< since `recvMessage` last returned null
};

} // namespace canvirtual

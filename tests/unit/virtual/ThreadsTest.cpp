#include "message/MessageInterface.h"
#include "modules/virtual/BusRegistry.h"
#include "modules/virtual/ScenarioId.h"
#include "modules/virtual/VirtualDevice.h"

#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <thread>
#include <vector>

using namespace canvirtual;

namespace {

/// A device and the thread that reads it, as the program does it.
class ReadDevice
{
public:
    explicit ReadDevice(BusRegistry& registry) : m_device(registry) {}

    ~ReadDevice()
    {
        m_stop = true;
        if (m_thread.joinable()) {
            m_thread.join();
        }
        m_device.close();
    }

    ReadDevice(const ReadDevice&) = delete;
    ReadDevice& operator=(const ReadDevice&) = delete;

    void start()
    {
        m_thread = std::thread([this] { read(); });
    }

    VirtualDevice& device() { return m_device; }

    std::size_t frames() const { return m_frames; }

    bool ordered() const { return m_ordered; }

private:
    void read()
    {
        double last = 0;
        while (!m_stop) {
            while (const std::unique_ptr<Message> message{m_device.recvMessage()}) {
                if (const auto* frame = message_cast<zul::MessageCan>(message.get())) {
                    ++m_frames;
                    if (frame->timeStampDouble() < last) {
                        m_ordered = false;
                    }
                    last = frame->timeStampDouble();
                }
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
    }

    VirtualDevice m_device;
    std::thread m_thread;
    std::atomic<std::size_t> m_frames{0};
    std::atomic<bool> m_stop{false};
    std::atomic<bool> m_ordered{true};
};

void sendOne(Device& device, std::uint32_t id)
{
    zul::MessageCan message;
    message.setId(id);
    message.setByteCount(8);
    device.sendMessage(&message);
}

void sendControl(Device& device, zul::MessageCtrl::ECtrl id)
{
    zul::MessageCtrl message;
    message.setId(id);
    device.sendMessage(&message);
}

void sendSchedule(Device& device)
{
    sendControl(device, zul::MessageCtrl::ECtrl::ScheduleBegin);
    for (int index = 0; index < 20; ++index) {
        zul::MessageCan message;
        message.setId(0x200);
        message.setCpmMode(1);
        message.setTimeStamp(0.001 * index);
        device.sendMessage(&message);
    }
    sendControl(device, zul::MessageCtrl::ECtrl::ScheduleEnd);
    sendControl(device, zul::MessageCtrl::ECtrl::ScheduleStart);
}

/// Everything that the main thread does to an open interface, and closing and opening it.
void useOnMainThread(ReadDevice& reader, int round)
{
    VirtualDevice& device = reader.device();
    sendOne(device, 0x100);
    device.status();
    device.baudrate();
    device.errorMsg();
    if (round % 7 == 0) {
        sendControl(device, zul::MessageCtrl::ECtrl::ClearStatus);
        sendSchedule(device);
    }
    if (round % 11 == 0) {
        device.setProperty("Scenario", std::to_string(round / 11 % scenarioCount));
        device.setProperty("InterfaceName", "name " + std::to_string(round));
        EXPECT_FALSE(device.getStringProp("NBTP").empty());
    }
    if (round % 23 == 0) {
        device.close();
        while (const std::unique_ptr<Message> message{device.recvMessage()}) {
        }
        device.setProperty("BusName", round / 23 % 2 == 0 ? "Bus A" : "Bus B");
        device.open();
    }
}

TEST(Threads, MainThreadAndReadersMayDoAnythingAtOnce)
{
    BusRegistry registry(std::make_unique<MonotonicBusClock>());
    std::vector<std::unique_ptr<ReadDevice>> devices;
    for (int index = 0; index < 4; ++index) {
        devices.push_back(std::make_unique<ReadDevice>(registry));
        VirtualDevice& device = devices.back()->device();
        device.setProperty("Scenario", std::to_string(index));
        device.setProperty("ReceiveOwn", std::to_string(index % 2));
        ASSERT_TRUE(device.open());
        devices.back()->start();
    }
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(3);
    for (int round = 1; std::chrono::steady_clock::now() < end; ++round) {
        for (std::size_t index = 0; index < devices.size(); ++index) {
            useOnMainThread(*devices[index], round + static_cast<int>(index) * 5);
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    for (const auto& device : devices) {
        EXPECT_GT(device->frames(), 0U);
        EXPECT_TRUE(device->ordered());
    }
}

TEST(Threads, NothingIsLostOrTwiceBetweenTwoSaturatedReaders)
{
    BusRegistry registry(std::make_unique<MonotonicBusClock>());
    ReadDevice source(registry);
    ReadDevice listener(registry);
    source.device().setProperty("Scenario", "3");
    ASSERT_TRUE(listener.device().open());
    ASSERT_TRUE(source.device().open());
    source.start();
    listener.start();
    std::this_thread::sleep_for(std::chrono::milliseconds(500));
    source.device().close();
    // Both see the same bus up to the close; what is left in flight is less than one frame.
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_GT(source.frames(), 1'000U);
    EXPECT_LE(source.frames(), listener.frames());
    EXPECT_LE(listener.frames(), source.frames() + 1);
}

TEST(Threads, ProcessRegistryIsMadeOnce)
{
    std::vector<std::thread> threads;
    std::vector<BusRegistry*> seen(4, nullptr);
    for (BusRegistry*& registry : seen) {
        threads.emplace_back([&registry] { registry = &BusRegistry::process(); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (const BusRegistry* registry : seen) {
        EXPECT_EQ(registry, seen.front());
    }
}

} // namespace

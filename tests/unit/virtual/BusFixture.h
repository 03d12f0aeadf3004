#pragma once

#include "message/MessageInterface.h"
#include "modules/virtual/BusRegistry.h"
#include "modules/virtual/VirtualDevice.h"

#include <atomic>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// A clock that stands still until a test moves it.
class SettableClock : public canvirtual::BusClock
{
public:
    static constexpr canvirtual::BusTime start = 1'700'000'000 * canvirtual::second;

    canvirtual::BusTime now() const override { return m_now; }

    void advance(canvirtual::BusTime span) { m_now += span; }

private:
    std::atomic<canvirtual::BusTime> m_now{start};
};

/// What a drain of a device gave.
struct Received
{
    std::vector<std::unique_ptr<zul::MessageCan>> frames;
    std::vector<std::unique_ptr<zul::MessageStatus>> reports;
};

/// Calls `recvMessage` until null and appends to `received`.
inline void drainInto(Device& device, Received& received)
{
    while (std::unique_ptr<Message> message{device.recvMessage()}) {
        if (auto* frame = message_cast<zul::MessageCan>(message.get())) {
            message.release();
            received.frames.emplace_back(frame);
        } else if (auto* report = message_cast<zul::MessageStatus>(message.get())) {
            message.release();
            received.reports.emplace_back(report);
        }
    }
}

inline Received drain(Device& device)
{
    Received received;
    drainInto(device, received);
    return received;
}

/// The frame's time in nanoseconds.
inline canvirtual::BusTime timeOf(const zul::MessageCan& frame)
{
    return frame.timeStamp().seconds * canvirtual::second + frame.timeStamp().nanoseconds;
}

/// The value of the row `label`, or "absent".
inline std::string rowValue(const zul::MessageStatus& report, const std::string& label)
{
    for (const zul::DeviceStatusEntry& entry : report.entries) {
        if (entry.label == label) {
            return entry.value;
        }
    }
    return "absent";
}

/// Buses on a settable clock.
class BusFixture : public ::testing::Test
{
protected:
    using Properties = std::vector<std::pair<std::string, std::string>>;

    BusFixture()
    {
        auto clock = std::make_unique<SettableClock>();
        m_clock = clock.get();
        m_registry = std::make_unique<canvirtual::BusRegistry>(std::move(clock));
    }

    std::unique_ptr<canvirtual::VirtualDevice> makeDevice(const Properties& properties = {})
    {
        auto device = std::make_unique<canvirtual::VirtualDevice>(*m_registry);
        for (const auto& [key, value] : properties) {
            device->setProperty(key, value);
        }
        return device;
    }

    std::unique_ptr<canvirtual::VirtualDevice> openDevice(const Properties& properties = {})
    {
        auto device = makeDevice(properties);
        EXPECT_TRUE(device->open()) << device->errorMsg();
        return device;
    }

    static zul::MessageCan frame(std::uint32_t id, std::uint32_t byteCount = 8)
    {
        zul::MessageCan message;
        message.setId(id);
        message.setByteCount(byteCount);
        if (id > canvirtual::maxStandardId) {
            message.setMode(canvirtual::FrameMode::Extended);
        }
        return message;
    }

    static bool send(Device& device, std::uint32_t id, std::uint32_t byteCount = 8)
    {
        zul::MessageCan message = frame(id, byteCount);
        return device.sendMessage(&message);
    }

    static bool control(Device& device, zul::MessageCtrl::ECtrl id)
    {
        zul::MessageCtrl message;
        message.setId(id);
        return device.sendMessage(&message);
    }

    /// Lets `span` pass in steps of 10 ms, draining `device` after each.
    Received run(Device& device, canvirtual::BusTime span)
    {
        Received received;
        for (canvirtual::BusTime passed = 0; passed < span;
             passed += 10 * canvirtual::millisecond) {
            m_clock->advance(10 * canvirtual::millisecond);
            drainInto(device, received);
        }
        return received;
    }

    SettableClock* m_clock = nullptr;
    std::unique_ptr<canvirtual::BusRegistry> m_registry;
};

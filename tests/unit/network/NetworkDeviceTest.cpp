#include "modules/network/NetworkDevice.h"

#include "message/MessageInterface.h"
#include "modules/network/UdpSocket.h"

#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <thread>
#include <vector>

using namespace cannetwork;

namespace {

using Frames = std::vector<std::unique_ptr<zul::MessageCan>>;

/// Ports that nothing used a moment ago.
std::uint16_t freePort()
{
    UdpSocket socket;
    std::string error;
    EXPECT_TRUE(socket.bindTo(*Endpoint::parse("127.0.0.1", 0), false, error)) << error;
    return socket.localEndpoint().port;
}

zul::MessageCan frameOf(std::uint32_t id, std::uint32_t byteCount = 8,
                        FrameMode mode = FrameMode::Standard)
{
    zul::MessageCan frame;
    frame.setId(id);
    frame.setMode(mode);
    frame.setByteCount(byteCount);
    for (std::uint32_t i = 0; i < byteCount; ++i) {
        frame.msg()[static_cast<std::int32_t>(i)] = static_cast<std::uint8_t>(id + i);
    }
    return frame;
}

/// A device and what it has received.
class End
{
public:
    void set(const char* key, const std::string& value) { m_device.setProperty(key, value); }

    void setPorts(std::uint16_t local, std::uint16_t peer)
    {
        set("LocalPort", std::to_string(local));
        set("PeerPort", std::to_string(peer));
    }

    NetworkDevice& device() { return m_device; }

    bool send(zul::MessageCan frame) { return m_device.sendMessage(&frame); }

    bool control(zul::MessageCtrl::ECtrl id)
    {
        zul::MessageCtrl message;
        message.setId(id);
        return m_device.sendMessage(&message);
    }

    void poll()
    {
        while (Message* received = m_device.recvMessage()) {
            std::unique_ptr<Message> message(received);
            if (auto* frame = message_cast<zul::MessageCan>(received)) {
                message.release(); // NOLINT(bugprone-unused-return-value)
                m_frames.emplace_back(frame);
            } else if (auto* status = message_cast<zul::MessageStatus>(received)) {
                m_status = *status;
            }
        }
    }

    template <typename Condition>
    bool waitFor(Condition condition)
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while (std::chrono::steady_clock::now() < end) {
            poll();
            if (condition()) {
                return true;
            }
            std::this_thread::yield();
        }
        return false;
    }

    bool waitForFrames(std::size_t count)
    {
        return waitFor([&] { return m_frames.size() >= count; });
    }

    std::string row(const std::string& label) const
    {
        for (const zul::DeviceStatusEntry& entry : m_status.entries) {
            if (entry.label == label) {
                return entry.value;
            }
        }
        return {};
    }

    Frames& frames() { return m_frames; }

private:
    NetworkDevice m_device;
    Frames m_frames;
    zul::MessageStatus m_status;
};

class NetworkPair : public testing::Test
{
protected:
    void SetUp() override
    {
        m_portA = freePort();
        m_portB = freePort();
        m_a.setPorts(m_portA, m_portB);
        m_b.setPorts(m_portB, m_portA);
    }

    void open()
    {
        ASSERT_TRUE(m_a.device().open()) << m_a.device().errorMsg();
        ASSERT_TRUE(m_b.device().open()) << m_b.device().errorMsg();
    }

    std::uint16_t m_portA = 0;
    std::uint16_t m_portB = 0;
    End m_a;
    End m_b;
};

TEST_F(NetworkPair, EveryModeArrivesAtTheOtherEnd)
{
    open();
    for (std::uint32_t mode = 0; mode <= 5; ++mode) {
        EXPECT_TRUE(m_a.send(frameOf(mode + 1, mode < 2 ? 8 : 64, static_cast<FrameMode>(mode))));
    }
    zul::MessageCan remote = frameOf(7, 3);
    remote.setFrameType(FrameType::Remote);
    EXPECT_TRUE(m_a.send(remote));
    ASSERT_TRUE(m_b.waitForFrames(7));
    for (std::uint32_t mode = 0; mode <= 5; ++mode) {
        const zul::MessageCan& frame = *m_b.frames()[mode];
        EXPECT_EQ(frame.id(), mode + 1);
        EXPECT_EQ(static_cast<std::uint32_t>(frame.mode()), mode);
        EXPECT_EQ(frame.byteCount(), mode < 2 ? 8U : 64U);
        EXPECT_EQ(frame.msg()[7], mode + 8);
        EXPECT_GT(frame.timeStampDouble(), 1.6e9);
    }
    EXPECT_EQ(m_b.frames()[6]->frameType(), FrameType::Remote);
    EXPECT_TRUE(m_a.frames().empty()) << "own frames do not come back";
}

TEST_F(NetworkPair, OwnFramesComeBackIfWanted)
{
    m_a.set("ReceiveOwn", "1");
    open();
    m_a.send(frameOf(1));
    EXPECT_TRUE(m_a.waitForFrames(1));
    EXPECT_EQ(m_a.frames()[0]->id(), 1U);
    EXPECT_TRUE(m_b.waitForFrames(1));
}

TEST_F(NetworkPair, FramesShareADatagramUnlessTheyMayNotWait)
{
    m_a.set("FlushTime", "500000");
    open();
    for (std::uint32_t id = 0; id < 10; ++id) {
        m_a.send(frameOf(id));
    }
    ASSERT_TRUE(m_b.waitForFrames(10));
    EXPECT_TRUE(m_b.waitFor([&] { return m_b.row("Received") == "10"; }));
    EXPECT_EQ(m_b.row("Received datagrams"), "1");
    EXPECT_EQ(m_b.row("Missing datagrams"), "0");
}

TEST_F(NetworkPair, WithoutFlushTimeEveryFrameGoesAtOnce)
{
    m_a.set("FlushTime", "0");
    open();
    m_a.send(frameOf(1));
    m_a.send(frameOf(2));
    ASSERT_TRUE(m_b.waitForFrames(2));
    EXPECT_TRUE(m_b.waitFor([&] { return m_b.row("Received datagrams") == "2"; }));
}

TEST_F(NetworkPair, WhatWaitsGoesOutWhenTheDeviceIsClosed)
{
    m_a.set("FlushTime", "1000000");
    open();
    m_a.send(frameOf(1));
    m_a.device().close();
    EXPECT_TRUE(m_b.waitForFrames(1));
}

TEST_F(NetworkPair, DatagramsOfOthersAreDroppedUnlessAllowed)
{
    m_b.set("PeerAddress", "192.0.2.1"); // an address for documents, nobody's
    open();
    m_a.send(frameOf(1));
    EXPECT_TRUE(m_b.waitFor([&] { return m_b.row("Foreign datagrams") == "1"; }));
    EXPECT_TRUE(m_b.frames().empty());
    m_b.device().close();
    m_b.set("AcceptOthers", "1");
    ASSERT_TRUE(m_b.device().open());
    m_a.send(frameOf(2));
    EXPECT_TRUE(m_b.waitForFrames(1));
}

TEST_F(NetworkPair, BadDatagramsAreCountedAndNothingElse)
{
    open();
    UdpSocket stranger;
    std::string error;
    ASSERT_TRUE(stranger.connectTo(*Endpoint::parse("127.0.0.1", m_portB), error));
    const std::vector<std::vector<std::uint8_t>> bad{{}, {1, 2, 3}, {9, 0, 0, 0, 0}};
    for (const auto& bytes : bad) {
        EXPECT_EQ(stranger.send({bytes.data(), bytes.size()}), UdpSocket::SendResult::Sent);
    }
    EXPECT_TRUE(m_b.waitFor([&] { return m_b.row("Bad datagrams") == "3"; }));
    EXPECT_TRUE(m_b.frames().empty());
    EXPECT_TRUE(m_b.control(zul::MessageCtrl::ECtrl::ClearStatus));
    EXPECT_TRUE(m_b.waitFor([&] { return m_b.row("Bad datagrams") == "0"; }));
}

TEST_F(NetworkPair, LateDatagramAfterClearLeavesNothingMissing)
{
    open();
    UdpSocket stranger;
    std::string error;
    ASSERT_TRUE(stranger.connectTo(*Endpoint::parse("127.0.0.1", m_portB), error));
    const auto send = [&stranger](std::uint8_t number) {
        const std::vector<std::uint8_t> bytes{2, 0, number, 0, 0};
        EXPECT_EQ(stranger.send({bytes.data(), bytes.size()}), UdpSocket::SendResult::Sent);
    };
    send(10);
    send(12);
    EXPECT_TRUE(m_b.waitFor([&] { return m_b.row("Missing datagrams") == "1"; }));
    EXPECT_TRUE(m_b.control(zul::MessageCtrl::ECtrl::ClearStatus));
    send(11);
    EXPECT_TRUE(m_b.waitFor([&] { return m_b.row("Received datagrams") == "1"; }));
    EXPECT_EQ(m_b.row("Missing datagrams"), "0");
}

TEST_F(NetworkPair, ScheduleIsKept)
{
    m_a.set("FlushTime", "0");
    open();
    using ECtrl = zul::MessageCtrl::ECtrl;
    EXPECT_FALSE(m_a.send([] {
        zul::MessageCan frame = frameOf(1);
        frame.setCpmMode(1);
        return frame;
    }()))
        << "no schedule is open";
    EXPECT_TRUE(m_a.control(ECtrl::ScheduleBegin));
    for (std::uint32_t i = 0; i < 5; ++i) {
        zul::MessageCan frame = frameOf(i);
        frame.setCpmMode(1);
        frame.setTimeStamp(0.1 + 0.002 * i);
        EXPECT_TRUE(m_a.send(frame));
    }
    EXPECT_TRUE(m_a.control(ECtrl::ScheduleEnd));
    EXPECT_TRUE(m_a.waitFor([&] { return m_a.row("CPM") == "5"; }));
    const std::chrono::duration<double> begin = std::chrono::system_clock::now().time_since_epoch();
    EXPECT_TRUE(m_a.control(ECtrl::ScheduleStart));
    ASSERT_TRUE(m_b.waitForFrames(5));
    for (std::uint32_t i = 0; i < 5; ++i) {
        EXPECT_EQ(m_b.frames()[i]->id(), i);
        EXPECT_GE(m_b.frames()[i]->timeStampDouble() - begin.count(), 0.0999 + 0.002 * i)
            << "none goes out before its time";
    }
    EXPECT_TRUE(m_a.waitFor([&] { return m_a.row("CPM") == "0"; }));
}

TEST_F(NetworkPair, OpenAndCloseManyTimes)
{
    for (int i = 0; i < 20; ++i) {
        open();
        m_a.send(frameOf(1));
        EXPECT_TRUE(m_a.device().close());
        EXPECT_TRUE(m_b.device().close());
        EXPECT_EQ(m_a.device().status(), DeviceStatus::Closed);
    }
}

TEST_F(NetworkPair, TenThousandFramesArriveInOrder)
{
    open();
    constexpr std::uint32_t count = 10'000;
    std::thread sender([this] {
        for (std::uint32_t i = 0; i < count; ++i) {
            EXPECT_TRUE(m_a.send(frameOf(i, 4, FrameMode::Extended)));
            if (i % 200 == 0) {
                std::this_thread::yield();
            }
        }
    });
    EXPECT_TRUE(m_b.waitForFrames(count));
    sender.join();
    for (std::uint32_t i = 0; i < count && i < m_b.frames().size(); ++i) {
        ASSERT_EQ(m_b.frames()[i]->id(), i);
    }
}

TEST(NetworkDevice, ClosedDeviceTakesNothing)
{
    End end;
    EXPECT_EQ(end.device().status(), DeviceStatus::Closed);
    EXPECT_FALSE(end.send(frameOf(1)));
    EXPECT_EQ(end.device().errorMsg(), "The device is closed");
    EXPECT_EQ(end.device().recvMessage(), nullptr);
    EXPECT_TRUE(end.device().close());
}

TEST(NetworkDevice, ImpossibleFramesAreRefusedWithTheReason)
{
    End end;
    end.setPorts(freePort(), freePort());
    ASSERT_TRUE(end.device().open());
    EXPECT_FALSE(end.send(frameOf(0x800)));
    EXPECT_EQ(end.device().errorMsg(), "Frame not sent: identifier too large for the frame mode");
    Message other;
    EXPECT_FALSE(end.device().sendMessage(&other));
    EXPECT_FALSE(end.control(static_cast<zul::MessageCtrl::ECtrl>(9)));
}

TEST(NetworkDevice, FailuresToOpenAreTold)
{
    End end;
    end.set("PeerAddress", "no address");
    EXPECT_FALSE(end.device().open());
    EXPECT_EQ(end.device().errorMsg(),
              "The peer address \"no address\" is no numeric address of a host");
    end.set("PeerAddress", "127.0.0.1");
    const std::uint16_t port = freePort();
    UdpSocket holder;
    std::string error;
    ASSERT_TRUE(holder.bindTo(*Endpoint::parse("0.0.0.0", port), false, error));
    end.setPorts(port, port);
    EXPECT_FALSE(end.device().open());
    EXPECT_NE(end.device().errorMsg().find("Port " + std::to_string(port) + " cannot be used"),
              std::string::npos);
    end.set("Protocol", "1");
    end.set("Group", "127.0.0.1");
    EXPECT_FALSE(end.device().open());
    EXPECT_EQ(end.device().errorMsg(), "The group \"127.0.0.1\" is no numeric multicast address");
}

TEST(NetworkDevice, BitRateIsThatOfTheSettings)
{
    End end;
    EXPECT_EQ(end.device().baudrate(), 1'000'000);
    end.set("BitRate", "500000");
    EXPECT_EQ(end.device().baudrate(), 500'000);
    EXPECT_EQ(end.device().getStringProp("BitRate"), "500000");
}

TEST(NetworkDevice, MembersOfAGroupHearEachOther)
{
    End first;
    End second;
    const std::string port = std::to_string(freePort());
    for (End* end : {&first, &second}) {
        end->set("Protocol", "1");
        end->set("GroupPort", port);
        if (!end->device().open()) {
            GTEST_SKIP() << "no multicast here: " << end->device().errorMsg();
        }
    }
    first.send(frameOf(1, 64, FrameMode::ExtendedFdBrs));
    second.send(frameOf(2));
    ASSERT_TRUE(second.waitForFrames(1));
    EXPECT_EQ(second.frames()[0]->id(), 1U);
    EXPECT_EQ(second.frames()[0]->mode(), FrameMode::ExtendedFdBrs);
    ASSERT_TRUE(first.waitForFrames(1));
    EXPECT_EQ(first.frames()[0]->id(), 2U);
    EXPECT_EQ(first.frames().size() + second.frames().size(), 2U) << "own frames do not come back";
}

TEST(Endpoint, AddressesAreReadAndWritten)
{
    EXPECT_EQ(Endpoint::parse("192.0.2.7", 5)->text(), "192.0.2.7:5");
    EXPECT_EQ(Endpoint::parse("::1", 5)->text(), "[::1]:5");
    EXPECT_FALSE(Endpoint::parse("localhost", 5).has_value()) << "names could take time";
    EXPECT_FALSE(Endpoint::parse("", 5).has_value());
    EXPECT_FALSE(Endpoint::parse("300.1.1.1", 5).has_value());
    EXPECT_TRUE(Endpoint::parse("239.74.163.2", 5)->isGroup());
    EXPECT_TRUE(Endpoint::parse("ff15::1", 5)->isGroup());
    EXPECT_FALSE(Endpoint::parse("192.0.2.7", 5)->isGroup());
    EXPECT_TRUE(*Endpoint::parse("::1", 5) == *Endpoint::parse("0:0::1", 5));
}

} // namespace

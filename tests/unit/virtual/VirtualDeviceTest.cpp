#include "modules/virtual/FrameLength.h"
#include "tests/unit/virtual/BusFixture.h"

#include <random>

using namespace canvirtual;

namespace {

using VirtualDeviceTest = BusFixture;
using ECtrl = zul::MessageCtrl::ECtrl;

TEST_F(VirtualDeviceTest, ClosedDeviceDoesNothing)
{
    auto device = makeDevice();
    EXPECT_EQ(device->status(), DeviceStatus::Closed);
    EXPECT_EQ(device->recvMessage(), nullptr);
    EXPECT_FALSE(send(*device, 1));
    EXPECT_NE(device->errorMsg(), "");
    EXPECT_FALSE(control(*device, ECtrl::ClearStatus));
    EXPECT_TRUE(device->close());
    EXPECT_EQ(device->baudrate(), 1'000'000);
    EXPECT_EQ(device->info().moduleName, "libCanVirtual");
}

TEST_F(VirtualDeviceTest, DevicesOfOneBusSeeEachOther)
{
    auto sender = openDevice();
    auto first = openDevice();
    auto second = openDevice();
    EXPECT_EQ(sender->status(), DeviceStatus::Open);
    zul::MessageCan message = frame(0x123, 3);
    message.msg()[0] = 0xAB;
    message.msg()[2] = 0xCD;
    message.msg()[5] = 0xEE; // beyond the byte count
    EXPECT_TRUE(sender->sendMessage(&message));
    m_clock->advance(millisecond);
    for (Device* device : {static_cast<Device*>(first.get()), static_cast<Device*>(second.get())}) {
        const Received received = drain(*device);
        ASSERT_EQ(received.frames.size(), 1U);
        const zul::MessageCan& got = *received.frames[0];
        EXPECT_EQ(got.id(), 0x123U);
        EXPECT_EQ(got.byteCount(), 3U);
        EXPECT_EQ(got.msg()[0], 0xAB);
        EXPECT_EQ(got.msg()[2], 0xCD);
        EXPECT_EQ(got.msg()[5], 0);
        EXPECT_EQ(got.cpmMode(), 0U);
    }
    EXPECT_TRUE(drain(*sender).frames.empty());
}

TEST_F(VirtualDeviceTest, OwnFramesComeBackOnlyIfAsked)
{
    auto device = openDevice({{"ReceiveOwn", "1"}});
    EXPECT_TRUE(send(*device, 7));
    m_clock->advance(millisecond);
    EXPECT_EQ(drain(*device).frames.size(), 1U);
}

TEST_F(VirtualDeviceTest, BusesOfDifferentNamesAreSeparate)
{
    auto onA = openDevice();
    auto onB = openDevice({{"BusName", "Bus B"}, {"BitRate", "500000"}});
    EXPECT_TRUE(send(*onA, 7));
    m_clock->advance(millisecond);
    EXPECT_TRUE(drain(*onB).frames.empty());
}

TEST_F(VirtualDeviceTest, FrameIsStampedWithTheEndOfItsLastBit)
{
    auto sender = openDevice();
    auto receiver = openDevice();
    EXPECT_TRUE(send(*sender, 0, 0)); // 50 bits
    m_clock->advance(49'999);
    EXPECT_TRUE(drain(*receiver).frames.empty());
    m_clock->advance(1);
    const Received received = drain(*receiver);
    ASSERT_EQ(received.frames.size(), 1U);
    EXPECT_EQ(timeOf(*received.frames[0]), SettableClock::start + 50'000);
}

TEST_F(VirtualDeviceTest, LowerIdentifierWinsAmongFramesSentAtOnce)
{
    auto first = openDevice();
    auto second = openDevice();
    auto third = openDevice();
    auto listener = openDevice();
    send(*first, 0x300);
    send(*second, 0x100U << 18U); // extended, same base as the standard one below
    send(*third, 0x100);
    m_clock->advance(millisecond);
    const Received received = drain(*listener);
    ASSERT_EQ(received.frames.size(), 3U);
    EXPECT_EQ(received.frames[0]->id(), 0x100U);
    EXPECT_EQ(received.frames[1]->id(), 0x100U << 18U);
    EXPECT_EQ(received.frames[2]->id(), 0x300U);
}

TEST_F(VirtualDeviceTest, FrameOnTheWireIsNotInterrupted)
{
    auto first = openDevice();
    auto second = openDevice();
    auto listener = openDevice();
    send(*first, 0x700);
    m_clock->advance(10 * microsecond);
    send(*second, 0x001);
    m_clock->advance(millisecond);
    const Received received = drain(*listener);
    ASSERT_EQ(received.frames.size(), 2U);
    EXPECT_EQ(received.frames[0]->id(), 0x700U);
}

TEST_F(VirtualDeviceTest, QueueOfOneDeviceKeepsItsOrder)
{
    auto sender = openDevice();
    auto listener = openDevice();
    for (const std::uint32_t id : {5U, 3U, 4U}) {
        send(*sender, id);
    }
    m_clock->advance(millisecond);
    const Received received = drain(*listener);
    ASSERT_EQ(received.frames.size(), 3U);
    EXPECT_EQ(received.frames[0]->id(), 5U);
    EXPECT_EQ(received.frames[1]->id(), 3U);
    EXPECT_EQ(received.frames[2]->id(), 4U);
}

TEST_F(VirtualDeviceTest, FullQueueRefusesAndKeepsWhatItHas)
{
    auto sender = openDevice();
    auto listener = openDevice();
    std::size_t queued = 0;
    while (queued < 100'000 && send(*sender, static_cast<std::uint32_t>(queued % 2048))) {
        ++queued;
    }
    EXPECT_EQ(queued, BusPort::transmitCapacity);
    EXPECT_EQ(sender->errorMsg(), "Transmit queue full");
    const Received received = run(*listener, second);
    ASSERT_EQ(received.frames.size(), queued);
    for (std::size_t index = 0; index < queued; ++index) {
        ASSERT_EQ(received.frames[index]->id(), index % 2048);
    }
    EXPECT_TRUE(send(*sender, 1));
}

TEST_F(VirtualDeviceTest, UnsendableMessagesAreRefusedWithAReason)
{
    auto device = openDevice();
    EXPECT_FALSE(device->sendMessage(nullptr));
    Message plain;
    EXPECT_FALSE(device->sendMessage(&plain));
    zul::MessageCan tooLarge;
    tooLarge.setId(0x800);
    device->setErrorMsg("");
    EXPECT_FALSE(device->sendMessage(&tooLarge));
    EXPECT_NE(device->errorMsg(), "");
    EXPECT_FALSE(control(*device, static_cast<ECtrl>(77)));
}

TEST_F(VirtualDeviceTest, BitRatesOfABusMustAgree)
{
    auto first = openDevice();
    auto second = makeDevice({{"BitRate", "500000"}});
    EXPECT_FALSE(second->open());
    EXPECT_NE(second->errorMsg().find("1000000"), std::string::npos);
    EXPECT_EQ(second->status(), DeviceStatus::Closed);
    first->close();
    EXPECT_TRUE(second->open());
    EXPECT_EQ(second->baudrate(), 500'000);
}

TEST_F(VirtualDeviceTest, SettingsOfAnOpenDeviceWaitForTheNextOpen)
{
    auto device = openDevice();
    device->setProperty("BitRate", "250000");
    EXPECT_EQ(device->getStringProp("BitRate"), "250000");
    EXPECT_EQ(device->baudrate(), 1'000'000);
    device->close();
    EXPECT_EQ(device->baudrate(), 250'000);
    EXPECT_FALSE(device->open() && device->open());
    EXPECT_EQ(device->baudrate(), 250'000);
}

TEST_F(VirtualDeviceTest, PropertyMapShowsWhatTheDeviceUses)
{
    auto device = makeDevice();
    device->setProperty("NBTP", "rubbish");
    EXPECT_EQ(device->getStringProp("NBTP"), "0x1E003E0F");
    device->setProperty("BitRate", "500000");
    EXPECT_EQ(device->getStringProp("NBTP"), "0x3E007E1F");
    EXPECT_EQ(device->getStringProp("BTR"), "28");
    EXPECT_EQ(device->baudrate(), 500'000);
    device->setProperty("Colour", "red");
    EXPECT_EQ(device->getStringProp("Colour"), "red");
}

TEST_F(VirtualDeviceTest, FramesReceivedBeforeCloseCanStillBeFetched)
{
    auto sender = openDevice();
    auto receiver = openDevice();
    send(*sender, 1);
    send(*sender, 2);
    m_clock->advance(millisecond);
    const std::unique_ptr<Message> first(receiver->recvMessage());
    EXPECT_NE(first, nullptr);
    receiver->close();
    EXPECT_EQ(drain(*receiver).frames.size(), 1U);
    EXPECT_EQ(receiver->recvMessage(), nullptr);
}

TEST_F(VirtualDeviceTest, ReopenedDeviceStartsEmpty)
{
    auto sender = openDevice();
    auto receiver = openDevice();
    send(*sender, 1);
    m_clock->advance(millisecond);
    receiver->close();
    receiver->open();
    EXPECT_TRUE(drain(*receiver).frames.empty());
}

TEST_F(VirtualDeviceTest, FrameOfAClosedDeviceFinishesItsWay)
{
    auto sender = openDevice();
    auto listener = openDevice();
    send(*sender, 1);
    send(*sender, 2);
    m_clock->advance(20 * microsecond);
    sender->close();
    m_clock->advance(millisecond);
    EXPECT_EQ(drain(*listener).frames.size(), 1U);
}

TEST_F(VirtualDeviceTest, UnpolledDeviceCountsLostFrames)
{
    auto sender = openDevice({{"Scenario", "4"}});
    auto listener = openDevice();
    for (int step = 0; step < 1200; ++step) {
        m_clock->advance(10 * millisecond);
        drain(*sender);
    }
    const Received received = drain(*listener);
    ASSERT_FALSE(received.reports.empty());
    const int lost = std::stoi(rowValue(*received.reports[0], "Lost frames"));
    EXPECT_GT(lost, 20'000);
    // The drain limit cuts the batch into pieces; all of what was kept comes.
    Received all;
    for (int call = 0; call < 6; ++call) {
        drainInto(*listener, all);
    }
    EXPECT_EQ(received.frames.size() + all.frames.size(), BusPort::receiveCapacity);
}

TEST_F(VirtualDeviceTest, BusIsNeverFasterThanItsBitRate)
{
    constexpr unsigned seed = 99;
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    for (const char* bitRate : {"1000000", "500000", "83333"}) {
        const Properties properties = {{"BitRate", bitRate}, {"BusName", bitRate}};
        std::vector<std::unique_ptr<VirtualDevice>> senders;
        for (int index = 0; index < 3; ++index) {
            senders.push_back(openDevice(properties));
        }
        auto listener = openDevice(properties);
        Received received;
        std::size_t sent = 0;
        for (int step = 0; step < 400; ++step) {
            for (auto& sender : senders) {
                for (auto count = random() % 6; count > 0; --count) {
                    zul::MessageCan message;
                    message.setMode(static_cast<FrameMode>(random() % 6));
                    message.setId(static_cast<std::uint32_t>(random()) &
                                  (isExtended(message.mode()) ? maxExtendedId : maxStandardId));
                    message.setByteCount(static_cast<std::uint32_t>(random() % 65));
                    for (std::int32_t byte = 0; byte < 64; ++byte) {
                        message.msg()[byte] = static_cast<std::uint8_t>(random() % 3 * 255 / 2);
                    }
                    sent += sender->sendMessage(&message) ? 1U : 0U;
                }
            }
            m_clock->advance(static_cast<BusTime>(random() % 2'000) * microsecond);
            drainInto(*listener, received);
        }
        for (int step = 0; step < 3000; ++step) {
            m_clock->advance(10 * millisecond);
            drainInto(*listener, received);
        }
        ASSERT_EQ(received.frames.size(), sent);
        const BusRates rates = {listener->baudrate(), 2'000'000};
        BusTime last = SettableClock::start;
        for (const auto& message : received.frames) {
            const FrameBits bits = frameBits(frameFromMessage(*message));
            const double nominal = bits.nominal * 1e9 / rates.nominal;
            const double data = bits.data * 1e9 / rates.data;
            const double gap = intermissionBits * 1e9 / rates.nominal;
            const BusTime end = timeOf(*message);
            const bool isFirst = &message == &received.frames.front();
            ASSERT_GE(static_cast<double>(end - last), nominal + data + (isFirst ? 0 : gap));
            last = end;
        }
    }
}

TEST_F(VirtualDeviceTest, StatusReportsComeFiveTimesASecond)
{
    auto device = openDevice();
    const Received received = run(*device, 10 * second);
    EXPECT_EQ(received.reports.size(), 50U);
    for (const auto& report : received.reports) {
        EXPECT_LE(report->entries.size(), 20U);
    }
    EXPECT_EQ(rowValue(*received.reports[0], "State"), "Active");
    EXPECT_EQ(rowValue(*received.reports[0], "CPM"), "0");
    device->close();
    EXPECT_TRUE(run(*device, second).reports.empty());
}

TEST_F(VirtualDeviceTest, OnlyOneReportAfterAPause)
{
    auto device = openDevice();
    m_clock->advance(100 * second);
    EXPECT_EQ(drain(*device).reports.size(), 1U);
    EXPECT_TRUE(drain(*device).reports.empty());
    EXPECT_EQ(run(*device, second).reports.size(), 5U);
}

TEST_F(VirtualDeviceTest, ReportTellsSentAndReceivedTraffic)
{
    auto left = openDevice();
    auto right = openDevice();
    for (int count = 0; count < 20; ++count) {
        send(*left, 0, 0);
    }
    m_clock->advance(BusPort::reportInterval);
    const Received atLeft = drain(*left);
    const Received atRight = drain(*right);
    ASSERT_EQ(atLeft.reports.size(), 1U);
    ASSERT_EQ(atRight.reports.size(), 1U);
    const zul::MessageStatus& sender = *atLeft.reports[0];
    const zul::MessageStatus& receiver = *atRight.reports[0];
    EXPECT_EQ(sender.messageCount0, 0U);
    EXPECT_EQ(sender.messageCount1, 100U);
    EXPECT_EQ(sender.bitCount1, 100U * 53U);
    EXPECT_EQ(receiver.messageCount0, 100U);
    EXPECT_EQ(receiver.bitCount0, 100U * 53U);
    EXPECT_EQ(receiver.bitCount1, 0U);
    EXPECT_EQ(rowValue(sender, "Sent"), "20");
    EXPECT_EQ(rowValue(receiver, "Received"), "20");
    EXPECT_EQ(rowValue(receiver, "Bus load [%]"), "0.5");
}

TEST_F(VirtualDeviceTest, ClearStatusResetsTheCounters)
{
    auto left = openDevice();
    auto right = openDevice();
    send(*left, 1);
    m_clock->advance(BusPort::reportInterval);
    EXPECT_EQ(rowValue(*drain(*right).reports.at(0), "Received"), "1");
    m_clock->advance(millisecond);
    EXPECT_TRUE(control(*right, ECtrl::ClearStatus));
    const Received received = drain(*right);
    ASSERT_EQ(received.reports.size(), 1U);
    EXPECT_EQ(rowValue(*received.reports[0], "Received"), "0");
    EXPECT_EQ(rowValue(*received.reports[0], "Error frames"), "0");
}

TEST_F(VirtualDeviceTest, ScheduleGoesOutAtItsTimes)
{
    auto sender = openDevice();
    auto listener = openDevice();
    EXPECT_TRUE(control(*sender, ECtrl::ScheduleBegin));
    for (const std::uint32_t index : {2U, 0U, 1U}) {
        zul::MessageCan message = frame(0x100 + index, 0);
        message.setCpmMode(1);
        message.setTimeStamp(0.1 + 0.25 * index);
        EXPECT_TRUE(sender->sendMessage(&message));
    }
    EXPECT_TRUE(control(*sender, ECtrl::ScheduleEnd));
    EXPECT_TRUE(run(*listener, second).frames.empty());
    EXPECT_EQ(rowValue(*drain(*sender).reports.at(0), "CPM"), "3");
    const BusTime start = m_clock->now();
    EXPECT_TRUE(control(*sender, ECtrl::ScheduleStart));
    Received received = run(*listener, 400 * millisecond);
    EXPECT_EQ(rowValue(*drain(*sender).reports.at(0), "CPM"), "1");
    Received rest = run(*listener, second);
    for (auto& message : rest.frames) {
        received.frames.push_back(std::move(message));
    }
    ASSERT_EQ(received.frames.size(), 3U);
    for (std::size_t index = 0; index < 3; ++index) {
        const zul::MessageCan& message = *received.frames[index];
        EXPECT_EQ(message.id(), 0x100 + index);
        const auto delay = 100 * millisecond + 250 * millisecond * static_cast<BusTime>(index);
        const BusTime length = frameBits(frameFromMessage(message)).total() * microsecond;
        EXPECT_EQ(timeOf(message), start + delay + length);
    }
    m_clock->advance(BusPort::reportInterval);
    EXPECT_EQ(rowValue(*drain(*sender).reports.at(0), "CPM"), "0");
    // Another start plays it again.
    EXPECT_TRUE(control(*sender, ECtrl::ScheduleStart));
    EXPECT_EQ(run(*listener, second).frames.size(), 3U);
}

TEST_F(VirtualDeviceTest, ScheduleBeginEmptiesTheMemory)
{
    auto sender = openDevice();
    auto listener = openDevice();
    zul::MessageCan message = frame(5);
    message.setCpmMode(1);
    message.setTimeStamp(0.1);
    EXPECT_FALSE(sender->sendMessage(&message));
    EXPECT_NE(sender->errorMsg(), "");
    control(*sender, ECtrl::ScheduleBegin);
    EXPECT_TRUE(sender->sendMessage(&message));
    control(*sender, ECtrl::ScheduleBegin);
    control(*sender, ECtrl::ScheduleStart);
    EXPECT_FALSE(sender->sendMessage(&message));
    EXPECT_TRUE(run(*listener, second).frames.empty());
    EXPECT_TRUE(send(*sender, 6)) << "a plain frame needs no schedule";
    EXPECT_EQ(run(*listener, second).frames.size(), 1U);
}

TEST_F(VirtualDeviceTest, ScheduleKeepsItsTimesWhenNobodyLooks)
{
    auto sender = openDevice({{"ReceiveOwn", "1"}});
    control(*sender, ECtrl::ScheduleBegin);
    zul::MessageCan message = frame(0, 0);
    message.setCpmMode(1);
    message.setTimeStamp(3.0);
    sender->sendMessage(&message);
    control(*sender, ECtrl::ScheduleEnd);
    control(*sender, ECtrl::ScheduleStart);
    m_clock->advance(3600 * second);
    const Received received = drain(*sender);
    ASSERT_EQ(received.frames.size(), 1U);
    EXPECT_EQ(timeOf(*received.frames[0]), SettableClock::start + 3 * second + 50'000);
}

} // namespace

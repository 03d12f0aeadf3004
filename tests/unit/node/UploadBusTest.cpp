#include "modules/support/SendSchedule.h"
#include "modules/virtual/NodeSettings.h"
#include "node/IdentificationClient.h"
#include "node/ServiceLink.h"
#include "node/UploadClient.h"
#include "tests/support/TestHome.h"
#include "tests/unit/virtual/BusFixture.h"

#include <functional>

// The clients against the nodes of the virtual bus, frame by frame, on a clock of their own.

namespace {

using canvirtual::BusTime;
using canvirtual::millisecond;
using canvirtual::NodeFault;
using canvirtual::second;
using State = UploadClient::State;

constexpr BusTime tick = 10 * millisecond;

/// A program's end of the bus: sends what a client asks for, and waits by the bus's clock.
class BusLink : public ServiceLink
{
public:
    BusLink(canvirtual::VirtualDevice& device, const SettableClock& clock)
        : m_device(device), m_clock(clock)
    {
    }
    void sendToNode(MessageContainer& batch) override
    {
        for (const auto& message : batch.messages()) {
            EXPECT_TRUE(m_device.sendMessage(message.get())) << m_device.errorMsg();
        }
    }
    void startTimer() override { m_end = m_clock.now() + timeoutMs * millisecond; }
    void stopTimer() override { m_end = canvirtual::never; }
    bool hasRunOut()
    {
        if (m_clock.now() < m_end) {
            return false;
        }
        stopTimer();
        return true;
    }

private:
    canvirtual::VirtualDevice& m_device;
    const SettableClock& m_clock;
    BusTime m_end = canvirtual::never;
};

class UploadBus : public BusFixture
{
protected:
    void open(NodeFault fault = NodeFault::None, int pacing = 3)
    {
        m_server = openDevice({{"Node", "1"},
                               {"NodeId", "77"},
                               {"NodePacing", std::to_string(pacing)},
                               {"NodeFault", std::to_string(static_cast<int>(fault))}});
        m_program = openDevice();
        m_recorder = openDevice();
        m_link = std::make_unique<BusLink>(*m_program, *m_clock);
        m_client = std::make_unique<UploadClient>(*m_link);
    }
    void chooseFile(int size)
    {
        m_contents.resize(size);
        for (int i = 0; i < size; ++i) {
            m_contents[i] = static_cast<char>(i * 31 + i / 256);
        }
        m_home.write(QStringLiteral("file.bin"), m_contents);
        m_client->setFile(m_home.file(QStringLiteral("file.bin")));
    }
    /// One turn of the program's heartbeat.
    void turn()
    {
        m_clock->advance(tick);
        drainInto(*m_recorder, m_record);
        MessageContainer batch;
        while (Message* message = m_program->recvMessage()) {
            batch.addMessage(SmartPtr<Message>(message));
        }
        m_client->receive(batch);
        if (m_link->hasRunOut()) {
            m_client->timeOut();
        }
        if (m_progress.empty() || m_progress.back() != m_client->progress()) {
            m_progress.push_back(m_client->progress());
        }
    }
    /// Uploads as long as the state is not one of the last ones, `limit` at most.
    void upload(BusTime limit)
    {
        m_client->send();
        for (BusTime passed = 0; passed < limit && m_client->state() != State::Finished &&
                                 m_client->state() != State::Timeout;
             passed += tick) {
            turn();
        }
    }
    /// The data frames on the bus, in order.
    std::vector<const zul::MessageCan*> dataFrames() const
    {
        std::vector<const zul::MessageCan*> frames;
        for (const auto& frame : m_record.frames) {
            if ((frame->id() & 1U << 16) != 0) {
                frames.push_back(frame.get());
            }
        }
        return frames;
    }
    void expectData() const
    {
        const auto frames = dataFrames();
        ASSERT_EQ(frames.size(), uploadFrameCount(static_cast<std::uint64_t>(m_contents.size())));
        QByteArray received;
        for (const zul::MessageCan* frame : frames) {
            EXPECT_EQ(frame->id(), 0x10050000U);
            EXPECT_EQ(frame->mode(), zul::MessageCan::EMsgMode::Extended);
            received.append(reinterpret_cast<const char*>(&frame->msg()[0]),
                            static_cast<int>(frame->byteCount()));
        }
        const std::uint32_t sum = uploadChecksum(static_cast<std::uint64_t>(m_contents.size()));
        QByteArray expected = m_contents;
        for (const int shift : {24, 16, 8, 0}) {
            expected.append(static_cast<char>(sum >> shift & 255U));
        }
        EXPECT_EQ(received, expected);
    }
    /// Largest distance of a data frame from its planned place after the first one, in seconds.
    double spacingError(const UploadPacing& pacing) const
    {
        const auto frames = dataFrames();
        const MessageContainer plan = uploadSchedule(m_contents, 0, pacing);
        const double first = frames.front()->timeStampDouble();
        double error = 0.0;
        for (std::size_t i = 0; i < frames.size(); ++i) {
            const auto* planned = message_cast<zul::MessageCan>(plan.messages()[i + 1].get());
            const double wanted = planned->timeStampDouble() - 0.1;
            error = std::max(error, std::abs(frames[i]->timeStampDouble() - first - wanted));
        }
        return error;
    }

    zul::test::TestHome m_home;
    QByteArray m_contents;
    std::unique_ptr<canvirtual::VirtualDevice> m_server;
    std::unique_ptr<canvirtual::VirtualDevice> m_program;
    std::unique_ptr<canvirtual::VirtualDevice> m_recorder;
    std::unique_ptr<BusLink> m_link;
    std::unique_ptr<UploadClient> m_client;
    Received m_record;
    std::vector<int> m_progress;
};

class UploadOfSize : public UploadBus, public testing::WithParamInterface<int>
{
};

TEST_P(UploadOfSize, ArrivesByteForByteAndIsFinished)
{
    open();
    chooseFile(GetParam());
    upload(60 * second);
    EXPECT_EQ(m_client->state(), State::Finished);
    EXPECT_EQ(m_client->responseCode(), 0U);
    EXPECT_EQ(m_client->progress(), 100);
    EXPECT_TRUE(std::is_sorted(m_progress.begin(), m_progress.end()));
    expectData();
}

INSTANTIATE_TEST_SUITE_P(Files, UploadOfSize, testing::Values(0, 4, 5, 4'096, 1'000'000));

TEST_F(UploadBus, DeviceHoldsTheLargestFile)
{
    EXPECT_LE(uploadFrameCount(UploadClient::maxFileBytes), canmodule::SendSchedule::usualCapacity);
}

TEST_F(UploadBus, ProgressComesFromTheDevice)
{
    open();
    chooseFile(1'000'000);
    upload(60 * second);
    EXPECT_GT(m_progress.size(), 50U) << "a report every 200 ms, and 17 s of data";
}

TEST_F(UploadBus, FramesKeepTheServersSpacing)
{
    for (const int pacing : {0, 1, 2}) {
        m_record.frames.clear();
        open(NodeFault::None, pacing);
        chooseFile(4'096);
        upload(60 * second);
        ASSERT_EQ(m_client->state(), State::Finished);
        expectData();
        const canvirtual::NodePacing& asked =
            canvirtual::nodePacings.at(static_cast<std::size_t>(pacing));
        // A frame of 8 bytes is 0.13 to 0.16 ms long.
        EXPECT_LT(spacingError({asked.messageSeparation, asked.blockSize, asked.blockSeparation}),
                  0.0003);
    }
}

TEST_F(UploadBus, SecondUploadGoesLikeTheFirst)
{
    open();
    chooseFile(100);
    upload(second);
    ASSERT_EQ(m_client->state(), State::Finished);
    m_record.frames.clear();
    chooseFile(37);
    upload(second);
    EXPECT_EQ(m_client->state(), State::Finished);
    expectData();
}

TEST_F(UploadBus, SilentServerTimesOut)
{
    open(NodeFault::Silent);
    chooseFile(100);
    upload(10 * second);
    EXPECT_EQ(m_client->state(), State::Timeout);
    EXPECT_TRUE(dataFrames().empty());
}

TEST_F(UploadBus, LateAnswerComesAfterTheTimeoutAndChangesNothing)
{
    open(NodeFault::Late);
    chooseFile(100);
    upload(10 * second);
    ASSERT_EQ(m_client->state(), State::Timeout);
    for (int i = 0; i < 100; ++i) {
        turn();
    }
    EXPECT_EQ(m_client->state(), State::Timeout);
}

TEST_F(UploadBus, AnswerWithAnotherIdentifierIsNone)
{
    open(NodeFault::WrongIdentifier);
    chooseFile(100);
    upload(10 * second);
    EXPECT_EQ(m_client->state(), State::Timeout);
    EXPECT_EQ(m_client->responseCode(), 0U);
}

TEST_F(UploadBus, RefusalIsShownAndTheAckDoesNotCome)
{
    open(NodeFault::Refuses);
    chooseFile(100);
    upload(10 * second);
    EXPECT_EQ(m_client->state(), State::Timeout);
    EXPECT_EQ(m_client->responseCode(), 1U);
    EXPECT_TRUE(dataFrames().empty());
}

TEST_F(UploadBus, WithoutAckItTimesOut)
{
    open(NodeFault::NoAck);
    chooseFile(100);
    upload(10 * second);
    EXPECT_EQ(m_client->state(), State::Timeout);
    EXPECT_TRUE(dataFrames().empty());
}

TEST_F(UploadBus, WithoutEndItStaysUploadingForEver)
{
    open(NodeFault::NoEnd);
    chooseFile(100);
    upload(60 * second);
    EXPECT_EQ(m_client->state(), State::Uploading);
    EXPECT_EQ(m_client->progress(), 100); // all frames have gone
    expectData();
}

TEST_F(UploadBus, WithoutAFileItEndsInTheDataState)
{
    open();
    upload(10 * second);
    EXPECT_EQ(m_client->state(), State::Uploading);
    EXPECT_EQ(m_client->progress(), 0);
    EXPECT_TRUE(dataFrames().empty());
}

TEST_F(UploadBus, ServersWhoseFaultsAreOfAnUploadStillIdentifyThemselves)
{
    for (const NodeFault fault : {NodeFault::None, NodeFault::Refuses, NodeFault::NoAck}) {
        open(fault);
        IdentificationClient client(*m_link);
        client.send();
        for (int i = 0; i < 5; ++i) {
            m_clock->advance(tick);
            MessageContainer batch;
            while (Message* message = m_program->recvMessage()) {
                batch.addMessage(SmartPtr<Message>(message));
            }
            client.receive(batch);
        }
        EXPECT_EQ(client.state(), IdentificationClient::State::Received);
        EXPECT_EQ(client.identification().profileId, 825U);
        EXPECT_EQ(client.identification().profileSubId, 3U);
        EXPECT_EQ(client.identification().lruCode, 77U);
    }
}

} // namespace

#include "traffic/Transmitter.h"

#include "message/MessageCan.h"
#include "tests/unit/profile/AllocationCount.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

using zul::MessageCan;

class TransmitterTest : public testing::Test
{
protected:
    SendMsg& add(std::uint32_t id, std::int32_t rate = 0, std::int32_t running = 0)
    {
        m_object.lines().push_back(std::make_unique<SendMsg>());
        SendMsg& line = *m_object.lines().back();
        line.id = id;
        line.rate = rate;
        line.running = running;
        return line;
    }
    /// The identifiers of the batch that the tick gives.
    std::vector<std::uint32_t> tick(double now)
    {
        std::vector<std::uint32_t> ids;
        if (const auto batch = m_transmitter.tick(m_object, now)) {
            for (const auto& message : batch->messages()) {
                ids.push_back(dynamic_cast<const MessageCan&>(*message).id());
            }
        }
        return ids;
    }
    static const MessageCan& frame(const MessageContainer& batch, std::size_t index = 0)
    {
        return dynamic_cast<const MessageCan&>(*batch.messages().at(index));
    }
    using Ids = std::vector<std::uint32_t>;

    ObjectTransmit m_object;
    Transmitter m_transmitter;
};

TEST_F(TransmitterTest, FrameHasTheFieldsOfTheLineAllItsBytesAndNoTimeStamp)
{
    SendMsg& line = add(0x1ABCDEF);
    line.byteCount = 12;
    line.mode = 3;
    line.data[0] = 1;
    line.data[63] = 255; // beyond the byte count, and yet there
    const auto message = Transmitter::frameOf(line);
    const auto& made = dynamic_cast<const MessageCan&>(*message);
    EXPECT_EQ(made.id(), 0x1ABCDEFU);
    EXPECT_EQ(made.byteCount(), 12U);
    EXPECT_EQ(made.mode(), MessageCan::EMsgMode::ExtendedFd);
    EXPECT_EQ(made.frameType(), MessageCan::EFrameType::Data);
    EXPECT_EQ(made.msg()[0], 1);
    EXPECT_EQ(made.msg()[63], 255);
    EXPECT_EQ(made.timeStamp().seconds, 0U);
    EXPECT_EQ(made.timeStamp().nanoseconds, 0U);
}

TEST_F(TransmitterTest, LineIsDueOnlyWhenItsPeriodHasPassed)
{
    SendMsg& line = add(1, 250, 1);
    line.lastSent = 64.0;
    EXPECT_FALSE(Transmitter::isDue(line, 64.249));
    EXPECT_FALSE(Transmitter::isDue(line, 64.25)); // just as long is not longer
    EXPECT_TRUE(Transmitter::isDue(line, 64.251));
}

TEST_F(TransmitterTest, OnlyRunningLinesWithARateAreDue)
{
    EXPECT_FALSE(Transmitter::isDue(add(1, 0, 1), 1000.0));
    EXPECT_FALSE(Transmitter::isDue(add(1, 10, 0), 1000.0));
    EXPECT_FALSE(Transmitter::isDue(add(1, 10, 7), 1000.0)); // a file may hold that
    EXPECT_TRUE(Transmitter::isDue(add(1, 10, 1), 1000.0));
    EXPECT_TRUE(Transmitter::isDue(add(1, -10, 1), 1000.0));
    EXPECT_FALSE(Transmitter::isDue(add(1, std::numeric_limits<std::int32_t>::max(), 1), 1000.0));
}

TEST_F(TransmitterTest, LineThatWasStoppedForLongIsDueAtTheFirstTick)
{
    add(5, 100'000, 1);
    EXPECT_EQ(tick(1'000.0), Ids{5});
}

TEST_F(TransmitterTest, DueLinesGoOutInOneBatchInListOrder)
{
    m_object.settings().outputInterface = QStringLiteral("Nose \u00e4");
    add(9, 10, 1);
    add(2);
    add(3, 10, 1);
    const auto batch = m_transmitter.tick(m_object, 100.0);
    ASSERT_TRUE(batch.has_value());
    EXPECT_EQ(batch->srcDest(), "Nose \xe4");
    ASSERT_EQ(batch->size(), 2U);
    EXPECT_EQ(frame(*batch, 0).id(), 9U);
    EXPECT_EQ(frame(*batch, 1).id(), 3U);
    EXPECT_EQ(m_transmitter.transmitted(), 2U);
    EXPECT_EQ(m_object.lines()[0]->lastSent, 100.0);
    EXPECT_EQ(m_object.lines()[1]->lastSent, 0.0);
}

TEST_F(TransmitterTest, TickWithoutDueLinesGivesNoBatch)
{
    add(1, 10, 1);
    EXPECT_EQ(tick(100.0), Ids{1});
    EXPECT_FALSE(m_transmitter.tick(m_object, 100.0).has_value());
    EXPECT_EQ(m_transmitter.transmitted(), 1U);
}

TEST_F(TransmitterTest, LateTickIsNotCaughtUp)
{
    add(1, 10, 1);
    tick(100.0);
    EXPECT_EQ(tick(105.0), Ids{1}); // one frame, though 500 periods have passed
    EXPECT_EQ(m_object.lines()[0]->lastSent, 105.0);
    EXPECT_EQ(tick(105.005), Ids{});
    EXPECT_EQ(tick(105.0105), Ids{1});
}

TEST_F(TransmitterTest, LineOfOneMillisecondGoesOutOnAlternateTicksAtWorst)
{
    add(1, 1, 1);
    int sent = 0;
    bool sentBefore = true;
    for (int i = 1; i <= 1000; ++i) {
        const bool sentNow = !tick(i * 0.001).empty();
        EXPECT_TRUE(sentNow || sentBefore) << i; // never two ticks without
        sent += sentNow ? 1 : 0;
        sentBefore = sentNow;
    }
    EXPECT_GE(sent, 500);
}

TEST_F(TransmitterTest, RunningLinesAreSentWhileTheOutputIsOffAndEditsNotSent)
{
    m_object.settings().outputOn = false;
    m_object.settings().autoTx = false;
    add(1, 10, 1);
    EXPECT_EQ(tick(100.0), Ids{1});
}

TEST_F(TransmitterTest, TickThatSendsNothingAllocatesNothing)
{
    for (int i = 0; i < 1000; ++i) {
        add(1, 10, 1).lastSent = 100.0;
    }
    const std::uint64_t before = zul::test::allocationCount();
    const bool isSending = m_transmitter.tick(m_object, 100.0).has_value();
    EXPECT_EQ(zul::test::allocationCount(), before);
    EXPECT_FALSE(isSending);
}

TEST_F(TransmitterTest, SingleLineIsSentOnlyWithTheOutputOn)
{
    add(7);
    const auto batch = m_transmitter.sendLine(m_object, 0);
    ASSERT_TRUE(batch.has_value());
    EXPECT_EQ(batch->srcDest(), "All Interfaces");
    EXPECT_EQ(frame(*batch).id(), 7U);
    EXPECT_EQ(m_object.lines()[0]->lastSent, 0.0); // only periodic frames count
    m_object.settings().outputOn = false;
    EXPECT_FALSE(m_transmitter.sendLine(m_object, 0).has_value());
    EXPECT_EQ(m_transmitter.transmitted(), 1U);
}

TEST_F(TransmitterTest, IndexesOutOfRangeAreIgnored)
{
    add(1);
    for (const int index : {-1, 1, std::numeric_limits<int>::max()}) {
        EXPECT_EQ(transmitLine(m_object, index), nullptr);
        EXPECT_FALSE(m_transmitter.sendLine(m_object, index).has_value());
        EXPECT_FALSE(m_transmitter.edit(m_object, index, SendMsg()).has_value());
    }
    EXPECT_EQ(m_transmitter.transmitted(), 0U);
}

TEST_F(TransmitterTest, SelectedLinesGoOutInABatchEachFromTheTopDown)
{
    add(1);
    add(2);
    add(3);
    const auto batches = m_transmitter.sendLines(m_object, {2, 0, 99});
    ASSERT_EQ(batches.size(), 2U);
    EXPECT_EQ(frame(batches[0]).id(), 1U);
    EXPECT_EQ(frame(batches[1]).id(), 3U);
    EXPECT_EQ(m_transmitter.transmitted(), 2U);
    m_object.settings().outputOn = false;
    EXPECT_TRUE(m_transmitter.sendLines(m_object, {0}).empty());
}

TEST_F(TransmitterTest, EditTakesAllFieldsButRateAndRunningState)
{
    add(1, 20, 1).lastSent = 50.0;
    SendMsg edited;
    edited.name = QStringLiteral("Flaps");
    edited.id = 99;
    edited.byteCount = 3;
    edited.rate = 5000;
    edited.running = 0;
    edited.lastSent = 40.0;
    edited.min = -1.0F;
    edited.max = 2.0F;
    edited.actual = 0.5F;
    edited.data[2] = 17;
    edited.mode = 5;
    EXPECT_FALSE(m_transmitter.edit(m_object, 0, edited).has_value());
    const SendMsg& line = *m_object.lines()[0];
    EXPECT_EQ(line.name, QStringLiteral("Flaps"));
    EXPECT_EQ(line.id, 99U);
    EXPECT_EQ(line.byteCount, 3U);
    EXPECT_EQ(line.rate, 20);
    EXPECT_EQ(line.running, 1);
    EXPECT_EQ(line.lastSent, 40.0);
    EXPECT_EQ(line.min, -1.0F);
    EXPECT_EQ(line.max, 2.0F);
    EXPECT_EQ(line.actual, 0.5F);
    EXPECT_EQ(line.data[2], 17);
    EXPECT_EQ(line.mode, 5U);
}

TEST_F(TransmitterTest, EditIsSentOnlyWithAutoTxAndTheOutputOn)
{
    add(1);
    SendMsg edited;
    edited.id = 42;
    for (const bool autoTx : {false, true}) {
        for (const bool outputOn : {false, true}) {
            m_object.settings().autoTx = autoTx;
            m_object.settings().outputOn = outputOn;
            const auto batch = m_transmitter.edit(m_object, 0, edited);
            EXPECT_EQ(batch.has_value(), autoTx && outputOn);
            if (batch) {
                EXPECT_EQ(frame(*batch).id(), 42U);
            }
        }
    }
    EXPECT_EQ(m_transmitter.transmitted(), 1U);
}

TEST_F(TransmitterTest, HostileLinesMakeFramesThatKeepTheirValues)
{
    SendMsg& line = add(0xFFFFFFFF, -1, 1);
    line.byteCount = 4'000'000'000U;
    line.mode = 77;
    const auto batch = m_transmitter.tick(m_object, 1.0);
    ASSERT_TRUE(batch.has_value());
    EXPECT_EQ(frame(*batch).id(), 0xFFFFFFFFU);
    EXPECT_EQ(frame(*batch).byteCount(), 4'000'000'000U);
    EXPECT_EQ(static_cast<std::uint32_t>(frame(*batch).mode()), 77U);
}

} // namespace

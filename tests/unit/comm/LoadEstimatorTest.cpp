#include "comm/LoadEstimator.h"

#include "message/MessageCan.h"
#include "message/MessageStatus.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

using comm::LoadEstimator;
using zul::MessageCan;

constexpr auto byFrames = LoadEstimator::Source::Frames;
constexpr auto byStatus = LoadEstimator::Source::Status;

struct Frame
{
    double time;
    std::uint32_t byteCount = 8;
    MessageCan::EMsgMode mode = MessageCan::EMsgMode::Standard;
    MessageCan::EFrameType type = MessageCan::EFrameType::Data;
};

MessageContainer batchOf(const std::vector<Frame>& frames)
{
    MessageContainer batch;
    for (const Frame& frame : frames) {
        auto* message = new MessageCan;
        message->setTimeStamp(frame.time);
        message->setByteCount(frame.byteCount);
        message->setMode(frame.mode);
        message->setFrameType(frame.type);
        batch.addMessage(SmartPtr<Message>(message));
    }
    return batch;
}

MessageContainer reportOf(std::uint32_t bits0, std::uint32_t bits1, std::uint32_t messages0,
                          std::uint32_t messages1)
{
    auto* status = new zul::MessageStatus;
    status->bitCount0 = bits0;
    status->bitCount1 = bits1;
    status->messageCount0 = messages0;
    status->messageCount1 = messages1;
    MessageContainer batch;
    batch.addMessage(SmartPtr<Message>(status));
    return batch;
}

// After a step of a second the sample weighs 1 against the gain of 0.5, from a state of 0.
constexpr double firstSecond(double sample)
{
    return sample * 1.0 / 1.5;
}

TEST(FrameCost, CountsBitsByModeAndByteCount)
{
    struct Row
    {
        std::uint32_t mode;
        std::uint32_t bytes;
        std::uint32_t bits;
    };
    for (const Row& row : std::vector<Row>{{0, 8, 130},
                                           {1, 8, 152},
                                           {0, 0, 58},
                                           {2, 8, 130},
                                           {3, 0, 80},
                                           {4, 0, 80},
                                           {4, 64, 656},
                                           {5, 1, 89}}) {
        EXPECT_EQ(comm::frameCost(row.mode, row.bytes), row.bits) << row.mode << " " << row.bytes;
    }
}

TEST(LoadEstimator, FramesOfTheLastSecondCount)
{
    LoadEstimator estimator(100.0);
    estimator.update(batchOf({{5.0}, {5.1}, {5.2, 0}}), byFrames, true, 101.0);
    EXPECT_NEAR(estimator.rate(), firstSecond(3), 1e-5);
    EXPECT_NEAR(estimator.busBits(), firstSecond(130 + 130 + 58), 1e-4);
    EXPECT_EQ(estimator.busTime(), 5.2);
}

TEST(LoadEstimator, ModeOfEachFrameCounts)
{
    LoadEstimator estimator(100.0);
    estimator.update(batchOf({{5.0, 8, MessageCan::EMsgMode::Extended},
                              {5.1, 64, MessageCan::EMsgMode::StandardFdBrs}}),
                     byFrames, true, 101.0);
    EXPECT_NEAR(estimator.busBits(), firstSecond(152 + 656), 1e-3);
}

TEST(LoadEstimator, ErrorFrameAddsNothing)
{
    LoadEstimator estimator(100.0);
    Frame error{5.0};
    error.type = MessageCan::EFrameType::Error;
    estimator.update(batchOf({error}), byFrames, true, 101.0);
    EXPECT_EQ(estimator.rate(), 0.0);
    EXPECT_EQ(estimator.busBits(), 0.0);
    EXPECT_EQ(estimator.busTime(), 0.0);
}

TEST(LoadEstimator, RemoteFrameCountsWithoutItsBytes)
{
    LoadEstimator estimator(100.0);
    Frame remote{5.0, 0};
    remote.type = MessageCan::EFrameType::Remote;
    estimator.update(batchOf({remote}), byFrames, true, 101.0);
    EXPECT_NEAR(estimator.busBits(), firstSecond(58), 1e-4);
}

TEST(LoadEstimator, OldFramesFallOutByBusTime)
{
    LoadEstimator estimator(100.0);
    estimator.update(batchOf({{5.0}, {5.5}}), byFrames, true, 101.0);
    // At 6.25 the frame of 5.0 is older than a second, that of 5.5 is not.
    estimator.update(batchOf({{6.25}}), byFrames, true, 102.0);
    const double expected = (0.5 * firstSecond(2) + 2) / 1.5;
    EXPECT_NEAR(estimator.rate(), expected, 1e-5);
}

TEST(LoadEstimator, FrameOfExactlyOneSecondStays)
{
    LoadEstimator estimator(100.0);
    estimator.update(batchOf({{5.0}, {6.0}}), byFrames, true, 101.0);
    EXPECT_NEAR(estimator.rate(), firstSecond(2), 1e-5);
}

TEST(LoadEstimator, EmptyBatchesAdvanceBusTimeByWallClock)
{
    LoadEstimator estimator(100.0);
    estimator.update(batchOf({{5.0}}), byFrames, true, 100.05);
    estimator.update(batchOf({}), byFrames, true, 100.55);
    EXPECT_NEAR(estimator.busTime(), 5.5, 1e-9);
    const double before = estimator.busBits();
    estimator.update(batchOf({}), byFrames, true, 101.15);
    EXPECT_NEAR(estimator.busTime(), 6.1, 1e-9);
    // Out of the window now: the state only decays.
    EXPECT_NEAR(estimator.busBits(), 0.5 * before / (0.5 + 0.6), 1e-3);
}

TEST(LoadEstimator, BatchWithoutFramesDoesNotAdvanceBusTime)
{
    LoadEstimator estimator(100.0);
    estimator.update(reportOf(1, 1, 1, 1), byFrames, true, 105.0);
    EXPECT_EQ(estimator.busTime(), 0.0);
}

TEST(LoadEstimator, ClockThatJumpsBackEmptiesTheWindow)
{
    LoadEstimator estimator(100.0);
    estimator.update(batchOf({{50.0}, {50.1}}), byFrames, true, 101.0);
    estimator.update(batchOf({{3.0}}), byFrames, true, 102.0);
    EXPECT_NEAR(estimator.rate(), (0.5 * firstSecond(2) + 1) / 1.5, 1e-5);
}

TEST(LoadEstimator, DisconnectedReadsZeroAndStartsAnew)
{
    LoadEstimator estimator(100.0);
    estimator.update(batchOf({{5.0}, {5.1}}), byFrames, true, 101.0);
    estimator.update(batchOf({{5.2}}), byFrames, false, 102.0);
    EXPECT_EQ(estimator.rate(), 0.0);
    EXPECT_EQ(estimator.busBits(), 0.0);
    estimator.update(batchOf({{5.3}}), byFrames, true, 103.0);
    EXPECT_NEAR(estimator.busBits(), firstSecond(130), 1e-4);
}

TEST(LoadEstimator, StatusReportsAreTakenAtTheirReducedReading)
{
    LoadEstimator estimator(100.0);
    estimator.update(reportOf(300000, 200000, 900, 100), byStatus, true, 100.05);
    EXPECT_NEAR(estimator.busBits(), 500000 * 0.5 / (0.5 + 0.05), 1.0);
    EXPECT_NEAR(estimator.rate(), 1000 * 0.05 / 0.55, 0.01);
}

TEST(LoadEstimator, LastStatusReportOfTheBatchCounts)
{
    LoadEstimator estimator(100.0);
    MessageContainer batch = reportOf(1, 1, 1, 1);
    batch.addMessage(reportOf(0, 0, 3000, 0).messages()[0]);
    estimator.update(batch, byStatus, true, 101.0);
    EXPECT_NEAR(estimator.rate(), firstSecond(3000), 1e-3);
}

TEST(LoadEstimator, FramesDoNotCountWhereTheDeviceReports)
{
    LoadEstimator estimator(100.0);
    estimator.update(reportOf(1000, 0, 10, 0), byStatus, true, 101.0);
    const double bits = estimator.busBits();
    const double rate = estimator.rate();
    estimator.update(batchOf({{5.0}, {5.1}}), byStatus, true, 102.0);
    EXPECT_EQ(estimator.busBits(), bits);
    EXPECT_EQ(estimator.rate(), rate);
    estimator.update(batchOf({}), byStatus, false, 103.0);
    EXPECT_EQ(estimator.busBits(), 0.0);
    EXPECT_EQ(estimator.rate(), 0.0);
}

TEST(LoadEstimator, CountersBeyond32BitsInSumDoNotWrap)
{
    LoadEstimator estimator(100.0);
    estimator.update(reportOf(4000000000U, 4000000000U, 0, 0), byStatus, true, 101.0);
    EXPECT_NEAR(estimator.busBits(), 8e9 * 0.5 / 1.5, 1e3);
}

} // namespace

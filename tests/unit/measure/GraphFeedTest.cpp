#include "measure/GraphFeed.h"

#include "measure/GraphEngine.h"
#include "measure/PayloadCells.h"
#include "measure/ZoomRange.h"
#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "message/MessageCtrl.h"
#include "project/ObjectGraph.h"

#include <gtest/gtest.h>

namespace zul::test {

namespace {

constexpr double start = 1'000.0;

class GraphFeedTest : public testing::Test
{
protected:
    void SetUp() override { m_object.parameters().clear(); }

    MessageContainer batch(const std::vector<std::uint32_t>& ids,
                           const std::string& source = "Nose") const
    {
        MessageContainer made;
        for (const std::uint32_t id : ids) {
            auto* frame = new MessageCan;
            frame->setId(id);
            frame->setByteCount(8);
            for (std::size_t i = 0; i < m_payload.size(); ++i) {
                frame->msg()[static_cast<int>(i)] = m_payload[i];
            }
            made.addMessage(SmartPtr<Message>(frame));
        }
        made.setSrcDest(source);
        return made;
    }
    bool feed(const MessageContainer& batch, double now = start + 1.0)
    {
        return m_feed.receive(batch, now, &m_object, m_engine);
    }
    ProfileParameter& add(std::uint32_t id, ParameterKind kind = ParameterKind::Raw,
                          std::uint32_t code = 0)
    {
        GraphParameter parameter;
        parameter.parameter.id = id;
        parameter.parameter.parameterKind = kind;
        parameter.parameter.dtc = code;
        m_object.parameters().push_back(parameter);
        return m_object.parameters().back().parameter;
    }
    std::size_t samples(std::size_t channel) const
    {
        return m_engine.state().channels[channel].samples.size();
    }
    double current(std::size_t channel) const { return m_engine.state().channels[channel].current; }

    std::vector<std::uint8_t> m_payload{1, 2, 3, 4, 5, 6, 7, 8};
    ObjectGraph m_object;
    GraphEngine m_engine;
    GraphFeed m_feed{start};
};

TEST_F(GraphFeedTest, TimeIsThatOfTheBatchSinceTheStart)
{
    add(5);
    feed(batch({5, 5}), start + 2.5);
    EXPECT_EQ(m_engine.state().now, 2.5);
    ASSERT_EQ(samples(0), 2U);
    EXPECT_EQ(m_engine.state().channels[0].samples[1].time, 2.5);
}

TEST_F(GraphFeedTest, AnEmptyBatchMovesTheTime)
{
    EXPECT_TRUE(feed(batch({}), start + 3.0));
    EXPECT_EQ(m_engine.state().now, 3.0);
    EXPECT_EQ(m_feed.frameCount(), 0U);
}

TEST_F(GraphFeedTest, WithoutABatchTheClockDoesNotStart)
{
    EXPECT_FALSE(m_engine.state().running);
}

TEST_F(GraphFeedTest, ABatchFromAnotherInterfaceMovesTheTimeAndIsNotCounted)
{
    add(5);
    m_object.settings().inputInterface = QStringLiteral("Tail");
    EXPECT_FALSE(feed(batch({5, 6}), start + 4.0));
    EXPECT_EQ(m_engine.state().now, 4.0);
    EXPECT_EQ(m_engine.state().xMax, 4.0); // the trace moves
    EXPECT_EQ(m_feed.frameCount(), 0U);
    EXPECT_EQ(samples(0), 0U);
    EXPECT_TRUE(feed(batch({5, 6}, "Tail"), start + 5.0));
    EXPECT_EQ(m_feed.frameCount(), 2U);
    EXPECT_EQ(samples(0), 1U);
}

TEST_F(GraphFeedTest, WithoutAnObjectTheTimeMoves)
{
    EXPECT_FALSE(m_feed.receive(batch({5}), start + 4.0, nullptr, m_engine));
    EXPECT_EQ(m_engine.state().now, 4.0);
    EXPECT_EQ(m_feed.frameCount(), 0U);
}

TEST_F(GraphFeedTest, FramesAreCountedEvenIfTheyAreNotTaken)
{
    add(5);
    m_object.settings().inputOn = false;
    feed(batch({5}));
    EXPECT_EQ(m_feed.frameCount(), 1U);
    EXPECT_EQ(samples(0), 0U);
    m_object.settings().inputOn = true;
    m_object.filter().setOn(true);
    m_object.filter().setMin(10);
    feed(batch({5}));
    EXPECT_EQ(m_feed.frameCount(), 2U);
    EXPECT_EQ(samples(0), 0U);
    m_object.filter().setOn(false);
    feed(batch({5}));
    EXPECT_EQ(samples(0), 1U);
}

TEST_F(GraphFeedTest, MessagesThatAreNoFramesAreNotCounted)
{
    MessageContainer made = batch({5});
    made.addMessage(SmartPtr<Message>(new Message(7)));
    feed(made);
    EXPECT_EQ(m_feed.frameCount(), 1U);
}

TEST_F(GraphFeedTest, TwoParametersOfOneIdentifierTakeEachFrameEachInItsWay)
{
    add(5, ParameterKind::Raw, 0);
    add(5, ParameterKind::Raw, 3);
    add(6, ParameterKind::Raw, 1);
    feed(batch({5}));
    EXPECT_EQ(current(0), 1.0);
    EXPECT_EQ(current(1), 4.0);
    EXPECT_EQ(samples(2), 0U);
}

TEST_F(GraphFeedTest, AnInactiveParameterGoesOnCollecting)
{
    add(5);
    m_object.parameters()[0].active = false;
    feed(batch({5}));
    EXPECT_EQ(samples(0), 1U);
}

TEST_F(GraphFeedTest, AnArincFrameMatchesWhicheverItsStatusBitIs)
{
    constexpr std::uint32_t status = 1U << 18U;
    add(0x100, ParameterKind::Arinc825, 3);
    add(0x100 | status, ParameterKind::Arinc825, 3);
    add(0x100, ParameterKind::Raw, 0);
    feed(batch({0x100}));
    feed(batch({0x100 | status}));
    EXPECT_EQ(samples(0), 2U);
    EXPECT_EQ(samples(1), 0U); // never, since its own identifier has the bit
    EXPECT_EQ(samples(2), 1U); // other kinds compare all bits
}

TEST_F(GraphFeedTest, BothRawIntegersShowTheSameValue)
{
    add(5, ParameterKind::Raw, 12);
    add(5, ParameterKind::Raw, 13);
    feed(batch({5}));
    EXPECT_EQ(current(0), static_cast<double>(0x05060708));
    EXPECT_EQ(current(1), current(0));
}

TEST_F(GraphFeedTest, ValuesOfMoreParametersThanChannelsAreDropped)
{
    for (int i = 0; i < 40; ++i) {
        add(5);
    }
    feed(batch({5}));
    EXPECT_EQ(samples(5), 1U);
}

TEST(ZoomedRange, ShrinksAndGrowsByThreePercent)
{
    EXPECT_DOUBLE_EQ(zoomedRange(100.0, ZoomDirection::In), 97.0);
    EXPECT_DOUBLE_EQ(zoomedRange(97.0, ZoomDirection::Out), 100.0);
    EXPECT_DOUBLE_EQ(zoomedRange(97.0, ZoomDirection::None), 97.0);
}

TEST(ZoomedRange, HasItsBoundsTheOtherWayRound)
{
    EXPECT_DOUBLE_EQ(zoomedRange(9'000.0, ZoomDirection::In), 5'000.0);
    EXPECT_DOUBLE_EQ(zoomedRange(0.1, ZoomDirection::Out), 1.0);
    EXPECT_DOUBLE_EQ(zoomedRange(0.001, ZoomDirection::In), 0.00097);
    EXPECT_DOUBLE_EQ(zoomedRange(9'700.0, ZoomDirection::Out), 10'000.0);
}

ProfileParameter parameterAt(std::uint32_t sppByte, std::uint32_t sppBit, std::uint32_t eppByte,
                             std::uint32_t eppBit)
{
    ProfileParameter parameter;
    parameter.sppByte = sppByte;
    parameter.sppBit = sppBit;
    parameter.eppByte = eppByte;
    parameter.eppBit = eppBit;
    return parameter;
}

TEST(PayloadCells, GoFromEndToStartPosition)
{
    const ProfileParameter word = parameterAt(3, 0, 2, 7);
    for (int cell = 0; cell < payloadCells; ++cell) {
        EXPECT_EQ(isPayloadCellUsed(cell, word), cell >= 16 && cell <= 31) << cell;
    }
    const ProfileParameter nibble = parameterAt(1, 4, 1, 7);
    for (int cell = 0; cell < payloadCells; ++cell) {
        EXPECT_EQ(isPayloadCellUsed(cell, nibble), cell >= 8 && cell <= 11) << cell;
    }
}

TEST(PayloadCells, OfPositionsOutOfRangeAreNone)
{
    const ProfileParameter outside = parameterAt(0xFFFFFFFF, 0, 0xFFFFFFFF, 7);
    for (int cell = 0; cell < payloadCells; ++cell) {
        EXPECT_FALSE(isPayloadCellUsed(cell, outside));
    }
}

} // namespace

} // namespace zul::test

#include "modules/virtual/SaturatedScenario.h"

#include "modules/virtual/FrameLength.h"
#include "modules/virtual/Payload.h"
#include "tests/unit/virtual/BusFixture.h"

using namespace canvirtual;

namespace {

using SaturatedTest = BusFixture;

std::uint32_t sequenceOf(const zul::MessageCan& message)
{
    return bigEndian32(frameFromMessage(message), 0);
}

TEST_F(SaturatedTest, EightByteFramesFollowWithoutGap)
{
    auto device = openDevice({{"Scenario", "3"}});
    auto listener = openDevice();
    const Received own = run(*device, 2 * second);
    const Received others = drain(*listener);
    ASSERT_GT(own.frames.size(), 16'000U);
    EXPECT_EQ(own.frames.size(), others.frames.size());
    BusTime last = SettableClock::start - 3 * microsecond;
    for (std::size_t index = 0; index < own.frames.size(); ++index) {
        const zul::MessageCan& message = *own.frames[index];
        ASSERT_EQ(sequenceOf(message), index);
        ASSERT_EQ(message.id(), SaturatedScenario::identifier);
        const int bits = frameBits(frameFromMessage(message)).total() + intermissionBits;
        ASSERT_EQ(timeOf(message) - last, bits * microsecond);
        last = timeOf(message);
    }
    EXPECT_EQ(rowValue(*own.reports.back(), "Bus load [%]"), "100.0");
    EXPECT_NEAR(own.reports.back()->bitCount0, 1e6, 1e3);
}

TEST_F(SaturatedTest, FramesOfOthersGetThrough)
{
    auto device = openDevice({{"Scenario", "3"}});
    auto sender = openDevice();
    for (std::uint32_t id = 0; id < 10; ++id) {
        m_clock->advance(10 * millisecond);
        EXPECT_TRUE(send(*sender, id));
    }
    m_clock->advance(millisecond);
    std::size_t others = 0;
    std::uint32_t sequence = 0;
    for (const auto& message : drain(*device).frames) {
        if (message->id() == SaturatedScenario::identifier) {
            EXPECT_EQ(sequenceOf(*message), sequence++);
        } else {
            ++others;
        }
    }
    EXPECT_EQ(others, 10U);
}

TEST_F(SaturatedTest, TwoSaturatedNodesShareTheBus)
{
    auto left = openDevice({{"Scenario", "3"}});
    auto right = openDevice({{"Scenario", "3"}});
    const Received received = run(*left, second);
    std::size_t even = 0;
    for (std::size_t index = 0; index + 1 < received.frames.size(); index += 2) {
        even += sequenceOf(*received.frames[index]) == sequenceOf(*received.frames[index + 1]);
    }
    EXPECT_EQ(even, received.frames.size() / 2);
}

TEST_F(SaturatedTest, ShortestFramesCountInTheIdentifier)
{
    auto device = openDevice({{"Scenario", "4"}});
    const Received received = run(*device, second);
    EXPECT_NEAR(static_cast<double>(received.frames.size()), 20'400, 600);
    for (std::size_t index = 0; index < received.frames.size(); ++index) {
        ASSERT_EQ(received.frames[index]->id(), index % 2048);
        ASSERT_EQ(received.frames[index]->byteCount(), 0U);
    }
    EXPECT_EQ(rowValue(*received.reports.back(), "Bus load [%]"), "100.0");
}

TEST_F(SaturatedTest, BitRateSlowsTheBusDown)
{
    auto device = openDevice({{"Scenario", "4"}, {"BitRate", "125000"}});
    EXPECT_NEAR(static_cast<double>(run(*device, second).frames.size()), 20'400 / 8, 80);
}

TEST_F(SaturatedTest, LongPauseIsSkippedAndTold)
{
    auto device = openDevice({{"Scenario", "3"}});
    run(*device, second);
    m_clock->advance(3600 * second);
    const BusTime now = m_clock->now();
    const Received received = drain(*device);
    EXPECT_LT(received.frames.size(), 10'000U);
    EXPECT_GT(received.frames.size(), 8'000U);
    EXPECT_GE(timeOf(*received.frames[1]), now - VirtualBus::maxCatchUp);
    EXPECT_EQ(rowValue(*received.reports.at(0), "Skipped [s]"), "3599.0");
    BusTime last = 0;
    for (const auto& message : received.frames) {
        EXPECT_GT(timeOf(*message), last);
        last = timeOf(*message);
    }
}

} // namespace

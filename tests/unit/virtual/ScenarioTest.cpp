#include "modules/virtual/BurstScenario.h"
#include "modules/virtual/FaultScenario.h"
#include "modules/virtual/FrameLength.h"
#include "modules/virtual/Payload.h"
#include "tests/unit/virtual/BusFixture.h"

#include <algorithm>
#include <map>
#include <set>

using namespace canvirtual;

namespace {

using ScenarioTest = BusFixture;

std::size_t errorFrames(const Received& received)
{
    return static_cast<std::size_t>(
        std::count_if(received.frames.begin(), received.frames.end(),
                      [](const auto& frame) { return frame->frameType() == FrameType::Error; }));
}

TEST_F(ScenarioTest, EveryScenarioKeepsTheBusOrderAndItsRate)
{
    for (int scenario = 0; scenario < scenarioCount; ++scenario) {
        SCOPED_TRACE(scenarioNames.at(static_cast<std::size_t>(scenario)));
        const std::string bus = std::to_string(scenario);
        auto device = openDevice({{"Scenario", bus}, {"BusName", bus}});
        auto listener = openDevice({{"BusName", bus}});
        const Received own = run(*device, 4 * second);
        Received others = drain(*listener);
        drainInto(*listener, others); // one drain is limited
        ASSERT_EQ(own.frames.size(), others.frames.size());
        EXPECT_EQ(own.frames.empty(), scenario == 0);
        BusTime last = SettableClock::start - intermissionBits * microsecond;
        for (std::size_t index = 0; index < own.frames.size(); ++index) {
            const zul::MessageCan& message = *own.frames[index];
            ASSERT_EQ(timeOf(message), timeOf(*others.frames[index]));
            ASSERT_EQ(message.id(), others.frames[index]->id());
            ASSERT_LE(timeOf(message), m_clock->now());
            if (message.frameType() != FrameType::Error) {
                const BusTime length =
                    duration(frameBits(frameFromMessage(message)), {1'000'000, 2'000'000});
                ASSERT_GE(timeOf(message) - last, length + intermissionBits * microsecond);
            }
            ASSERT_GT(timeOf(message), last);
            last = timeOf(message);
        }
        EXPECT_EQ(own.reports.size(), 20U);
    }
}

TEST_F(ScenarioTest, ScenariosAreTheSameInEveryRun)
{
    for (const char* scenario : {"1", "2", "5"}) {
        std::vector<std::pair<std::uint32_t, BusTime>> runs[2];
        for (int index = 0; index < 2; ++index) {
            auto device = openDevice({{"Scenario", scenario}});
            const BusTime start = m_clock->now();
            for (const auto& message : run(*device, 2 * second).frames) {
                runs[index].emplace_back(message->id(), timeOf(*message) - start);
            }
        }
        EXPECT_EQ(runs[0], runs[1]);
        EXPECT_GT(runs[0].size(), 200U);
    }
}

TEST_F(ScenarioTest, FdMixHasAllModesAndSizes)
{
    auto device = openDevice({{"Scenario", "2"}});
    const Received received = run(*device, 2 * second);
    std::set<FrameMode> modes;
    std::set<std::uint32_t> sizes;
    std::map<std::uint32_t, std::uint32_t> sequences;
    for (const auto& message : received.frames) {
        modes.insert(message->mode());
        sizes.insert(message->byteCount());
        const BusFrame frame = frameFromMessage(*message);
        EXPECT_EQ(bigEndian32(frame, 0), sequences[message->id()]++);
    }
    EXPECT_EQ(modes.size(), 6U);
    EXPECT_EQ(sizes, (std::set<std::uint32_t>{8, 12, 16, 20, 24, 32, 48, 64}));
    EXPECT_NEAR(sequences[0x140], 200, 2);
    EXPECT_NEAR(sequences[0x15E00504], 20, 1);
}

TEST_F(ScenarioTest, FdMixGoesFasterAtAHigherDataBitRate)
{
    auto slow = openDevice({{"Scenario", "2"}, {"DBTP", "0x00031E77"}});
    auto fast = openDevice({{"Scenario", "2"}, {"BusName", "Bus B"}, {"DBTP", "0x00800611"}});
    const Received atSlow = run(*slow, second);
    const Received atFast = drain(*fast);
    const double slowLoad = std::stod(rowValue(*atSlow.reports.at(2), "Bus load [%]"));
    const double fastLoad = std::stod(rowValue(*atFast.reports.at(0), "Bus load [%]"));
    EXPECT_GT(slowLoad, fastLoad * 1.3);
}

TEST_F(ScenarioTest, ErrorFramesDestroyFramesThatAreSentAgain)
{
    auto device = openDevice({{"Scenario", "5"}});
    auto listener = openDevice();
    const Received received = run(*device, 20 * second);
    EXPECT_NEAR(static_cast<double>(errorFrames(received)), 100, 25);
    EXPECT_EQ(errorFrames(drain(*listener)), errorFrames(received));
    std::map<std::uint32_t, std::uint32_t> sequences;
    for (const auto& message : received.frames) {
        if (message->frameType() != FrameType::Error) {
            ASSERT_EQ(bigEndian32(frameFromMessage(*message), 0), sequences[message->id()]++);
        }
    }
    EXPECT_EQ(rowValue(*received.reports.back(), "State"), "Active");
    EXPECT_NEAR(std::stod(rowValue(*received.reports.back(), "Error frames")),
                static_cast<double>(errorFrames(received)), 3);
}

TEST_F(ScenarioTest, BusOffCycleGoesThroughAllStates)
{
    auto device = openDevice({{"Scenario", "6"}});
    auto listener = openDevice();
    run(*device, 3 * second);
    EXPECT_EQ(device->status(), DeviceStatus::Open);
    run(*device, 4 * second); // second 7: 20 errors are past
    EXPECT_EQ(device->status(), DeviceStatus::BusPassive);
    EXPECT_EQ(listener->status(), DeviceStatus::Open);
    const Received passive = run(*device, 2 * second); // second 9
    EXPECT_EQ(device->status(), DeviceStatus::BusOff);
    EXPECT_GT(errorFrames(passive), 10U);
    drain(*listener);

    // Off the bus it neither sends nor receives, and the others go on.
    EXPECT_TRUE(send(*device, 0x7FF));
    const Received off = run(*device, second / 2);
    EXPECT_TRUE(off.frames.empty());
    EXPECT_EQ(rowValue(*off.reports.back(), "State"), "Bus off");
    EXPECT_EQ(rowValue(*off.reports.back(), "Bus-off count"), "1");
    EXPECT_EQ(rowValue(*off.reports.back(), "TX queue"), "1 / 2048");
    const Received meanwhile = drain(*listener);
    EXPECT_FALSE(meanwhile.frames.empty());
    EXPECT_EQ(errorFrames(meanwhile), 0U);

    run(*device, 2 * second); // second 11.5
    EXPECT_EQ(device->status(), DeviceStatus::Open);
    const Received recovered = drain(*listener);
    EXPECT_TRUE(std::any_of(recovered.frames.begin(), recovered.frames.end(),
                            [](const auto& frame) { return frame->id() == 0x7FF; }));
    run(*device, 12 * second); // second 23.5: passive again in the second cycle
    EXPECT_EQ(device->status(), DeviceStatus::BusPassive);
}

TEST_F(ScenarioTest, FullQueueWhileBusOffIsKept)
{
    auto device = openDevice({{"Scenario", "6"}});
    auto listener = openDevice();
    run(*device, 9 * second);
    drain(*listener);
    ASSERT_EQ(device->status(), DeviceStatus::BusOff);
    std::size_t queued = 0;
    while (send(*device, 0x7FE) && queued < 10'000) {
        ++queued;
    }
    EXPECT_EQ(queued, BusPort::transmitCapacity);
    run(*device, 4 * second);
    const Received received = drain(*listener);
    const auto arrived = std::count_if(received.frames.begin(), received.frames.end(),
                                       [](const auto& frame) { return frame->id() == 0x7FE; });
    EXPECT_EQ(arrived, static_cast<std::ptrdiff_t>(queued));
}

TEST_F(ScenarioTest, BurstComesAfterSilence)
{
    auto device = openDevice({{"Scenario", "7"}});
    EXPECT_TRUE(run(*device, 3 * second).frames.empty());
    const Received burst = run(*device, second);
    ASSERT_EQ(burst.frames.size(), static_cast<std::size_t>(BurstScenario::burstLength));
    const BusTime span = timeOf(*burst.frames.back()) - timeOf(*burst.frames.front());
    EXPECT_LT(span, 130 * millisecond);
    EXPECT_TRUE(run(*device, 2 * second).frames.empty());
    const Received next = run(*device, second);
    ASSERT_FALSE(next.frames.empty());
    EXPECT_EQ(bigEndian32(frameFromMessage(*next.frames[0]), 0), 1'000U);
}

TEST_F(ScenarioTest, LostDeviceReadsAsClosedUntilOpenedAgain)
{
    auto device = openDevice({{"Scenario", "8"}});
    auto listener = openDevice();
    EXPECT_FALSE(run(*device, 4 * second).frames.empty());
    EXPECT_EQ(device->status(), DeviceStatus::Open);
    m_clock->advance(2 * second);
    EXPECT_EQ(device->status(), DeviceStatus::Closed);
    EXPECT_EQ(device->recvMessage(), nullptr);
    EXPECT_FALSE(send(*device, 1));
    EXPECT_NE(device->errorMsg(), "");
    run(*listener, 100 * millisecond);
    EXPECT_TRUE(run(*listener, 100 * millisecond).frames.empty());
    EXPECT_EQ(listener->status(), DeviceStatus::Open);
    EXPECT_FALSE(device->open()) << "it has to be closed first";
    EXPECT_TRUE(device->close());
    EXPECT_EQ(device->recvMessage(), nullptr);
    EXPECT_TRUE(device->open());
    EXPECT_EQ(device->status(), DeviceStatus::Open);
    EXPECT_FALSE(run(*device, second).frames.empty());
}

TEST_F(ScenarioTest, EveryScenarioComesThroughALongPause)
{
    for (int scenario = 1; scenario < scenarioCount; ++scenario) {
        SCOPED_TRACE(scenarioNames.at(static_cast<std::size_t>(scenario)));
        auto device = openDevice({{"Scenario", std::to_string(scenario)}});
        run(*device, second);
        m_clock->advance(12 * 3600 * second);
        const Received received = drain(*device);
        EXPECT_LT(received.frames.size(), 25'000U);
        const bool lost = scenario == static_cast<int>(ScenarioId::LostDevice);
        EXPECT_EQ(run(*device, 20 * second).frames.empty(), lost);
    }
}

} // namespace

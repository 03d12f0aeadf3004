#include "measure/GraphFeed.h"
#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "project/ObjectGraph.h"
#include "project/Project.h"
#include "tests/support/ConsoleCapture.h"
#include "tests/support/TestHome.h"
#include "tests/unit/measure/GraphFixture.h"

#include <chrono>
#include <functional>
#include <gmock/gmock.h>

// What a recording belongs to, and the bounds of what is fed.

namespace zul::test {

namespace {

class GraphRecording : public GraphTest
{
protected:
    static constexpr std::uint32_t channelCount = 4;

    /// Channel i has the value 10 * i at 1 s and 10 * i + 1 at 2 s, and a name of its own.
    void record()
    {
        m_engine.setParameterCount(channelCount);
        show(channelCount);
        m_engine.setAutoMode(0);
        paint();
        for (int time = 1; time <= 2; ++time) {
            m_engine.setCurrentTime(time);
            for (std::uint32_t i = 0; i < channelCount; ++i) {
                m_engine.addValue(i, 10.0 * i + time - 1);
            }
        }
        for (std::uint32_t i = 0; i < channelCount; ++i) {
            m_engine.setParameterLabels(i, std::string(1, static_cast<char>('A' + i)), "");
            m_engine.setParameterYMin(i, static_cast<float>(i));
        }
        paint();
    }
};

TEST_F(GraphRecording, OfARemovedChannelGoesAndThoseBehindItMoveUp)
{
    record();
    m_engine.removeChannel(1);
    ASSERT_EQ(state().channels.size(), 4U);
    EXPECT_EQ(channel(0).name, "A");
    EXPECT_EQ(channel(0).samples.back().value, 1.0);
    EXPECT_EQ(channel(1).name, "C");
    EXPECT_EQ(channel(1).samples.back().value, 21.0);
    EXPECT_EQ(channel(1).columns.back().values[0], 21.0);
    EXPECT_EQ(channel(1).current, 21.0);
    EXPECT_EQ(channel(1).seenMin, 20.0);
    EXPECT_EQ(channel(1).userYMin, 2.0);
    EXPECT_TRUE(channel(1).visible);
    EXPECT_EQ(channel(2).name, "D");
    EXPECT_TRUE(channel(3).samples.empty());
    EXPECT_TRUE(channel(3).columns.empty());
    EXPECT_EQ(channel(3).current, 0.0);
    EXPECT_EQ(channel(3).name, "NoName");
    EXPECT_FALSE(channel(3).visible);
}

TEST_F(GraphRecording, OfAChannelThatDoesNotExistIsNotRemoved)
{
    record();
    m_engine.removeChannel(4);
    m_engine.clearChannel(4);
    EXPECT_EQ(state().channels.size(), 4U);
    EXPECT_EQ(channel(3).name, "D");
}

TEST_F(GraphRecording, CursorGoesAlongWithItsChannel)
{
    record();
    m_engine.setSplitMode(1);
    paint();
    m_engine.holdCursor(300, 200); // the third strip of four of 75 pixels, 10 below the top
    ASSERT_EQ(state().cursorChannel, 2U);
    m_engine.removeChannel(3);
    EXPECT_EQ(state().cursorChannel, 2U);
    m_engine.removeChannel(0);
    EXPECT_EQ(state().cursorChannel, 1U);
}

TEST_F(GraphRecording, ThatIsClearedLeavesTheLookOfItsChannel)
{
    record();
    m_engine.clearChannel(1);
    EXPECT_TRUE(channel(1).samples.empty());
    EXPECT_TRUE(channel(1).columns.empty());
    EXPECT_FALSE(channel(1).fresh);
    for (const double number : {channel(1).current, channel(1).seenMin, channel(1).seenMax,
                                channel(1).dataMin, channel(1).dataMax}) {
        EXPECT_EQ(number, 0.0);
    }
    EXPECT_EQ(channel(1).name, "B");
    EXPECT_EQ(channel(1).userYMin, 1.0);
    EXPECT_TRUE(channel(1).visible);
    EXPECT_EQ(channel(2).samples.size(), 2U);
    addAt(3.0, 7.0, 1);
    EXPECT_EQ(channel(1).columns.back().values[0], 7.0);
}

TEST(FedAlike, IsWhatHasIdentifierAndDecodingInCommon)
{
    const ProfileParameter one;
    ProfileParameter other = one;
    other.nme = QStringLiteral("Other");
    other.pun = QStringLiteral("kt");
    other.color = QStringLiteral("#123456");
    other.showSamples = true;
    other.autoScale = true;
    other.yMin = -1.0;
    other.yMax = 7.0;
    EXPECT_TRUE(isFedAlike(one, other));
    const std::vector<std::function<void(ProfileParameter&)>> edits{
        [](ProfileParameter& parameter) { parameter.id = 77; },
        [](ProfileParameter& parameter) { parameter.parameterKind = ParameterKind::Arinc825; },
        [](ProfileParameter& parameter) { parameter.dtc = 9; },
        [](ProfileParameter& parameter) { parameter.sppByte = 3; },
        [](ProfileParameter& parameter) { parameter.sppBit = 3; },
        [](ProfileParameter& parameter) { parameter.eppByte = 3; },
        [](ProfileParameter& parameter) { parameter.eppBit = 3; },
        [](ProfileParameter& parameter) { parameter.min = -5.0; },
        [](ProfileParameter& parameter) { parameter.max = 5.0; },
        [](ProfileParameter& parameter) { parameter.endian = 0; },
        [](ProfileParameter& parameter) { parameter.scaleOffset = 1.0; },
        [](ProfileParameter& parameter) { parameter.scaleFactor = 2.0; }};
    for (std::size_t i = 0; i < edits.size(); ++i) {
        ProfileParameter edited = one;
        edits[i](edited);
        EXPECT_FALSE(isFedAlike(one, edited)) << i;
    }
}

TEST(GraphFeedBounds, AFrameLooksAtNoMoreParametersThanThereAreChannels)
{
    constexpr std::size_t many = 200'000;
    ObjectGraph object;
    object.parameters().assign(many, GraphParameter());
    GraphEngine engine;
    engine.setParameterCount(16);
    MessageContainer batch;
    batch.setSrcDest("Nose");
    constexpr int frames = 20'000;
    for (int i = 0; i < frames; ++i) {
        auto* frame = new MessageCan;
        frame->setByteCount(8);
        batch.addMessage(SmartPtr<Message>(frame));
    }
    // With all of them walked, these are billions of steps.
    constexpr std::chrono::seconds most(8);
    GraphFeed feed(0.0);
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_TRUE(feed.receive(batch, 1.0, &object, engine));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, most);
    EXPECT_EQ(engine.state().channels[15].samples.size(), static_cast<std::size_t>(frames));
}

TEST(GraphFeedBounds, AFileBringsABoundedNumberOfParameters)
{
    const TestHome home;
    const QString file = home.file(QStringLiteral("many.zul"));
    {
        Project project({ObjectGraph::typeInfo()}, file);
        project.load(home.file(QStringLiteral("none.zul")));
        auto* object = dynamic_cast<ObjectGraph*>(project.createObject(ObjectType::Graph));
        ASSERT_NE(object, nullptr);
        object->parameters().assign(ObjectGraph::maxParameters + 5, GraphParameter());
        object->parameters()[999].parameter.id = 42;
        project.save(file);
    }
    Project project({ObjectGraph::typeInfo()}, file);
    ConsoleCapture console;
    project.load(file);
    const std::string& printed = console.out();
    const auto& object = dynamic_cast<ObjectGraph&>(*project.objects().begin()->second);
    ASSERT_EQ(object.parameters().size(), 1000U);
    EXPECT_EQ(object.parameters()[999].parameter.id, 42U);
    EXPECT_THAT(printed, testing::HasSubstr(
                             "Oscilloscope: parameters beyond the first 1000 are left out\n"));
}

} // namespace

} // namespace zul::test

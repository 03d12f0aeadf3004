#include "modules/virtual/GeneratorNode.h"

#include "modules/virtual/Payload.h"
#include "tests/unit/virtual/NodeFixture.h"

#include <cmath>
#include <cstring>
#include <limits>

using namespace canvirtual;

namespace {

constexpr std::uint32_t requestId = 128;

class GeneratorNodeTest : public NodeFixture
{
protected:
    void open(NodeFault fault = NodeFault::None)
    {
        openNode({{"Node", "2"},
                  {"NodeId", "9"},
                  {"NodeFault", std::to_string(static_cast<int>(fault))}});
        configure(0, 10, 2, 0, false); // quiet
        answers();
    }
    void configure(std::uint8_t channel, std::uint8_t separation, std::uint8_t dataType,
                   std::uint8_t waveform, bool isActive, std::uint32_t base = 1000)
    {
        const std::uint8_t flags = isActive ? 0x11 : 0x10;
        sendBytes(base + 4, {9, 15, channel, 0, separation, dataType, waveform, flags});
    }
    void setFloat(std::uint32_t kind, std::uint8_t channel, float number)
    {
        std::uint32_t bits = 0;
        std::memcpy(&bits, &number, sizeof bits);
        sendBytes(1000 + kind,
                  {9, 2, channel, 0, static_cast<std::uint8_t>(bits >> 24),
                   static_cast<std::uint8_t>(bits >> 16), static_cast<std::uint8_t>(bits >> 8),
                   static_cast<std::uint8_t>(bits)});
    }
    void switchOffAndOn()
    {
        m_node->close();
        ASSERT_TRUE(m_node->open());
    }
    /// What it answers, without what its channels send.
    Texts replies()
    {
        Texts texts = answers();
        texts.erase(
            std::remove_if(texts.begin(), texts.end(),
                           [](const std::string& text) { return text.rfind("81:", 0) != 0; }),
            texts.end());
        return texts;
    }
    static double floatOf(const zul::MessageCan& frame)
    {
        std::uint32_t bits = 0;
        for (int i = 4; i < 8; ++i) {
            bits = bits << 8 | frame.msg()[i];
        }
        float number = 0.0F;
        std::memcpy(&number, &bits, sizeof number);
        return static_cast<double>(number);
    }
};

TEST_F(GeneratorNodeTest, FirstChannelRunsFromTheStart)
{
    openNode({{"Node", "2"}});
    const Received received = listen(second);
    ASSERT_NEAR(static_cast<double>(received.frames.size()), 99.0, 1.0);
    for (std::size_t i = 0; i < received.frames.size(); ++i) {
        const zul::MessageCan& frame = *received.frames[i];
        EXPECT_EQ(frame.id(), 1230U);
        EXPECT_EQ(frame.byteCount(), 8U);
        EXPECT_EQ(frame.mode(), FrameMode::Standard);
        EXPECT_EQ(frame.msg()[0], 1);
        EXPECT_EQ(frame.msg()[1], 2);
        EXPECT_EQ(frame.msg()[2], 0);
        EXPECT_EQ(frame.msg()[3], i);
        const double seconds = toSeconds(timeOf(frame) - SettableClock::start);
        EXPECT_NEAR(floatOf(frame), std::sin(2 * 3.14159265 * seconds), 0.01) << i;
        EXPECT_NEAR(seconds, 0.01 * static_cast<double>(i + 1), 0.0005) << i;
    }
}

TEST_F(GeneratorNodeTest, AnswersTheSearchForItsNumberAlone)
{
    open();
    for (const std::uint8_t node : Bytes{0, 8, 9, 10, 255}) {
        sendBytes(requestId, {node, 0, 111, 0});
    }
    EXPECT_EQ(answers(), (Texts{"81: 09 04 6F 00 00 00 03 E8"}));
}

TEST_F(GeneratorNodeTest, RequestsAreCarriedOut)
{
    open();
    sendBytes(requestId, {9, 4, 110, 0, 0, 0, 0x07, 0xD0}); // base 2000
    EXPECT_EQ(answers(), (Texts{"81: 09 00 6E 00"}));
    sendBytes(requestId, {9, 10, 10, 0, 3});
    EXPECT_EQ(answers(), (Texts{"81: 09 00 0A 00"}));
    sendBytes(requestId, {9, 10, 11, 33});
    EXPECT_EQ(answers(), (Texts{"81: 09 00 0B 00"}));
    sendBytes(requestId, {33, 0, 111, 0});
    EXPECT_EQ(answers(), (Texts{"81: 21 04 6F 00 00 00 07 D0"}));
    sendBytes(requestId, {9, 0, 111, 0});
    EXPECT_EQ(answers(), Texts());
}

TEST_F(GeneratorNodeTest, WhatItCannotDoIsAnError)
{
    open();
    sendBytes(requestId, {9, 4, 110, 0, 0, 0, 0x07, 0xFC}); // five identifiers up to 2048
    sendBytes(requestId, {9, 4, 110, 0});
    sendBytes(requestId, {9, 10, 10, 0, 4});
    sendBytes(requestId, {9, 10, 10, 0});
    sendBytes(requestId, {9, 10, 11, 0});
    sendBytes(requestId, {9, 0, 6, 122});
    EXPECT_EQ(answers(), (Texts{"81: 09 00 6E 01", "81: 09 00 6E 01", "81: 09 00 0A 01",
                                "81: 09 00 0A 01", "81: 09 00 0B 01", "81: 09 00 06 01"}));
    sendBytes(requestId, {9, 0, 99, 0});
    EXPECT_EQ(answers(), Texts()) << "an unknown service";
}

TEST_F(GeneratorNodeTest, HighestBaseIdentifierIsTaken)
{
    open();
    sendBytes(requestId, {9, 4, 110, 0, 0, 0, 0x07, 0xFB});
    EXPECT_EQ(answers(), (Texts{"81: 09 00 6E 00"}));
}

TEST_F(GeneratorNodeTest, IdentifiersOfRequestsAndRepliesStayFree)
{
    open();
    for (const std::uint8_t base : Bytes{124, 126, 128, 129}) {
        sendBytes(requestId, {9, 4, 110, 0, 0, 0, 0, base});
        EXPECT_EQ(answers(), (Texts{"81: 09 00 6E 01"})) << int{base};
    }
    sendBytes(requestId, {9, 4, 110, 0, 0, 0, 0, 123});
    EXPECT_EQ(answers(), (Texts{"81: 09 00 6E 00"}));
    sendBytes(requestId, {9, 4, 110, 0, 0, 0, 0, 130});
    EXPECT_EQ(answers(), (Texts{"81: 09 00 6E 00"}));
}

TEST_F(GeneratorNodeTest, OnlyWhatIsStoredOutlivesThePower)
{
    open();
    sendBytes(requestId, {9, 4, 110, 0, 0, 0, 0x07, 0xD0});
    EXPECT_EQ(replies(), (Texts{"81: 09 00 6E 00"}));
    switchOffAndOn();
    sendBytes(requestId, {9, 0, 111, 0});
    EXPECT_EQ(replies(), (Texts{"81: 09 04 6F 00 00 00 03 E8"}));
    sendBytes(requestId, {9, 4, 110, 0, 0, 0, 0x07, 0xD0});
    sendBytes(requestId, {9, 0, 6, 123});
    EXPECT_EQ(replies(), (Texts{"81: 09 00 6E 00", "81: 09 00 06 00"}));
    switchOffAndOn();
    sendBytes(requestId, {9, 0, 111, 0});
    EXPECT_EQ(replies(), (Texts{"81: 09 04 6F 00 00 00 07 D0"}));
}

TEST_F(GeneratorNodeTest, NodeIdAndChannelsAreStoredToo)
{
    open();
    sendBytes(requestId, {9, 10, 11, 33});
    sendBytes(1003, {33, 4, 1, 0, 0, 0, 0x05, 0xDC}); // identifier 1500
    sendBytes(1004, {33, 15, 1, 0, 20, 7, 1, 0x11});
    sendBytes(requestId, {33, 0, 6, 123});
    answers();
    switchOffAndOn();
    sendBytes(requestId, {33, 0, 111, 0});
    EXPECT_EQ(replies(), (Texts{"81: 21 04 6F 00 00 00 03 E8"}));
    EXPECT_EQ(answers(), (Texts{"5dc: 21 07 00 00 00 01"})); // square of AS_USHORT, every 20 ms
}

TEST_F(GeneratorNodeTest, SilentOneObeysAndAnswersNothing)
{
    open(NodeFault::Silent);
    sendBytes(requestId, {9, 0, 111, 0});
    sendBytes(requestId, {9, 10, 11, 33});
    EXPECT_EQ(answers(), Texts());
    sendBytes(1004, {33, 15, 1, 0, 20, 7, 1, 0x11});
    EXPECT_EQ(answers(30 * millisecond), (Texts{"4cf: 21 07 00 00 00 01"}));
}

TEST_F(GeneratorNodeTest, LateOneAnswersAfterASecondAndAHalf)
{
    open(NodeFault::Late);
    sendBytes(requestId, {9, 0, 6, 123});
    EXPECT_EQ(answers(1'490 * millisecond), Texts());
    EXPECT_EQ(answers(), (Texts{"81: 09 00 06 00"}));
}

TEST_F(GeneratorNodeTest, AnotherNumberMakesItAnotherGenerator)
{
    open();
    sendBytes(requestId, {9, 4, 110, 0, 0, 0, 0x07, 0xD0});
    sendBytes(requestId, {9, 0, 6, 123});
    answers();
    m_node->close();
    m_node->setProperty("NodeId", "10");
    ASSERT_TRUE(m_node->open());
    sendBytes(requestId, {10, 0, 111, 0});
    const Texts texts = answers();
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "81: 0A 04 6F 00 00 00 03 E8"), 1);
}

TEST_F(GeneratorNodeTest, RefusingOneTellsErrorsAndObeysNothing)
{
    openNode({{"Node", "2"}, {"NodeId", "9"}, {"NodeFault", "4"}});
    configure(0, 10, 2, 0, false);
    sendBytes(requestId, {9, 10, 11, 33});
    sendBytes(requestId, {9, 0, 6, 123});
    std::size_t waves = 0;
    Texts replies;
    for (const std::string& text : answers(100 * millisecond)) {
        if (text.substr(0, 3) == "81:") {
            replies.push_back(text);
        } else {
            ++waves;
        }
    }
    EXPECT_EQ(replies, (Texts{"81: 09 00 0B 01", "81: 09 00 06 01"}));
    EXPECT_GT(waves, 5U) << "the first channel still runs";
}

TEST_F(GeneratorNodeTest, WrongIdentifierIsTheNextOne)
{
    open(NodeFault::WrongIdentifier);
    sendBytes(requestId, {9, 0, 6, 123});
    EXPECT_EQ(answers(), (Texts{"82: 09 00 06 00"}));
}

TEST_F(GeneratorNodeTest, ChannelTakesItsSettings)
{
    open();
    sendBytes(1003, {9, 4, 2, 0, 0x01, 0x23, 0x45, 0x67});
    setFloat(0, 2, 0.0F); // phase 0 for ever
    setFloat(1, 2, 100.0F);
    setFloat(2, 2, 7.0F);
    configure(2, 50, 6, 1, true); // square of AS_SHORT
    EXPECT_EQ(answers(60 * millisecond), (Texts{"1234567: 09 06 00 00 00 6B"}));
    configure(2, 50, 6, 3, true); // sawtooth, from its bottom
    EXPECT_EQ(answers(50 * millisecond), (Texts{"1234567: 09 06 00 01 FF A3"}));
    configure(2, 50, 6, 3, false);
    EXPECT_EQ(answers(200 * millisecond), Texts());
}

TEST_F(GeneratorNodeTest, FramesForOthersAndForNoChannelAreIgnored)
{
    open();
    sendBytes(1004, {8, 15, 1, 0, 10, 2, 0, 0x11}); // another node
    sendBytes(1004, {9, 15, 4, 0, 10, 2, 0, 0x11}); // no such channel
    sendBytes(1005, {9, 15, 1, 0, 10, 2, 0, 0x11}); // behind the five identifiers
    sendBytes(999, {9, 15, 1, 0, 10, 2, 0, 0x11});
    sendBytes(1004, {9, 15, 1, 0, 10, 2, 0}); // too short
    EXPECT_EQ(answers(200 * millisecond), Texts());
}

TEST_F(GeneratorNodeTest, SeparationZeroCountsAsOne)
{
    open();
    configure(1, 0, 2, 0, true);
    EXPECT_NEAR(static_cast<double>(answers(100 * millisecond).size()), 99.0, 2.0);
}

TEST_F(GeneratorNodeTest, UnknownDataTypeChangesNothing)
{
    open();
    configure(1, 10, 99, 0, true);
    const Received received = listen(20 * millisecond);
    ASSERT_GE(received.frames.size(), 1U);
    EXPECT_EQ(received.frames[0]->msg()[1], 2);
}

TEST_F(GeneratorNodeTest, PauseIsNotCaughtUp)
{
    open();
    configure(1, 10, 2, 0, true);
    answers();
    m_clock->advance(60 * second);
    EXPECT_LT(drain(*m_program).frames.size(), 150U);
}

TEST_F(GeneratorNodeTest, FrequencyChangesWithoutAJump)
{
    open();
    setFloat(0, 1, 1.0F);
    configure(1, 10, 2, 0, true);
    double last = 0.0;
    for (const float frequency : {2.0F, 0.5F, 3.0F}) {
        for (const auto& frame : listen(330 * millisecond).frames) {
            EXPECT_LT(std::abs(floatOf(*frame) - last), 0.25);
            last = floatOf(*frame);
        }
        setFloat(0, 1, frequency);
    }
}

TEST(GeneratorSignal, Waveforms)
{
    constexpr std::uint8_t sine = 0;
    constexpr std::uint8_t square = 1;
    constexpr std::uint8_t triangle = 2;
    constexpr std::uint8_t sawtooth = 3;
    EXPECT_NEAR(waveAt(sine, 0.0), 0.0, 1e-12);
    EXPECT_NEAR(waveAt(sine, 0.25), 1.0, 1e-12);
    EXPECT_NEAR(waveAt(sine, 0.75), -1.0, 1e-12);
    EXPECT_EQ(waveAt(square, 0.0), 1.0);
    EXPECT_EQ(waveAt(square, 0.499), 1.0);
    EXPECT_EQ(waveAt(square, 0.5), -1.0);
    EXPECT_EQ(waveAt(triangle, 0.0), 0.0);
    EXPECT_EQ(waveAt(triangle, 0.25), 1.0);
    EXPECT_EQ(waveAt(triangle, 0.5), 0.0);
    EXPECT_EQ(waveAt(triangle, 0.75), -1.0);
    EXPECT_EQ(waveAt(triangle, 0.875), -0.5);
    EXPECT_EQ(waveAt(sawtooth, 0.0), -1.0);
    EXPECT_EQ(waveAt(sawtooth, 0.5), 0.0);
    EXPECT_EQ(waveAt(99, 0.25), waveAt(sine, 0.25));
}

TEST(GeneratorSignal, ValuesHaveTheirTypesAndAreClamped)
{
    const auto text = [](std::uint8_t dataType, float offset) {
        GeneratorChannel channel;
        channel.canId = 5;
        channel.dataType = dataType;
        channel.amplitude = 0.0F;
        channel.offset = offset;
        const BusFrame frame = generatorFrame(channel, 7, 8, 0.0);
        std::string bytes;
        for (std::uint32_t i = 0; i < frame.byteCount; ++i) {
            std::array<char, 4> digits{};
            std::snprintf(digits.data(), digits.size(), "%02X", frame.data.at(i));
            bytes += digits.data();
        }
        return bytes;
    };
    EXPECT_EQ(text(2, -2.5F), "07020008C0200000");
    EXPECT_EQ(text(2, std::numeric_limits<float>::infinity()), "070200087F800000");
    EXPECT_EQ(text(3, -2.0F), "07030008FFFFFFFE");
    EXPECT_EQ(text(3, 1e30F), "070300087FFFFFFF");
    EXPECT_EQ(text(4, 3e9F), "07040008B2D05E00");
    EXPECT_EQ(text(4, -1.0F), "0704000800000000");
    EXPECT_EQ(text(6, -40000.0F), "070600088000");
    EXPECT_EQ(text(7, 65535.0F), "07070008FFFF");
    EXPECT_EQ(text(9, -1.4F), "07090008FF");
    EXPECT_EQ(text(10, 300.0F), "070A0008FF");
    EXPECT_EQ(text(10, std::numeric_limits<float>::quiet_NaN()), "070A000800");
    EXPECT_EQ(text(3, -std::numeric_limits<float>::infinity()), "0703000880000000");
}

TEST(GeneratorSignal, SumBeyondAFloatIsTheLargestOne)
{
    GeneratorChannel channel;
    channel.amplitude = 3e38F;
    channel.offset = 3e38F;
    const BusFrame frame = generatorFrame(channel, 1, 0, 0.25);
    EXPECT_EQ(bigEndian32(frame, 4), 0x7F7FFFFFU);
}

TEST(GeneratorSignal, IdentifierDecidesTheMode)
{
    GeneratorChannel channel;
    channel.canId = 2047;
    EXPECT_EQ(generatorFrame(channel, 1, 0, 0.0).mode, FrameMode::Standard);
    channel.canId = 2048;
    EXPECT_EQ(generatorFrame(channel, 1, 0, 0.0).mode, FrameMode::Extended);
}

} // namespace

#include "node/GeneratorFrames.h"

#include "tests/unit/node/ServiceTestLink.h"

#include <gtest/gtest.h>

namespace {

using generator::ChannelFrame;
using zul::test::hexOf;

ObjectFunctionGen::GeneratorChannel exampleChannel()
{
    ObjectFunctionGen::GeneratorChannel channel;
    channel.channel = 2;
    channel.waveForm = 3;
    channel.canId = 0x01234567;
    channel.dataType = 7;
    channel.frequency = 1.0F;
    channel.amplitude = -2.5F;
    channel.offset = 100.0F;
    channel.separation = 0x1FE;
    return channel;
}

TEST(GeneratorFrames, RequestsToANode)
{
    const generator::Frame search = generator::searchRequest(255);
    const generator::Frame nodeId = generator::nodeIdRequest(5, 77);
    const generator::Frame baseId = generator::baseIdRequest(5, 0x12345678);
    const generator::Frame baudrate = generator::baudrateRequest(5, 3);
    const generator::Frame store = generator::storeRequest(5);
    EXPECT_EQ(hexOf(*search), "FF 00 6F 00");
    EXPECT_EQ(hexOf(*nodeId), "05 0A 0B 4D");
    EXPECT_EQ(hexOf(*baseId), "05 04 6E 00 12 34 56 78");
    EXPECT_EQ(hexOf(*baudrate), "05 0A 0A 00 03");
    EXPECT_EQ(hexOf(*store), "05 00 06 7B");
    for (const generator::Frame* frame : {&search, &nodeId, &baseId, &baudrate, &store}) {
        EXPECT_EQ((*frame)->id(), 128U);
        EXPECT_EQ((*frame)->mode(), zul::MessageCan::EMsgMode::Standard);
        EXPECT_EQ((*frame)->frameType(), zul::MessageCan::EFrameType::Data);
    }
}

TEST(GeneratorFrames, SettingsOfAChannel)
{
    const ObjectFunctionGen::Generator generator{9, 1000, 0};
    const auto text = [&](ChannelFrame kind) {
        const generator::Frame frame =
            generator::channelFrame(kind, generator, exampleChannel(), 0xA5);
        EXPECT_EQ(frame->mode(), zul::MessageCan::EMsgMode::Standard);
        return std::to_string(frame->id()) + ": " + hexOf(*frame);
    };
    EXPECT_EQ(text(ChannelFrame::Frequency), "1000: 09 02 02 A5 3F 80 00 00");
    EXPECT_EQ(text(ChannelFrame::Amplitude), "1001: 09 02 02 A5 C0 20 00 00");
    EXPECT_EQ(text(ChannelFrame::Offset), "1002: 09 02 02 A5 42 C8 00 00");
    EXPECT_EQ(text(ChannelFrame::CanId), "1003: 09 04 02 A5 01 23 45 67");
    EXPECT_EQ(text(ChannelFrame::Configuration), "1004: 09 0F 02 A5 FE 07 03 11");
}

TEST(GeneratorFrames, InactiveChannelHasOnlyTheConstantBit)
{
    ObjectFunctionGen::GeneratorChannel channel = exampleChannel();
    channel.active = false;
    const generator::Frame frame =
        generator::channelFrame(ChannelFrame::Configuration, {}, channel, 0);
    EXPECT_EQ(frame->msg()[7], 0x10);
}

TEST(GeneratorFrames, BaseIdentifierAbove2047StillGivesStandardFrames)
{
    const generator::Frame frame =
        generator::channelFrame(ChannelFrame::CanId, {1, 0x1FFFFFFF, 0}, exampleChannel(), 0);
    EXPECT_EQ(frame->id(), 0x20000002U);
    EXPECT_EQ(frame->mode(), zul::MessageCan::EMsgMode::Standard);
}

} // namespace

#include "node/GeneratorControl.h"

#include "tests/unit/node/ServiceTestLink.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

using Status = GeneratorControl::FlashStatus;
using Kind = generator::ChannelFrame;
using zul::test::hexOf;

zul::MessageCan& frameOf(MessageContainer& batch)
{
    return *message_cast<zul::MessageCan>(batch.messages().front().get());
}

MessageContainer reply(const std::vector<std::uint8_t>& bytes, std::uint32_t id = 129)
{
    MessageContainer batch = zul::test::batchOf(id, bytes);
    frameOf(batch).setMode(zul::MessageCan::EMsgMode::Standard);
    batch.setSrcDest("CAN 1");
    return batch;
}

class GeneratorControlTest : public testing::Test
{
protected:
    GeneratorControlTest()
    {
        m_object.generator() = {7, 1000, 2};
        m_object.settings().outputInterface = QStringLiteral("CAN 2");
    }
    /// Identifier and payload of each frame of a batch.
    static std::vector<std::string> texts(const MessageContainer& batch)
    {
        std::vector<std::string> all;
        for (const auto& message : batch.messages()) {
            const auto& frame = *message_cast<zul::MessageCan>(message.get());
            all.push_back(std::to_string(frame.id()) + ": " + hexOf(frame));
        }
        return all;
    }
    using Texts = std::vector<std::string>;
    using Codes = std::vector<std::uint8_t>;
    /// Identifiers of the frames as distances from the base, and their message codes.
    static std::string kinds(const MessageContainer& batch)
    {
        std::string all;
        for (const auto& message : batch.messages()) {
            const auto& frame = *message_cast<zul::MessageCan>(message.get());
            all += "+" + std::to_string(frame.id() - 1000) + "/" + std::to_string(frame.msg()[3]) +
                   " ";
        }
        return all;
    }

    ObjectFunctionGen m_object;
    GeneratorControl m_control;
};

TEST_F(GeneratorControlTest, StatesHaveTheirTextsAndColours)
{
    struct Expected
    {
        const char* text;
        int red, green, blue;
    };
    constexpr std::array<Expected, 5> all{{{"---", 180, 180, 180},
                                           {"Waiting...", 255, 150, 80},
                                           {"Timeout Error", 255, 80, 80},
                                           {"Error", 255, 150, 150},
                                           {"OK", 150, 255, 150}}};
    for (std::size_t i = 0; i < all.size(); ++i) {
        const StateLook& look = lookOf(GeneratorControl::looks, static_cast<std::int32_t>(i));
        EXPECT_EQ(look.state, static_cast<std::int32_t>(i));
        EXPECT_STREQ(look.text, all[i].text);
        EXPECT_EQ(look.red, all[i].red);
        EXPECT_EQ(look.green, all[i].green);
        EXPECT_EQ(look.blue, all[i].blue);
    }
}

TEST_F(GeneratorControlTest, SweepAsksEveryNodeOnce)
{
    EXPECT_FALSE(m_control.isSearching());
    EXPECT_EQ(m_control.searchStep(m_object).size(), 0U);
    m_control.startSearch();
    for (int node = 0; node < 256; ++node) {
        ASSERT_TRUE(m_control.isSearching());
        EXPECT_EQ(m_control.searchNode(), static_cast<std::uint32_t>(node));
        const MessageContainer batch = m_control.searchStep(m_object);
        ASSERT_EQ(batch.size(), 1U);
        EXPECT_EQ(batch.srcDest(), "CAN 2");
        EXPECT_EQ(message_cast<zul::MessageCan>(batch.messages()[0].get())->msg()[0], node);
    }
    EXPECT_FALSE(m_control.isSearching());
    EXPECT_EQ(m_control.sentTotal(), 256U);
}

TEST_F(GeneratorControlTest, AnswersToASearchAreListedAndTheFirstOneIsAddressed)
{
    const auto update = m_control.receive(reply({33, 4, 111, 0, 0x12, 0x34, 0x56, 0x78}), m_object);
    EXPECT_TRUE(update.found);
    EXPECT_FALSE(update.flash);
    m_control.receive(reply({44, 4, 111, 0, 0, 0, 0, 9}), m_object);
    m_control.receive(reply({33, 4, 111, 0, 0x12, 0x34, 0x56, 0x78}), m_object); // stands twice
    ASSERT_EQ(m_control.found().size(), 3U);
    EXPECT_EQ(m_control.found()[0].node, 33U);
    EXPECT_EQ(m_control.found()[0].baseId, 0x12345678U);
    EXPECT_EQ(m_control.found()[1].node, 44U);
    EXPECT_EQ(m_object.generator().nodeId, 33);
    EXPECT_EQ(m_object.generator().nodeBaseId, 0x12345678);
    m_control.startSearch();
    EXPECT_TRUE(m_control.found().empty());
}

TEST_F(GeneratorControlTest, ListIsBounded)
{
    for (std::size_t i = 0; i < GeneratorControl::maxFound + 5; ++i) {
        m_control.receive(reply({1, 4, 111, 0, 0, 0, 0, 0}), m_object);
    }
    EXPECT_EQ(m_control.found().size(), GeneratorControl::maxFound);
    EXPECT_FALSE(m_control.receive(reply({1, 4, 111, 0}), m_object).found);
}

TEST_F(GeneratorControlTest, OnlyRepliesOfTheInterfaceWithInputAndFilterCount)
{
    const MessageContainer answer = reply({33, 4, 111, 0, 0, 0, 0, 1});
    m_object.settings().inputInterface = QStringLiteral("CAN 3");
    EXPECT_FALSE(m_control.receive(answer, m_object).isOurs);
    EXPECT_EQ(m_control.receivedTotal(), 0U);
    m_object.settings().inputInterface = QStringLiteral("CAN 1");
    m_object.settings().inputOn = false;
    EXPECT_TRUE(m_control.receive(answer, m_object).isOurs);
    EXPECT_EQ(m_control.receivedTotal(), 1U);
    m_object.settings().inputOn = true;
    m_object.filter().setOn(true);
    m_object.filter().setMin(130);
    m_object.filter().setMax(200);
    m_control.receive(answer, m_object);
    EXPECT_TRUE(m_control.found().empty());
    m_object.filter().setMin(129);
    m_control.receive(answer, m_object);
    EXPECT_EQ(m_control.found().size(), 1U);
    m_control.receive(reply({33, 4, 111, 0}, 128), m_object);
    EXPECT_EQ(m_control.found().size(), 1U);
    EXPECT_EQ(m_control.receivedTotal(), 4U);
}

TEST_F(GeneratorControlTest, OnlyStandardDataFramesAreReplies)
{
    using Type = zul::MessageCan::EFrameType;
    using Mode = zul::MessageCan::EMsgMode;
    for (const Type type : {Type::Error, Type::Remote}) {
        MessageContainer batch = reply({33, 4, 111, 0});
        frameOf(batch).setFrameType(type);
        m_control.receive(batch, m_object);
    }
    for (const Mode mode : {Mode::Extended, Mode::StandardFd}) {
        MessageContainer batch = reply({33, 4, 111, 0});
        frameOf(batch).setMode(mode);
        m_control.receive(batch, m_object);
    }
    EXPECT_TRUE(m_control.found().empty());
    m_control.receive(reply({33, 4, 111, 0}), m_object);
    EXPECT_EQ(m_control.found().size(), 1U);
}

TEST_F(GeneratorControlTest, NodeIdRequestNamesBothAndTheNewOneIsAddressedAtOnce)
{
    const MessageContainer batch = m_control.setNodeId(m_object, m_object.generator(), 55);
    EXPECT_EQ(texts(batch), (Texts{"128: 07 0A 0B 37"}));
    EXPECT_EQ(batch.srcDest(), "CAN 2");
    EXPECT_EQ(m_object.generator().nodeId, 55);
    EXPECT_EQ(m_control.flashStatus(), Status::Waiting);
}

TEST_F(GeneratorControlTest, OtherRequestsCarryTheObjectsSettings)
{
    EXPECT_EQ(texts(m_control.setBaseId(m_object, m_object.generator())),
              (Texts{"128: 07 04 6E 00 00 00 03 E8"}));
    EXPECT_EQ(texts(m_control.setBaudrate(m_object, m_object.generator())),
              (Texts{"128: 07 0A 0A 00 02"}));
    EXPECT_EQ(texts(m_control.storeData(m_object, m_object.generator())),
              (Texts{"128: 07 00 06 7B"}));
}

TEST_F(GeneratorControlTest, EveryRequestWaitsForItsOwnReply)
{
    struct Operation
    {
        std::uint8_t serviceCode;
        std::function<void()> request;
    };
    const std::array<Operation, 4> operations{
        {{11, [this] { m_control.setNodeId(m_object, m_object.generator(), 1); }},
         {110, [this] { m_control.setBaseId(m_object, m_object.generator()); }},
         {10, [this] { m_control.setBaudrate(m_object, m_object.generator()); }},
         {6, [this] { m_control.storeData(m_object, m_object.generator()); }}}};
    for (const Operation& operation : operations) {
        for (const std::uint8_t serviceCode : Codes{11, 110, 10, 6, 111, 0, 7}) {
            operation.request();
            const bool isItsOwn = serviceCode == operation.serviceCode;
            EXPECT_EQ(m_control.receive(reply({99, 0, serviceCode, 0}), m_object).flash, isItsOwn);
            EXPECT_EQ(m_control.flashStatus(), isItsOwn ? Status::Ok : Status::Waiting);
            operation.request();
            m_control.receive(reply({99, 0, serviceCode, 200}), m_object);
            EXPECT_EQ(m_control.flashStatus(), isItsOwn ? Status::Error : Status::Waiting);
        }
    }
}

TEST_F(GeneratorControlTest, RepliesBeforeAnyRequestMeanNothing)
{
    for (const std::uint8_t serviceCode : Codes{11, 110, 10, 6, 0}) {
        EXPECT_FALSE(m_control.receive(reply({7, 0, serviceCode, 0}), m_object).flash);
    }
    EXPECT_EQ(m_control.flashStatus(), Status::None);
    EXPECT_STREQ(m_control.flashLook().text, "---");
}

TEST_F(GeneratorControlTest, TimeoutShowsOnlyWhileWaitingAndALateReplyStillCounts)
{
    m_control.flashTimeOut();
    EXPECT_EQ(m_control.flashStatus(), Status::None);
    m_control.storeData(m_object, m_object.generator());
    m_control.flashTimeOut();
    EXPECT_EQ(m_control.flashStatus(), Status::Timeout);
    m_control.receive(reply({7, 0, 6, 0}), m_object);
    EXPECT_EQ(m_control.flashStatus(), Status::Ok);
    m_control.flashTimeOut();
    EXPECT_EQ(m_control.flashStatus(), Status::Ok);
}

TEST_F(GeneratorControlTest, TurningAChannelOnSendsAllOfIt)
{
    EXPECT_EQ(kinds(m_control.writeActivation(m_object, 1)), "+3/0 +0/1 +1/2 +2/3 +4/4 ");
    m_object.channels()[1].active = false;
    EXPECT_EQ(kinds(m_control.writeActivation(m_object, 1)), "+4/5 ");
    EXPECT_EQ(m_control.sentTotal(), 6U);
}

TEST_F(GeneratorControlTest, ConfigurationGoesOnlyToAnActiveChannel)
{
    EXPECT_EQ(kinds(m_control.writeConfiguration(m_object, 0)), "+4/0 ");
    m_object.channels()[0].active = false;
    EXPECT_EQ(kinds(m_control.writeConfiguration(m_object, 0)), "");
}

TEST_F(GeneratorControlTest, SettingGoesAlwaysAndItsConfigurationToAnActiveChannel)
{
    EXPECT_EQ(kinds(m_control.writeSetting(m_object, 3, Kind::Frequency)), "+0/0 +4/1 ");
    EXPECT_EQ(kinds(m_control.writeSetting(m_object, 3, Kind::CanId)), "+3/2 +4/3 ");
    m_object.channels()[3].active = false;
    EXPECT_EQ(kinds(m_control.writeSetting(m_object, 3, Kind::Offset)), "+2/4 ");
    EXPECT_EQ(kinds(m_control.writeSetting(m_object, 3, Kind::Amplitude)), "+1/5 ");
}

TEST_F(GeneratorControlTest, FramesNameTheirChannel)
{
    for (std::size_t channel = 0; channel < ObjectFunctionGen::signalCount; ++channel) {
        const MessageContainer batch = m_control.write(m_object, channel, {Kind::CanId});
        EXPECT_EQ(message_cast<zul::MessageCan>(batch.messages()[0].get())->msg()[2], channel);
    }
    EXPECT_EQ(m_control.write(m_object, ObjectFunctionGen::signalCount, {Kind::CanId}).size(), 0U);
    EXPECT_EQ(m_control.writeActivation(m_object, 4).size(), 0U);
    EXPECT_EQ(m_control.writeConfiguration(m_object, 4).size(), 0U);
    EXPECT_EQ(m_control.writeSetting(m_object, 4, Kind::CanId).size(), 0U);
}

TEST_F(GeneratorControlTest, BaseIdentifierBeyond29BitsReachesNoChannel)
{
    m_control.receive(reply({33, 4, 111, 0, 0xFF, 0xFF, 0xFF, 0xFF}), m_object);
    EXPECT_EQ(m_control.writeActivation(m_object, 0).size(), 0U);
    m_object.generator().nodeBaseId = 0x1FFFFFFF;
    EXPECT_EQ(m_control.writeActivation(m_object, 0).size(), 5U);
}

TEST_F(GeneratorControlTest, RequestGoesToTheNodeThatTheUserMeant)
{
    const ObjectFunctionGen::Generator meant = m_object.generator();
    m_control.receive(reply({33, 4, 111, 0, 0, 0, 0, 1}), m_object);
    EXPECT_EQ(texts(m_control.setBaseId(m_object, meant)), (Texts{"128: 07 04 6E 00 00 00 03 E8"}));
    EXPECT_EQ(texts(m_control.storeData(m_object, meant)), (Texts{"128: 07 00 06 7B"}));
}

TEST_F(GeneratorControlTest, MessageCodeWrapsAfter255)
{
    for (int i = 0; i < 255; ++i) {
        m_control.write(m_object, 0, {Kind::Offset});
    }
    EXPECT_EQ(kinds(m_control.write(m_object, 0, {Kind::Offset, Kind::Offset})), "+2/255 +2/0 ");
}

TEST_F(GeneratorControlTest, NothingIsSentWhileTheOutputIsOff)
{
    m_object.settings().outputOn = false;
    m_control.startSearch();
    EXPECT_EQ(m_control.searchStep(m_object).size(), 0U);
    EXPECT_EQ(m_control.searchNode(), 1U);
    EXPECT_EQ(m_control.storeData(m_object, m_object.generator()).size(), 0U);
    EXPECT_EQ(m_control.writeActivation(m_object, 0).size(), 0U);
    EXPECT_EQ(m_control.writeSetting(m_object, 0, Kind::CanId).size(), 0U);
    EXPECT_EQ(m_control.sentTotal(), 0U);
}

} // namespace

#include "node/IdentificationClient.h"

#include "tests/unit/node/ServiceTestLink.h"

#include <gtest/gtest.h>

namespace {

using State = IdentificationClient::State;
using zul::test::batchOf;

constexpr std::uint32_t defaultRequest = 4U << 26 | 1U << 18;
constexpr std::uint32_t defaultAnswer = 4U << 26;

class IdentificationClientTest : public testing::Test
{
protected:
    zul::test::ServiceTestLink m_link;
    IdentificationClient m_client{m_link};
};

TEST_F(IdentificationClientTest, StatesHaveTheirTextsAndColours)
{
    struct Expected
    {
        State state;
        const char* text;
        int red, green, blue;
    };
    constexpr std::array<Expected, 4> all{
        {{State::Idle, "Idle", 150, 150, 150},
         {State::Waiting, "Waiting on response ...", 255, 255, 100},
         {State::Timeout, "Timeout", 255, 100, 100},
         {State::Received, "Response received", 100, 255, 100}}};
    for (const Expected& expected : all) {
        const StateLook& look =
            lookOf(IdentificationClient::looks, static_cast<std::int32_t>(expected.state));
        EXPECT_STREQ(look.text, expected.text);
        EXPECT_EQ(look.red, expected.red);
        EXPECT_EQ(look.green, expected.green);
        EXPECT_EQ(look.blue, expected.blue);
    }
    EXPECT_STREQ(lookOf(IdentificationClient::looks, 99).text, "Idle");
    EXPECT_EQ(static_cast<int>(State::Idle), 0);
    EXPECT_EQ(static_cast<int>(State::Waiting), 1);
    EXPECT_EQ(static_cast<int>(State::Timeout), 2);
    EXPECT_EQ(static_cast<int>(State::Received), 3);
}

TEST_F(IdentificationClientTest, RequestHasTheServiceCodeAndStartsTheClock)
{
    m_client.send();
    ASSERT_EQ(m_link.sent.size(), 1U);
    EXPECT_EQ(m_link.sent[0].size(), 1U);
    EXPECT_EQ(m_link.frame(0).id(), defaultRequest);
    EXPECT_EQ(zul::test::hexOf(m_link.frame(0)), "00 00");
    EXPECT_EQ(m_link.frame(0).mode(), zul::MessageCan::EMsgMode::Extended);
    EXPECT_EQ(m_link.log, "send start ");
    EXPECT_EQ(m_client.state(), State::Waiting);
    EXPECT_EQ(ServiceLink::timeoutMs, 1000);
}

TEST_F(IdentificationClientTest, AnswerIsTheRequestsIdentifierWithoutTheRequestBit)
{
    m_client.address() = {5, 20, 1, 30, 40, 2};
    m_client.send();
    const std::uint32_t request = m_link.frame(0).id();
    EXPECT_FALSE(m_client.receive(batchOf(request, {0, 0, 1, 2, 3, 4, 5, 6})));
    EXPECT_FALSE(m_client.receive(batchOf((request & ~requestBit) ^ 1U, {0, 0, 1, 2, 3, 4, 5, 6})));
    EXPECT_EQ(m_client.state(), State::Waiting);
    EXPECT_TRUE(
        m_client.receive(batchOf(request & ~requestBit, {9, 9, 0x12, 0x34, 0xFE, 0xDC, 0, 7})));
    EXPECT_EQ(m_client.state(), State::Received);
    EXPECT_EQ(m_client.identification().profileId, 0x1234U);
    EXPECT_EQ(m_client.identification().profileSubId, 0xFEDCU);
    EXPECT_EQ(m_client.identification().lruCode, 7U);
    EXPECT_EQ(m_link.log, "send start stop ");
}

TEST_F(IdentificationClientTest, LengthOfTheAnswerIsNotAsked)
{
    m_client.send();
    EXPECT_TRUE(m_client.receive(batchOf(defaultAnswer, {})));
    EXPECT_EQ(m_client.state(), State::Received);
    EXPECT_EQ(m_client.identification().profileId, 0U);
}

TEST_F(IdentificationClientTest, BeforeAnyRequestTheIdentifierZeroAnswers)
{
    EXPECT_FALSE(m_client.receive(batchOf(defaultAnswer, {0, 0, 0, 1, 0, 2, 0, 3})));
    EXPECT_EQ(m_client.state(), State::Idle);
    EXPECT_TRUE(m_client.receive(batchOf(0, {0, 0, 0, 1, 0, 2, 0, 3})));
    EXPECT_EQ(m_client.state(), State::Received);
    EXPECT_EQ(m_client.identification().lruCode, 3U);
}

TEST_F(IdentificationClientTest, ErrorFramesHaveNoIdentifierToAnswerWith)
{
    MessageContainer batch = batchOf(0, {});
    message_cast<zul::MessageCan>(batch.messages()[0].get())
        ->setFrameType(zul::MessageCan::EFrameType::Error);
    EXPECT_FALSE(m_client.receive(batch));
    EXPECT_EQ(m_client.state(), State::Idle);
}

TEST_F(IdentificationClientTest, AnswerAfterTheTimeoutStillCounts)
{
    m_client.send();
    m_client.timeOut();
    EXPECT_EQ(m_client.state(), State::Timeout);
    EXPECT_TRUE(m_client.receive(batchOf(defaultAnswer, {0, 0, 0, 1})));
    EXPECT_EQ(m_client.state(), State::Received);
}

TEST_F(IdentificationClientTest, EveryRequestStartsAnew)
{
    m_client.send();
    m_client.receive(batchOf(defaultAnswer, {}));
    m_client.address().rci = 3;
    m_client.send();
    EXPECT_EQ(m_client.state(), State::Waiting);
    EXPECT_FALSE(m_client.receive(batchOf(defaultAnswer, {})));
    EXPECT_TRUE(m_client.receive(batchOf(defaultAnswer | 3U, {})));
}

TEST_F(IdentificationClientTest, LastAnswerOfABatchIsShown)
{
    m_client.send();
    MessageContainer batch = batchOf(defaultAnswer, {0, 0, 0, 1});
    const MessageContainer second = batchOf(defaultAnswer, {0, 0, 0, 2});
    batch.addMessage(second.messages()[0]);
    EXPECT_TRUE(m_client.receive(batch));
    EXPECT_EQ(m_client.identification().profileId, 2U);
}

} // namespace

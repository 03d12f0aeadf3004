#include "modules/virtual/ServerNode.h"

#include "tests/unit/virtual/NodeFixture.h"

using namespace canvirtual;

namespace {

constexpr std::uint32_t request = 4U << 26 | 20U << 19 | 1U << 18 | 30U << 9 | 2U << 2 | 1U;
constexpr const char* ackText = "10a03c09: 00 02 00";
constexpr std::uint32_t dataId = request | 1U << 16;

class ServerNodeTest : public NodeFixture
{
protected:
    void open(NodeFault fault = NodeFault::None, int pacing = 3)
    {
        openNode({{"Node", "1"},
                  {"NodeId", "77"},
                  {"NodePacing", std::to_string(pacing)},
                  {"NodeFault", std::to_string(static_cast<int>(fault))}});
    }
    void requestUpload(std::uint32_t size)
    {
        sendBytes(request, {0, 2, 0, 0, static_cast<std::uint8_t>(size >> 24),
                            static_cast<std::uint8_t>(size >> 16),
                            static_cast<std::uint8_t>(size >> 8), static_cast<std::uint8_t>(size)});
    }
    void confirm(const NodePacing& pacing = nodePacings[3])
    {
        sendBytes(request, {0, 2, 1, pacing.messageSeparation,
                            static_cast<std::uint8_t>(pacing.blockSize >> 8),
                            static_cast<std::uint8_t>(pacing.blockSize),
                            static_cast<std::uint8_t>(pacing.blockSeparation >> 8),
                            static_cast<std::uint8_t>(pacing.blockSeparation)});
    }
    /// As far as the ACK.
    void agree(std::uint32_t size, int pacing = 3)
    {
        requestUpload(size);
        ASSERT_EQ(answers().size(), 1U);
        confirm(nodePacings.at(static_cast<std::size_t>(pacing)));
        ASSERT_EQ(answers(), (Texts{ackText}));
    }
    static Bytes checksumBytes(std::uint32_t fileSize)
    {
        const std::uint32_t sum = uploadChecksum(fileSize);
        return {static_cast<std::uint8_t>(sum >> 24), static_cast<std::uint8_t>(sum >> 16),
                static_cast<std::uint8_t>(sum >> 8), static_cast<std::uint8_t>(sum)};
    }
};

TEST_F(ServerNodeTest, TellsWhatItIs)
{
    open();
    sendBytes(request, {0, 0});
    EXPECT_EQ(answers(), (Texts{"10a03c09: 00 00 03 39 00 03 00 4D"}));
}

TEST_F(ServerNodeTest, WhatIsNoRequestIsNotAnswered)
{
    open();
    sendBytes(request & ~(1U << 18), {0, 0}); // an answer
    sendBytes(request, {0, 0, 0});            // another length
    sendBytes(request, {0, 1});               // a service that it does not have
    sendBytes(128, {0, 0});                   // a standard frame
    zul::MessageCan remote = frame(request, 2);
    remote.setFrameType(FrameType::Remote);
    m_program->sendMessage(&remote);
    EXPECT_EQ(answers(), Texts());
}

TEST_F(ServerNodeTest, ProgramsOwnInterfaceMayCarryTheNode)
{
    m_program = openDevice({{"Node", "1"}});
    sendBytes(request, {0, 0});
    EXPECT_EQ(answers(), (Texts{"10a03c09: 00 00 03 39 00 03 00 01"}));
}

TEST_F(ServerNodeTest, AnswersAfterItsThinkingTime)
{
    open();
    sendBytes(request, {0, 0});
    const Received received = listen(20 * millisecond);
    ASSERT_EQ(received.frames.size(), 1U);
    const BusTime after = timeOf(*received.frames[0]) - SettableClock::start;
    EXPECT_GT(after, NodeReplies::thinkingTime);
    EXPECT_LT(after, NodeReplies::thinkingTime + millisecond);
}

TEST_F(ServerNodeTest, UploadIsAnsweredWithThePacing)
{
    for (int pacing = 0; pacing < nodePacingCount; ++pacing) {
        m_program.reset();
        m_node.reset();
        open(NodeFault::None, pacing);
        requestUpload(100);
        const Texts texts = answers();
        ASSERT_EQ(texts.size(), 1U);
        const NodePacing& expected = nodePacings.at(static_cast<std::size_t>(pacing));
        std::array<char, 60> text{};
        std::snprintf(text.data(), text.size(), "10a03c09: 00 02 00 %02X %02X %02X %02X %02X",
                      expected.messageSeparation, expected.blockSize >> 8, expected.blockSize & 255,
                      expected.blockSeparation >> 8, expected.blockSeparation & 255);
        EXPECT_EQ(texts[0], text.data());
    }
}

TEST_F(ServerNodeTest, UploadEndsWithThreeBytes)
{
    open();
    agree(9); // a file of 5 bytes
    Bytes first{'a', 'b', 'c', 'd', 'e'};
    const Bytes sum = checksumBytes(5);
    first.insert(first.end(), sum.begin(), sum.end() - 1);
    sendBytes(dataId, first);
    EXPECT_EQ(answers(), Texts());
    sendBytes(dataId, {sum.back()});
    EXPECT_EQ(answers(), (Texts{ackText}));
    sendBytes(dataId, {1});
    EXPECT_EQ(answers(), Texts()) << "the upload is over";
}

TEST_F(ServerNodeTest, MultipleOfEightEndsWithAnEmptyFrame)
{
    open();
    agree(8);
    Bytes all{'a', 'b', 'c', 'd'};
    const Bytes sum = checksumBytes(4);
    all.insert(all.end(), sum.begin(), sum.end());
    sendBytes(dataId, all);
    EXPECT_EQ(answers(), Texts());
    sendBytes(dataId, {});
    EXPECT_EQ(answers(), (Texts{ackText}));
}

TEST_F(ServerNodeTest, WrongDataEndWithFourBytesAndTheReason)
{
    open();
    agree(4);
    sendBytes(dataId, {0, 0, 0, 1}); // not the checksum of an empty file
    EXPECT_EQ(answers(), (Texts{"10a03c09: 00 02 03 00"}));
    agree(4);
    sendBytes(dataId, {0, 0, 0}); // too short
    EXPECT_EQ(answers(), (Texts{"10a03c09: 00 02 01 00"}));
    agree(4);
    sendBytes(dataId, {0, 0, 0, 0, 0}); // too long
    EXPECT_EQ(answers(), (Texts{"10a03c09: 00 02 01 00"}));
    agree(16);
    sendBytes(dataId, Bytes(7, 0)); // short in the middle; the checksum is wrong, too
    sendBytes(dataId, Bytes(8, 0));
    sendBytes(dataId, {0});
    EXPECT_EQ(answers(), (Texts{"10a03c09: 00 02 01 00"}));
}

TEST_F(ServerNodeTest, FramesThatComeTooEarlyAreTold)
{
    constexpr int slow = 1; // 2 ms, and 20 ms between blocks of 64 bytes
    open(NodeFault::None, slow);
    agree(1'600, slow);
    for (int i = 0; i < 200; ++i) {
        sendBytes(dataId, Bytes(8, 0));
    }
    sendBytes(dataId, {});
    EXPECT_EQ(answers(100 * millisecond), (Texts{"10a03c09: 00 02 02 00"}));
}

TEST_F(ServerNodeTest, FirstFrameMayHaveBeenHeldUp)
{
    constexpr int slow = 1;
    open(NodeFault::None, slow);
    agree(80, slow); // by plan 20 ms and a block's end
    for (int i = 0; i < 9; ++i) {
        sendBytes(dataId, Bytes(8, 0));
    }
    Bytes last(4, 0);
    const Bytes sum = checksumBytes(76);
    last.insert(last.end(), sum.begin(), sum.end());
    sendBytes(dataId, last);
    sendBytes(dataId, {});
    EXPECT_EQ(answers(), (Texts{ackText}));
}

TEST_F(ServerNodeTest, DataThatEndTooSoonAreTold)
{
    open();
    agree(80);
    sendBytes(dataId, Bytes(8, 0));
    sendBytes(dataId, Bytes(8, 0));
    EXPECT_EQ(answers(900 * millisecond), Texts());
    EXPECT_EQ(answers(200 * millisecond), (Texts{"10a03c09: 00 02 04 00"}));
    sendBytes(dataId, Bytes(8, 0));
    EXPECT_EQ(answers(2 * second), Texts());
}

TEST_F(ServerNodeTest, SilentOneTellsNothingOfDataThatEndTooSoon)
{
    open(NodeFault::Silent);
    requestUpload(80);
    confirm();
    sendBytes(dataId, Bytes(8, 0));
    EXPECT_EQ(answers(3 * second), Texts());
    sendBytes(request, {0, 0});
    EXPECT_EQ(answers(), Texts());
}

TEST_F(ServerNodeTest, LateOneTellsLateThatDataEndTooSoon)
{
    open(NodeFault::Late);
    requestUpload(80);
    EXPECT_EQ(answers(2 * second).size(), 1U);
    confirm();
    EXPECT_EQ(answers(2 * second), (Texts{ackText}));
    sendBytes(dataId, Bytes(8, 0));
    EXPECT_EQ(answers(2'400 * millisecond), Texts());
    EXPECT_EQ(answers(200 * millisecond), (Texts{"10a03c09: 00 02 04 00"}));
}

TEST_F(ServerNodeTest, AnswersKeepTheirTimeBesideAnUpload)
{
    open();
    agree(80);
    sendBytes(dataId, Bytes(8, 0));
    EXPECT_EQ(answers(990 * millisecond), Texts());
    sendBytes(request, {0, 0});
    EXPECT_EQ(answers(30 * millisecond),
              (Texts{"10a03c09: 00 00 03 39 00 03 00 4D", "10a03c09: 00 02 04 00"}));
}

TEST_F(ServerNodeTest, SecondConfirmationChangesNothing)
{
    open();
    agree(4);
    confirm();
    EXPECT_EQ(answers(), Texts());
    sendBytes(dataId, {0, 0, 0, 0});
    EXPECT_EQ(answers(), (Texts{ackText}));
}

TEST_F(ServerNodeTest, DataWithoutAnUploadAreNoRequests)
{
    open();
    sendBytes(dataId, {0, 0});
    sendBytes(dataId, {0, 2, 0, 0, 0, 0, 0, 4});
    EXPECT_EQ(answers(), Texts());
}

TEST_F(ServerNodeTest, OnlyTheServiceChannelsAreHeard)
{
    open();
    for (const std::uint32_t channel : {0U, 1U, 2U, 3U, 7U}) {
        sendBytes((request & ~(7U << 26)) | channel << 26, {0, 0}, true);
    }
    EXPECT_EQ(answers(), Texts());
    for (const std::uint32_t channel : {4U, 5U, 6U}) {
        sendBytes((request & ~(7U << 26)) | channel << 26, {0, 0}, true);
    }
    EXPECT_EQ(answers().size(), 3U);
}

TEST_F(ServerNodeTest, DataBeforeTheConfirmationDoNotCount)
{
    open();
    requestUpload(4);
    answers();
    sendBytes(dataId, {0, 0, 0, 0});
    EXPECT_EQ(answers(), Texts());
    confirm();
    EXPECT_EQ(answers(), (Texts{ackText}));
}

TEST_F(ServerNodeTest, ConfirmationOfAnotherPacingIsARequest)
{
    open();
    requestUpload(4);
    answers();
    confirm(nodePacings[1]);
    const Texts texts = answers();
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_NE(texts[0], ackText);
}

TEST_F(ServerNodeTest, NewRequestStartsAnew)
{
    open();
    agree(100);
    agree(4);
    sendBytes(dataId, {0, 0, 0, 0});
    EXPECT_EQ(answers(), (Texts{ackText}));
}

TEST_F(ServerNodeTest, SilentOneAnswersNothing)
{
    open(NodeFault::Silent);
    sendBytes(request, {0, 0});
    requestUpload(4);
    EXPECT_EQ(answers(2 * second), Texts());
}

TEST_F(ServerNodeTest, LateOneAnswersAfterASecondAndAHalf)
{
    open(NodeFault::Late);
    sendBytes(request, {0, 0});
    EXPECT_EQ(answers(1'490 * millisecond), Texts());
    EXPECT_EQ(answers().size(), 1U);
}

TEST_F(ServerNodeTest, WrongIdentifierIsAnotherRedundancyChannel)
{
    open(NodeFault::WrongIdentifier);
    sendBytes(request, {0, 0});
    const Texts texts = answers();
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_EQ(texts[0].substr(0, 9), "10a03c08:");
}

TEST_F(ServerNodeTest, RefusalHasACodeAndNoAckFollows)
{
    open(NodeFault::Refuses);
    requestUpload(4);
    const Texts texts = answers();
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_EQ(texts[0].substr(0, 18), "10a03c09: 00 02 01");
    confirm();
    // The confirmation is no request either, or it is one that is refused: no three bytes come.
    for (const std::string& text : answers()) {
        EXPECT_NE(text, ackText);
    }
}

TEST_F(ServerNodeTest, WithoutAckTheConfirmationStaysUnanswered)
{
    open(NodeFault::NoAck);
    requestUpload(4);
    EXPECT_EQ(answers().size(), 1U);
    confirm();
    confirm();
    EXPECT_EQ(answers(), Texts());
}

TEST_F(ServerNodeTest, WithoutEndTheDataStayUnanswered)
{
    open(NodeFault::NoEnd);
    agree(80);
    for (int i = 0; i < 6; ++i) { // of eleven
        sendBytes(dataId, Bytes(8, 0));
    }
    EXPECT_EQ(answers(3 * second), Texts()) << "nor are they told to end too soon";
}

TEST_F(ServerNodeTest, AnswersAreGivenAlsoAfterALongPause)
{
    open();
    sendBytes(request, {0, 0});
    m_clock->advance(10 * second);
    EXPECT_EQ(answers().size(), 1U);
}

TEST(UploadSession, ChecksumIsThatOfTheByteNumbers)
{
    EXPECT_EQ(uploadChecksum(0), 0U);
    EXPECT_EQ(uploadChecksum(1), 0xFFU);
    EXPECT_EQ(uploadChecksum(2), ~(0xFFFF0000U ^ 0x04C11DB7U));
}

} // namespace

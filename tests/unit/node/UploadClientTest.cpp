#include "node/UploadClient.h"

#include "message/MessageCtrl.h"
#include "message/MessageStatus.h"
#include "tests/support/ConsoleCapture.h"
#include "tests/support/TestHome.h"
#include "tests/unit/node/ServiceTestLink.h"

#include <gtest/gtest.h>

namespace {

using State = UploadClient::State;
using zul::test::batchOf;
using zul::test::ConsoleCapture;
using zul::test::hexOf;

constexpr std::uint32_t request = 4U << 26 | 1U << 18;
constexpr std::uint32_t answer = 4U << 26;

MessageContainer statusBatch(const char* label, const char* value)
{
    auto* status = new zul::MessageStatus;
    status->entries = {{"State", "Active", ""}, {label, value, ""}, {"CPM", "999", ""}};
    MessageContainer batch;
    batch.addMessage(SmartPtr<Message>(status));
    return batch;
}

class UploadClientTest : public testing::Test
{
protected:
    void chooseFile(const QByteArray& contents)
    {
        m_home.write(QStringLiteral("file.bin"), contents);
        m_client.setFile(m_home.file(QStringLiteral("file.bin")));
    }
    void reply(std::uint32_t id = answer)
    {
        m_client.receive(batchOf(id, {0, 2, 5, 3, 0x01, 0x02, 0x03, 0x04}));
    }
    bool ack() { return m_client.receive(batchOf(answer, {1, 2, 3})); }
    /// As far as the data going out.
    void startUpload()
    {
        m_client.send();
        reply();
        ack();
    }

    zul::test::TestHome m_home;
    zul::test::ServiceTestLink m_link;
    UploadClient m_client{m_link};
};

TEST_F(UploadClientTest, StatesHaveTheirTextsAndColours)
{
    struct Expected
    {
        State state;
        int number;
        const char* text;
        int red, green, blue;
    };
    constexpr std::array<Expected, 6> all{
        {{State::Idle, 0, "Idle", 150, 150, 150},
         {State::Waiting, 1, "Waiting on response ...", 255, 255, 100},
         {State::WaitingForAck, 2, "Waiting on ACK ...", 255, 255, 100},
         {State::Uploading, 3, "Uploading", 100, 255, 100},
         {State::Finished, 4, "Finished ...", 100, 255, 100},
         {State::Timeout, 10, "Timeout", 255, 100, 100}}};
    for (const Expected& expected : all) {
        const StateLook& look = lookOf(UploadClient::looks, expected.number);
        EXPECT_EQ(look.state, static_cast<int>(expected.state));
        EXPECT_STREQ(look.text, expected.text);
        EXPECT_EQ(look.red, expected.red);
        EXPECT_EQ(look.green, expected.green);
        EXPECT_EQ(look.blue, expected.blue);
    }
}

TEST_F(UploadClientTest, RequestTellsDestinationAndSizeWithTheChecksum)
{
    chooseFile(QByteArray(0x012345, 'x'));
    m_client.setDestinationId(0xABCD);
    m_client.send();
    ASSERT_EQ(m_link.sent.size(), 1U);
    EXPECT_EQ(m_link.frame(0).id(), request);
    EXPECT_EQ(hexOf(m_link.frame(0)), "00 02 AB CD 00 01 23 49");
    EXPECT_EQ(m_client.state(), State::Waiting);
    EXPECT_EQ(m_link.log, "send start ");
}

TEST_F(UploadClientTest, WithoutAFileTheSizeIsZero)
{
    m_client.send();
    EXPECT_EQ(hexOf(m_link.frame(0)), "00 02 00 00 00 00 00 00");
    reply();
    ASSERT_TRUE(ack());
    EXPECT_EQ(m_client.state(), State::Uploading);
    EXPECT_EQ(m_link.sent.size(), 2U); // request and confirmation only
    EXPECT_EQ(m_client.progress(), 0);
    EXPECT_TRUE(ack());
    EXPECT_EQ(m_client.state(), State::Finished);
}

TEST_F(UploadClientTest, SetFileTellsTheSize)
{
    m_home.write(QStringLiteral("file.bin"), "12345");
    EXPECT_EQ(m_client.setFile(m_home.file(QStringLiteral("file.bin"))), 5);
    EXPECT_EQ(m_client.filePath(), m_home.file(QStringLiteral("file.bin")));
    EXPECT_EQ(m_client.setFile(m_home.file(QStringLiteral("none.bin"))), 0);
}

TEST_F(UploadClientTest, ReplyIsTakenAndConfirmed)
{
    m_client.send();
    EXPECT_EQ(m_client.pacing().messageSeparation, 1U);
    EXPECT_EQ(m_client.pacing().blockSize, 16U);
    EXPECT_EQ(m_client.pacing().blockSeparation, 10U);
    reply();
    EXPECT_EQ(m_client.state(), State::WaitingForAck);
    EXPECT_EQ(m_client.responseCode(), 5U);
    EXPECT_EQ(m_client.pacing().messageSeparation, 3U);
    EXPECT_EQ(m_client.pacing().blockSize, 0x0102U);
    EXPECT_EQ(m_client.pacing().blockSeparation, 0x0304U);
    ASSERT_EQ(m_link.sent.size(), 2U);
    EXPECT_EQ(m_link.frame(1).id(), request);
    EXPECT_EQ(hexOf(m_link.frame(1)), "00 02 01 03 01 02 03 04");
    EXPECT_EQ(m_link.log, "send start start send ");
    m_client.send();
    EXPECT_EQ(m_client.pacing().blockSize, 16U);
}

TEST_F(UploadClientTest, AnswerMayHaveAnyPrivateBitServerAndService)
{
    m_client.send();
    for (const std::uint32_t foreign : {answer | requestBit, answer | 1U, answer | 1U << 17,
                                        answer | 1U << 19, answer | 1U << 26, 1U << 29 | answer}) {
        reply(foreign);
        EXPECT_EQ(m_client.state(), State::Waiting) << foreign;
    }
    reply(answer | 0x1FFFC);
    EXPECT_EQ(m_client.state(), State::WaitingForAck);
}

TEST_F(UploadClientTest, ClientsFieldsStayInTheExpectedAnswer)
{
    m_client.address() = {6, 17, 1, 99, 100, 2};
    m_client.send();
    reply();
    EXPECT_EQ(m_client.state(), State::Waiting);
    reply(6U << 26 | 17U << 19 | 1U << 17 | 2U);
    EXPECT_EQ(m_client.state(), State::WaitingForAck);
}

TEST_F(UploadClientTest, OnlyThreeBytesAreAnAck)
{
    m_client.send();
    reply();
    for (const std::vector<std::uint8_t>& other :
         {std::vector<std::uint8_t>{}, {1, 2}, {1, 2, 3, 4}, {1, 2, 3, 4, 5, 6, 7, 8}}) {
        EXPECT_TRUE(m_client.receive(batchOf(answer, other)));
        EXPECT_EQ(m_client.state(), State::WaitingForAck);
    }
    ack();
    EXPECT_EQ(m_client.state(), State::Uploading);
    EXPECT_EQ(m_link.log, "send start start send stop ");
}

TEST_F(UploadClientTest, OnlyThreeBytesEndTheTransfer)
{
    chooseFile("abc");
    startUpload();
    for (const std::vector<std::uint8_t>& other : {std::vector<std::uint8_t>{}, {0, 2, 3, 0}}) {
        EXPECT_TRUE(m_client.receive(batchOf(answer, other)));
        EXPECT_EQ(m_client.state(), State::Uploading);
    }
    ack();
    EXPECT_EQ(m_client.state(), State::Finished);
}

TEST_F(UploadClientTest, FileGoesOutAsOneSchedule)
{
    chooseFile("abcdefgh");
    m_client.address().sid = 3;
    startUpload();
    ASSERT_EQ(m_link.sent.size(), 3U);
    ASSERT_EQ(m_link.sent[2].size(), 5U); // begin, two frames, end, start
    const std::uint32_t dataId = (request | 3U << 2) | 1U << 16;
    EXPECT_EQ(m_link.frame(2, 1).id(), dataId);
    EXPECT_EQ(hexOf(m_link.frame(2, 1)), "61 62 63 64 65 66 67 68");
    EXPECT_EQ(m_link.frame(2, 2).byteCount(), 4U);
    EXPECT_DOUBLE_EQ(m_link.frame(2, 1).timeStampDouble(), 0.1);
    EXPECT_DOUBLE_EQ(m_link.frame(2, 2).timeStampDouble(), 0.103); // the server's separation
    const auto* first = message_cast<zul::MessageCtrl>(m_link.sent[2].messages().front().get());
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->id(), zul::MessageCtrl::ECtrl::ScheduleBegin);
}

TEST_F(UploadClientTest, WholeExchangeFitsIntoOneBatch)
{
    chooseFile("abc");
    m_client.send();
    MessageContainer batch = batchOf(answer, {0, 2, 0, 0, 0, 0, 0, 0});
    for (int i = 0; i < 2; ++i) {
        batch.addMessage(batchOf(answer, {1, 2, 3}).messages()[0]);
    }
    EXPECT_TRUE(m_client.receive(batch));
    EXPECT_EQ(m_client.state(), State::Finished);
    EXPECT_EQ(m_link.log, "send start start send stop send stop ");
}

TEST_F(UploadClientTest, FileThatHasGoneStopsTheUploadInSilence)
{
    chooseFile("abc");
    m_client.send();
    reply();
    QFile::remove(m_client.filePath());
    ack();
    EXPECT_EQ(m_client.state(), State::Uploading);
    EXPECT_EQ(m_link.sent.size(), 2U);
    EXPECT_EQ(m_client.progress(), 0);
}

TEST_F(UploadClientTest, DirectoryIsNoFile)
{
    m_client.setFile(m_home.file(QString()));
    startUpload();
    EXPECT_EQ(m_link.sent.size(), 2U);
}

TEST_F(UploadClientTest, FileThatIsTooLargeIsNotSentAndTheConsoleSaysSo)
{
    const QString path = m_home.file(QStringLiteral("large.bin"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(UploadClient::maxFileBytes + 1)); // takes no room on the disk
    file.close();
    ConsoleCapture console;
    m_client.setFile(path);
    startUpload();
    const std::string written = console.out();
    EXPECT_EQ(m_link.sent.size(), 2U);
    EXPECT_NE(written.find("DUS file too large: "), std::string::npos);
}

TEST_F(UploadClientTest, ProgressFollowsWhatTheDeviceHasStillToSend)
{
    chooseFile(QByteArray(76, 'x')); // 80 bytes with the checksum: 11 frames
    startUpload();
    EXPECT_EQ(m_client.progress(), 0);
    EXPECT_TRUE(m_client.receive(statusBatch("CPM", "11")));
    EXPECT_EQ(m_client.progress(), 0);
    m_client.receive(statusBatch("CPM", "5"));
    EXPECT_EQ(m_client.progress(), 54); // 6 of 11
    m_client.receive(statusBatch("CPM", "0x2"));
    EXPECT_EQ(m_client.progress(), 81);          // 9 of 11
    m_client.receive(statusBatch("CPM", "010")); // octal
    EXPECT_EQ(m_client.progress(), 27);          // 3 of 11
    m_client.receive(statusBatch("CPM", "0"));
    EXPECT_EQ(m_client.progress(), 100);
    EXPECT_EQ(m_client.state(), State::Uploading);
    m_client.receive(statusBatch("CPM", "500")); // more than there were
    EXPECT_EQ(m_client.progress(), 0);
    ack();
    EXPECT_EQ(m_client.progress(), 100);
    m_client.receive(statusBatch("CPM", "5"));
    EXPECT_EQ(m_client.progress(), 100);
}

TEST_F(UploadClientTest, ProgressIsZeroInAllOtherStates)
{
    chooseFile(QByteArray(76, 'x'));
    m_client.receive(statusBatch("CPM", "5"));
    EXPECT_EQ(m_client.progress(), 0);
    startUpload();
    m_client.receive(statusBatch("CPM", "5"));
    ASSERT_EQ(m_client.progress(), 54);
    m_client.timeOut();
    EXPECT_EQ(m_client.progress(), 0);
    m_client.send();
    EXPECT_EQ(m_client.progress(), 0);
}

TEST_F(UploadClientTest, StatusWithoutTheRowChangesNothing)
{
    zul::MessageStatus* status = new zul::MessageStatus;
    status->entries = {{"cpm", "3", ""}};
    MessageContainer batch;
    batch.addMessage(SmartPtr<Message>(status));
    EXPECT_FALSE(m_client.receive(batch));
}

TEST_F(UploadClientTest, TimeoutEndsTheExchange)
{
    m_client.send();
    m_client.timeOut();
    EXPECT_EQ(m_client.state(), State::Timeout);
    reply();
    EXPECT_EQ(m_client.state(), State::Timeout);
    EXPECT_EQ(m_link.sent.size(), 1U);
    m_client.send();
    EXPECT_EQ(m_client.state(), State::Waiting);
}

TEST_F(UploadClientTest, AnswersBeforeTheRequestAndAfterTheEndChangeNothing)
{
    EXPECT_TRUE(m_client.receive(batchOf(0, {1, 2, 3})));
    EXPECT_EQ(m_client.state(), State::Idle);
    startUpload();
    ack();
    ASSERT_EQ(m_client.state(), State::Finished);
    ack();
    EXPECT_EQ(m_client.state(), State::Finished);
}

TEST_F(UploadClientTest, ConsoleTellsRequestsAndStates)
{
    ConsoleCapture console; // not in the fixture: it would take failures, too
    chooseFile("abcd");
    startUpload();
    ack();
    m_client.timeOut();
    EXPECT_EQ(console.out(), "NEW STATE 1\nDUS send Id 0x10040000\nDUS requested Id 0x10000000 8\n"
                             "NEW STATE 2\nNEW STATE 3\nNEW STATE 4\nNEW STATE 10\n");
}

} // namespace

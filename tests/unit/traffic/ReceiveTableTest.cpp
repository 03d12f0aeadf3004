#include "traffic/ReceiveTable.h"

#include "project/Filter.h"
#include "traffic/ReceiveRowText.h"

#include <gtest/gtest.h>
#include <map>
#include <random>
#include <utility>
#include <vector>

namespace {

using zul::MessageCan;

MessageContainer batchOf(const std::vector<std::uint32_t>& ids)
{
    MessageContainer batch;
    for (const std::uint32_t id : ids) {
        auto* frame = new MessageCan;
        frame->setId(id);
        frame->setByteCount(8);
        batch.addMessage(SmartPtr<Message>(frame));
    }
    return batch;
}

class ReceiveTableTest : public testing::Test
{
protected:
    void update(const std::vector<std::uint32_t>& ids, double now)
    {
        m_table.update(batchOf(ids), m_inputOn, m_filter, now);
    }

    ReceiveTable m_table;
    Filter m_filter;
    bool m_inputOn = true;
};

TEST_F(ReceiveTableTest, OneRowForEachIdentifierInOrderOfArrival)
{
    update({7, 3, 7, 7}, 10.0);
    ASSERT_EQ(m_table.rowCount(), 2);
    EXPECT_EQ(m_table.row(0).msg.id(), 7U);
    EXPECT_EQ(m_table.row(0).count, 3U);
    EXPECT_EQ(m_table.row(0).lastTime, 10.0);
    EXPECT_TRUE(m_table.row(0).active);
    EXPECT_FALSE(m_table.row(0).shownActive);
    EXPECT_EQ(m_table.row(0).shownByteCount, 99U);
    EXPECT_EQ(m_table.row(1).msg.id(), 3U);
    EXPECT_EQ(m_table.receivedTotal(), 4U);
}

TEST_F(ReceiveTableTest, LargeBatchIsTakenFrameByFrameInOrder)
{
    constexpr int frames = 5003;
    constexpr std::uint32_t identifiers = 97;
    std::vector<std::uint32_t> ids;
    for (std::uint32_t i = 0; i < frames; ++i) {
        ids.push_back(0x1FFFFFFFU - i * i % identifiers);
    }
    MessageContainer batch = batchOf(ids);
    std::map<std::uint32_t, std::pair<std::uint32_t, std::uint32_t>> expected; // count, last number
    for (std::uint32_t i = 0; i < frames; ++i) {
        message_cast<MessageCan>(batch.messages()[i].get())->setTimeStamp({i, 0});
        expected[ids[i]] = {expected[ids[i]].first + 1, i};
    }
    m_table.update(batch, true, m_filter, 10.0);
    ASSERT_EQ(m_table.rowCount(), static_cast<int>(expected.size()));
    for (int row = 0; row < m_table.rowCount(); ++row) {
        const ReceiveRow& taken = m_table.row(row);
        EXPECT_EQ(taken.count, expected.at(taken.msg.id()).first);
        EXPECT_EQ(taken.msg.timeStamp().seconds, expected.at(taken.msg.id()).second);
    }
    EXPECT_EQ(m_table.dirtyRows().size(), expected.size());
    EXPECT_EQ(m_table.receivedTotal(), static_cast<std::uint32_t>(frames));
}

TEST_F(ReceiveTableTest, RowIsDirtyOnceHoweverManyFramesItGot)
{
    update({1, 2, 1}, 10.0);
    EXPECT_EQ(m_table.dirtyRows(), (std::vector<int>{0, 1}));
    m_table.clearDirty();
    EXPECT_TRUE(m_table.dirtyRows().empty());
    update({2}, 10.1);
    EXPECT_EQ(m_table.dirtyRows(), (std::vector<int>{1}));
}

TEST_F(ReceiveTableTest, ExtendedAndStandardFrameOfOneNumberShareTheRow)
{
    MessageContainer batch = batchOf({5, 5});
    message_cast<MessageCan>(batch.messages()[1].get())->setMode(MessageCan::EMsgMode::Extended);
    m_table.update(batch, true, m_filter, 10.0);
    EXPECT_EQ(m_table.rowCount(), 1);
}

TEST_F(ReceiveTableTest, FramesCountInTheTotalBeforeInputAndFilter)
{
    m_inputOn = false;
    update({1, 2}, 10.0);
    EXPECT_EQ(m_table.rowCount(), 0);
    EXPECT_EQ(m_table.receivedTotal(), 2U);
    m_inputOn = true;
    m_filter.setOn(true);
    m_filter.setMin(2);
    update({1, 2}, 10.0);
    EXPECT_EQ(m_table.rowCount(), 1);
    EXPECT_EQ(m_table.receivedTotal(), 4U);
}

TEST_F(ReceiveTableTest, OtherMessagesArePassedOver)
{
    MessageContainer batch;
    batch.addMessage(SmartPtr<Message>(new Message(5)));
    batch.addMessage(SmartPtr<Message>());
    m_table.update(batch, true, m_filter, 10.0);
    EXPECT_EQ(m_table.receivedTotal(), 0U);
    EXPECT_EQ(m_table.rowCount(), 0);
}

TEST_F(ReceiveTableTest, RowTurnsSilentAfterHalfASecondAndIsRepaintedOnce)
{
    update({1}, 10.0);
    m_table.clearDirty();
    update({}, 10.5);
    EXPECT_TRUE(m_table.row(0).active);
    EXPECT_TRUE(m_table.dirtyRows().empty());
    update({}, 10.51);
    EXPECT_FALSE(m_table.row(0).active);
    EXPECT_EQ(m_table.dirtyRows(), (std::vector<int>{0}));
    m_table.clearDirty();
    update({}, 20.0);
    EXPECT_TRUE(m_table.dirtyRows().empty());
    update({1}, 20.1);
    EXPECT_TRUE(m_table.row(0).active);
}

TEST_F(ReceiveTableTest, RowsAgeAlsoWhileTheInputIsOff)
{
    update({1}, 10.0);
    m_inputOn = false;
    update({1}, 10.6);
    EXPECT_FALSE(m_table.row(0).active);
    EXPECT_EQ(m_table.row(0).count, 1U);
}

TEST_F(ReceiveTableTest, ClearForgetsRowsAndKeepsTheTotal)
{
    update({1, 2}, 10.0);
    m_table.clear();
    EXPECT_EQ(m_table.rowCount(), 0);
    EXPECT_TRUE(m_table.dirtyRows().empty());
    EXPECT_EQ(m_table.receivedTotal(), 2U);
    update({}, 11.0);
    update({2}, 12.0);
    EXPECT_EQ(m_table.row(0).count, 1U);
}

TEST_F(ReceiveTableTest, MarkAllDirtyTakesEveryRowOnce)
{
    update({1, 2, 3}, 10.0);
    m_table.clearDirty();
    update({2}, 10.1);
    m_table.markAllDirty();
    EXPECT_EQ(m_table.dirtyRows().size(), 3U);
}

// The walk over all rows that the queue of sightings stands in for.
struct SlowRow
{
    double lastTime;
    bool active;
};

TEST_F(ReceiveTableTest, AgeingAgreesWithAWalkOverAllRowsWhateverTheClockDoes)
{
    constexpr unsigned seed = 825;
    std::mt19937 generator(seed);
    std::uniform_int_distribution<std::uint32_t> id(0, 40);
    std::uniform_int_distribution<int> frames(0, 6);
    std::uniform_real_distribution<double> step(0.0, 0.3);
    std::uniform_int_distribution<int> jump(0, 30);
    std::map<std::uint32_t, SlowRow> slow;
    double now = 1000.0;
    for (int i = 0; i < 5000; ++i) {
        now += step(generator);
        if (jump(generator) == 0) {
            now -= 5.0 * step(generator);
        }
        std::vector<std::uint32_t> ids;
        for (int n = frames(generator); n > 0; --n) {
            ids.push_back(id(generator));
        }
        update(ids, now);
        for (const std::uint32_t key : ids) {
            slow[key] = {now, true};
        }
        for (auto& entry : slow) {
            if (entry.second.active && now - entry.second.lastTime > 0.5) {
                entry.second.active = false;
            }
        }
        for (int row = 0; row < m_table.rowCount(); ++row) {
            ASSERT_EQ(m_table.row(row).active, slow.at(m_table.row(row).msg.id()).active)
                << "seed " << seed << " step " << i << " row " << row;
        }
    }
}

ReceiveRow rowOf(MessageCan::EMsgMode mode, MessageCan::EFrameType type, std::uint32_t byteCount)
{
    ReceiveRow row;
    row.count = 12;
    row.msg.setId(0x1ABC);
    row.msg.setMode(mode);
    row.msg.setFrameType(type);
    row.msg.setByteCount(byteCount);
    row.msg.setTimeStamp(12.34567);
    row.msg.msg()[0] = 0xA5;
    return row;
}

TEST(ReceiveRowText, CellsOfADataFrame)
{
    ReceiveRowText text{};
    const ReceiveRow row = rowOf(MessageCan::EMsgMode::Extended, MessageCan::EFrameType::Data, 1);
    receiveRowText(row, 0, text);
    EXPECT_STREQ(text.cell(ReceiveColumn::Count), "12");
    EXPECT_STREQ(text.cell(ReceiveColumn::Time), "12.3457");
    EXPECT_STREQ(text.cell(ReceiveColumn::Id), "E 6844");
    EXPECT_STREQ(text.cell(ReceiveColumn::Length), "D1");
    EXPECT_STREQ(text.lines[0], "  0-> 165");
    EXPECT_STREQ(text.lines[1], "");
    EXPECT_TRUE(text.hasLines);
    receiveRowText(row, 1, text);
    EXPECT_STREQ(text.cell(ReceiveColumn::Id), "E 0x1ABC");
    EXPECT_STREQ(text.lines[0], "  0-> $a5");
}

TEST(ReceiveRowText, RemoteFrameAndModePrefixes)
{
    ReceiveRowText text{};
    receiveRowText(rowOf(MessageCan::EMsgMode::StandardFdBrs, MessageCan::EFrameType::Remote, 0), 0,
                   text);
    EXPECT_STREQ(text.cell(ReceiveColumn::Id), "SB 6844");
    EXPECT_STREQ(text.cell(ReceiveColumn::Length), "R0");
    EXPECT_STREQ(text.lines[0], "");
}

TEST(ReceiveRowText, ErrorFrameKeepsTheMessageColumn)
{
    ReceiveRowText text{};
    receiveRowText(rowOf(MessageCan::EMsgMode::Standard, MessageCan::EFrameType::Error, 8), 1,
                   text);
    EXPECT_STREQ(text.cell(ReceiveColumn::Id), "ERROR FRAME");
    EXPECT_STREQ(text.cell(ReceiveColumn::Length), "");
    EXPECT_FALSE(text.hasLines);
    EXPECT_STREQ(text.cell(ReceiveColumn::Count), "12");
}

TEST(ReceiveRowText, LinesBelowTheFirstShowFrom17And33And49BytesOn)
{
    for (const int line : {1, 2, 3}) {
        const auto limit = static_cast<std::uint32_t>(line * 16);
        EXPECT_FALSE(isReceiveLineShown(line, limit));
        EXPECT_TRUE(isReceiveLineShown(line, limit + 1));
    }
}

TEST(ReceiveRowText, LongestValuesFitTheirCells)
{
    ReceiveRow row =
        rowOf(MessageCan::EMsgMode::ExtendedFdBrs, MessageCan::EFrameType::Data, 0xFFFFFFFFU);
    row.msg.setId(0xFFFFFFFFU);
    row.msg.setTimeStamp(1e300);
    row.count = 0xFFFFFFFFU;
    ReceiveRowText text{};
    receiveRowText(row, 1, text);
    EXPECT_STREQ(text.cell(ReceiveColumn::Id), "EB 0xFFFFFFFF");
    EXPECT_STREQ(text.cell(ReceiveColumn::Time), "4294967296.0000");
    EXPECT_STREQ(text.cell(ReceiveColumn::Count), "-1");
}

} // namespace

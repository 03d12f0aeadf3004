#include "core/Latin1.h"
#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "profile/DataTypes.h"
#include "project/Filter.h"
#include "tests/unit/profile/AllocationCount.h"
#include "traffic/ReceiveColumns.h"
#include "traffic/ReceiveRowText.h"
#include "traffic/ReceiveTable.h"

#include <cstring>
#include <gmock/gmock.h>

// Rows and texts of the Receive window in the display modes other than CAN.

namespace {

using testing::ElementsAre;
using zul::MessageCan;

constexpr std::uint32_t fsb = 0x40000;
constexpr std::uint32_t pitchKey = 2U << 26 | 4U << 19 | 100U << 2;

ProfileParameter parameterOf(const char* name, std::uint32_t id)
{
    ProfileParameter parameter;
    parameter.nme = QString::fromLatin1(name);
    parameter.pun = QStringLiteral("deg");
    parameter.id = id;
    parameter.dtc = static_cast<std::uint32_t>(zul::ArincType::UChar);
    parameter.max = 255.0;
    return parameter;
}

class ParameterRows : public testing::Test
{
protected:
    ParameterRows()
    {
        index.emplace(pitchKey, parameterOf("Pitch", pitchKey));
        index.emplace(pitchKey, parameterOf("Alpha", pitchKey));
        table.showParameters(index);
    }
    void feed(std::initializer_list<std::uint32_t> ids, double now = 100.0)
    {
        MessageContainer batch;
        for (const std::uint32_t id : ids) {
            auto* frame = new MessageCan;
            frame->setId(id);
            batch.addMessage(SmartPtr<Message>(frame));
        }
        table.update(batch, true, Filter(), now);
    }
    std::vector<std::string> names() const
    {
        std::vector<std::string> list;
        for (int i = 0; i < table.rowCount(); ++i) {
            list.push_back(
                zul::toLatin1(receiveRowNames(table.row(i), table.parameter(i)).parameter));
        }
        return list;
    }
    std::vector<std::uint32_t> counts() const
    {
        std::vector<std::uint32_t> list;
        for (int i = 0; i < table.rowCount(); ++i) {
            list.push_back(table.row(i).count);
        }
        return list;
    }

    ProfileStore::ParameterIndex index;
    ReceiveTable table;
};

TEST_F(ParameterRows, OneFrameFeedsARowForEachParameterOfItsIdentifier)
{
    feed({pitchKey});
    EXPECT_THAT(names(), ElementsAre("Pitch", "Alpha"));
    feed({pitchKey, pitchKey});
    EXPECT_THAT(counts(), ElementsAre(3, 3));
    EXPECT_EQ(table.receivedTotal(), 3U);
    EXPECT_THAT(table.dirtyRows(), ElementsAre(0, 1));
}

TEST_F(ParameterRows, UnknownIdentifierHasOneRowWithoutAParameter)
{
    feed({7 << 2, 8 << 2, 7 << 2});
    EXPECT_THAT(names(), ElementsAre("Unknown Parameter", "Unknown Parameter"));
    EXPECT_THAT(counts(), ElementsAre(2, 1));
    EXPECT_FALSE(table.parameter(0).isKnown);
    EXPECT_TRUE(receiveRowNames(table.row(0), table.parameter(0)).unit.isEmpty());
}

TEST_F(ParameterRows, FramesThatDifferInFsbAloneShareTheirRows)
{
    feed({pitchKey | fsb, pitchKey});
    EXPECT_THAT(counts(), ElementsAre(2, 2));
    EXPECT_EQ(table.row(0).msg.id(), pitchKey) << "the last one is kept";
}

TEST_F(ParameterRows, EachRedundancyChannelHasItsOwnRows)
{
    feed({pitchKey | 1, pitchKey | 2, pitchKey | 1});
    EXPECT_THAT(names(), ElementsAre("Pitch", "Alpha", "Pitch", "Alpha"));
    EXPECT_THAT(counts(), ElementsAre(2, 2, 1, 1));
    EXPECT_EQ(receiveRowNames(table.row(0), table.parameter(0)).rci, 'B');
    EXPECT_EQ(receiveRowNames(table.row(2), table.parameter(2)).rci, 'C');
}

TEST_F(ParameterRows, RowsKeepTheirCopyWhenTheProfilesGo)
{
    feed({pitchKey});
    index.clear();
    feed({pitchKey, pitchKey | 1});
    EXPECT_THAT(names(), ElementsAre("Pitch", "Alpha", "Unknown Parameter"));
    EXPECT_THAT(counts(), ElementsAre(2, 2, 1));
}

TEST_F(ParameterRows, AllRowsOfAKeyTurnSilent)
{
    feed({pitchKey});
    table.clearDirty();
    feed({}, 100.6);
    EXPECT_FALSE(table.row(0).active);
    EXPECT_FALSE(table.row(1).active);
    EXPECT_THAT(table.dirtyRows(), ElementsAre(0, 1));
}

TEST_F(ParameterRows, ManyKeysOfManyParametersKeepTheirRowsApart)
{
    for (std::uint32_t doc = 0; doc < 1000; ++doc) {
        for (std::uint32_t i = 0; i < doc % 4; ++i) {
            index.emplace(doc << 2, parameterOf("Many", doc << 2));
        }
    }
    for (int round = 0; round < 3; ++round) {
        for (std::uint32_t doc = 0; doc < 1000; ++doc) {
            feed({doc << 2});
        }
    }
    int expected = 0;
    for (std::uint32_t doc = 0; doc < 1000; ++doc) {
        const int rows = std::max(1, static_cast<int>(doc % 4));
        for (int i = 0; i < rows; ++i) {
            EXPECT_EQ(table.row(expected).msg.id(), doc << 2);
            EXPECT_EQ(table.row(expected).count, 3U);
            EXPECT_EQ(table.parameter(expected).isKnown, doc % 4 != 0);
            ++expected;
        }
    }
    EXPECT_EQ(table.rowCount(), expected);
}

TEST_F(ParameterRows, RowsOfOtherKeysAreForgottenOnAChange)
{
    feed({pitchKey});
    table.showParameters(index); // no change
    EXPECT_EQ(table.rowCount(), 2);
    table.showIdentifiers();
    EXPECT_EQ(table.rowCount(), 0);
    EXPECT_TRUE(table.dirtyRows().empty());
    feed({pitchKey, pitchKey | fsb});
    EXPECT_EQ(table.rowCount(), 2) << "FSB counts here";
    table.showIdentifiers();
    EXPECT_EQ(table.rowCount(), 2);
    table.showParameters(index);
    EXPECT_EQ(table.rowCount(), 0);
    EXPECT_EQ(table.receivedTotal(), 3U);
}

TEST(ReceiveColumns, StoredNumberThatIsNoModeOfTheWindowCountsAsCan)
{
    for (const int stored : {0, 1, 2, 5, 7, 99, -1}) {
        EXPECT_EQ(receiveDisplayMode(stored), DisplayMode::Can) << stored;
    }
    EXPECT_EQ(receiveDisplayMode(3), DisplayMode::CanAerospace);
    EXPECT_EQ(receiveDisplayMode(4), DisplayMode::Arinc825Raw);
    EXPECT_EQ(receiveDisplayMode(6), DisplayMode::Arinc825Profile);
}

TEST(ReceiveColumns, ModesHaveTheirSets)
{
    EXPECT_EQ(static_cast<int>(receiveColumnSet(DisplayMode::Can)), 1);
    EXPECT_EQ(static_cast<int>(receiveColumnSet(DisplayMode::CanAerospace)), 1);
    EXPECT_EQ(static_cast<int>(receiveColumnSet(DisplayMode::Arinc825Raw)), 2);
    EXPECT_EQ(static_cast<int>(receiveColumnSet(DisplayMode::Arinc825Profile)), 3);
}

class RowTexts : public testing::Test
{
protected:
    RowTexts()
    {
        std::memset(static_cast<void*>(text.cells), '?', sizeof text.cells);
        row.count = 12;
        row.msg.setMode(MessageCan::EMsgMode::Extended);
        row.msg.setByteCount(8);
        row.msg.setTimeStamp(12.34567);
        row.msg.msg()[0] = 0xA5;
    }
    /// The texts by column; "-" for a cell that keeps what it shows.
    std::vector<std::string> cells(std::size_t count) const
    {
        std::vector<std::string> list;
        for (std::size_t i = 0; i < count; ++i) {
            list.emplace_back(text.isWritten[i] ? text.cells[i] : "-");
        }
        return list;
    }
    std::string fields(std::uint32_t id, int numberType)
    {
        row.msg.setId(id);
        receiveRawText(row, numberType, text);
        return cells(7)[4];
    }

    ReceiveRow row;
    ReceiveRowText text{};
    ReceiveParameter parameter{parameterOf("Pitch", pitchKey), true};
    ProfileStore store;
};

TEST_F(RowTexts, RawRowInBothNumberTypes)
{
    row.msg.setId(pitchKey | fsb | 2);
    receiveRawText(row, 0, text);
    EXPECT_THAT(cells(7), ElementsAre("12", "136577426", "12.3457", "NOC",
                                      "SFID 4 FSB 1 LCL 0 PVT 0 DOC 100", "C", "-"));
    EXPECT_TRUE(text.hasLines);
    EXPECT_STREQ(text.lines[0], "  0-> 165 000 000 000 000 000 000 000");
    EXPECT_STREQ(text.lines[1], "");
    row.msg.setId(0x1ABCDEF0);
    receiveRawText(row, 1, text);
    EXPECT_EQ(cells(7)[1], "0x1abcdef0") << "in small letters";
    EXPECT_EQ(cells(7)[3], "TMC");
    EXPECT_STREQ(text.lines[0], "  0-> $a5 $00 $00 $00 $00 $00 $00 $00");
}

TEST_F(RowTexts, ChannelsHaveTheirNamesAndTheRedundancyChannelsTheirLetters)
{
    const char* const names[] = {"EEC", "RES", "NOC", "DMC", "NSC", "UDC", "TMC", "FMC"};
    for (std::uint32_t lcc = 0; lcc < 8; ++lcc) {
        row.msg.setId(lcc << 26 | (lcc & 3));
        receiveRawText(row, 0, text);
        EXPECT_EQ(cells(7)[3], names[lcc]);
        EXPECT_EQ(cells(7)[5], std::string(1, "ABCD"[lcc & 3]));
    }
}

TEST_F(RowTexts, FieldsGoByTheChannel)
{
    const std::uint32_t rest = 0x2ABCDEF; // 85 0 1 0 ... below the channel
    EXPECT_EQ(fields(3U << 26 | rest, 0), "SA 85 DA 60 SP 55 DP 47");
    EXPECT_EQ(fields(3U << 26 | rest, 1), "SA 0x55 DA 0x3C SP 0x37 DP 0x2F");
    EXPECT_EQ(fields(4U << 26 | rest, 0), "CFID 85 SMT 0 LCL 1 PVT 1 SFID 102 SID 123");
    EXPECT_EQ(fields(6U << 26 | rest, 1), "CFID 0x55 SMT 0x0 LCL 0x1 PVT 0x1 SFID 0x66 SID 0x7B");
    EXPECT_EQ(fields(0U << 26 | rest, 0), "SFID 85 FSB 0 LCL 1 PVT 1 DOC 13179");
    EXPECT_EQ(fields(7U << 26 | rest, 1), "SFID 0x55 FSB 0x0 LCL 0x1 PVT 0x1 DOC 0x337B");
    EXPECT_EQ(fields(1U << 26 | rest, 0), "-") << "left as it stands";
}

TEST_F(RowTexts, RawErrorFrameEmptiesTheCellsBehindTheChannel)
{
    row.msg.setFrameType(MessageCan::EFrameType::Error);
    receiveRawText(row, 0, text);
    EXPECT_THAT(cells(7), ElementsAre("12", "0", "12.3457", "ERROR FRAME", "", "", ""));
    EXPECT_FALSE(text.hasLines);
    EXPECT_TRUE(text.isError);
}

TEST_F(RowTexts, CanAerospaceRowHasTheSameTextOnAllLines)
{
    row.msg.setId(300);
    row.msg.setMode(MessageCan::EMsgMode::Standard);
    row.msg.msg()[0] = 1;
    row.msg.msg()[1] = 2;
    row.msg.msg()[4] = 0x40;
    row.msg.msg()[5] = 0x20;
    receiveCanAerospaceText(row, 0, text);
    EXPECT_THAT(cells(5), ElementsAre("12", "12.3457", "S 300", "D8", "-"));
    for (const auto& line : text.lines) {
        EXPECT_STREQ(line, "NOD   1 FLOAT   0 000 | 2.500000");
    }
    EXPECT_TRUE(text.hasLines);
    receiveCanAerospaceText(row, 1, text);
    EXPECT_EQ(cells(5)[2], "S 0x12C");
    row.msg.setFrameType(MessageCan::EFrameType::Error);
    receiveCanAerospaceText(row, 1, text);
    EXPECT_EQ(cells(5)[2], "ERROR FRAME");
    EXPECT_EQ(cells(5)[3], "");
    EXPECT_FALSE(text.hasLines);
}

TEST_F(RowTexts, ParameterRowHasKeyAndValueAndKeepsItsNames)
{
    parameter.parameter.min = 0.0;
    row.msg.setId(pitchKey | fsb | 3);
    receiveProfileText(row, parameter, store, 0, text);
    EXPECT_THAT(cells(7), ElementsAre("12", "0x8200190", "$2/$4/$64/$0/$0", "-", "-",
                                      testing::StartsWith("165.0"), "-"));
    EXPECT_FALSE(text.hasLines);
}

TEST_F(RowTexts, NumberTypeOfTheParameterKeyIsReversed)
{
    row.msg.setId(pitchKey | 1U << 17);
    receiveProfileText(row, parameter, store, 1, text);
    EXPECT_EQ(cells(7)[2], "2/4/100/1/0");
    EXPECT_EQ(cells(7)[1], "0x8220190") << "always hexadecimal";
    receiveProfileText(row, parameter, store, 0, text);
    EXPECT_EQ(cells(7)[2], "$2/$4/$64/$1/$0");
    EXPECT_EQ(cells(7)[1], "0x8220190");
}

TEST_F(RowTexts, UnknownParameterHasNoData)
{
    receiveProfileText(row, ReceiveParameter(), store, 0, text);
    EXPECT_EQ(cells(7)[5], "NO DATA");
}

TEST_F(RowTexts, TextsTakeNoMemory)
{
    row.msg.setId(pitchKey);
    const std::uint64_t before = zul::test::allocationCount();
    receiveProfileText(row, parameter, store, 0, text);
    receiveRawText(row, 1, text);
    receiveCanAerospaceText(row, 0, text);
    EXPECT_EQ(zul::test::allocationCount(), before);
}

TEST_F(RowTexts, ParameterErrorFrameLosesItsNamesButTheUnit)
{
    row.msg.setId(pitchKey);
    row.msg.setFrameType(MessageCan::EFrameType::Error);
    receiveProfileText(row, parameter, store, 0, text);
    EXPECT_THAT(cells(7), ElementsAre("12", "0x8200190", "ERROR FRAME", "", "", "", "-"));
    EXPECT_TRUE(text.isError);
}

} // namespace

#include "traffic/ReceiveOrder.h"

#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "profile/DataTypes.h"
#include "project/Filter.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <numeric>

// How rows of the ARINC 825 modes stand when the user sorts them.

namespace {

using testing::ElementsAre;
using zul::ArincType;
using zul::MessageCan;

std::uint32_t dataId(std::uint32_t lcc, std::uint32_t fid, std::uint32_t doc, std::uint32_t rci = 0)
{
    return lcc << 26 | fid << 19 | doc << 2 | rci;
}

class Order : public testing::Test
{
protected:
    void feed(std::uint32_t id, std::initializer_list<std::uint8_t> bytes, double time = 1.0,
              MessageCan::EFrameType type = MessageCan::EFrameType::Data)
    {
        auto* frame = new MessageCan;
        frame->setId(id);
        frame->setByteCount(static_cast<std::uint32_t>(bytes.size()));
        frame->setTimeStamp(time);
        frame->setFrameType(type);
        std::int32_t place = 0;
        for (const std::uint8_t byte : bytes) {
            frame->msg()[place++] = byte;
        }
        MessageContainer batch;
        batch.addMessage(SmartPtr<Message>(frame));
        table.update(batch, true, Filter(), 100.0);
    }
    /// Numbers of the rows in ascending order.
    template <typename Column>
    std::vector<int> sorted(DisplayMode mode, Column column) const
    {
        std::vector<int> rows(static_cast<std::size_t>(table.rowCount()));
        std::iota(rows.begin(), rows.end(), 0);
        const auto isLess = [&](int left, int right) {
            return isReceiveRowLess(table, mode, static_cast<int>(column), left, right);
        };
        std::sort(rows.begin(), rows.end(), [&](int left, int right) {
            return isLess(left, right) || (!isLess(right, left) && left < right);
        });
        return rows;
    }
    void addParameter(std::uint32_t id, const char* name, ArincType type, const char* unit = "U")
    {
        ProfileParameter parameter;
        parameter.id = id;
        parameter.nme = QString::fromLatin1(name);
        parameter.pun = QString::fromLatin1(unit);
        parameter.dtc = static_cast<std::uint32_t>(type);
        parameter.eppBit = 7;
        parameter.max = 255.0;
        index.emplace(id, parameter);
    }

    ProfileStore::ParameterIndex index;
    ReceiveTable table;
};

TEST_F(Order, RawColumnsSortByTheirNumbers)
{
    constexpr auto mode = DisplayMode::Arinc825Raw;
    feed(dataId(2, 4, 100, 3), {200}, 10.0); // 0
    feed(dataId(0, 16, 9), {9}, 100.0);      // 1
    feed(dataId(7, 4, 99, 1), {30}, 9.0);    // 2
    feed(dataId(0, 16, 9), {9}, 100.0);
    EXPECT_THAT(sorted(mode, ReceiveRawColumn::Count), ElementsAre(0, 2, 1));
    EXPECT_THAT(sorted(mode, ReceiveRawColumn::Id), ElementsAre(1, 0, 2));
    EXPECT_THAT(sorted(mode, ReceiveRawColumn::Time), ElementsAre(2, 0, 1));
    EXPECT_THAT(sorted(mode, ReceiveRawColumn::Lcc), ElementsAre(1, 0, 2));
    EXPECT_THAT(sorted(mode, ReceiveRawColumn::Fields), ElementsAre(2, 0, 1));
    EXPECT_THAT(sorted(mode, ReceiveRawColumn::Rci), ElementsAre(1, 2, 0));
    EXPECT_THAT(sorted(mode, ReceiveRawColumn::Data), ElementsAre(1, 2, 0));
}

TEST_F(Order, ParameterColumnsSortByNumbersAndNames)
{
    constexpr auto mode = DisplayMode::Arinc825Profile;
    addParameter(dataId(2, 4, 100), "Beta", ArincType::UChar, "m");
    addParameter(dataId(2, 10, 9), "Alpha", ArincType::UChar, "kg");
    table.showParameters(index);
    feed(dataId(2, 4, 100, 2), {200}); // 0
    feed(dataId(2, 10, 9, 1), {30});   // 1
    feed(dataId(2, 4, 9), {9});        // 2, unknown
    feed(dataId(2, 10, 9, 1), {30});
    EXPECT_THAT(sorted(mode, ReceiveProfileColumn::Count), ElementsAre(0, 2, 1));
    EXPECT_THAT(sorted(mode, ReceiveProfileColumn::Id), ElementsAre(2, 0, 1));
    EXPECT_THAT(sorted(mode, ReceiveProfileColumn::Key), ElementsAre(2, 0, 1));
    EXPECT_THAT(sorted(mode, ReceiveProfileColumn::Rci), ElementsAre(2, 1, 0));
    EXPECT_THAT(sorted(mode, ReceiveProfileColumn::Parameter), ElementsAre(1, 0, 2));
    EXPECT_THAT(sorted(mode, ReceiveProfileColumn::Unit), ElementsAre(2, 1, 0));
}

TEST_F(Order, KeySortsByDocBeforeLocalAndPrivateBit)
{
    constexpr std::uint32_t lcl = 1U << 17;
    table.showParameters(index);
    feed(dataId(2, 4, 9) | lcl, {});
    feed(dataId(2, 4, 10), {});
    EXPECT_THAT(sorted(DisplayMode::Arinc825Profile, ReceiveProfileColumn::Key), ElementsAre(0, 1));
    EXPECT_THAT(sorted(DisplayMode::Arinc825Profile, ReceiveProfileColumn::Id), ElementsAre(1, 0));
}

TEST_F(Order, ValuesSortAsNumbersBehindThoseThatAreNone)
{
    addParameter(dataId(2, 4, 1), "A", ArincType::UChar);
    addParameter(dataId(2, 4, 2), "B", ArincType::UChar);
    addParameter(dataId(2, 4, 3), "C", ArincType::Opaque);
    addParameter(dataId(2, 4, 4), "D", ArincType::Bool);
    table.showParameters(index);
    feed(dataId(2, 4, 1), {100}); // 0: larger as a number alone
    feed(dataId(2, 4, 2), {20});  // 1
    feed(dataId(2, 4, 3), {7});   // 2: a text
    feed(dataId(2, 4, 4), {1});   // 3: true
    feed(dataId(2, 4, 5), {});    // 4: "NO DATA"
    EXPECT_THAT(sorted(DisplayMode::Arinc825Profile, ReceiveProfileColumn::Value),
                ElementsAre(2, 4, 3, 1, 0));
}

TEST_F(Order, ValueThatIsNotANumberHasItsPlace)
{
    addParameter(dataId(2, 4, 1), "A", ArincType::Float);
    addParameter(dataId(2, 4, 2), "B", ArincType::Float);
    addParameter(dataId(2, 4, 3), "C", ArincType::Float);
    for (auto& [id, parameter] : index) {
        parameter.sppByte = 3;
        parameter.sppBit = 0;
        parameter.eppByte = 0;
        parameter.eppBit = 7;
    }
    table.showParameters(index);
    feed(dataId(2, 4, 1), {0x40, 0, 0, 0});    // 2.0
    feed(dataId(2, 4, 2), {0x7F, 0xC0, 0, 0}); // not a number
    feed(dataId(2, 4, 3), {0xC0, 0, 0, 0});    // -2.0
    EXPECT_THAT(sorted(DisplayMode::Arinc825Profile, ReceiveProfileColumn::Value),
                ElementsAre(1, 2, 0));
}

TEST_F(Order, ErrorFrameHasNoValue)
{
    addParameter(dataId(2, 4, 1), "A", ArincType::UChar);
    addParameter(dataId(2, 4, 2), "B", ArincType::UChar);
    table.showParameters(index);
    feed(dataId(2, 4, 1), {1});
    feed(dataId(2, 4, 2), {9}, 1.0, MessageCan::EFrameType::Error);
    EXPECT_THAT(sorted(DisplayMode::Arinc825Profile, ReceiveProfileColumn::Value),
                ElementsAre(1, 0));
}

TEST_F(Order, ColumnThatTheSetHasNotSortsNothing)
{
    feed(5, {1});
    feed(4, {0});
    for (const auto mode : {DisplayMode::Can, DisplayMode::Arinc825Raw}) {
        EXPECT_THAT(sorted(mode, -1), ElementsAre(0, 1));
        EXPECT_THAT(sorted(mode, 99), ElementsAre(0, 1));
    }
}

TEST_F(Order, ErrorFramesComeFirstInColumnsThatTheyEmpty)
{
    table.showParameters(index);
    feed(dataId(2, 9, 9), {9});
    feed(dataId(2, 1, 1), {1});
    feed(dataId(2, 8, 8), {}, 1.0, MessageCan::EFrameType::Error);
    constexpr auto mode = DisplayMode::Arinc825Profile;
    EXPECT_EQ(sorted(mode, ReceiveProfileColumn::Value).front(), 2);
    EXPECT_EQ(sorted(mode, ReceiveProfileColumn::Parameter).front(), 2);
    EXPECT_EQ(sorted(mode, ReceiveProfileColumn::Id).front(), 1);
    EXPECT_EQ(sorted(DisplayMode::Arinc825Raw, ReceiveRawColumn::Data).front(), 2);
    EXPECT_EQ(sorted(DisplayMode::Arinc825Raw, ReceiveRawColumn::Id).front(), 1);
    EXPECT_EQ(sorted(DisplayMode::Can, ReceiveColumn::Id).front(), 1);
}

TEST_F(Order, CanAerospaceLinesSortByWords)
{
    feed(1800, {1, 2}); // user-defined, low priority
    feed(300, {9, 2});  // normal operation
    feed(0, {5, 1});    // emergency
    EXPECT_THAT(sorted(DisplayMode::Can, ReceiveColumn::Message), ElementsAre(0, 2, 1));
    EXPECT_THAT(sorted(DisplayMode::CanAerospace, ReceiveColumn::Message).front(), 2);
}

} // namespace

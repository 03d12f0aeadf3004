#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "project/Filter.h"
#include "traffic/ReceiveOrder.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <numeric>

// Where rows of error frames stand when the user sorts: by what their cells show.

namespace {

using testing::ElementsAre;
using zul::MessageCan;

constexpr auto data = MessageCan::EFrameType::Data;
constexpr auto error = MessageCan::EFrameType::Error;

class ErrorOrder : public testing::Test
{
protected:
    void feed(std::uint32_t id, std::initializer_list<std::uint8_t> bytes,
              MessageCan::EFrameType type = data)
    {
        auto* frame = new MessageCan;
        frame->setId(id);
        frame->setByteCount(static_cast<std::uint32_t>(bytes.size()));
        frame->setFrameType(type);
        std::int32_t place = 0;
        for (const std::uint8_t byte : bytes) {
            frame->msg()[place++] = byte;
        }
        MessageContainer batch;
        batch.addMessage(SmartPtr<Message>(frame));
        table.update(batch, true, Filter(), 100.0);
    }
    /// What painting tells of all rows.
    void paint()
    {
        for (const int row : table.dirtyRows()) {
            table.notePainted(row);
        }
        table.clearDirty();
    }
    template <typename Column>
    std::vector<int> sorted(DisplayMode mode, Column column) const
    {
        std::vector<int> rows(static_cast<std::size_t>(table.rowCount()));
        std::iota(rows.begin(), rows.end(), 0);
        std::stable_sort(rows.begin(), rows.end(), [&](int left, int right) {
            return isReceiveRowLess(table, mode, static_cast<int>(column), left, right);
        });
        return rows;
    }

    ProfileStore::ParameterIndex index;
    ReceiveTable table;
};

TEST_F(ErrorOrder, EmptyLengthsComeFirst)
{
    feed(1, {1});
    feed(2, {1, 2, 3}, error);
    feed(3, {});
    for (const DisplayMode mode : {DisplayMode::Can, DisplayMode::CanAerospace}) {
        EXPECT_THAT(sorted(mode, ReceiveColumn::Length), ElementsAre(1, 2, 0));
    }
}

TEST_F(ErrorOrder, MessageThatAnErrorFrameLeavesStandingCounts)
{
    feed(1, {50});
    feed(2, {20});
    feed(3, {30});
    paint();
    feed(1, {10}, error); // shows 50
    EXPECT_THAT(sorted(DisplayMode::Can, ReceiveColumn::Message), ElementsAre(1, 2, 0));
    paint();
    EXPECT_THAT(sorted(DisplayMode::Can, ReceiveColumn::Message), ElementsAre(1, 2, 0));
    feed(1, {25});
    EXPECT_THAT(sorted(DisplayMode::Can, ReceiveColumn::Message), ElementsAre(1, 0, 2));
}

TEST_F(ErrorOrder, MessageThatWasNeverPaintedDoesNotCount)
{
    feed(1, {50});
    feed(2, {20});
    paint();
    feed(1, {5});
    feed(1, {99}, error); // 5 has never been on the screen
    EXPECT_THAT(sorted(DisplayMode::Can, ReceiveColumn::Message), ElementsAre(1, 0));
    ASSERT_NE(table.paintedFrame(0), nullptr);
    EXPECT_EQ(table.paintedFrame(0)->msg()[0], 50);
}

TEST_F(ErrorOrder, EmptyMessagesComeFirst)
{
    feed(1, {0});
    feed(2, {9}, error);
    paint();
    EXPECT_EQ(table.paintedFrame(1), nullptr);
    EXPECT_EQ(table.paintedFrame(7), nullptr);
    EXPECT_THAT(sorted(DisplayMode::Can, ReceiveColumn::Message), ElementsAre(1, 0));
    EXPECT_THAT(sorted(DisplayMode::CanAerospace, ReceiveColumn::Message), ElementsAre(1, 0));
}

TEST_F(ErrorOrder, CanAerospaceLineThatStandsCounts)
{
    feed(1800, {1, 2});
    feed(0, {5, 1});
    paint();
    ASSERT_EQ(sorted(DisplayMode::CanAerospace, ReceiveColumn::Message).front(), 1);
    feed(1800, {}, error);
    paint();
    EXPECT_EQ(sorted(DisplayMode::CanAerospace, ReceiveColumn::Message).front(), 1);
}

TEST_F(ErrorOrder, ClearedRowsHaveShownNothing)
{
    feed(1, {50});
    paint();
    table.clear();
    feed(1, {50});
    EXPECT_EQ(table.paintedFrame(0), nullptr);
}

TEST_F(ErrorOrder, RowsWhoseNamesAreLostStandTogetherFirst)
{
    constexpr auto mode = DisplayMode::Arinc825Profile;
    constexpr std::uint32_t lcc = 2U << 26;
    for (const char* name : {"Alpha", "Beta", "Gamma"}) {
        ProfileParameter parameter;
        parameter.id = lcc | static_cast<std::uint32_t>(index.size() + 1) << 2;
        parameter.nme = QString::fromLatin1(name);
        index.emplace(parameter.id, parameter);
    }
    table.showParameters(index);
    const auto id = [](std::uint32_t doc, std::uint32_t rci) { return lcc | doc << 2 | rci; };
    feed(id(1, 0), {1}); // 0 Alpha
    feed(id(2, 1), {1}); // 1 Beta
    feed(id(3, 2), {1}); // 2 Gamma
    paint();
    EXPECT_THAT(sorted(mode, ReceiveProfileColumn::Parameter), ElementsAre(0, 1, 2));
    feed(id(3, 2), {}, error);
    paint();
    feed(id(2, 1), {}, error); // never painted
    feed(id(2, 1), {1});
    feed(id(3, 2), {1}); // a value again, but no name
    paint();
    EXPECT_THAT(sorted(mode, ReceiveProfileColumn::Parameter), ElementsAre(2, 0, 1));
    EXPECT_THAT(sorted(mode, ReceiveProfileColumn::Rci), ElementsAre(2, 0, 1));
    EXPECT_THAT(sorted(mode, ReceiveProfileColumn::Value), ElementsAre(0, 1, 2));
    EXPECT_THAT(sorted(mode, ReceiveProfileColumn::Id), ElementsAre(0, 1, 2));
}

} // namespace

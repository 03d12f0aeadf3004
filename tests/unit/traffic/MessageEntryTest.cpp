#include "traffic/MessageEntry.h"

#include <gtest/gtest.h>

namespace {

using namespace messageentry;

TEST(MessageEntry, OddModesBelowSixAreExtended)
{
    for (const std::uint32_t mode : {1U, 3U, 5U}) {
        EXPECT_TRUE(isExtended(mode)) << mode;
        EXPECT_EQ(arinc825Mode(mode), mode);
    }
    for (const std::uint32_t mode : {0U, 2U, 4U, 6U, 7U, 77U, 0xFFFFFFFFU}) {
        EXPECT_FALSE(isExtended(mode)) << mode;
        EXPECT_EQ(arinc825Mode(mode), 1U);
    }
}

TEST(MessageEntry, IdentifierIsBoundedByItsMode)
{
    EXPECT_EQ(boundedId(0x1FFFFFFF, 1), 0x1FFFFFFFU);
    EXPECT_EQ(boundedId(0x20000000, 3), 0x1FFFFFFFU);
    EXPECT_EQ(boundedId(0xFFFFFFFF, 5), 0x1FFFFFFFU);
    EXPECT_EQ(boundedId(0x1FFFFFFF, 0), 2047U);
    EXPECT_EQ(boundedId(2047, 2), 2047U);
    EXPECT_EQ(boundedId(2048, 4), 2047U);
    EXPECT_EQ(boundedId(2048, 77), 2047U);
}

TEST(MessageEntry, EntryOf29BitIdentifiersTakesOneMoreThanTheyHold)
{
    EXPECT_EQ(idEntryMaximum(1), 0x20000000);
    EXPECT_EQ(idEntryMaximum(3), 0x20000000);
    EXPECT_EQ(idEntryMaximum(5), 0x20000000);
    EXPECT_EQ(idEntryMaximum(0), 2047);
    EXPECT_EQ(idEntryMaximum(77), 2047);
}

struct Rows
{
    std::uint32_t byteCount;
    int rows;
    int height;
};

class PayloadRows : public testing::TestWithParam<Rows>
{
};

TEST_P(PayloadRows, FollowTheByteCount)
{
    EXPECT_EQ(shownRows(GetParam().byteCount), GetParam().rows);
    EXPECT_EQ(editorHeight(GetParam().byteCount), GetParam().height);
}

INSTANTIATE_TEST_SUITE_P(Counts, PayloadRows,
                         testing::Values(Rows{0, 1, 40}, Rows{16, 1, 40}, Rows{17, 2, 40},
                                         Rows{32, 2, 40}, Rows{33, 3, 60}, Rows{48, 3, 60},
                                         Rows{49, 4, 80}, Rows{64, 4, 80}, Rows{65, 4, 80},
                                         Rows{4'000'000'000U, 4, 80}));

TEST(MessageEntry, BytesAreShownInTwoHexadecimalDigitsOrDecimal)
{
    EXPECT_EQ(byteText(0, 1), QStringLiteral("0x00"));
    EXPECT_EQ(byteText(171, 1), QStringLiteral("0xAB"));
    EXPECT_EQ(byteText(171, 0), QStringLiteral("171"));
    EXPECT_EQ(byteText(5, 0), QStringLiteral("5"));
}

TEST(MessageEntry, TypedByteIsClampedOrCut)
{
    EXPECT_EQ(boundedByte(300), 255);
    EXPECT_EQ(boundedByte(-1), 0);
    EXPECT_EQ(boundedByte(std::numeric_limits<qlonglong>::max()), 255);
    EXPECT_EQ(boundedByte(17), 17);
    EXPECT_EQ(lowByte(300), 44);
    EXPECT_EQ(lowByte(-1), 255);
    EXPECT_EQ(lowByte(17), 17);
}

} // namespace

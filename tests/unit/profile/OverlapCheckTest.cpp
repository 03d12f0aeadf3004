#include "profile/OverlapCheck.h"

#include "profile/BitPosition.h"

#include <gtest/gtest.h>

namespace {

ProfileParameter at(std::uint32_t sppByte, std::uint32_t sppBit, std::uint32_t eppByte,
                    std::uint32_t eppBit, std::uint32_t id = 1)
{
    ProfileParameter made;
    made.id = id;
    made.sppByte = sppByte;
    made.sppBit = sppBit;
    made.eppByte = eppByte;
    made.eppBit = eppBit;
    return made;
}

class Overlap : public testing::Test
{
protected:
    zul::OverlapCheck check;
};

TEST(LinearPosition, CountsFromTheLastByte)
{
    EXPECT_EQ(zul::linearPosition(7, 0), 0);
    EXPECT_EQ(zul::linearPosition(0, 7), 63);
    EXPECT_EQ(zul::linearPosition(0, 0), 56);
    EXPECT_EQ(zul::linearPosition(8, 0), -8);
    EXPECT_EQ(zul::linearPosition(4294967295U, 0), 64) << "byte -1";
    EXPECT_EQ(zul::linearPosition(7, 4294967295U), -1) << "bit -1";
    EXPECT_LT(zul::linearPosition(2147483647U, 0), 0);
    EXPECT_GT(zul::linearPosition(0, 2147483647U), 63);
}

TEST_F(Overlap, NeighboursDoNotConflict)
{
    EXPECT_EQ(check.mark(at(0, 0, 0, 3), 1), std::nullopt);
    EXPECT_EQ(check.mark(at(0, 4, 0, 7), 2), std::nullopt);
}

TEST_F(Overlap, SharedBitConflicts)
{
    EXPECT_EQ(check.mark(at(0, 0, 0, 4), 10), std::nullopt);
    EXPECT_EQ(check.mark(at(0, 4, 0, 7), 20), 10);
}

TEST_F(Overlap, IdentifiersAreApart)
{
    EXPECT_EQ(check.mark(at(0, 0, 0, 7, 1), 1), std::nullopt);
    EXPECT_EQ(check.mark(at(0, 0, 0, 7, 2), 2), std::nullopt);
}

TEST_F(Overlap, WalkEndsAtTheFirstConflictWhichTakesTheLine)
{
    EXPECT_EQ(check.mark(at(7, 4, 7, 5), 1), std::nullopt);
    EXPECT_EQ(check.mark(at(7, 0, 7, 7), 2), 1); // marks bits 0 to 4, and ends there
    EXPECT_EQ(check.mark(at(7, 4, 7, 4), 3), 2);
    EXPECT_EQ(check.mark(at(7, 5, 7, 5), 4), 1);
    EXPECT_EQ(check.mark(at(7, 6, 7, 7), 5), std::nullopt);
    EXPECT_EQ(check.mark(at(7, 0, 7, 0), 6), 2);
}

TEST_F(Overlap, NoDataTakesOneBit)
{
    EXPECT_EQ(check.mark(at(0, 0, 0, 0), 1), std::nullopt);
    EXPECT_EQ(check.mark(at(0, 1, 0, 7), 2), std::nullopt);
    EXPECT_EQ(check.mark(at(0, 0, 0, 0), 3), 1);
}

TEST_F(Overlap, PositionsOutsideTheFrameAreIgnored)
{
    EXPECT_EQ(check.mark(at(9, 0, 9, 7), 1), std::nullopt);
    EXPECT_EQ(check.mark(at(9, 0, 9, 7), 2), std::nullopt);
    EXPECT_EQ(check.mark(at(0, 60, 0, 2147483647U), 3), std::nullopt);
    EXPECT_EQ(check.mark(at(4294967295U, 0, 0, 7), 4), std::nullopt) << "from byte -1";
    EXPECT_EQ(check.mark(at(7, 0, 0, 7), 5), std::nullopt);
    EXPECT_EQ(check.mark(at(2147483647U, 0, 0, 2147483647U), 6), 5);
}

TEST_F(Overlap, MarksOfManyLinesAreFoundAgain)
{
    for (int line = 1; line <= 64; ++line) {
        const auto position = static_cast<std::uint32_t>(line - 1);
        EXPECT_EQ(check.mark(at(position / 8, position % 8, position / 8, position % 8), line),
                  std::nullopt);
    }
    for (int line = 1; line <= 64; ++line) {
        const auto position = static_cast<std::uint32_t>(line - 1);
        EXPECT_EQ(check.mark(at(position / 8, position % 8, 0, 7), 100 + line), line);
    }
}

TEST_F(Overlap, EndBelowStartMarksNothing)
{
    EXPECT_EQ(check.mark(at(0, 7, 7, 0), 1), std::nullopt);
    EXPECT_EQ(check.mark(at(7, 0, 0, 7), 2), std::nullopt);
}

} // namespace

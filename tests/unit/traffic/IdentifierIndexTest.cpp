#include "traffic/IdentifierIndex.h"

#include <gtest/gtest.h>
#include <random>
#include <unordered_map>

namespace {

TEST(IdentifierIndex, FirstRowStaysUntilItIsCleared)
{
    IdentifierIndex index;
    index.prefetch(7);
    EXPECT_EQ(index.findOrAdd(7, 0), 0);
    EXPECT_EQ(index.findOrAdd(0, 1), 1);
    EXPECT_EQ(index.findOrAdd(0xFFFFFFFFU, 2), 2);
    EXPECT_EQ(index.findOrAdd(7, 3), 0);
    EXPECT_EQ(index.findOrAdd(0, 3), 1);
    index.clear();
    index.prefetch(7);
    EXPECT_EQ(index.findOrAdd(7, 5), 5);
}

// `draw` gives the identifiers.
template <typename Draw>
void agreesWithAMap(Draw draw)
{
    IdentifierIndex index;
    std::unordered_map<std::uint32_t, int> map;
    for (int i = 0; i < 50'000; ++i) {
        const std::uint32_t identifier = draw();
        const int newRow = static_cast<int>(map.size());
        const int expected = map.try_emplace(identifier, newRow).first->second;
        ASSERT_EQ(index.findOrAdd(identifier, newRow), expected) << "step " << i;
    }
}

TEST(IdentifierIndex, AgreesWithAMapWhateverTheIdentifiersAre)
{
    constexpr unsigned seed = 825;
    std::mt19937 generator(seed);
    std::uniform_int_distribution<std::uint32_t> standard(0, 0x7FF);
    std::uniform_int_distribution<std::uint32_t> extended(0, 0x1FFFFFFF);
    agreesWithAMap([&] { return standard(generator); });
    agreesWithAMap([&] { return extended(generator); });
    agreesWithAMap([&] { return extended(generator) & 0x1FFF0000U; });
}

TEST(IdentifierIndex, NeighboursFindTheirPlaces)
{
    std::uint32_t next = 0;
    agreesWithAMap([&] { return next++ % 30'000; });
}

} // namespace

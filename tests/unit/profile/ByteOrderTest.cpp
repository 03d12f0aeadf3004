#include "profile/ByteOrder.h"

#include <array>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace {

using namespace zul;

// They are constants where their arguments are.
static_assert(bigEndianToHost(std::uint16_t{0x1234}, HostOrder::Little) == 0x3412);
static_assert(bigEndianToHost(std::uint32_t{0x12345678}, HostOrder::Little) == 0x78563412);
static_assert(bigEndianToHost(std::uint64_t{0x123456789abcdef0}, HostOrder::Little) ==
              0xf0debc9a78563412);

TEST(ByteOrder, IsThatOfTheMemory)
{
    const std::uint32_t number = 0x01020304;
    std::uint8_t first = 0;
    std::memcpy(&first, &number, sizeof first);
    EXPECT_EQ(hostOrder, first == 1 ? HostOrder::Big : HostOrder::Little);
}

TEST(ByteOrder, BigEndianHostReversesNothing)
{
    EXPECT_EQ(bigEndianToHost(std::uint16_t{0x1234}, HostOrder::Big), 0x1234U);
    EXPECT_EQ(bigEndianToHost(std::uint32_t{0x12345678}, HostOrder::Big), 0x12345678U);
    EXPECT_EQ(bigEndianToHost(std::uint64_t{0x123456789abcdef0}, HostOrder::Big),
              0x123456789abcdef0U);
}

template <typename Unsigned>
void expectBytesToBecomeTheirNumber()
{
    constexpr unsigned seed = 16;
    std::mt19937 generator(seed);
    std::array<std::uint8_t, sizeof(Unsigned) + 1> bytes{};
    for (int i = 0; i < 1000; ++i) {
        std::uint64_t expected = 0;
        for (std::size_t byte = 1; byte < bytes.size(); ++byte) {
            bytes[byte] = static_cast<std::uint8_t>(generator());
            expected = expected * 256 + bytes[byte];
        }
        // One beside the start: bytes of a frame are not aligned.
        const auto number = bigEndianToHost(loadBits<Unsigned>(bytes.data() + 1));
        ASSERT_EQ(number, expected) << "seed " << seed;
        ASSERT_EQ(bigEndianToHost(bigEndianToHost(number)), number) << "seed " << seed;
    }
}

TEST(ByteOrder, BytesOfAFrameBecomeTheirNumber)
{
    expectBytesToBecomeTheirNumber<std::uint16_t>();
    expectBytesToBecomeTheirNumber<std::uint32_t>();
    expectBytesToBecomeTheirNumber<std::uint64_t>();
}

TEST(ByteOrder, BitsAreTakenForAnyTypeOfTheirSize)
{
    EXPECT_EQ(numberOfBits<std::int8_t>(std::uint8_t{0x80}), -128);
    EXPECT_EQ(numberOfBits<std::int16_t>(std::uint16_t{0xffff}), -1);
    EXPECT_EQ(numberOfBits<std::int64_t>(std::uint64_t{1} << 63U),
              std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(numberOfBits<float>(std::uint32_t{0x3fc00000}), 1.5F);
    EXPECT_EQ(numberOfBits<double>(std::uint64_t{0x3ff8000000000000}), 1.5);
}

} // namespace

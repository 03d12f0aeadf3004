#include "profile/ValueCodec.h"
#include "tests/unit/profile/AllocationCount.h"
#include "tests/unit/profile/CodecReference.h"

#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <random>

namespace {

using namespace zul;
using test::EightBytes;
using test::frameOf;

/// Parameters and frames, most of them sensible in part.
class Generator
{
public:
    explicit Generator(unsigned seed) : m_generator(seed) {}

    std::uint32_t number() { return static_cast<std::uint32_t>(m_generator()); }
    std::uint32_t below(std::uint32_t limit) { return number() % limit; }

    std::uint32_t position(std::uint32_t sensible)
    {
        switch (below(8)) {
        case 0:
            return below(80);
        case 1:
            return number();
        case 2:
            return 0xffffffffU - below(80);
        default:
            return below(sensible);
        }
    }

    double real()
    {
        switch (below(12)) {
        case 0:
            return std::numeric_limits<double>::infinity();
        case 1:
            return std::numeric_limits<double>::quiet_NaN();
        case 2:
            return -std::numeric_limits<double>::max();
        case 3:
            return 0.0;
        default:
            return std::uniform_real_distribution<double>(-1000.0, 1000.0)(m_generator);
        }
    }

    EightBytes bytes()
    {
        EightBytes bytes{};
        const std::uint32_t style = below(4);
        for (std::uint8_t& byte : bytes) {
            const std::uint32_t random = number();
            const bool isExtreme = style == 0 && random / 256 % 2 == 0;
            byte = static_cast<std::uint8_t>(isExtreme ? random / 512 % 2 * 255 : random);
        }
        return bytes;
    }

    void fill(ProfileParameter& parameter)
    {
        parameter.parameterKind = static_cast<ParameterKind>(below(16) == 0 ? number() : below(3));
        parameter.dtc = below(16) == 0 ? number() : below(34);
        parameter.sppByte = position(8);
        parameter.sppBit = position(8);
        parameter.eppByte = position(8);
        parameter.eppBit = position(8);
        parameter.endian = below(3);
        parameter.min = real();
        parameter.max = real();
        parameter.scaleFactor = real();
        parameter.scaleOffset = real();
    }

private:
    std::mt19937 m_generator;
};

bool same(double left, double right)
{
    return left == right || (std::isnan(left) && std::isnan(right));
}

std::string described(const EightBytes& bytes, const ProfileParameter& parameter)
{
    std::string text = "bytes";
    for (const std::uint8_t byte : bytes) {
        text += test::printed(" %02x", byte);
    }
    return text +
           test::printed(" kind %u dtc %u SPP %u.%u EPP %u.%u endian %u",
                         static_cast<unsigned>(parameter.parameterKind), parameter.dtc,
                         parameter.sppByte, parameter.sppBit, parameter.eppByte, parameter.eppBit,
                         parameter.endian) +
           test::printed(" min %g max %g factor %g offset %g", parameter.min, parameter.max,
                         parameter.scaleFactor, parameter.scaleOffset);
}

TEST(ValueCodecProperty, AgreesWithTheReferenceOnEveryFrameAndParameter)
{
    constexpr int rounds = 200'000;
    const unsigned seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    RecordProperty("seed", std::to_string(seed));
    std::printf("seed %u\n", seed);
    Generator generator(seed);
    ProfileParameter parameter;
    for (int i = 0; i < rounds; ++i) {
        const EightBytes bytes = generator.bytes();
        generator.fill(parameter);
        const MessageCan frame = frameOf(bytes);
        const double value = valueOf(frame, parameter);
        const double expected = test::reference::valueOf(bytes, parameter);
        ASSERT_PRED2(same, value, expected) << described(bytes, parameter);
        ASSERT_EQ(enumValue(frame, parameter), test::reference::enumValue(bytes, parameter))
            << described(bytes, parameter);
        ASSERT_PRED2(same, rawValue(frame, parameter.dtc, parameter.endian),
                     test::reference::rawReading(bytes, parameter.dtc, parameter.endian))
            << described(bytes, parameter);
    }
}

TEST(ValueCodecProperty, IntegersOfTheirWholeRangeComeBack)
{
    constexpr unsigned seed = 64;
    Generator generator(seed);
    ProfileParameter parameter = test::arincParameter(ArincType::Short, {1, 0, 0, 7});
    parameter.max = 65535.0 / 2;
    ProfileParameter word = test::arincParameter(ArincType::ULong, {7, 0, 4, 7});
    word.max = 4294967295.0;
    for (int number = -32768; number < 32768; ++number) {
        const auto bits = static_cast<std::uint32_t>(number);
        EightBytes bytes = generator.bytes();
        bytes[0] = static_cast<std::uint8_t>(bits >> 8U);
        bytes[1] = static_cast<std::uint8_t>(bits);
        const MessageCan frame = frameOf(bytes);
        ASSERT_EQ(valueOf(frame, parameter), number);
        ASSERT_EQ(rawValue(frame, 8, 1), static_cast<float>(number));
        ASSERT_EQ(valueOf(frame, word),
                  static_cast<double>(test::reference::bigEndian(bytes, 4, 4)))
            << "seed " << seed;
    }
}

TEST(ValueCodecProperty, FieldsOfEveryPositionComeBack)
{
    constexpr unsigned seed = 63;
    Generator generator(seed);
    for (std::uint32_t start = 0; start < 64; ++start) {
        for (std::uint32_t end = start; end < 64; ++end) {
            const std::uint64_t most = ~std::uint64_t{0} >> (63 - (end - start));
            const std::uint64_t value =
                ((std::uint64_t{generator.number()} << 32U) | generator.number()) & most;
            EightBytes bytes = generator.bytes();
            for (std::uint32_t bit = start; bit <= end; ++bit) {
                std::uint8_t& byte = bytes[7 - bit / 8];
                const auto mask = static_cast<std::uint8_t>(1U << bit % 8);
                byte = static_cast<std::uint8_t>(byte & ~mask);
                if ((value >> (bit - start)) % 2 != 0) {
                    byte = static_cast<std::uint8_t>(byte | mask);
                }
            }
            const ProfileParameter parameter = test::arincParameter(
                ArincType::Enum, {7 - start / 8, start % 8, 7 - end / 8, end % 8});
            ASSERT_EQ(enumValue(frameOf(bytes), parameter), value)
                << "seed " << seed << " " << start << " to " << end;
        }
    }
}

TEST(ValueCodecProperty, ValuesTakeNoMemory)
{
    const std::uint64_t atFirst = test::allocationCount();
    const auto counted = std::make_unique<int>(1);
    ASSERT_GT(test::allocationCount(), atFirst) << "allocations are not counted";

    constexpr unsigned seed = 1;
    Generator generator(seed);
    ProfileParameter parameter;
    std::uint64_t allocations = 0;
    double sum = 0.0;
    for (int i = 0; i < 20'000; ++i) {
        const MessageCan frame = frameOf(generator.bytes());
        generator.fill(parameter);
        const std::uint64_t before = test::allocationCount();
        sum += valueOf(frame, parameter) + rawValue(frame, parameter.dtc, parameter.endian);
        allocations += test::allocationCount() - before;
    }
    EXPECT_EQ(allocations, 0U) << sum;
}

} // namespace

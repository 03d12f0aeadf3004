#include "profile/ValueText.h"

#include "core/Latin1.h"
#include "profile/ValueCodec.h"
#include "tests/support/StoreEnumerations.h"
#include "tests/unit/profile/AllocationCount.h"
#include "tests/unit/profile/CodecReference.h"

#include <gtest/gtest.h>
#include <random>

namespace {

using namespace zul;
using test::arincParameter;
using test::EightBytes;
using test::frameOf;
using test::Position;
using test::printed;

constexpr EightBytes counting{0x12, 0x34, 0x56, 0x78, 0x9a, 0xbc, 0xde, 0xf5};
constexpr EightBytes ones{0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff};
constexpr Position all{7, 0, 0, 7};
constexpr std::int32_t enumId = 4;

class ValueText : public testing::Test
{
protected:
    ValueText()
    {
        test::addEnumValue(m_store, enumId, 5, "Running");
        test::addEnumValue(m_store, enumId, -1, "All");
        test::addEnumValue(m_store, enumId, 8,
                           "\xdc"
                           "berdruck");
        test::addEnumValue(m_store, enumId, 9, std::string(400, 'x').c_str());
    }

    std::string text(const EightBytes& bytes, const ProfileParameter& parameter,
                     std::size_t capacity = 1000)
    {
        std::string buffer(capacity + 1, '#');
        EXPECT_EQ(textOf(buffer.data(), capacity, frameOf(bytes), m_store, parameter), 0);
        EXPECT_EQ(buffer[capacity], '#') << "wrote beyond the capacity";
        return buffer.c_str();
    }

    std::string text(const EightBytes& bytes, ArincType type, const Position& position,
                     double min = 0.0, double max = 1.0)
    {
        return text(bytes, arincParameter(type, position, min, max));
    }

    std::string enumText(const EightBytes& bytes, const Position& position,
                         std::int32_t id = enumId)
    {
        ProfileParameter parameter = arincParameter(ArincType::Enum, position);
        parameter.enumId = id;
        return text(bytes, parameter);
    }

    ProfileStore m_store;
};

TEST_F(ValueText, NumbersHaveSixDecimals)
{
    EXPECT_EQ(text({0, 0, 0, 0xff}, ArincType::UChar, {3, 0, 3, 7}, -10.0, 10.0), "10.000000");
    EXPECT_EQ(text({0, 0, 0, 0x80}, ArincType::Char, {3, 0, 3, 7}, -10.0, 10.0), "-10.039216");
    EXPECT_EQ(text({0xc0, 0x20}, ArincType::Float, {3, 0, 0, 7}), "-2.500000");
    EXPECT_EQ(text({0xc0, 0x04}, ArincType::Double, all), "-2.500000");
    EXPECT_EQ(text({}, ArincType::Short, {1, 0, 0, 7}), "0.000000");
    EXPECT_EQ(text({0x7f, 0x80}, ArincType::Float, {3, 0, 0, 7}), "inf");
}

TEST_F(ValueText, EveryNumericTypePrintsItsValue)
{
    for (const ArincType type :
         {ArincType::Char, ArincType::UChar, ArincType::Short, ArincType::UShort, ArincType::Long,
          ArincType::ULong, ArincType::Float, ArincType::Long64, ArincType::ULong64,
          ArincType::Double}) {
        const ProfileParameter parameter = arincParameter(type, {3, 0, 2, 7}, -7.5, 99.25);
        EXPECT_EQ(text(counting, parameter),
                  printed("%f", valueOf(frameOf(counting), parameter)).substr(0, 255));
    }
}

TEST_F(ValueText, TypesThatAreNoNumbers)
{
    EXPECT_EQ(text(ones, ArincType::NoData, {}), "NO DATA");
    EXPECT_EQ(text(counting, ArincType::Opaque, all), "18 52 86 120 154 188 222 245");
    EXPECT_EQ(text({'a', 'b', 'c'}, ArincType::AChar, {1, 0, 2, 7}), "b");
    EXPECT_EQ(text({0xe4}, ArincType::AChar, {0, 0, 0, 7}), "\xe4");
    EXPECT_EQ(text(counting, ArincType::Bool, {3, 3, 3, 3}), "true");
    EXPECT_EQ(text(counting, ArincType::Bool, {3, 2, 3, 2}), "false");
}

TEST_F(ValueText, CodeThatIsNoDataTypePrintsDashes)
{
    for (const std::uint32_t code : {16U, 17U, 0x80000001U, 0xffffffffU}) {
        EXPECT_EQ(text(ones, static_cast<ArincType>(code), all), "---") << code;
    }
}

TEST_F(ValueText, BcdIsADigitOrADash)
{
    for (std::uint8_t nibble = 0; nibble < 16; ++nibble) {
        const auto byte = static_cast<std::uint8_t>(nibble * 16 + 7);
        const std::string expected = nibble < 10 ? std::to_string(nibble) : "-";
        EXPECT_EQ(text({0, 0, byte}, ArincType::Bcd, {2, 4, 2, 7}), expected);
    }
    const ProfileParameter eleven = arincParameter(ArincType::Bcd, {2, 4, 2, 7});
    EXPECT_EQ(text({0, 0, 0xb0}, eleven), "-");
    EXPECT_EQ(valueOf(frameOf({0, 0, 0xb0}), eleven), 11.0);
}

TEST_F(ValueText, EnumIsLookedUpByItsBits)
{
    // The lowest four bits of byte 7.
    EXPECT_EQ(enumText(counting, {7, 0, 7, 3}), "5: Running");
    EXPECT_EQ(enumText({0, 0, 0, 0, 0, 0, 0x0a, 0xff}, {6, 1, 6, 3}), "5: Running");
    EXPECT_EQ(enumText({0, 0, 0, 0, 0, 0, 0, 6}, {7, 0, 7, 3}), "6: Invalid ENUM Value");
    EXPECT_EQ(enumText(counting, {7, 0, 7, 3}, 99), "Unknown ENUM Type");
}

TEST_F(ValueText, EnumWhoseTypeNameWasNotFoundIsUnknown)
{
    EXPECT_EQ(enumText(counting, {7, 0, 7, 3}, -1), "Unknown ENUM Type");
}

TEST_F(ValueText, DeliberateEnumTextIsCutOffAtItsEndButItsNumberIsNot)
{
    const ProfileParameter parameter = arincParameter(ArincType::Enum, {7, 0, 7, 3});
    EXPECT_EQ(enumText(counting, {7, 0, 7, 3}), "5: Running");
    EXPECT_EQ(valueOf(frameOf(counting), parameter), static_cast<double>(0x123456789abcdef5));
}

TEST_F(ValueText, EnumThatEndsBeforeItsStartIsEmpty)
{
    EXPECT_EQ(enumText(counting, {7, 3, 7, 2}), "");
    EXPECT_EQ(enumText(counting, {0, 0, 2000000000U, 77}), "");
    EXPECT_EQ(enumText(counting, {7, 3, 7, 2}, 99), "");
}

TEST_F(ValueText, EnumHasTheLow32BitsOfAWiderField)
{
    EXPECT_EQ(enumText(ones, {7, 0, 4, 7}), "-1: All");
    EXPECT_EQ(enumText(ones, all), "-1: All");
    EXPECT_EQ(enumText({1, 2, 3, 4, 0, 0, 0, 5}, all), "5: Running");
}

TEST_F(ValueText, EnumAtAbsurdPositionsIsZero)
{
    EXPECT_EQ(enumText(ones, {2000000000U, 77, 0, 7}), "0: Invalid ENUM Value");
    EXPECT_EQ(enumText(ones, {7, 64, 7, 0x7fffffff}), "0: Invalid ENUM Value");
}

TEST_F(ValueText, LabelIsLatin1)
{
    EXPECT_EQ(enumText({0, 0, 0, 0, 0, 0, 0, 8}, {7, 0, 7, 3}), "8: \xdc"
                                                                "berdruck");
}

TEST_F(ValueText, CharacterThatIsZeroIsEmpty)
{
    EXPECT_EQ(text({}, ArincType::AChar, {0, 0, 0, 7}), "");
    EXPECT_EQ(text(ones, ArincType::AChar, {8, 0, 8, 7}), "");
}

TEST_F(ValueText, TextsAreCutAt255Characters)
{
    const EightBytes lowest{0xff, 0xef, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff};
    const std::string number = text(lowest, ArincType::Double, all);
    EXPECT_EQ(number.size(), 255U);
    EXPECT_EQ(number, printed("%f", -std::numeric_limits<double>::max()).substr(0, 255));
    EXPECT_EQ(enumText({0, 0, 0, 0, 0, 0, 0, 9}, {7, 0, 7, 3}), "9: " + std::string(252, 'x'));
}

TEST_F(ValueText, KindOfTheParameterCountsForNothing)
{
    ProfileParameter parameter = arincParameter(ArincType::UChar, {3, 0, 3, 7}, 0.0, 255.0);
    for (const std::uint32_t kind : {0U, 1U, 2U, 3U}) {
        parameter.parameterKind = static_cast<ParameterKind>(kind);
        EXPECT_EQ(text(counting, parameter), "120.000000") << kind;
    }
}

TEST_F(ValueText, FrameShorterThanTheEndPositionYieldsAText)
{
    MessageCan frame = frameOf(counting);
    frame.setByteCount(1);
    std::array<char, valueTextCapacity> buffer{};
    textOf(buffer.data(), buffer.size(), frame, m_store,
           arincParameter(ArincType::UChar, {3, 0, 3, 7}, 0.0, 255.0));
    EXPECT_STREQ(buffer.data(), "120.000000");
}

TEST_F(ValueText, AnyBufferSizeIsSafe)
{
    for (std::uint32_t code = 0; code <= 16; ++code) {
        ProfileParameter parameter = arincParameter(static_cast<ArincType>(code), {7, 0, 7, 3});
        parameter.enumId = enumId;
        const std::string whole = text(counting, parameter);
        for (std::size_t capacity = 0; capacity < 40; ++capacity) {
            const std::string cut = text(counting, parameter, capacity);
            EXPECT_EQ(cut, capacity > 0 ? whole.substr(0, capacity - 1) : "#") << code;
        }
        EXPECT_EQ(textOf(nullptr, 0, frameOf(counting), m_store, parameter), 0);
    }
}

std::string expectedText(const EightBytes& bytes, const ProfileParameter& parameter,
                         const ProfileStore& store)
{
    const double value = test::reference::arincValue(bytes, parameter);
    switch (parameter.dtc) {
    case 0:
        return "NO DATA";
    case 1: {
        const auto number = test::reference::enumValue(bytes, parameter);
        return number
                   ? toLatin1(store.enumText(parameter.enumId, static_cast<std::int32_t>(*number)))
                   : "";
    }
    case 4:
        return printed("%c", static_cast<int>(value));
    case 13:
        return printed("%d %d %d %d %d %d %d %d", bytes[0], bytes[1], bytes[2], bytes[3], bytes[4],
                       bytes[5], bytes[6], bytes[7]);
    case 14:
        return value != 0.0 ? "true" : "false";
    case 15:
        return value < 10.0 ? printed("%d", static_cast<int>(value)) : "-";
    default:
        return parameter.dtc < 16 ? printed("%f", value) : "---";
    }
}

TEST_F(ValueText, AgreesWithTheReferenceOnEveryFrameAndParameter)
{
    const unsigned seed = std::random_device()();
    std::printf("seed %u\n", seed);
    std::mt19937 generator(seed);
    const auto below = [&generator](std::uint32_t limit) {
        return static_cast<std::uint32_t>(generator()) % limit;
    };
    ProfileParameter parameter = arincParameter(ArincType::NoData, {}, -8.0, 12.5);
    for (int i = 0; i < 20'000; ++i) {
        EightBytes bytes{};
        for (std::uint8_t& byte : bytes) {
            byte = static_cast<std::uint8_t>(below(256));
        }
        const std::uint32_t limit = below(4) == 0 ? 0xffffffffU : 8;
        parameter.dtc = below(18);
        parameter.sppByte = below(limit);
        parameter.sppBit = below(limit);
        parameter.eppByte = below(limit);
        parameter.eppBit = below(limit);
        parameter.enumId = static_cast<std::int32_t>(below(3)) + enumId - 1;
        const std::string expected = expectedText(bytes, parameter, m_store);
        ASSERT_EQ(text(bytes, parameter), std::string(expected.c_str()).substr(0, 255))
            << "seed " << seed << " dtc " << parameter.dtc;
    }
}

TEST_F(ValueText, TextsOtherThanEnumTakeNoMemory)
{
    const MessageCan frame = frameOf(counting);
    std::array<char, valueTextCapacity> buffer{};
    for (std::uint32_t code = 0; code <= 16; ++code) {
        if (code == static_cast<std::uint32_t>(ArincType::Enum)) {
            continue;
        }
        const ProfileParameter parameter = arincParameter(static_cast<ArincType>(code), all);
        const std::uint64_t before = test::allocationCount();
        textOf(buffer.data(), buffer.size(), frame, m_store, parameter);
        EXPECT_EQ(test::allocationCount(), before) << code;
    }
}

} // namespace

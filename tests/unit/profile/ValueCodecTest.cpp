#include "profile/ValueCodec.h"

#include "tests/unit/profile/CodecTestSupport.h"

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>

namespace {

using namespace zul;
using test::arincParameter;
using test::EightBytes;
using test::frameOf;
using test::Position;

constexpr EightBytes counting{0x12, 0x34, 0x56, 0x78, 0x9a, 0xbc, 0xde, 0xf0};
constexpr EightBytes ones{0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff};
constexpr Position all{7, 0, 0, 7};

double arinc(const EightBytes& bytes, ArincType type, const Position& position, double min = 0.0,
             double max = 1.0)
{
    return valueOf(frameOf(bytes), arincParameter(type, position, min, max));
}

ProfileParameter scaledParameter(ParameterKind kind, std::uint32_t dtc, double factor = 1.0,
                                 double offset = 0.0)
{
    ProfileParameter parameter;
    parameter.parameterKind = kind;
    parameter.dtc = dtc;
    parameter.scaleFactor = factor;
    parameter.scaleOffset = offset;
    return parameter;
}

double canAerospace(const EightBytes& bytes, std::uint32_t code)
{
    return valueOf(frameOf(bytes), scaledParameter(ParameterKind::CanAerospace, code));
}

double raw(const EightBytes& bytes, std::uint32_t index, std::uint32_t endian)
{
    ProfileParameter parameter = scaledParameter(ParameterKind::Raw, index);
    parameter.endian = endian;
    const double value = valueOf(frameOf(bytes), parameter);
    EXPECT_EQ(rawValue(frameOf(bytes), index, endian), value) << index;
    return value;
}

double withoutSign(double value)
{
    EXPECT_FALSE(std::signbit(value));
    return value;
}

TEST(ValueCodec, UcharAtItsHighestIsMax)
{
    const double value = arinc({0, 0, 0, 0xff}, ArincType::UChar, {3, 0, 3, 7}, -10.0, 10.0);
    EXPECT_EQ(test::printed("%f", value), "10.000000");
}

TEST(ValueCodec, CharIsNotClampedToItsRange)
{
    const double value = arinc({0, 0, 0, 0x80}, ArincType::Char, {3, 0, 3, 7}, -10.0, 10.0);
    EXPECT_DOUBLE_EQ(value, -128.0 * 20.0 / 255.0);
    EXPECT_EQ(test::printed("%f", value), "-10.039216");
}

TEST(ValueCodec, LongIsReadFromItsEndPosition)
{
    // From 3.0 to 0.7: the bytes 0 to 3.
    EXPECT_DOUBLE_EQ(arinc(counting, ArincType::Long, {3, 0, 0, 7}, 0.0, 4294967295.0 / 2),
                     0x12345678);
    EXPECT_DOUBLE_EQ(arinc(counting, ArincType::Long, {7, 0, 4, 7}, 0.0, 4294967295.0 / 2),
                     static_cast<std::int32_t>(0x9abcdef0 - 0x100000000));
}

TEST(ValueCodec, BcdAboveNineIsItsNumber)
{
    EXPECT_EQ(arinc({0, 0, 0xb4}, ArincType::Bcd, {2, 4, 2, 7}), 11.0);
    EXPECT_EQ(arinc({0, 0, 0xb4}, ArincType::Bcd, {2, 0, 2, 3}), 4.0);
}

TEST(ValueCodec, FrameShorterThanTheEndPositionYieldsAValue)
{
    MessageCan frame = frameOf(counting);
    const ProfileParameter parameter =
        arincParameter(ArincType::ULong, {7, 0, 4, 7}, 0, 4294967295.0);
    const double value = valueOf(frame, parameter);
    for (const std::uint32_t byteCount : {0U, 2U, 64U, 0xffffffffU}) {
        frame.setByteCount(byteCount);
        EXPECT_EQ(valueOf(frame, parameter), value) << byteCount;
    }
    EXPECT_DOUBLE_EQ(value, 0x9abcdef0);
}

TEST(ValueCodec, IntegersOfEveryWidth)
{
    constexpr double steps64 = 18446744073709551616.0;
    EXPECT_DOUBLE_EQ(arinc(ones, ArincType::Char, {5, 0, 5, 7}, 0, 127.5), -1.0);
    EXPECT_DOUBLE_EQ(arinc(ones, ArincType::UChar, {5, 0, 5, 7}, 0, 255), 255.0);
    EXPECT_DOUBLE_EQ(arinc(counting, ArincType::Short, {5, 0, 4, 7}, 0, 65535.0 / 2),
                     0x9abc - 65536);
    EXPECT_DOUBLE_EQ(arinc(counting, ArincType::UShort, {5, 0, 4, 7}, 0, 65535), 0x9abc);
    EXPECT_DOUBLE_EQ(arinc(ones, ArincType::Long64, all, 0, steps64 / 2), -1.0);
    EXPECT_DOUBLE_EQ(arinc(ones, ArincType::ULong64, all, 0, steps64), steps64);
    EXPECT_DOUBLE_EQ(arinc({0x80}, ArincType::Long64, all, 0, 100), -100.0);
    EXPECT_DOUBLE_EQ(arinc({0x80}, ArincType::ULong64, all, -100, 100), 0.0);
}

TEST(ValueCodec, UnsignedIntegersGoFromMinToMax)
{
    for (const ArincType type :
         {ArincType::UChar, ArincType::UShort, ArincType::ULong, ArincType::ULong64}) {
        EXPECT_EQ(arinc({}, type, {}, -40.5, 85.0), -40.5);
        EXPECT_NEAR(arinc(ones, type, {}, -40.5, 85.0), 85.0, 1e-12);
    }
}

TEST(ValueCodec, DeliberateSignedIntegersIgnoreMin)
{
    for (const ArincType type :
         {ArincType::Char, ArincType::Short, ArincType::Long, ArincType::Long64}) {
        const double value = arinc({0x40, 0x11, 0x22, 0x33}, type, {}, 0.0, 10.0);
        EXPECT_EQ(arinc({0x40, 0x11, 0x22, 0x33}, type, {}, 5.0, 10.0), value);
        EXPECT_EQ(arinc({0x40, 0x11, 0x22, 0x33}, type, {}, -1e300, 10.0), value);
    }
}

TEST(ValueCodec, FloatsOfBothWidths)
{
    EXPECT_EQ(arinc({0, 0, 0xc0, 0x20, 0, 0}, ArincType::Float, {5, 0, 2, 7}), -2.5);
    EXPECT_EQ(arinc({0xc0, 0x04, 0, 0, 0, 0, 0, 0}, ArincType::Double, all), -2.5);
    EXPECT_EQ(arinc({0x7f, 0x80}, ArincType::Float, {3, 0, 0, 7}), HUGE_VAL);
    EXPECT_TRUE(std::isnan(arinc(ones, ArincType::Float, {3, 0, 0, 7})));
    EXPECT_TRUE(std::isnan(arinc(ones, ArincType::Double, all)));
}

TEST(ValueCodec, DoubleAndLong64TakeAllBytesWhateverThePosition)
{
    for (const ArincType type : {ArincType::Long64, ArincType::ULong64, ArincType::Double}) {
        EXPECT_EQ(arinc(counting, type, {3, 1, 5, 2}), arinc(counting, type, all));
    }
}

TEST(ValueCodec, CharacterAndFlagAreReadFromTheStartPosition)
{
    EXPECT_EQ(arinc(counting, ArincType::AChar, {2, 0, 5, 7}), 0x56);
    EXPECT_EQ(arinc(counting, ArincType::Bool, {3, 3, 0, 0}), 1.0);
    EXPECT_EQ(arinc(counting, ArincType::Bool, {3, 2, 0, 0}), 0.0);
}

TEST(ValueCodec, TypesWithoutAValueAreZero)
{
    EXPECT_EQ(withoutSign(arinc(ones, ArincType::NoData, {})), 0.0);
    EXPECT_EQ(withoutSign(arinc(ones, ArincType::Opaque, all)), 0.0);
    for (const std::uint32_t code : {16U, 17U, 255U, 0x80000000U, 0xffffffffU}) {
        EXPECT_EQ(withoutSign(arinc(ones, static_cast<ArincType>(code), all)), 0.0) << code;
    }
}

TEST(ValueCodec, AnyOtherKindIsZero)
{
    ProfileParameter parameter = arincParameter(ArincType::Float, {3, 0, 0, 7});
    parameter.scaleOffset = 5.0;
    for (const std::uint32_t kind : {3U, 77U, 0xffffffffU}) {
        parameter.parameterKind = static_cast<ParameterKind>(kind);
        EXPECT_EQ(withoutSign(valueOf(frameOf(counting), parameter)), 0.0) << kind;
    }
}

TEST(ValueCodec, ScalingPlaysNoPartInProfiles)
{
    ProfileParameter parameter = arincParameter(ArincType::Bcd, {2, 0, 2, 3});
    parameter.scaleFactor = 3.0;
    parameter.scaleOffset = 100.0;
    EXPECT_EQ(valueOf(frameOf(counting), parameter), 6.0);
}

TEST(ValueCodec, DeliberateEnumNumberIsNotCutOffAboveItsEnd)
{
    const EightBytes bytes{0x12, 0x34, 0x56, 0x78, 0x9a, 0xbc, 0xde, 0xf5};
    const ProfileParameter parameter = arincParameter(ArincType::Enum, {7, 0, 7, 3});
    EXPECT_EQ(enumValue(frameOf(bytes), parameter), 5U);
    EXPECT_EQ(valueOf(frameOf(bytes), parameter), static_cast<double>(0x123456789abcdef5));
    // From bit 4 of byte 6 on.
    EXPECT_EQ(arinc(bytes, ArincType::Enum, {6, 4, 6, 7}), static_cast<double>(0x123456789abcd));
}

TEST(ValueCodec, EnumNumberHasNoSign)
{
    EXPECT_EQ(arinc(ones, ArincType::Enum, all), 18446744073709551616.0);
}

TEST(ValueCodec, EnumBitsGoAcrossBytes)
{
    const MessageCan frame = frameOf(counting);
    EXPECT_EQ(enumValue(frame, arincParameter(ArincType::Enum, {1, 4, 0, 3})), 0x23U);
    EXPECT_EQ(enumValue(frame, arincParameter(ArincType::Enum, all)), 0x123456789abcdef0U);
    EXPECT_EQ(enumValue(frame, arincParameter(ArincType::Enum, {0, 4, 0, 4})), 1U);
}

TEST(ValueCodec, EnumThatEndsBeforeItsStartHasNoBits)
{
    const ProfileParameter backwards = arincParameter(ArincType::Enum, {3, 4, 3, 3});
    EXPECT_EQ(enumValue(frameOf(ones), backwards), std::nullopt);
    EXPECT_EQ(withoutSign(valueOf(frameOf(ones), backwards)), 0.0);
    EXPECT_EQ(enumValue(frameOf(ones), arincParameter(ArincType::Enum, {0, 0, 7, 7})),
              std::nullopt);
}

TEST(ValueCodec, WhatLiesBehindByteSevenIsZero)
{
    constexpr double full = 4294967295.0;
    EXPECT_DOUBLE_EQ(arinc(ones, ArincType::ULong, {0, 0, 5, 7}, 0, full), 0xffffff00);
    EXPECT_DOUBLE_EQ(arinc(ones, ArincType::ULong, {0, 0, 6, 7}, 0, full), 0xffff0000);
    EXPECT_DOUBLE_EQ(arinc(ones, ArincType::ULong, {0, 0, 7, 7}, 0, full), 0xff000000);
    EXPECT_DOUBLE_EQ(arinc(ones, ArincType::UShort, {0, 0, 7, 7}, 0, 65535), 0xff00);
    EXPECT_EQ(arinc({0, 0, 0, 0, 0, 0, 0x40, 0x20}, ArincType::Float, {7, 0, 6, 7}), 2.5);
}

TEST(ValueCodec, BytesAboveSevenAreZero)
{
    for (const std::uint32_t byte : {8U, 9U, 63U, 64U, 0x20000000U, 4000000000U, 0xffffffffU}) {
        const Position position{byte, 0, byte, 7};
        for (const ArincType type :
             {ArincType::Char, ArincType::AChar, ArincType::Short, ArincType::Long,
              ArincType::Float, ArincType::Bool, ArincType::Bcd, ArincType::Enum}) {
            EXPECT_EQ(arinc(ones, type, position), 0.0) << byte;
        }
        EXPECT_EQ(arinc(ones, ArincType::UShort, position, -3.0, 9.0), -3.0) << byte;
    }
}

TEST(ValueCodec, BitsAboveSevenAreZero)
{
    for (const std::uint32_t bit : {8U, 31U, 32U, 63U, 64U, 77U, 0xffffffffU}) {
        EXPECT_EQ(arinc(ones, ArincType::Bool, {3, bit, 3, bit}), 0.0) << bit;
        EXPECT_EQ(arinc(ones, ArincType::Bcd, {3, bit, 3, bit}), 0.0) << bit;
    }
    EXPECT_EQ(arinc(ones, ArincType::Bcd, {3, 6, 3, 7}), 3.0) << "nothing of the byte before";
}

TEST(ValueCodec, EnumWithAbsurdPositions)
{
    const MessageCan frame = frameOf(ones);
    // A bit that is none of its byte's counts on into the bytes before.
    EXPECT_EQ(enumValue(frame, arincParameter(ArincType::Enum, {7, 60, 0, 7})), 15U);
    EXPECT_EQ(enumValue(frame, arincParameter(ArincType::Enum, {7, 64, 7, 70})), 0U);
    EXPECT_EQ(enumValue(frame, arincParameter(ArincType::Enum, {7, 0, 7, 0x7fffffff})), ~0ULL);
    EXPECT_EQ(enumValue(frame, arincParameter(ArincType::Enum, {2000000000U, 77, 0, 7})), 0U);
    EXPECT_EQ(enumValue(frame, arincParameter(ArincType::Enum, {0, 0, 2000000000U, 77})),
              std::nullopt);
    // Byte -1 is the one before the first, and bit -1 the one below the lowest.
    EXPECT_EQ(enumValue(frame, arincParameter(ArincType::Enum, {0xffffffff, 0, 0, 7})),
              std::nullopt);
    EXPECT_EQ(enumValue(frame, arincParameter(ArincType::Enum, {7, 0xffffffff, 0, 7})), 0U);
}

TEST(ValueCodec, InfiniteAndMissingRangesStayDefined)
{
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(arinc(ones, ArincType::ULong, {3, 0, 0, 7}, 0.0, infinity), infinity);
    EXPECT_TRUE(std::isnan(arinc(ones, ArincType::UChar, {3, 0, 3, 7}, std::nan(""), 1.0)));
    EXPECT_EQ(arinc(ones, ArincType::Char, {3, 0, 3, 7}, 0.0, 1e308), -infinity);
}

TEST(ValueCodec, CanAerospaceReadings)
{
    const EightBytes high{1, 2, 3, 4, 0xff, 0xfe, 0xfd, 0xfc};
    EXPECT_EQ(canAerospace(high, 0), 0.0);
    for (const std::uint32_t code : {1U, 4U, 5U, 21U, 22U}) {
        EXPECT_EQ(canAerospace(high, code), static_cast<float>(0xfffefdfcU)) << code;
    }
    EXPECT_EQ(canAerospace({0, 0, 0, 0, 0x3f, 0xc0, 0, 0}, 2), 1.5);
    EXPECT_EQ(canAerospace(high, 3), static_cast<float>(-0x10204));
    for (const std::uint32_t code : {6U, 12U}) {
        EXPECT_EQ(canAerospace(high, code), -2.0) << code;
    }
    for (const std::uint32_t code : {7U, 8U, 13U, 14U}) {
        EXPECT_EQ(canAerospace(high, code), 65534.0) << code;
    }
    for (const std::uint32_t code : {9U, 15U, 18U, 26U}) {
        EXPECT_EQ(canAerospace(high, code), -1.0) << code;
    }
    for (const std::uint32_t code : {10U, 11U, 16U, 19U, 23U, 24U, 25U, 27U, 29U}) {
        EXPECT_EQ(canAerospace(high, code), 255.0) << code;
    }
}

TEST(ValueCodec, DeliberateBcharOfSeveralBytesTakesTheHeader)
{
    EightBytes bytes{0, 0, 0, 0, 0xff, 0xfe, 0xfd, 0xfc};
    const float header = 1.5F;
    std::memcpy(bytes.data(), &header, sizeof header);
    for (const std::uint32_t code : {17U, 20U, 28U, 30U, 31U, 255U, 0xffffffffU}) {
        EXPECT_EQ(canAerospace(bytes, code), 1.5) << code;
    }
}

TEST(ValueCodec, DataTypeIsThatOfTheParameterNotOfTheFrame)
{
    EXPECT_EQ(canAerospace({0, 2, 0, 0, 0, 0, 0, 7}, 3), 7.0);
}

TEST(ValueCodec, RawSelectionsInBothOrders)
{
    for (std::uint32_t i = 0; i < counting.size(); ++i) {
        EXPECT_EQ(raw(counting, i, 0), counting[i]);
        EXPECT_EQ(raw(counting, i, 1), counting[i]);
    }
    EXPECT_EQ(raw(counting, 8, 1), 0x1234);
    EXPECT_EQ(raw(counting, 8, 0), 0x3412);
    EXPECT_EQ(raw(counting, 9, 1), 0x5678);
    EXPECT_EQ(raw(counting, 10, 1), 0x9abc - 0x10000);
    EXPECT_EQ(raw(counting, 11, 0), 0xf0de - 0x10000);
    EXPECT_EQ(raw({0x3f, 0xc0, 0, 0, 0, 0, 0x20, 0xc0}, 14, 1), 1.5);
    EXPECT_EQ(raw({0x3f, 0xc0, 0, 0, 0, 0, 0x20, 0xc0}, 15, 0), -2.5);
    EXPECT_EQ(raw({0, 0, 0, 0, 0, 0, 1, 2}, 16, 1), 258.0);
    EXPECT_EQ(raw(ones, 16, 1), -1.0);
    EXPECT_EQ(raw({0x40, 0x04}, 17, 1), 2.5);
    EXPECT_EQ(raw({0, 0, 0, 0, 0, 0, 0x04, 0x40}, 17, 0), 2.5);
}

TEST(ValueCodec, DeliberateInt0To3ReadsTheBytes4To7)
{
    for (const std::uint32_t endian : {0U, 1U}) {
        EXPECT_EQ(raw(counting, 12, endian), raw(counting, 13, endian));
    }
    EXPECT_EQ(raw({9, 9, 9, 9, 0, 0, 0, 7}, 12, 1), 7.0);
}

TEST(ValueCodec, RawIndexThatIsNoneReadsASingle)
{
    for (const std::uint32_t index : {18U, 19U, 255U, 0xffffffffU}) {
        EXPECT_EQ(raw({0x3f, 0xc0}, index, 1), 1.5) << index;
        EXPECT_EQ(raw({0, 0, 0xc0, 0x3f}, index, 0), 1.5) << index;
    }
}

TEST(ValueCodec, AnyByteOrderButZeroIsBigEndian)
{
    for (const std::uint32_t endian : {1U, 2U, 0xffffffffU}) {
        EXPECT_EQ(raw(counting, 8, endian), 0x1234);
    }
}

TEST(ValueCodec, ReadingsAreOfSinglePrecisionAndScaledInDouble)
{
    // 2^24 + 1 is no single.
    const EightBytes large{0, 0, 0, 0, 0x01, 0, 0, 0x01};
    EXPECT_EQ(canAerospace(large, 4), 16777216.0);
    EXPECT_EQ(raw(large, 13, 1), 16777216.0);
    // 16777216 * 0.5 + 0.25 needs more than a single has, and is rounded at the end.
    const ProfileParameter half = scaledParameter(ParameterKind::CanAerospace, 4, 0.5, 0.25);
    EXPECT_EQ(valueOf(frameOf(large), half), 8388608.0);
    const ProfileParameter tenth = scaledParameter(ParameterKind::Raw, 7, 0.1, 0.2);
    EXPECT_EQ(valueOf(frameOf(large), tenth), static_cast<double>(static_cast<float>(0.1 + 0.2)));
}

TEST(ValueCodec, WhatASingleCannotHoldIsInfinite)
{
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(raw({0x7f, 0xe0}, 17, 1), infinity);
    EXPECT_EQ(raw({0xff, 0xe0}, 17, 1), -infinity);
    const ProfileParameter huge = scaledParameter(ParameterKind::Raw, 0, 1e300);
    EXPECT_EQ(valueOf(frameOf(ones), huge), infinity);
    const ProfileParameter trap = scaledParameter(ParameterKind::Raw, 0, infinity);
    EXPECT_TRUE(std::isnan(valueOf(frameOf({}), trap)));
}

TEST(ValueCodec, NoDataOfCanAerospaceIsTheOffset)
{
    const ProfileParameter parameter = scaledParameter(ParameterKind::CanAerospace, 0, 3.0, -4.5);
    EXPECT_EQ(valueOf(frameOf(ones), parameter), -4.5);
}

} // namespace

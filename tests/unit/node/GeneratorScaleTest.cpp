#include "node/GeneratorScale.h"

#include "node/GeneratorTables.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

TEST(GeneratorTables, ChoicesHaveTheirNamesAndValues)
{
    const auto text = [](const auto& choices) {
        std::string all;
        for (const GeneratorChoice& choice : choices) {
            all += std::string(choice.name) + "=" + std::to_string(choice.value) + " ";
        }
        return all;
    };
    EXPECT_EQ(text(generatorBaudrates), "1 MBit/s=0 500 KBit/s=1 250 KBit/s=2 125 KBit/s=3 ");
    EXPECT_EQ(text(generatorWaveforms), "Sine=0 Square=1 Triangle=2 Sawtooth=3 ");
    EXPECT_EQ(text(generatorDataTypes), "AS_FLOAT=2 AS_LONG=3 AS_ULONG=4 AS_SHORT=6 AS_USHORT=7 "
                                        "AS_CHAR=9 AS_UCHAR=10 ");
    EXPECT_EQ(text(generatorRanges),
              "0.0-0.01=-2 0.0-0.1=-1 0.0-1.0=0 0.0-10.0=1 0.0-100.0=2 0.0-1000.0=3 "
              "0.0-10000.0=4 0.0-100000.0=5 0.0-1000000.0=6 0.0-1e7=7 0.0-1e8=8 0.0-1e9=9 ");
    EXPECT_EQ(generatorFrequencyRanges, 5U);
}

TEST(GeneratorScale, FullDialIsTheRangesLargestNumber)
{
    EXPECT_FLOAT_EQ(dialNumber(1000, -2), 0.01F);
    EXPECT_FLOAT_EQ(dialNumber(1000, 1), 10.0F);
    EXPECT_FLOAT_EQ(dialNumber(1000, 9), 1e9F);
    EXPECT_FLOAT_EQ(dialNumber(-500, 2), -50.0F);
    EXPECT_FLOAT_EQ(dialNumber(1, 0), 0.001F);
    EXPECT_EQ(dialNumber(0, 9), 0.0F);
}

TEST(GeneratorScale, PowerIsOfSinglePrecision)
{
    // A power of double precision gives the next numbers above.
    EXPECT_EQ(dialNumber(15, -2), 0.00014999999257270247F);
    EXPECT_EQ(dialNumber(19, -2), 0.00018999999156221747F);
}

TEST(GeneratorScale, DialShowsTheNumberCutNotRounded)
{
    EXPECT_EQ(dialPosition(10.0F, 1), 1000);
    EXPECT_EQ(dialPosition(0.0199F, 1), 1);
    EXPECT_EQ(dialPosition(-0.0199F, 1), -1);
    EXPECT_EQ(dialPosition(2.5F, 0), 2500); // the dial itself clamps
}

TEST(GeneratorScale, NumbersThatNoDialHasAreClamped)
{
    EXPECT_EQ(dialPosition(1e30F, -2), std::numeric_limits<int>::max());
    EXPECT_EQ(dialPosition(-1e30F, -2), std::numeric_limits<int>::min());
    EXPECT_EQ(dialPosition(std::numeric_limits<float>::infinity(), 0),
              std::numeric_limits<int>::max());
    EXPECT_EQ(dialPosition(std::nanf(""), 0), 0);
}

TEST(GeneratorScale, DecimalsAndStepFollowTheRange)
{
    const std::array<int, 12> decimals{4, 3, 2, 1, 0, 0, 0, 0, 0, 0, 0, 0};
    for (std::size_t i = 0; i < decimals.size(); ++i) {
        EXPECT_EQ(rangeDecimals(generatorRanges[i].value), decimals[i]);
        EXPECT_NEAR(rangeStep(generatorRanges[i].value) /
                        std::pow(10.0, generatorRanges[i].value - 2),
                    1.0, 1e-6);
    }
}

TEST(GeneratorScale, UnknownExponentsCountAsTheNearestRange)
{
    EXPECT_EQ(rangeDecimals(-1000), 4);
    EXPECT_EQ(rangeDecimals(std::numeric_limits<std::int32_t>::min()), 4);
    EXPECT_EQ(dialNumber(1000, 1000), dialNumber(1000, 9));
    EXPECT_EQ(rangeStep(std::numeric_limits<std::int32_t>::max()), rangeStep(9));
}

} // namespace

#include "profile/ComposedId.h"

#include "profile/Arinc825Id.h"

#include <gtest/gtest.h>

namespace {

ProfileParameter parameter(std::uint32_t lcc)
{
    ProfileParameter made;
    made.lcc = lcc;
    made.fid = 20;
    made.lcl = 1;
    made.pvt = 1;
    made.doc = 0x2345;
    made.dfid = 0x55;
    made.sid = 0x7f;
    return made;
}

constexpr std::uint32_t common(std::uint32_t lcc)
{
    return lcc << 26 | 20U << 19 | 1U << 17 | 1U << 16;
}

TEST(ComposedId, DataObjectCodeOnEecAndNoc)
{
    for (const std::uint32_t lcc : {0U, 2U}) {
        EXPECT_EQ(zul::textProfileId(parameter(lcc)), common(lcc) | 0x2345U << 2);
        EXPECT_EQ(zul::xmlProfileId(parameter(lcc)), common(lcc) | 0x2345U << 2);
    }
}

TEST(ComposedId, DataObjectCode16384IsCutToZero)
{
    ProfileParameter made = parameter(2);
    made.doc = 16384;
    EXPECT_EQ(zul::textProfileId(made), common(2));
    EXPECT_EQ(zul::xmlProfileId(made), common(2));
}

TEST(ComposedId, DeliberateSidOfATextProfileIsNotShifted)
{
    for (const std::uint32_t lcc : {4U, 5U, 6U, 7U}) {
        EXPECT_EQ(zul::textProfileId(parameter(lcc)), common(lcc) | (0x2345U >> 9) << 9 | 0x7fU);
    }
    ProfileParameter made = parameter(4);
    made.sid = 0x3ff;
    made.doc = 0xffff;
    EXPECT_EQ(zul::textProfileId(made), common(4) | 0x7fU << 9 | 0x1ffU);
}

TEST(ComposedId, DeliberateFieldsBeyondTheirRangesSpillOver)
{
    ProfileParameter made = parameter(2);
    made.doc = 0;
    made.lcl = 2;
    made.pvt = 4;
    made.fid = 128;
    EXPECT_EQ(zul::textProfileId(made), 2U << 26 | 128U << 19 | 2U << 17 | 4U << 16);
    EXPECT_EQ(zul::xmlProfileId(made), zul::textProfileId(made));
    made.fid = 0xffffffff;
    EXPECT_EQ(zul::xmlProfileId(made), 0xfff80000U | 2U << 17 | 4U << 16);
}

TEST(ComposedId, DeliberateSidOfATextProfileThatIsNoMultipleOfFourMatchesNoFrame)
{
    ProfileParameter made = parameter(4);
    for (std::uint32_t sid = 0; sid < 128; ++sid) {
        made.sid = sid;
        const std::uint32_t id = zul::textProfileId(made);
        EXPECT_EQ(zul::arinc825::parameterKey(id) == id, sid % 4 == 0) << sid;
    }
}

TEST(ComposedId, ServicePlacesInAnXmlProfile)
{
    for (const std::uint32_t lcc : {4U, 5U, 6U, 7U}) {
        EXPECT_EQ(zul::xmlProfileId(parameter(lcc)), common(lcc) | 0x55U << 9 | 0x7fU << 2);
    }
}

TEST(ComposedId, SidBeyondSevenBitsIsMaskedInAnXmlProfile)
{
    ProfileParameter made = parameter(4);
    made.sid = 200;
    made.dfid = 300;
    EXPECT_EQ(zul::xmlProfileId(made), common(4) | (300U & 127U) << 9 | (200U & 127U) << 2);
    made.dfid = 0xffffff80;
    made.lcl = 0;
    made.pvt = 0;
    made.sid = 0;
    EXPECT_EQ(zul::xmlProfileId(made), 4U << 26 | 20U << 19);
}

} // namespace

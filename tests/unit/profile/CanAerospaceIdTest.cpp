#include "profile/CanAerospaceId.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using namespace zul::canaerospace;

std::string classOf(std::uint32_t id)
{
    return messageClass(id).label;
}

TEST(CanAerospaceId, EveryClassFromItsFirstToItsLastIdentifier)
{
    struct Row
    {
        std::uint32_t first;
        std::uint32_t last;
        const char* label;
    };
    const std::array<Row, 8> expected{{{0, 127, "EED"},
                                       {128, 199, "NSH"},
                                       {200, 299, "UDH"},
                                       {300, 1799, "NOD"},
                                       {1800, 1899, "UDL"},
                                       {1900, 1999, "DSD"},
                                       {2000, 2031, "NSL"},
                                       {2032, 5000, "29B"}}};
    for (const Row& row : expected) {
        for (std::uint32_t id = row.first; id <= row.last; ++id) {
            ASSERT_EQ(classOf(id), row.label) << id;
        }
    }
    EXPECT_EQ(classOf(0x1fffffff), "29B");
    EXPECT_EQ(classOf(0xffffffff), "29B");
}

TEST(CanAerospaceId, BordersOfTheClasses)
{
    EXPECT_EQ(classOf(2031), "NSL");
    EXPECT_EQ(classOf(2032), "29B");
    EXPECT_EQ(classOf(1999), "DSD");
    EXPECT_EQ(classOf(127), "EED");
    EXPECT_EQ(classOf(128), "NSH");
}

TEST(CanAerospaceId, ServicesHaveNamesInTheNodeServiceClassesAlone)
{
    const std::array<const char*, 7> names{"IDS", "NSS", "DDS", "DUS", "SCS", "TIS", "FPS"};
    for (std::uint32_t code = 0; code < names.size(); ++code) {
        for (const std::uint32_t id : {128U, 199U, 2000U, 2031U}) {
            EXPECT_STREQ(serviceName(id, code), names[code]) << id;
        }
        for (const std::uint32_t id : {0U, 127U, 200U, 299U, 300U, 1799U, 1999U, 2032U}) {
            EXPECT_EQ(serviceName(id, code), nullptr) << id;
        }
    }
    for (std::uint32_t code = 8; code < 256; ++code) {
        EXPECT_EQ(serviceName(130, code), nullptr) << code;
    }
    EXPECT_EQ(serviceName(130, 0xffffffff), nullptr);
}

TEST(CanAerospaceId, DeliberateService7IsOfferedButNotDecoded)
{
    EXPECT_EQ(serviceName(130, 7), nullptr);
    std::string offered;
    for (std::size_t code = 0; code < services.size(); ++code) {
        offered += std::to_string(code) + " " + services[code] + ",";
    }
    EXPECT_EQ(offered, "0 IDS,1 NSS,2 DDS,3 DUS,4 SCS,5 TIS,6 FPS,7 STS,");
}

TEST(CanAerospaceId, HeaderAndPayloadBytes)
{
    EXPECT_EQ(nodeIdByte, 0);
    EXPECT_EQ(dataTypeByte, 1);
    EXPECT_EQ(serviceCodeByte, 2);
    EXPECT_EQ(messageCodeByte, 3);
    EXPECT_EQ(payloadByte, 4);
}

} // namespace

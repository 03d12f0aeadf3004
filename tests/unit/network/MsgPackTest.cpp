#include "modules/network/MsgPack.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace cannetwork;

namespace {

using Bytes = std::vector<std::uint8_t>;

struct Reading
{
    bool isRead = false;
    bool isCut = false;
    PackValue value;
    std::string bytes;
};

Reading read(const Bytes& bytes)
{
    PackReader reader({bytes.data(), bytes.size()});
    Reading reading;
    reading.isRead = reader.read(reading.value);
    reading.isCut = reader.isCut();
    for (std::size_t i = 0; reading.isRead && i < reading.value.bytes.size; ++i) {
        reading.bytes += static_cast<char>(reading.value.bytes.data[i]);
    }
    return reading;
}

TEST(MsgPack, EveryHeadIsReadByTheTableOfTheFormat)
{
    EXPECT_EQ(read({0x7F}).value.number, 127U);
    EXPECT_EQ(read({0xFF}).value.kind, PackKind::Negative);
    EXPECT_EQ(read({0xFF}).value.number, ~std::uint64_t{0});
    EXPECT_EQ(read({0x8F}).value.kind, PackKind::Map);
    EXPECT_EQ(read({0x8F}).value.count, 15U);
    EXPECT_EQ(read({0x9F}).value.kind, PackKind::Array);
    EXPECT_EQ(read({0xA2, 'a', 'b'}).bytes, "ab");
    EXPECT_EQ(read({0xC0}).value.kind, PackKind::Nil);
    EXPECT_FALSE(read({0xC1}).isRead);
    EXPECT_FALSE(read({0xC1}).isCut);
    EXPECT_FALSE(read({0xC2}).value.isTrue);
    EXPECT_TRUE(read({0xC3}).value.isTrue);
    EXPECT_EQ(read({0xC4, 1, 'x'}).bytes, "x");
    EXPECT_EQ(read({0xC5, 0, 1, 'x'}).value.kind, PackKind::Binary);
    EXPECT_EQ(read({0xC6, 0, 0, 0, 1, 'x'}).bytes, "x");
    EXPECT_EQ(read({0xC7, 1, 5, 'x'}).value.kind, PackKind::Extension);
    EXPECT_EQ(read({0xCA, 0x3F, 0x80, 0, 0}).value.real, 1.0);
    EXPECT_EQ(read({0xCB, 0x40, 0, 0, 0, 0, 0, 0, 0}).value.real, 2.0);
    EXPECT_EQ(read({0xCC, 200}).value.number, 200U);
    EXPECT_EQ(read({0xCD, 1, 0}).value.number, 256U);
    EXPECT_EQ(read({0xCE, 1, 0, 0, 0}).value.number, 1U << 24U);
    EXPECT_EQ(read({0xCF, 1, 0, 0, 0, 0, 0, 0, 0}).value.number, std::uint64_t{1} << 56U);
    EXPECT_EQ(read({0xD0, 0x80}).value.number, std::uint64_t{0} - 128);
    EXPECT_EQ(read({0xD0, 0x7F}).value.kind, PackKind::Unsigned);
    EXPECT_EQ(read({0xD1, 0xFF, 0xFE}).value.number, std::uint64_t{0} - 2);
    EXPECT_EQ(read({0xD3, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFD}).value.number,
              std::uint64_t{0} - 3);
    EXPECT_EQ(read({0xD4, 1, 'x'}).value.kind, PackKind::Extension);
    EXPECT_EQ(read({0xD9, 1, 'x'}).bytes, "x");
    EXPECT_EQ(read({0xDA, 0, 1, 'x'}).value.kind, PackKind::Text);
    EXPECT_EQ(read({0xDC, 1, 0}).value.count, 256U);
    EXPECT_EQ(read({0xDF, 0, 1, 0, 0}).value.count, 65'536U);
}

TEST(MsgPack, WhatEndsEarlyIsCut)
{
    for (const Bytes& bytes : std::vector<Bytes>{{},
                                                 {0xA2, 'a'},
                                                 {0xC4},
                                                 {0xC4, 2, 0},
                                                 {0xC6, 0xFF, 0xFF, 0xFF, 0xFF},
                                                 {0xCB, 0},
                                                 {0xCF, 0},
                                                 {0xD8, 0},
                                                 {0xDD, 0},
                                                 {0xDB, 0xFF, 0xFF, 0xFF}}) {
        EXPECT_FALSE(read(bytes).isRead);
        EXPECT_TRUE(read(bytes).isCut);
    }
}

TEST(MsgPack, SkipGoesOverAllThatIsInside)
{
    const Bytes bytes{0x82, 0xA1, 'a', 0x92, 1, 0xC4, 1, 0, 0xA1, 'b', 0x81, 0xC0, 0xC3, 7};
    PackReader reader({bytes.data(), bytes.size()});
    EXPECT_TRUE(reader.skip());
    PackValue value;
    EXPECT_TRUE(reader.read(value));
    EXPECT_EQ(value.number, 7U);
    EXPECT_TRUE(reader.isAtEnd());
}

TEST(MsgPack, DepthIsBounded)
{
    const Bytes deep(100'000, 0x91); // arrays in arrays
    PackReader reader({deep.data(), deep.size()});
    EXPECT_FALSE(reader.skip());
    Bytes fair(15, 0x91);
    fair.push_back(0xC0);
    PackReader fairReader({fair.data(), fair.size()});
    EXPECT_TRUE(fairReader.skip());
}

TEST(MsgPack, HugeCountsEndWithTheBytes)
{
    const Bytes bytes{0xDF, 0xFF, 0xFF, 0xFF, 0xFF, 1, 1};
    PackReader reader({bytes.data(), bytes.size()});
    EXPECT_FALSE(reader.skip());
    EXPECT_TRUE(reader.isCut());
}

TEST(MsgPack, WhatDoesNotFitIsLeftOut)
{
    PackWriter<3> writer;
    writer.text("abcdef");
    EXPECT_EQ(writer.bytes().size, 3U);
}

} // namespace

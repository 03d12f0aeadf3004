#include "profile/Arinc825Id.h"

#include "profile/ProfileStore.h"
#include "tests/unit/profile/CodecTestSupport.h"

#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace {

using namespace zul;
using namespace zul::arinc825;
using test::printed;

constexpr int decimal = 0;
constexpr int hexadecimal = 1;
constexpr const char* untouched = "as it was";

std::string fieldsOf(std::uint32_t id, int numberType)
{
    std::array<char, fieldTextCapacity> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%s", untouched);
    const bool isWritten = fieldText(buffer.data(), buffer.size(), id, numberType);
    EXPECT_EQ(isWritten, channel(id).layout != Layout::None);
    return buffer.data();
}

std::string keyOf(std::uint32_t id, int numberType)
{
    std::array<char, fieldTextCapacity> buffer{};
    parameterKeyText(buffer.data(), buffer.size(), id, numberType);
    return buffer.data();
}

// Bits `high` to `low`, both included.
int bits(std::uint32_t id, unsigned high, unsigned low)
{
    std::uint32_t value = 0;
    for (unsigned bit = high + 1; bit > low; --bit) {
        value = value * 2 + (id >> (bit - 1)) % 2;
    }
    return static_cast<int>(value);
}

std::string expectedFields(std::uint32_t id, int numberType)
{
    const bool hex = numberType == hexadecimal;
    switch (bits(id, 28, 26)) {
    case 1:
        return untouched;
    case 3:
        return printed(hex ? "SA 0x%X DA 0x%X SP 0x%X DP 0x%X" : "SA %d DA %d SP %d DP %d",
                       bits(id, 25, 19), bits(id, 18, 12), bits(id, 11, 6), bits(id, 5, 0));
    case 4:
    case 6:
        return printed(hex ? "CFID 0x%X SMT 0x%X LCL 0x%X PVT 0x%X SFID 0x%X SID 0x%X"
                           : "CFID %d SMT %d LCL %d PVT %d SFID %d SID %d",
                       bits(id, 25, 19), bits(id, 18, 18), bits(id, 17, 17), bits(id, 16, 16),
                       bits(id, 15, 9), bits(id, 8, 2));
    default:
        return printed(hex ? "SFID 0x%X FSB 0x%X LCL 0x%X PVT 0x%X DOC 0x%X"
                           : "SFID %d FSB %d LCL %d PVT %d DOC %d",
                       bits(id, 25, 19), bits(id, 18, 18), bits(id, 17, 17), bits(id, 16, 16),
                       bits(id, 15, 2));
    }
}

struct FieldRow
{
    const char* name;
    IdField field;
    std::uint32_t mask;
    std::uint32_t lowestBit;
    std::uint32_t width;
};

const std::vector<FieldRow>& fieldRows()
{
    static const std::vector<FieldRow> rows{
        {"LCC", lcc, 0x1c000000, 26, 3},
        {"RCI", rci, 0x00000003, 0, 2},
        {"data SFID", data::sfid, 0x03f80000, 19, 7},
        {"data FSB", data::fsb, 0x00040000, 18, 1},
        {"data LCL", data::lcl, 0x00020000, 17, 1},
        {"data PVT", data::pvt, 0x00010000, 16, 1},
        {"data DOC", data::doc, 0x0000fffc, 2, 14},
        {"service CFID", service::cfid, 0x03f80000, 19, 7},
        {"service SMT", service::smt, 0x00040000, 18, 1},
        {"service LCL", service::lcl, 0x00020000, 17, 1},
        {"service PVT", service::pvt, 0x00010000, 16, 1},
        {"service SFID", service::sfid, 0x0000fe00, 9, 7},
        {"service SID", service::sid, 0x000001fc, 2, 7},
        {"directed SA", directed::sa, 0x03f80000, 19, 7},
        {"directed DA", directed::da, 0x0007f000, 12, 7},
        {"directed SP", directed::sp, 0x00000fc0, 6, 6},
        {"directed DP", directed::dp, 0x0000003f, 0, 6},
    };
    return rows;
}

TEST(Arinc825Id, EveryFieldLiesUnderItsMask)
{
    for (const FieldRow& row : fieldRows()) {
        EXPECT_EQ(row.field.mask(), row.mask) << row.name;
        EXPECT_EQ(row.field.shift, row.lowestBit) << row.name;
        EXPECT_EQ(row.field.width, row.width) << row.name;
        EXPECT_EQ(row.field.max(), row.mask >> row.lowestBit) << row.name;
    }
    EXPECT_EQ(maxExtendedId, 0x1fffffffU);
    EXPECT_EQ(maxStandardId, 0x7ffU);
}

TEST(Arinc825Id, FieldsOfALayoutFillTheIdentifier)
{
    EXPECT_EQ(lcc.mask() | data::sfid.mask() | data::fsb.mask() | data::lcl.mask() |
                  data::pvt.mask() | data::doc.mask() | rci.mask(),
              maxExtendedId);
    EXPECT_EQ(lcc.mask() | service::cfid.mask() | service::smt.mask() | service::lcl.mask() |
                  service::pvt.mask() | service::sfid.mask() | service::sid.mask() | rci.mask(),
              maxExtendedId);
    EXPECT_EQ(lcc.mask() + directed::sa.mask() + directed::da.mask() + directed::sp.mask() +
                  directed::dp.mask(),
              maxExtendedId);
}

TEST(Arinc825Id, SettingAFieldReplacesItsBitsAlone)
{
    constexpr unsigned seed = 29;
    std::mt19937 generator(seed);
    for (int i = 0; i < 2000; ++i) {
        const auto id = static_cast<std::uint32_t>(generator());
        const auto value = static_cast<std::uint32_t>(generator());
        for (const FieldRow& row : fieldRows()) {
            const std::uint32_t changed = row.field.set(id, value);
            ASSERT_EQ(changed & ~row.mask, id & ~row.mask) << row.name << " seed " << seed;
            ASSERT_EQ(row.field.get(changed), value % (row.field.max() + 1))
                << row.name << " seed " << seed;
            ASSERT_EQ(row.field.set(id, row.field.get(id)), id) << row.name << " seed " << seed;
        }
    }
}

TEST(Arinc825Id, HighestDocIsAllBitsOfItsField)
{
    EXPECT_EQ(data::doc.set(0, 16383), 0xfffcU);
    EXPECT_EQ(data::doc.get(0xfffc), 16383U);
}

TEST(Arinc825Id, DeliberateDocOneBeyondTheHighestIsZero)
{
    EXPECT_EQ(data::doc.set(0x1234567, 16384), 0x1234567U & ~0xfffcU);
}

TEST(Arinc825Id, ChannelsHaveNamesAndLayouts)
{
    struct Row
    {
        const char* name;
        const char* longName;
        bool isInProfiles;
        Layout layout;
    };
    const std::array<Row, 8> expected{{{"EEC", "EEC", true, Layout::Data},
                                       {"RES", "RESERVED", false, Layout::None},
                                       {"NOC", "NOC", true, Layout::Data},
                                       {"DMC", "DMC", false, Layout::Directed},
                                       {"NSC", "NSC", true, Layout::Service},
                                       {"UDC", "UDC", true, Layout::Data},
                                       {"TMC", "TMC", true, Layout::Service},
                                       {"FMC", "FMC", true, Layout::Data}}};
    for (std::uint32_t i = 0; i < expected.size(); ++i) {
        const Channel& found = channel(i << 26U);
        EXPECT_EQ(found.lcc, i);
        EXPECT_STREQ(found.name, expected[i].name);
        EXPECT_STREQ(found.longName, expected[i].longName);
        EXPECT_EQ(found.isInProfiles, expected[i].isInProfiles) << i;
        EXPECT_EQ(found.layout, expected[i].layout) << i;
        EXPECT_EQ(&channel((i << 26U) | 0xe3ffffffU), &found) << "bits beside the channel count";
    }
}

TEST(Arinc825Id, DirectedIdentifierOfZeros)
{
    EXPECT_EQ(fieldsOf(0x0C000000, decimal), "SA 0 DA 0 SP 0 DP 0");
    EXPECT_EQ(rciLetter(0x0C000000), 'A');
}

TEST(Arinc825Id, ReservedChannelLeavesTheFieldTextAndHasALetter)
{
    EXPECT_EQ(fieldsOf(0x04000000, decimal), untouched);
    EXPECT_EQ(fieldsOf(0x04000000, hexadecimal), untouched);
    EXPECT_EQ(rciLetter(0x04000002), 'C');
}

TEST(Arinc825Id, ServiceIdentifierWithItsMessageType)
{
    EXPECT_EQ(fieldsOf(0x10040000, decimal), "CFID 0 SMT 1 LCL 0 PVT 0 SFID 0 SID 0");
    EXPECT_EQ(fieldsOf(0x10040000, hexadecimal),
              "CFID 0x0 SMT 0x1 LCL 0x0 PVT 0x0 SFID 0x0 SID 0x0");
}

TEST(Arinc825Id, AnyOtherNumberTypeIsDecimal)
{
    for (const int numberType : {-1, 0, 2, 17}) {
        EXPECT_EQ(fieldsOf(0x082D0190, numberType), "SFID 5 FSB 1 LCL 0 PVT 1 DOC 100");
    }
    EXPECT_EQ(fieldsOf(0x082D0190, hexadecimal), "SFID 0x5 FSB 0x1 LCL 0x0 PVT 0x1 DOC 0x64");
}

TEST(Arinc825Id, FieldTextsAreThoseOfPrintf)
{
    constexpr unsigned seed = 825;
    std::mt19937 generator(seed);
    std::vector<std::uint32_t> ids{0, maxExtendedId, 0xffffffff};
    for (int i = 0; i < 4000; ++i) {
        ids.push_back(static_cast<std::uint32_t>(generator()));
    }
    for (const std::uint32_t id : ids) {
        for (const int numberType : {decimal, hexadecimal}) {
            ASSERT_EQ(fieldsOf(id, numberType), expectedFields(id, numberType))
                << "seed " << seed << " id " << id;
        }
        ASSERT_EQ(rciLetter(id), 'A' + bits(id, 1, 0)) << "seed " << seed;
    }
}

TEST(Arinc825Id, DeliberateLetterOfTheDirectedChannelIsFromThePort)
{
    EXPECT_EQ(rciLetter(0x0C000000U | 0x3fU), 'D');
    EXPECT_EQ(rciLetter(0x0C000001), 'B');
}

TEST(Arinc825Id, DeliberateKeyTextHasItsNumberTypesTheOtherWayRound)
{
    // LCC 2, FID 5, DOC 100, LCL 0, PVT 1
    EXPECT_EQ(keyOf(0x08290190, 1), "2/5/100/0/1");
    for (const int numberType : {0, 2, -1}) {
        EXPECT_EQ(keyOf(0x08290190, numberType), "$2/$5/$64/$0/$1");
    }
}

TEST(Arinc825Id, KeyTextsAreThoseOfPrintf)
{
    constexpr unsigned seed = 826;
    std::mt19937 generator(seed);
    for (int i = 0; i < 4000; ++i) {
        const auto id = static_cast<std::uint32_t>(generator());
        for (const int numberType : {0, 1}) {
            ASSERT_EQ(keyOf(id, numberType),
                      numberType == 1
                          ? printed("%d/%d/%d/%d/%d", bits(id, 28, 26), bits(id, 25, 19),
                                    bits(id, 15, 2), bits(id, 17, 17), bits(id, 16, 16))
                          : printed("$%X/$%X/$%X/$%X/$%X", bits(id, 28, 26), bits(id, 25, 19),
                                    bits(id, 15, 2), bits(id, 17, 17), bits(id, 16, 16)))
                << "seed " << seed << " id " << id;
        }
    }
}

TEST(Arinc825Id, AnyBufferSizeIsSafe)
{
    const std::string fields = fieldsOf(0x1fffffffU, hexadecimal);
    const std::string key = keyOf(0x1fffffffU, 0);
    for (std::size_t capacity = 0; capacity <= fieldTextCapacity; ++capacity) {
        std::string buffer(capacity + 1, '#');
        EXPECT_TRUE(fieldText(buffer.data(), capacity, 0x1fffffff, hexadecimal));
        EXPECT_EQ(buffer[capacity], '#') << "wrote beyond the capacity";
        if (capacity > 0) {
            EXPECT_EQ(std::string(buffer.c_str()), fields.substr(0, capacity - 1));
        }
        buffer.assign(capacity + 1, '#');
        parameterKeyText(buffer.data(), capacity, 0x1fffffff, 0);
        EXPECT_EQ(buffer[capacity], '#') << "wrote beyond the capacity";
        if (capacity > 0) {
            EXPECT_EQ(std::string(buffer.c_str()), key.substr(0, capacity - 1));
        }
    }
}

TEST(Arinc825Id, ParameterKeyIsTheIdentifierWithoutFsbAndRci)
{
    for (const std::uint32_t id : {0U, 0x40003U, 0x1fffffffU, 0xffffffffU, 0x0812d2e7U}) {
        EXPECT_EQ(parameterKey(id), id & ~0x40003U);
    }
}

TEST(Arinc825Id, ReceivedFrameMatchesItsParameterWhateverItsFsbAndRci)
{
    ProfileStore store;
    ProfileParameter parameter;
    parameter.id = 0x08280190;
    store.addToIndex(parameter);
    const std::uint32_t received = data::fsb.set(rci.set(parameter.id, 3), 1);
    EXPECT_NE(received, parameter.id);
    EXPECT_EQ(store.parameterIndex().count(parameterKey(received)), 1U);
}

TEST(Arinc825Id, ParameterKeyAsText)
{
    std::array<char, fieldTextCapacity> text{};
    parameterKeyIdText(text.data(), text.size(), 0x1FADCBEF);
    EXPECT_STREQ(text.data(), "0x1fa9cbec");
}

TEST(Arinc825Id, DeliberateLargestDocEntryGivesDocZero)
{
    EXPECT_EQ(data::doc.get(data::doc.set(0xfffc, maxDocEntry)), 0U);
    EXPECT_EQ(data::doc.max(), maxDocEntry - 1);
}

TEST(Arinc825Id, HeadersAndToolTips)
{
    EXPECT_STREQ(parameterKeyHeader, "LCC/FID/DOC/LCL/PVT");
    EXPECT_STREQ(fieldHeader, "FID/FSB/LCL/PVT/DOC/Address/Port");
    EXPECT_STREQ(channelSelectionToolTip,
                 "EEC Exception Event Channel\n1 Reserved Channel\nNOC Normal Operation Channel\n"
                 "DMC Directed Message Channel\nNSC Node Service Channel\n"
                 "UDC User Defined Channel\nTMC Test Maintenance Channel\n"
                 "FMC Frame Migration Channel");
}

TEST(Arinc825Id, DeliberateToolTipOfTheColumnTells5ForNsc)
{
    EXPECT_STREQ(channelColumnToolTip,
                 "Logical Communication Channel\n\n0 EEC Exception Event Channel\n1 Reserved\n"
                 "2 NOC Normal Operation Channel\n3 DMC Directed Message Channel\n"
                 "5 NSC Node Service Channel\n5 UDC User Defined Channel\n"
                 "6 TMC Test/Maintenance Channel\n7 FMC CAN Base Frame Migration Channel");
}

TEST(Arinc825Id, NamesOfTheFields)
{
    EXPECT_STREQ(names::sourceFid, "Source FID Function Code Identifier");
    EXPECT_STREQ(names::functionalStatusBit, "Functional Status Bit");
    EXPECT_STREQ(names::fsbDataFlag, "FSB Data Flag");
    EXPECT_STREQ(names::localDataBit, "LCL Local Data Bit");
    EXPECT_STREQ(names::privateDataBit, "PVT Private Data Bit");
    EXPECT_STREQ(names::dataObjectCode, "DOC Data Object Code");
    EXPECT_STREQ(names::redundancyChannel, "RCI Redundancy Channel Identifier");
    EXPECT_STREQ(names::clientFid, "Client FID");
    EXPECT_STREQ(names::serviceMessageType, "SMT Service Message Type");
    EXPECT_STREQ(names::serverFid, "Server FID");
    EXPECT_STREQ(names::sid, "SID");
    EXPECT_STREQ(names::sourceAddress, "Source Address");
    EXPECT_STREQ(names::destinationAddress, "Destination Address");
    EXPECT_STREQ(names::sourcePort, "Source Port");
    EXPECT_STREQ(names::destinationPort, "Destination Port");
}

} // namespace

#include "profile/DataTypes.h"

#include "profile/ProfileStore.h"

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

namespace {

using namespace zul;

TEST(DataTypes, ArincTypesInTheOrderOfTheirCodes)
{
    struct Row
    {
        const char* name;
        PositionRule rule;
    };
    const std::array<Row, 16> expected{{{"NODATA", PositionRule::Zero},
                                        {"ENUM", PositionRule::Free},
                                        {"CHAR", PositionRule::OneByte},
                                        {"UCHAR", PositionRule::OneByte},
                                        {"ACHAR", PositionRule::OneByte},
                                        {"SHORT", PositionRule::TwoBytes},
                                        {"USHORT", PositionRule::TwoBytes},
                                        {"LONG", PositionRule::FourBytes},
                                        {"ULONG", PositionRule::FourBytes},
                                        {"FLOAT", PositionRule::FourBytes},
                                        {"LONG64", PositionRule::EightBytes},
                                        {"ULONG64", PositionRule::EightBytes},
                                        {"DOUBLE", PositionRule::EightBytes},
                                        {"OPAQUE", PositionRule::Free},
                                        {"BOOL", PositionRule::Free},
                                        {"BCD", PositionRule::Free}}};
    ASSERT_EQ(arincTypes.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(static_cast<std::size_t>(arincTypes[i].type), i);
        EXPECT_STREQ(arincTypes[i].name, expected[i].name);
        EXPECT_EQ(arincTypes[i].positionRule, expected[i].rule) << expected[i].name;
    }
}

struct ExpectedType
{
    const char* name;
    const char* selectionName;
    const char* label;
    const char* decimalFormat;
    const char* hexadecimalFormat;
    int byteCount;
};

const std::vector<ExpectedType>& expectedCanAerospaceTypes()
{
    // Name, name in selections, label of the decoder, formats, bytes of the frame.
    // clang-format off
    static const std::vector<ExpectedType> rows{
        {"AS_NODATA", "NODATA", "NODATA", "", "", 4},
        {"AS_ERROR", "ERROR", "ERROR", "%d", "$%08x", 4},
        {"AS_FLOAT", "FLOAT", "FLOAT", "%f", "%f", 8},
        {"AS_LONG", "LONG", "LONG", "%d", "0x%08x", 8},
        {"AS_ULONG", "ULONG", "ULONG", "%d", "0x%08x", 8},
        {"AS_BLONG", "BLONG", "BLONG", "%d", "0x%08x", 8},
        {"AS_SHORT", "SHORT", "SHORT", "%d", "0x%04hx", 6},
        {"AS_USHORT", "USHORT", "USHORT", "0x%04hx", "0x%04hx", 6},
        {"AS_BSHORT", "BSHORT", "BSHORT", "%d", "0x%04hx", 6},
        {"AS_CHAR", "CHAR", "CHAR", "%d", "0x%02hhx", 5},
        {"AS_UCHAR", "UCHAR", "UCHAR", "%d", "0x%hhx", 5},
        {"AS_BCHAR", "BCHAR", "BCHAR", "%d", "0x%02hhx", 5},
        {"AS_SHORT_2", "SHORT_2", "SHORT2", "%d %d", "0x%04hx 0x%04hx", 8},
        {"AS_USHORT_2", "USHORT_2", "USHORT2", "%d %d", "0x%04hx 0x%04hx", 8},
        {"AS_BSHORT_2", "BSHORT_2", "BSHORT2", "%d %d", "0x%04hx 0x%04hx", 8},
        {"AS_CHAR_4", "CHAR_4", "CHAR4", "%d %d %d %d", "0x%02hx 0x%02hx 0x%02hx 0x%02hx", 8},
        {"AS_UCHAR_4", "UCHAR_4", "UCHAR4", "%d %d %d %d", "0x%02hhx 0x%02hhx 0x%02hhx 0x%02hhx", 8},
        {"AS_BCHAR_4", "BCHAR_4", "BCHAR4", "%d %d %d %d", "0x%02hhx 0x%02hhx 0x%02hhx 0x%02hhx", 8},
        {"AS_CHAR_2", "CHAR_2", "CHAR2", "%d %d", "0x%02hhx 0x%02hhx", 6},
        {"AS_UCHAR_2", "UCHAR_2", "UCHAR2", "%d %d", "0x%02hhx 0x%02hhx", 6},
        {"AS_BCHAR_2", "BCHAR_2", "BCHAR2", "%d %d", "0x%02hhx 0x%02hhx", 6},
        {"AS_MEMID", "MEMID", "MEMID", "%d", "0x%08x", 8},
        {"AS_CHKSUM", "CHKSUM", "CHKSUM", "%d", "0x%08x", 8},
        {"AS_ACHAR", "ACHAR", "ACHAR", "%c", "%c", 5},
        {"AS_ACHAR_2", "ACHAR_2", "ACHAR2", "%c %c", "%c %c", 6},
        {"AS_ACHAR_4", "ACHAR_4", "ACHAR4", "%c %c %c %c", "%c %c %c %c", 8},
        {"AS_CHAR_3", "CHAR_3", "CHAR3", "%d %d %d", "0x%02hhx 0x%02hhx 0x%02hhx", 7},
        {"AS_UCHAR_3", "UCHAR_3", "UCHAR3", "%d %d %d", "0x%02hhx 0x%02hhx 0x%02hhx", 7},
        {"AS_BCHAR_3", "BCHAR_3", "BCHAR3", "%d %d %d", "0x%02hhx 0x%02hhx 0x%02hhx", 7},
        {"AS_ACHAR_3", "ACHAR_3", "ACHAR3", "%c %c %c", "%c %c %c", 7},
    };
    // clang-format on
    return rows;
}

TEST(DataTypes, CanAerospaceTypesInTheOrderOfTheirCodes)
{
    const std::vector<ExpectedType>& expected = expectedCanAerospaceTypes();
    ASSERT_EQ(canAerospaceTypes.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const CanAerospaceTypeInfo& type = canAerospaceTypes[i];
        EXPECT_STREQ(type.name, expected[i].name);
        EXPECT_STREQ(type.selectionName, expected[i].selectionName) << type.name;
        EXPECT_STREQ(type.label, expected[i].label) << type.name;
        EXPECT_STREQ(type.decimalFormat, expected[i].decimalFormat) << type.name;
        EXPECT_STREQ(type.hexadecimalFormat, expected[i].hexadecimalFormat) << type.name;
        EXPECT_EQ(type.byteCount, expected[i].byteCount) << type.name;
    }
}

TEST(DataTypes, UnknownCanAerospaceTypePrintsFourBytes)
{
    EXPECT_STREQ(unknownCanAerospaceType.label, "UNKNOWN");
    EXPECT_STREQ(unknownCanAerospaceType.decimalFormat, "%d %d %d %d ");
    EXPECT_STREQ(unknownCanAerospaceType.hexadecimalFormat, "0x%02x 0x%02x 0x%02x 0x%02x ");
}

TEST(DataTypes, DeliberateAsymmetriesOfTheFormats)
{
    constexpr std::size_t ushort = 7;
    constexpr std::size_t uchar = 10;
    EXPECT_STREQ(canAerospaceTypes[ushort].decimalFormat, "0x%04hx");
    EXPECT_STREQ(canAerospaceTypes[uchar].hexadecimalFormat, "0x%hhx");
}

TEST(DataTypes, NoNameStandsTwice)
{
    std::set<std::string> names;
    std::set<std::string> selections;
    std::set<std::string> labels;
    for (const CanAerospaceTypeInfo& type : canAerospaceTypes) {
        EXPECT_TRUE(names.insert(type.name).second) << type.name;
        EXPECT_TRUE(selections.insert(type.selectionName).second) << type.selectionName;
        EXPECT_TRUE(labels.insert(type.label).second) << type.label;
    }
    for (const ArincTypeInfo& type : arincTypes) {
        EXPECT_TRUE(names.insert(type.name).second) << type.name;
    }
    EXPECT_EQ(std::set<std::string>(rawSelections.begin(), rawSelections.end()).size(),
              rawSelections.size());
}

TEST(DataTypes, RawSelectionsInTheOrderOfTheirIndexes)
{
    const std::vector<std::string> expected{
        "Char 0",   "Char 1",   "Char 2",     "Char 3",     "Char 4",     "Char 5",
        "Char 6",   "Char 7",   "Short 0..1", "Short 2..3", "Short 4..5", "Short 6..7",
        "Int 0..3", "Int 4..7", "Float 0..3", "Float 4..7", "Long 0..7",  "Double 0..7"};
    EXPECT_EQ(std::vector<std::string>(rawSelections.begin(), rawSelections.end()), expected);
}

TEST(DataTypes, ByteOrders)
{
    ASSERT_EQ(byteOrders.size(), 2U);
    EXPECT_EQ(byteOrders[0].endian, 0U);
    EXPECT_STREQ(byteOrders[0].text, "Little Endian");
    EXPECT_EQ(byteOrders[1].endian, 1U);
    EXPECT_STREQ(byteOrders[1].text, "Big Endian");
    EXPECT_EQ(ProfileParameter().endian, 1U);
}

TEST(DataTypes, StoreFindsEveryNameAndCode)
{
    const ProfileStore store;
    ASSERT_EQ(store.dataTypeNames().size(), arincTypes.size());
    for (const ArincTypeInfo& type : arincTypes) {
        EXPECT_EQ(store.dataTypeNames().at(QLatin1String(type.name)),
                  static_cast<std::uint32_t>(type.type));
    }
    ASSERT_EQ(store.canAerospaceTypeNames().size(), canAerospaceTypes.size());
    ASSERT_EQ(store.canAerospaceTypeCodes().size(), canAerospaceTypes.size());
    for (std::uint32_t code = 0; code < canAerospaceTypes.size(); ++code) {
        const QString name = QLatin1String(canAerospaceTypes[code].name);
        EXPECT_EQ(store.canAerospaceTypeNames().at(name), code);
        EXPECT_EQ(store.canAerospaceTypeCodes().at(code), name);
    }
}

TEST(DataTypes, NewParameterIsARawSelection)
{
    const ProfileParameter parameter;
    EXPECT_EQ(parameter.parameterKind, ParameterKind::Raw);
    EXPECT_EQ(static_cast<int>(ParameterKind::Arinc825), 0);
    EXPECT_EQ(static_cast<int>(ParameterKind::CanAerospace), 1);
    EXPECT_EQ(static_cast<int>(ParameterKind::Raw), 2);
    EXPECT_EQ(parameter.dtc, 0U);
    EXPECT_EQ(parameter.scaleOffset, 0.0);
    EXPECT_EQ(parameter.scaleFactor, 1.0);
    EXPECT_EQ(parameter.min, 0.0);
    EXPECT_EQ(parameter.max, 1.0);
}

} // namespace

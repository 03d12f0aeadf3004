#include "profile/Lru825Schema.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

struct ListCase
{
    const char* name;
    Lru825ValueList Lru825Schema::*list;
    std::vector<const char*> names; ///< by code
};

void PrintTo(const ListCase& test, std::ostream* stream)
{
    *stream << test.name;
}

class Lru825List : public testing::TestWithParam<ListCase>
{
protected:
    Lru825Schema schema;
    Lru825ValueList& list = schema.*GetParam().list;
};

TEST_P(Lru825List, HasItsNamesBothWays)
{
    const std::vector<const char*>& names = GetParam().names;
    EXPECT_EQ(list.names().size(), names.size());
    EXPECT_EQ(list.codes().size(), names.size());
    for (std::uint32_t code = 0; code < names.size(); ++code) {
        const QString name = QString::fromLatin1(names.at(code));
        EXPECT_EQ(list.nameOf(code), name);
        EXPECT_EQ(list.codeOf(name), code);
    }
}

// Deliberate: the lookup enters it.
TEST_P(Lru825List, UnknownNameIsEnteredWithTheCode0)
{
    const QString unknown = QStringLiteral("unheard of");
    const std::size_t count = list.codes().size();
    EXPECT_EQ(list.codeOf(unknown), 0U);
    EXPECT_EQ(list.codes().size(), count + 1);
    EXPECT_EQ(list.codes().at(unknown), 0U);
    EXPECT_EQ(list.nameOf(0), QString::fromLatin1(GetParam().names.front()));
    EXPECT_EQ(list.names().size(), count);
}

TEST_P(Lru825List, UnknownCodeHasNoName)
{
    EXPECT_EQ(list.nameOf(static_cast<std::uint32_t>(list.names().size())), QString());
    EXPECT_EQ(list.nameOf(0xffffffff), QString());
}

const std::vector<ListCase> lists{
    {"SamplingPointModes", &Lru825Schema::samplingPointModes, {"SINGLE", "TRIPLE"}},
    {"BitRates", &Lru825Schema::bitRates, {"83.333", "125", "250", "500", "1000"}},
    {"Channels",
     &Lru825Schema::channels,
     {"EEC", "RESERVED", "NOC", "DMC", "NSC", "UDC", "TMC", "FMC"}},
    {"RedundancyChannels", &Lru825Schema::redundancyChannels, {"A", "B", "C", "D"}},
    {"FunctionalStates", &Lru825Schema::functionalStates, {"NCD", "ND", "NO", "FT"}},
    {"DataTypes",
     &Lru825Schema::dataTypes,
     {"NODATA", "ENUM", "CHAR", "UCHAR", "ACHAR", "SHORT", "USHORT", "LONG", "ULONG", "FLOAT",
      "LONG64", "ULONG64", "DOUBLE", "OPAQUE", "BOOL", "BCD"}},
    {"IdentifierTypes",
     &Lru825Schema::identifierTypes,
     {"OneToMany", "PeerToPeer", "UserDefined", "DirectedMessage"}},
    {"IdentifierLengths", &Lru825Schema::identifierLengths, {"11bit", "29bit"}},
};

INSTANTIATE_TEST_SUITE_P(, Lru825List, testing::ValuesIn(lists),
                         [](const auto& test) { return test.param.name; });

TEST(Lru825SchemaTables, AreThoseOf825Part3)
{
    const Lru825Schema schema;
    EXPECT_EQ(schema.fidTable.size(), 128U);
    EXPECT_EQ(schema.fidTable.at(21), QStringLiteral("Wings"));
    EXPECT_EQ(schema.fidTable, zul::makeFidTable825Part3());
    EXPECT_EQ(schema.unitTable, zul::makeUnitTable());
}

TEST(Lru825SchemaTables, BelongToOneSchema)
{
    Lru825Schema one;
    const Lru825Schema other;
    one.bitRates.codeOf(QStringLiteral("2000"));
    one.fidTable[1] = QStringLiteral("mine");
    EXPECT_EQ(other.bitRates.codes().count(QStringLiteral("2000")), 0U);
    EXPECT_EQ(other.fidTable.at(1), QLatin1String(zul::reservedFid));
}

} // namespace

#include "tests/unit/profile/XmlProfileFixture.h"

#include <gmock/gmock.h>

namespace {

using namespace zul;
using test::Attributes;
using test::errorLine;
using test::parameterElement;
using test::warningLine;
using test::withParameters;
using testing::ElementsAre;
using testing::IsEmpty;

const QByteArray longText(256, 'x');
const QByteArray longestText(255, 'x');

using XmlProfileMessages = test::XmlProfileFixture;

// Messages of the root element.

TEST_F(XmlProfileMessages, RootIsReportedInLineMinusOne)
{
    ASSERT_TRUE(read("<Arinc825Profile name=\"" + longText + "\" id=\"65536.65537\"/>"));
    EXPECT_THAT(lines, ElementsAre(warningLine(-1, "Profile name has more than 255 characters"),
                                   errorLine(-1, "Profile Id 65536 out of range [0..65535]"),
                                   errorLine(-1, "Profile Sub-Id 65537 out of range [0..65535]")));
}

TEST_F(XmlProfileMessages, RootAtItsLimits)
{
    ASSERT_TRUE(read("<Arinc825Profile name=\"" + longestText + "\" id=\"65535.65535\"/>"));
    EXPECT_THAT(lines, IsEmpty());
}

TEST_F(XmlProfileMessages, NegativeIdsAreOutOfRange)
{
    ASSERT_TRUE(read("<Arinc825Profile id=\"-1.-2\"/>"));
    EXPECT_THAT(lines, ElementsAre(errorLine(-1, "Profile Id -1 out of range [0..65535]"),
                                   errorLine(-1, "Profile Sub-Id -2 out of range [0..65535]")));
}

// Messages of the lists.

TEST_F(XmlProfileMessages, UserFids)
{
    ASSERT_TRUE(read("<Arinc825Profile><FidList>\n"
                     "<Fid name=\"a\" code=\"21\" comment=\"c\"/>\n"
                     "<Fid name=\"b\" code=\"21\"/>\n"
                     "<Fid name=\"d\" code=\"128\"/>\n"
                     "<Fid name=\"e\" code=\"-1\"/>\n"
                     "<Fid name=\"f\" code=\"16\"/>\n"
                     "</FidList></Arinc825Profile>"));
    EXPECT_THAT(lines,
                ElementsAre(errorLine(3, "User FID 21 (b) exists already "),
                            errorLine(4, "User FID 128 (d) invalid. Range must be in [0..127]"),
                            errorLine(5, "User FID -1 (e) invalid. Range must be in [0..127]"),
                            errorLine(6, "User FID 16 (f) conflicts with standard FID 16 "
                                         "(Air Data)")));
    ASSERT_EQ(profile.userFids.size(), 4U);
    EXPECT_EQ(profile.userFids.at(21).name, QStringLiteral("a"));
    EXPECT_EQ(profile.userFids.at(21).comment, QStringLiteral("c"));
    EXPECT_EQ(profile.userFids.at(21).code, 21U);
}

// Deliberate: 21 is free in ARINC 825-2 alone, 40 in ARINC 825-3 alone.
TEST_F(XmlProfileMessages, UserFidsAreHeldAgainstTheTableOf825Part2)
{
    ASSERT_TRUE(read("<Arinc825Profile><FidList><Fid name=\"a\" code=\"21\"/>\n"
                     "<Fid name=\"b\" code=\"40\"/></FidList></Arinc825Profile>"));
    EXPECT_THAT(lines, ElementsAre(errorLine(2, "User FID 40 (b) conflicts with standard FID 40 "
                                                "(Defensive Aid Systems)")));
}

TEST_F(XmlProfileMessages, UserUnits)
{
    ASSERT_TRUE(read("<Arinc825Profile><UnitList>\n"
                     "<Unit name=\"a\" code=\"100\" comment=\"c\" acronym=\"d\"/>\n"
                     "<Unit name=\"b\" code=\"100\"/>\n"
                     "<Unit name=\"e\" code=\"99\"/>\n"
                     "<Unit name=\"f\" code=\"1000\"/>\n"
                     "<Unit name=\"g\" code=\"999\"/>\n"
                     "</UnitList></Arinc825Profile>"));
    EXPECT_THAT(lines,
                ElementsAre(errorLine(3, "User Unit 100 (b) already exists"),
                            errorLine(4, "User Unit 99 (e) invalid. Range must be in [100..999]"),
                            errorLine(5, "User Unit 1000 (f) invalid. Range must be in "
                                         "[100..999]")));
    ASSERT_EQ(profile.userUnits.size(), 4U);
    const ProfileUserUnit& unit = profile.userUnits.at(100);
    EXPECT_EQ(unit.name, QStringLiteral("a"));
    EXPECT_EQ(unit.comment, QStringLiteral("c"));
    EXPECT_EQ(unit.acronym, QStringLiteral("d"));
}

TEST_F(XmlProfileMessages, EnumerationValues)
{
    ASSERT_TRUE(read("<Arinc825Profile><EnumList><Enum name=\"E\">\n"
                     "<Value val=\"1\" label=\"one\"/>\n"
                     "<Value val=\"1\" label=\"uno\"/>\n"
                     "<Value val=\"-2\" label=\"minus\"/>\n"
                     "</Enum></EnumList></Arinc825Profile>"));
    EXPECT_THAT(lines, ElementsAre(errorLine(3, "Enumeration Value 1 (uno) already exists")));
    const ProfileEnum& enumeration = profile.enums.at(QStringLiteral("E"));
    EXPECT_EQ(enumeration.name, QStringLiteral("E"));
    ASSERT_EQ(enumeration.values.size(), 2U);
    EXPECT_EQ(enumeration.values.at(1).label, QStringLiteral("uno"));
    EXPECT_EQ(enumeration.values.at(-2).label, QStringLiteral("minus"));
    EXPECT_EQ(enumeration.values.at(-2).value, -2);
}

// Deliberate.
TEST_F(XmlProfileMessages, LaterEnumerationReplacesOneOfItsNameWithoutAMessage)
{
    ASSERT_TRUE(read("<Arinc825Profile><EnumList>"
                     "<Enum name=\"E\"><Value val=\"1\" label=\"a\"/></Enum>"
                     "<Enum name=\"F\"/>"
                     "<Enum name=\"E\"><Value val=\"2\" label=\"b\"/></Enum>"
                     "</EnumList></Arinc825Profile>"));
    EXPECT_THAT(lines, IsEmpty());
    const ProfileEnum& enumeration = profile.enums.at(QStringLiteral("E"));
    EXPECT_EQ(enumeration.enumId, profile.enums.at(QStringLiteral("F")).enumId + 1);
    ASSERT_EQ(enumeration.values.size(), 1U);
    EXPECT_EQ(enumeration.values.at(2).label, QStringLiteral("b"));
}

// Messages of a parameter, in the third line.

TEST_F(XmlProfileMessages, GoodParameterIsReportedNothing)
{
    ASSERT_TRUE(read(withParameters(parameterElement())));
    EXPECT_THAT(lines, IsEmpty());
}

struct ParameterCase
{
    const char* name;
    Attributes attributes;
    std::vector<std::string> messages; ///< texts; a warning has "W " before
    QByteArray fid = "4";
};

void PrintTo(const ParameterCase& test, std::ostream* stream)
{
    *stream << test.name;
}

class XmlParameterMessage : public XmlProfileMessages,
                            public testing::WithParamInterface<ParameterCase>
{
};

TEST_P(XmlParameterMessage, IsAsTold)
{
    const ParameterCase& test = GetParam();
    ASSERT_TRUE(read(withParameters(parameterElement(test.attributes), test.fid)));
    std::vector<std::string> expected;
    for (const std::string& message : test.messages) {
        expected.push_back(message.rfind("W ", 0) == 0 ? warningLine(3, message.substr(2))
                                                       : errorLine(3, message));
    }
    EXPECT_EQ(lines, expected);
    EXPECT_EQ(store.parameterIndex().size(), 1U) << "filed whatever was found";
}

const std::vector<ParameterCase> identifierCases{
    {"Lcc",
     {{"lcc", "DMC"}},
     {"wrong LCC identifier DMC. Valid LCCs are EEC, NOC, NSC, UDC, TMC or FMC."}},
    {"LccInLowerCase",
     {{"lcc", "eec"}},
     {"wrong LCC identifier eec. Valid LCCs are EEC, NOC, NSC, UDC, TMC or FMC."}},
    {"FidTooLarge", {}, {"FID 128 invalid. Range must be in [0..127]"}, "128"},
    {"FidNegative", {}, {"FID -1 invalid. Range must be in [0..127]"}, "-1"},
    {"FidReserved", {}, {"FID 40 not defined. Define a User FID or use a standard FID"}, "40"},
    {"FidOf825Part3", {}, {}, "21"},
    {"DocAtItsLimit", {{"doc", "16384"}}, {}},
    {"DocTooLarge", {{"doc", "16385"}}, {"DOC 16385 out of range. Range must be in [0..16384]"}},
    {"DocNegative", {{"doc", "-1"}}, {"DOC -1 out of range. Range must be in [0..16384]"}},
    {"NidAtItsLimit", {{"lcc", "NSC"}, {"doc", "65535"}}, {}},
    {"NidTooLarge",
     {{"lcc", "NSC"}, {"doc", "65536"}},
     {"NID 65536 out of range. Range must be in [0..65535]"}},
    {"DfidAtItsLimit", {{"dfid", "127"}}, {}},
    {"DfidTooLarge", {{"dfid", "128"}}, {"DFID 128 out of range. Range must be in [0..127]"}},
    {"Lcl", {{"lcl", "2"}}, {"LCL 2 out of range. Range must be in [0..1]"}},
    {"Pvt", {{"pvt", "-1"}}, {"PVT -1 out of range. Range must be in [0..1]"}},
    {"SidAtItsLimit", {{"sid", "511"}}, {}},
    {"Sid512NamesTheRange", {{"sid", "512"}}, {"SID 512 out of range. Range must be in [0..511]"}},
};

const std::vector<ParameterCase> positionCases{
    {"Dtn", {{"dtn", "uchar"}}, {"Invalid DTN uchar"}},
    {"NoData",
     {{"dtn", "NODATA"}},
     {"Invalid SPP 2.0 . Must be 0 fo NODATA.", "Invalid EPP 2.7 . Must be 0 fo NODATA."}},
    {"OneByte",
     {{"spp", "3.1"}, {"epp", "2.6"}},
     {"Invalid SPP/EPP combination 3.1/2.6 . SPP Byte must be = EPP Byte",
      "Invalid SPP/EPP combination 3.1/2.6 . SPP Bit must be 0",
      "Invalid SPP/EPP combination 3.1/2.6 . EPP Bit must be 7"}},
    {"TwoBytes",
     {{"dtn", "SHORT"}, {"spp", "2.1"}, {"epp", "0.6"}},
     {"Invalid SPP/EPP combination 2.1/0.6 . SPP Byte must be EPP Byte + 1",
      "Invalid SPP/EPP combination 2.1/0.6 . SPP Byte must be 1,3,5,7",
      "Invalid SPP/EPP combination 2.1/0.6 . SPP Bit must be 0",
      "Invalid SPP/EPP combination 2.1/0.6 . EPP Bit must be 7"}},
    {"FourBytes",
     {{"dtn", "FLOAT"}, {"spp", "4.1"}, {"epp", "0.6"}},
     {"Invalid SPP/EPP combination 4.1/0.6 . SPP Byte must be EPP Byte + 3",
      "Invalid SPP/EPP combination 4.1/0.6 . SPP Byte must be 3,7",
      "Invalid SPP/EPP combination 4.1/0.6 . SPP Bit must be 0",
      "Invalid SPP/EPP combination 4.1/0.6 . EPP Bit must be 7"}},
    {"EightBytes", {{"dtn", "DOUBLE"}}, {"Invalid SPP/EPP combination 2.0/2.7 . Must be 7.0/0.7"}},
    {"FreeBytes",
     {{"dtn", "BOOL"}, {"spp", "8.0"}, {"epp", "9.8"}},
     {"Invalid SPP 8.0 . Must be in range [0..7].", "Invalid EPP 9.8 . Must be in range [0..7].",
      "Invalid SPP/EPP combination 8.0/9.8 . SPP Byte must be greater/equal EPP Byte"}},
    {"FreeBits",
     {{"dtn", "BOOL"}, {"spp", "2.5"}, {"epp", "2.4"}},
     {"Invalid SPP/EPP combination 2.5/2.4 . SPP Bit must be smaller/equal EPP Bit"}},
};

const std::vector<ParameterCase> meaningCases{
    {"PucTooLarge", {{"puc", "1000"}}, {"PUC 1000 out of range. Range must be in [0..999]"}},
    {"PucNegative", {{"puc", "-1"}}, {"PUC -1 out of range. Range must be in [0..999]"}},
    {"PucNotDefined",
     {{"puc", "54"}},
     {"PUC 54 not defined. Define a User Unit or use a standard unit"}},
    {"PucOfTheTable", {{"puc", "53"}}, {}},
    {"NmeAtItsLimit", {{"nme", longestText}}, {}},
    {"Nme", {{"nme", longText}}, {"W NME has more than 255 characters"}},
    {"PuaIsNotChecked", {{"pua", longText}}, {}},
    {"MinAboveMax", {{"min", "2"}, {"max", "1"}}, {"W MIN greater MAX"}},
    {"MinEqualsMax", {{"min", "2"}, {"max", "2"}}, {}},
    {"Upt", {{"upt", "-1"}}, {"UPR invalid value"}},
    {"UprIsNotRead", {{"upr", "-1"}}, {}},
    {"Lat", {{"lat", "-0.5"}}, {"LAT invalid value"}},
    {"RciAtItsLimit", {{"rci", "3"}}, {}},
    {"Rci4", {{"rci", "4"}}, {"RCI invalid value"}},
    {"RciNegative", {{"rci", "-1"}}, {"RCI invalid value"}},
    {"Nts", {{"nts", longText}}, {"W NTS has more than 255 characters"}},
};

const std::vector<ParameterCase> orderCases{
    {"AllInOrder",
     {{"lcc", "RES"},
      {"doc", "16385"},
      {"dfid", "128"},
      {"lcl", "2"},
      {"pvt", "3"},
      {"sid", "512"},
      {"dtn", "X"},
      {"spp", "2.5"},
      {"epp", "2.4"},
      {"puc", "1000"},
      {"nme", longText},
      {"min", "1"},
      {"max", "0"},
      {"upt", "-1"},
      {"lat", "-1"},
      {"rci", "4"},
      {"nts", longText}},
     {"wrong LCC identifier RES. Valid LCCs are EEC, NOC, NSC, UDC, TMC or FMC.",
      "FID 300 invalid. Range must be in [0..127]",
      "DOC 16385 out of range. Range must be in [0..16384]",
      "DFID 128 out of range. Range must be in [0..127]",
      "LCL 2 out of range. Range must be in [0..1]", "PVT 3 out of range. Range must be in [0..1]",
      "SID 512 out of range. Range must be in [0..511]", "Invalid DTN X",
      "Invalid SPP/EPP combination 2.5/2.4 . SPP Bit must be smaller/equal EPP Bit",
      "PUC 1000 out of range. Range must be in [0..999]", "W NME has more than 255 characters",
      "W MIN greater MAX", "UPR invalid value", "LAT invalid value", "RCI invalid value",
      "W NTS has more than 255 characters"},
     "300"},
};

std::string caseName(const testing::TestParamInfo<ParameterCase>& info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Identifier, XmlParameterMessage, testing::ValuesIn(identifierCases),
                         caseName);
INSTANTIATE_TEST_SUITE_P(Position, XmlParameterMessage, testing::ValuesIn(positionCases), caseName);
INSTANTIATE_TEST_SUITE_P(Meaning, XmlParameterMessage, testing::ValuesIn(meaningCases), caseName);
INSTANTIATE_TEST_SUITE_P(Order, XmlParameterMessage, testing::ValuesIn(orderCases), caseName);

TEST_F(XmlProfileMessages, ParametersThatShareBits)
{
    const auto bits = [](const char* spp, const char* epp) {
        return parameterElement({{"dtn", "BOOL"}, {"spp", spp}, {"epp", epp}}) + '\n';
    };
    ASSERT_TRUE(read(withParameters(bits("0.0", "0.3") + bits("0.4", "0.7"))));
    EXPECT_THAT(lines, IsEmpty());
    ASSERT_TRUE(read(withParameters(bits("0.0", "0.4") + bits("0.4", "0.7"))));
    EXPECT_THAT(lines, ElementsAre(warningLine(
                           4, "Bits of parameter in line 3 conflicts with parameter in line 4")));
}

TEST_F(XmlProfileMessages, LineIsThatInWhichTheStartTagEnds)
{
    ASSERT_TRUE(read("<?xml version = \"1.0\" encoding = \"UTF-8\"?>\n<Arinc825Profile>\n"
                     "<FidList><Fid\n name=\"a\"\n code=\"200\"\n/></FidList>\n"
                     "</Arinc825Profile>"));
    EXPECT_THAT(lines,
                ElementsAre(errorLine(6, "User FID 200 (a) invalid. Range must be in [0..127]")));
}

TEST_F(XmlProfileMessages, LinesOfAFileWithCarriageReturns)
{
    ASSERT_TRUE(read(withParameters(parameterElement({{"rci", "4"}})).replace("\n", "\r\n")));
    EXPECT_THAT(lines, ElementsAre(errorLine(3, "RCI invalid value")));
}

} // namespace

#include "measure/ParameterPositions.h"

#include <gmock/gmock.h>
#include <map>
#include <string>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Codes = std::vector<std::uint32_t>;

constexpr ParameterKind arinc = ParameterKind::Arinc825;
constexpr ParameterKind canAerospace = ParameterKind::CanAerospace;
constexpr ParameterKind raw = ParameterKind::Raw;

std::string textOf(const PayloadPosition& position)
{
    return std::to_string(position.startByte) + '.' + std::to_string(position.startBit) + '/' +
           std::to_string(position.endByte) + '.' + std::to_string(position.endBit);
}

std::string natural(ParameterKind kind, std::uint32_t code)
{
    const auto position = naturalPosition(kind, code);
    return position ? textOf(*position) : "none";
}

void expectNatural(ParameterKind kind, const std::map<std::string, Codes>& rows)
{
    for (const auto& row : rows) {
        for (const std::uint32_t code : row.second) {
            EXPECT_EQ(natural(kind, code), row.first) << code;
        }
    }
}

std::vector<std::string> texts(ParameterKind kind)
{
    std::vector<std::string> found;
    for (const DataTypeChoice& choice : dataTypeChoices(kind)) {
        found.emplace_back(choice.text);
    }
    return found;
}

TEST(DataTypeChoices, OfRawSelectionsStandWidestFirst)
{
    EXPECT_THAT(texts(raw), ElementsAre("Double 0..7", "Float 0..3", "Float 4..7", "Long 0..7",
                                        "Int 0..3", "Int 4..7", "Short 0..1", "Short 2..3",
                                        "Short 4..5", "Short 6..7", "Char 0", "Char 1", "Char 2",
                                        "Char 3", "Char 4", "Char 5", "Char 6", "Char 7"));
    Codes codes;
    for (const DataTypeChoice& choice : dataTypeChoices(raw)) {
        codes.push_back(choice.code);
    }
    EXPECT_THAT(codes, ElementsAre(17, 14, 15, 16, 12, 13, 8, 9, 10, 11, 0, 1, 2, 3, 4, 5, 6, 7));
}

TEST(DataTypeChoices, OfProfilesStandInTheOrderOfTheirCodes)
{
    EXPECT_THAT(texts(arinc), ElementsAre("NODATA", "ENUM", "CHAR", "UCHAR", "ACHAR", "SHORT",
                                          "USHORT", "LONG", "ULONG", "FLOAT", "LONG64", "ULONG64",
                                          "DOUBLE", "OPAQUE", "BOOL", "BCD"));
    ASSERT_EQ(texts(canAerospace).size(), 30U);
    EXPECT_EQ(texts(canAerospace)[2], "FLOAT");
    EXPECT_EQ(texts(canAerospace)[29], "ACHAR_3");
    EXPECT_EQ(dataTypeChoices(canAerospace)[29].code, 29U);
    EXPECT_THAT(texts(static_cast<ParameterKind>(9)), IsEmpty());
}

TEST(NaturalPosition, OfArinc825)
{
    expectNatural(arinc, {{"0.0/0.7", {2, 3, 4}},
                          {"1.0/0.7", {5, 6}},
                          {"3.0/0.7", {7, 8, 9}},
                          {"7.0/0.7", {10, 11, 12}},
                          {"0.0/0.3", {15}},
                          {"0.0/0.0", {0, 1, 13, 14, 16, 99}}});
}

TEST(NaturalPosition, OfRawSelections)
{
    expectNatural(raw, {{"0.0/0.7", {0}},
                        {"1.0/1.7", {1}},
                        {"2.0/2.7", {2}},
                        {"3.0/3.7", {3}},
                        {"4.0/4.7", {4}},
                        {"5.0/5.7", {5}},
                        {"6.0/6.7", {6}},
                        {"7.0/7.7", {7}},
                        {"1.0/0.7", {8}},
                        {"3.0/2.7", {9}},
                        {"5.0/4.7", {10}},
                        {"7.0/6.7", {11}},
                        {"3.0/0.7", {12, 14}},
                        {"7.0/4.7", {13, 15}},
                        {"7.0/0.7", {16, 17}},
                        {"none", {18}}});
}

TEST(NaturalPosition, OfCanAerospace)
{
    expectNatural(canAerospace, {{"7.0/4.7", {1, 2, 3, 4, 5, 12, 13, 14, 15, 16, 17, 21, 22, 25}},
                                 {"5.0/4.7", {6, 7, 8, 18, 19, 20, 24}},
                                 {"4.0/4.7", {9, 10, 11, 23}},
                                 {"6.0/4.7", {26, 27, 28, 29}},
                                 {"0.0/0.0", {0}},
                                 {"none", {30}}});
}

TEST(NaturalPosition, OfAnUnknownKindIsNone)
{
    EXPECT_EQ(natural(static_cast<ParameterKind>(9), 2), "none");
}

std::string enabled(const PositionChoices& choices)
{
    std::string text;
    text += choices.isStartByteEnabled ? 'B' : '-';
    text += choices.isStartBitEnabled ? 'b' : '-';
    text += choices.isEndEnabled ? 'E' : '-';
    return text;
}

void expectChoices(std::uint32_t code, const Codes& startBytes, const Codes& startBits,
                   const Codes& endBytes, const Codes& endBits, const char* enabledOnes)
{
    const PositionChoices choices = positionChoices(arinc, code);
    EXPECT_EQ(choices.startBytes, startBytes) << code;
    EXPECT_EQ(choices.startBits, startBits) << code;
    EXPECT_EQ(choices.endBytes, endBytes) << code;
    EXPECT_EQ(choices.endBits, endBits) << code;
    EXPECT_EQ(enabled(choices), enabledOnes) << code;
}

TEST(PositionChoices, OfArinc825AreWhatTheTypeAllows)
{
    const Codes all{0, 1, 2, 3, 4, 5, 6, 7};
    expectChoices(0, {}, {}, {}, {}, "---");
    for (const std::uint32_t code : {2U, 3U, 4U}) {
        expectChoices(code, all, {0}, all, {7}, "B--");
    }
    for (const std::uint32_t code : {5U, 6U}) {
        expectChoices(code, {1, 3, 5, 7}, {0}, {0, 2, 4, 6}, {7}, "B--");
    }
    for (const std::uint32_t code : {7U, 8U, 9U}) {
        expectChoices(code, {3, 7}, {0}, {0, 4}, {7}, "B--");
    }
    for (const std::uint32_t code : {10U, 11U, 12U}) {
        expectChoices(code, {7}, {0}, {0}, {7}, "---");
    }
    expectChoices(14, all, all, all, all, "Bb-");
    expectChoices(15, all, {0, 4}, all, {3, 7}, "Bb-");
    for (const std::uint32_t code : {1U, 13U, 16U}) {
        expectChoices(code, all, all, all, all, "BbE");
    }
}

TEST(PositionChoices, OfOtherKindsAreAllAndDisabled)
{
    const Codes all{0, 1, 2, 3, 4, 5, 6, 7};
    for (const ParameterKind kind : {canAerospace, raw}) {
        const PositionChoices choices = positionChoices(kind, 2);
        EXPECT_EQ(choices.startBytes, all);
        EXPECT_EQ(choices.startBits, all);
        EXPECT_EQ(choices.endBytes, all);
        EXPECT_EQ(choices.endBits, all);
        EXPECT_EQ(enabled(choices), "---");
    }
}

std::string adjusted(std::uint32_t code, const PayloadPosition& position)
{
    return textOf(adjustedPosition(arinc, code, position));
}

TEST(AdjustedPosition, HasTheWidthOfTheType)
{
    for (const std::uint32_t code : {2U, 3U, 4U}) {
        EXPECT_EQ(adjusted(code, {5, 3, 1, 2}), "5.0/5.7");
    }
    for (const std::uint32_t code : {5U, 6U}) {
        EXPECT_EQ(adjusted(code, {5, 3, 1, 2}), "5.0/4.7");
    }
    for (const std::uint32_t code : {7U, 8U, 9U}) {
        EXPECT_EQ(adjusted(code, {7, 3, 1, 2}), "7.0/4.7");
    }
    for (const std::uint32_t code : {10U, 11U, 12U}) {
        EXPECT_EQ(adjusted(code, {3, 3, 1, 2}), "7.0/0.7");
    }
    EXPECT_EQ(adjusted(14, {3, 5, 1, 2}), "3.5/3.5");
    EXPECT_EQ(adjusted(15, {3, 4, 1, 2}), "3.4/3.7");
    for (const std::uint32_t code : {0U, 1U, 13U}) {
        EXPECT_EQ(adjusted(code, {3, 5, 1, 2}), "3.5/1.2");
    }
}

TEST(AdjustedPosition, NeverEndsBeforeTheFirstByte)
{
    EXPECT_EQ(adjusted(5, {0, 0, 0, 0}), "0.0/0.7");
    EXPECT_EQ(adjusted(9, {1, 0, 0, 0}), "1.0/0.7");
}

TEST(AdjustedPosition, OfOtherKindsStays)
{
    EXPECT_EQ(textOf(adjustedPosition(raw, 5, {3, 5, 1, 2})), "3.5/1.2");
}

TEST(PayloadPosition, GoesInAndOutOfAParameter)
{
    ProfileParameter parameter;
    setPosition(parameter, {1, 2, 3, 4});
    EXPECT_EQ(parameter.sppByte, 1U);
    EXPECT_EQ(parameter.sppBit, 2U);
    EXPECT_EQ(parameter.eppByte, 3U);
    EXPECT_EQ(parameter.eppBit, 4U);
    EXPECT_EQ(textOf(positionOf(parameter)), "1.2/3.4");
}

} // namespace

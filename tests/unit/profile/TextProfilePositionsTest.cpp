#include "TextProfileFixture.h"

#include <ostream>
#include <vector>

// SPP and EPP of every data type against the rules for its position.

namespace {

using zul::test::TextReader;

struct PositionCase
{
    const char* type;
    const char* spp;
    const char* epp;
    std::vector<const char*> endings; ///< of the messages
};

void PrintTo(const PositionCase& position, std::ostream* stream)
{
    *stream << position.type << ' ' << position.spp << '/' << position.epp;
}

class TextReaderPositions : public TextReader, public testing::WithParamInterface<PositionCase>
{
};

TEST_P(TextReaderPositions, Rules)
{
    const PositionCase& test = GetParam();
    QStringList expected;
    for (const char* ending : test.endings) {
        const QString text = QString::fromLatin1(ending);
        expected << (text.startsWith(QStringLiteral("Invalid"))
                         ? QStringLiteral("2 Error: ") + text
                         : QStringLiteral("2 Error: Invalid SPP/EPP combination %1/%2 . %3")
                               .arg(QLatin1String(test.spp), QLatin1String(test.epp), text));
    }
    EXPECT_EQ(readParameter({{6, test.spp}, {7, test.epp}, {9, test.type}}), expected);
}

constexpr const char* sameByte = "SPP Byte must be = EPP Byte";
constexpr const char* sppBit0 = "SPP Bit must be 0";
constexpr const char* eppBit7 = "EPP Bit must be 7";
constexpr const char* nextByte = "SPP Byte must be EPP Byte + 1";
constexpr const char* oddByte = "SPP Byte must be 1,3,5,7";
constexpr const char* thirdByte = "SPP Byte must be EPP Byte + 3";
constexpr const char* fourthByte = "SPP Byte must be 3,7";
constexpr const char* allBytes = "Must be 7.0/0.7";
constexpr const char* byteOrder = "SPP Byte must be greater/equal EPP Byte";
constexpr const char* bitOrder = "SPP Bit must be smaller/equal EPP Bit";

INSTANTIATE_TEST_SUITE_P(
    Table, TextReaderPositions,
    testing::Values(
        PositionCase{"NODATA", "0.0", "0.0", {}},
        PositionCase{
            "NODATA",
            "1.0",
            "0.1",
            {"Invalid SPP 1.0 . Must be 0 fo NODATA.", "Invalid EPP 0.1 . Must be 0 fo NODATA."}},
        PositionCase{"CHAR", "9.0", "9.7", {}}, PositionCase{"UCHAR", "2.0", "2.7", {}},
        PositionCase{"UCHAR", "2.1", "2.7", {sppBit0}},
        PositionCase{"CHAR", "2.1", "3.6", {sameByte, sppBit0, eppBit7}},
        PositionCase{"ACHAR", "2.0", "3.7", {sameByte}}, PositionCase{"SHORT", "1.0", "0.7", {}},
        PositionCase{"USHORT", "7.0", "6.7", {}}, PositionCase{"SHORT", "2.0", "1.7", {oddByte}},
        PositionCase{"USHORT", "9.0", "8.7", {oddByte}},
        PositionCase{"USHORT", "2.1", "2.6", {nextByte, oddByte, sppBit0, eppBit7}},
        PositionCase{"LONG", "3.0", "0.7", {}}, PositionCase{"ULONG", "7.0", "4.7", {}},
        PositionCase{"FLOAT", "4.0", "1.7", {fourthByte}},
        PositionCase{"LONG", "3.0", "1.7", {thirdByte}},
        PositionCase{"ULONG", "4.3", "4.4", {thirdByte, fourthByte, sppBit0, eppBit7}},
        PositionCase{"LONG64", "7.0", "0.7", {}}, PositionCase{"DOUBLE", "6.0", "1.7", {allBytes}},
        PositionCase{"ULONG64", "7.1", "0.7", {allBytes}},
        PositionCase{"LONG64", "7.0", "0.6", {allBytes}}, PositionCase{"ENUM", "7.0", "0.7", {}},
        PositionCase{"OPAQUE", "3.3", "3.3", {}}, PositionCase{"BOOL", "2.0", "3.0", {byteOrder}},
        PositionCase{"BCD", "2.4", "2.3", {bitOrder}},
        PositionCase{"BCD",
                     "8.0",
                     "0.8",
                     {"Invalid SPP 8.0 . Must be in range [0..7].",
                      "Invalid EPP 0.8 . Must be in range [0..7]."}},
        PositionCase{"BOOL",
                     "0.9",
                     "9.0",
                     {"Invalid SPP 0.9 . Must be in range [0..7].",
                      "Invalid EPP 9.0 . Must be in range [0..7].", byteOrder}}));

TEST_F(TextReader, UnknownDataTypeAndEnumerationFollowTheFreeRule)
{
    EXPECT_EQ(readParameter({{6, "2.4"}, {7, "2.3"}, {9, "What"}}),
              QStringList({QStringLiteral("2 Error: Invalid DTN What"),
                           QStringLiteral("2 Error: Invalid SPP/EPP combination 2.4/2.3 . SPP Bit "
                                          "must be smaller/equal EPP Bit")}));
    EXPECT_EQ(read("<enum>\nE;0;Off\n<parameter>\n" + line({{6, "0.8"}, {9, "E"}})),
              QStringList({QStringLiteral("4 Error: Invalid SPP 0.8 . Must be in range [0..7]."),
                           QStringLiteral("4 Error: Invalid SPP/EPP combination 0.8/0.7 . SPP Bit "
                                          "must be smaller/equal EPP Bit")}));
}

} // namespace

#include "traffic/CanAerospaceEntry.h"

#include "profile/DataTypes.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

using namespace canaerospaceentry;

constexpr int decimal = 0;
constexpr int hexadecimal = 1;
constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float largest = std::numeric_limits<float>::max();

SendMsg ofType(int code)
{
    SendMsg message;
    setDataType(message, code);
    return message;
}

int codeOf(const char* name)
{
    for (std::size_t i = 0; i < zul::canAerospaceTypes.size(); ++i) {
        if (std::string(zul::canAerospaceTypes[i].selectionName) == name) {
            return static_cast<int>(i);
        }
    }
    ADD_FAILURE() << name;
    return 0;
}

SendMsg ofType(const char* name)
{
    return ofType(codeOf(name));
}

struct TypeRow
{
    int code;
    const char* name;
    ValuePage page;
    int count; // inputs in use, or letters
    int lowestBit;
    std::uint32_t byteCount;
};

class ValueTypes : public testing::TestWithParam<TypeRow>
{
};

TEST_P(ValueTypes, HaveTheirPageInputsAndByteCount)
{
    const TypeRow& row = GetParam();
    const SendMsg message = ofType(row.code);
    EXPECT_STREQ(zul::canAerospaceTypes.at(static_cast<std::size_t>(row.code)).selectionName,
                 row.name);
    EXPECT_EQ(dataType(message), row.code);
    EXPECT_EQ(message.data[1], row.code);
    EXPECT_EQ(message.byteCount, row.byteCount);
    EXPECT_EQ(valueEntry(message).page, row.page);
    if (row.page != ValuePage::Binary) {
        EXPECT_EQ(valueEntry(message).count, row.count);
    }
    EXPECT_EQ(lowestBit(message), row.lowestBit);
    const bool isText = valueEntry(message).kind == ValueKind::Characters;
    EXPECT_EQ(lineLength(message), isText ? row.count : 100);
    EXPECT_TRUE(isKnownType(message));
}

constexpr auto line = ValuePage::SingleLine;
constexpr auto two = ValuePage::TwoInputs;
constexpr auto four = ValuePage::FourInputs;
constexpr auto bits = ValuePage::Binary;

INSTANTIATE_TEST_SUITE_P(
    All, ValueTypes,
    testing::Values(TypeRow{0, "NODATA", line, 0, 0, 4}, TypeRow{1, "ERROR", line, 0, 0, 4},
                    TypeRow{2, "FLOAT", ValuePage::Slider, 1, 0, 8},
                    TypeRow{3, "LONG", line, 1, 0, 8}, TypeRow{4, "ULONG", line, 1, 0, 8},
                    TypeRow{5, "BLONG", bits, 0, 0, 8}, TypeRow{6, "SHORT", two, 1, 0, 6},
                    TypeRow{7, "USHORT", two, 1, 0, 6}, TypeRow{8, "BSHORT", bits, 0, 16, 6},
                    TypeRow{9, "CHAR", four, 1, 0, 5}, TypeRow{10, "UCHAR", four, 1, 0, 5},
                    TypeRow{11, "BCHAR", bits, 0, 24, 5}, TypeRow{12, "SHORT_2", two, 2, 0, 8},
                    TypeRow{13, "USHORT_2", two, 2, 0, 8}, TypeRow{14, "BSHORT_2", bits, 0, 0, 8},
                    TypeRow{15, "CHAR_4", four, 4, 0, 8}, TypeRow{16, "UCHAR_4", four, 4, 0, 8},
                    TypeRow{17, "BCHAR_4", bits, 0, 0, 8}, TypeRow{18, "CHAR_2", four, 2, 0, 6},
                    TypeRow{19, "UCHAR_2", four, 2, 0, 6}, TypeRow{20, "BCHAR_2", bits, 0, 16, 6},
                    TypeRow{21, "MEMID", line, 1, 0, 8}, TypeRow{22, "CHKSUM", line, 1, 0, 8},
                    TypeRow{23, "ACHAR", line, 1, 0, 5}, TypeRow{24, "ACHAR_2", line, 2, 0, 6},
                    TypeRow{25, "ACHAR_4", line, 4, 0, 8}, TypeRow{26, "CHAR_3", four, 3, 0, 7},
                    TypeRow{27, "UCHAR_3", four, 3, 0, 7}, TypeRow{28, "BCHAR_3", bits, 0, 8, 7},
                    TypeRow{29, "ACHAR_3", line, 3, 0, 7}));

TEST(CanAerospaceEntry, TypeBeyondTheTableIsASingleLineOfEightBytes)
{
    for (const int code : {30, 200, 255}) {
        SendMsg message = ofType(code);
        EXPECT_EQ(message.byteCount, 8U);
        EXPECT_EQ(valueEntry(message).page, ValuePage::SingleLine);
        EXPECT_FALSE(isKnownType(message));
        enterLine(message, QStringLiteral("5"));
        enterShort(message, 0, QStringLiteral("5"));
        enterByte(message, 0, QStringLiteral("5"));
        EXPECT_EQ(valueWord(message), 0U);
        EXPECT_EQ(lineText(message, decimal), QString());
    }
}

TEST(CanAerospaceEntry, ByteCountBelowTheHeaderIsRaised)
{
    SendMsg message;
    for (const auto& [before, after] :
         {std::pair{0U, 4U}, {3U, 4U}, {4U, 4U}, {8U, 8U}, {4'000'000'000U, 4'000'000'000U}}) {
        message.byteCount = before;
        ensureHeader(message);
        EXPECT_EQ(message.byteCount, after);
    }
}

struct LineRow
{
    const char* type;
    const char* text;
    std::uint32_t word;
};

class LineEntry : public testing::TestWithParam<LineRow>
{
};

TEST_P(LineEntry, StoresTheWordMostSignificantByteFirst)
{
    SendMsg message = ofType(GetParam().type);
    setValueWord(message, 0x11223344);
    enterLine(message, QString::fromLatin1(GetParam().text));
    EXPECT_EQ(valueWord(message), GetParam().word) << GetParam().type << " " << GetParam().text;
    EXPECT_EQ(message.data[4], GetParam().word >> 24);
    EXPECT_EQ(message.data[7], GetParam().word & 0xFF);
}

INSTANTIATE_TEST_SUITE_P(
    Rules, LineEntry,
    testing::Values(LineRow{"LONG", "258", 258}, LineRow{"LONG", "-5", 0xFFFFFFFB},
                    LineRow{"LONG", "0x10", 16}, LineRow{"LONG", "10x", 1},
                    LineRow{"LONG", "10x0x", 1}, LineRow{"LONG", "10x1", 0x11}, // removed anywhere
                    LineRow{"LONG", "0x0x12", 0x12}, LineRow{"LONG", "0X10", 0},
                    LineRow{"LONG", "-0x5", 0xFFFFFFFB}, LineRow{"LONG", "0x", 0},
                    LineRow{"LONG", "", 0}, LineRow{"LONG", "abc", 0}, LineRow{"LONG", "1.5", 0},
                    LineRow{"LONG", "0xFFFFFFFB", 0xFFFFFFFB}, LineRow{"LONG", " 7 ", 7},
                    LineRow{"LONG", "99999999999999999999", 0}, LineRow{"LONG", "010", 10},
                    LineRow{"MEMID", "-1", 0xFFFFFFFF}, LineRow{"CHKSUM", "0xABCD", 0xABCD},
                    LineRow{"ULONG", "4294967295", 0xFFFFFFFF}, LineRow{"ULONG", "-1", 0},
                    LineRow{"ULONG", "99999999999999999999", 0}, LineRow{"ACHAR", "Q", 0x51202020},
                    LineRow{"ACHAR_2", "AB", 0x41422020}, LineRow{"ACHAR_3", " A ", 0x41202020},
                    LineRow{"ACHAR_4", "ABCDE", 0x41424344}, LineRow{"ACHAR_4", "", 0x20202020},
                    LineRow{"ACHAR_4", "\xe4", 0xE4202020}, LineRow{"NODATA", "5", 0x11223344},
                    LineRow{"FLOAT", "5", 0x11223344}, LineRow{"SHORT", "5", 0x11223344},
                    LineRow{"BLONG", "5", 0x11223344}));

struct InputRow
{
    const char* type;
    int input;
    const char* text;
    std::uint32_t word;
};

class ShortEntry : public testing::TestWithParam<InputRow>
{
};

TEST_P(ShortEntry, StoresTwoBytes)
{
    SendMsg message = ofType(GetParam().type);
    setValueWord(message, 0x11223344);
    enterShort(message, GetParam().input, QString::fromLatin1(GetParam().text));
    EXPECT_EQ(valueWord(message), GetParam().word) << GetParam().type << " " << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    Rules, ShortEntry,
    testing::Values(
        InputRow{"SHORT", 0, "0x10", 0x00103344}, InputRow{"SHORT", 0, "-2", 0xFFFE3344},
        InputRow{"SHORT", 0, "32767", 0x7FFF3344}, InputRow{"SHORT", 0, "32768", 0x00003344},
        InputRow{"SHORT", 0, "0xFFFF", 0x00003344}, InputRow{"SHORT_2", 1, "-1", 0x1122FFFF},
        InputRow{"USHORT", 0, "65535", 0xFFFF3344}, InputRow{"USHORT", 0, "65536", 0x00003344},
        InputRow{"USHORT", 0, "-1", 0x00003344}, InputRow{"USHORT_2", 1, "0xFFFE", 0x1122FFFE},
        InputRow{"SHORT", 2, "5", 0x11223344}, InputRow{"SHORT", -1, "5", 0x11223344},
        InputRow{"LONG", 0, "5", 0x11223344}, InputRow{"CHAR_4", 0, "5", 0x11223344}));

class ByteEntry : public testing::TestWithParam<InputRow>
{
};

TEST_P(ByteEntry, StoresTheLowByte)
{
    SendMsg message = ofType(GetParam().type);
    setValueWord(message, 0x11223344);
    enterByte(message, GetParam().input, QString::fromLatin1(GetParam().text));
    EXPECT_EQ(valueWord(message), GetParam().word) << GetParam().type << " " << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    Rules, ByteEntry,
    testing::Values(
        InputRow{"CHAR", 0, "-1", 0xFF223344}, InputRow{"CHAR_2", 1, "300", 0x112C3344},
        InputRow{"CHAR_3", 2, "40000", 0x11220044}, InputRow{"CHAR_4", 3, "0x7F", 0x1122337F},
        InputRow{"UCHAR", 0, "255", 0xFF223344}, InputRow{"UCHAR_2", 1, "-1", 0x11003344},
        InputRow{"UCHAR_3", 2, "0x1FF", 0x1122FF44}, InputRow{"UCHAR_4", 3, "x", 0x11223300},
        InputRow{"ACHAR", 0, " Z", 0x5A223344}, InputRow{"ACHAR_4", 3, "", 0x11223320},
        InputRow{"CHAR_4", 4, "5", 0x11223344}, InputRow{"CHAR_4", -1, "5", 0x11223344},
        InputRow{"SHORT", 0, "5", 0x11223344}, InputRow{"NODATA", 0, "5", 0x11223344}));

struct TextRow
{
    const char* type;
    std::uint32_t word;
    const char* decimalText;
    const char* hexadecimalText;
};

class LineTexts : public testing::TestWithParam<TextRow>
{
};

TEST_P(LineTexts, ShowThePayload)
{
    SendMsg message = ofType(GetParam().type);
    setValueWord(message, GetParam().word);
    EXPECT_EQ(lineText(message, decimal), QString::fromLatin1(GetParam().decimalText));
    EXPECT_EQ(lineText(message, hexadecimal), QString::fromLatin1(GetParam().hexadecimalText));
}

INSTANTIATE_TEST_SUITE_P(Types, LineTexts,
                         testing::Values(TextRow{"LONG", 0xFFFFFFFB, "-5", "0xFFFFFFFB"},
                                         TextRow{"LONG", 255, "255", "0xFF"},
                                         TextRow{"ULONG", 0xFFFFFFFF, "4294967295", "0xFFFFFFFF"},
                                         TextRow{"MEMID", 0xFFFFFFFF, "4294967295", "0xFFFFFFFF"},
                                         TextRow{"CHKSUM", 0x80000000, "2147483648", "0x80000000"},
                                         TextRow{"ACHAR", 0x41424344, "A", "A"},
                                         TextRow{"ACHAR_2", 0x41424344, "AB", "AB"},
                                         TextRow{"ACHAR_3", 0x41422044, "AB ", "AB "},
                                         TextRow{"ACHAR_4", 0xE4424344,
                                                 "\xe4"
                                                 "BCD",
                                                 "\xe4"
                                                 "BCD"},
                                         TextRow{"ACHAR_4", 0x41000000, "A",
                                                 "A"}, // zeros are no letters
                                         TextRow{"NODATA", 5, "", ""}, TextRow{"ERROR", 5, "", ""},
                                         TextRow{"SHORT", 5, "", ""}));

TEST(CanAerospaceEntry, ShortsAndBytesAreShownWithAndWithoutSign)
{
    struct Row
    {
        const char* type;
        const char* decimalText;
        const char* hexadecimalText;
    };
    for (const Row& row : {Row{"SHORT", "-2", "0xFFFFFFFE"}, Row{"SHORT_2", "-2", "0xFFFFFFFE"},
                           Row{"USHORT", "65534", "0xFFFE"}, Row{"USHORT_2", "65534", "0xFFFE"},
                           Row{"LONG", "", ""}}) {
        SendMsg message = ofType(row.type);
        setValueWord(message, 0xFFFE0010);
        EXPECT_EQ(shortText(message, 0, decimal), QLatin1String(row.decimalText)) << row.type;
        EXPECT_EQ(shortText(message, 0, hexadecimal), QLatin1String(row.hexadecimalText));
        EXPECT_EQ(shortText(message, 2, decimal), QString());
    }
    EXPECT_EQ(shortText(
                  [] {
                      SendMsg message = ofType("SHORT_2");
                      setValueWord(message, 0xFFFE0010);
                      return message;
                  }(),
                  1, hexadecimal),
              QStringLiteral("0x10"));
    for (const char* type : {"CHAR", "CHAR_2", "CHAR_3", "CHAR_4"}) {
        SendMsg message = ofType(type);
        setValueWord(message, 0x000000FD);
        EXPECT_EQ(byteText(message, 3, decimal), QStringLiteral("-3")) << type;
        EXPECT_EQ(byteText(message, 3, hexadecimal), QStringLiteral("0xFFFFFFFD"));
        EXPECT_EQ(byteText(message, 4, decimal), QString());
    }
    for (const char* type : {"UCHAR", "UCHAR_2", "UCHAR_3", "UCHAR_4"}) {
        SendMsg message = ofType(type);
        setValueWord(message, 0x000000FD);
        EXPECT_EQ(byteText(message, 3, decimal), QStringLiteral("253")) << type;
        EXPECT_EQ(byteText(message, 3, hexadecimal), QStringLiteral("0xFD"));
    }
    EXPECT_EQ(byteText(ofType("LONG"), 0, decimal), QString());
}

TEST(CanAerospaceEntry, Bit31IsTheTopBitOfByte4)
{
    SendMsg message;
    setValueBit(message, 31, true);
    EXPECT_EQ(message.data[4], 0x80);
    setValueBit(message, 24, true);
    setValueBit(message, 0, true);
    EXPECT_EQ(valueWord(message), 0x81000001U);
    setValueBit(message, 31, false);
    EXPECT_EQ(valueWord(message), 0x01000001U);
    setValueBit(message, 32, true);
    setValueBit(message, -1, true);
    EXPECT_EQ(valueWord(message), 0x01000001U);
    EXPECT_EQ(message.data[3], 0);
    EXPECT_EQ(message.data[8], 0);
}

TEST(CanAerospaceEntry, ActualIsStoredAsItsBits)
{
    SendMsg message;
    setActual(message, 1.5F);
    EXPECT_EQ(message.actual, 1.5F);
    EXPECT_EQ(valueWord(message), 0x3FC00000U);
    setActual(message, singleOf(QStringLiteral("-inf")));
    EXPECT_EQ(valueWord(message), 0xFF800000U);
}

TEST(CanAerospaceEntry, FloatTextThatCannotBeReadIsZero)
{
    EXPECT_EQ(singleOf(QStringLiteral("2.5")), 2.5F);
    EXPECT_EQ(singleOf(QStringLiteral(" -1e3 ")), -1000.0F);
    for (const char* text : {"", "abc", "1,5", "0x10", "1e39", "-1e999"}) {
        EXPECT_EQ(singleOf(QLatin1String(text)), 0.0F) << text;
    }
    EXPECT_EQ(singleText(1.005F), QStringLiteral("1.00"));
    EXPECT_EQ(singleText(-0.5F), QStringLiteral("-0.50"));
}

TEST(CanAerospaceEntry, SliderStepsAreOfSinglePrecision)
{
    SendMsg message;
    message.min = 0.1F;
    message.max = 0.7F;
    const float span = message.max - message.min;
    for (const int position : {0, 1, 333, 999, 1000}) {
        const float product = span * static_cast<float>(position);
        EXPECT_EQ(actualAt(message, position),
                  static_cast<float>(static_cast<double>(message.min) +
                                     static_cast<double>(product) * 0.001));
    }
    message.min = -10.0F;
    message.max = 10.0F;
    EXPECT_EQ(actualAt(message, 750), 5.0F);
}

TEST(CanAerospaceEntry, SliderPositionIsTruncatedAndBounded)
{
    SendMsg message;
    message.actual = 0.4567F;
    EXPECT_EQ(sliderPosition(message), 456);
    message.actual = -5.0F;
    EXPECT_EQ(sliderPosition(message), 0);
    message.actual = 5.0F;
    EXPECT_EQ(sliderPosition(message), 1000);
    message.max = -1.0F; // an upside-down scale
    message.actual = -0.25F;
    EXPECT_EQ(sliderPosition(message), 250);
}

TEST(CanAerospaceEntry, SliderStaysWhereItHasSetTheValue)
{
    SendMsg message;
    message.min = -90.0F;
    message.max = 90.0F;
    int lower = 0;
    for (int position = 0; position <= sliderMaximum; ++position) {
        message.actual = actualAt(message, position);
        EXPECT_EQ(sliderPositionFrom(message, position), position);
        lower += sliderPosition(message) < position ? 1 : 0;
    }
    EXPECT_GT(lower, 0); // what it is for
    message.actual = 45.0F;
    EXPECT_EQ(sliderPositionFrom(message, 0), 750);
    message.max = message.min;
    message.actual = message.min;
    EXPECT_EQ(sliderPositionFrom(message, 400), 0);
}

TEST(CanAerospaceEntry, LimitsThatMakeNoScaleGiveDefinedResults)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    SendMsg message;
    message.max = message.min;
    EXPECT_EQ(sliderPosition(message), 0);
    message.actual = 3.0F;
    EXPECT_EQ(sliderPosition(message), 0);
    EXPECT_EQ(actualAt(message, 1000), 0.0F);

    message.min = -largest;
    message.max = largest;
    EXPECT_EQ(actualAt(message, 1000), largest); // the span is infinite
    EXPECT_EQ(actualAt(message, 0), 0.0F);
    EXPECT_EQ(sliderPosition(message), 0);
    for (const float limit : {nan, infinity, -infinity}) {
        message.max = limit;
        message.min = 0.0F;
        EXPECT_TRUE(std::isfinite(actualAt(message, 500))) << limit;
        EXPECT_EQ(sliderPosition(message), 0) << limit;
        message.min = limit;
        EXPECT_TRUE(std::isfinite(actualAt(message, 500))) << limit;
        EXPECT_GE(sliderPosition(message), 0) << limit;
    }
    message.min = 0.0F;
    message.max = 1.0F;
    message.actual = infinity;
    EXPECT_EQ(sliderPosition(message), 1000);
    message.actual = nan;
    EXPECT_EQ(sliderPosition(message), 0);
}

TEST(CanAerospaceEntry, ServiceCodeIsTheLowByteOfTheNumberBeforeTheFirstBlank)
{
    EXPECT_EQ(serviceCode(QStringLiteral("7 STS")), 7);
    EXPECT_EQ(serviceCode(QStringLiteral("12")), 12);
    EXPECT_EQ(serviceCode(QStringLiteral("0x1F x")), 0x1F);
    EXPECT_EQ(serviceCode(QStringLiteral("300")), 44);
    EXPECT_EQ(serviceCode(QStringLiteral("-1")), 255);
    for (const char* text : {"", " 5", "IDS", "0x", "1f", "99999999999"}) {
        EXPECT_EQ(serviceCode(QLatin1String(text)), 0) << text;
    }
}

TEST(CanAerospaceEntry, ServicesHaveTheirEntriesBelowIdentifier200)
{
    EXPECT_TRUE(hasServiceEntry(199, 7));
    EXPECT_TRUE(hasServiceEntry(0, 0));
    EXPECT_FALSE(hasServiceEntry(199, 8));
    EXPECT_FALSE(hasServiceEntry(200, 0));
    EXPECT_EQ(serviceText(31, decimal), QStringLiteral("31"));
    EXPECT_EQ(serviceText(31, hexadecimal), QStringLiteral("0x1f"));
}

} // namespace

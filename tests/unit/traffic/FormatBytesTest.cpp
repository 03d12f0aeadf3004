#include "traffic/FormatBytes.h"

#include "traffic/MessageModes.h"

#include <gtest/gtest.h>
#include <string>

namespace {

zul::MessageCan frameOf(std::uint32_t byteCount)
{
    zul::MessageCan frame;
    frame.setByteCount(byteCount);
    for (std::int32_t i = 0; i < zul::MessageData::size; ++i) {
        frame.msg()[i] = static_cast<std::uint8_t>(i * 3 + 1);
    }
    return frame;
}

using Formatter = int (*)(char*, std::size_t, const zul::MessageCan&, int);

std::string format(Formatter formatter, const zul::MessageCan& frame, int offset,
                   std::size_t capacity = payloadLineCapacity)
{
    std::string buffer(capacity + 1, '#');
    EXPECT_EQ(formatter(buffer.data(), capacity, frame, offset), 0);
    EXPECT_EQ(buffer[capacity], '#') << "wrote beyond the capacity";
    return std::string(buffer.c_str());
}

TEST(FormatBytes, LinesOfAShortFrame)
{
    EXPECT_EQ(format(&formatBytesDec, frameOf(3), 0), "  0-> 001 004 007");
    EXPECT_EQ(format(&formatBytesHex, frameOf(3), 0), "  0-> $01 $04 $07");
}

TEST(FormatBytes, NoByteAtTheOffsetGivesAnEmptyLine)
{
    for (const Formatter formatter : {&formatBytesDec, &formatBytesHex}) {
        EXPECT_EQ(format(formatter, frameOf(0), 0), "");
        EXPECT_EQ(format(formatter, frameOf(16), 16), "");
        EXPECT_EQ(format(formatter, frameOf(8), 48), "");
    }
}

TEST(FormatBytes, HexLinesOf20BytesBothEndWithABlank)
{
    const std::string first = format(&formatBytesHex, frameOf(20), 0);
    const std::string second = format(&formatBytesHex, frameOf(20), 16);
    EXPECT_EQ(first, "  0-> $01 $04 $07 $0a $0d $10 $13 $16 $19 $1c $1f $22 $25 $28 $2b $2e ");
    EXPECT_EQ(second, " 16-> $31 $34 $37 $3a ");
}

TEST(FormatBytes, DecimalLinesOf20BytesEndWithoutABlank)
{
    EXPECT_EQ(format(&formatBytesDec, frameOf(20), 0),
              "  0-> 001 004 007 010 013 016 019 022 025 028 031 034 037 040 043 046");
    EXPECT_EQ(format(&formatBytesDec, frameOf(20), 16), " 16-> 049 052 055 058");
}

TEST(FormatBytes, FrameOf16BytesHasNoTrailingBlankInHex)
{
    EXPECT_EQ(format(&formatBytesHex, frameOf(16), 0).back(), 'e');
}

TEST(FormatBytes, AllFourLinesOfTheLongestFrame)
{
    for (const int offset : {0, 16, 32, 48}) {
        const std::string line = format(&formatBytesDec, frameOf(64), offset);
        EXPECT_EQ(line.size(), 6U + 16 * 4 - 1) << offset;
        EXPECT_EQ(line.substr(0, 6),
                  (offset == 0 ? "  0-> " : " " + std::to_string(offset) + "-> "));
    }
}

TEST(FormatBytes, CapacityTruncates)
{
    EXPECT_EQ(format(&formatBytesDec, frameOf(8), 0, 10), "  0-> 001");
    EXPECT_EQ(format(&formatBytesHex, frameOf(8), 0, 1), "");
    char untouched = '!';
    EXPECT_EQ(formatBytesHex(&untouched, 0, frameOf(8), 0), 0);
    EXPECT_EQ(formatBytesDec(&untouched, 0, frameOf(8), 0), 0);
    EXPECT_EQ(untouched, '!');
}

TEST(FormatBytes, AbsurdByteCountStaysInBounds)
{
    EXPECT_EQ(format(&formatBytesDec, frameOf(0xFFFFFFFFU), 48).size(), 6U + 63);
    EXPECT_EQ(format(&formatBytesHex, frameOf(0xFFFFFFFFU), 48).size(), 6U + 64);
}

TEST(MessageModes, TableHasTheSixModes)
{
    struct Row
    {
        const char* text;
        const char* prefix;
        int bits;
        bool fd;
        bool brs;
    };
    const std::array<Row, 6> expected{{{"11 Bit", "S", 11, false, false},
                                       {"29 Bit", "E", 29, false, false},
                                       {"11 Bit FD", "SF", 11, true, false},
                                       {"29 Bit FD", "EF", 29, true, false},
                                       {"11 Bit BRS", "SB", 11, true, true},
                                       {"29 Bit BRS", "EB", 29, true, true}}};
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(messageModes[i].mode, static_cast<int>(i));
        EXPECT_STREQ(messageModes[i].text, expected[i].text);
        EXPECT_STREQ(messageModes[i].prefix, expected[i].prefix);
        EXPECT_STREQ(messageModePrefix(static_cast<std::uint32_t>(i)), expected[i].prefix);
        EXPECT_EQ(messageModes[i].idBits, expected[i].bits);
        EXPECT_EQ(messageModes[i].isFd, expected[i].fd);
        EXPECT_EQ(messageModes[i].hasBitRateSwitch, expected[i].brs);
    }
    EXPECT_STREQ(messageModePrefix(6), "");
    EXPECT_EQ(static_cast<int>(DisplayMode::CanAerospace), 3);
    EXPECT_EQ(static_cast<int>(DisplayMode::Arinc825Raw), 4);
    EXPECT_EQ(static_cast<int>(DisplayMode::Arinc825Profile), 6);
}

TEST(DisplayModes, EveryWindowHasItsLabels)
{
    struct Row
    {
        int mode;
        const char* receive;
        const char* transmit;
        const char* trace;
    };
    const std::array<Row, 4> expected{{{0, "CAN", "CAN", "CAN"},
                                       {3, "CANaerospace", "CANaerospace", "CANaerospace"},
                                       {4, "ARINC 825 Raw", "ARINC 825 Raw", nullptr},
                                       {6, "ARINC 825 Profile", nullptr, "ARINC-825"}}};
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(static_cast<int>(displayModes[i].mode), expected[i].mode);
        EXPECT_STREQ(displayModes[i].receive, expected[i].receive);
        EXPECT_STREQ(displayModes[i].transmit, expected[i].transmit);
        EXPECT_STREQ(displayModes[i].trace, expected[i].trace);
    }
}

TEST(ByteCounts, CodesAndCountsBelongTogether)
{
    const std::array<int, 16> expected{0, 1, 2, 3, 4, 5, 6, 7, 8, 12, 16, 20, 24, 32, 48, 64};
    for (int code = 0; code < 16; ++code) {
        EXPECT_EQ(byteCountOfDlc(code), expected[static_cast<std::size_t>(code)]);
        EXPECT_EQ(dlcCode(byteCountOfDlc(code)), code);
    }
    for (const int odd : {9, 11, 13, 63, 65, -1}) {
        EXPECT_EQ(dlcCode(odd), 0) << odd;
    }
    EXPECT_EQ(byteCountOfDlc(-1), 0);
    EXPECT_EQ(byteCountOfDlc(16), 64);
}

} // namespace

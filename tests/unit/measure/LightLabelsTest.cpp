#include "measure/LightLabels.h"

#include "message/MessageCan.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

namespace {

using zul::MessageCan;

/// The number on bit 0 of each of the bytes 4 to 7; "-" for none.
std::string offsets(int dataType)
{
    std::string text;
    for (int byte = 4; byte < 8; ++byte) {
        const std::optional<int> number = lightNumber(byte, 0, dataType);
        text += (number ? std::to_string(*number) : std::string("-")) + ' ';
    }
    return text;
}

TEST(LightLabels, FirstNumbersCountTheBitsOfOneWord)
{
    for (int byte = 0; byte < 8; ++byte) {
        for (int bit = 0; bit < 8; ++bit) {
            EXPECT_EQ(lightNumber(byte, bit, noLightDataType), (7 - byte) * 8 + bit);
        }
    }
}

TEST(LightLabels, NumbersFollowTheDataType)
{
    const std::set<int> oneShort{6, 7, 8};
    const std::set<int> oneByte{9, 10, 11, 23};
    const std::set<int> twoShorts{12, 13, 14};
    const std::set<int> fourBytes{15, 16, 17, 25};
    const std::set<int> twoBytes{18, 19, 20, 24};
    const std::set<int> threeBytes{26, 27, 28, 29};
    for (int type = -1; type < 256; ++type) {
        std::string wanted = "24 16 8 0 ";
        if (oneShort.count(type) != 0) {
            wanted = "8 0 - - ";
        } else if (oneByte.count(type) != 0) {
            wanted = "0 - - - ";
        } else if (twoShorts.count(type) != 0) {
            wanted = "8 0 8 0 ";
        } else if (fourBytes.count(type) != 0) {
            wanted = "0 0 0 0 ";
        } else if (twoBytes.count(type) != 0) {
            wanted = "0 0 - - ";
        } else if (threeBytes.count(type) != 0) {
            wanted = "0 0 0 - ";
        }
        EXPECT_EQ(offsets(type), wanted) << type;
        EXPECT_EQ(lightNumber(0, 7, type), 63) << "the header keeps its numbers";
        EXPECT_EQ(lightNumber(3, 0, type), 32);
    }
    EXPECT_EQ(lightNumber(4, 7, 6), 15);
    EXPECT_EQ(lightNumber(7, 7, 2), 7);
}

TEST(LightLabels, DataTypeIsTheSecondByteOfAnyFrame)
{
    MessageCan frame;
    frame.msg()[1] = 0xF0;
    EXPECT_EQ(lightDataType(frame), 0xF0);
}

TEST(LightLabels, LightsAreTheBitsOfTheFrame)
{
    MessageCan frame;
    frame.setByteCount(8);
    frame.msg()[0] = 0x81;
    frame.msg()[7] = 0x02;
    const LightStates states = lightStates(frame);
    for (std::size_t byte = 0; byte < 8; ++byte) {
        for (std::size_t bit = 0; bit < 8; ++bit) {
            const bool isOn = (byte == 0 && (bit == 0 || bit == 7)) || (byte == 7 && bit == 1);
            EXPECT_EQ(states[byte][bit], isOn) << byte << '.' << bit;
        }
    }
}

TEST(LightLabels, BytesThatTheFrameDoesNotHaveAreOff)
{
    MessageCan frame;
    frame.setByteCount(2);
    for (int i = 0; i < 8; ++i) {
        frame.msg()[i] = 0xFF;
    }
    const LightStates states = lightStates(frame);
    EXPECT_TRUE(states[1][7]);
    EXPECT_FALSE(states[2][0]);
    EXPECT_FALSE(states[7][7]);
}

TEST(LightLabels, OfALongFrameTheFirstEightBytesCount)
{
    MessageCan frame;
    frame.setByteCount(0xFFFFFFFF);
    frame.msg()[7] = 0x80;
    frame.msg()[8] = 0xFF;
    EXPECT_TRUE(lightStates(frame)[7][7]);
    EXPECT_FALSE(lightStates(frame)[7][6]);
}

} // namespace

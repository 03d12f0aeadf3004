#include "traffic/TraceLine.h"

#include "profile/CanAerospaceLine.h"
#include "profile/DataTypes.h"
#include "profile/ProfileStore.h"
#include "profile/ValueText.h"
#include "tests/unit/traffic/TraceTestFrames.h"
#include "traffic/MessageModes.h"

#include <array>
#include <cstdio>
#include <cstring>
#include <gtest/gtest.h>
#include <string>

namespace {

using zul::MessageCan;
using zul::test::goldenFrames;
using zul::test::traceFrame;

class TraceLineTest : public testing::Test
{
protected:
    std::string fileLine(const MessageCan& frame, int traceFormat, int numberType,
                         std::uint32_t number = 0) const
    {
        std::string text;
        appendTraceFileLine(text, frame, number, traceFormat, numberType, m_store);
        return text;
    }

    std::string screenLine(const MessageCan& frame, int displayMode, int numberType,
                           std::uint32_t number = 0) const
    {
        std::string text;
        appendTraceScreenLine(text, frame, number, displayMode, numberType, m_store);
        return text;
    }

    std::string golden(int traceFormat, int numberType) const
    {
        std::string text;
        std::uint32_t number = 0;
        for (const MessageCan& frame : goldenFrames()) {
            text += fileLine(frame, traceFormat, numberType, number++) + "\n";
        }
        return text;
    }

    void addParameter(std::uint32_t id, const char* name, std::uint32_t dtc)
    {
        ProfileParameter parameter;
        parameter.id = id;
        parameter.nme = QString::fromLatin1(name);
        parameter.dtc = dtc;
        parameter.sppByte = 0;
        parameter.eppByte = 3;
        parameter.eppBit = 7;
        m_store.addToIndex(parameter);
    }

    ProfileStore m_store;
};

TEST_F(TraceLineTest, FormatsAreNamedInTheirOrder)
{
    ASSERT_EQ(traceFormats.size(), 3U);
    EXPECT_EQ(static_cast<int>(traceFormats[0].format), 0);
    EXPECT_STREQ(traceFormats[0].text, "Binary / Ascii CAN");
    EXPECT_EQ(static_cast<int>(traceFormats[1].format), 3);
    EXPECT_STREQ(traceFormats[1].text, "Binary / Ascii CANaerospace");
    EXPECT_EQ(static_cast<int>(traceFormats[2].format), 4);
    EXPECT_STREQ(traceFormats[2].text, "Binary / Ascii ARINC-825");
    EXPECT_STREQ(traceLineSeparator, "<br>\n");
}

TEST_F(TraceLineTest, GoldenFiles)
{
    EXPECT_EQ(golden(0, 0), zul::test::traceData(QStringLiteral("can-decimal.zla")).toStdString());
    EXPECT_EQ(golden(0, 1),
              zul::test::traceData(QStringLiteral("can-hexadecimal.zla")).toStdString());
    EXPECT_EQ(golden(4, 0), zul::test::traceData(QStringLiteral("arinc825.zla")).toStdString());
    EXPECT_EQ(golden(4, 1), golden(4, 0));
}

TEST_F(TraceLineTest, NumberTypeThatIsNeitherHasHexadecimalIdentifierAndNoBytes)
{
    EXPECT_EQ(fileLine(traceFrame(0x12, 0.0, {1}), 0, 2), "00000 0.000 S 0x012 D1 ");
}

TEST_F(TraceLineTest, NumberIsShownWithASign)
{
    EXPECT_EQ(fileLine(traceFrame(1, 0.0), 0, 0, 123456), "123456 0.000 S 1      D0 ");
    EXPECT_EQ(fileLine(traceFrame(1, 0.0), 0, 0, 0xFFFFFFFFU), "-0001 0.000 S 1      D0 ");
}

TEST_F(TraceLineTest, IdentifierHasAllItsBits)
{
    EXPECT_EQ(fileLine(traceFrame(0x80000001U, 0.0), 0, 1), "00000 0.000 S 0x80000001 D0 ");
    EXPECT_EQ(fileLine(traceFrame(0xFFFFFFFFU, 0.0), 0, 0), "00000 0.000 S -1     D0 ");
}

TEST_F(TraceLineTest, FrameTypeOutsideTheThreeHasNoLengthMark)
{
    MessageCan frame = traceFrame(1, 0.0, {5});
    frame.setFrameType(static_cast<MessageCan::EFrameType>(7));
    EXPECT_EQ(fileLine(frame, 0, 0), "00000 0.000 S 1        0-> 005");
}

TEST_F(TraceLineTest, ExtendedFramesAreMarkedStandard)
{
    EXPECT_EQ(fileLine(goldenFrames()[1], 0, 0).substr(0, 15), "00000 12.500 S ");
    EXPECT_EQ(screenLine(goldenFrames()[1], 0, 1).substr(0, 15), "00000 12.500 S ");
}

TEST_F(TraceLineTest, CanAerospaceBody)
{
    const MessageCan frame = traceFrame(300, 1.0, {1, 2, 0, 4, 0x40, 0x20, 0, 0});
    EXPECT_EQ(fileLine(frame, 3, 0), "00000 1.000 S 300    D8 NOD   1 FLOAT   0 004 | 2.500000");
    for (const int numberType : {0, 1}) {
        std::array<char, zul::canAerospaceLineCapacity> body{};
        zul::canAerospaceLine(body.data(), body.size(), frame, numberType);
        const std::string line = fileLine(frame, 3, numberType);
        EXPECT_EQ(line, (numberType == 0 ? "00000 1.000 S 300    D8 " : "00000 1.000 S 0x12c D8 ") +
                            std::string(body.data()));
        EXPECT_EQ(screenLine(frame, 3, numberType), line);
    }
}

TEST_F(TraceLineTest, ScreenShowsCanAsTheFileDoes)
{
    for (const MessageCan& frame : goldenFrames()) {
        if (frame.frameType() != MessageCan::EFrameType::Error) {
            EXPECT_EQ(screenLine(frame, 0, 0, 7), fileLine(frame, 0, 0, 7));
            EXPECT_EQ(screenLine(frame, 0, 1, 7), fileLine(frame, 0, 1, 7));
        }
    }
}

TEST_F(TraceLineTest, ErrorFramesInAllFormats)
{
    const MessageCan error = goldenFrames()[3];
    for (const int format : {0, 3, 4, 6, 17, -1}) {
        EXPECT_EQ(fileLine(error, format, 1, 3), "00003 13.001 ERROR FRAME");
        EXPECT_EQ(screenLine(error, format, 1, 3),
                  "00003 13.001 <b><font color=\"#AA0000\"> ERROR FRAME</font></b><br>");
    }
}

TEST_F(TraceLineTest, ModesThatAreNotOfferedHaveNoLine)
{
    for (const int mode : {4, 1, 2, 5, 7, -1}) {
        EXPECT_EQ(fileLine(goldenFrames()[0], mode, 0), "");
        EXPECT_EQ(screenLine(goldenFrames()[0], mode, 0), "");
    }
}

TEST_F(TraceLineTest, ProfileFormOfAnUnknownIdentifier)
{
    const auto frames = goldenFrames();
    EXPECT_EQ(screenLine(frames[0], 6, 0), "00000 12.346 S 291    D2 Unknown Type");
    EXPECT_EQ(screenLine(frames[0], 6, 1), "00000 12.346 S 000123 D2 Unknown Type");
    EXPECT_EQ(screenLine(frames[1], 6, 1), "00000 12.500 E 1234567 D8 Unknown Type");
    EXPECT_EQ(screenLine(frames[1], 6, 0), "00000 12.500 E 19088743 D8 Unknown Type");
    EXPECT_EQ(screenLine(frames[1], 6, 2), "00000 12.500 E 19088743 D8 Unknown Type");
    EXPECT_EQ(screenLine(frames[2], 6, 1), "00000 13.000 S 0007FF R4 Unknown Type");
    EXPECT_EQ(screenLine(frames[4], 6, 1), "00000 14.000 E 000064 D12 Unknown Type")
        << "every mode but 0 is marked extended";
}

TEST_F(TraceLineTest, ProfileFormIsFoundWithoutFsbAndRci)
{
    addParameter(0x08100000, "Alt\xE4", 0);
    const MessageCan frame = traceFrame(0x08140003, 1.0, {0, 0, 0, 1});
    const std::string line = screenLine(frame, 6, 1);
    std::array<char, zul::valueTextCapacity> value{};
    zul::textOf(value.data(), value.size(), frame, m_store,
                m_store.parameterIndex().begin()->second);
    EXPECT_EQ(line, "00000 1.000 S 8140003 D4 Alt\xE4 = " + std::string(value.data()));
    EXPECT_EQ(fileLine(frame, 6, 1), line) << "the form of a format that only a file can hold";
}

TEST_F(TraceLineTest, ProfileFormShowsTheLastParameterAlone)
{
    addParameter(8, "First", 0);
    addParameter(8, "Second", 0);
    addParameter(12, "Other", 0);
    EXPECT_EQ(screenLine(traceFrame(8, 0.0), 6, 0), "00000 0.000 S 8      D0 Second = NO DATA");
}

TEST_F(TraceLineTest, NumbersAsPrintfWritesThem)
{
    for (const std::uint32_t number :
         {0U, 1U, 9U, 10U, 0xFFU, 0x100U, 999U, 9999U, 99999U, 100000U, 999999U, 0xFFFFFU,
          0x1000000U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFC19U, 0xFFFFFFF7U, 0xFFFFFFFFU}) {
        const int asSigned = static_cast<int>(number);
        MessageCan frame = traceFrame(number, 0.0);
        frame.setByteCount(number);
        std::array<char, 80> text{};
        std::snprintf(text.data(), text.size(), "%05d 0.000 S %-6d D%d Unknown Type", asSigned,
                      asSigned, asSigned);
        EXPECT_EQ(screenLine(frame, 6, 0, number), text.data());
        std::snprintf(text.data(), text.size(), "%05d 0.000 S %06X D%d Unknown Type", asSigned,
                      number, asSigned);
        EXPECT_EQ(screenLine(frame, 6, 1, number), text.data());
        std::snprintf(text.data(), text.size(), "%05d 0.000 S 0x%03x D%d ", asSigned, number,
                      asSigned);
        EXPECT_EQ(fileLine(frame, 0, 2, number), text.data());
        std::snprintf(text.data(), text.size(), "%05d 0.000 S %-6d D%d ", asSigned, asSigned,
                      asSigned);
        EXPECT_EQ(fileLine(frame, 0, 0, number).substr(0, std::strlen(text.data())), text.data());
    }
}

TEST_F(TraceLineTest, MarkupInNamesAndValuesIsShownAndNotObeyed)
{
    MessageCan frame = traceFrame(300, 1.0, {1, 23, 0, 4, '<', 0, 0, 0}); // ACHAR
    EXPECT_NE(fileLine(frame, 3, 0).find('<'), std::string::npos);
    EXPECT_EQ(screenLine(frame, 3, 0).find('<'), std::string::npos);
    EXPECT_NE(screenLine(frame, 3, 0).find("&lt;"), std::string::npos);
    EXPECT_FALSE(areTraceLinesAlike(frame, 3, 3));
    addParameter(0x4, "A<b>&C", 0);
    frame = traceFrame(0x4, 1.0, {1, 2, 3, 4});
    EXPECT_NE(screenLine(frame, 6, 0).find(" A&lt;b>&amp;C = "), std::string::npos);
    EXPECT_NE(fileLine(frame, 6, 0).find(" A<b>&C = "), std::string::npos);
}

TEST_F(TraceLineTest, PlainLinesAreAlike)
{
    for (const MessageCan& frame : goldenFrames()) {
        const bool isError = frame.frameType() == MessageCan::EFrameType::Error;
        EXPECT_EQ(areTraceLinesAlike(frame, 0, 0), !isError);
        EXPECT_EQ(fileLine(frame, 0, 0) == screenLine(frame, 0, 0), !isError);
        EXPECT_FALSE(areTraceLinesAlike(frame, 0, 3));
        EXPECT_FALSE(areTraceLinesAlike(frame, 6, 6));
    }
}

} // namespace

#include "traffic/TransmitImport.h"

#include "tests/support/TestHome.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

class TransmitImport : public testing::Test
{
protected:
    void SetUp() override { m_lines.push_back(std::make_unique<SendMsg>()); }
    bool import(const QByteArray& content)
    {
        m_home.write(QStringLiteral("zorb.zul"), content);
        return read(QStringLiteral("zorb.zul"));
    }
    bool read(const QString& name)
    {
        return transmitimport::readZorbConfiguration(m_home.file(name), m_lines);
    }

    zul::test::TestHome m_home;
    ObjectTransmit::Lines m_lines;
};

TEST_F(TransmitImport, EveryAttributeHasItsField)
{
    ASSERT_TRUE(import("<Anything><CanMsg name=\"Flaps\" msg.identifier=\"1300\" "
                       "msg.byte_count=\"6\" msg.frame_type=\"5\" min=\"-1.5\" max=\"2.5\" "
                       "actual=\"0.25\" msg.msg=\"01 ff  0xA 7\" rate=\"50\" mode=\"1\"/>"
                       "</Anything>"));
    ASSERT_EQ(m_lines.size(), 1U);
    const SendMsg& line = *m_lines[0];
    EXPECT_EQ(line.name, QStringLiteral("Flaps"));
    EXPECT_EQ(line.id, 1300U);
    EXPECT_EQ(line.byteCount, 6U);
    EXPECT_EQ(line.mode, 5U);
    EXPECT_EQ(line.min, -1.5F);
    EXPECT_EQ(line.max, 2.5F);
    EXPECT_EQ(line.actual, 0.25F);
    EXPECT_EQ(line.data[0], 0x01);
    EXPECT_EQ(line.data[1], 0xFF);
    EXPECT_EQ(line.data[2], 0x0A);
    EXPECT_EQ(line.data[3], 0x07);
    EXPECT_EQ(line.data[4], 0);
    EXPECT_EQ(line.rate, 0); // periods are not imported
    EXPECT_EQ(line.running, 0);
    EXPECT_EQ(line.lastSent, 0.0);
}

TEST_F(TransmitImport, MissingAttributesHaveTheirDefaults)
{
    ASSERT_TRUE(import("<a><CanMsg/><CanMsg name=\"\"/></a>"));
    ASSERT_EQ(m_lines.size(), 2U);
    for (const auto& line : m_lines) {
        EXPECT_EQ(line->name, QStringLiteral("NoName"));
        EXPECT_EQ(line->id, 0U);
        EXPECT_EQ(line->byteCount, 0U);
        EXPECT_EQ(line->mode, 0U);
        EXPECT_EQ(line->min, 0.0F);
        EXPECT_EQ(line->max, 0.0F);
        EXPECT_EQ(line->actual, 0.0F);
        EXPECT_EQ(line->data[0], 0);
    }
}

TEST_F(TransmitImport, UnreadableValuesAreZero)
{
    ASSERT_TRUE(import("<a><CanMsg msg.identifier=\"0x10\" msg.byte_count=\"abc\" "
                       "msg.frame_type=\"99999999999\" min=\"nan\" max=\"inf\" actual=\"1,5\" "
                       "msg.msg=\"zz 1g 100 -1 12\"/></a>"));
    const SendMsg& line = *m_lines.at(0);
    EXPECT_EQ(line.id, 0U);
    EXPECT_EQ(line.byteCount, 0U);
    EXPECT_EQ(line.mode, 0U);
    EXPECT_EQ(line.min, 0.0F);
    EXPECT_EQ(line.max, 0.0F);
    EXPECT_EQ(line.actual, 0.0F);
    EXPECT_EQ(line.data[0], 0);
    EXPECT_EQ(line.data[1], 0);
    EXPECT_EQ(line.data[2], 0);    // the low byte of 0x100
    EXPECT_EQ(line.data[3], 0xFF); // that of -1
    EXPECT_EQ(line.data[4], 0x12);
}

TEST_F(TransmitImport, DoublesAreNarrowedWithinTheRangeOfSingles)
{
    ASSERT_TRUE(import("<a><CanMsg min=\"-1e300\" max=\"1e300\" actual=\"0.1\"/></a>"));
    EXPECT_EQ(m_lines[0]->min, -std::numeric_limits<float>::max());
    EXPECT_EQ(m_lines[0]->max, std::numeric_limits<float>::max());
    EXPECT_EQ(m_lines[0]->actual, 0.1F);
}

TEST_F(TransmitImport, PayloadBeyond64BytesIsDropped)
{
    ASSERT_TRUE(import("<a><CanMsg msg.byte_count=\"-1\" msg.msg=\"" +
                       QByteArray("11 ").repeated(1'000'000) + "\"/></a>"));
    EXPECT_EQ(m_lines[0]->data[63], 0x11);
    EXPECT_EQ(m_lines[0]->data[64], 0);
    EXPECT_EQ(m_lines[0]->byteCount, 0xFFFFFFFFU);
}

TEST_F(TransmitImport, NoMoreThanTheMostMessagesAreRead)
{
    QByteArray xml("<Any>");
    for (int i = 0; i < 10'001; ++i) {
        xml += "<CanMsg/>";
    }
    EXPECT_TRUE(import(xml + "</Any>"));
    EXPECT_EQ(m_lines.size(), 10'000U);
}

TEST_F(TransmitImport, OnlyTheRootsCanMsgChildrenCount)
{
    ASSERT_TRUE(
        import("<!DOCTYPE ZORB><CanMsg name=\"root\"><Group><CanMsg name=\"deep\"/></Group>"
               "<CanMsg name=\"one\"><CanMsg name=\"within\"/>text</CanMsg>"
               "<canmsg name=\"other\"/><!-- <CanMsg/> --><CanMsg name=\"two\"/></CanMsg>"));
    ASSERT_EQ(m_lines.size(), 2U);
    EXPECT_EQ(m_lines[0]->name, QStringLiteral("one"));
    EXPECT_EQ(m_lines[1]->name, QStringLiteral("two"));
}

TEST_F(TransmitImport, FileWithoutMessagesLeavesNoLines)
{
    ASSERT_TRUE(import("<ZUL><Version id=\"1\"/></ZUL>"));
    EXPECT_TRUE(m_lines.empty());
}

TEST_F(TransmitImport, WhatIsNoXmlLeavesTheLinesAsTheyWere)
{
    for (const char* content : {"", "no xml", "<a><CanMsg/>", "<a><CanMsg></a>", "<a/><b/>"}) {
        EXPECT_FALSE(import(content)) << content;
        EXPECT_EQ(m_lines.size(), 1U) << content;
    }
    EXPECT_FALSE(read(QStringLiteral("absent.zul")));
    EXPECT_FALSE(read(QString())); // a directory
    EXPECT_EQ(m_lines.size(), 1U);
}

TEST_F(TransmitImport, HarmfulXmlIsNotRead)
{
    EXPECT_FALSE(import("<!DOCTYPE a [<!ENTITY x \"yyyyyyyyyy\"><!ENTITY z \"&x;&x;&x;\">]>"
                        "<a><CanMsg name=\"&z;\"/></a>"));
    QByteArray manyAttributes = "<a><CanMsg";
    for (int i = 0; i < 50'000; ++i) {
        manyAttributes += " a" + QByteArray::number(i) + "=\"\"";
    }
    EXPECT_FALSE(import(manyAttributes + "/></a>"));
    EXPECT_EQ(m_lines.size(), 1U);
    // Depth does not matter to a reader that walks.
    EXPECT_TRUE(import(QByteArray("<a>").repeated(100'000) + QByteArray("</a>").repeated(100'000)));
    EXPECT_TRUE(m_lines.empty());
}

} // namespace

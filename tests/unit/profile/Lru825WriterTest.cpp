#include "profile/Lru825Writer.h"

#include "profile/Lru825Reader.h"
#include "profile/Lru825Schema.h"
#include "tests/support/TestHome.h"
#include "tests/unit/profile/GoldenFile.h"
#include "tests/unit/profile/Lru825Sample.h"

#include <gtest/gtest.h>

namespace {

using namespace zul;

const QString fileName = QStringLiteral("file.xml");

class Lru825Writer : public testing::Test
{
protected:
    QByteArray written(const Lru825Document& document)
    {
        EXPECT_TRUE(writeLru825(home.file(fileName), schema, document));
        return home.read(fileName);
    }

    Lru825Document writtenAndRead(const Lru825Document& document)
    {
        written(document);
        Lru825Document read;
        EXPECT_TRUE(readLru825(home.file(fileName), schema, read));
        return read;
    }

    test::TestHome home;
    Lru825Schema schema;
};

TEST_F(Lru825Writer, GoldenFile)
{
    test::expectGolden(QStringLiteral("lru.xml"), written(test::sampleDocument()));
}

TEST_F(Lru825Writer, EmptyDocumentHasAllLists)
{
    EXPECT_EQ(written(Lru825Document{}),
              QByteArray("<?xml version = \"1.0\" encoding = \"UTF-8\"?>\n"
                         "<Arinc825Profile id=\"\" name=\"\" major=\"0\" minor=\"0\" "
                         "version=\"0\" comment=\"\">\n"
                         "    <LRU name=\"\" node_id=\"\" node_address=\"\" comment=\"\">\n"
                         "        <CANBusInterfaceList/>\n"
                         "        <Communication>\n"
                         "            <TransmitList/>\n"
                         "            <ReceiveList/>\n"
                         "        </Communication>\n"
                         "    </LRU>\n"
                         "    <ParameterList comment=\"\"/>\n"
                         "</Arinc825Profile>\n"));
}

// The golden file shows that every field is written; the same text once more shows that every
// field was read.
TEST_F(Lru825Writer, EveryFieldSurvivesButTheTransmitPeriodAndTheLatency)
{
    const Lru825Document read = writtenAndRead(test::sampleDocument());
    QByteArray expected = written(test::sampleDocument());
    expected.replace("txp=\"12.000000000000\" latency_max=\"0.500000000000\"",
                     "txp=\"0.000000000000\" latency_max=\"0.000000000000\"");
    EXPECT_EQ(written(read).toStdString(), expected.toStdString());
    EXPECT_TRUE(read.valid);
}

// Deliberate: written with places after the point, read as a whole number.
TEST_F(Lru825Writer, TransmitPeriodOf12IsWrittenInFullAndReadAsZero)
{
    home.write(fileName, "<Arinc825Profile><LRU><Communication><TransmitList><Message txp=\"12\" "
                         "latency_max=\"7\"/></TransmitList></Communication></LRU>"
                         "</Arinc825Profile>");
    Lru825Document document;
    ASSERT_TRUE(readLru825(home.file(fileName), schema, document));
    EXPECT_TRUE(written(document).contains("txp=\"12.000000000000\""));
    EXPECT_TRUE(written(document).contains("latency_max=\"7.000000000000\""));
    const Lru825Document read = writtenAndRead(document);
    EXPECT_DOUBLE_EQ(read.transmitMessages.begin()->second.txp, 0.0);
    EXPECT_DOUBLE_EQ(read.transmitMessages.begin()->second.latencyMax, 0.0);
}

TEST_F(Lru825Writer, UnknownNamesComeBackAsThoseOfTheCode0)
{
    home.write(fileName, "<Arinc825Profile><ParameterList><Parameter dtn=\"QUAD\"/>"
                         "</ParameterList></Arinc825Profile>");
    Lru825Document document;
    ASSERT_TRUE(readLru825(home.file(fileName), schema, document));
    EXPECT_TRUE(written(document).contains("dtn=\"NODATA\""));
}

TEST_F(Lru825Writer, UnknownCodeIsAnEmptyText)
{
    Lru825Document document;
    Lru825Interface can;
    can.bitRate = 99;
    document.interfaces[can.serial] = can;
    EXPECT_TRUE(written(document).contains("bit_rate=\"\""));
}

TEST_F(Lru825Writer, RecordsAreInOrderOfTheirSerials)
{
    Lru825Document document;
    const Lru825Parameter early;
    Lru825Parameter late;
    late.name = QStringLiteral("late");
    document.parameters[late.serial] = late;
    document.parameters[early.serial] = early;
    const QByteArray text = written(document);
    EXPECT_LT(text.indexOf("<Parameter name=\"Parameter\""),
              text.indexOf("<Parameter name=\"late\""));
}

TEST_F(Lru825Writer, PathThatCannotBeWritten)
{
    EXPECT_FALSE(writeLru825(home.file(QStringLiteral("no/where")), schema, Lru825Document{}));
}

} // namespace

#include "profile/Lru825Reader.h"

#include "profile/Lru825Schema.h"
#include "tests/support/ConsoleCapture.h"
#include "tests/support/SettableClock.h"
#include "tests/support/TestHome.h"
#include "tests/unit/profile/HostileFiles.h"
#include "tests/unit/profile/Lru825Sample.h"
#include "tests/unit/profile/ReportTexts.h"

#include <gmock/gmock.h>
#include <set>

namespace {

using namespace zul;
using test::reportTexts;
using test::warningLine;
using testing::ElementsAre;
using testing::IsEmpty;

const QString fileName = QStringLiteral("file.xml");

class Lru825Reader : public testing::Test
{
protected:
    bool read(const QByteArray& content)
    {
        home.write(fileName, content);
        return readLru825(home.file(fileName), schema, document);
    }

    test::TestHome home;
    Lru825Schema schema;
    Lru825Document document;
};

const Lru825Message& firstOf(const std::map<std::uint32_t, Lru825Message>& messages)
{
    return messages.begin()->second;
}

TEST_F(Lru825Reader, HeadOfTheReport)
{
    const test::SettableClock clock(0.0);
    ASSERT_TRUE(read("<Arinc825Profile/>"));
    EXPECT_EQ(document.result,
              QStringLiteral("Profile : %1<br>Time    : 01.01.1970 00:00:00<br><br>")
                  .arg(home.file(fileName)));
    EXPECT_EQ(document.fileName, home.file(fileName));
    EXPECT_TRUE(document.valid);
}

TEST_F(Lru825Reader, RootAttributes)
{
    ASSERT_TRUE(read("<Arinc825Profile id=\"1.2 free\" name=\"N\" major=\"1\" minor=\"2\" "
                     "version=\"3\" comment=\"C\"/>"));
    EXPECT_EQ(document.id, QStringLiteral("1.2 free"));
    EXPECT_EQ(document.name, QStringLiteral("N"));
    EXPECT_EQ(document.major, 1);
    EXPECT_EQ(document.minor, 2);
    EXPECT_EQ(document.version, 3);
    EXPECT_EQ(document.comment, QStringLiteral("C"));
}

TEST_F(Lru825Reader, LruAndItsInterfaces)
{
    ASSERT_TRUE(read("<Arinc825Profile><LRU name=\"L\" node_id=\"7\" node_address=\"8\" "
                     "comment=\"C\"><CANBusInterfaceList>"
                     "<CANBusInterface bit_rate=\"500\" name=\"can\" rci=\"C\" comment=\"c\">"
                     "<BitTiming time_quantum_per_bit=\"1\" resync_jump_width=\"2\" "
                     "sync_seg=\"3\" prop_seg=\"4\" phase_seg1=\"5\" phase_seg2=\"6\" "
                     "sampling_point_mode=\"TRIPLE\"/></CANBusInterface>"
                     "<CANBusInterface name=\"second\"/>"
                     "</CANBusInterfaceList></LRU></Arinc825Profile>"));
    EXPECT_EQ(document.lruName, QStringLiteral("L"));
    EXPECT_EQ(document.nodeId, QStringLiteral("7"));
    EXPECT_EQ(document.nodeAddress, QStringLiteral("8"));
    EXPECT_EQ(document.lruComment, QStringLiteral("C"));
    ASSERT_EQ(document.interfaces.size(), 2U);
    const Lru825Interface& first = document.interfaces.begin()->second;
    EXPECT_EQ(first.bitRate, 3U);
    EXPECT_EQ(first.name, QStringLiteral("can"));
    EXPECT_EQ(first.rci, 2U);
    EXPECT_EQ(first.comment, QStringLiteral("c"));
    EXPECT_EQ(first.timeQuantumPerBit, 1);
    EXPECT_EQ(first.resyncJumpWidth, 2);
    EXPECT_EQ(first.syncSeg, 3);
    EXPECT_EQ(first.propSeg, 4);
    EXPECT_EQ(first.phaseSeg1, 5);
    EXPECT_EQ(first.phaseSeg2, 6);
    EXPECT_EQ(first.samplingPointMode, 1U);
    EXPECT_EQ(document.interfaces.rbegin()->second.name, QStringLiteral("second"));
}

TEST_F(Lru825Reader, Messages)
{
    const QByteArray message =
        "<Message name=\"M\" identifier_type=\"PeerToPeer\" identifier_length=\"29bit\" "
        "default_lcc=\"NOC\" fid=\"1\" pvt=\"2\" doc=\"3\" lcl=\"4\" fsb=\"5\" txp=\"12\" "
        "latency_max=\"13\" default_port=\"6\" fmc_11bit_id=\"7\" "
        "implied_functional_status=\"NO\"><InterfaceAssignment><Interface name=\"i\" rci=\"B\"/>"
        "<Interface name=\"j\" rci=\"D\"/></InterfaceAssignment>"
        "<DataField payload_protocol=\"p\" dlc=\"8\" high_integrity=\"2\" name=\"d\">"
        "<Parameter name=\"q\" spp=\"1.2\" epp=\"3.4\" pvs_spp=\"5.6\" pvs_epp=\"7\"/>"
        "</DataField></Message>";
    ASSERT_TRUE(read("<Arinc825Profile><LRU><Communication><TransmitList>" + message +
                     "</TransmitList><ReceiveList><Message name=\"R\"/><Message name=\"S\"/>"
                     "</ReceiveList></Communication></LRU></Arinc825Profile>"));
    ASSERT_EQ(document.transmitMessages.size(), 1U);
    const Lru825Message& read = firstOf(document.transmitMessages);
    EXPECT_EQ(read.name, QStringLiteral("M"));
    EXPECT_EQ(read.identifierType, 1U);
    EXPECT_EQ(read.identifierLength, 1U);
    EXPECT_EQ(read.defaultLcc, 2U);
    EXPECT_EQ(read.fid, 1U);
    EXPECT_EQ(read.pvt, 2U);
    EXPECT_EQ(read.doc, 3U);
    EXPECT_EQ(read.lcl, 4U);
    EXPECT_EQ(read.fsb, 5U);
    EXPECT_DOUBLE_EQ(read.txp, 12.0);
    EXPECT_DOUBLE_EQ(read.latencyMax, 13.0);
    EXPECT_EQ(read.defaultPort, 6);
    EXPECT_EQ(read.fmc11BitId, 7U);
    EXPECT_EQ(read.impliedFunctionalStatus, 2U);
    ASSERT_EQ(read.assignments.size(), 2U);
    EXPECT_EQ(read.assignments.at(0).name, QStringLiteral("i"));
    EXPECT_EQ(read.assignments.at(1).rci, 3U);
    EXPECT_EQ(read.dataField.payloadProtocol, QStringLiteral("p"));
    EXPECT_EQ(read.dataField.dlc, 8);
    EXPECT_TRUE(read.dataField.highIntegrity);
    EXPECT_EQ(read.dataField.name, QStringLiteral("d"));
    ASSERT_EQ(read.dataField.parameters.size(), 1U);
    const Lru825Reference& reference = read.dataField.parameters.at(0);
    EXPECT_EQ(reference.name, QStringLiteral("q"));
    EXPECT_EQ(reference.spp.byte, 1U);
    EXPECT_EQ(reference.spp.bit, 2U);
    EXPECT_EQ(reference.epp.byte, 3U);
    EXPECT_EQ(reference.epp.bit, 4U);
    EXPECT_EQ(reference.pvsSpp.byte, 5U);
    EXPECT_EQ(reference.pvsSpp.bit, 6U);
    EXPECT_EQ(reference.pvsEpp.byte, 7U);
    EXPECT_EQ(reference.pvsEpp.bit, 0U);
    EXPECT_EQ(document.receiveMessages.size(), 2U);
    EXPECT_EQ(firstOf(document.receiveMessages).name, QStringLiteral("R"));
}

TEST_F(Lru825Reader, ParameterList)
{
    ASSERT_TRUE(read("<Arinc825Profile><ParameterList comment=\"C\">"
                     "<Parameter name=\"p\" pua=\"any unit\" dtn=\"BOOL\" max=\"2.5\" "
                     "min=\"-1.5\" resolution=\"0.25\" offset=\"4\" nts=\"n\" comment=\"c\" "
                     "fid=\"9\"><Enum key=\"on\" value=\"1\"/><Enum key=\"off\" value=\"-1\"/>"
                     "</Parameter></ParameterList></Arinc825Profile>"));
    EXPECT_EQ(document.parameterListComment, QStringLiteral("C"));
    ASSERT_EQ(document.parameters.size(), 1U);
    const Lru825Parameter& read = document.parameters.begin()->second;
    EXPECT_EQ(read.name, QStringLiteral("p"));
    EXPECT_EQ(read.pua, QStringLiteral("any unit"));
    EXPECT_EQ(read.dtn, 14U);
    EXPECT_DOUBLE_EQ(read.max, 2.5);
    EXPECT_DOUBLE_EQ(read.min, -1.5);
    EXPECT_DOUBLE_EQ(read.resolution, 0.25);
    EXPECT_DOUBLE_EQ(read.offset, 4.0);
    EXPECT_EQ(read.notes, QStringLiteral("n"));
    EXPECT_EQ(read.comment, QStringLiteral("c"));
    EXPECT_EQ(read.fid, 9U);
    ASSERT_EQ(read.enumEntries.size(), 2U);
    EXPECT_EQ(read.enumEntries.at(0).key, QStringLiteral("on"));
    EXPECT_EQ(read.enumEntries.at(0).value, 1);
    EXPECT_EQ(read.enumEntries.at(1).value, -1);
}

TEST_F(Lru825Reader, AbsentAttributesAreEmptyOrZero)
{
    ASSERT_TRUE(read("<Arinc825Profile><LRU><CANBusInterfaceList><CANBusInterface/>"
                     "</CANBusInterfaceList><Communication><TransmitList><Message>"
                     "<InterfaceAssignment><Interface/></InterfaceAssignment>"
                     "<DataField><Parameter/></DataField></Message></TransmitList>"
                     "</Communication></LRU><ParameterList><Parameter><Enum/></Parameter>"
                     "</ParameterList></Arinc825Profile>"));
    EXPECT_EQ(document.name, QString());
    EXPECT_EQ(document.nodeId, QString());
    EXPECT_EQ(document.interfaces.begin()->second.name, QString());
    EXPECT_EQ(document.interfaces.begin()->second.bitRate, 0U);
    const Lru825Message& message = firstOf(document.transmitMessages);
    EXPECT_EQ(message.name, QString());
    EXPECT_EQ(message.defaultLcc, 0U);
    EXPECT_EQ(message.assignments.at(0).name, QString());
    EXPECT_FALSE(message.dataField.highIntegrity);
    EXPECT_EQ(message.dataField.parameters.at(0).name, QString());
    const Lru825Parameter& parameter = document.parameters.begin()->second;
    EXPECT_EQ(parameter.name, QString());
    EXPECT_EQ(parameter.dtn, 0U);
    EXPECT_EQ(parameter.enumEntries.at(0).key, QString());
}

TEST_F(Lru825Reader, TextThatIsNoNumberIsZero)
{
    ASSERT_TRUE(read("<Arinc825Profile major=\"1.5\"><LRU><Communication><ReceiveList>"
                     "<Message fid=\"0x10\" txp=\"12.5\" latency_max=\"1e3\"/></ReceiveList>"
                     "</Communication></LRU><ParameterList><Parameter max=\"1,5\" min=\"nan\" "
                     "offset=\"inf\"/></ParameterList></Arinc825Profile>"));
    EXPECT_EQ(document.major, 0);
    const Lru825Message& message = firstOf(document.receiveMessages);
    EXPECT_EQ(message.fid, 0U);
    EXPECT_DOUBLE_EQ(message.txp, 0.0);
    EXPECT_DOUBLE_EQ(message.latencyMax, 0.0);
    const Lru825Parameter& parameter = document.parameters.begin()->second;
    EXPECT_DOUBLE_EQ(parameter.max, 0.0);
    EXPECT_DOUBLE_EQ(parameter.min, 0.0);
    EXPECT_DOUBLE_EQ(parameter.offset, 0.0);
}

TEST_F(Lru825Reader, HighIntegrityIsEverythingButZero)
{
    for (const auto& [text, expected] :
         {std::pair{"0", false}, std::pair{"1", true}, std::pair{"-3", true},
          std::pair{"true", false}, std::pair{"", false}}) {
        ASSERT_TRUE(read("<Arinc825Profile><LRU><Communication><ReceiveList><Message>"
                         "<DataField high_integrity=\"" +
                         QByteArray(text) +
                         "\"/></Message></ReceiveList></Communication></LRU></Arinc825Profile>"));
        EXPECT_EQ(firstOf(document.receiveMessages).dataField.highIntegrity, expected) << text;
    }
}

TEST_F(Lru825Reader, UnknownNamesAreEnteredInTheSchemaWithTheCode0)
{
    ASSERT_TRUE(read("<Arinc825Profile><ParameterList><Parameter dtn=\"QUAD\"/></ParameterList>"
                     "</Arinc825Profile>"));
    EXPECT_EQ(document.parameters.begin()->second.dtn, 0U);
    EXPECT_EQ(schema.dataTypes.codes().count(QStringLiteral("QUAD")), 1U);
    EXPECT_TRUE(document.valid);
}

TEST_F(Lru825Reader, NameLongerThan255IsTheOnlyMessage)
{
    ASSERT_TRUE(read("<Arinc825Profile name=\"" + QByteArray(256, 'x') +
                     "\"><ParameterList><Parameter fid=\"999\"/></ParameterList>"
                     "</Arinc825Profile>"));
    EXPECT_THAT(reportTexts(document.result),
                ElementsAre(warningLine(-1, "Profile name has more than 255 characters")));
    EXPECT_FALSE(document.valid);
    EXPECT_EQ(document.parameters.size(), 1U);
    ASSERT_TRUE(read("<Arinc825Profile name=\"" + QByteArray(255, 'x') + "\"/>"));
    EXPECT_THAT(reportTexts(document.result), IsEmpty());
    EXPECT_TRUE(document.valid);
}

TEST_F(Lru825Reader, EveryRecordHasASerialOfItsOwn)
{
    ASSERT_TRUE(
        read("<Arinc825Profile><LRU><CANBusInterfaceList><CANBusInterface/><CANBusInterface/>"
             "</CANBusInterfaceList><Communication><TransmitList><Message>"
             "<InterfaceAssignment><Interface/><Interface/></InterfaceAssignment>"
             "<DataField><Parameter/><Parameter/></DataField></Message></TransmitList>"
             "</Communication></LRU><ParameterList><Parameter><Enum/><Enum/></Parameter>"
             "</ParameterList></Arinc825Profile>"));
    std::multiset<std::uint32_t> serials;
    for (const auto& [serial, record] : document.interfaces) {
        EXPECT_EQ(serial, record.serial);
        serials.insert(serial);
    }
    const Lru825Message& message = firstOf(document.transmitMessages);
    EXPECT_EQ(document.transmitMessages.begin()->first, message.serial);
    serials.insert(message.serial);
    for (const Lru825Assignment& assignment : message.assignments) {
        serials.insert(assignment.serial);
    }
    for (const Lru825Reference& reference : message.dataField.parameters) {
        serials.insert(reference.serial);
    }
    const Lru825Parameter& parameter = document.parameters.begin()->second;
    serials.insert(parameter.serial);
    for (const Lru825EnumEntry& entry : parameter.enumEntries) {
        serials.insert(entry.serial);
    }
    EXPECT_EQ(serials.size(), 10U);
    EXPECT_EQ(std::set<std::uint32_t>(serials.begin(), serials.end()).size(), 10U);
}

TEST_F(Lru825Reader, SerialsAreOfACounterOfTheirOwn)
{
    const std::uint32_t profiles = nextSerial();
    const std::uint32_t before = nextLru825Serial();
    ASSERT_TRUE(read("<Arinc825Profile><ParameterList><Parameter/></ParameterList>"
                     "</Arinc825Profile>"));
    EXPECT_EQ(document.parameters.begin()->first, before + 1);
    EXPECT_EQ(nextSerial(), profiles + 1);
}

TEST_F(Lru825Reader, OtherElementsAreSkippedAtEveryLevel)
{
    const QByteArray other = "text<Other><Message/><Parameter/></Other><!-- c --><x:LRU/>";
    const QByteArray message =
        "<Message>" + other + "<Parameter/><Interface/><InterfaceAssignment>" + other +
        "<Parameter/><Interface>" + other + "</Interface></InterfaceAssignment><DataField>" +
        other + "<Parameter>" + other + "</Parameter></DataField></Message>";
    ASSERT_TRUE(read("<Arinc825Profile>" + other + "<Message/><LRU>" + other +
                     "<CANBusInterface/><TransmitList>" + message + "</TransmitList>" +
                     "<CANBusInterfaceList>" + other + "<CANBusInterface>" + other + "<BitTiming>" +
                     other + "</BitTiming></CANBusInterface>" +
                     "</CANBusInterfaceList><Communication>" + other + message + "<TransmitList>" +
                     other + message + "</TransmitList></Communication></LRU>" + "<ParameterList>" +
                     other.mid(0).replace("<Parameter/>", "") + "<Parameter>" + other + "<Enum>" +
                     other + "</Enum></Parameter></ParameterList>" + "</Arinc825Profile>"));
    EXPECT_EQ(document.interfaces.size(), 1U);
    ASSERT_EQ(document.transmitMessages.size(), 1U);
    EXPECT_TRUE(document.receiveMessages.empty());
    EXPECT_EQ(firstOf(document.transmitMessages).assignments.size(), 1U);
    EXPECT_EQ(firstOf(document.transmitMessages).dataField.parameters.size(), 1U);
    ASSERT_EQ(document.parameters.size(), 1U);
    EXPECT_EQ(document.parameters.begin()->second.enumEntries.size(), 1U);
}

TEST_F(Lru825Reader, OldContentIsReplaced)
{
    document = test::sampleDocument();
    document.valid = false;
    ASSERT_TRUE(read("<Arinc825Profile/>"));
    EXPECT_EQ(document.name, QString());
    EXPECT_EQ(document.lruName, QString());
    EXPECT_TRUE(document.interfaces.empty());
    EXPECT_TRUE(document.transmitMessages.empty());
    EXPECT_TRUE(document.receiveMessages.empty());
    EXPECT_TRUE(document.parameters.empty());
    EXPECT_TRUE(document.valid);
}

TEST_F(Lru825Reader, FileThatIsRefusedLeavesAnEmptyDocument)
{
    document = test::sampleDocument();
    EXPECT_FALSE(read("<Arinc825Profile name=\"N\"><ParameterList><Parameter/></ParameterList>"
                      "</Arinc825Profile"));
    EXPECT_EQ(document.name, QString());
    EXPECT_TRUE(document.parameters.empty());
    EXPECT_EQ(document.fileName, home.file(fileName));
    EXPECT_THAT(reportTexts(document.result), IsEmpty());
}

TEST_F(Lru825Reader, ZorbProfileIsRefused)
{
    EXPECT_FALSE(read("<ZORBprofile name=\"z\"/>"));
}

TEST_F(Lru825Reader, ParameterDocumentHasNothingForIt)
{
    ASSERT_TRUE(read("<Arinc825Profile name=\"P\"><FidList><Fid/></FidList><ParameterList>"
                     "<Sfid id=\"4\"><Parameter nme=\"p\"/></Sfid></ParameterList>"
                     "</Arinc825Profile>"));
    EXPECT_EQ(document.name, QStringLiteral("P"));
    EXPECT_TRUE(document.parameters.empty());
}

TEST_F(Lru825Reader, HostileFilesAreRefused)
{
    const test::HostileFiles hostile("Arinc825Profile");
    for (const auto& [name, path] : hostile.files()) {
        const test::ConsoleCapture quiet;
        EXPECT_FALSE(readLru825(path, schema, document)) << name;
    }
}

TEST_F(Lru825Reader, MillionLevelsAreSkipped)
{
    constexpr int depth = 1000000;
    const QByteArray deep =
        QByteArray("<LRU>").repeated(depth) + QByteArray("</LRU>").repeated(depth);
    ASSERT_TRUE(read("<Arinc825Profile>" + deep + "<ParameterList><Parameter/></ParameterList>" +
                     "</Arinc825Profile>"));
    EXPECT_EQ(document.parameters.size(), 1U);
}

} // namespace

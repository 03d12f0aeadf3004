#include "core/SettingsStore.h"
#include "tests/support/SettableClock.h"
#include "tests/unit/profile/HostileFiles.h"
#include "tests/unit/profile/XmlProfileFixture.h"

#include <QLocale>

#include <gmock/gmock.h>

namespace {

using namespace zul;
using test::errorLine;
using test::parameterElement;
using test::withParameters;
using testing::ElementsAre;
using testing::IsEmpty;

using XmlProfileReader = test::XmlProfileFixture;

TEST_F(XmlProfileReader, HeadOfTheReport)
{
    const test::SettableClock clock(0.0);
    ASSERT_TRUE(read("<Arinc825Profile/>"));
    EXPECT_EQ(profile.result,
              QStringLiteral("Profile : %1<br>Time    : 01.01.1970 00:00:00<br><br>")
                  .arg(home.file(fileName)));
    EXPECT_EQ(profile.fileName, home.file(fileName));
    EXPECT_TRUE(profile.valid);
    EXPECT_EQ(output, "");
}

TEST_F(XmlProfileReader, RootAttributes)
{
    ASSERT_TRUE(read("<Arinc825Profile version=\"7\" name=\"N\" id=\"12.34\" comment=\"C\"/>"));
    EXPECT_EQ(profile.name, QStringLiteral("N"));
    EXPECT_EQ(profile.comment, QStringLiteral("C"));
    EXPECT_EQ(profile.id, 12U);
    EXPECT_EQ(profile.subId, 34U);
}

TEST_F(XmlProfileReader, AbsentRootAttributesAreEmptyOrZero)
{
    profile.name = QStringLiteral("old");
    profile.comment = QStringLiteral("old");
    profile.header = QStringLiteral("old\n");
    profile.id = 5;
    profile.subId = 6;
    ASSERT_TRUE(read("<Arinc825Profile/>"));
    EXPECT_EQ(profile.name, QString());
    EXPECT_EQ(profile.comment, QString());
    EXPECT_EQ(profile.header, QString());
    EXPECT_EQ(profile.id, 0U);
    EXPECT_EQ(profile.subId, 0U);
}

TEST_F(XmlProfileReader, IdWithoutPointHasSubIdZero)
{
    ASSERT_TRUE(read("<Arinc825Profile id=\"12\"/>"));
    EXPECT_EQ(profile.id, 12U);
    EXPECT_EQ(profile.subId, 0U);
}

TEST_F(XmlProfileReader, LruDocumentIsAnEmptyProfile)
{
    ASSERT_TRUE(read("<Arinc825Profile id=\"free text\" name=\"L\"><LRU/>"
                     "<ParameterList><Parameter name=\"p\"/></ParameterList></Arinc825Profile>"));
    EXPECT_EQ(profile.name, QStringLiteral("L"));
    EXPECT_EQ(profile.id, 0U);
    EXPECT_TRUE(profile.fids.empty());
    EXPECT_TRUE(profile.valid);
}

// Fields.

TEST_F(XmlProfileReader, EveryField)
{
    const ProfileParameter read = readParameter({{"lcc", "NSC"},
                                                 {"sid", "5"},
                                                 {"dfid", "6"},
                                                 {"doc", "7"},
                                                 {"lcl", "1"},
                                                 {"pvt", "1"},
                                                 {"spp", "3.0"},
                                                 {"epp", "3.7"},
                                                 {"puc", "9"},
                                                 {"pua", "unit"},
                                                 {"dtn", "CHAR"},
                                                 {"nme", "name"},
                                                 {"min", "-1.5"},
                                                 {"max", "2.5"},
                                                 {"upt", "40"},
                                                 {"upr", "50"},
                                                 {"lat", "0.25"},
                                                 {"rci", "3"},
                                                 {"nts", "note"}});
    EXPECT_EQ(read.parameterKind, ParameterKind::Arinc825);
    EXPECT_EQ(read.lcc, 4U);
    EXPECT_EQ(read.fid, 4U);
    EXPECT_EQ(read.sid, 5U);
    EXPECT_EQ(read.dfid, 6U);
    EXPECT_EQ(read.doc, 7U);
    EXPECT_EQ(read.lcl, 1U);
    EXPECT_EQ(read.pvt, 1U);
    EXPECT_EQ(read.sppByte, 3U);
    EXPECT_EQ(read.sppBit, 0U);
    EXPECT_EQ(read.eppByte, 3U);
    EXPECT_EQ(read.eppBit, 7U);
    EXPECT_EQ(read.puc, 9U);
    EXPECT_EQ(read.unitLabel, QStringLiteral("unit"));
    EXPECT_EQ(read.pun, QStringLiteral("unit"));
    EXPECT_EQ(read.typeName, QStringLiteral("CHAR"));
    EXPECT_EQ(read.dtc, 2U);
    EXPECT_EQ(read.enumId, 0);
    EXPECT_EQ(read.nme, QStringLiteral("name"));
    EXPECT_DOUBLE_EQ(read.min, -1.5);
    EXPECT_DOUBLE_EQ(read.max, 2.5);
    EXPECT_EQ(read.upr, 40);
    EXPECT_DOUBLE_EQ(read.lat, 0.25);
    EXPECT_EQ(read.rci, 3U);
    EXPECT_EQ(read.notes, QStringLiteral("note"));
    EXPECT_THAT(lines, IsEmpty());
}

TEST_F(XmlProfileReader, AbsentAttributesAreEmptyOrZero)
{
    ASSERT_TRUE(read("<Arinc825Profile><ParameterList><Sfid><Parameter/></Sfid></ParameterList>"
                     "</Arinc825Profile>"));
    const ProfileParameter& read = profile.fids.at(0).parameters.begin()->second;
    EXPECT_EQ(read.nme, QString());
    EXPECT_EQ(read.unitLabel, QString());
    EXPECT_EQ(read.pun, QString());
    EXPECT_EQ(read.typeName, QString());
    EXPECT_EQ(read.notes, QString());
    EXPECT_DOUBLE_EQ(read.min, 0.0);
    EXPECT_DOUBLE_EQ(read.max, 0.0);
    EXPECT_EQ(read.dtc, 1U);
    EXPECT_EQ(read.enumId, -1);
    EXPECT_EQ(read.id, 0U);
    EXPECT_THAT(
        lines,
        ElementsAre(
            errorLine(1, "wrong LCC identifier . Valid LCCs are EEC, NOC, NSC, UDC, TMC or FMC."),
            errorLine(1, "Invalid DTN ")));
}

// Deliberate: the NID in "doc" does not stand in for an absent "dfid".
TEST_F(XmlProfileReader, DfidComesFromItsOwnAttributeAlone)
{
    EXPECT_EQ(readParameter({{"lcc", "NSC"}, {"doc", "65024"}}).dfid, 0U);
    EXPECT_EQ(profile.fids.at(4).parameters.begin()->second.doc, 65024U);
}

TEST_F(XmlProfileReader, DtnMayBeAnEnumeration)
{
    ASSERT_TRUE(read(withParameters(parameterElement({{"dtn", "Mode"}}), "4",
                                    "<EnumList><Enum name=\"Mode\"/></EnumList>")));
    EXPECT_THAT(lines, IsEmpty());
    const ProfileParameter& read = profile.fids.at(4).parameters.begin()->second;
    EXPECT_EQ(read.dtc, 1U);
    EXPECT_EQ(read.enumId, profile.enums.at(QStringLiteral("Mode")).enumId);
    EXPECT_EQ(read.typeName, QStringLiteral("Mode"));
}

TEST_F(XmlProfileReader, MinAndMaxOfEveryForm)
{
    const std::map<QByteArray, double> forms{{"0x10", 16.0},
                                             {"0xFFFF", 65535.0},
                                             {"010", 10.0},
                                             {"1e3", 1000.0},
                                             {"-2.5", -2.5},
                                             {" 3 ", 3.0},
                                             {"0x8000000000000000", 9223372036854775808.0},
                                             {"0xFFFFFFFFFFFFFFFF", 18446744073709551616.0},
                                             {"18446744073709551615", 18446744073709551616.0},
                                             {"", 0.0},
                                             {"1,5", 0.0},
                                             {"inf", 0.0},
                                             {"nan", 0.0},
                                             {"1e999", 0.0},
                                             {"0x1FFFFFFFFFFFFFFFF", 0.0},
                                             {"-0x10", 0.0},
                                             {"x", 0.0}};
    for (const auto& [text, value] : forms) {
        const ProfileParameter read = readParameter({{"min", text}, {"max", text}});
        EXPECT_DOUBLE_EQ(read.min, value) << text.toStdString();
        EXPECT_DOUBLE_EQ(read.max, value) << text.toStdString();
        EXPECT_THAT(lines, IsEmpty());
    }
}

TEST_F(XmlProfileReader, MinOf0x10FailsAsADoubleAndIs16)
{
    EXPECT_DOUBLE_EQ(readParameter({{"min", "0x10"}, {"max", "0x11"}}).min, 16.0);
}

TEST_F(XmlProfileReader, NumbersAreDecimalPointNumbersWhateverTheLocale)
{
    QLocale::setDefault(QLocale(QLocale::German));
    const ProfileParameter read = readParameter({{"min", "1.5"}, {"max", "1.500"}, {"lat", "2.5"}});
    QLocale::setDefault(QLocale::c());
    EXPECT_DOUBLE_EQ(read.min, 1.5);
    EXPECT_DOUBLE_EQ(read.max, 1.5);
    EXPECT_DOUBLE_EQ(read.lat, 2.5);
}

TEST_F(XmlProfileReader, TextThatIsNoNumberIsZero)
{
    const ProfileParameter read = readParameter(
        {{"doc", "0x10"}, {"spp", "x"}, {"epp", "0.7"}, {"upt", "1.5"}, {"lat", "y"}, {"rci", ""}});
    EXPECT_EQ(read.doc, 0U);
    EXPECT_EQ(read.sppByte, 0U);
    EXPECT_EQ(read.upr, 0);
    EXPECT_DOUBLE_EQ(read.lat, 0.0);
    EXPECT_EQ(read.rci, 0U);
}

// The identifier.

TEST_F(XmlProfileReader, IdOfADataChannel)
{
    const ProfileParameter read =
        readParameter({{"lcc", "NOC"}, {"doc", "100"}, {"lcl", "1"}, {"pvt", "1"}, {"sid", "5"}});
    EXPECT_EQ(read.id, 2U << 26 | 4U << 19 | 1U << 17 | 1U << 16 | 100U << 2);
    EXPECT_EQ(output, "");
}

// Deliberate: one more than the field holds passes and is cut.
TEST_F(XmlProfileReader, Doc16384IsCutTo0)
{
    EXPECT_EQ(readParameter({{"doc", "16384"}}).id, 4U << 19);
}

TEST_F(XmlProfileReader, IdOfAServiceChannelIsPrinted)
{
    const ProfileParameter read = readParameter(
        {{"lcc", "NSC"}, {"dfid", "127"}, {"sid", "3"}, {"lcl", "1"}, {"pvt", "1"}, {"doc", "9"}});
    EXPECT_EQ(read.id, 4U << 26 | 4U << 19 | 1U << 17 | 1U << 16 | 127U << 9 | 3U << 2);
    EXPECT_EQ(output,
              "Parameter id 0x1023fe0c lcc 0x4 sfid 0x4 lcl 0x1 pvt 0x1 dfid 0x7f sid 0x3\n");
}

TEST_F(XmlProfileReader, NumbersArePrintedAsTheyWereRead)
{
    readParameter({{"lcc", "TMC"}, {"dfid", "300"}, {"sid", "200"}, {"lcl", "0"}, {"pvt", "1"}});
    EXPECT_EQ(output,
              "Parameter id 0x18215920 lcc 0x6 sfid 0x4 lcl 0x0 pvt 0x1 dfid 0x12c sid 0xc8\n");
}

TEST_F(XmlProfileReader, NegativeNumbersAreOutOfRange)
{
    readParameter({{"lcc", "NSC"}, {"dfid", "-1"}, {"sid", "-1"}});
    EXPECT_TRUE(profile.result.contains(QStringLiteral("DFID -1 out of range")));
    EXPECT_TRUE(profile.result.contains(QStringLiteral("SID -1 out of range")));
}

TEST_F(XmlProfileReader, EveryChannelWithoutDocIsPrinted)
{
    for (const char* channel : {"NSC", "UDC", "TMC", "FMC"}) {
        readParameter({{"lcc", channel}});
        EXPECT_NE(output, "") << channel;
    }
}

TEST_F(XmlProfileReader, Sid200PassesAndIsCutToSevenBits)
{
    const ProfileParameter read = readParameter({{"lcc", "TMC"}, {"sid", "200"}});
    EXPECT_THAT(lines, IsEmpty());
    EXPECT_EQ(read.sid, 200U);
    EXPECT_EQ(read.id, 6U << 26 | 4U << 19 | (200U & 127U) << 2);
}

// Groups and the index.

TEST_F(XmlProfileReader, GroupIsNamedByTheTableOf825Part3)
{
    ASSERT_TRUE(read(withParameters(parameterElement(), "21",
                                    "<FidList><Fid name=\"mine\" code=\"21\"/></FidList>")));
    EXPECT_EQ(profile.fids.at(21).name, QStringLiteral("Wings"));
    EXPECT_EQ(profile.fids.at(21).fid, 21U);
}

TEST_F(XmlProfileReader, GroupOfAReservedFidIsNamedByTheUser)
{
    ASSERT_TRUE(read(withParameters(parameterElement(), "1",
                                    "<FidList><Fid name=\"mine\" code=\"1\"/></FidList>")));
    EXPECT_THAT(lines, IsEmpty());
    EXPECT_EQ(profile.fids.at(1).name, QStringLiteral("mine"));
}

TEST_F(XmlProfileReader, ParametersAreInTheIndexOfTheStore)
{
    ASSERT_TRUE(
        read(withParameters(parameterElement({{"nme", "a"}}) +
                            parameterElement({{"nme", "b"}, {"spp", "3.0"}, {"epp", "3.7"}}))));
    const std::uint32_t id = 4U << 19 | 100U << 2;
    EXPECT_EQ(store.parameterIndex().count(id), 2U);
    EXPECT_EQ(store.parameterIndex().begin()->second.nme, QStringLiteral("a"));
}

TEST_F(XmlProfileReader, ParametersOfOneFidInTwoSfidsShareTheirGroup)
{
    ASSERT_TRUE(read(withParameters(parameterElement({{"nme", "a"}}) + "</Sfid><Sfid id=\"4\">" +
                                    parameterElement({{"nme", "b"}, {"doc", "101"}}))));
    ASSERT_EQ(profile.fids.size(), 1U);
    QStringList names;
    for (const auto& [serial, read] : profile.fids.at(4).parameters) {
        EXPECT_EQ(serial, read.serial);
        names << read.nme;
    }
    EXPECT_EQ(names, QStringList({QStringLiteral("a"), QStringLiteral("b")}));
}

// The shape of the document.

TEST_F(XmlProfileReader, ListsInAnyOrderAndNumber)
{
    const QByteArray fid = "<FidList><Fid name=\"u\" code=\"1\"/></FidList>";
    const QByteArray fid2 = "<FidList><Fid name=\"v\" code=\"2\"/></FidList>";
    const QByteArray unit = "<UnitList><Unit name=\"q\" code=\"100\"/></UnitList>";
    const QByteArray enums = "<EnumList><Enum name=\"E\"/></EnumList>";
    const QByteArray parameters = "<ParameterList><Sfid id=\"1\">" +
                                  parameterElement({{"puc", "100"}, {"dtn", "E"}}) +
                                  "</Sfid></ParameterList>";
    const QByteArray parameters2 =
        "<ParameterList><Sfid id=\"2\">" + parameterElement() + "</Sfid></ParameterList>";
    ASSERT_TRUE(read("<Arinc825Profile>" + enums + fid + unit + parameters + fid2 + parameters2 +
                     "</Arinc825Profile>"));
    EXPECT_THAT(lines, IsEmpty());
    EXPECT_EQ(profile.userFids.size(), 2U);
    EXPECT_EQ(profile.fids.size(), 2U);
}

TEST_F(XmlProfileReader, ListsAfterTheirUseComeTooLate)
{
    const QByteArray lists = "<FidList><Fid name=\"u\" code=\"1\"/></FidList>"
                             "<UnitList><Unit name=\"q\" code=\"100\"/></UnitList>"
                             "<EnumList><Enum name=\"E\"/></EnumList>";
    ASSERT_TRUE(read("<Arinc825Profile><ParameterList><Sfid id=\"1\">" +
                     parameterElement({{"puc", "100"}, {"dtn", "E"}}) + "</Sfid></ParameterList>" +
                     lists + "</Arinc825Profile>"));
    EXPECT_THAT(
        lines, ElementsAre(
                   errorLine(1, "FID 1 not defined. Define a User FID or use a standard FID"),
                   errorLine(1, "Invalid DTN E"),
                   errorLine(1, "PUC 100 not defined. Define a User Unit or use a standard unit")));
}

TEST_F(XmlProfileReader, AbsentListsAreFineIfNothingRefersToThem)
{
    ASSERT_TRUE(read(withParameters(parameterElement())));
    EXPECT_THAT(lines, IsEmpty());
    EXPECT_EQ(profile.fids.size(), 1U);
}

TEST_F(XmlProfileReader, OtherElementsAreIgnoredAtEveryLevel)
{
    const QByteArray other = "text<Other code=\"500\"><Fid code=\"500\"/><Parameter/><Value/>"
                             "</Other><!-- c --><x:Fid code=\"500\"/>";
    ASSERT_TRUE(read(
        "<Arinc825Profile>" + other + "<Sfid id=\"4\"><Parameter/></Sfid><Value/>" + "<FidList>" +
        other.mid(0).replace("<Fid code", "<Fit code") + "<Unit code=\"5\"/>" +
        "<Fid name=\"u\" code=\"1\">" + other + "</Fid></FidList>" + "<UnitList>" + other +
        "<Unit name=\"q\" code=\"100\">" + other + "</Unit></UnitList>" + "<EnumList>" + other +
        "<Value val=\"8\"/><Enum name=\"E\">" + other + "<Value val=\"1\" label=\"one\">" + other +
        "</Value></Enum></EnumList>" + "<ParameterList>" + other + "<Parameter/><Sfid id=\"4\">" +
        other.mid(0).replace("<Parameter/>", "<Sfid id=\"500\"><Parameter/></Sfid>") +
        parameterElement().replace("/>", ">" + other + "</Parameter>") + "</Sfid></ParameterList>" +
        "</Arinc825Profile>"));
    EXPECT_THAT(lines, IsEmpty());
    EXPECT_EQ(profile.userFids.size(), 1U);
    EXPECT_EQ(profile.userUnits.size(), 1U);
    EXPECT_EQ(profile.enums.at(QStringLiteral("E")).values.size(), 1U);
    ASSERT_EQ(profile.fids.size(), 1U);
    EXPECT_EQ(profile.fids.at(4).parameters.size(), 1U);
}

TEST_F(XmlProfileReader, NamesWithMarkupStayTextInTheReport)
{
    ASSERT_TRUE(read("<Arinc825Profile><FidList><Fid name=\"&lt;b>\" code=\"200\"/></FidList>"
                     "</Arinc825Profile>"));
    EXPECT_THAT(lines, ElementsAre(errorLine(1, "User FID 200 (&lt;b&gt;) invalid. Range must be "
                                                "in [0..127]")));
    EXPECT_EQ(profile.userFids.at(200).name, QStringLiteral("<b>"));
}

TEST_F(XmlProfileReader, OldContentIsReplaced)
{
    ASSERT_TRUE(read(withParameters(parameterElement(), "1",
                                    "<FidList><Fid name=\"u\" code=\"1\"/></FidList>"
                                    "<UnitList><Unit name=\"q\" code=\"100\"/></UnitList>"
                                    "<EnumList><Enum name=\"E\"/></EnumList>")));
    ASSERT_TRUE(read("<Arinc825Profile name=\"new\"/>"));
    EXPECT_TRUE(profile.fids.empty());
    EXPECT_TRUE(profile.enums.empty());
    EXPECT_TRUE(profile.userFids.empty());
    EXPECT_TRUE(profile.userUnits.empty());
}

// Files that are refused.

TEST_F(XmlProfileReader, ZorbProfileIsRefused)
{
    EXPECT_FALSE(read("<ZORBprofile name=\"z\"/>"));
    EXPECT_THAT(lines, IsEmpty());
}

TEST_F(XmlProfileReader, ErrorAtTheEndOfAFileLeavesProfileAndIndexUntouched)
{
    ASSERT_TRUE(
        read(withParameters(parameterElement(), "4", "<EnumList><Enum name=\"E\"/></EnumList>")));
    const int nextEnumId = store.nextEnumId();
    QByteArray parameters;
    for (int i = 0; i < 1000; ++i) {
        parameters += parameterElement({{"lcc", "NSC"}, {"rci", "4"}}) + '\n';
    }
    EXPECT_FALSE(
        read(withParameters(parameters, "8", "<EnumList><Enum name=\"F\"/></EnumList>") + "<"));
    EXPECT_EQ(profile.name, QStringLiteral("P"));
    EXPECT_EQ(profile.fids.size(), 1U);
    EXPECT_EQ(profile.fids.count(4), 1U);
    EXPECT_EQ(profile.enums.count(QStringLiteral("E")), 1U);
    EXPECT_EQ(store.parameterIndex().size(), 1U);
    EXPECT_EQ(store.nextEnumId(), nextEnumId + 1);
    EXPECT_THAT(lines, IsEmpty()) << "the report holds its head alone";
    EXPECT_EQ(output, "");
}

TEST_F(XmlProfileReader, EveryTruncationIsRefused)
{
    const QByteArray good = withParameters(parameterElement());
    for (int length = 0; length < good.size(); ++length) {
        EXPECT_FALSE(read(good.left(length))) << length;
    }
}

TEST_F(XmlProfileReader, HostileFilesAreRefused)
{
    const test::HostileFiles hostile("Arinc825Profile");
    for (const auto& [name, path] : hostile.files()) {
        const test::ConsoleCapture quiet;
        EXPECT_FALSE(readXmlProfile(path, store, profile)) << name;
    }
    EXPECT_TRUE(store.parameterIndex().empty());
}

TEST_F(XmlProfileReader, MillionLevelsAreIgnoredAsOtherElements)
{
    constexpr int depth = 1000000;
    const QByteArray deep =
        QByteArray("<FidList>").repeated(depth) + QByteArray("</FidList>").repeated(depth);
    ASSERT_TRUE(read("<Arinc825Profile>" + deep +
                     "<FidList><Fid name=\"u\" code=\"1\"/></FidList>" + "</Arinc825Profile>"));
    EXPECT_EQ(profile.userFids.size(), 1U);
}

TEST_F(XmlProfileReader, TextsOfEveryEncoding)
{
    const QByteArray head = "<?xml version=\"1.0\" encoding=\"";
    const QString name = QStringLiteral("M") + QChar(0xFC) + QStringLiteral("ller");
    ASSERT_TRUE(read(head + "ISO-8859-1\"?><Arinc825Profile name=\"M\xfcller\"/>"));
    EXPECT_EQ(profile.name, name);
    ASSERT_TRUE(read(head + "UTF-8\"?><Arinc825Profile name=\"M\xc3\xbcller\"/>"));
    EXPECT_EQ(profile.name, name);
    QByteArray wide("\xff\xfe", 2);
    for (const QChar character :
         QStringLiteral("<Arinc825Profile name=\"") + name + QStringLiteral("\"/>")) {
        wide += static_cast<char>(character.cell());
        wide += static_cast<char>(character.row());
    }
    ASSERT_TRUE(read(wide));
    EXPECT_EQ(profile.name, name);
}

// The store.

class XmlProfileStore : public XmlProfileReader
{
protected:
    ~XmlProfileStore() override { SettingsStore::instance().reset(); }

    static void setVersion(int version)
    {
        SettingsStore::instance().setInteger(QStringLiteral("ArincProfileVersion"), version);
    }
};

TEST_F(XmlProfileStore, ReadsXmlForEveryVersionButZero)
{
    home.write(fileName, withParameters(parameterElement()));
    for (const int version : {1, 2, -1}) {
        setVersion(version);
        ArincProfile fresh;
        ASSERT_TRUE(store.readProfile(home.file(fileName), fresh));
        EXPECT_EQ(fresh.name, QStringLiteral("P")) << version;
        EXPECT_EQ(fresh.fids.size(), 1U) << version;
    }
    setVersion(0);
    ArincProfile text;
    ASSERT_TRUE(store.readProfile(home.file(fileName), text));
    EXPECT_EQ(text.name, QString());
}

TEST_F(XmlProfileStore, LoadFileTakesAParameterDocument)
{
    setVersion(1);
    home.write(fileName, withParameters(parameterElement(), "4",
                                        "<EnumList><Enum name=\"E\"><Value val=\"1\" label=\"on\"/>"
                                        "</Enum></EnumList>"));
    ASSERT_TRUE(store.loadFile(home.file(fileName)));
    const ArincProfile& loaded = store.profiles().at(QStringLiteral("P"));
    EXPECT_TRUE(loaded.valid);
    EXPECT_EQ(store.enumText(loaded.enums.at(QStringLiteral("E")).enumId, 1),
              QStringLiteral("1: on"));
    EXPECT_EQ(store.parameterIndex().size(), 1U);
}

} // namespace

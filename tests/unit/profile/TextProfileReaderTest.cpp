#include "profile/TextProfileReader.h"

#include "TextProfileFixture.h"

#include <QFile>

#include <cstddef>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using zul::test::TextReader;

QStringList one(const char* text)
{
    return {QString::fromLatin1(text)};
}

TEST_F(TextReader, MissingFileGivesTheHeadAlone)
{
    profile.name = QStringLiteral("kept");
    profile.header = QStringLiteral("kept");
    EXPECT_FALSE(zul::readTextProfile(home.file(fileName), store, profile));
    EXPECT_EQ(profile.result, QStringLiteral("Profile : ") + home.file(fileName) +
                                  QStringLiteral("<br>Time    : 01.01.1970 00:00:00<br><br>"));
    EXPECT_TRUE(profile.valid);
    EXPECT_EQ(profile.header, QStringLiteral("kept"));
}

TEST_F(TextReader, DirectoryAndPipeAreNoFiles)
{
    EXPECT_FALSE(zul::readTextProfile(home.path(), store, profile));
    const QByteArray pipe = QFile::encodeName(home.file(QStringLiteral("pipe.pro")));
    ASSERT_EQ(mkfifo(pipe.constData(), S_IRUSR | S_IWUSR), 0);
    EXPECT_FALSE(zul::readTextProfile(QFile::decodeName(pipe), store, profile));
}

TEST_F(TextReader, EmptyFileIsAnEmptyValidProfile)
{
    EXPECT_THAT(read(""), IsEmpty());
    EXPECT_TRUE(profile.fids.empty());
    EXPECT_EQ(profile.fileName, home.file(fileName));
}

TEST_F(TextReader, UsedProfileIsEmptied)
{
    used.valid = false;
    used.header = QStringLiteral("old");
    used.fids[1];
    used.enums[QStringLiteral("old")];
    used.userFids[1];
    used.userUnits[1];
    EXPECT_THAT(read(""), IsEmpty());
    EXPECT_EQ(profile.header, QString());
    EXPECT_TRUE(profile.fids.empty());
    EXPECT_TRUE(profile.enums.empty());
    EXPECT_TRUE(profile.userFids.empty());
    EXPECT_TRUE(profile.userUnits.empty());
}

TEST_F(TextReader, SectionsInAnyOrderAndRepeated)
{
    EXPECT_THAT(read("<profile>\nName;12;3\n<header>\nFirst line\n<unit>\nMine;100\n"
                     "<header>\nSecond line\n<fid>\nOwn;21\n<enum>\nState;0;Off\nState;1;On\n"
                     "Mode;-5;Low\n"),
                IsEmpty());
    EXPECT_EQ(profile.name, QStringLiteral("Name"));
    EXPECT_EQ(profile.id, 12U);
    EXPECT_EQ(profile.subId, 3U);
    EXPECT_EQ(profile.header, QStringLiteral("First line\nSecond line\n"));
    EXPECT_EQ(profile.userUnits.at(100).name, QStringLiteral("Mine"));
    EXPECT_EQ(profile.userFids.at(21).name, QStringLiteral("Own"));
    ASSERT_EQ(profile.enums.size(), 2U);
    const ProfileEnum& state = profile.enums.at(QStringLiteral("State"));
    EXPECT_EQ(state.values.at(1).label, QStringLiteral("On"));
    EXPECT_EQ(profile.enums.at(QStringLiteral("Mode")).values.at(-5).label, QStringLiteral("Low"));
    EXPECT_EQ(state.enumId, 1);
    EXPECT_EQ(profile.enums.at(QStringLiteral("Mode")).enumId, 2);
}

TEST_F(TextReader, LinesBeforeAnySectionAreIgnored)
{
    EXPECT_THAT(read("anything;at;all\n<Profile>\nName;1;2\n"), IsEmpty());
    EXPECT_EQ(profile.name, QString());
}

TEST_F(TextReader, MarkWithBlanksOpensItsSection)
{
    EXPECT_THAT(read(" \t<profile> \r\nName;1;2\r\n"), IsEmpty());
    EXPECT_EQ(profile.name, QStringLiteral("Name"));
}

TEST_F(TextReader, MarkWithACapitalIsASyntaxErrorInASection)
{
    EXPECT_EQ(read("<profile>\n<Fid>\n"), one("2 Error: Syntax Error, wrong number of tokens 1"));
}

TEST_F(TextReader, CommentsAndEmptyLinesCountAsLines)
{
    EXPECT_EQ(read("# comment\n\n<profile>\n  # comment\n\nName\n"),
              one("6 Error: Syntax Error, wrong number of tokens 1"));
}

TEST_F(TextReader, CommentInAHeaderIsNotPartOfIt)
{
    EXPECT_THAT(read("<header>\nText\n# comment\n\n  More\n"), IsEmpty());
    EXPECT_EQ(profile.header, QStringLiteral("Text\nMore\n"));
}

TEST_F(TextReader, CommentDoesNotCloseASection)
{
    EXPECT_THAT(read("<parameter>\n# comment\n" + line({})), IsEmpty());
    EXPECT_EQ(profile.fids.size(), 1U);
}

TEST_F(TextReader, HeaderThatIsTooLongIsToldOnceForEachFurtherLine)
{
    const QByteArray text = QByteArray(254, 'x') + '\n';
    EXPECT_THAT(read("<header>\n" + text), IsEmpty());
    EXPECT_EQ(read("<header>\n" + text + "y\n# no line of the header\nz\n"),
              QStringList({QStringLiteral("3 Warning: Header has more than 255 characters"),
                           QStringLiteral("5 Warning: Header has more than 255 characters")}));
    EXPECT_EQ(read("<header>\n" + QByteArray(255, 'x')),
              one("2 Warning: Header has more than 255 characters"));
}

TEST_F(TextReader, WrongNumberOfTokensDropsTheLine)
{
    EXPECT_EQ(read("<profile>\nName;1\n<fid>\nA;21;x\n<unit>\nB\n<enum>\nC;1\n"),
              QStringList({QStringLiteral("2 Error: Syntax Error, wrong number of tokens 2"),
                           QStringLiteral("4 Error: Syntax Error, wrong number of tokens 3"),
                           QStringLiteral("6 Error: Syntax Error, wrong number of tokens 1"),
                           QStringLiteral("8 Error: Syntax Error, wrong number of tokens 2")}));
    EXPECT_EQ(profile.name, QString());
    EXPECT_TRUE(profile.userFids.empty());
    EXPECT_TRUE(profile.userUnits.empty());
    EXPECT_TRUE(profile.enums.empty());
}

TEST_F(TextReader, ParameterLineOfFifteenTokensIsGone)
{
    QByteArray shortLine = line({});
    shortLine.truncate(shortLine.lastIndexOf(';'));
    EXPECT_EQ(read("<parameter>\n" + line({}) + shortLine + '\n'),
              one("3 Error: Syntax Error, wrong number of tokens 15"));
    EXPECT_EQ(profile.fids.at(4).parameters.size(), 1U);
    EXPECT_EQ(store.parameterIndex().size(), 1U);
}

TEST_F(TextReader, ProfileNameAndIds)
{
    EXPECT_THAT(read("<profile>\n" + QByteArray(255, 'n') + ";65535;65535\n"), IsEmpty());
    EXPECT_EQ(read("<profile>\n" + QByteArray(256, 'n') + ";65536;-1\n"),
              QStringList({QStringLiteral("2 Warning: Profile name has more than 255 characters"),
                           QStringLiteral("2 Error: Profile Id 65536 out of range [0..65535]"),
                           QStringLiteral("2 Error: Profile Sub-Id -1 out of range [0..65535]")}));
    EXPECT_EQ(profile.name.size(), 256);
}

TEST_F(TextReader, LaterEnumerationValueReplacesTheEarlierOne)
{
    EXPECT_EQ(read("<enum>\nE;1;One\nE;1;Uno\n"),
              one("3 Error: Enumeration Value 1 (Uno) already exists"));
    EXPECT_EQ(profile.enums.at(QStringLiteral("E")).values.at(1).label, QStringLiteral("Uno"));
}

TEST_F(TextReader, UserFidTwice)
{
    EXPECT_EQ(read("<fid>\nA;21\nB;21\n"), one("3 Error: User FID 21 (B) exists already "));
    EXPECT_EQ(profile.userFids.at(21).name, QStringLiteral("A"));
}

TEST_F(TextReader, UserFidOutOfRangeIsStored)
{
    EXPECT_EQ(
        read("<fid>\nA;200\nB;-1\n<parameter>\n" + line({{1, "200"}})),
        QStringList({QStringLiteral("2 Error: User FID 200 (A) invalid. Range must be in [0..127]"),
                     QStringLiteral("3 Error: User FID -1 (B) invalid. Range must be in [0..127]"),
                     QStringLiteral("5 Error: FID 200 invalid. Range must be in [0..127]")}));
    EXPECT_EQ(profile.userFids.size(), 2U);
    EXPECT_EQ(profile.fids.at(200).name, QString());
}

TEST_F(TextReader, UserFidAtAStandardCodeConflicts)
{
    EXPECT_EQ(
        read("<fid>\nMine;52\n"),
        one("2 Error: User FID 52 (Mine) conflicts with standard FID 52 (Wheel &amp; Brake)"));
}

TEST_F(TextReader, UserUnits)
{
    EXPECT_EQ(
        read("<unit>\nA;100\nB;999\nC;100\nD;99\nE;1000\nF;-1\n"),
        QStringList(
            {QStringLiteral("4 Error: User Unit 100 (C) already exists"),
             QStringLiteral("5 Error: User Unit 99 (D) invalid. Range must be in [100..999]"),
             QStringLiteral("6 Error: User Unit 1000 (E) invalid. Range must be in [100..999]"),
             QStringLiteral("7 Error: User Unit -1 (F) invalid. Range must be in [100..999]")}));
    EXPECT_EQ(profile.userUnits.size(), 5U);
    EXPECT_EQ(profile.userUnits.at(100).name, QStringLiteral("A"));
}

TEST_F(TextReader, ParameterUsesAUserUnitThatIsOutOfRange)
{
    EXPECT_EQ(read("<unit>\nD;99\n<parameter>\n" + line({{8, "99"}})),
              one("2 Error: User Unit 99 (D) invalid. Range must be in [100..999]"));
}

TEST_F(TextReader, ParameterIsStoredAsItStands)
{
    EXPECT_THAT(read("<fid>\nMy Function;21\n<unit>\nMine;100\n<parameter>\n"
                     "NSC;21;1535;1;1;5;3.0;0.7;100;FLOAT;Pitch;deg;-90.5;1e3;250;A note\n"),
                IsEmpty());
    const ProfileParameter& read = only();
    EXPECT_EQ(read.parameterKind, ParameterKind::Arinc825);
    EXPECT_EQ(read.lcc, 4U);
    EXPECT_EQ(read.fid, 21U);
    EXPECT_EQ(read.doc, 1535U);
    EXPECT_EQ(read.dfid, 2U);
    EXPECT_EQ(read.lcl, 1U);
    EXPECT_EQ(read.pvt, 1U);
    EXPECT_EQ(read.sid, 5U);
    EXPECT_EQ(read.sppByte, 3U);
    EXPECT_EQ(read.sppBit, 0U);
    EXPECT_EQ(read.eppByte, 0U);
    EXPECT_EQ(read.eppBit, 7U);
    EXPECT_EQ(read.puc, 100U);
    EXPECT_EQ(read.typeName, QStringLiteral("FLOAT"));
    EXPECT_EQ(read.dtc, 9U);
    EXPECT_EQ(read.enumId, 0);
    EXPECT_EQ(read.nme, QStringLiteral("Pitch"));
    EXPECT_EQ(read.pun, QStringLiteral("deg"));
    EXPECT_EQ(read.unitLabel, QStringLiteral("Unit"));
    EXPECT_EQ(read.min, -90.5);
    EXPECT_EQ(read.max, 1000.0);
    EXPECT_EQ(read.upr, 250);
    EXPECT_EQ(read.notes, QStringLiteral("A note"));
    EXPECT_EQ(read.id, 4U << 26 | 21U << 19 | 1U << 17 | 1U << 16 | 2U << 9 | 5U);
    EXPECT_EQ(profile.fids.at(21).fid, 21U);
    EXPECT_EQ(profile.fids.at(21).name, QStringLiteral("My Function"));
    const auto indexed = store.parameterIndex().find(read.id);
    ASSERT_NE(indexed, store.parameterIndex().end());
    EXPECT_EQ(indexed->second.serial, read.serial);
}

TEST_F(TextReader, ParametersKeepTheOrderOfTheirLines)
{
    EXPECT_THAT(read("<parameter>\n" + line({{10, "Zulu"}, {6, "0.0"}}) + line({{1, "8"}}) +
                     line({{10, "Alpha"}, {6, "1.0"}, {7, "1.7"}})),
                IsEmpty());
    QStringList names;
    for (const auto& [serial, parameter] : profile.fids.at(4).parameters) {
        names << parameter.nme;
    }
    EXPECT_EQ(names, QStringList({QStringLiteral("Zulu"), QStringLiteral("Alpha")}));
    EXPECT_EQ(profile.fids.at(4).name, QStringLiteral("Flight State"));
    EXPECT_EQ(profile.fids.at(8).name, QStringLiteral("Flight Controls"));
}

TEST_F(TextReader, AllSixChannelsPass)
{
    for (const char* name : {"EEC", "NOC", "NSC", "UDC", "TMC", "FMC"}) {
        EXPECT_THAT(readParameter({{0, name}}), IsEmpty()) << name;
    }
}

TEST_F(TextReader, UnknownChannel)
{
    for (const char* name : {"XYZ", "noc", "DMC", "RES", ""}) {
        EXPECT_EQ(
            readParameter({{0, name}}),
            QStringList(QStringLiteral("2 Error: wrong LCC identifier %1. Valid LCCs are EEC, "
                                       "NOC, NSC, UDC, TMC or FMC.")
                            .arg(QLatin1String(name))));
        EXPECT_EQ(only().lcc, 0U);
    }
}

TEST_F(TextReader, FunctionCode)
{
    EXPECT_THAT(readParameter({{1, "20"}}), IsEmpty());
    EXPECT_THAT(readParameter({{1, "127"}}), IsEmpty());
    EXPECT_EQ(readParameter({{1, "21"}}),
              one("2 Error: FID 21 not defined. Define a User FID or use a standard FID"));
    EXPECT_EQ(readParameter({{1, "128"}}),
              one("2 Error: FID 128 invalid. Range must be in [0..127]"));
    EXPECT_EQ(readParameter({{1, "-1"}}),
              one("2 Error: FID -1 invalid. Range must be in [0..127]"));
    EXPECT_THAT(read("<fid>\nOwn;21\n<parameter>\n" + line({{1, "21"}})), IsEmpty());
}

TEST_F(TextReader, ParameterSeesOnlyWhatStandsAboveIt)
{
    EXPECT_EQ(
        read("<parameter>\n" + line({{1, "21"}, {8, "100"}, {9, "State"}}) +
             "<fid>\nOwn;21\n<unit>\nMine;100\n<enum>\nState;0;Off\n"),
        QStringList(
            {QStringLiteral("2 Error: FID 21 not defined. Define a User FID or use a standard FID"),
             QStringLiteral("2 Error: Invalid DTN State"),
             QStringLiteral(
                 "2 Error: PUC 100 not defined. Define a User Unit or use a standard unit")}));
    EXPECT_EQ(profile.fids.at(21).name, QStringLiteral("Reserved"));
}

TEST_F(TextReader, DataObjectCode)
{
    EXPECT_THAT(readParameter({{0, "EEC"}, {2, "16384"}}), IsEmpty());
    EXPECT_EQ(only().id & 0xfffcU, 0U);
    EXPECT_EQ(readParameter({{0, "EEC"}, {2, "16385"}}),
              one("2 Error: DOC 16385 out of range. Range must be in [0..16384]"));
    EXPECT_EQ(readParameter({{0, "NOC"}, {2, "-1"}}),
              one("2 Error: DOC -1 out of range. Range must be in [0..16384]"));
    EXPECT_THAT(readParameter({{0, "NSC"}, {2, "65535"}}), IsEmpty());
    EXPECT_EQ(readParameter({{0, "UDC"}, {2, "65536"}}),
              one("2 Error: NID 65536 out of range. Range must be in [0..65535]"));
    EXPECT_EQ(readParameter({{0, "FMC"}, {2, "-1"}}),
              one("2 Error: NID -1 out of range. Range must be in [0..65535]"));
}

TEST_F(TextReader, BitsAndService)
{
    EXPECT_THAT(readParameter({{3, "1"}, {4, "1"}, {5, "127"}}), IsEmpty());
    EXPECT_EQ(
        readParameter({{3, "2"}, {4, "-1"}, {5, "128"}}),
        QStringList({QStringLiteral("2 Error: LCL 2 out of range. Range must be in [0..1]"),
                     QStringLiteral("2 Error: PVT -1 out of range. Range must be in [0..1]"),
                     QStringLiteral("2 Error: SID 128 out of range. Range must be in [0..127]")}));
}

TEST_F(TextReader, DataTypeNames)
{
    EXPECT_EQ(readParameter({{9, "Enum"}}), one("2 Error: Invalid DTN Enum"));
    EXPECT_EQ(only().dtc, 1U);
    EXPECT_EQ(only().enumId, -1);
    EXPECT_EQ(only().typeName, QStringLiteral("Enum"));
    EXPECT_THAT(readParameter({{9, "ENUM"}}), IsEmpty());
    EXPECT_EQ(only().enumId, 0);
    EXPECT_EQ(store.enumText(only().enumId, 0), QStringLiteral("Unknown ENUM Type"));
    EXPECT_THAT(read("<enum>\nState;0;Off\n<parameter>\n" + line({{9, "State"}})), IsEmpty());
    EXPECT_EQ(only().dtc, 1U);
    EXPECT_EQ(only().enumId, profile.enums.at(QStringLiteral("State")).enumId);
}

TEST_F(TextReader, UnitCode)
{
    EXPECT_THAT(readParameter({{8, "53"}}), IsEmpty());
    for (const char* code : {"54", "99", "100", "999"}) {
        EXPECT_EQ(readParameter({{8, code}}),
                  QStringList(QStringLiteral("2 Error: PUC %1 not defined. Define a User Unit or "
                                             "use a standard unit")
                                  .arg(QLatin1String(code))));
    }
    EXPECT_EQ(readParameter({{8, "1000"}}),
              one("2 Error: PUC 1000 out of range. Range must be in [0..999]"));
    EXPECT_EQ(readParameter({{8, "-1"}}),
              one("2 Error: PUC -1 out of range. Range must be in [0..999]"));
}

TEST_F(TextReader, TextsOf255CharactersPass)
{
    const QByteArray text(255, 'x');
    EXPECT_THAT(
        readParameter({{10, text.constData()}, {11, text.constData()}, {15, text.constData()}}),
        IsEmpty());
}

TEST_F(TextReader, TextsThatAreTooLong)
{
    const QByteArray text(256, 'x');
    EXPECT_EQ(
        readParameter({{10, text.constData()}, {11, text.constData()}, {15, text.constData()}}),
        QStringList({QStringLiteral("2 Warning: NME has more than 255 characters"),
                     QStringLiteral("2 Warning: PUN has more than 255 characters"),
                     QStringLiteral("2 Warning: NTS has more than 255 characters")}));
    EXPECT_EQ(only().nme.size(), 256);
}

TEST_F(TextReader, RangeAndPeriod)
{
    EXPECT_THAT(readParameter({{12, "1"}, {13, "1"}, {14, "0"}}), IsEmpty());
    EXPECT_EQ(readParameter({{12, "2"}, {13, "1.5"}, {14, "-1"}}),
              QStringList({QStringLiteral("2 Warning: MIN greater MAX"),
                           QStringLiteral("2 Error: UPR invalid value")}));
}

TEST_F(TextReader, MessagesComeInTheOrderOfTheChecks)
{
    const QByteArray text(256, 'x');
    const QByteArray bad =
        "X;128;-1;2;2;128;8.0;0.8;1000;Y;" + text + ';' + text + ";2;1;-1;" + text + '\n';
    const QStringList lines = read("<parameter>\n" + bad);
    QStringList kinds;
    for (const QString& line : lines) {
        kinds << line.section(QLatin1Char(' '), 2, 3);
    }
    EXPECT_EQ(
        kinds.join(QLatin1Char(',')),
        QStringLiteral("wrong LCC,FID 128,DOC -1,LCL 2,PVT 2,SID 128,Invalid DTN,Invalid SPP,"
                       "Invalid EPP,PUC 1000,NME has,PUN has,MIN greater,UPR invalid,NTS has"));
    EXPECT_EQ(store.parameterIndex().size(), 1U);
}

TEST_F(TextReader, BitsThatTwoParametersShare)
{
    EXPECT_THAT(read("<parameter>\n" + line({{9, "BCD"}, {7, "0.3"}}) +
                     line({{9, "BCD"}, {6, "0.4"}, {7, "0.7"}})),
                IsEmpty());
    EXPECT_EQ(read("<parameter>\n" + line({{9, "BCD"}, {7, "0.4"}}) +
                   line({{9, "BCD"}, {6, "0.4"}, {7, "0.7"}})),
              one("3 Warning: Bits of parameter in line 2 conflicts with parameter in line 3"));
}

TEST_F(TextReader, TwoNoDataParametersOfOneIdentifierConflict)
{
    EXPECT_EQ(read("<parameter>\n" + line({{9, "NODATA"}, {7, "0.0"}}) +
                   line({{9, "NODATA"}, {7, "0.0"}})),
              one("3 Warning: Bits of parameter in line 2 conflicts with parameter in line 3"));
}

TEST_F(TextReader, ProfilesAreNotHeldAgainstEachOther)
{
    EXPECT_THAT(readParameter({}), IsEmpty());
    EXPECT_THAT(readParameter({}), IsEmpty());
    EXPECT_EQ(store.parameterIndex().size(), 2U);
}

TEST_F(TextReader, PositionsOutOfEveryRange)
{
    EXPECT_EQ(
        readParameter({{6, "99999999999.-5"}, {7, "-3.4294967295"}, {9, "OPAQUE"}}),
        QStringList(
            {QStringLiteral("2 Error: Invalid SPP 2147483647.-5 . Must be in range [0..7]."),
             QStringLiteral("2 Error: Invalid EPP -3.2147483647 . Must be in range [0..7].")}));
    EXPECT_EQ(
        readParameter({{6, "-1.0"}, {9, "OPAQUE"}}),
        QStringList({QStringLiteral("2 Error: Invalid SPP -1.0 . Must be in range [0..7]."),
                     QStringLiteral("2 Error: Invalid SPP/EPP combination -1.0/0.7 . SPP Byte "
                                    "must be greater/equal EPP Byte")}));
    readParameter({{6, "0"}, {7, "."}, {9, "OPAQUE"}});
    EXPECT_TRUE(profile.valid) << profile.result.toStdString();
}

TEST_F(TextReader, TextsInUtf8)
{
    EXPECT_THAT(readParameter({{10, "Temp\xc3\xa9rature"},
                               {11, "\xc2\xb0"
                                    "C"}}),
                IsEmpty());
    EXPECT_EQ(only().nme, QStringLiteral("Temp\u00e9rature"));
    EXPECT_EQ(only().pun, QStringLiteral("\u00b0C"));
}

TEST_F(TextReader, BytesThatAreNoUtf8)
{
    EXPECT_THAT(readParameter({{10, "Temp\xe9rature"}}), IsEmpty());
    EXPECT_TRUE(only().nme.startsWith(QStringLiteral("Temp")));
}

TEST_F(TextReader, BinaryFileIsReadWithoutHarm)
{
    QByteArray bytes("<parameter>\n");
    for (int i = 0; i < 100000; ++i) {
        bytes += static_cast<char>(i * 7919 >> 3);
    }
    read(bytes);
    EXPECT_FALSE(profile.valid);
}

TEST_F(TextReader, EndlessLineIsCut)
{
    constexpr int length = 8 * zul::maxProfileLineLength;
    EXPECT_EQ(read("<fid>\n" + QByteArray(length, 'x') + "\nOwn;21\n"),
              one("2 Error: Syntax Error, wrong number of tokens 1"));
    EXPECT_EQ(profile.userFids.size(), 1U);
    EXPECT_THAT(read("<fid>\n" + QByteArray(length, ';') + "\nOwn;21\n"),
                ElementsAre(QStringLiteral("2 Error: Syntax Error, wrong number of tokens %1")
                                .arg(zul::maxProfileLineLength + 1)));
}

TEST_F(TextReader, LongTextDoesNotSilenceTheMessagesBehindIt)
{
    const QByteArray name(200'000, '&');
    const QStringList lines = readParameter({{9, name.constData()}, {14, "-1"}});
    ASSERT_EQ(lines.size(), 2);
    EXPECT_LT(lines.at(0).size(), 10'000);
    EXPECT_EQ(lines.at(1), QStringLiteral("2 Error: UPR invalid value"));
}

TEST_F(TextReader, LinesAcrossTheBorderOfABlock)
{
    constexpr int block = 64 * 1024;
    for (int before = block - 4; before <= block + 1; ++before) {
        const QByteArray comment = '#' + QByteArray(before - 2, 'x') + '\n';
        EXPECT_EQ(read(comment + "<fid>\r\nA\r\n\xc3\xa9;21\n"),
                  one("3 Error: Syntax Error, wrong number of tokens 1"));
        EXPECT_EQ(profile.userFids.at(21).name, QStringLiteral("\u00e9"));
    }
}

TEST_F(TextReader, MarkOfByteOrderIsNoText)
{
    EXPECT_THAT(read("\xef\xbb\xbf<profile>\nName;1;2\n"), IsEmpty());
    EXPECT_EQ(profile.id, 1U);
}

TEST_F(TextReader, NidBeyondItsRangeGivesSevenBits)
{
    readParameter({{0, "NSC"}, {2, "65536"}});
    EXPECT_EQ(only().dfid, 0U);
}

TEST_F(TextReader, HeaderIsBounded)
{
    const QByteArray text = QByteArray(zul::maxProfileLineLength, 'x') + '\n';
    read("<header>\n" + text.repeated(20));
    EXPECT_LE(profile.header.size(), 18 * zul::maxProfileLineLength);
}

TEST_F(TextReader, LastLineNeedsNoLineFeed)
{
    EXPECT_THAT(read("<profile>\nName;1;2"), IsEmpty());
    EXPECT_EQ(profile.id, 1U);
}

} // namespace

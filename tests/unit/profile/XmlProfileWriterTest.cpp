#include "profile/XmlProfileWriter.h"

#include "core/SettingsStore.h"
#include "profile/ProfileStore.h"
#include "profile/XmlProfileReader.h"
#include "tests/support/ConsoleCapture.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/TestHome.h"
#include "tests/unit/profile/GoldenFile.h"

#include <QDir>
#include <QDomDocument>
#include <QLocale>

#include <gtest/gtest.h>
#include <utility>

namespace {

using namespace zul;

const QString fileName = QStringLiteral("file.xml");

void add(ArincProfile& profile, const QString& group, const ProfileParameter& parameter)
{
    ProfileFidGroup& made = profile.fids[parameter.fid];
    made.fid = parameter.fid;
    made.name = group;
    made.parameters[parameter.serial] = parameter;
}

void addEnum(ArincProfile& profile, const QString& name,
             const std::vector<std::pair<int, QString>>& values)
{
    ProfileEnum& made = profile.enums[name];
    made.name = name;
    for (const auto& [value, label] : values) {
        made.values[value].value = value;
        made.values[value].label = label;
    }
}

// A parameter with no field at its default.
ProfileParameter fullParameter()
{
    ProfileParameter parameter;
    parameter.parameterKind = ParameterKind::Arinc825;
    parameter.lcc = 0;
    parameter.fid = 1;
    parameter.doc = 100;
    parameter.dfid = 6;
    parameter.sid = 5;
    parameter.lcl = 1;
    parameter.pvt = 1;
    parameter.sppByte = 3;
    parameter.sppBit = 0;
    parameter.eppByte = 0;
    parameter.eppBit = 7;
    parameter.puc = 100;
    parameter.unitLabel = QStringLiteral("furlong");
    parameter.typeName = QStringLiteral("LONG");
    parameter.dtc = 7;
    parameter.nme = QStringLiteral("Speed");
    parameter.pun = QStringLiteral("other");
    parameter.min = -1.5;
    parameter.max = 2.25;
    parameter.lsb = 0.5;
    parameter.upr = 40;
    parameter.notes = QStringLiteral("note");
    parameter.rci = 3;
    parameter.lat = 0.125;
    parameter.endian = 0;
    parameter.color = QStringLiteral("#000000");
    parameter.showSamples = true;
    parameter.autoScale = true;
    parameter.yMin = 1.0;
    parameter.yMax = 2.0;
    parameter.scaleOffset = 3.0;
    parameter.scaleFactor = 4.0;
    return parameter;
}

class XmlProfileWriter : public testing::Test
{
protected:
    QByteArray written(const ArincProfile& profile)
    {
        EXPECT_TRUE(writeXmlProfile(home.file(fileName), profile));
        return home.read(fileName);
    }

    ArincProfile writtenAndRead(const ArincProfile& profile)
    {
        written(profile);
        ArincProfile result;
        const test::ConsoleCapture quiet;
        EXPECT_TRUE(readXmlProfile(home.file(fileName), store, result));
        return result;
    }

    ProfileParameter writtenAndRead(const ProfileParameter& parameter)
    {
        ArincProfile profile;
        add(profile, QStringLiteral("group"), parameter);
        return writtenAndRead(profile).fids.at(parameter.fid).parameters.begin()->second;
    }

    test::TestHome home;
    ProfileStore store;
};

TEST_F(XmlProfileWriter, GoldenFile)
{
    ArincProfile profile;
    profile.header = QStringLiteral("text form only\n");
    profile.name = QStringLiteral("Fl") + QChar(0xFC) + QStringLiteral("gel \"A\" <1> & 2");
    profile.id = 12;
    profile.subId = 34;
    profile.comment = QStringLiteral("first\nsecond");
    for (const auto& [code, name] : {std::pair{1U, "Mine"}, std::pair{0xffffffffU, "Odd"}}) {
        profile.userFids[code].code = code;
        profile.userFids[code].name = QLatin1String(name);
        profile.userFids[code].comment = QStringLiteral("not written");
    }
    profile.userUnits[100].code = 100;
    profile.userUnits[100].name = QStringLiteral("furlong");
    profile.userUnits[100].comment = QStringLiteral("not written");
    profile.userUnits[100].acronym = QStringLiteral("not written");
    addEnum(profile, QStringLiteral("Mode"),
            {{1, QStringLiteral("on")}, {-2, QStringLiteral("off")}});
    addEnum(profile, QStringLiteral("None"), {});

    ProfileParameter speed = fullParameter();
    speed.pvt = 0;
    speed.typeName = QStringLiteral("FLOAT");
    speed.max = 2.0;
    add(profile, QStringLiteral("Mine"), speed);

    ProfileParameter service;
    service.fid = 1;
    service.lcc = 4;
    service.doc = 9;
    service.sid = 5;
    service.dfid = 6;
    service.pvt = 1;
    service.sppByte = 0xffffffff;
    service.sppBit = 5;
    service.eppByte = 9;
    service.eppBit = 8;
    service.puc = 7;
    service.unitLabel.clear();
    service.typeName = QStringLiteral("Mode");
    service.nme = QStringLiteral("Service");
    service.max = 1.0 / 3.0;
    service.upr = -7;
    service.notes.clear();
    add(profile, QStringLiteral("Mine"), service);

    ProfileParameter data;
    data.fid = 21;
    data.lcc = 2;
    data.doc = 16384;
    data.typeName = QStringLiteral("NODATA");
    add(profile, QStringLiteral("Wings"), data);

    ProfileParameter odd;
    odd.fid = 21;
    odd.lcc = 3;
    odd.sid = 1;
    odd.dfid = 2;
    add(profile, QStringLiteral("Wings"), odd);

    test::expectGolden(QStringLiteral("parameters.xml"), written(profile));
}

TEST_F(XmlProfileWriter, EmptyProfileHasAllLists)
{
    EXPECT_EQ(written(ArincProfile{}),
              QByteArray("<?xml version = \"1.0\" encoding = \"UTF-8\"?>\n"
                         "<Arinc825Profile version=\"1.0\" name=\"\" id=\"0.0\" comment=\"\">\n"
                         "    <FidList/>\n    <UnitList/>\n    <EnumList/>\n    <ParameterList/>\n"
                         "</Arinc825Profile>\n"));
}

TEST_F(XmlProfileWriter, ChannelsOutsideProfilesAreXxx)
{
    for (const auto& [lcc, name] :
         {std::pair{0U, "EEC"}, std::pair{1U, "XXX"}, std::pair{2U, "NOC"}, std::pair{3U, "XXX"},
          std::pair{4U, "NSC"}, std::pair{5U, "UDC"}, std::pair{6U, "TMC"}, std::pair{7U, "FMC"},
          std::pair{8U, "XXX"}, std::pair{0xffffffffU, "XXX"}}) {
        ArincProfile profile;
        ProfileParameter parameter;
        parameter.lcc = lcc;
        add(profile, QString(), parameter);
        EXPECT_TRUE(written(profile).contains("lcc=\"" + QByteArray(name) + '"')) << lcc;
    }
}

TEST_F(XmlProfileWriter, NumbersAreTheSameWhateverTheLocale)
{
    ArincProfile profile;
    ProfileParameter parameter;
    parameter.min = -1234567.25;
    add(profile, QString(), parameter);
    QLocale::setDefault(QLocale(QLocale::German));
    const QByteArray text = written(profile);
    QLocale::setDefault(QLocale::c());
    EXPECT_TRUE(text.contains("min=\"-1234567.250000000000\""));
}

TEST_F(XmlProfileWriter, CharactersThatXmlLacksAreDropped)
{
    ArincProfile profile;
    profile.name = QStringLiteral("a") + QChar(1) + QChar(0xD800) + QChar(0xFFFF) +
                   QString::fromUtf8("b\t\xf0\x9f\x9a\x80");
    EXPECT_EQ(writtenAndRead(profile).name, QString::fromUtf8("ab\t\xf0\x9f\x9a\x80"));
}

// What the stream writer escapes, another parser must take.
TEST_F(XmlProfileWriter, DomReadsTheFile)
{
    ArincProfile profile;
    profile.comment = QStringLiteral("a\n\"b\" <c> & 'd'");
    QDomDocument document;
    ASSERT_TRUE(document.setContent(written(profile)));
    EXPECT_EQ(document.documentElement().attribute(QStringLiteral("comment")), profile.comment);
}

// What is written and read again.

TEST_F(XmlProfileWriter, ProfileSurvives)
{
    ArincProfile profile;
    profile.header = QStringLiteral("header\n");
    profile.name = QStringLiteral("name");
    profile.comment = QStringLiteral("comment");
    profile.id = 12;
    profile.subId = 34;
    profile.userFids[1].code = 1;
    profile.userFids[1].name = QStringLiteral("fid");
    profile.userFids[1].comment = QStringLiteral("fid comment");
    profile.userUnits[100].code = 100;
    profile.userUnits[100].name = QStringLiteral("unit");
    profile.userUnits[100].comment = QStringLiteral("unit comment");
    profile.userUnits[100].acronym = QStringLiteral("unit acronym");
    addEnum(profile, QStringLiteral("Mode"), {{-2, QStringLiteral("off")}});
    ProfileParameter parameter = fullParameter();
    parameter.typeName = QStringLiteral("Mode");
    add(profile, QStringLiteral("another name"), parameter);

    const ArincProfile read = writtenAndRead(profile);
    EXPECT_TRUE(read.valid) << read.result.toStdString();
    EXPECT_EQ(read.name, profile.name);
    EXPECT_EQ(read.comment, profile.comment);
    EXPECT_EQ(read.id, 12U);
    EXPECT_EQ(read.subId, 34U);
    EXPECT_EQ(read.userFids.at(1).name, QStringLiteral("fid"));
    EXPECT_EQ(read.userUnits.at(100).name, QStringLiteral("unit"));
    EXPECT_EQ(read.enums.at(QStringLiteral("Mode")).values.at(-2).label, QStringLiteral("off"));
    EXPECT_EQ(read.fids.at(1).parameters.begin()->second.enumId,
              read.enums.at(QStringLiteral("Mode")).enumId);
    // Not written, or made anew.
    EXPECT_EQ(read.header, QString());
    EXPECT_EQ(read.userFids.at(1).comment, QString());
    EXPECT_EQ(read.userUnits.at(100).comment, QString());
    EXPECT_EQ(read.userUnits.at(100).acronym, QString());
    EXPECT_EQ(read.fids.at(1).name, QStringLiteral("fid"));
}

TEST_F(XmlProfileWriter, ParameterOfADataChannelSurvives)
{
    const ProfileParameter wrote = fullParameter();
    const ProfileParameter read = writtenAndRead(wrote);
    EXPECT_EQ(read.parameterKind, wrote.parameterKind);
    EXPECT_EQ(read.lcc, wrote.lcc);
    EXPECT_EQ(read.fid, wrote.fid);
    EXPECT_EQ(read.doc, wrote.doc);
    EXPECT_EQ(read.lcl, wrote.lcl);
    EXPECT_EQ(read.pvt, wrote.pvt);
    EXPECT_EQ(read.sppByte, wrote.sppByte);
    EXPECT_EQ(read.sppBit, wrote.sppBit);
    EXPECT_EQ(read.eppByte, wrote.eppByte);
    EXPECT_EQ(read.eppBit, wrote.eppBit);
    EXPECT_EQ(read.unitLabel, wrote.unitLabel);
    EXPECT_EQ(read.typeName, wrote.typeName);
    EXPECT_EQ(read.dtc, wrote.dtc);
    EXPECT_EQ(read.nme, wrote.nme);
    EXPECT_DOUBLE_EQ(read.min, wrote.min);
    EXPECT_DOUBLE_EQ(read.max, wrote.max);
    EXPECT_EQ(read.notes, wrote.notes);
    EXPECT_EQ(read.rci, wrote.rci);
    EXPECT_DOUBLE_EQ(read.lat, wrote.lat);
    EXPECT_EQ(read.id, 1U << 19 | 1U << 17 | 1U << 16 | 100U << 2);
}

TEST_F(XmlProfileWriter, SidAndDfidOfADataChannelAreNotWritten)
{
    const ProfileParameter read = writtenAndRead(fullParameter());
    EXPECT_EQ(read.sid, 0U);
    EXPECT_EQ(read.dfid, 0U);
}

TEST_F(XmlProfileWriter, PlotOptionsAreNotWritten)
{
    const ProfileParameter read = writtenAndRead(fullParameter());
    const ProfileParameter fresh;
    EXPECT_DOUBLE_EQ(read.lsb, fresh.lsb);
    EXPECT_EQ(read.endian, fresh.endian);
    EXPECT_EQ(read.color, fresh.color);
    EXPECT_EQ(read.showSamples, fresh.showSamples);
    EXPECT_EQ(read.autoScale, fresh.autoScale);
    EXPECT_DOUBLE_EQ(read.yMin, fresh.yMin);
    EXPECT_DOUBLE_EQ(read.yMax, fresh.yMax);
    EXPECT_DOUBLE_EQ(read.scaleOffset, fresh.scaleOffset);
    EXPECT_DOUBLE_EQ(read.scaleFactor, fresh.scaleFactor);
}

TEST_F(XmlProfileWriter, SidAndDfidOfAServiceChannelSurviveItsNidDoesNot)
{
    ProfileParameter wrote = fullParameter();
    wrote.lcc = 4;
    const ProfileParameter read = writtenAndRead(wrote);
    EXPECT_EQ(read.lcc, 4U);
    EXPECT_EQ(read.sid, 5U);
    EXPECT_EQ(read.dfid, 6U);
    EXPECT_EQ(read.doc, 0U);
}

// Deliberate: the two sides do not agree on the update period, and the unit code is not written.
TEST_F(XmlProfileWriter, UpdatePeriodAndUnitCodeAreLostLatencyAndRciSurvive)
{
    const ProfileParameter read = writtenAndRead(fullParameter());
    EXPECT_EQ(read.upr, 0);
    EXPECT_EQ(read.puc, 0U);
    EXPECT_DOUBLE_EQ(read.lat, 0.125);
    EXPECT_EQ(read.rci, 3U);
}

TEST_F(XmlProfileWriter, UnitLabelComesBackAsUnitNameToo)
{
    const ProfileParameter read = writtenAndRead(fullParameter());
    EXPECT_EQ(read.unitLabel, QStringLiteral("furlong"));
    EXPECT_EQ(read.pun, QStringLiteral("furlong"));
}

TEST_F(XmlProfileWriter, NumbersOutOfRangeSurvive)
{
    ProfileParameter wrote = fullParameter();
    wrote.doc = 0xffffffff;
    wrote.lcl = 7;
    wrote.sppByte = 0xfffffffe;
    wrote.rci = 99;
    const ProfileParameter read = writtenAndRead(wrote);
    EXPECT_EQ(read.doc, 0xffffffffU);
    EXPECT_EQ(read.lcl, 7U);
    EXPECT_EQ(read.sppByte, 0xfffffffeU);
    EXPECT_EQ(read.rci, 99U);
}

TEST_F(XmlProfileWriter, OrderOfParametersSurvives)
{
    ArincProfile profile;
    QStringList names;
    for (int i = 0; i < 20; ++i) {
        ProfileParameter parameter = fullParameter();
        parameter.nme = QString::number(i * 7 % 20);
        names << parameter.nme;
        add(profile, QString(), parameter);
    }
    const ArincProfile readProfile = writtenAndRead(profile);
    QStringList readNames;
    for (const auto& [serial, read] : readProfile.fids.at(1).parameters) {
        readNames << read.nme;
    }
    EXPECT_EQ(readNames, names);
}

TEST_F(XmlProfileWriter, WrittenAgainIsTheSame)
{
    ArincProfile profile;
    ProfileParameter parameter = fullParameter();
    parameter.upr = 0;
    parameter.pun = parameter.unitLabel;
    profile.userFids[1].code = 1;
    profile.userFids[1].name = QStringLiteral("fid");
    add(profile, QStringLiteral("fid"), parameter);
    const QByteArray first = written(profile);
    EXPECT_EQ(written(writtenAndRead(profile)), first);
}

// Failures.

TEST_F(XmlProfileWriter, PathThatCannotBeWritten)
{
    const QString directory = QStringLiteral("directory");
    ASSERT_TRUE(QDir(home.path()).mkdir(directory));
    EXPECT_FALSE(writeXmlProfile(home.file(directory), ArincProfile{}));
    EXPECT_FALSE(writeXmlProfile(home.file(QStringLiteral("no/where")), ArincProfile{}));
    EXPECT_FALSE(writeXmlProfile(QString(), ArincProfile{}));
    EXPECT_EQ(QDir(home.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList(directory));
}

TEST_F(XmlProfileWriter, FailureInTheMiddleLeavesTheOldFile)
{
    home.write(fileName, "old");
    ArincProfile profile;
    profile.comment = QString(100000, QLatin1Char('x'));
    {
        const test::FileSizeLimit limit(20000);
        EXPECT_FALSE(writeXmlProfile(home.file(fileName), profile));
    }
    EXPECT_EQ(home.read(fileName), QByteArray("old"));
    EXPECT_EQ(QDir(home.path()).entryList(QDir::Files), QStringList(fileName));
}

class XmlProfileWriterStore : public XmlProfileWriter
{
protected:
    ~XmlProfileWriterStore() override { SettingsStore::instance().reset(); }

    static void setVersion(int version)
    {
        SettingsStore::instance().setInteger(QStringLiteral("ArincProfileVersion"), version);
    }
};

TEST_F(XmlProfileWriterStore, VersionChoosesTheForm)
{
    setVersion(1);
    EXPECT_TRUE(store.writeProfile(home.file(fileName), ArincProfile{}));
    EXPECT_TRUE(home.read(fileName).startsWith("<?xml"));
    setVersion(0);
    EXPECT_TRUE(store.writeProfile(home.file(fileName), ArincProfile{}));
    EXPECT_TRUE(home.read(fileName).startsWith("####"));
}

// Deliberate.
TEST_F(XmlProfileWriterStore, FailureToSaveXmlIsNotTold)
{
    setVersion(1);
    EXPECT_TRUE(store.writeProfile(home.file(QStringLiteral("no/where")), ArincProfile{}));
}

TEST_F(XmlProfileWriterStore, SavingTellsTheTruthInBothForms)
{
    for (const int version : {0, 1}) {
        setVersion(version);
        EXPECT_FALSE(store.saveProfile(home.file(QStringLiteral("no/where")), ArincProfile{}));
        EXPECT_TRUE(store.saveProfile(home.file(fileName), ArincProfile{}));
        EXPECT_EQ(home.read(fileName).startsWith("<?xml"), version == 1);
    }
}

} // namespace

#include "profile/ZorbProfileReader.h"

#include "core/SettingsStore.h"
#include "profile/ProfileStore.h"
#include "tests/support/ConsoleCapture.h"
#include "tests/support/TestHome.h"
#include "tests/support/WorkingDirectory.h"
#include "tests/unit/profile/HostileFiles.h"

#include <gtest/gtest.h>

namespace {

using namespace zul;

const QString fileName = QStringLiteral("file.zorb");

class ZorbProfileReader : public testing::Test
{
protected:
    ~ZorbProfileReader() override { SettingsStore::instance().reset(); }

    bool read(const QByteArray& content)
    {
        home.write(fileName, content);
        profile = ZorbProfile{};
        return readZorbProfile(home.file(fileName), store, profile);
    }

    ProfileParameter readParameter(const QByteArray& attributes)
    {
        EXPECT_TRUE(
            read("<ZORBprofile><Chapter><Parameter " + attributes + "/></Chapter></ZORBprofile>"));
        return profile.fids.at(0).parameters.begin()->second;
    }

    // Scans a directory with the files that were written.
    void loadAll()
    {
        SettingsStore::instance().setString(QStringLiteral("CanAsProfileSuffix"),
                                            QStringLiteral(".zorb"));
        SettingsStore::instance().setString(QStringLiteral("Arinc825ProfileSuffix"),
                                            QStringLiteral(".pro"));
        const test::WorkingDirectory directory(home.path());
        store.loadAll();
    }

    test::TestHome home;
    ProfileStore store;
    ZorbProfile profile;
};

TEST_F(ZorbProfileReader, EveryField)
{
    const std::uint32_t before = ProfileParameter().serial;
    const ProfileParameter read = readParameter(
        "name=\"n\" unit=\"u\" id=\"1999\" startByte=\"4\" stopByte=\"5\" startBit=\"6\" "
        "stopBit=\"7\" enumId=\"12\" canasType=\"AS_SHORT\"");
    EXPECT_EQ(read.parameterKind, ParameterKind::CanAerospace);
    EXPECT_EQ(read.nme, QStringLiteral("n"));
    EXPECT_EQ(read.pun, QStringLiteral("u"));
    EXPECT_EQ(read.id, 1999U);
    EXPECT_EQ(read.sppByte, 4U);
    EXPECT_EQ(read.eppByte, 5U);
    EXPECT_EQ(read.sppBit, 6U);
    EXPECT_EQ(read.eppBit, 7U);
    EXPECT_EQ(read.typeName, QStringLiteral("12"));
    EXPECT_EQ(read.dtc, 6U);
    EXPECT_GT(read.serial, before);
    EXPECT_EQ(profile.fids.at(0).parameters.begin()->first, read.serial);
}

TEST_F(ZorbProfileReader, OtherFieldsKeepTheirDefaults)
{
    const ProfileParameter read = readParameter("lcc=\"NSC\" min=\"5\" max=\"6\" pua=\"x\"");
    const ProfileParameter fresh;
    EXPECT_EQ(read.lcc, fresh.lcc);
    EXPECT_EQ(read.fid, fresh.fid);
    EXPECT_EQ(read.enumId, fresh.enumId);
    EXPECT_EQ(read.unitLabel, fresh.unitLabel);
    EXPECT_EQ(read.notes, fresh.notes);
    EXPECT_DOUBLE_EQ(read.min, fresh.min);
    EXPECT_DOUBLE_EQ(read.max, fresh.max);
    EXPECT_DOUBLE_EQ(read.scaleFactor, fresh.scaleFactor);
    EXPECT_EQ(read.color, fresh.color);
    EXPECT_EQ(read.endian, fresh.endian);
}

TEST_F(ZorbProfileReader, AbsentAttributesAreEmptyOrZero)
{
    const ProfileParameter read = readParameter("");
    EXPECT_EQ(read.nme, QString());
    EXPECT_EQ(read.pun, QString());
    EXPECT_EQ(read.typeName, QString());
    EXPECT_EQ(read.id, 0U);
    EXPECT_EQ(read.dtc, 0U);
}

TEST_F(ZorbProfileReader, NumbersAreNotChecked)
{
    const ProfileParameter read = readParameter("id=\"-1\" startByte=\"99\" stopBit=\"x\"");
    EXPECT_EQ(read.id, 0xffffffffU);
    EXPECT_EQ(read.sppByte, 99U);
    EXPECT_EQ(read.eppBit, 0U);
    EXPECT_TRUE(profile.valid);
    EXPECT_EQ(profile.result, QString());
}

// Deliberate: the lookup enters it.
TEST_F(ZorbProfileReader, UnknownTypeIsWithoutDataAndStaysInTheTable)
{
    const QString name = QStringLiteral("AS_UNHEARD_OF");
    ASSERT_EQ(store.canAerospaceTypeNames().count(name), 0U);
    EXPECT_EQ(readParameter("canasType=\"AS_UNHEARD_OF\"").dtc, 0U);
    ASSERT_EQ(store.canAerospaceTypeNames().count(name), 1U);
    EXPECT_EQ(store.canAerospaceTypeNames().at(name), 0U);
    EXPECT_EQ(store.canAerospaceTypeCodes().at(0), QStringLiteral("AS_NODATA"));
}

TEST_F(ZorbProfileReader, EveryTypeOfTheTable)
{
    for (const auto& [code, name] : store.canAerospaceTypeCodes()) {
        EXPECT_EQ(readParameter("canasType=\"" + name.toLatin1() + '"').dtc, code);
    }
}

TEST_F(ZorbProfileReader, ChaptersAreNumberedFromZero)
{
    ASSERT_TRUE(read("<ZORBprofile name=\"Z\"><Chapter name=\"a\"><Parameter name=\"p\"/>"
                     "<Parameter name=\"q\"/></Chapter><Chapter name=\"b\"/></ZORBprofile>"));
    EXPECT_EQ(profile.name, QStringLiteral("Z"));
    EXPECT_EQ(profile.fileName, home.file(fileName));
    ASSERT_EQ(profile.fids.size(), 2U);
    EXPECT_EQ(profile.fids.at(0).name, QStringLiteral("a"));
    EXPECT_EQ(profile.fids.at(1).name, QStringLiteral("b"));
    EXPECT_EQ(profile.fids.at(1).fid, 1U);
    QStringList names;
    for (const auto& [serial, parameter] : profile.fids.at(0).parameters) {
        names << parameter.nme;
    }
    EXPECT_EQ(names, QStringList({QStringLiteral("p"), QStringLiteral("q")}));
}

TEST_F(ZorbProfileReader, EmptyChapterUsesUpANumber)
{
    ASSERT_TRUE(read("<ZORBprofile><Chapter name=\"a\"/><Chapter name=\"b\"><Parameter/></Chapter>"
                     "</ZORBprofile>"));
    EXPECT_TRUE(profile.fids.at(0).parameters.empty());
    EXPECT_EQ(profile.fids.at(1).parameters.size(), 1U);
}

TEST_F(ZorbProfileReader, OtherElementsAreSkippedAndUseUpNoNumber)
{
    ASSERT_TRUE(read("<ZORBprofile>text<Other><Chapter/></Other><Parameter/><!-- c -->"
                     "<Chapter name=\"a\">text<Other><Parameter/></Other><Chapter/>"
                     "<Parameter name=\"p\"><Parameter/></Parameter></Chapter></ZORBprofile>"));
    ASSERT_EQ(profile.fids.size(), 1U);
    EXPECT_EQ(profile.fids.at(0).name, QStringLiteral("a"));
    EXPECT_EQ(profile.fids.at(0).parameters.size(), 1U);
}

TEST_F(ZorbProfileReader, RootWithoutChildren)
{
    ASSERT_TRUE(read("<ZORBprofile name=\"Z\"/>"));
    EXPECT_EQ(profile.name, QStringLiteral("Z"));
    EXPECT_TRUE(profile.fids.empty());
}

TEST_F(ZorbProfileReader, RootWithCapitalPIsRefused)
{
    EXPECT_FALSE(read("<ZORBProfile/>"));
}

// Deliberate: it passes the gate of the store and is refused here.
TEST_F(ZorbProfileReader, RootWithCapitalPIsNotLoadedByTheStore)
{
    home.write(fileName, "<ZORBProfile name=\"Z\"><Chapter/></ZORBProfile>");
    EXPECT_FALSE(store.loadFile(home.file(fileName)));
    home.write(fileName, "<ZORBprofile name=\"Z\"><Chapter/></ZORBprofile>");
    EXPECT_FALSE(store.loadFile(home.file(fileName)));
    EXPECT_TRUE(store.zorbProfiles().empty());
}

TEST_F(ZorbProfileReader, ScanLoadsAProfileWithoutFillingTheIndex)
{
    home.write(fileName, "<ZORBprofile name=\"Z\"><Chapter><Parameter id=\"5\"/></Chapter>"
                         "</ZORBprofile>");
    loadAll();
    ASSERT_EQ(store.zorbProfiles().count(QStringLiteral("Z")), 1U);
    EXPECT_TRUE(store.profiles().empty());
    EXPECT_TRUE(store.parameterIndex().empty());
}

TEST_F(ZorbProfileReader, LaterFileOfTheSameNameReplacesTheEarlierOneWithoutAMessage)
{
    home.write(QStringLiteral("a.zorb"), "<ZORBprofile name=\"Z\"><Chapter/></ZORBprofile>");
    home.write(QStringLiteral("b.zorb"), "<ZORBprofile name=\"Z\"><Chapter/></ZORBprofile>");
    loadAll();
    EXPECT_EQ(store.zorbProfiles().size(), 1U);
    QString report;
    EXPECT_TRUE(store.checkAll(report));
    EXPECT_EQ(report, QString());
}

TEST_F(ZorbProfileReader, HostileFilesAreRefused)
{
    const test::HostileFiles hostile("ZORBprofile");
    for (const auto& [name, path] : hostile.files()) {
        const test::ConsoleCapture quiet;
        EXPECT_FALSE(readZorbProfile(path, store, profile)) << name;
    }
    EXPECT_TRUE(profile.fids.empty());
}

TEST_F(ZorbProfileReader, MillionLevelsAreSkipped)
{
    constexpr int depth = 1000000;
    const QByteArray deep = "<Parameter name=\"p\">" + QByteArray("<Parameter>").repeated(depth) +
                            QByteArray("</Parameter>").repeated(depth) + "</Parameter>";
    ASSERT_TRUE(read("<ZORBprofile><Chapter>" + deep + "</Chapter></ZORBprofile>"));
    EXPECT_EQ(profile.fids.at(0).parameters.size(), 1U);
}

} // namespace

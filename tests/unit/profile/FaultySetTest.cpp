#include "ReportLines.h"
#include "core/SettingsStore.h"
#include "profile/Arinc825Id.h"
#include "profile/Lru825Document.h"
#include "profile/Lru825Reader.h"
#include "profile/Lru825Schema.h"
#include "profile/ProfileStore.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/SettableClock.h"
#include "tests/support/WorkingDirectory.h"

#include <QFile>

#include <gtest/gtest.h>
#include <set>

namespace {

const QString faultyDirectory = QStringLiteral(ZUL_TEST_DATA "/faulty");
const QString demoDirectory = QStringLiteral(ZUL_DEMO_DIR);

// A store that loads from one directory.
class ProfileSet : public testing::Test
{
protected:
    explicit ProfileSet(const QString& path) : directory(path) {}
    ~ProfileSet() override { SettingsStore::instance().reset(); }

    void load(const char* suffix, int version)
    {
        SettingsStore& settings = SettingsStore::instance();
        settings.setString(QStringLiteral("Arinc825ProfileSuffix"), QLatin1String(suffix));
        settings.setString(QStringLiteral("CanAsProfileSuffix"), QStringLiteral(".zorb"));
        settings.setInteger(QStringLiteral("ArincProfileVersion"), version);
        store.loadAll();
        isClean = store.checkAll(report);
    }

    zul::test::WorkingDirectory directory;
    zul::test::EnvironmentVariable noHome{"ZUL_HOME", nullptr};
    zul::test::SettableClock clock{0.0};
    ProfileStore store;
    QString report;
    bool isClean = false;
};

class FaultySet : public ProfileSet
{
protected:
    FaultySet() : ProfileSet(faultyDirectory) {}

    // The messages of one file against those that stand beside it.
    void expectMessages(const QString& profileFile, const QString& expectedFile)
    {
        QFile file(faultyDirectory + QLatin1Char('/') + expectedFile);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text));
        const QStringList expected =
            QString::fromUtf8(file.readAll()).trimmed().split(QLatin1Char('\n'));
        for (const auto& [name, profile] : store.profiles()) {
            if (profile.fileName == profileFile) {
                EXPECT_EQ(zul::test::reportLines(profile.result), expected);
                return;
            }
        }
        FAIL() << "not loaded";
    }
};

TEST_F(FaultySet, EveryMessageOfTheTextReaderOnce)
{
    load(".pro", 0);
    expectMessages(QStringLiteral("every-message.pro"), QStringLiteral("every-message.pro.txt"));
}

TEST_F(FaultySet, EveryMessageOfTheXmlReaderOnceButThoseOfPositions)
{
    load(".xml", 1);
    expectMessages(QStringLiteral("every-message.xml"), QStringLiteral("every-message.xml.txt"));
}

TEST_F(FaultySet, EveryMessageOfTheCrossCheckOnce)
{
    load(".pro", 0);
    EXPECT_FALSE(isClean);
    for (const char* message :
         {"Profile same-name.pro: <b><font color=#ff0000>Error   :</b>  uses the same profile name "
          "as "
          "same-id-1.pro<br>",
          "Profile same-id-2.pro: <b><font color=#ff0000>Error   :</b>  uses the same id/sub-id "
          "name "
          "as same-id-1.pro<br>",
          "Profile same-id-2.pro: <b><font color=#ff0000>Error   :</b>  FID 30 already used by "
          "same-id-1.pro<br>",
          "Profile same-id-2.pro: <b><font color=#ff0000>Error   :</b>  User Unit 100 already used "
          "by "
          "same-id-1.pro<br>",
          "Profile same-id-2.pro: <b><font color=#ff0000>Error   :</b>  LCC/FID/DOC 2/4/1000 "
          "already "
          "used by same-id-1.pro<br>"}) {
        EXPECT_EQ(report.count(QString::fromLatin1(message)), 1) << message;
    }
}

class DemoSet : public ProfileSet
{
protected:
    DemoSet() : ProfileSet(demoDirectory) {}

    // Channels and data types that the parameters have.
    void collect()
    {
        for (const auto& [name, profile] : store.profiles()) {
            for (const auto& [fid, group] : profile.fids) {
                for (const auto& [serial, parameter] : group.parameters) {
                    channels.insert(parameter.lcc);
                    types.insert(parameter.dtc);
                    hasEnumeration = hasEnumeration || parameter.enumId > 0;
                    hasUserUnit = hasUserUnit || parameter.puc >= 100;
                    hasUserFid = hasUserFid || profile.userFids.count(fid) != 0;
                }
            }
        }
    }

    std::set<std::uint32_t> channels;
    std::set<std::uint32_t> types;
    bool hasEnumeration = false;
    bool hasUserUnit = false;
    bool hasUserFid = false;
};

TEST_F(DemoSet, TextProfileIsClean)
{
    load(".pro", 0);
    EXPECT_TRUE(isClean) << report.toStdString();
    EXPECT_EQ(store.profiles().count(QStringLiteral("Flight Demonstration")), 1U);
    collect();
    EXPECT_EQ(channels, (std::set<std::uint32_t>{0, 2, 4, 5, 6, 7}));
    EXPECT_TRUE(hasEnumeration && hasUserUnit && hasUserFid);
}

TEST_F(DemoSet, XmlProfileIsCleanAndHasEveryDataType)
{
    load(".xml", 1);
    EXPECT_TRUE(isClean) << report.toStdString();
    EXPECT_EQ(store.profiles().size(), 1U) << "the LRU document lies apart";
    collect();
    EXPECT_EQ(channels, (std::set<std::uint32_t>{0, 2, 4, 5, 6, 7}));
    EXPECT_EQ(types.size(), store.dataTypeNames().size());
    EXPECT_TRUE(hasEnumeration && hasUserUnit && hasUserFid);
}

TEST_F(DemoSet, XmlFormHasTheIdentifiersOfTheTextForm)
{
    load(".pro", 0);
    std::set<std::uint32_t> text;
    for (const auto& [id, parameter] : store.parameterIndex()) {
        text.insert(id);
    }
    load(".xml", 1);
    for (const std::uint32_t id : text) {
        EXPECT_EQ(store.parameterIndex().count(id) > 0, true) << id;
        EXPECT_EQ(zul::arinc825::parameterKey(id), id) << "frames find it";
    }
}

TEST_F(DemoSet, LruDocumentIsRead)
{
    Lru825Schema schema;
    Lru825Document document;
    ASSERT_TRUE(zul::readLru825(QStringLiteral("lru/air-data-unit.xml"), schema, document));
    EXPECT_TRUE(document.valid);
    EXPECT_EQ(document.interfaces.size(), 2U);
    EXPECT_EQ(document.transmitMessages.size(), 2U);
    EXPECT_EQ(document.receiveMessages.size(), 1U);
    EXPECT_EQ(document.parameters.size(), 4U);
}

TEST_F(DemoSet, ZorbProfileHasEveryDataType)
{
    load(".pro", 0);
    ASSERT_EQ(store.zorbProfiles().size(), 1U);
    std::set<std::uint32_t> codes;
    for (const auto& [number, chapter] : store.zorbProfiles().begin()->second.fids) {
        for (const auto& [serial, parameter] : chapter.parameters) {
            codes.insert(parameter.dtc);
        }
    }
    EXPECT_EQ(codes.size(), store.canAerospaceTypeCodes().size());
    EXPECT_EQ(store.canAerospaceTypeNames().size(), store.canAerospaceTypeCodes().size())
        << "no unknown name";
}

} // namespace

#include "profile/ProfileStore.h"

#include "ReportLines.h"
#include "core/SettingsStore.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/SettableClock.h"
#include "tests/support/TestHome.h"
#include "tests/support/WorkingDirectory.h"

#include <QDir>
#include <QFile>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zul::test::EnvironmentVariable;
using zul::test::TestHome;
using zul::test::WorkingDirectory;

const QByteArray errorPrefix = "<b><font color=#ff0000>Error   :</b> ";

class Store : public testing::Test
{
protected:
    Store()
    {
        setting("Arinc825ProfileSuffix", ".pro");
        setting("CanAsProfileSuffix", ".zorb");
    }
    ~Store() override { SettingsStore::instance().reset(); }

    static void setting(const char* key, const char* value)
    {
        SettingsStore::instance().setString(QLatin1String(key), QLatin1String(value));
    }

    // Names of the loaded profiles.
    QStringList names() const
    {
        QStringList result;
        for (const auto& [name, profile] : store.profiles()) {
            result << name;
        }
        return result;
    }

    QByteArray check()
    {
        QString report = QStringLiteral("replaced");
        isClean = store.checkAll(report);
        return report.toUtf8();
    }

    TestHome home;
    WorkingDirectory directory{home.path()};
    EnvironmentVariable noHome{"ZUL_HOME", nullptr};
    zul::test::SettableClock clock{0.0};
    ProfileStore store;
    bool isClean = false;
};

QString latin1(const char* text)
{
    return QString::fromLatin1(text);
}

QByteArray text(const char* name, const char* ids = "1;0", const QByteArray& rest = {})
{
    return QByteArray("<profile>\n") + name + ';' + ids + '\n' + rest;
}

QByteArray parameter(const char* fidDoc)
{
    return QByteArray("<parameter>\nNOC;") + fidDoc + ";0;0;0;0.0;0.7;0;UCHAR;N;U;0;255;10;T\n";
}

TEST_F(Store, TablesStandFromTheStart)
{
    EXPECT_EQ(store.lccNames(), (ProfileStore::NameTable{{latin1("EEC"), 0},
                                                         {latin1("NOC"), 2},
                                                         {latin1("NSC"), 4},
                                                         {latin1("UDC"), 5},
                                                         {latin1("TMC"), 6},
                                                         {latin1("FMC"), 7}}));
    EXPECT_EQ(store.lccCodes(), (zul::CodeTable{{0, latin1("EEC")},
                                                {2, latin1("NOC")},
                                                {4, latin1("NSC")},
                                                {5, latin1("UDC")},
                                                {6, latin1("TMC")},
                                                {7, latin1("FMC")}}));
    EXPECT_EQ(store.dataTypeNames().size(), 16U);
    EXPECT_EQ(store.dataTypeNames().at(latin1("BCD")), 15U);
    EXPECT_EQ(store.canAerospaceTypeNames().size(), 30U);
    EXPECT_EQ(store.canAerospaceTypeNames().at(latin1("AS_ACHAR_3")), 29U);
    EXPECT_EQ(store.canAerospaceTypeCodes().at(12), latin1("AS_SHORT_2"));
    EXPECT_EQ(store.unitTable().at(31), latin1("N"));
    EXPECT_EQ(store.fidTable825Part2().size(), 128U);
    EXPECT_EQ(store.fidTable825Part3().size(), 128U);
    EXPECT_TRUE(store.profiles().empty());
    EXPECT_EQ(store.nextEnumId(), 1);
    EXPECT_EQ(store.nextEnumId(), 2);
}

TEST_F(Store, FunctionCodesFollowTheVersion)
{
    EXPECT_EQ(store.currentFidTable().at(21), latin1("Reserved"));
    SettingsStore::instance().setInteger(latin1("ArincProfileVersion"), 1);
    EXPECT_EQ(store.currentFidTable().at(21), latin1("Wings"));
}

TEST_F(Store, UnknownCanAerospaceTypeIsEnteredAsOneWithoutData)
{
    EXPECT_EQ(store.canAerospaceTypeCode(latin1("AS_FLOAT")), 2U);
    EXPECT_EQ(store.canAerospaceTypeCode(latin1("AS_NEW")), 0U);
    EXPECT_EQ(store.canAerospaceTypeNames().count(latin1("AS_NEW")), 1U);
}

TEST_F(Store, LoadsBySuffix)
{
    home.write(latin1("a.pro"), text("A"));
    home.write(latin1("b.tar.pro"), text("B", "2;0"));
    home.write(latin1("c.PRO"), text("C"));
    home.write(latin1("d.pro.bak"), text("D"));
    home.write(latin1("pro"), text("E"));
    home.write(latin1("f.xpro"), text("F"));
    store.loadAll();
    EXPECT_EQ(names(), QStringList({latin1("A"), latin1("B")}));
    EXPECT_EQ(store.profiles().at(latin1("A")).fileName, latin1("a.pro"));
}

TEST_F(Store, ChangedSuffixCountsForTheNextLoad)
{
    home.write(latin1("a.pro"), text("A"));
    home.write(latin1("b.txt"), text("B", "2;0"));
    store.loadAll();
    EXPECT_EQ(store.profiles().count(latin1("A")), 1U);
    setting("Arinc825ProfileSuffix", ".txt");
    store.loadAll();
    EXPECT_EQ(store.profiles().count(latin1("A")), 0U);
    EXPECT_EQ(store.profiles().count(latin1("B")), 1U);
}

TEST_F(Store, WithoutSuffixesNothingIsLoaded)
{
    SettingsStore::instance().reset();
    home.write(latin1("a.pro"), text("A"));
    home.write(latin1("b."), text("B"));
    store.loadAll();
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(Store, LoadAllReplacesEverything)
{
    home.write(latin1("a.pro"), text("A", "1;0", "<enum>\nE;1;One\n" + parameter("4;1")));
    store.loadAll();
    EXPECT_EQ(store.enumText(1, 1), latin1("1: One"));
    EXPECT_EQ(store.parameterIndex().size(), 1U);
    store.loadAll();
    EXPECT_EQ(store.parameterIndex().size(), 1U);
    EXPECT_EQ(store.enumText(1, 1), latin1("Unknown ENUM Type"));
    EXPECT_EQ(store.enumText(2, 1), latin1("1: One"));
    EXPECT_EQ(store.enumText(2, 3), latin1("3: Invalid ENUM Value"));
}

TEST_F(Store, SecondFileOfAProfileNameIsDropped)
{
    home.write(latin1("a.pro"), text("Same", "1;0", parameter("4;1")));
    home.write(latin1("b.pro"), text("Same", "2;0", parameter("4;2")));
    store.loadAll();
    EXPECT_EQ(store.profiles().at(latin1("Same")).fileName, latin1("a.pro"));
    EXPECT_EQ(store.parameterIndex().size(), 2U) << "what the dropped profile had stays";
    EXPECT_EQ(check(),
              "Profile b.pro: " + errorPrefix + " uses the same profile name as a.pro<br>");
    EXPECT_FALSE(isClean);
}

TEST_F(Store, HomeDirectoriesAreScannedButTheirFilesOpenedHere)
{
    const TestHome other;
    QDir(other.path()).mkdir(latin1("bin"));
    other.write(latin1("bin/there.pro"), text("There"));
    const EnvironmentVariable zulHome("ZUL_HOME", other.path().toUtf8().chopped(1));
    store.loadAll();
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_EQ(check(), "");
    EXPECT_TRUE(isClean);
    home.write(latin1("there.pro"), text("Here"));
    store.loadAll();
    EXPECT_EQ(names(), QStringList(latin1("Here")));
    EXPECT_EQ(check(),
              "Profile there.pro: " + errorPrefix + " uses the same profile name as there.pro<br>");
}

TEST_F(Store, HomeThatIsTheWorkingDirectoryLoadsAFileTwice)
{
    home.write(latin1("a.pro"), text("A"));
    const EnvironmentVariable zulHome("ZUL_HOME", home.path().toUtf8().chopped(1));
    store.loadAll();
    EXPECT_EQ(names(), QStringList(latin1("A")));
    EXPECT_EQ(check(),
              "Profile a.pro: " + errorPrefix + " uses the same profile name as a.pro<br>");
}

TEST_F(Store, ZorbProfilesAreKeptApart)
{
    home.write(latin1("a.zorb"), "<ZORBprofile name=\"Z\"><Chapter name=\"One\">"
                                 "<Parameter name=\"P\" id=\"300\"/></Chapter></ZORBprofile>");
    store.loadAll();
    EXPECT_TRUE(store.profiles().empty());
    ASSERT_EQ(store.zorbProfiles().count(latin1("Z")), 1U);
    EXPECT_TRUE(store.parameterIndex().empty());
}

TEST_F(Store, LaterZorbFileOfANameReplacesTheEarlierOne)
{
    home.write(latin1("a.zorb"), "<ZORBprofile name=\"Z\"/>");
    home.write(latin1("b.zorb"), "<ZORBprofile name=\"Z\"><Chapter name=\"One\"/></ZORBprofile>");
    store.loadAll();
    EXPECT_EQ(store.zorbProfiles().at(latin1("Z")).fids.size(), 1U);
    EXPECT_EQ(check(), "");
}

TEST_F(Store, EqualSuffixesRunBothReaders)
{
    setting("CanAsProfileSuffix", ".pro");
    home.write(latin1("a.pro"), "<ZORBprofile name=\"Z\"/>");
    store.loadAll();
    EXPECT_EQ(names(), QStringList(QString())) << "a text profile without sections";
    EXPECT_EQ(store.zorbProfiles().size(), 1U);
}

TEST_F(Store, UnloadAllForgets)
{
    home.write(latin1("a.pro"), text("A", "1;0", "<enum>\nE;1;One\n" + parameter("4;1")));
    home.write(latin1("a.zorb"), "<ZORBprofile name=\"Z\"/>");
    store.loadAll();
    store.unloadAll();
    EXPECT_TRUE(store.profiles().empty());
    EXPECT_TRUE(store.zorbProfiles().empty());
    EXPECT_TRUE(store.parameterIndex().empty());
    EXPECT_EQ(store.enumText(1, 1), latin1("Unknown ENUM Type"));
}

TEST_F(Store, LoadFileRefusesWhatIsNotXml)
{
    home.write(latin1("a.pro"), text("A"));
    EXPECT_FALSE(store.loadFile(home.file(latin1("a.pro"))));
    EXPECT_FALSE(store.loadFile(home.file(latin1("none.xml"))));
    EXPECT_TRUE(store.profiles().empty());
}

TEST_F(Store, DeliberateXmlGoesToTheTextReaderOfVersionZero)
{
    home.write(latin1("a.xml"), "<Arinc825Profile name=\"A\"/>");
    EXPECT_TRUE(store.loadFile(home.file(latin1("a.xml"))));
    EXPECT_EQ(names(), QStringList(QString()));
}

TEST_F(Store, LoadFileNeverTakesAZorbProfile)
{
    home.write(latin1("a.xml"), "<ZORBprofile name=\"Z\"/>");
    home.write(latin1("b.xml"), "<ZORBProfile name=\"Z\"/>");
    EXPECT_FALSE(store.loadFile(home.file(latin1("a.xml"))));
    EXPECT_FALSE(store.loadFile(home.file(latin1("b.xml"))));
    EXPECT_TRUE(store.zorbProfiles().empty());
}

TEST_F(Store, LoadFileReplacesAProfileOfItsNameAndKeepsTheOthers)
{
    // The text reader finds sections in the lines of an XML file.
    const QByteArray xml = "<Arinc825Profile><!--\n" +
                           text("A", "1;0", "<enum>\nE;1;One\n" + parameter("4;1")) +
                           "-->\n</Arinc825Profile>\n";
    home.write(latin1("a.xml"), xml);
    home.write(latin1("b.pro"), text("B", "2;0", parameter("4;2")));
    store.loadAll();
    for (int round = 1; round <= 2; ++round) {
        EXPECT_TRUE(store.loadFile(home.file(latin1("a.xml"))));
        EXPECT_EQ(names(), QStringList({latin1("A"), latin1("B")}));
        EXPECT_EQ(store.parameterIndex().size(), 2U) << "the old one's parameters are gone";
        EXPECT_EQ(store.enumerations().size(), 1U) << "and so are its enumerations";
        const ProfileEnum& enumeration = store.profiles().at(latin1("A")).enums.at(latin1("E"));
        EXPECT_EQ(store.enumText(enumeration.enumId, 1), latin1("1: One"));
    }
}

TEST_F(Store, LoadFileReplacesByOtherContent)
{
    SettingsStore::instance().setInteger(latin1("ArincProfileVersion"), 3);
    home.write(latin1("a.xml"), "<Arinc825Profile name=\"A\" id=\"1.0\"/>");
    home.write(latin1("b.xml"), "<Arinc825Profile name=\"A\" id=\"2.0\"/>");
    EXPECT_TRUE(store.loadFile(home.file(latin1("a.xml"))));
    EXPECT_TRUE(store.loadFile(home.file(latin1("b.xml"))));
    EXPECT_EQ(store.profiles().at(latin1("A")).id, 2U);
    EXPECT_EQ(check(), "");
}

TEST_F(Store, FunctionCodesStayThoseOfTheStandard)
{
    home.write(latin1("a.pro"), text("A", "1;0", "<fid>\nOwn;21\nMine;4\n"));
    store.loadAll();
    EXPECT_EQ(store.fidTable825Part2(), zul::makeFidTable825Part2());
    EXPECT_EQ(store.fidTable825Part3(), zul::makeFidTable825Part3());
    store.loadFile(home.file(latin1("a.pro")));
    EXPECT_EQ(store.fidTable825Part2().size(), 128U);
}

TEST_F(Store, DirectoryAndFileThatCannotBeReadAreSkipped)
{
    QDir(home.path()).mkdir(latin1("dir.pro"));
    QFile::link(latin1("nowhere"), home.file(latin1("link.pro")));
    home.write(latin1("a.pro"), text("A"));
    store.loadAll();
    EXPECT_EQ(names(), QStringList(latin1("A")));
    EXPECT_EQ(check(), "");
}

TEST_F(Store, EmptyHomeIsTheRoot)
{
    home.write(latin1("a.pro"), text("A"));
    const EnvironmentVariable zulHome("ZUL_HOME", QByteArray(""));
    store.loadAll();
    EXPECT_EQ(names(), QStringList(latin1("A")));
}

TEST_F(Store, ClearForgetsWhatChecksFound)
{
    home.write(latin1("a.pro"), text("Same"));
    home.write(latin1("b.pro"), text("Same"));
    store.loadAll();
    EXPECT_NE(check(), "");
    store.unloadAll();
    EXPECT_EQ(check(), "");
    EXPECT_TRUE(isClean);
}

TEST_F(Store, LoadAllForgetsThatSomethingWasWrong)
{
    home.write(latin1("a.pro"), text("Same"));
    home.write(latin1("b.pro"), text("Same"));
    store.loadAll();
    check();
    EXPECT_FALSE(isClean);
    QFile::remove(home.file(latin1("b.pro")));
    store.loadAll();
    check();
    EXPECT_TRUE(isClean);
}

TEST_F(Store, LoadFileForgetsWhatWasFoundBefore)
{
    home.write(latin1("a.pro"), text("Same"));
    home.write(latin1("b.pro"), text("Same"));
    store.loadAll();
    EXPECT_NE(check(), "");
    EXPECT_FALSE(store.loadFile(home.file(latin1("none.xml"))));
    EXPECT_EQ(check(), "");
    EXPECT_TRUE(isClean);
}

TEST_F(Store, WrongDataTypeIsLoadedAndIndexed)
{
    QByteArray bad = parameter("4;1");
    bad.replace("UCHAR", "WHAT");
    home.write(latin1("a.pro"), text("A", "1;0", bad));
    store.loadAll();
    EXPECT_FALSE(store.profiles().at(latin1("A")).valid);
    EXPECT_EQ(store.parameterIndex().size(), 1U);
    EXPECT_EQ(check(), store.profiles().at(latin1("A")).result.toUtf8());
    EXPECT_FALSE(isClean);
}

TEST_F(Store, CheckOfAnEmptyStore)
{
    EXPECT_EQ(check(), "");
    EXPECT_TRUE(isClean);
}

TEST_F(Store, SecondCheckRepeatsTheFirst)
{
    home.write(latin1("a.pro"), text("A", "1;0"));
    home.write(latin1("b.pro"), text("B", "1;0"));
    store.loadAll();
    const QByteArray message =
        "Profile b.pro: " + errorPrefix + " uses the same id/sub-id name as a.pro<br>";
    EXPECT_EQ(check(), message);
    EXPECT_EQ(check(), message + message);
    store.loadAll();
    EXPECT_EQ(check(), message);
}

TEST_F(Store, ReadAndWriteByVersionZeroAreText)
{
    home.write(latin1("a.pro"), text("A", "7;8"));
    ArincProfile profile;
    ASSERT_TRUE(store.readProfile(latin1("a.pro"), profile));
    EXPECT_TRUE(store.writeProfile(latin1("b.pro"), profile));
    EXPECT_TRUE(home.read(latin1("b.pro")).contains("<profile>\n#\nA;7;8\n"));
    EXPECT_FALSE(store.writeProfile(latin1("none/b.pro"), profile));
}

TEST_F(Store, IsOneForTheProcess)
{
    EXPECT_EQ(&ProfileStore::instance(), &ProfileStore::instance());
}

} // namespace

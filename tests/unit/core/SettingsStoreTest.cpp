#include "core/SettingsStore.h"

#include "tests/support/ConsoleCapture.h"
#include "tests/support/TestHome.h"

#include <QDir>
#include <QFileInfo>

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace {

using zul::test::ConsoleCapture;
using zul::test::TestHome;

const QString iniFile = QStringLiteral("zul.ini");

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

// A store on a file of its own.
class Settings : public testing::Test
{
protected:
    Settings() { store.setFile(home.file(iniFile)); }

    // What a new process would find.
    SettingsStore reloaded() const
    {
        SettingsStore other;
        other.setFile(home.file(iniFile));
        other.load();
        return other;
    }

    TestHome home;
    SettingsStore store;
};

// Makes every write to a file fail while it lives, as a full disk does.
class NoRoomForFiles
{
public:
    NoRoomForFiles() : m_oldHandler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_old);
        rlimit none = m_old;
        none.rlim_cur = 0;
        setrlimit(RLIMIT_FSIZE, &none);
    }
    ~NoRoomForFiles()
    {
        setrlimit(RLIMIT_FSIZE, &m_old);
        std::signal(SIGXFSZ, m_oldHandler);
    }
    NoRoomForFiles(const NoRoomForFiles&) = delete;
    NoRoomForFiles& operator=(const NoRoomForFiles&) = delete;

private:
    void (*m_oldHandler)(int);
    rlimit m_old{};
};

TEST_F(Settings, AbsentKeyGivesTheReadersDefault)
{
    EXPECT_EQ(store.integer(text("RestoreTopLevel"), 1), 1);
    EXPECT_EQ(store.integer(text("RestoreTopLevel"), 0), 0);
    EXPECT_EQ(store.string(text("TracePath"), text(".")), text("."));
}

TEST_F(Settings, StoredValueIsReadBack)
{
    store.setInteger(text("OnCloseDialog"), -7);
    store.setString(text("TracePath"), text("/data"));
    EXPECT_EQ(store.integer(text("OnCloseDialog"), 1), -7);
    EXPECT_EQ(store.string(text("OnCloseDialog"), text("x")), text("-7"));
    EXPECT_EQ(store.string(text("TracePath"), text(".")), text("/data"));
}

TEST_F(Settings, KeysAreCaseSensitive)
{
    store.setInteger(text("Key"), 1);
    EXPECT_EQ(store.integer(text("key"), 9), 9);
}

struct IntegerCase
{
    const char* value;
    int expected;
};

class SettingsInteger : public testing::TestWithParam<IntegerCase>
{
};

TEST_P(SettingsInteger, IsReadAsAtoiReadsIt)
{
    SettingsStore store;
    store.setString(text("k"), text(GetParam().value));
    EXPECT_EQ(store.integer(text("k"), 99), GetParam().expected) << GetParam().value;
}

INSTANTIATE_TEST_SUITE_P(, SettingsInteger,
                         testing::Values(IntegerCase{"12", 12}, IntegerCase{" \t12", 12},
                                         IntegerCase{"+3", 3}, IntegerCase{"-3", -3},
                                         IntegerCase{"12abc", 12}, IntegerCase{"1.9", 1},
                                         IntegerCase{"abc", 0}, IntegerCase{"", 0},
                                         IntegerCase{"0x10", 0}, IntegerCase{"010", 10},
                                         IntegerCase{"- 3", 0}, IntegerCase{"true", 0},
                                         IntegerCase{"2147483647", 2147483647},
                                         IntegerCase{"-2147483648", -2147483647 - 1},
                                         IntegerCase{"99999999999999999999", 2147483647}));

TEST_F(Settings, FileHasItsForm)
{
    store.setInteger(text("b"), 2);
    store.setString(text("a"), text("one"));
    store.setString(text("C"), text("three"));
    store.save();
    EXPECT_EQ(home.read(iniFile), QByteArray("<Zul>\n"
                                             "    <Property id=\"C\" value=\"three\"/>\n"
                                             "    <Property id=\"a\" value=\"one\"/>\n"
                                             "    <Property id=\"b\" value=\"2\"/>\n"
                                             "</Zul>\n"))
        << home.read(iniFile).constData();
}

TEST_F(Settings, SaveThenLoadGivesEveryValueBack)
{
    const QString awkward = QString::fromUtf8("\"<&>'\t\n\r \xc3\xa4\xe2\x82\xac\xf0\x9f\x9a\x80 ");
    store.setString(text("awkward"), awkward);
    store.setString(awkward.trimmed(), text("key"));
    store.setInteger(text("OnCloseDialog"), 2);
    store.save();
    const SettingsStore other = reloaded();
    EXPECT_EQ(other.string(text("awkward"), QString()), awkward);
    EXPECT_EQ(other.string(awkward.trimmed(), QString()), text("key"));
    EXPECT_EQ(other.integer(text("OnCloseDialog"), 0), 2);
}

TEST_F(Settings, ValueWithCharactersThatXmlLacksStillGivesAReadableFile)
{
    store.setString(text("k"), QString(QChar(1)) + text("x") + QChar(0xD800) + QChar(0xFFFE));
    store.setString(text("other"), text("kept"));
    store.save();
    EXPECT_EQ(reloaded().string(text("k"), QString()), text("x"));
    EXPECT_EQ(reloaded().string(text("other"), QString()), text("kept"));
}

TEST_F(Settings, EmptyValueIsNotWritten)
{
    store.setString(text("TracePath"), text("/data"));
    store.save();
    store.setString(text("TracePath"), QString());
    EXPECT_EQ(store.string(text("TracePath"), text(".")), QString());
    store.save();
    EXPECT_FALSE(home.read(iniFile).contains("TracePath"));
    EXPECT_EQ(reloaded().string(text("TracePath"), text(".")), text("."));
}

TEST_F(Settings, LoadMergesIntoWhatIsThere)
{
    home.write(iniFile, "<Zul><Property id=\"a\" value=\"file\"/></Zul>");
    store.setString(text("a"), text("memory"));
    store.setString(text("b"), text("memory"));
    store.load();
    EXPECT_EQ(store.string(text("a"), QString()), text("file"));
    EXPECT_EQ(store.string(text("b"), QString()), text("memory"));
}

TEST_F(Settings, UnknownKeysSurviveALoadAndASave)
{
    home.write(iniFile, "<Zul><Property id=\"FromTheFuture\" value=\"1 &amp; 2\"/></Zul>");
    store.load();
    store.setInteger(text("AutoLoadProfile"), 1);
    store.save();
    EXPECT_EQ(reloaded().string(text("FromTheFuture"), QString()), text("1 & 2"));
}

TEST_F(Settings, OtherChildrenAreSkipped)
{
    home.write(iniFile, "<?xml version=\"1.0\"?><Zul>text<property id=\"x\" value=\"1\"/><!-- c -->"
                        "<Group><Property id=\"nested\" value=\"1\"/></Group>"
                        "<Property id=\"a\" value=\"1\" more=\"2\"/></Zul>");
    store.load();
    EXPECT_EQ(store.integer(text("x"), -1), -1);
    EXPECT_EQ(store.integer(text("nested"), -1), -1);
    EXPECT_EQ(store.integer(text("a"), -1), 1);
}

TEST_F(Settings, MissingAttributesAreEmpty)
{
    home.write(iniFile, "<Zul><Property id=\"a\"/><Property value=\"v\"/></Zul>");
    store.setString(text("a"), text("before"));
    store.load();
    EXPECT_EQ(store.string(text("a"), text("default")), QString());
    EXPECT_EQ(store.string(QString(), QString()), text("v"));
}

TEST_F(Settings, LaterOfTwoEqualKeysWins)
{
    home.write(iniFile,
               "<Zul><Property id=\"a\" value=\"1\"/><Property id=\"a\" value=\"2\"/></Zul>");
    store.load();
    EXPECT_EQ(store.integer(text("a"), 0), 2);
}

TEST_F(Settings, MissingFileChangesNothingAndIsSilent)
{
    store.setInteger(text("a"), 1);
    ConsoleCapture console;
    store.load();
    EXPECT_EQ(console.out() + console.err(), "");
    EXPECT_EQ(store.integer(text("a"), 0), 1);
}

TEST_F(Settings, BrokenFileChangesNothing)
{
    home.write(iniFile, "<Zul><Property id=\"a\" value=\"file\"/><Prop");
    store.setString(text("a"), text("memory"));
    const ConsoleCapture console;
    store.load();
    EXPECT_EQ(store.string(text("a"), QString()), text("memory"));
}

TEST_F(Settings, BrokenFileIsKeptAsideWhenSaving)
{
    const QByteArray broken = "<Zul><Property id=\"TracePath\" value=\"/precious\"";
    home.write(iniFile, broken);
    const ConsoleCapture console;
    store.load();
    EXPECT_EQ(home.read(iniFile), broken) << "loading alone must not touch it";
    store.setInteger(text("a"), 1);
    store.save();
    EXPECT_EQ(home.read(text("zul.ini.bak")), broken);
    EXPECT_EQ(reloaded().integer(text("a"), 0), 1);
}

TEST_F(Settings, GoodFileIsNotKeptAside)
{
    store.setInteger(text("a"), 1);
    store.save();
    store.load();
    store.save();
    EXPECT_FALSE(home.has(text("zul.ini.bak")));
}

TEST_F(Settings, BrokenFileIsKeptAsideOnce)
{
    home.write(iniFile, "broken");
    const ConsoleCapture console;
    store.load();
    store.setInteger(text("a"), 1);
    store.save();
    store.setInteger(text("a"), 2);
    store.save();
    EXPECT_EQ(home.read(text("zul.ini.bak")), QByteArray("broken"));
}

TEST_F(Settings, UnchangedSettingsSaveToTheSameBytes)
{
    for (int i = 0; i < 50; ++i) {
        store.setString(text("RecentFile%1").arg(i), text("/p/%1.zul").arg(i));
    }
    store.save();
    const QByteArray first = home.read(iniFile);
    SettingsStore other = reloaded();
    other.save();
    EXPECT_EQ(home.read(iniFile), first);
}

TEST_F(Settings, MissingDirectoryMakesTheSaveFailSilently)
{
    store.setFile(home.file(text("missing/zul.ini")));
    store.setInteger(text("a"), 1);
    ConsoleCapture console;
    store.save();
    EXPECT_EQ(console.out() + console.err(), "");
    EXPECT_FALSE(QFileInfo::exists(home.file(text("missing"))));
}

TEST_F(Settings, TargetThatIsADirectoryStays)
{
    ASSERT_TRUE(QDir(home.path()).mkpath(text("zul.ini/inside")));
    store.setInteger(text("a"), 1);
    ConsoleCapture console;
    store.load();
    store.save();
    EXPECT_EQ(console.out() + console.err(), "");
    EXPECT_TRUE(QFileInfo(home.file(text("zul.ini/inside"))).isDir());
}

TEST_F(Settings, OldFileStaysWholeWhenTheDiskIsFull)
{
    store.setString(text("a"), text("old"));
    store.save();
    const QByteArray old = home.read(iniFile);
    store.setString(text("a"), text("new"));
    {
        const NoRoomForFiles full;
        store.save();
    }
    EXPECT_EQ(home.read(iniFile), old);
    EXPECT_EQ(QDir(home.path()).entryList(QDir::Files | QDir::Hidden).size(), 1)
        << "no half-written file is left behind";
}

TEST_F(Settings, NoFileNameIsHarmless)
{
    SettingsStore nameless;
    nameless.setInteger(text("a"), 1);
    ConsoleCapture console;
    nameless.load();
    nameless.save();
    EXPECT_EQ(nameless.integer(text("a"), 0), 1);
}

TEST_F(Settings, ResetForgetsEverything)
{
    store.setInteger(text("a"), 1);
    store.reset();
    store.save();
    EXPECT_EQ(store.integer(text("a"), 5), 5);
    EXPECT_FALSE(home.has(iniFile));
}

TEST(SettingsStore, ThereIsOneOfTheProcess)
{
    EXPECT_EQ(&SettingsStore::instance(), &SettingsStore::instance());
}

} // namespace

#include "profile/TextProfileWriter.h"

#include "profile/ProfileStore.h"
#include "profile/TextProfileReader.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/SettableClock.h"
#include "tests/support/TestHome.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

class TextWriterOfProfiles : public testing::Test
{
protected:
    QByteArray write(const ArincProfile& profile)
    {
        EXPECT_TRUE(zul::writeTextProfile(home.file(fileName), store, profile));
        return home.read(fileName);
    }

    ArincProfile read(const QByteArray& content)
    {
        home.write(fileName, content);
        ArincProfile profile;
        EXPECT_TRUE(zul::readTextProfile(home.file(fileName), store, profile));
        return profile;
    }

    QString fileName = QStringLiteral("b.pro");
    zul::test::TestHome home;
    zul::test::SettableClock clock{1795244889.0}; // 2026-11-21 07:08:09 UTC
    ProfileStore store;
};

TEST_F(TextWriterOfProfiles, GoldenFile)
{
    QFile golden(QStringLiteral(ZUL_TEST_DATA "/text-profile/written.pro"));
    ASSERT_TRUE(golden.open(QIODevice::ReadOnly));
    const QByteArray expected = golden.readAll();
    fileName = QStringLiteral("written.pro");
    const ArincProfile profile = read(expected);
    EXPECT_TRUE(profile.valid) << profile.result.toStdString();
    EXPECT_EQ(write(profile).toStdString(), expected.toStdString());
}

TEST_F(TextWriterOfProfiles, EmptyProfileHasAllSections)
{
    const QByteArray ruler(80, '#');
    EXPECT_EQ(write(ArincProfile()).toStdString(),
              (ruler +
               "\n# ARINC-825 profile\n# File       : b.pro\n# Created by : ZUL 1.8.9\n"
               "# Created at : 21.11.2026 07:08:09\n" +
               ruler +
               "\n<header>\n\n\n<profile>\n#\n;0;0\n\n<fid>\n\n<unit>\n\n<enum>\n\n<parameter>\n")
                  .toStdString());
}

TEST_F(TextWriterOfProfiles, UnknownChannelIsAnEmptyToken)
{
    ArincProfile profile;
    ProfileParameter parameter;
    parameter.lcc = 3;
    profile.fids[4].parameters.emplace(parameter.serial, parameter);
    EXPECT_TRUE(write(profile).contains("\n;0;0;0;0;0;0.0;0.0;0;FLOAT;NewPara;Unit;0;1;0;Notes\n"));
}

TEST_F(TextWriterOfProfiles, NumbersAreKeptAsTheyWereRead)
{
    const ArincProfile first = read("<profile>\nP;-1;-2\n<fid>\nA;-1\n<parameter>\n"
                                    "NOC;-1;-2;-3;-4;-5;-6.-7;-8.-9;-10;UCHAR;N;U;-1.5;1e9;-1;T\n");
    const ArincProfile second = read(write(first));
    const ProfileParameter& parameter = second.fids.begin()->second.parameters.begin()->second;
    EXPECT_EQ(static_cast<int>(second.id), -1);
    EXPECT_EQ(static_cast<int>(second.subId), -2);
    EXPECT_EQ(second.userFids.begin()->first, 0xffffffffU);
    EXPECT_EQ(static_cast<int>(parameter.fid), -1);
    EXPECT_EQ(static_cast<int>(parameter.doc), -2);
    EXPECT_EQ(static_cast<int>(parameter.sid), -5);
    EXPECT_EQ(static_cast<int>(parameter.sppBit), -7);
    EXPECT_EQ(static_cast<int>(parameter.puc), -10);
    EXPECT_EQ(parameter.upr, -1);
    EXPECT_EQ(parameter.max, 1e9);
}

TEST_F(TextWriterOfProfiles, RealsHaveSixDigits)
{
    const ArincProfile first =
        read("<parameter>\nNOC;4;1;0;0;0;3.0;0.7;0;FLOAT;N;U;-1.23456789;123456789;0;T\n");
    EXPECT_TRUE(write(first).contains(";-1.23457;1.23457e+08;"));
}

TEST_F(TextWriterOfProfiles, DeliberateTwoEmptyLinesFollowAHeaderThatWasRead)
{
    const ArincProfile first = read("<header>\nText\n");
    EXPECT_TRUE(write(first).contains("<header>\nText\n\n\n<profile>\n"));
    EXPECT_TRUE(write(read(home.read(fileName))).contains("<header>\nText\n\n\n<profile>\n"));
}

TEST_F(TextWriterOfProfiles, FileThatCannotBeOpened)
{
    EXPECT_FALSE(
        zul::writeTextProfile(home.path() + QStringLiteral("none/b.pro"), store, ArincProfile()));
}

TEST_F(TextWriterOfProfiles, FailureInTheMiddleLeavesTheOldFile)
{
    ArincProfile profile;
    // The limits are met while the text is written, and only when its end is.
    for (const int length : {100'000, 9'000}) {
        home.write(fileName, "old");
        profile.header = QString(length, QLatin1Char('x'));
        {
            const zul::test::FileSizeLimit limit(8'000);
            EXPECT_FALSE(zul::writeTextProfile(home.file(fileName), store, profile)) << length;
        }
        EXPECT_EQ(home.read(fileName), QByteArray("old")) << length;
        EXPECT_EQ(QDir(home.path()).entryList(QDir::Files), QStringList(fileName)) << length;
    }
}

TEST_F(TextWriterOfProfiles, DirectoryAndPipeAreNotReplaced)
{
    EXPECT_FALSE(zul::writeTextProfile(home.path(), store, ArincProfile()));
    const QByteArray pipe = QFile::encodeName(home.file(QStringLiteral("pipe.pro")));
    ASSERT_EQ(mkfifo(pipe.constData(), S_IRUSR | S_IWUSR), 0);
    EXPECT_FALSE(zul::writeTextProfile(QFile::decodeName(pipe), store, ArincProfile()));
    EXPECT_FALSE(QFileInfo(QFile::decodeName(pipe)).isFile());
}

TEST_F(TextWriterOfProfiles, TextsOfOtherScriptsComeBack)
{
    const ArincProfile first = read("<profile>\n\xce\xa9 \xc2\xb0;1;2\n");
    EXPECT_EQ(first.name, QStringLiteral("\u03a9 \u00b0"));
    EXPECT_EQ(read(write(first)).name, first.name);
}

TEST_F(TextWriterOfProfiles, ValidIsNotConsulted)
{
    ArincProfile profile;
    profile.valid = false;
    profile.name = QStringLiteral("Bad");
    EXPECT_TRUE(write(profile).contains("Bad;0;0\n"));
}

} // namespace

#include "profile/ProfileStore.h"
#include "profile/TextProfileReader.h"
#include "profile/TextProfileWriter.h"
#include "tests/support/TestHome.h"

#include <gtest/gtest.h>

// What a text profile cannot hold: it is gone, or another, once it was written and read again. The
// user guide tells these.

namespace {

class LossesOfTextProfiles : public testing::Test
{
protected:
    static QString text(const char* latin1) { return QString::fromLatin1(latin1); }
    QString path() const { return home.file(text("a.pro")); }

    // The profile once it was written and read again.
    ArincProfile again(const ArincProfile& profile)
    {
        EXPECT_TRUE(zul::writeTextProfile(path(), store, profile));
        ArincProfile result;
        EXPECT_TRUE(zul::readTextProfile(path(), store, result));
        return result;
    }
    // The profile of a file that was written by hand, saved once.
    ArincProfile saved(const QByteArray& content)
    {
        home.write(text("a.pro"), content);
        ArincProfile profile;
        EXPECT_TRUE(zul::readTextProfile(path(), store, profile));
        return again(profile);
    }
    static ArincProfile named(const char* name)
    {
        ArincProfile profile;
        profile.name = text(name);
        profile.id = 7;
        ProfileUserFid& fid = profile.userFids[21];
        fid.code = 21;
        fid.name = text(name);
        ProfileUserUnit& unit = profile.userUnits[100];
        unit.code = 100;
        unit.name = text(name);
        ProfileEnum& enumeration = profile.enums[text(name)];
        enumeration.name = text(name);
        enumeration.values[0].label = text(name);
        ProfileFidGroup& group = profile.fids[4];
        ProfileParameter parameter;
        parameter.fid = 4;
        parameter.sppByte = 3;
        parameter.eppBit = 7;
        parameter.nme = text(name);
        parameter.notes = text(name);
        group.parameters.emplace(parameter.serial, parameter);
        return profile;
    }
    static const ProfileParameter& only(const ArincProfile& profile)
    {
        return profile.fids.at(4).parameters.begin()->second;
    }

    zul::test::TestHome home;
    ProfileStore store;
};

TEST_F(LossesOfTextProfiles, NamesThatBeginWithANumberSign)
{
    const ArincProfile read = again(named("#a"));
    EXPECT_EQ(read.name, QString());
    EXPECT_EQ(read.id, 0U);
    EXPECT_TRUE(read.userFids.empty());
    EXPECT_TRUE(read.userUnits.empty());
    EXPECT_TRUE(read.enums.empty());
    EXPECT_TRUE(read.valid);               // nothing tells of it
    EXPECT_EQ(only(read).nme, text("#a")); // not at the start of its line
    EXPECT_EQ(only(read).notes, text("#a"));
}

TEST_F(LossesOfTextProfiles, BlanksAtTheEndsOfALine)
{
    const ArincProfile read = again(named(" a "));
    EXPECT_EQ(read.name, text("a "));
    EXPECT_EQ(read.userFids.at(21).name, text("a "));
    EXPECT_EQ(read.userUnits.at(100).name, text("a "));
    ASSERT_EQ(read.enums.count(text("a ")), 1U);
    EXPECT_EQ(read.enums.at(text("a ")).values.at(0).label, text(" a"));
    EXPECT_EQ(only(read).nme, text(" a "));
    EXPECT_EQ(only(read).notes, text(" a"));
}

TEST_F(LossesOfTextProfiles, EnumerationWithABlankBeforeItsNameLosesItsParameters)
{
    ArincProfile profile = named(" State");
    profile.fids.at(4).parameters.begin()->second.typeName = text(" State");
    const ArincProfile read = again(profile);
    EXPECT_EQ(read.enums.count(text("State")), 1U);
    EXPECT_EQ(only(read).enumId, -1);
}

TEST_F(LossesOfTextProfiles, LinesOfTheHeader)
{
    ArincProfile profile;
    profile.header = text("one\n\n  two  \n# three\nfour\n");
    EXPECT_EQ(again(profile).header, text("one\ntwo\nfour\n"));
    // From a section mark on, the header is what the mark says.
    profile.header = text("one\n<unit>\nknots;100\n");
    const ArincProfile read = again(profile);
    EXPECT_EQ(read.header, text("one\n"));
    EXPECT_EQ(read.userUnits.count(100), 1U);
    profile.header = text("one\n<header>\ntwo\n");
    EXPECT_EQ(again(profile).header, text("one\ntwo\n"));
}

TEST_F(LossesOfTextProfiles, EnumerationsWithoutValuesAndChaptersWithoutParameters)
{
    ArincProfile profile;
    profile.enums[text("State")].name = text("State");
    profile.fids[4].fid = 4;
    const ArincProfile read = again(profile);
    EXPECT_TRUE(read.enums.empty());
    EXPECT_TRUE(read.fids.empty());
}

TEST_F(LossesOfTextProfiles, TextsWithASemicolon)
{
    const ArincProfile read = again(named("a;b"));
    EXPECT_EQ(read.name, QString());
    EXPECT_TRUE(read.userFids.empty());
    EXPECT_TRUE(read.userUnits.empty());
    EXPECT_TRUE(read.enums.empty());
    EXPECT_TRUE(read.fids.empty());
    EXPECT_FALSE(read.valid);
}

TEST_F(LossesOfTextProfiles, CommentsAndFaultyLinesOfAFileWrittenByHand)
{
    const ArincProfile read = saved("# by hand\nbefore any section\n<fid>\n# comment\nOwn;21\n"
                                    "Bad;22;x\n<unit>\nBad\nknots;100\n");
    EXPECT_TRUE(read.valid); // the faulty lines have gone
    EXPECT_EQ(read.userFids.size(), 1U);
    EXPECT_EQ(read.userUnits.size(), 1U);
    const QByteArray file = home.read(text("a.pro"));
    for (const char* lost : {"by hand", "before any", "comment", "Bad"}) {
        EXPECT_FALSE(file.contains(lost)) << lost;
    }
}

TEST_F(LossesOfTextProfiles, LatencyRciAndCommentsOfTheXmlForm)
{
    ArincProfile profile = named("a");
    profile.comment = text("c");
    ProfileParameter& parameter = profile.fids.at(4).parameters.begin()->second;
    parameter.lat = 0.25;
    parameter.rci = 2;
    parameter.min = -1.23456789;
    const ArincProfile read = again(profile);
    EXPECT_EQ(read.comment, QString());
    EXPECT_EQ(only(read).lat, 0.0);
    EXPECT_EQ(only(read).rci, 0U);
    EXPECT_EQ(only(read).min, -1.23457);
}

} // namespace

#include "core/SettingsStore.h"
#include "edit/ProfileEdit.h"
#include "edit/ProfileSelection.h"
#include "profile/ProfileStore.h"
#include "tests/support/TestHome.h"
#include "tests/unit/profile/HostileFiles.h"

#include <gtest/gtest.h>

// Which parameters follow a user unit in the editor of text profiles, and which files it refuses.

namespace {

QString name(const char* text)
{
    return QString::fromLatin1(text);
}

class UnitsOfProfile : public testing::Test
{
protected:
    ~UnitsOfProfile() override { SettingsStore::instance().reset(); }

    static void setVersion(int version)
    {
        SettingsStore::instance().setInteger(name("ArincProfileVersion"), version);
    }
    void addUnit(std::uint32_t code, const char* label)
    {
        ProfileUserUnit unit;
        unit.code = code;
        unit.name = name(label);
        edit.profile().userUnits[code] = unit;
    }
    ProfileParameter& addParameter(std::uint32_t puc, const char* pun)
    {
        ProfileFidGroup& group = edit.profile().fids[4];
        group.fid = 4;
        ProfileParameter& added = group.parameters.at(edit.addParameter(4).value());
        added.puc = puc;
        added.pun = name(pun);
        return added;
    }

    zul::test::TestHome home;
    ProfileStore store;
    ProfileEdit edit{store};
};

TEST_F(UnitsOfProfile, CodesOnTheWayAreLeft)
{
    addUnit(100, "knots");
    const ProfileParameter& own = addParameter(100, "knots");
    const ProfileParameter& dangling = addParameter(101, "lost");
    edit.holdUnit(100);
    EXPECT_TRUE(edit.setUserUnitCode(100, 101));
    EXPECT_EQ(own.puc, 101U);
    EXPECT_TRUE(edit.setUserUnitCode(101, 102));
    EXPECT_EQ(own.puc, 102U);
    EXPECT_EQ(dangling.puc, 101U);
    EXPECT_TRUE(edit.setUserUnitCode(102, 101));
    edit.holdUnit(101); // selected anew: both have its code
    EXPECT_TRUE(edit.setUserUnitCode(101, 103));
    EXPECT_EQ(dangling.puc, 103U);
    EXPECT_EQ(own.puc, 103U);
}

TEST_F(UnitsOfProfile, ParameterThatChoosesTheHeldUnitFollows)
{
    addUnit(100, "knots");
    addUnit(200, "furlong");
    ProfileParameter& comes = addParameter(0, "n.a.");
    ProfileParameter& goes = addParameter(100, "knots");
    ProfileParameter& standard = addParameter(100, "knots");
    edit.holdUnit(100);
    edit.setUnit(comes, 100);
    edit.setUnit(goes, 200);
    edit.setUnit(standard, 44);
    EXPECT_TRUE(edit.setUserUnitCode(100, 101));
    EXPECT_EQ(comes.puc, 101U);
    EXPECT_EQ(goes.puc, 200U);
    EXPECT_EQ(standard.puc, 44U);
    edit.renameUserUnit(101, name("kt"));
    EXPECT_EQ(comes.pun, name("kt"));
    EXPECT_EQ(goes.pun, name("furlong"));
    EXPECT_EQ(standard.pun, name("o (deg)"));
}

TEST_F(UnitsOfProfile, UnitThatIsNotHeldTakesItsOwnParametersOnly)
{
    addUnit(100, "knots");
    addUnit(200, "furlong");
    const ProfileParameter& first = addParameter(100, "knots");
    const ProfileParameter& second = addParameter(200, "furlong");
    edit.holdUnit(100);
    EXPECT_TRUE(edit.setUserUnitCode(200, 201));
    EXPECT_EQ(first.puc, 100U);
    EXPECT_EQ(second.puc, 201U);
    // Another unit with the code of one that is gone.
    edit.profile().userUnits.erase(201);
    addUnit(201, "other");
    const ProfileParameter& third = addParameter(201, "other");
    EXPECT_TRUE(edit.setUserUnitCode(201, 202));
    EXPECT_EQ(third.puc, 202U);
}

TEST_F(UnitsOfProfile, ParametersFollowTheNameOfTheirUnit)
{
    addUnit(100, "knots");
    addUnit(44, "knots");
    const ProfileParameter& user = addParameter(100, "knots");
    const ProfileParameter& named = addParameter(100, "own");
    const ProfileParameter& other = addParameter(101, "knots");
    const ProfileParameter& standard = addParameter(44, "knots");
    const std::set<std::uint32_t> serials{user.serial};
    for (const char* typed : {"o", "own", "owned", "", "owner"}) {
        EXPECT_EQ(edit.renameUserUnit(100, name(typed)), serials);
        EXPECT_EQ(edit.profile().userUnits.at(100).name, name(typed));
    }
    EXPECT_EQ(user.pun, name("owner"));
    EXPECT_EQ(user.unitLabel, name("owner"));
    EXPECT_EQ(named.pun, name("own"));
    EXPECT_EQ(other.pun, name("knots"));
    EXPECT_TRUE(edit.renameUserUnit(44, name("mine")).empty()); // that one has the standard's
    EXPECT_EQ(standard.pun, name("knots"));
    EXPECT_TRUE(edit.renameUserUnit(999, name("none")).empty());
}

TEST_F(UnitsOfProfile, NothingIsHeldOfTheProfileBefore)
{
    addUnit(100, "knots");
    addParameter(100, "knots");
    edit.holdUnit(100);
    edit.clear();
    EXPECT_FALSE(edit.setUserUnitCode(100, 101));
    edit.holdUnit(999);
    addUnit(100, "knots");
    const ProfileParameter& parameter = addParameter(100, "knots");
    EXPECT_TRUE(edit.setUserUnitCode(100, 101));
    EXPECT_EQ(parameter.puc, 101U);
}

TEST_F(UnitsOfProfile, DocOfXmlProfilesLeavesTheServer)
{
    setVersion(1);
    ProfileParameter parameter;
    parameter.dfid = 93;
    edit.setDoc(parameter, 5 << 9 | 7);
    EXPECT_EQ(parameter.doc, 5U << 9 | 7U);
    EXPECT_EQ(parameter.dfid, 93U);
}

TEST_F(UnitsOfProfile, EnumerationThatStandsForNoSelectionGetsNoValue)
{
    const QString none = name(ProfileSelection::noEnum);
    edit.profile().enums[none].name = none;
    EXPECT_FALSE(edit.addEnumValue(none).has_value());
    EXPECT_TRUE(edit.profile().enums.at(none).values.empty());
}

TEST_F(UnitsOfProfile, FileOfBytesWithoutAProfileIsRefused)
{
    const zul::test::HostileFiles hostile("Arinc825Profile");
    edit.profile().id = 77;
    for (const zul::test::HostileFiles::File& file : hostile.files()) {
        if (file.name != "empty" && file.name != "no XML") { // which are text profiles
            EXPECT_FALSE(edit.read(file.path)) << file.name;
            EXPECT_EQ(edit.profile().id, 77U) << file.name;
        }
    }
    EXPECT_TRUE(store.parameterIndex().empty());
}

TEST_F(UnitsOfProfile, FileWithAnythingOfAProfileIsTaken)
{
    const char* const contents[] = {"",
                                    "<header>\nText\n",
                                    "<profile>\nA;0;0\n",
                                    "<profile>\n;1;0\n",
                                    "<profile>\n;0;1\n",
                                    "<fid>\nA;21\n",
                                    "<unit>\nA;100\n",
                                    "<enum>\nA;0;B\n",
                                    "<parameter>\nNOC;4;1;0;0;0;0.0;0.7;0;UCHAR;A;B;0;1;0;N\n",
                                    "<parameter>\nshort;line\n"};
    for (const char* content : contents) {
        home.write(name("a.pro"), content);
        EXPECT_TRUE(edit.read(home.file(name("a.pro")))) << content;
    }
    for (const char* content : {"#\n", "<header>\n", "<profile>\n;0;0\n"}) {
        home.write(name("a.pro"), content);
        EXPECT_FALSE(edit.read(home.file(name("a.pro")))) << content;
    }
}

} // namespace

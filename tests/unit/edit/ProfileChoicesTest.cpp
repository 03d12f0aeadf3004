#include "edit/ProfileChoices.h"

#include "core/SettingsStore.h"
#include "profile/ProfileStore.h"

#include <gmock/gmock.h>

// What the selections of the editor of text profiles offer.

namespace {

using testing::ElementsAre;
using testing::Pair;
using zul::Choices;

QString name(const char* text)
{
    return QString::fromLatin1(text);
}

class ProfileSelections : public testing::Test
{
protected:
    ~ProfileSelections() override { SettingsStore::instance().reset(); }

    ProfileUserFid& addFid(std::uint32_t code, const char* label)
    {
        ProfileUserFid& fid = profile.userFids[code];
        fid.code = code;
        fid.name = name(label);
        return fid;
    }
    ProfileUserUnit& addUnit(std::uint32_t code, const char* label)
    {
        ProfileUserUnit& unit = profile.userUnits[code];
        unit.code = code;
        unit.name = name(label);
        return unit;
    }

    ProfileStore store;
    ArincProfile profile;
};

TEST_F(ProfileSelections, Channels)
{
    EXPECT_THAT(zul::channelChoices(store),
                ElementsAre(Pair(0, name("EEC")), Pair(2, name("NOC")), Pair(4, name("NSC")),
                            Pair(5, name("UDC")), Pair(6, name("TMC")), Pair(7, name("FMC"))));
}

TEST_F(ProfileSelections, RedundancyChannels)
{
    EXPECT_THAT(zul::rciChoices(), ElementsAre(Pair(0, name("A")), Pair(1, name("B")),
                                               Pair(2, name("C")), Pair(3, name("D"))));
}

TEST_F(ProfileSelections, UserFidTakesThePlaceOfAReservedOne)
{
    addFid(21, "Mine");
    addFid(4, "Hidden");
    addFid(128, "Far");
    const Choices choices = zul::fidChoices(store, profile);
    ASSERT_EQ(choices.size(), 128U);
    EXPECT_THAT(choices.at(1), Pair(1, name("  1 Reserved")));
    EXPECT_THAT(choices.at(4), Pair(4, name("  4 Flight State")));
    EXPECT_THAT(choices.at(21), Pair(21, name(" 21 Mine")));
    EXPECT_THAT(choices.at(127), Pair(127, name("127 Temporary Test & Maintenance")));
    SettingsStore::instance().setInteger(name("ArincProfileVersion"), 1);
    EXPECT_THAT(zul::fidChoices(store, profile).at(21), Pair(21, name(" 21 Wings")));
}

TEST_F(ProfileSelections, UnitsOfTheStandardAndOfTheProfile)
{
    addUnit(44, "Hidden");
    addUnit(99, "Low");
    addUnit(100, "knots");
    const Choices choices = zul::unitChoices(store, profile);
    ASSERT_EQ(choices.size(), 56U);
    EXPECT_THAT(choices.at(0), Pair(0, name("  0 n.a.")));
    EXPECT_THAT(choices.at(34), Pair(34, name(" 34 W")));
    EXPECT_THAT(choices.at(38), Pair(38, name(" 38 W")));
    EXPECT_THAT(choices.at(44), Pair(44, name(" 44 o (deg)")));
    EXPECT_THAT(choices.at(54), Pair(99, name(" 99 Low")));
    EXPECT_THAT(choices.at(55), Pair(100, name("100 knots")));
}

TEST_F(ProfileSelections, DataTypesAndEnumerations)
{
    profile.enums[name("State")].enumId = 7;
    profile.enums[name("FLOAT")].enumId = 8;
    const Choices choices = zul::dataTypeChoices(store, profile);
    ASSERT_EQ(choices.size(), 17U);
    EXPECT_THAT(choices.at(0), Pair(0, name("NODATA")));
    EXPECT_THAT(choices.at(15), Pair(15, name("BCD")));
    EXPECT_THAT(choices.at(16), Pair(-7, name("State")));
    ProfileParameter parameter;
    parameter.typeName = name("State");
    EXPECT_EQ(zul::dataTypeChoice(store, profile, parameter), -7);
    parameter.typeName = name("FLOAT");
    EXPECT_EQ(zul::dataTypeChoice(store, profile, parameter), 9);
    parameter.typeName = name("What");
    EXPECT_EQ(zul::dataTypeChoice(store, profile, parameter), zul::noChoice);
}

TEST_F(ProfileSelections, GroupBeyondTheTableHasNoName)
{
    addFid(128, "Far");
    EXPECT_EQ(zul::groupName(store, profile, 128), QString());
}

} // namespace

#include "edit/ProfileEdit.h"

#include "core/SettingsStore.h"
#include "edit/ProfileChoices.h"
#include "profile/ProfileStore.h"
#include "tests/support/TestHome.h"

#include <gtest/gtest.h>

// What the editor of text profiles does with its profile.

namespace {

QString name(const char* text)
{
    return QString::fromLatin1(text);
}

class EditOfProfile : public testing::Test
{
protected:
    ~EditOfProfile() override { SettingsStore::instance().reset(); }

    static void setVersion(int version)
    {
        SettingsStore::instance().setInteger(name("ArincProfileVersion"), version);
    }
    void addFid(std::uint32_t code, const char* label)
    {
        ProfileUserFid fid;
        fid.code = code;
        fid.name = name(label);
        profile().userFids[code] = fid;
    }
    void addUnit(std::uint32_t code, const char* label)
    {
        ProfileUserUnit unit;
        unit.code = code;
        unit.name = name(label);
        profile().userUnits[code] = unit;
    }
    ProfileParameter& addParameter(std::uint32_t fid)
    {
        ProfileFidGroup& group = profile().fids[fid];
        group.fid = fid;
        return group.parameters.at(edit.addParameter(fid).value());
    }
    ArincProfile& profile() { return edit.profile(); }

    zul::test::TestHome home;
    ProfileStore store;
    ProfileEdit edit{store};
};

TEST_F(EditOfProfile, NewProfileIsNoNameAndEmpty)
{
    addFid(21, "Mine");
    profile().name = name("Old");
    profile().id = 4;
    edit.clear();
    EXPECT_EQ(profile().name, name("NoName"));
    EXPECT_EQ(profile().id, 0U);
    EXPECT_TRUE(profile().userFids.empty());
    EXPECT_TRUE(profile().valid);
}

TEST_F(EditOfProfile, ReadProfileIsTheEditorsAlone)
{
    const QByteArray text = "<profile>\nFlight;1;2\n<parameter>\n"
                            "NOC;4;100;0;1;0;3.0;0.7;44;FLOAT;Pitch;deg;-90;90;10;T\n"
                            "NOC;4;100;0;1;0;7.0;4.7;44;FLOAT;Alpha;deg;-90;90;10;T\n";
    home.write(name("a.pro"), text);
    ASSERT_TRUE(edit.read(home.file(name("a.pro"))));
    ProfileParameter other; // of a loaded profile, in the same frame
    other.id = profile().fids.at(4).parameters.begin()->second.id;
    EXPECT_TRUE(store.parameterIndex().empty());
    store.addToIndex(other);
    ASSERT_TRUE(edit.read(home.file(name("a.pro"))));
    ASSERT_EQ(store.parameterIndex().size(), 1U);
    EXPECT_EQ(store.parameterIndex().begin()->second.serial, other.serial);
    EXPECT_TRUE(store.profiles().empty());
    EXPECT_TRUE(store.enumerations().empty());
    EXPECT_EQ(profile().name, name("Flight"));
    EXPECT_EQ(profile().fids.at(4).parameters.size(), 2U);
}

TEST_F(EditOfProfile, ManyParametersOfOneIdentifierLeaveTheIndexAtOnce)
{
    constexpr std::size_t count = 20'000;
    QByteArray text = "<parameter>\n";
    for (std::size_t i = 0; i < count; ++i) {
        text += "NOC;4;100;0;1;0;3.0;0.7;44;FLOAT;Pitch;deg;-90;90;10;T\n";
    }
    home.write(name("a.pro"), text);
    ArincProfile loaded;
    ASSERT_TRUE(store.readProfile(home.file(name("a.pro")), loaded));
    ASSERT_TRUE(edit.read(home.file(name("a.pro"))));
    EXPECT_EQ(store.parameterIndex().size(), count);
    EXPECT_EQ(store.parameterIndex().begin()->second.serial,
              loaded.fids.at(4).parameters.begin()->first);
}

TEST_F(EditOfProfile, UnreadableFileLeavesTheProfile)
{
    addFid(21, "Mine");
    EXPECT_FALSE(edit.read(home.file(name("none.pro"))));
    EXPECT_EQ(profile().userFids.size(), 1U);
    setVersion(1);
    home.write(name("broken.xml"), "<Arinc825Profile name=\"x\"><FidList>");
    EXPECT_FALSE(edit.read(home.file(name("broken.xml"))));
    EXPECT_EQ(profile().userFids.size(), 1U);
    EXPECT_EQ(profile().name, name("NoName"));
    EXPECT_TRUE(store.parameterIndex().empty());
}

TEST_F(EditOfProfile, ProfileWithErrorsIsTaken)
{
    ASSERT_TRUE(edit.read(name(ZUL_TEST_DATA "/faulty/every-message.pro")));
    EXPECT_FALSE(profile().valid);
    EXPECT_EQ(profile().fids.count(128), 1U);
    EXPECT_TRUE(store.parameterIndex().empty());
}

TEST_F(EditOfProfile, UnwritableFileIsTold)
{
    for (const int version : {0, 1}) {
        setVersion(version);
        EXPECT_FALSE(edit.write(home.file(name("missing/a.pro")))) << version;
        EXPECT_TRUE(edit.write(home.file(name("a.pro")))) << version;
    }
}

TEST_F(EditOfProfile, UserFidTakesTheFirstReservedCode)
{
    EXPECT_EQ(edit.addUserFid(), 1U);
    EXPECT_EQ(edit.addUserFid(), 2U);
    EXPECT_EQ(profile().userFids.at(2).code, 2U);
    EXPECT_EQ(profile().userFids.at(2).name, name("New FID"));
    profile().userFids.erase(1);
    EXPECT_EQ(edit.addUserFid(), 1U);
}

TEST_F(EditOfProfile, ReservedCodesAreThoseOfTheChosenVersion)
{
    for (const int version : {0, 1}) {
        setVersion(version);
        edit.clear();
        int reserved = 0;
        for (const auto& [code, label] : store.currentFidTable()) {
            reserved += label == name("Reserved") ? 1 : 0;
        }
        for (int i = 0; i < reserved; ++i) {
            ASSERT_TRUE(edit.addUserFid().has_value()) << i;
        }
        EXPECT_FALSE(edit.addUserFid().has_value());
        EXPECT_EQ(profile().userFids.size(), static_cast<std::size_t>(reserved));
        EXPECT_EQ(profile().userFids.count(21), version == 0 ? 1U : 0U); // "Wings" in the later one
    }
}

TEST_F(EditOfProfile, UserUnitTakesTheFirstCodeFrom100)
{
    addUnit(99, "Low");
    EXPECT_EQ(edit.addUserUnit(), 100U);
    EXPECT_EQ(edit.addUserUnit(), 101U);
    EXPECT_EQ(profile().userUnits.at(101).name, name("NewUnit"));
    EXPECT_EQ(profile().userUnits.at(101).code, 101U);
    profile().userUnits.erase(100);
    EXPECT_EQ(edit.addUserUnit(), 100U);
    for (int i = 0; i < 898; ++i) {
        ASSERT_TRUE(edit.addUserUnit().has_value()) << i;
    }
    EXPECT_EQ(profile().userUnits.count(999), 1U);
    EXPECT_FALSE(edit.addUserUnit().has_value());
    EXPECT_EQ(profile().userUnits.size(), 901U);
}

TEST_F(EditOfProfile, EnumerationTakesTheFirstFreeName)
{
    const std::int32_t next = store.nextEnumId();
    EXPECT_EQ(edit.addEnumeration(), name("NewEnum"));
    EXPECT_EQ(edit.addEnumeration(), name("NewEnum1"));
    EXPECT_EQ(edit.addEnumeration(), name("NewEnum2"));
    profile().enums.erase(name("NewEnum1"));
    EXPECT_EQ(edit.addEnumeration(), name("NewEnum1"));
    EXPECT_EQ(profile().enums.at(name("NewEnum")).enumId, next + 1);
    EXPECT_EQ(profile().enums.at(name("NewEnum1")).enumId, next + 4);
    EXPECT_EQ(profile().enums.at(name("NewEnum1")).name, name("NewEnum1"));
    EXPECT_TRUE(profile().enums.at(name("NewEnum")).values.empty());
}

TEST_F(EditOfProfile, EnumValueTakesTheFirstFreeNumberFrom0)
{
    const QString state = edit.addEnumeration();
    profile().enums.at(state).values[-3].value = -3;
    EXPECT_EQ(edit.addEnumValue(state), 0);
    EXPECT_EQ(edit.addEnumValue(state), 1);
    EXPECT_EQ(profile().enums.at(state).values.at(1).value, 1);
    EXPECT_EQ(profile().enums.at(state).values.at(1).label, name("NewValue"));
    profile().enums.at(state).values.erase(0);
    EXPECT_EQ(edit.addEnumValue(state), 0);
    EXPECT_FALSE(edit.addEnumValue(name("__NoEnumSelected")).has_value());
}

TEST_F(EditOfProfile, ChapterTakesTheFirstCodeWithoutAGroup)
{
    EXPECT_EQ(edit.addChapter(), 0U);
    EXPECT_EQ(edit.addChapter(), 1U);
    EXPECT_EQ(profile().fids.at(0).name, name("Multicast Function Code Identifier"));
    EXPECT_EQ(profile().fids.at(1).fid, 1U);
    EXPECT_EQ(profile().fids.at(1).name, name("Reserved"));
    profile().fids[200].fid = 200; // of a faulty file
    for (int i = 2; i < 128; ++i) {
        ASSERT_EQ(edit.addChapter(), static_cast<std::uint32_t>(i));
    }
    EXPECT_FALSE(edit.addChapter().has_value());
}

TEST_F(EditOfProfile, ChapterIsNamedByTheChosenVersion)
{
    addFid(1, "Mine");
    for (const int version : {0, 1}) {
        setVersion(version);
        profile().fids.clear();
        for (int i = 0; i < 128; ++i) {
            edit.addChapter();
        }
        EXPECT_EQ(profile().fids.at(21).name, name(version == 0 ? "Reserved" : "Wings"));
        EXPECT_EQ(profile().fids.at(1).name, name("Reserved"));
    }
}

TEST_F(EditOfProfile, ParameterIsNewInItsChapter)
{
    EXPECT_FALSE(edit.addParameter(4).has_value());
    const ProfileParameter& added = addParameter(4);
    const ProfileParameter defaults;
    EXPECT_EQ(added.parameterKind, ParameterKind::Arinc825);
    EXPECT_EQ(added.fid, 4U);
    EXPECT_EQ(added.nme, name("NewPara"));
    EXPECT_EQ(added.pun, name("Unit"));
    EXPECT_EQ(added.typeName, name("FLOAT"));
    EXPECT_EQ(added.max, defaults.max);
    EXPECT_LT(added.serial, addParameter(4).serial);
}

TEST_F(EditOfProfile, CodeOfAnotherRecordIsRefused)
{
    addFid(21, "One");
    addFid(22, "Two");
    EXPECT_FALSE(edit.setUserFidCode(21, 22));
    EXPECT_FALSE(edit.setUserFidCode(3, 5));
    EXPECT_EQ(profile().userFids.at(21).name, name("One"));
    EXPECT_EQ(profile().userFids.at(22).name, name("Two"));
    const std::uint32_t serial = profile().userFids.at(21).serial;
    EXPECT_TRUE(edit.setUserFidCode(21, 23));
    EXPECT_EQ(profile().userFids.count(21), 0U);
    EXPECT_EQ(profile().userFids.at(23).code, 23U);
    EXPECT_EQ(profile().userFids.at(23).name, name("One"));
    EXPECT_EQ(profile().userFids.at(23).serial, serial);

    addUnit(100, "a");
    addUnit(101, "b");
    EXPECT_FALSE(edit.setUserUnitCode(100, 101));
    EXPECT_TRUE(edit.setUserUnitCode(100, 999));
    EXPECT_EQ(profile().userUnits.at(999).code, 999U);
    EXPECT_EQ(profile().userUnits.at(101).name, name("b"));

    const QString state = edit.addEnumeration();
    edit.addEnumValue(state);
    edit.addEnumValue(state);
    EXPECT_FALSE(edit.setEnumValue(state, 0, 1));
    EXPECT_FALSE(edit.setEnumValue(name("none"), 0, 7));
    EXPECT_TRUE(edit.setEnumValue(state, 0, -7));
    EXPECT_EQ(profile().enums.at(state).values.at(-7).value, -7);
    EXPECT_EQ(profile().enums.at(state).values.size(), 2U);
}

TEST_F(EditOfProfile, ParametersFollowTheirUnit)
{
    addUnit(100, "knots");
    addUnit(44, "mine");
    ProfileParameter& user = addParameter(4);
    edit.setUnit(user, 100);
    ProfileParameter& standard = addParameter(4);
    edit.setUnit(standard, 44);
    EXPECT_TRUE(edit.setUserUnitCode(100, 200));
    EXPECT_EQ(user.puc, 200U);
    EXPECT_TRUE(edit.setUserUnitCode(44, 300)); // the parameter has the standard's
    EXPECT_EQ(standard.puc, 44U);
}

TEST_F(EditOfProfile, ParametersFollowTheirEnumeration)
{
    const QString first = edit.addEnumeration();
    const QString second = edit.addEnumeration();
    ProfileParameter& user = addParameter(4);
    edit.setDataType(user, -profile().enums.at(first).enumId);
    ProfileParameter& other = addParameter(4);
    other.typeName = name("Mod"); // names nothing: on the way of the new name
    EXPECT_TRUE(edit.renameEnumeration(first, name("Mod")));
    EXPECT_TRUE(edit.renameEnumeration(name("Mod"), name("Mode")));
    EXPECT_EQ(user.typeName, name("Mode"));
    EXPECT_EQ(user.enumId, profile().enums.at(name("Mode")).enumId);
    EXPECT_EQ(other.typeName, name("Mod"));
    EXPECT_EQ(profile().enums.at(name("Mode")).name, name("Mode"));
    EXPECT_FALSE(edit.renameEnumeration(name("Mode"), second));
    EXPECT_FALSE(edit.renameEnumeration(name("Mode"), name("FLOAT")));
    EXPECT_FALSE(edit.renameEnumeration(name("none"), name("some")));
    EXPECT_EQ(profile().enums.size(), 2U);
}

TEST_F(EditOfProfile, EnumerationAdoptsParametersThatNameIt)
{
    ProfileParameter& user = addParameter(4);
    user.typeName = name("Mode");
    user.enumId = -1;
    edit.addEnumeration();
    ASSERT_TRUE(edit.renameEnumeration(name("NewEnum"), name("Mode")));
    edit.adoptParameters(name("Mode"));
    EXPECT_EQ(user.enumId, profile().enums.at(name("Mode")).enumId);
    EXPECT_EQ(user.dtc, 1U);
    ASSERT_TRUE(edit.renameEnumeration(name("Mode"), name("Modes")));
    EXPECT_EQ(user.typeName, name("Modes"));
    edit.adoptParameters(name("none"));
}

TEST_F(EditOfProfile, MovedChapterTakesItsParametersAndThePlaceOfAnother)
{
    addFid(21, "Mine");
    addParameter(4);
    addParameter(4);
    addParameter(8);
    const std::uint32_t id = profile().fids.at(4).parameters.begin()->second.id = 77;
    const std::uint32_t serial = profile().fids.at(4).serial;
    ASSERT_TRUE(edit.moveChapter(4, 8));
    EXPECT_EQ(profile().fids.count(4), 0U);
    const ProfileFidGroup& group = profile().fids.at(8);
    EXPECT_EQ(group.fid, 8U);
    EXPECT_EQ(group.serial, serial);
    EXPECT_EQ(group.name, store.currentFidTable().at(8));
    ASSERT_EQ(group.parameters.size(), 2U);
    for (const auto& [key, parameter] : group.parameters) {
        EXPECT_EQ(parameter.fid, 8U);
    }
    EXPECT_EQ(group.parameters.begin()->second.id, id);
    ASSERT_TRUE(edit.moveChapter(8, 21));
    EXPECT_EQ(profile().fids.at(21).name, name("Mine"));
    ASSERT_TRUE(edit.moveChapter(21, 22));
    EXPECT_EQ(profile().fids.at(22).name, name("Reserved"));
    EXPECT_FALSE(edit.moveChapter(22, 22));
    EXPECT_EQ(profile().fids.at(22).parameters.size(), 2U);
    EXPECT_FALSE(edit.moveChapter(99, 22));
    EXPECT_EQ(profile().fids.at(22).parameters.size(), 2U);
}

TEST_F(EditOfProfile, MovedChapterIsNamedByTheChosenVersion)
{
    setVersion(1);
    addFid(21, "Mine");
    addParameter(4);
    ASSERT_TRUE(edit.moveChapter(4, 21));
    EXPECT_EQ(profile().fids.at(21).name, name("Wings"));
}

TEST_F(EditOfProfile, ChapterOfAUserFidIsNamedAfterIt)
{
    addParameter(21);
    addParameter(4);
    profile().fids.at(4).name = name("File's");
    EXPECT_TRUE(edit.renameChapter(21));
    EXPECT_EQ(profile().fids.at(21).name, name("Reserved"));
    addFid(21, "Mine");
    addFid(4, "Mine");
    EXPECT_TRUE(edit.renameChapter(21));
    EXPECT_EQ(profile().fids.at(21).name, name("Mine"));
    EXPECT_FALSE(edit.renameChapter(21));
    EXPECT_FALSE(edit.renameChapter(4));
    EXPECT_EQ(profile().fids.at(4).name, name("File's"));
    EXPECT_FALSE(edit.renameChapter(99));
}

TEST_F(EditOfProfile, DocAndServerShareTheNid)
{
    ProfileParameter parameter;
    edit.setDoc(parameter, 5 << 9 | 7);
    EXPECT_EQ(parameter.doc, 5U << 9 | 7U);
    EXPECT_EQ(parameter.dfid, 5U);
    ProfileEdit::setServerFid(parameter, 127);
    EXPECT_EQ(parameter.dfid, 127U);
    EXPECT_EQ(parameter.doc, 127U << 9 | 7U);
    parameter.doc = 65536 + 3;
    ProfileEdit::setServerFid(parameter, 1);
    EXPECT_EQ(parameter.doc, 1U << 9 | 3U); // in the range of a NID again
}

TEST_F(EditOfProfile, ServerComesBackFromBothForms)
{
    for (const int version : {0, 1}) {
        setVersion(version);
        edit.clear();
        ASSERT_EQ(edit.addChapter(), 0U);
        ProfileParameter& parameter = addParameter(0);
        parameter.lcc = 4;
        ProfileEdit::setServerFid(parameter, 93);
        parameter.sid = 12;
        const QString path = home.file(name("a.pro"));
        ASSERT_TRUE(edit.write(path));
        ASSERT_TRUE(edit.read(path));
        const ProfileParameter& again = profile().fids.at(0).parameters.begin()->second;
        EXPECT_EQ(again.dfid, 93U) << version;
        EXPECT_EQ(again.sid, 12U) << version;
    }
}

TEST_F(EditOfProfile, UnitSetsCodeAndNames)
{
    addUnit(100, "knots");
    ProfileParameter parameter;
    edit.setUnit(parameter, 44);
    EXPECT_EQ(parameter.puc, 44U);
    EXPECT_EQ(parameter.pun, name("o (deg)"));
    EXPECT_EQ(parameter.unitLabel, name("o (deg)"));
    edit.setUnit(parameter, 100);
    EXPECT_EQ(parameter.puc, 100U);
    EXPECT_EQ(parameter.pun, name("knots"));
    edit.setUnit(parameter, 54);
    EXPECT_EQ(parameter.puc, 100U);
}

TEST_F(EditOfProfile, DataTypeIsSetAsReadersSetIt)
{
    const QString state = edit.addEnumeration();
    const std::int32_t id = profile().enums.at(state).enumId;
    ProfileParameter parameter;
    edit.setDataType(parameter, 5);
    EXPECT_EQ(parameter.typeName, name("SHORT"));
    EXPECT_EQ(parameter.dtc, 5U);
    EXPECT_EQ(parameter.enumId, 0);
    edit.setDataType(parameter, -id);
    EXPECT_EQ(parameter.typeName, state);
    EXPECT_EQ(parameter.dtc, 1U);
    EXPECT_EQ(parameter.enumId, id);
    for (const int unknown : {16, -id - 1, zul::noChoice}) {
        edit.setDataType(parameter, unknown);
        EXPECT_EQ(parameter.typeName, state);
    }
    edit.setDataType(parameter, 1);
    EXPECT_EQ(parameter.typeName, name("ENUM"));
    EXPECT_EQ(parameter.enumId, 0);
}

} // namespace

#include "tests/gui/ProfileEditorFixture.h"

// Codes, values and names that tell the records of a text profile apart, in its editor: what is
// taken of them and when, and which parameters follow.

namespace {

class ProfileEditorKeys : public zul::test::ProfileEditorTest
{
};

TEST_F(ProfileEditorKeys, NumberThatStandsForNothingMayBeARecords)
{
    openText("<fid>\nFar;999999\nOwn;21\n<unit>\nHigh;999999\nknots;100\n<enum>\n"
             "State;0;Off\nState;999999;Never\n");
    select({"Enumerations", "State", "0:  Off"});
    select({"Enumerations", "State", "999999:  Never"});
    EXPECT_EQ(number("enumValue"), 999999);
    select({"Enumerations", "State"});
    EXPECT_EQ(text("enumName"), name("State"));
    select({"User Units", "100 knots"});
    EXPECT_EQ(text("unitName"), name("knots"));
    select({"User FIDs", "999999 Far"});
    EXPECT_EQ(text("fidName"), name("Far"));
    select({"User FIDs", "21 Own"});
    EXPECT_EQ(text("fidName"), name("Own"));
    select({"User Units", "999999 High"});
    EXPECT_EQ(text("unitName"), name("High"));
    EXPECT_FALSE(isChanged());
}

TEST_F(ProfileEditorKeys, NumberThatStandsForNothingCanBeTyped)
{
    openText("<enum>\nState;0;Off\n");
    select({"Enumerations", "State", "0:  Off"});
    enter("enumValue", "999999");
    select({"Enumerations", "State"});
    EXPECT_EQ(text("enumName"), name("State"));
    select({"Enumerations", "State", "999999:  Off"});
    EXPECT_EQ(text("enumString"), name("Off"));
}

TEST_F(ProfileEditorKeys, TakenCodeIsRefusedAsAWhole)
{
    openText("<fid>\nA;12\nB;30\n<unit>\nC;112\nD;300\n<enum>\nState;12;E\nState;30;F\n");
    struct Row
    {
        std::vector<const char*> path;
        const char* field;
        const char* taken;
        int old;
        const char* free;
    };
    const Row rows[] = {{{"User FIDs", "30 B"}, "fidValue", "12", 30, "31"},
                        {{"User Units", "300 D"}, "unitValue", "112", 300, "310"},
                        {{"Enumerations", "State", "30:  F"}, "enumValue", "12", 30, "31"}};
    for (const Row& row : rows) {
        if (row.path.size() == 2) {
            select({row.path[0], row.path[1]});
        } else {
            select({row.path[0], row.path[1], row.path[2]});
        }
        for (const Qt::Key end : {Qt::Key_Return, Qt::Key_Tab}) {
            type(row.field, row.taken);
            EXPECT_FALSE(isChanged()) << row.field;
            press(row.field, end);
            EXPECT_EQ(number(row.field), row.old) << row.field;
            EXPECT_EQ(control<QSpinBox>(row.field)->text(), QString::number(row.old));
            EXPECT_EQ(selected(), name(row.path.back()));
            EXPECT_FALSE(isChanged()) << row.field;
        }
        type(row.field, row.free);
        EXPECT_EQ(selected(), name(row.path.back())); // not finished yet
        press(row.field, Qt::Key_Tab);
        EXPECT_TRUE(selected().startsWith(name(row.free))) << row.field;
        EXPECT_TRUE(isChanged());
        saved();
    }
}

TEST_F(ProfileEditorKeys, StepCountsAtOnceAndStopsAtATakenCode)
{
    openText("<fid>\nA;30\nB;33\n");
    select({"User FIDs", "30 A"});
    press("fidValue", Qt::Key_Up);
    EXPECT_EQ(selected(), name("31 A"));
    press("fidValue", Qt::Key_Up);
    press("fidValue", Qt::Key_Up);
    EXPECT_EQ(selected(), name("32 A"));
    EXPECT_EQ(number("fidValue"), 32);
    EXPECT_EQ(below(item({"User FIDs"})), texts({"32 A", "33 B"}));
}

TEST_F(ProfileEditorKeys, NameOfAnEnumerationCountsWhenItIsFinished)
{
    openText("<enum>\nState;0;Off\nZ;0;On\n<parameter>\n"
             "NOC;4;1;0;0;0;0.0;0.7;0;State;Mode;n.a.;0;1;0;N\n"
             "NOC;4;2;0;0;0;0.0;0.7;0;Z;Other;n.a.;0;1;0;N\n");
    select({"Enumerations", "State"});
    type("enumName", "ZZ"); // over the name of the other
    EXPECT_EQ(selected(), name("State"));
    EXPECT_FALSE(isChanged());
    press("enumName", Qt::Key_Tab);
    EXPECT_EQ(selected(), name("ZZ"));
    EXPECT_EQ(below(item({"Enumerations"})), texts({"Z", "ZZ"}));
    EXPECT_TRUE(isChanged());
    enter("enumName", "FLOAT");
    EXPECT_EQ(text("enumName"), name("ZZ"));
    const QStringList lines = savedLines("<parameter>");
    EXPECT_EQ(lines.value(0).section(QLatin1Char(';'), 9, 9), name("ZZ"));
    EXPECT_EQ(lines.value(1).section(QLatin1Char(';'), 9, 9), name("Z"));
}

TEST_F(ProfileEditorKeys, UnfinishedNameDoesNotGoToAnotherEnumeration)
{
    openText("<enum>\nState;0;Off\nZeta;0;On\n");
    select({"Enumerations", "State"});
    type("enumName", "Mine");
    tree->setCurrentItem(item({"Enumerations", "Zeta"}));
    EXPECT_EQ(text("enumName"), name("Zeta"));
    press("enumName", Qt::Key_Tab);
    EXPECT_EQ(below(item({"Enumerations"})), texts({"State", "Zeta"}));
}

TEST_F(ProfileEditorKeys, StepsOfAUnitPassParametersOfACodeOnTheWay)
{
    openText("<unit>\nknots;100\n<parameter>\n"
             "NOC;4;1;0;0;0;0.0;0.7;100;UCHAR;A;knots;0;1;0;N\n"
             "NOC;4;2;0;0;0;0.0;0.7;101;UCHAR;B;lost;0;1;0;N\n");
    select({"User Units", "100 knots"});
    press("unitValue", Qt::Key_Up);
    press("unitValue", Qt::Key_Up);
    EXPECT_EQ(selected(), name("102 knots"));
    EXPECT_EQ(savedLines("<parameter>"), texts({"NOC;4;1;0;0;0;0.0;0.7;102;UCHAR;A;knots;0;1;0;N",
                                                "NOC;4;2;0;0;0;0.0;0.7;101;UCHAR;B;lost;0;1;0;N"}));
    // At its code when the unit is selected: one of its parameters from then on.
    press("unitValue", Qt::Key_Down);
    select({"User Units"});
    select({"User Units", "101 knots"});
    press("unitValue", Qt::Key_Down);
    EXPECT_EQ(savedLines("<parameter>"), texts({"NOC;4;1;0;0;0;0.0;0.7;100;UCHAR;A;knots;0;1;0;N",
                                                "NOC;4;2;0;0;0;0.0;0.7;100;UCHAR;B;lost;0;1;0;N"}));
}

TEST_F(ProfileEditorKeys, ParametersFollowTheNameOfTheirUnit)
{
    openText("<unit>\nknots;100\n<parameter>\n"
             "NOC;4;1;0;0;0;0.0;0.7;100;UCHAR;A;knots;0;1;0;N\n"
             "NOC;4;2;0;0;0;0.0;0.7;100;UCHAR;B;own;0;1;0;N\n"
             "NOC;8;3;0;0;0;0.0;0.7;101;UCHAR;C;knots;0;1;0;N\n"
             "NOC;8;4;0;0;0;0.0;0.7;100;UCHAR;D;knots;0;1;0;N\n");
    select({"User Units", "100 knots"});
    type("unitName", "owned"); // by way of the name of B's
    EXPECT_EQ(selected(), name("100 owned"));
    EXPECT_EQ(below(item({"Parameter"})->child(0)), texts({"A [owned]", "B [own]"}));
    EXPECT_EQ(below(item({"Parameter"})->child(1)), texts({"C [knots]", "D [owned]"}));
    EXPECT_TRUE(
        item({"Parameter"})->child(1)->child(1)->toolTip(0).startsWith(name("D [owned]\n")));
    QStringList names;
    for (const QString& line : savedLines("<parameter>")) {
        names << line.section(QLatin1Char(';'), 11, 11);
    }
    EXPECT_EQ(names, texts({"owned", "own", "knots", "owned"}));
    setVersion(1);
    EXPECT_EQ(saved().fids.at(4).parameters.begin()->second.unitLabel, name("owned"));
}

TEST_F(ProfileEditorKeys, NidOfXmlProfilesLeavesTheServer)
{
    setVersion(1);
    openText("<Arinc825Profile name=\"x\" id=\"1.2\"><ParameterList><Sfid id=\"4\"><Parameter "
             "lcc=\"UDC\" sid=\"9\" dfid=\"93\" dtn=\"UCHAR\" nme=\"A\" pua=\"m\" spp=\"0.0\" "
             "epp=\"0.7\"/></Sfid></ParameterList></Arinc825Profile>");
    for (const char* channel : {"UDC", "FMC"}) {
        tree->setCurrentItem(item({"Parameter"})->child(0)->child(0));
        choose("lcc", channel);
        type("doc", "1234");
        const ProfileParameter again = saved().fids.at(4).parameters.begin()->second;
        EXPECT_EQ(again.dfid, 93U) << channel;
        EXPECT_EQ(again.sid, 9U) << channel;
        EXPECT_EQ(again.doc, 0U) << channel; // not kept
    }
}

} // namespace

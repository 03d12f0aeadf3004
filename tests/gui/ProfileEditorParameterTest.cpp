#include "tests/gui/ProfileEditorFixture.h"

// The page of a parameter in the editor of text profiles.

namespace {

using zul::test::pitchLine;

class ProfileEditorParameter : public zul::test::ProfileEditorTest
{
};

TEST_F(ProfileEditorParameter, NewParameterHasItsDefaults)
{
    addParameter();
    EXPECT_EQ(selected(), name("NewPara [Unit]"));
    EXPECT_EQ(tree->currentItem()->toolTip(0),
              name("NewPara [Unit]\nLCC:\t0\nFID:\t0\nLCL:\t0\nPVT:\t0\nDOC:\t0\n"));
    EXPECT_EQ(text("nme"), name("NewPara"));
    EXPECT_EQ(chosen("lcc"), name("EEC"));
    EXPECT_EQ(chosen("pua"), name("  0 n.a."));
    EXPECT_EQ(chosen("dtn"), name("FLOAT"));
    EXPECT_EQ(chosen("rci"), name("A"));
    EXPECT_EQ(text("min"), name("0"));
    EXPECT_EQ(text("max"), name("1"));
    EXPECT_EQ(text("notes"), name("Notes"));
    EXPECT_EQ(savedParameter().join(QLatin1Char(';')),
              name("EEC;0;0;0;0;0;0.0;0.0;0;FLOAT;NewPara;Unit;0;1;0;Notes"));
}

TEST_F(ProfileEditorParameter, EveryFieldOfAParameter)
{
    select({"User Units"});
    add();
    type("unitName", "knots");
    select({"Enumerations"});
    add();
    enter("enumName", "State");
    addParameter();
    type("nme", "Speed");
    choose("lcc", "TMC");
    type("doc", "93");
    type("sid", "12");
    check("lcl");
    check("pvt");
    type("sppByte", "7");
    type("sppBit", "1");
    type("eppByte", "6");
    type("eppBit", "5");
    choose("pua", "100 knots");
    choose("dtn", "State");
    type("min", "-1.5");
    type("max", "2e3");
    type("upr", "40");
    type("lat", "0.25");
    choose("rci", "C");
    type("notes", "as \"told\" & <b>");
    EXPECT_EQ(selected(), name("Speed [knots]"));
    EXPECT_EQ(tree->currentItem()->toolTip(0),
              name("Speed [knots]\nLCC:\t6\nFID:\t0\nLCL:\t1\nPVT:\t1\nDOC:\t47616\n"));
    EXPECT_EQ(savedParameter().join(QLatin1Char(';')),
              name("TMC;0;47616;1;1;12;7.1;6.5;100;State;Speed;knots;-1.5;2000;40;"
                   "as \"told\" & <b>"));
    setVersion(1);
    const ProfileParameter again = saved().fids.at(0).parameters.begin()->second;
    EXPECT_EQ(again.lcc, 6U);
    EXPECT_EQ(again.dfid, 93U);
    EXPECT_EQ(again.sid, 12U);
    EXPECT_EQ(again.pun, name("knots"));
    EXPECT_EQ(again.lat, 0.25);
    EXPECT_EQ(again.rci, 2U);
    EXPECT_EQ(again.notes, name("as \"told\" & <b>"));
    EXPECT_EQ(again.puc, 0U); // not kept by the XML form
    EXPECT_EQ(again.upr, 0);
}

TEST_F(ProfileEditorParameter, ListsOfAParameter)
{
    openText("<unit>\nknots;100\n<enum>\nState;0;Off\n<parameter>\n" + pitchLine);
    select({"Parameter", "4 Flight State", "Pitch [deg]"});
    EXPECT_EQ(choices("lcc"), texts({"EEC", "NOC", "NSC", "UDC", "TMC", "FMC"}));
    EXPECT_EQ(choices("rci"), texts({"A", "B", "C", "D"}));
    EXPECT_EQ(choices("dtn"),
              texts({"NODATA", "ENUM", "CHAR", "UCHAR", "ACHAR", "SHORT", "USHORT", "LONG", "ULONG",
                     "FLOAT", "LONG64", "ULONG64", "DOUBLE", "OPAQUE", "BOOL", "BCD", "State"}));
    EXPECT_EQ(choices("pua").size(), 55);
    EXPECT_EQ(choices("pua").last(), name("100 knots"));
    EXPECT_EQ(chosen("pua"), name(" 44 o (deg)"));
    // Lists follow what is added and deleted.
    select({"User Units"});
    add();
    select({"Enumerations", "State"});
    remove();
    select({"Parameter", "4 Flight State", "Pitch [deg]"});
    EXPECT_EQ(choices("pua").last(), name("101 NewUnit"));
    EXPECT_EQ(choices("dtn").last(), name("BCD"));
    EXPECT_EQ(selected(), name("Pitch [deg]"));
}

TEST_F(ProfileEditorParameter, SecondFieldIsThatOfServiceChannels)
{
    addParameter();
    for (const char* channel : {"EEC", "NOC", "NSC", "UDC", "TMC", "FMC"}) {
        choose("lcc", channel);
        const bool isService = name(channel) == name("NSC") || name(channel) == name("TMC");
        EXPECT_EQ(control<QSpinBox>("sid")->isEnabled(), isService) << channel;
        EXPECT_EQ(label("doc")->text(), name(isService ? "FID/SID :" : "DOC :")) << channel;
        EXPECT_EQ(
            label("doc")->toolTip(),
            name(isService ? "Destination Function Identifier\nServer Id" : "Data Object Code"))
            << channel;
        const bool hasDoc = name(channel) == name("EEC") || name(channel) == name("NOC");
        EXPECT_EQ(control<QSpinBox>("doc")->maximum(), isService ? 127
                                                       : hasDoc  ? 16384
                                                                 : 65535)
            << channel;
        EXPECT_EQ(control<QSpinBox>("sid")->maximum(), 127);
    }
    setVersion(1);
    choose("lcc", "TMC");
    EXPECT_EQ(control<QSpinBox>("sid")->maximum(), 511);
}

TEST_F(ProfileEditorParameter, FirstFieldIsDocOrServer)
{
    addParameter();
    type("doc", "16384");
    EXPECT_EQ(savedParameter().value(2), name("16384"));
    choose("lcc", "NSC");
    EXPECT_EQ(number("doc"), 32); // the same number, read as a NID
    type("doc", "5");
    EXPECT_EQ(savedParameter().value(2), name("2560"));
    choose("lcc", "FMC");
    EXPECT_EQ(number("doc"), 2560);
    type("doc", "65535");
    choose("lcc", "TMC");
    EXPECT_EQ(number("doc"), 127);
    EXPECT_EQ(savedParameter().value(2), name("65535"));
}

TEST_F(ProfileEditorParameter, UnitWritesCodeAndName)
{
    addParameter();
    choose("pua", " 38 W");
    EXPECT_EQ(savedParameter().value(8), name("38"));
    EXPECT_EQ(savedParameter().value(11), name("W"));
}

TEST_F(ProfileEditorParameter, WhatIsNoNumberGoesWhenTheFieldIsLeft)
{
    addParameter();
    type("max", "12.5");
    for (const char* text : {"-", "abc", "inf", "nan", ""}) {
        type("max", text);
        press("max", Qt::Key_Tab);
        EXPECT_EQ(ProfileEditorTest::text("max"), name("12.5")) << text;
        EXPECT_EQ(savedParameter().value(13), name("12.5")) << text;
    }
    type("max", "1e999"); // the last digit makes it infinite
    press("max", Qt::Key_Tab);
    EXPECT_EQ(text("max"), name("1e+99"));
    type("max", "-0.000000001234567");
    press("max", Qt::Key_Tab);
    EXPECT_EQ(text("max"), name("-1.234567e-09"));
}

TEST_F(ProfileEditorParameter, NumbersBeyondTheFieldsStayUntilEdited)
{
    openText("<profile>\nFlight;70000;-1\n<fid>\nFar;200\n<unit>\nLow;99\n<parameter>\n"
             "NOC;4;20000;2;3;900;9.8;12.9;1000;WHAT;A;Mine;5;1;-4;N\n");
    const QStringList before = savedLines("<parameter>");
    for (QTreeWidgetItemIterator at(tree); *at != nullptr; ++at) {
        tree->setCurrentItem(*at);
    }
    EXPECT_FALSE(isChanged());
    EXPECT_EQ(savedLines("<parameter>"), before);
    EXPECT_EQ(before, texts({"NOC;4;20000;2;3;900;9.8;12.9;1000;WHAT;A;Mine;5;1;-4;N"}));
    EXPECT_EQ(savedLines("<fid>"), texts({"Far;200"}));
    EXPECT_EQ(savedLines("<profile>"), texts({"Flight;70000;-1"}));
    select({"Profile Info"});
    EXPECT_EQ(number("profileId"), 65535);
    EXPECT_EQ(number("profileSubId"), 0);
    select({"Parameter", "4 Flight State", "A [Mine]"});
    EXPECT_EQ(number("doc"), 16384);
    EXPECT_EQ(number("sppByte"), 7);
    EXPECT_EQ(number("upr"), 0);
    EXPECT_TRUE(control<QCheckBox>("lcl")->isChecked());
    EXPECT_EQ(control<QComboBox>("pua")->currentIndex(), -1);
    EXPECT_EQ(control<QComboBox>("dtn")->currentIndex(), -1);
    type("eppBit", "3");
    EXPECT_EQ(savedLines("<parameter>"),
              texts({"NOC;4;20000;2;3;900;9.8;12.3;1000;WHAT;A;Mine;5;1;-4;N"}));
}

TEST_F(ProfileEditorParameter, DeletedParameterAndChapter)
{
    openText("<parameter>\n" + pitchLine + "NOC;4;1;0;0;0;0.0;0.7;0;UCHAR;A;B;0;1;0;N\n");
    select({"Parameter", "4 Flight State", "Pitch [deg]"});
    remove();
    EXPECT_EQ(selected(), name("A [B]"));
    EXPECT_EQ(text("nme"), name("A"));
    remove();
    EXPECT_EQ(selected(), name("4 Flight State"));
    EXPECT_EQ(pageTitle(), name("Chapter"));
    remove();
    EXPECT_EQ(selected(), name("Parameter"));
    EXPECT_EQ(item({"Parameter"})->childCount(), 0);
    EXPECT_TRUE(savedLines("<parameter>").isEmpty());
}

TEST_F(ProfileEditorParameter, NearestNumberIsTakenWhenItIsTyped)
{
    openText("<unit>\nLow;99\n<parameter>\n"
             "NOC;4;20000;0;0;0;0.0;0.7;0;UCHAR;A;Mine;0;1;-4;N\n");
    select({"Parameter", "4 Flight State", "A [Mine]"});
    control<QSpinBox>("upr")->setFocus();
    press("upr", Qt::Key_Tab);
    EXPECT_FALSE(isChanged()); // it was only looked at
    type("upr", "0");
    press("upr", Qt::Key_Tab);
    EXPECT_EQ(savedParameter().value(14), name("0"));
    control<QSpinBox>("upr")->setFocus();
    press("upr", Qt::Key_Tab);
    EXPECT_FALSE(isChanged());
    select({"User Units", "99 Low"});
    EXPECT_EQ(number("unitValue"), 100);
    type("unitValue", "100");
    press("unitValue", Qt::Key_Tab);
    EXPECT_EQ(savedLines("<unit>"), texts({"Low;100"}));
    EXPECT_EQ(selected(), name("100 Low"));
}

} // namespace

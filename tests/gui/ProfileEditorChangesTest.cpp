#include "tests/gui/ProfileEditorFixture.h"

#include <functional>

// What counts as a change in the editor of text profiles, what it deletes, and its tool tips.

namespace {

using zul::test::pitchLine;

class ProfileEditorChanges : public zul::test::ProfileEditorTest
{
protected:
    void openAll()
    {
        openText("<profile>\nFlight;1;2\n<fid>\nOwn;21\n<unit>\nknots;100\n<enum>\nState;0;Off\n"
                 "<parameter>\n" +
                 pitchLine);
    }
    void selectParameter() { select({"Parameter", "4 Flight State", "Pitch [deg]"}); }
};

TEST_F(ProfileEditorChanges, EveryFieldThatIsChangedMarksTheProfile)
{
    struct Row
    {
        const char* field;
        std::vector<const char*> path;
        std::function<void()> change;
    };
    const std::vector<const char*> parameter{"Parameter", "4 Flight State", "Pitch [deg]"};
    const std::vector<const char*> value{"Enumerations", "State", "0:  Off"};
    const auto types = [this](const char* field, const char* text) {
        return [this, field, text] { enter(field, text); };
    };
    const auto chooses = [this](const char* field, const char* text) {
        return [this, field, text] { choose(field, text); };
    };
    const auto checks = [this](const char* field) { return [this, field] { check(field); }; };
    const Row rows[] = {
        {"header", {"Header"}, [this] { QTest::keyClicks(control<QWidget>("header"), name("x")); }},
        {"profileName", {"Profile Info"}, types("profileName", "x")},
        {"profileId", {"Profile Info"}, types("profileId", "7")},
        {"profileSubId", {"Profile Info"}, types("profileSubId", "7")},
        {"fidName", {"User FIDs", "21 Own"}, types("fidName", "x")},
        {"fidValue", {"User FIDs", "21 Own"}, types("fidValue", "22")},
        {"unitName", {"User Units", "100 knots"}, types("unitName", "x")},
        {"unitValue", {"User Units", "100 knots"}, types("unitValue", "101")},
        {"enumName", {"Enumerations", "State"}, types("enumName", "x")},
        {"enumValue", value, types("enumValue", "7")},
        {"enumString", value, types("enumString", "x")},
        {"chapterFid", {"Parameter", "4 Flight State"}, chooses("chapterFid", " 21 Own")},
        {"nme", parameter, types("nme", "x")},
        {"lcc", parameter, chooses("lcc", "EEC")},
        {"doc", parameter, types("doc", "7")},
        {"fid", parameter,
         [this] {
             choose("lcc", "NSC");
             saved();
             enter("doc", "7");
         }},
        {"sid", parameter,
         [this] {
             choose("lcc", "NSC");
             saved();
             enter("sid", "7");
         }},
        {"lcl", parameter, checks("lcl")},
        {"pvt", parameter, checks("pvt")},
        {"sppByte", parameter, types("sppByte", "7")},
        {"sppBit", parameter, types("sppBit", "1")},
        {"eppByte", parameter, types("eppByte", "4")},
        {"eppBit", parameter, types("eppBit", "6")},
        {"pua", parameter, chooses("pua", "100 knots")},
        {"dtn", parameter, chooses("dtn", "State")},
        {"min", parameter, types("min", "7")},
        {"max", parameter, types("max", "7")},
        {"upr", parameter, types("upr", "7")},
        {"lat", parameter, types("lat", "7")},
        {"rci", parameter, chooses("rci", "B")},
        {"notes", parameter, types("notes", "x")},
    };
    for (const Row& row : rows) {
        openAll();
        QTreeWidgetItem* at = tree->invisibleRootItem();
        for (const char* text : row.path) {
            for (int i = 0; i < at->childCount(); ++i) {
                if (at->child(i)->text(0) == name(text)) {
                    at = at->child(i);
                    break;
                }
            }
        }
        tree->setCurrentItem(at);
        ASSERT_EQ(selected(), name(row.path.back()));
        ASSERT_FALSE(isChanged()) << row.field;
        row.change();
        EXPECT_TRUE(isChanged()) << row.field;
        EXPECT_TRUE(editor.isChanged()) << row.field;
        saved();
        EXPECT_FALSE(isChanged()) << row.field;
    }
}

TEST_F(ProfileEditorChanges, AddedAndDeletedRecordsMarkTheProfile)
{
    for (const std::vector<const char*>& path :
         std::vector<std::vector<const char*>>{{"User FIDs", "21 Own"},
                                               {"User Units", "100 knots"},
                                               {"Enumerations", "State"},
                                               {"Enumerations", "State", "0:  Off"},
                                               {"Parameter", "4 Flight State"},
                                               {"Parameter", "4 Flight State", "Pitch [deg]"}}) {
        for (const char* button : {"parameter-add", "parameter-delete"}) {
            openAll();
            path.size() == 2 ? select({path[0], path[1]}) : select({path[0], path[1], path[2]});
            EXPECT_FALSE(isChanged());
            click(button);
            EXPECT_TRUE(isChanged()) << path.back() << button;
            saved();
        }
    }
    for (const char* list : {"User FIDs", "User Units", "Enumerations", "Parameter"}) {
        openAll();
        select({list});
        add();
        EXPECT_TRUE(isChanged()) << list;
        saved();
    }
}

TEST_F(ProfileEditorChanges, AddBesideAParameterAddsToItsChapter)
{
    openText("<parameter>\n" + pitchLine + "NOC;8;1;0;0;0;0.0;0.7;0;UCHAR;A;B;0;1;0;N\n");
    selectParameter();
    add();
    EXPECT_EQ(selected(), name("NewPara [Unit]"));
    EXPECT_EQ(below(item({"Parameter", "4 Flight State"})),
              texts({"Pitch [deg]", "NewPara [Unit]"}));
    const ArincProfile again = saved();
    ASSERT_EQ(again.fids.at(4).parameters.size(), 2U);
    EXPECT_EQ(again.fids.at(4).parameters.rbegin()->second.nme, name("NewPara"));
    EXPECT_EQ(again.fids.at(8).parameters.size(), 1U);
}

TEST_F(ProfileEditorChanges, DeletedChapterTakesItsParametersFoldedOrNot)
{
    for (const bool isUnfolded : {false, true}) {
        openText("<parameter>\n" + pitchLine + pitchLine +
                 "NOC;8;1;0;0;0;0.0;0.7;0;UCHAR;A;B;0;1;0;N\n");
        select({"Parameter", "4 Flight State"});
        tree->currentItem()->setExpanded(isUnfolded);
        remove();
        ASSERT_EQ(item({"Parameter"})->childCount(), 1) << isUnfolded;
        EXPECT_TRUE(selected().startsWith(name("8 "))) << isUnfolded;
        EXPECT_EQ(pageTitle(), name("Chapter"));
        EXPECT_TRUE(chosen("chapterFid").startsWith(name("  8 ")));
        EXPECT_EQ(savedLines("<parameter>"), texts({"NOC;8;1;0;0;0;0.0;0.7;0;UCHAR;A;B;0;1;0;N"}));
        add();
        EXPECT_EQ(selected(), name("NewPara [Unit]"));
        EXPECT_EQ(saved().fids.at(8).parameters.size(), 2U);
    }
}

TEST_F(ProfileEditorChanges, LastDeletedRecordSelectsItsList)
{
    openAll();
    select({"User FIDs", "21 Own"});
    remove();
    EXPECT_EQ(selected(), name("User FIDs"));
    EXPECT_EQ(pageTitle(), name("User FIDs"));
    select({"User Units", "100 knots"});
    remove();
    EXPECT_EQ(selected(), name("User Units"));
    EXPECT_EQ(pageTitle(), name("User Units"));
    EXPECT_FALSE(control<QToolButton>("parameter-delete")->isEnabled());
}

TEST_F(ProfileEditorChanges, ChapterIsNamedAfterTheFidThatHasItsCodeNow)
{
    openText("<fid>\nOwn;21\n<parameter>\nNOC;21;1;0;0;0;0.0;0.7;0;UCHAR;A;B;0;1;0;N\n"
             "NOC;22;1;0;0;0;0.0;0.7;0;UCHAR;A;B;0;1;0;N\n"
             "NOC;1;1;0;0;0;0.0;0.7;0;UCHAR;A;B;0;1;0;N\n");
    EXPECT_EQ(below(item({"Parameter"})), texts({"1 Reserved", "21 Own", "22 Reserved"}));
    select({"User FIDs", "21 Own"});
    enter("fidValue", "22");
    EXPECT_EQ(below(item({"Parameter"})), texts({"1 Reserved", "21 Reserved", "22 Own"}));
    add();
    EXPECT_EQ(selected(), name("1 New FID"));
    EXPECT_EQ(below(item({"Parameter"})), texts({"1 New FID", "21 Reserved", "22 Own"}));
    select({"Parameter", "22 Own"});
    EXPECT_EQ(chosen("chapterFid"), name(" 22 Own"));
    EXPECT_EQ(choices("chapterFid").at(21), name(" 21 Reserved"));
}

TEST_F(ProfileEditorChanges, ToolTipsOfFields)
{
    openAll();
    struct Row
    {
        const char* field;
        const char* toolTip;
    };
    const Row rows[] = {
        {"header", "Free text, kept by text profiles only"},
        {"profileId", "0 to 65535"},
        {"profileSubId", "0 to 65535"},
        {"fidValue", "Function code that the standard leaves free\n0 to 127"},
        {"unitValue", "The parameters with this unit follow\n100 to 999"},
        {"enumName", "Also a data type of parameters, which follow"},
        {"enumValue", "-2147483648 to 2147483647"},
        {"chapterFid", "Function code of all parameters of the chapter. It takes the place of the "
                       "chapter that has the code now."},
        {"lcc", "Logical Communication Channel"},
        {"upr", "0 to 2147483647 ms"},
        {"lat", "Kept by XML profiles only"},
        {"rci", "Redundancy Channel Identifier\nKept by XML profiles only"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(control<QWidget>(row.field)->toolTip(), name(row.toolTip)) << row.field;
    }
    EXPECT_EQ(control<QSpinBox>("upr")->suffix(), name(" ms"));
    selectParameter();
    EXPECT_EQ(control<QSpinBox>("upr")->text(), name("10 ms"));
    EXPECT_EQ(label("lcc")->toolTip(), name("Logical Communication Channel"));
}

TEST_F(ProfileEditorChanges, ToolTipsOfTheIdentifierByChannel)
{
    for (const int version : {0, 1}) {
        setVersion(version);
        click("new");
        addParameter();
        for (const char* channel : {"EEC", "NOC", "NSC", "UDC", "TMC", "FMC"}) {
            choose("lcc", channel);
            const bool isService = name(channel) == name("NSC") || name(channel) == name("TMC");
            const bool hasDoc = name(channel) == name("EEC") || name(channel) == name("NOC");
            EXPECT_EQ(control<QSpinBox>("doc")->toolTip(),
                      name(isService ? "Destination Function Identifier\nServer Id\n0 to 127"
                           : hasDoc  ? "Data Object Code\n0 to 16384"
                                     : "Data Object Code\n0 to 65535"))
                << channel;
            EXPECT_EQ(control<QSpinBox>("sid")->toolTip(),
                      name(version == 0 ? "Server Id\n0 to 127" : "Server Id\n0 to 511"));
        }
        saved();
    }
}

TEST_F(ProfileEditorChanges, ToolTipsOfTheTwoButtonsAreTheirTexts)
{
    openAll();
    for (QTreeWidgetItemIterator at(tree); *at != nullptr; ++at) {
        tree->setCurrentItem(*at);
        for (const char* button : {"parameter-add", "parameter-delete"}) {
            EXPECT_EQ(control<QToolButton>(button)->toolTip(),
                      control<QToolButton>(button)->text());
        }
    }
    select({"User Units"});
    EXPECT_EQ(control<QToolButton>("parameter-add")->toolTip(), name("Add Unit"));
    EXPECT_EQ(control<QToolButton>("parameter-delete")->toolTip(), name("Delete Unit"));
}

TEST_F(ProfileEditorChanges, EnumerationNamedAsNoSelectionGetsNoValue)
{
    openText("<enum>\n__NoEnumSelected;0;Off\n");
    select({"Enumerations", "__NoEnumSelected"});
    EXPECT_EQ(text("enumName"), name("__NoEnumSelected"));
    add();
    EXPECT_EQ(item({"Enumerations", "__NoEnumSelected"})->childCount(), 1);
    select({"Enumerations", "__NoEnumSelected", "0:  Off"});
    add();
    EXPECT_EQ(item({"Enumerations", "__NoEnumSelected"})->childCount(), 1);
    EXPECT_FALSE(isChanged());
}

} // namespace

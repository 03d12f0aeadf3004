#include "gui/editor/ProfileFields.h"
#include "tests/gui/ProfileEditorFixture.h"

// The tree, the pages and the fields of the editor of text profiles.

namespace {

using zul::test::pitchLine;

class ProfileEditor : public zul::test::ProfileEditorTest
{
protected:
    QString addText() const { return control<QToolButton>("parameter-add")->text(); }
    QString deleteText() const { return control<QToolButton>("parameter-delete")->text(); }
    bool canAdd() const { return control<QToolButton>("parameter-add")->isEnabled(); }
    bool canDelete() const { return control<QToolButton>("parameter-delete")->isEnabled(); }
};

TEST_F(ProfileEditor, StartsWithANewProfile)
{
    EXPECT_EQ(title(), name("Profile Editor [none]"));
    EXPECT_EQ(below(tree->invisibleRootItem()), texts({"Header", "Profile Info", "User FIDs",
                                                       "User Units", "Enumerations", "Parameter"}));
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        EXPECT_EQ(tree->topLevelItem(i)->childCount(), 0);
        EXPECT_FALSE(tree->topLevelItem(i)->icon(0).isNull());
    }
    EXPECT_EQ(selected(), name("Header"));
    select({"Profile Info"});
    EXPECT_EQ(text("profileName"), name("NoName"));
}

TEST_F(ProfileEditor, ButtonsAreNamedAfterTheSelection)
{
    openText("<fid>\nOwn;21\n<unit>\nknots;100\n<enum>\nState;0;Off\n<parameter>\n" + pitchLine);
    struct Row
    {
        std::vector<const char*> path;
        const char* addText;
        const char* deleteText;
        bool canAdd;
        bool canDelete;
        const char* page;
    };
    const Row rows[] = {
        {{"Header"}, "Add", "Delete", false, false, "Header"},
        {{"Profile Info"}, "Add", "Delete", false, false, "Profile Info"},
        {{"User FIDs"}, "Add FID", "Delete FID", true, false, "User FIDs"},
        {{"User FIDs", "21 Own"}, "Add FID", "Delete FID", true, true, "User FID"},
        {{"User Units"}, "Add Unit", "Delete Unit", true, false, "User Units"},
        {{"User Units", "100 knots"}, "Add Unit", "Delete Unit", true, true, "User Unit"},
        {{"Enumerations"}, "Add Enumeration", "Delete Enumeration", true, false, "Enumerations"},
        {{"Enumerations", "State"}, "Add Value", "Delete Enumeration", true, true, "Enumeration"},
        {{"Enumerations", "State", "0:  Off"}, "Add Value", "Delete Value", true, true, "Value"},
        {{"Parameter"}, "Add Parameter", "Delete Parameter", true, false, "Parameter"},
        {{"Parameter", "4 Flight State"},
         "Add Parameter",
         "Delete Parameter",
         true,
         true,
         "Chapter"},
        {{"Parameter", "4 Flight State", "Pitch [deg]"},
         "Add Parameter",
         "Delete Parameter",
         true,
         true,
         "Parameter"},
    };
    for (const Row& row : rows) {
        QTreeWidgetItem* wanted = tree->invisibleRootItem();
        for (const char* text : row.path) {
            for (int i = 0; i < wanted->childCount(); ++i) {
                if (wanted->child(i)->text(0) == name(text)) {
                    wanted = wanted->child(i);
                    break;
                }
            }
        }
        tree->scrollToItem(wanted);
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {},
                          tree->visualItemRect(wanted).center());
        EXPECT_EQ(selected(), name(row.path.back()));
        EXPECT_EQ(addText(), name(row.addText)) << row.page;
        EXPECT_EQ(deleteText(), name(row.deleteText)) << row.page;
        EXPECT_EQ(canAdd(), row.canAdd) << row.page;
        EXPECT_EQ(canDelete(), row.canDelete) << row.page;
        EXPECT_EQ(pageTitle(), name(row.page));
    }
}

TEST_F(ProfileEditor, LabelsOfThePages)
{
    struct Row
    {
        const char* field;
        const char* label;
    };
    const Row rows[] = {{"header", "Text :"},
                        {"profileName", "Name :"},
                        {"profileId", "Profile ID :"},
                        {"profileSubId", "Profile Sub-ID :"},
                        {"fidName", "Name :"},
                        {"fidValue", "Code :"},
                        {"unitName", "Name :"},
                        {"unitValue", "Code :"},
                        {"enumName", "Name :"},
                        {"enumValue", "Value :"},
                        {"enumString", "Label :"},
                        {"chapterFid", "FID :"},
                        {"nme", "Name :"},
                        {"lcc", "LCC :"},
                        {"doc", "DOC :"},
                        {"lcl", "LCL :"},
                        {"sppByte", "SPP Byte/Bit :"},
                        {"eppByte", "EPP Byte/Bit :"},
                        {"pua", "Unit :"},
                        {"dtn", "Data Type :"},
                        {"min", "Minimum :"},
                        {"max", "Maximum :"},
                        {"upr", "Update Period :"},
                        {"lat", "Latency :"},
                        {"rci", "RCI :"},
                        {"notes", "Notes :"}};
    for (const Row& row : rows) {
        ASSERT_NE(label(row.field), nullptr) << row.field;
        EXPECT_EQ(label(row.field)->text(), name(row.label)) << row.field;
    }
    EXPECT_EQ(control<QCheckBox>("lcl")->text(), name("LCL Local Data Bit"));
    EXPECT_EQ(control<QCheckBox>("pvt")->text(), name("PVT Private Data Bit"));
    EXPECT_EQ(control<QSpinBox>("sppBit")->toolTip(), name("Start Position Payload"));
    EXPECT_EQ(control<QSpinBox>("eppByte")->toolTip(), name("End Position Payload"));
}

TEST_F(ProfileEditor, PagesStandAtTheirIndex)
{
    int index = 0;
    for (const gui::ProfilePage& page : gui::profilePages) {
        EXPECT_EQ(static_cast<int>(page.item), index++);
    }
    EXPECT_EQ(pages->count(), index);
}

TEST_F(ProfileEditor, HeaderKeepsItsLines)
{
    select({"Header"});
    auto* header = control<QPlainTextEdit>("header");
    header->setFocus();
    QTest::keyClicks(header, name("first"));
    QTest::keyClick(header, Qt::Key_Return);
    QTest::keyClicks(header, name("second"));
    EXPECT_TRUE(isChanged());
    EXPECT_EQ(saved().header, name("first\nsecond\n"));
    EXPECT_FALSE(isChanged());
}

TEST_F(ProfileEditor, ProfileInfo)
{
    select({"Profile Info"});
    type("profileName", "Flight");
    type("profileId", "65535");
    type("profileSubId", "17");
    EXPECT_EQ(savedLines("<profile>"), texts({"Flight;65535;17"}));
}

TEST_F(ProfileEditor, AddFidGivesReservedCodesOnly)
{
    select({"User FIDs"});
    add();
    EXPECT_EQ(selected(), name("1 New FID"));
    EXPECT_TRUE(item({"User FIDs"})->isExpanded());
    EXPECT_TRUE(isChanged());
    int added = 1;
    while (item({"User FIDs"})->childCount() == added && added < 200) {
        add();
        ++added;
    }
    int reserved = 0;
    for (const auto& [code, label] : store.currentFidTable()) {
        reserved += label == name("Reserved") ? 1 : 0;
    }
    EXPECT_EQ(item({"User FIDs"})->childCount(), reserved);
    saved();
    add();
    EXPECT_FALSE(isChanged()); // nothing was added
    EXPECT_EQ(item({"User FIDs"})->childCount(), reserved);
}

TEST_F(ProfileEditor, UserFidFields)
{
    select({"User FIDs"});
    add();
    add();
    type("fidName", "Mine");
    EXPECT_EQ(selected(), name("2 Mine"));
    enter("fidValue", "22");
    EXPECT_EQ(selected(), name("22 Mine"));
    EXPECT_EQ(below(item({"User FIDs"})), texts({"1 New FID", "22 Mine"}));
    enter("fidValue", "0");
    EXPECT_EQ(below(item({"User FIDs"})), texts({"0 Mine", "1 New FID"}));
    EXPECT_EQ(selected(), name("0 Mine"));
    EXPECT_EQ(savedLines("<fid>"), texts({"Mine;0", "New FID;1"}));
}

TEST_F(ProfileEditor, CodeOfAnotherUserFidIsRefused)
{
    select({"User FIDs"});
    add();
    add();
    type("fidValue", "1");
    EXPECT_EQ(below(item({"User FIDs"})), texts({"1 New FID", "2 New FID"}));
    press("fidValue", Qt::Key_Tab);
    EXPECT_EQ(number("fidValue"), 2); // that of the record again
    EXPECT_EQ(savedLines("<fid>"), texts({"New FID;1", "New FID;2"}));
}

TEST_F(ProfileEditor, DeletedFidGivesItsCodeFree)
{
    select({"User FIDs"});
    add();
    add();
    select({"User FIDs", "1 New FID"});
    remove();
    EXPECT_EQ(below(item({"User FIDs"})), texts({"2 New FID"}));
    EXPECT_EQ(selected(), name("2 New FID"));
    add();
    EXPECT_EQ(selected(), name("1 New FID"));
    EXPECT_EQ(below(item({"User FIDs"})), texts({"1 New FID", "2 New FID"}));
}

TEST_F(ProfileEditor, ChapterIsNamedAfterItsUserFid)
{
    openText("<fid>\nOwn;21\n<parameter>\nNOC;21;1;0;0;0;0.0;0.7;0;UCHAR;A;B;0;1;0;N\n");
    EXPECT_EQ(below(item({"Parameter"})), texts({"21 Own"}));
    select({"User FIDs", "21 Own"});
    type("fidName", "New");
    EXPECT_EQ(below(item({"Parameter"})), texts({"21 New"}));
    remove();
    EXPECT_EQ(below(item({"Parameter"})), texts({"21 Reserved"}));
}

TEST_F(ProfileEditor, UnitsAreAddedFrom100)
{
    select({"User Units"});
    add();
    EXPECT_EQ(selected(), name("100 NewUnit"));
    add();
    EXPECT_EQ(selected(), name("101 NewUnit"));
    select({"User Units", "100 NewUnit"});
    remove();
    EXPECT_EQ(selected(), name("101 NewUnit"));
    add();
    EXPECT_EQ(selected(), name("100 NewUnit"));
    type("unitName", "knots");
    enter("unitValue", "101");
    EXPECT_EQ(below(item({"User Units"})), texts({"100 knots", "101 NewUnit"}));
    press("unitValue", Qt::Key_Return);
    EXPECT_EQ(number("unitValue"), 100);
    enter("unitValue", "999");
    EXPECT_EQ(savedLines("<unit>"), texts({"NewUnit;101", "knots;999"}));
}

TEST_F(ProfileEditor, EnumerationsAndValues)
{
    select({"Enumerations"});
    add();
    EXPECT_EQ(selected(), name("NewEnum"));
    select({"Enumerations"});
    add();
    EXPECT_EQ(selected(), name("NewEnum1"));
    enter("enumName", "A");
    EXPECT_EQ(below(item({"Enumerations"})), texts({"A", "NewEnum"}));
    add();
    EXPECT_EQ(selected(), name("0:  NewValue"));
    add();
    EXPECT_EQ(selected(), name("1:  NewValue"));
    type("enumString", "On");
    enter("enumValue", "-12");
    EXPECT_EQ(below(item({"Enumerations", "A"})), texts({"-12:  On", "0:  NewValue"}));
    enter("enumValue", "0");
    EXPECT_EQ(number("enumValue"), -12);
    EXPECT_EQ(savedLines("<enum>"), texts({"A;-12;On", "A;0;NewValue"}));
    remove();
    EXPECT_EQ(selected(), name("0:  NewValue"));
    remove();
    EXPECT_EQ(selected(), name("A"));
    remove();
    EXPECT_EQ(below(item({"Enumerations"})), texts({"NewEnum"}));
}

TEST_F(ProfileEditor, RenamedEnumerationKeepsItsChildrenAndParameters)
{
    openText("<enum>\nState;0;Off\nZeta;0;On\n<parameter>\n"
             "NOC;4;1;0;0;0;0.0;0.7;0;State;Mode;n.a.;0;1;0;N\n");
    select({"Enumerations", "State", "0:  Off"});
    select({"Enumerations", "State"});
    enter("enumName", "ZZ");
    EXPECT_EQ(below(item({"Enumerations"})), texts({"ZZ", "Zeta"}));
    EXPECT_EQ(selected(), name("ZZ"));
    EXPECT_TRUE(tree->currentItem()->isExpanded());
    EXPECT_EQ(below(tree->currentItem()), texts({"0:  Off"}));
    EXPECT_EQ(savedParameter().value(9), name("ZZ"));
    select({"Parameter", "4 Flight State", "Mode [n.a.]"});
    EXPECT_EQ(chosen("dtn"), name("ZZ"));
    select({"Enumerations", "ZZ"});
    for (const char* taken : {"Zeta", "FLOAT"}) { // another's, and that of a data type
        enter("enumName", taken);
        EXPECT_EQ(text("enumName"), name("ZZ")) << taken;
        type("enumName", taken);
        press("enumName", Qt::Key_Tab);
        EXPECT_EQ(text("enumName"), name("ZZ")) << taken;
    }
    EXPECT_EQ(below(item({"Enumerations"})), texts({"ZZ", "Zeta"}));
    EXPECT_EQ(savedParameter().value(9), name("ZZ"));
}

TEST_F(ProfileEditor, ChaptersAreAddedFromTheFirstFreeCode)
{
    openText("<parameter>\nNOC;0;1;0;0;0;0.0;0.7;0;UCHAR;A;B;0;1;0;N\n");
    select({"Parameter"});
    add();
    EXPECT_EQ(selected(), name("1 Reserved"));
    select({"Parameter"});
    add();
    EXPECT_EQ(selected(), name("2 Reserved"));
    EXPECT_TRUE(item({"Parameter"})->isExpanded());
    select({"Parameter", "1 Reserved"});
    remove();
    select({"Parameter"});
    add();
    EXPECT_EQ(below(item({"Parameter"})),
              texts({"0 Multicast Function Code Identifier", "1 Reserved", "2 Reserved"}));
}

TEST_F(ProfileEditor, ChapterMovesWithItsParameters)
{
    openText("<fid>\nOwn;21\n<parameter>\n" + pitchLine +
             "NOC;8;1;0;0;0;0.0;0.7;0;UCHAR;Gone;B;0;1;0;N\n");
    select({"Parameter", "4 Flight State"});
    const QStringList fids = choices("chapterFid");
    EXPECT_EQ(fids.size(), 128);
    EXPECT_EQ(fids.at(4), name("  4 Flight State"));
    EXPECT_EQ(fids.at(1), name("  1 Reserved"));
    EXPECT_EQ(fids.at(21), name(" 21 Own"));
    EXPECT_EQ(chosen("chapterFid"), name("  4 Flight State"));
    tree->currentItem()->setExpanded(true);
    choose("chapterFid", fids.at(8).toLatin1().constData());
    EXPECT_EQ(below(item({"Parameter"})), QStringList(selected()));
    EXPECT_TRUE(selected().startsWith(name("8 ")));
    EXPECT_TRUE(tree->currentItem()->isExpanded());
    EXPECT_EQ(below(tree->currentItem()), texts({"Pitch [deg]"}));
    EXPECT_EQ(tree->currentItem()->child(0)->toolTip(0),
              name("Pitch [deg]\nLCC:\t2\nFID:\t8\nLCL:\t0\nPVT:\t1\nDOC:\t100\n"));
    EXPECT_EQ(savedParameter().value(1), name("8"));
    choose("chapterFid", " 21 Own");
    EXPECT_EQ(selected(), name("21 Own"));
    choose("chapterFid", "  1 Reserved");
    EXPECT_EQ(selected(), name("1 Reserved"));
    saved();
    choose("chapterFid", "  1 Reserved");
    EXPECT_FALSE(isChanged());
    EXPECT_EQ(item({"Parameter", "1 Reserved"})->childCount(), 1);
}

TEST_F(ProfileEditor, FidsAreThoseOfTheChosenVersion)
{
    setVersion(1);
    openText("<Arinc825Profile name=\"x\" id=\"1.2\"><FidList><Fid name=\"Own\" code=\"21\"/>"
             "</FidList><ParameterList><Sfid id=\"21\"><Parameter lcc=\"NOC\" dtn=\"UCHAR\" "
             "nme=\"A\" pua=\"m\" spp=\"0.0\" epp=\"0.7\"/></Sfid></ParameterList>"
             "</Arinc825Profile>");
    select({"Parameter", "21 Wings"});
    EXPECT_EQ(choices("chapterFid").at(21), name(" 21 Wings"));
    select({"User FIDs"});
    add();
    EXPECT_EQ(selected(), name("1 New FID"));
}

TEST_F(ProfileEditor, WheelAndKeysDoNotMoveAChapterOverOthers)
{
    openText("<parameter>\n" + pitchLine + "NOC;8;1;0;0;0;0.0;0.7;0;UCHAR;A;B;0;1;0;N\n");
    select({"Parameter", "4 Flight State"});
    auto* box = control<gui::QwtComboBox>("chapterFid");
    box->setFocus();
    QWheelEvent wheel({5, 5}, box->mapToGlobal({5, 5}), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(box, &wheel);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_End, Qt::Key_1}) {
        QTest::keyClick(box, key);
        EXPECT_TRUE(box->view()->isVisible());
        QTest::keyClick(box->view(), Qt::Key_Escape);
    }
    EXPECT_FALSE(isChanged());
    EXPECT_EQ(item({"Parameter"})->childCount(), 2);
}

TEST_F(ProfileEditor, NameOfNothingIsNoSelection)
{
    openText("<enum>\n__NoEnumSelected;0;Off\n");
    select({"Enumerations"});
    add();
    EXPECT_EQ(below(item({"Enumerations"})), texts({"NewEnum", "__NoEnumSelected"}));
    const ProfileSelection nothing;
    EXPECT_EQ(nothing.enumeration, name("__NoEnumSelected"));
    EXPECT_EQ(nothing.fid, 999999U);
    EXPECT_EQ(nothing.unit, 999999U);
    EXPECT_EQ(nothing.chapter, 999999U);
    EXPECT_EQ(nothing.parameter, 999999U);
    EXPECT_EQ(nothing.value, 999999);
    ArincProfile empty;
    EXPECT_EQ(nothing.fidOf(empty), nullptr);
    EXPECT_EQ(nothing.unitOf(empty), nullptr);
    EXPECT_EQ(nothing.enumerationOf(empty), nullptr);
    EXPECT_EQ(nothing.valueOf(empty), nullptr);
    EXPECT_EQ(nothing.chapterOf(empty), nullptr);
    EXPECT_EQ(nothing.parameterOf(empty), nullptr);
}

} // namespace

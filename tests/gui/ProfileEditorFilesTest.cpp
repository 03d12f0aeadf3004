#include "gui/frame/MessageBoxes.h"
#include "tests/gui/ProfileEditorFixture.h"
#include "tests/support/ConsoleCapture.h"
#include "tests/unit/profile/HostileFiles.h"

#include <QClipboard>
#include <QSignalSpy>

// Files of the editor of text profiles, and the question before unsaved work goes.

namespace {

using gui::FileDialogs;
using gui::MessageBoxes;
using zul::test::ConsoleCapture;
using zul::test::pitchLine;

class ProfileEditorFiles : public zul::test::ProfileEditorTest
{
protected:
    // Something to lose.
    void edit()
    {
        select({"Profile Info"});
        type("profileName", "Edited");
    }
    QString profileName()
    {
        select({"Profile Info"});
        return text("profileName");
    }
    // Reads a file as the program would, and forgets it again.
    QString report(const char* file)
    {
        ArincProfile profile;
        EXPECT_TRUE(store.readProfile(home.file(name(file)), profile));
        store.removeFromIndex(profile);
        return profile.valid ? QString() : profile.result;
    }
};

TEST_F(ProfileEditorFiles, TitleNamesTheFileAndTheChange)
{
    EXPECT_EQ(title(), name("Profile Editor [none]"));
    edit();
    EXPECT_EQ(title(), name("Profile Editor [none] (edited)"));
    const QString path = home.file(name("b.pro"));
    save(path);
    EXPECT_EQ(title(), name("Profile Editor [") + path + name("]"));
    edit();
    EXPECT_EQ(title(), name("Profile Editor [") + path + name("] (edited)"));
    click("save");
    EXPECT_FALSE(isChanged());
}

TEST_F(ProfileEditorFiles, ChoosersOfTheTextForm)
{
    open(QString());
    EXPECT_EQ(FileDialogs::lastTitle(), name("Open ARINC825 Profile"));
    EXPECT_EQ(FileDialogs::lastFilter(), name("Profile File (*.pro);;All Files (*.*)"));
    save(QString());
    EXPECT_EQ(FileDialogs::lastTitle(), name("Save ARINC825 Profile"));
    EXPECT_EQ(FileDialogs::lastFilter(), name("Profile File (*.pro);;All Files (*.*)"));
    EXPECT_EQ(title(), name("Profile Editor [none]"));
}

TEST_F(ProfileEditorFiles, OpenedProfileIsNotDecodedWith)
{
    openText("<profile>\nFlight;1;0\n<parameter>\n" + pitchLine);
    ASSERT_NE(item({"Parameter", "4 Flight State", "Pitch [deg]"}), nullptr);
    EXPECT_TRUE(store.parameterIndex().empty());
    EXPECT_TRUE(store.profiles().empty());
}

TEST_F(ProfileEditorFiles, QuestionBeforeUnsavedWorkGoes)
{
    const int asked = MessageBoxes::count();
    click("new");
    open(QString());
    EXPECT_EQ(MessageBoxes::count(), asked);
    edit();
    for (const char* button : {"new", "open", "finished"}) {
        MessageBoxes::setNextAnswer(QMessageBox::Cancel);
        click(button);
        EXPECT_EQ(MessageBoxes::last().title, name("ZUL Warning"));
        EXPECT_EQ(MessageBoxes::last().text,
                  name("Current profile not saved !\nDo you want to save it ?"));
        EXPECT_EQ(profileName(), name("Edited")) << button;
        EXPECT_TRUE(isChanged());
        // Saving is cancelled in the chooser.
        MessageBoxes::setNextAnswer(QMessageBox::Yes);
        FileDialogs::setNextFileName(QString());
        click(button);
        EXPECT_EQ(profileName(), name("Edited")) << button;
        EXPECT_TRUE(isChanged());
        EXPECT_TRUE(editor.isVisible());
    }
    MessageBoxes::setNextAnswer(QMessageBox::No);
    click("new");
    EXPECT_EQ(profileName(), name("NoName"));
    EXPECT_FALSE(isChanged());
}

TEST_F(ProfileEditorFiles, YesSavesBeforeANewProfile)
{
    edit();
    save(home.file(name("b.pro")));
    select({"User Units"});
    add();
    MessageBoxes::setNextAnswer(QMessageBox::Yes);
    click("new");
    EXPECT_EQ(title(), name("Profile Editor [none]"));
    EXPECT_EQ(item({"User Units"})->childCount(), 0);
    EXPECT_TRUE(home.read(name("b.pro")).contains("NewUnit;100"));
}

TEST_F(ProfileEditorFiles, FinishedHidesAndTells)
{
    const QSignalSpy closed(&editor, &gui::DialogProfileEditor::closeDialog);
    click("finished");
    EXPECT_FALSE(editor.isVisible());
    EXPECT_EQ(closed.count(), 1);
    editor.show();
    edit();
    MessageBoxes::setNextAnswer(QMessageBox::No);
    editor.close();
    EXPECT_EQ(closed.count(), 2);
}

TEST_F(ProfileEditorFiles, SaveAfterNewAsksForAName)
{
    openText("<profile>\nFlight;1;0\n");
    click("new");
    FileDialogs::setNextFileName(home.file(name("c.pro")));
    click("save");
    EXPECT_TRUE(home.read(name("c.pro")).contains("NoName;0;0"));
}

TEST_F(ProfileEditorFiles, WhatCannotBeReadLeavesTheProfile)
{
    setVersion(1);
    edit();
    home.write(name("broken.xml"), "<Arinc825Profile name=\"x\"><FidList>");
    home.write(name("root.xml"), "<ZORBprofile name=\"x\"/>");
    home.write(name("lru.txt"), "no XML");
    home.write(name("binary.xml"), QByteArray("\x00\xff\xfe\x01<", 5));
    for (const char* file : {"broken.xml", "root.xml", "lru.txt", "binary.xml", "missing.xml"}) {
        MessageBoxes::setNextAnswer(QMessageBox::No);
        ConsoleCapture console;
        open(home.file(name(file)));
        EXPECT_NE(console.out().find("cannot be read"), std::string::npos) << file;
        EXPECT_EQ(profileName(), name("Edited")) << file;
        EXPECT_TRUE(isChanged());
    }
    EXPECT_TRUE(store.parameterIndex().empty());
}

TEST_F(ProfileEditorFiles, WhatCannotBeWrittenStaysUnsaved)
{
    edit();
    for (const int version : {0, 1}) {
        setVersion(version);
        ConsoleCapture console;
        save(home.file(name("missing/a.pro")));
        EXPECT_NE(console.out().find("cannot be written"), std::string::npos) << version;
        EXPECT_TRUE(isChanged()) << version;
        EXPECT_EQ(editor.fileName(), name("none")) << version;
    }
}

TEST_F(ProfileEditorFiles, FileWithoutASectionIsNotTakenForAProfile)
{
    edit();
    const zul::test::HostileFiles hostile("Arinc825Profile");
    int refused = 0;
    for (const zul::test::HostileFiles::File& file : hostile.files()) {
        if (file.name == "empty" || file.name == "no XML") {
            continue; // text profiles
        }
        MessageBoxes::setNextAnswer(QMessageBox::No);
        ConsoleCapture console;
        open(file.path);
        EXPECT_NE(console.out().find("cannot be read"), std::string::npos) << file.name;
        EXPECT_EQ(editor.fileName(), name("none")) << file.name;
        EXPECT_TRUE(isChanged()) << file.name;
        ++refused;
    }
    EXPECT_GT(refused, 10);
    EXPECT_EQ(profileName(), name("Edited"));
    MessageBoxes::setNextAnswer(QMessageBox::No);
    openText(""); // made by hand, to be filled
    EXPECT_EQ(editor.fileName(), home.file(name("a.pro")));
    openText("<parameter>\nshort;line\n"); // nothing but a fault
    EXPECT_FALSE(isChanged());
    EXPECT_EQ(profileName(), QString());
}

TEST_F(ProfileEditorFiles, AnyBytesOpenAsTextProfile)
{
    QByteArray bytes;
    for (int i = 0; i < 100'000; ++i) {
        bytes += static_cast<char>(i * 7919 >> 3);
    }
    openText(bytes);
    EXPECT_EQ(editor.fileName(), name("none"));
    openText("<parameter>\n" + bytes + "\n" + pitchLine);
    EXPECT_NE(item({"Parameter", "4 Flight State", "Pitch [deg]"}), nullptr);
}

TEST_F(ProfileEditorFiles, ManyUserCodesOpenAtOnce)
{
    QByteArray content = "<fid>\n";
    for (int i = 0; i < 100'000; ++i) {
        content += "F;" + QByteArray::number(i) + '\n';
    }
    openText(content);
    EXPECT_EQ(item({"User FIDs"})->childCount(), 100'000);
}

TEST_F(ProfileEditorFiles, ProfileFromNothingComesBack)
{
    for (const int version : {0, 1}) {
        setVersion(version);
        click("new");
        select({"Profile Info"});
        type("profileName", "Flug \xc3\xbc & <x> \"q\"");
        type("profileId", "7");
        type("profileSubId", "8");
        select({"User FIDs"});
        add();
        type("fidName", "Own");
        select({"User Units"});
        add();
        type("unitName", "knots");
        select({"Enumerations"});
        add();
        enter("enumName", "State");
        add();
        type("enumString", "Off");
        select({"Parameter"});
        add();
        choose("chapterFid", "  1 Own");
        add();
        choose("dtn", "State");
        choose("pua", "100 knots");
        type("eppBit", "3");
        const QString path = home.file(name("d.pro"));
        save(path);
        EXPECT_EQ(report("d.pro").remove(QLatin1String("PUC")), QString());
        open(path);
        EXPECT_EQ(profileName(), name("Flug \xc3\xbc & <x> \"q\"")) << version;
        EXPECT_EQ(number("profileId"), 7);
        EXPECT_EQ(number("profileSubId"), 8);
        EXPECT_NE(item({"User FIDs", "1 Own"}), nullptr);
        EXPECT_NE(item({"User Units", "100 knots"}), nullptr);
        EXPECT_NE(item({"Enumerations", "State", "0:  Off"}), nullptr);
        select({"Parameter", "1 Own", "NewPara [knots]"});
        EXPECT_EQ(chosen("dtn"), name("State"));
        EXPECT_EQ(chosen("pua"), name(version == 0 ? "100 knots" : "  0 n.a."));
        EXPECT_EQ(number("eppBit"), 3);
    }
}

TEST_F(ProfileEditorFiles, NamesOfSeveralLinesBecomeOne)
{
    openText("<parameter>\n" + pitchLine + "NOC;4;1;0;0;0;0.0;0.7;0;UCHAR;A;B;0;1;0;N\n");
    select({"Parameter", "4 Flight State", "Pitch [deg]"});
    QApplication::clipboard()->setText(name("two\nlines\r\n<header>\n"));
    auto* field = control<QLineEdit>("nme");
    field->setFocus();
    field->selectAll();
    QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
    const ArincProfile again = saved();
    EXPECT_EQ(again.fids.at(4).parameters.size(), 2U);
    EXPECT_EQ(again.header, QString());
    EXPECT_TRUE(again.fids.at(4).parameters.begin()->second.nme.startsWith(name("two lines")));
}

TEST_F(ProfileEditorFiles, SemicolonInANameCostsThatRecordOnly)
{
    openText("<parameter>\n" + pitchLine + "NOC;4;1;0;0;0;0.0;0.7;0;UCHAR;A;B;0;1;0;N\n");
    select({"Parameter", "4 Flight State", "Pitch [deg]"});
    type("nme", "a;b");
    EXPECT_EQ(selected(), name("a;b [deg]"));
    const ArincProfile text = saved();
    EXPECT_EQ(text.fids.at(4).parameters.size(), 1U);
    EXPECT_TRUE(text.result.contains(name("wrong number of tokens 17")));
    setVersion(1);
    const ArincProfile xml = saved();
    EXPECT_EQ(xml.fids.at(4).parameters.begin()->second.nme, name("a;b"));
}

TEST_F(ProfileEditorFiles, FaultyProfileIsMended)
{
    openText("<profile>\nFlight;70000;1\n<fid>\nFar;128\n<unit>\nLow;99\n<parameter>\n"
             "XXX;8;20000;0;0;0;0.0;0.6;99;WHAT;First;Low;2;1;-1;Note\n"
             "NSC;200;65536;2;2;200;4.0;1.7;54;FLOAT;Second;Unit;0;255;10;Note\n");
    ASSERT_NE(report("a.pro"), QString());
    select({"Profile Info"});
    type("profileId", "7");
    select({"User FIDs", "128 Far"});
    enter("fidValue", "22");
    select({"User Units", "99 Low"});
    enter("unitValue", "123"); // the parameter with this unit follows
    select({"Enumerations"});
    add();
    enter("enumName", "WHAT");
    add();
    QTreeWidgetItem* chapter = item({"Parameter"})->child(0);
    ASSERT_TRUE(chapter->text(0).startsWith(name("8 ")));
    tree->scrollToItem(chapter->child(0));
    tree->setCurrentItem(chapter->child(0));
    EXPECT_EQ(selected(), name("First [Low]"));
    EXPECT_EQ(chosen("dtn"), name("WHAT"));
    EXPECT_EQ(chosen("pua"), name("123 Low"));
    choose("lcc", "NOC");
    type("doc", "1000");
    type("eppBit", "7");
    type("min", "-2");
    type("upr", "50");
    chapter = item({"Parameter"})->child(1);
    tree->setCurrentItem(chapter);
    EXPECT_EQ(control<QComboBox>("chapterFid")->currentIndex(), -1);
    choose("chapterFid", " 22 Far");
    tree->setCurrentItem(item({"Parameter", "22 Far", "Second [Unit]"}));
    type("doc", "9");
    type("sid", "100");
    check("lcl");
    check("pvt");
    type("sppByte", "3");
    type("eppByte", "0");
    choose("pua", " 19 m/s");
    click("save");
    EXPECT_EQ(report("a.pro"), QString());
    const ArincProfile mended = saved();
    EXPECT_EQ(mended.fids.at(8).parameters.begin()->second.enumId,
              mended.enums.at(name("WHAT")).enumId);
    EXPECT_EQ(mended.fids.at(22).parameters.begin()->second.dfid, 9U);
}

TEST_F(ProfileEditorFiles, FileWithEveryFaultOpensAndCanBeSaved)
{
    open(name(ZUL_TEST_DATA "/faulty/every-message.pro"));
    for (QTreeWidgetItemIterator at(tree); *at != nullptr; ++at) {
        tree->setCurrentItem(*at);
        EXPECT_FALSE(isChanged());
    }
    ArincProfile original;
    EXPECT_TRUE(store.readProfile(name(ZUL_TEST_DATA "/faulty/every-message.pro"), original));
    const ArincProfile again = saved();
    ASSERT_EQ(again.fids.size(), original.fids.size());
    for (const auto& [fid, group] : original.fids) {
        EXPECT_EQ(again.fids.at(fid).parameters.size(), group.parameters.size());
    }
}

} // namespace

#include "profile/Lru825Writer.h"
#include "tests/gui/ProfileEditor825Filled.h"
#include "tests/support/ConsoleCapture.h"
#include "tests/unit/profile/HostileFiles.h"

#include <QCheckBox>
#include <QPlainTextEdit>
#include <QSignalSpy>

// What the editor of LRU documents does with files, and what of a document comes back.

namespace {

using namespace zul;
using gui::FileDialogs;
using gui::MessageBoxes;
using Buttons = std::vector<QMessageBox::StandardButton>;

class ProfileEditor825Files : public zul::test::ProfileEditor825Filled
{
protected:
    void change() const
    {
        select({"Profile Header"});
        type("headerName", "Changed");
        ASSERT_TRUE(m_editor->isChanged());
    }
    void expectMessage(const Lru825Message& message, double periodMs, double latencyMs) const;
    void expectAll(double periodMs, double latencyMs) const;
};

TEST_F(ProfileEditor825Files, QuestionHasItsTexts)
{
    change();
    MessageBoxes::setNextAnswer(QMessageBox::Cancel);
    click("new");
    const auto& question = MessageBoxes::last();
    EXPECT_EQ(question.icon, QMessageBox::Warning);
    EXPECT_EQ(question.title, QLatin1String("ZUL Warning"));
    EXPECT_EQ(question.text,
              QLatin1String("Current profile not saved !\nDo you want to save it ?"));
    EXPECT_EQ(question.buttons, (Buttons{QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel}));
}

TEST_F(ProfileEditor825Files, CancelStopsNewOpenAndClose)
{
    change();
    for (const char* button : {"new", "open", "finished"}) {
        MessageBoxes::setNextAnswer(QMessageBox::Cancel);
        click(button);
        EXPECT_EQ(document().name, QLatin1String("Changed")) << button;
        EXPECT_TRUE(m_editor->isChanged()) << button;
        EXPECT_TRUE(m_editor->isVisible()) << button;
    }
    EXPECT_EQ(asked(), 3);
}

TEST_F(ProfileEditor825Files, NoGoesOn)
{
    change();
    addTo({"Parameter List"});
    MessageBoxes::setNextAnswer(QMessageBox::No);
    click("new");
    EXPECT_EQ(document().name, QLatin1String("NoName"));
    EXPECT_TRUE(document().parameters.empty());
    EXPECT_EQ(item({"Parameter List"})->childCount(), 0);
    EXPECT_FALSE(m_editor->isChanged());
    EXPECT_EQ(selected(), Lru825Item::Header);
    change();
    QSignalSpy closed(m_editor.get(), &gui::DialogEditor::closeDialog);
    MessageBoxes::setNextAnswer(QMessageBox::No);
    click("finished");
    EXPECT_FALSE(m_editor->isVisible());
    EXPECT_EQ(closed.count(), 1);
}

TEST_F(ProfileEditor825Files, YesSavesFirst)
{
    change();
    MessageBoxes::setNextAnswer(QMessageBox::Yes);
    FileDialogs::setNextFileName(path("first.xml"));
    click("new");
    EXPECT_TRUE(m_home.read(QStringLiteral("first.xml")).contains("Changed"));
    EXPECT_EQ(document().name, QLatin1String("NoName"));
    EXPECT_EQ(m_editor->fileName(), QLatin1String("none"));
}

TEST_F(ProfileEditor825Files, YesWithACancelledChooserLosesNothing)
{
    change();
    for (const char* button : {"new", "open", "finished"}) {
        MessageBoxes::setNextAnswer(QMessageBox::Yes);
        FileDialogs::setNextFileName(QString());
        click(button);
        EXPECT_EQ(document().name, QLatin1String("Changed")) << button;
        EXPECT_TRUE(m_editor->isChanged()) << button;
        EXPECT_TRUE(m_editor->isVisible()) << button;
    }
}

TEST_F(ProfileEditor825Files, UnchangedDocumentIsLeftWithoutAQuestion)
{
    click("new");
    saveAs("lru.xml");
    click("new");
    QSignalSpy closed(m_editor.get(), &gui::DialogEditor::closeDialog);
    m_editor->close();
    EXPECT_EQ(asked(), 0);
    EXPECT_EQ(closed.count(), 1);
    EXPECT_FALSE(m_editor->isVisible());
}

TEST_F(ProfileEditor825Files, EscapeAsksLikeFinished)
{
    change();
    MessageBoxes::setNextAnswer(QMessageBox::Cancel);
    QTest::keyClick(m_editor.get(), Qt::Key_Escape);
    EXPECT_EQ(asked(), 1);
    EXPECT_TRUE(m_editor->isVisible());
}

TEST_F(ProfileEditor825Files, ChoosersHaveTheirTitlesAndFilter)
{
    FileDialogs::setNextFileName(QString());
    click("open");
    EXPECT_EQ(FileDialogs::lastTitle(), QLatin1String("Open ARINC825 Profile"));
    EXPECT_EQ(FileDialogs::lastFilter(), QLatin1String("Profile File (*.xml);;All Files (*.*)"));
    FileDialogs::setNextFileName(QString());
    click("save-as");
    EXPECT_EQ(FileDialogs::lastTitle(), QLatin1String("Save ARINC825 Profile"));
    EXPECT_EQ(FileDialogs::lastFilter(), QLatin1String("Profile File (*.xml);;All Files (*.*)"));
    EXPECT_EQ(m_editor->fileName(), QLatin1String("none"));
}

TEST_F(ProfileEditor825Files, SaveAfterNewAsksForAName)
{
    saveAs("old.xml");
    click("new");
    FileDialogs::setNextFileName(path("new.xml"));
    click("save");
    EXPECT_EQ(FileDialogs::lastTitle(), QLatin1String("Save ARINC825 Profile"));
    EXPECT_TRUE(m_home.has(QStringLiteral("new.xml")));
    EXPECT_EQ(m_editor->fileName(), path("new.xml"));
}

TEST_F(ProfileEditor825Files, SaveOfANamedDocumentAsksNothing)
{
    saveAs("lru.xml");
    change();
    click("save");
    EXPECT_FALSE(m_editor->isChanged());
    EXPECT_TRUE(m_home.read(QStringLiteral("lru.xml")).contains("Changed"));
    EXPECT_EQ(m_editor->windowTitle(),
              QStringLiteral("Profile Editor ARINC-825 [%1]").arg(path("lru.xml")));
}

TEST_F(ProfileEditor825Files, DocumentThatCannotBeWrittenStaysChanged)
{
    change();
    zul::test::ConsoleCapture console;
    FileDialogs::setNextFileName(path("absent/lru.xml"));
    click("save");
    EXPECT_TRUE(m_editor->isChanged());
    EXPECT_EQ(m_editor->fileName(), QLatin1String("none"));
    EXPECT_NE(console.out().find("cannot be written"), std::string::npos);
}

TEST_F(ProfileEditor825Files, FileThatCannotBeReadLeavesTheDocument)
{
    addTo({"Parameter List"});
    type("parameterName", "Kept");
    saveAs("lru.xml");
    const zul::test::HostileFiles hostile("Arinc825Profile");
    for (const auto& file : hostile.files()) {
        zul::test::ConsoleCapture console;
        FileDialogs::setNextFileName(file.path);
        click("open");
        EXPECT_NE(console.out().find("cannot be read"), std::string::npos) << file.name;
        EXPECT_EQ(m_editor->fileName(), path("lru.xml")) << file.name;
        EXPECT_EQ(parameter().name, QLatin1String("Kept")) << file.name;
        EXPECT_EQ(find<QLineEdit>("parameterName").text(), QLatin1String("Kept")) << file.name;
    }
    type("parameterName", "Edited");
    EXPECT_EQ(parameter().name, QLatin1String("Edited"));
}

void ProfileEditor825Files::expectMessage(const Lru825Message& message, double periodMs,
                                          double latencyMs) const
{
    EXPECT_EQ(message.name, QLatin1String("Status"));
    EXPECT_EQ(message.identifierType, 3U);
    EXPECT_EQ(message.identifierLength, 1U);
    EXPECT_EQ(message.defaultLcc, 6U);
    EXPECT_EQ(message.fid, 5U);
    EXPECT_EQ(message.pvt, 1U);
    EXPECT_EQ(message.lcl, 1U);
    EXPECT_EQ(message.fsb, 1U);
    EXPECT_EQ(message.doc, 16384U);
    EXPECT_EQ(message.txp, periodMs);
    EXPECT_EQ(message.latencyMax, latencyMs);
    EXPECT_EQ(message.defaultPort, 7);
    EXPECT_EQ(message.fmc11BitId, 2047U);
    EXPECT_EQ(message.impliedFunctionalStatus, 2U);
    ASSERT_EQ(message.assignments.size(), 1U);
    EXPECT_EQ(message.assignments.at(0).name, QLatin1String("can1"));
    EXPECT_EQ(message.assignments.at(0).rci, 3U);
    EXPECT_EQ(message.dataField.name, QLatin1String("field"));
    EXPECT_EQ(message.dataField.payloadProtocol, QLatin1String("raw"));
    EXPECT_EQ(message.dataField.dlc, 8);
    EXPECT_TRUE(message.dataField.highIntegrity);
    ASSERT_EQ(message.dataField.parameters.size(), 1U);
    const Lru825Reference& reference = message.dataField.parameters.at(0);
    EXPECT_EQ(reference.name, QLatin1String("Speed"));
    int number = 0;
    for (const Lru825Position& position :
         {reference.spp, reference.epp, reference.pvsSpp, reference.pvsEpp}) {
        EXPECT_EQ(position.byte, static_cast<std::uint32_t>(zul::test::positionDigit(++number)));
        EXPECT_EQ(position.bit, static_cast<std::uint32_t>(zul::test::positionDigit(++number)));
    }
}

void ProfileEditor825Files::expectAll(double periodMs, double latencyMs) const
{
    EXPECT_EQ(document().id, QLatin1String("id \"1\""));
    EXPECT_EQ(document().name, QLatin1String("Pump & <Valve>"));
    EXPECT_EQ(document().major, 1);
    EXPECT_EQ(document().minor, 2);
    EXPECT_EQ(document().version, 20261122);
    EXPECT_EQ(document().comment, QLatin1String("first\nsecond"));
    EXPECT_EQ(document().lruName, QLatin1String("Pump;1"));
    EXPECT_EQ(document().nodeId, QLatin1String("N-7"));
    EXPECT_EQ(document().nodeAddress, QLatin1String("0x10"));
    EXPECT_EQ(document().lruComment, QLatin1String("about the unit"));
    ASSERT_EQ(document().interfaces.size(), 1U);
    EXPECT_EQ(interface().name, QLatin1String("can1"));
    EXPECT_EQ(interface().bitRate, 1U);
    EXPECT_EQ(interface().rci, 2U);
    EXPECT_EQ(interface().comment, QLatin1String("left"));
    EXPECT_EQ(interface().timeQuantumPerBit, 16);
    EXPECT_EQ(interface().resyncJumpWidth, 2);
    EXPECT_EQ(interface().syncSeg, 1);
    EXPECT_EQ(interface().propSeg, 7);
    EXPECT_EQ(interface().phaseSeg1, 5);
    EXPECT_EQ(interface().phaseSeg2, 3);
    EXPECT_EQ(interface().samplingPointMode, 1U);
    ASSERT_EQ(document().parameters.size(), 1U);
    EXPECT_EQ(parameter().name, QLatin1String("Speed"));
    EXPECT_EQ(parameter().pua, QLatin1String("m/s"));
    EXPECT_EQ(parameter().dtn, 9U);
    EXPECT_EQ(parameter().min, -2.5);
    EXPECT_EQ(parameter().max, 1e6);
    EXPECT_EQ(parameter().resolution, 0.125);
    EXPECT_EQ(parameter().offset, -4.0);
    EXPECT_EQ(parameter().notes, QLatin1String("note"));
    EXPECT_EQ(parameter().comment, QLatin1String("comment"));
    EXPECT_EQ(parameter().fid, 20U);
    ASSERT_EQ(parameter().enumEntries.size(), 1U);
    EXPECT_EQ(parameter().enumEntries.at(0).key, QLatin1String("off"));
    EXPECT_EQ(parameter().enumEntries.at(0).value, -1);
    ASSERT_EQ(document().transmitMessages.size(), 1U);
    ASSERT_EQ(document().receiveMessages.size(), 1U);
    expectMessage(transmitted(), periodMs, latencyMs);
    expectMessage(received(), periodMs, latencyMs);
}

// Every field is off its default; all come back but the two times, which the reader does not take.
TEST_F(ProfileEditor825Files, DocumentMadeInTheWindowComesBack)
{
    fillHeaderAndLru();
    fillInterface();
    fillParameter();
    fillMessage("Transmit");
    fillMessage("Receive");
    expectAll(12.0, 10000.0);
    saveAs("lru.xml");
    click("new");
    FileDialogs::setNextFileName(path("lru.xml"));
    click("open");
    EXPECT_FALSE(m_editor->isChanged());
    EXPECT_EQ(asked(), 0);
    expectAll(0.0, 0.0);
    select({"LRU", "Communication", "Receive", "Message Status"});
    EXPECT_EQ(find<QSpinBox>("messageTxp").value(), 0);
    EXPECT_EQ(find<QSpinBox>("messageDoc").value(), 16384);
    EXPECT_TRUE(find<QCheckBox>("messageFsb").isChecked());
    EXPECT_EQ(find<QComboBox>("messageLcc").currentText(), QLatin1String("TMC"));
    select({"LRU", "Communication", "Receive", "Message Status", "Data Field", "Speed"});
    EXPECT_EQ(find<QSpinBox>("pvsSppByte").value(), 5);
    select({"Parameter List", "20 Speed", "off"});
    EXPECT_EQ(find<QSpinBox>("enumValue").value(), -1);
}

TEST_F(ProfileEditor825Files, SlowestBitRateIsWrittenInFull)
{
    addTo({"LRU", "CAN Interfaces"});
    EXPECT_EQ(find<QComboBox>("ifcBitrate").currentText(), QLatin1String("8.33 KBit"));
    saveAs("lru.xml");
    EXPECT_TRUE(m_home.read(QStringLiteral("lru.xml")).contains("bit_rate=\"83.333\""));
}

constexpr const char* beyond =
    "<Arinc825Profile name='Wide' major='-5'>"
    "<LRU name='l'><Communication><TransmitList>"
    "<Message name='m' fid='200' doc='99999' fmc_11bit_id='-1' default_port='70000' pvt='2' "
    "txp='20000'><DataField dlc='500'><Parameter name='gone' spp='70.9'/></DataField></Message>"
    "</TransmitList></Communication></LRU><ParameterList comment='about the list'>"
    "<Parameter name='p' pua='x' min='1e300' fid='-2'/></ParameterList></Arinc825Profile>";

TEST_F(ProfileEditor825Files, ValuesBeyondAControlAreShownAsTheNearestAndStay)
{
    openFile("wide.xml", beyond);
    select({"Profile Header"});
    EXPECT_EQ(find<QSpinBox>("headerMajor").value(), 0);
    select({"LRU", "Communication", "Transmit", "Message m"});
    EXPECT_EQ(find<QSpinBox>("messageDoc").value(), 16384);
    EXPECT_EQ(find<QSpinBox>("messageId").value(), 0);
    EXPECT_EQ(find<QSpinBox>("messagePort").value(), 65535);
    EXPECT_EQ(find<QSpinBox>("messageTxp").value(), 10000);
    EXPECT_EQ(find<QComboBox>("messageFid").currentIndex(), -1);
    EXPECT_TRUE(find<QCheckBox>("messagePvt").isChecked());
    select({"LRU", "Communication", "Transmit", "Message m", "Data Field"});
    EXPECT_EQ(find<QSpinBox>("dataFieldDlc").value(), 64);
    select({"LRU", "Communication", "Transmit", "Message m", "Data Field", "gone"});
    EXPECT_EQ(find<QSpinBox>("sppByte").value(), 63);
    EXPECT_EQ(find<QSpinBox>("sppBit").value(), 7);
    EXPECT_EQ(find<QComboBox>("referenceName").currentText(), QLatin1String("gone"));
    select({"Parameter List", "-2 p"});
    EXPECT_FALSE(m_editor->isChanged());
    // Another field of the same record is edited, and the focus goes through them all.
    select({"LRU", "Communication", "Transmit", "Message m"});
    type("messageName", "n");
    for (int i = 0; i < 14; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(document().major, -5);
    EXPECT_EQ(transmitted().fid, 200U);
    EXPECT_EQ(transmitted().doc, 99999U);
    EXPECT_EQ(transmitted().fmc11BitId, static_cast<std::uint32_t>(-1));
    EXPECT_EQ(transmitted().defaultPort, 70000);
    EXPECT_EQ(transmitted().pvt, 2U);
    EXPECT_EQ(transmitted().txp, 20000.0);
    EXPECT_EQ(transmitted().dataField.dlc, 500);
    EXPECT_EQ(transmitted().dataField.parameters.at(0).spp.byte, 70U);
    EXPECT_EQ(transmitted().dataField.parameters.at(0).spp.bit, 9U);
    EXPECT_EQ(parameter().min, 1e300);
    EXPECT_EQ(document().parameterListComment, QLatin1String("about the list"));
    select({"LRU", "Communication", "Transmit", "Message n"});
    type("messageDoc", "5");
    EXPECT_EQ(transmitted().doc, 5U);
}

TEST_F(ProfileEditor825Files, TextsComeBackAsTheyWentIn)
{
    addTo({"Parameter List"});
    const char* odd = "a\"b'c<d>&e;f\xc3\xa9\xe2\x82\xac\xc2\xa0g \xe6\x96\x87";
    const QString text = QString::fromUtf8(odd);
    type("parameterName", "x");
    find<QLineEdit>("parameterName").setText(text);
    find<QPlainTextEdit>("parameterComment").setPlainText(text + QStringLiteral("\nline\n"));
    saveAs("odd.xml");
    click("new");
    FileDialogs::setNextFileName(path("odd.xml"));
    click("open");
    EXPECT_EQ(parameter().name, text);
    EXPECT_EQ(parameter().comment, text + QStringLiteral("\nline\n"));
    select(item({"Parameter List"})->child(0));
    QTest::keyClicks(&find<QWidget>("parameterComment"), QStringLiteral("+"));
    EXPECT_EQ(parameter().comment, QLatin1Char('+') + text + QStringLiteral("\nline\n"));
}

} // namespace

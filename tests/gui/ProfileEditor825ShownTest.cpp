#include "profile/Lru825Schema.h"
#include "tests/gui/ProfileEditor825Filled.h"
#include "tests/support/ConsoleCapture.h"

#include <QCheckBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

#include <limits>
#include <map>
#include <tuple>

// What the pages of the editor of LRU documents show, and what is told of a file.

namespace {

using namespace zul;
using gui::FileDialogs;
using gui::MessageBoxes;
using zul::test::Shown;
using zul::test::shownOn;

class ProfileEditor825Shown : public zul::test::ProfileEditor825Filled
{
};

// A page shows every field of the record that is selected, after another one of its kind.
TEST_F(ProfileEditor825Shown, PagesAreFilledWithWhatWasEntered)
{
    fillHeaderAndLru();
    fillInterface();
    fillParameter();
    fillMessage("Transmit");
    addTo({"LRU", "CAN Interfaces"});
    addTo({"LRU", "Communication", "Transmit"});
    add();
    addTo({"LRU", "Communication", "Transmit", "Message Status", "Interfaces"});
    choose("assignmentRci", -1); // a new one takes the channel of the last
    addTo({"LRU", "Communication", "Transmit", "Message Status", "Data Field"});
    addTo({"Parameter List"});
    select({"Parameter List", "20 Speed", "off"});
    add();
    const std::vector<QTreeWidgetItem*> filled{
        item({"LRU", "CAN Interfaces", "can1"}),
        item({"LRU", "Communication", "Transmit", "Message Status"}),
        item({"LRU", "Communication", "Transmit", "Message Status", "Data Field"}),
        item({"LRU", "Communication", "Transmit", "Message Status", "Interfaces"})->child(0),
        item({"LRU", "Communication", "Transmit", "Message Status", "Data Field"})->child(0),
        item({"Parameter List", "20 Speed"}),
        item({"Parameter List", "20 Speed", "off"})};
    const std::vector<QTreeWidgetItem*> fresh{
        item({"LRU", "CAN Interfaces"})->child(1),
        item({"LRU", "Communication", "Transmit"})->child(1),
        item({"LRU", "Communication", "Transmit", "Message MessageName", "Data Field"}),
        item({"LRU", "Communication", "Transmit", "Message Status", "Interfaces"})->child(1),
        item({"LRU", "Communication", "Transmit", "Message Status", "Data Field"})->child(1),
        item({"Parameter List"})->child(1),
        item({"Parameter List", "20 Speed"})->child(1)};
    for (std::size_t i = 0; i < filled.size(); ++i) {
        select(fresh[i]);
        const Shown empty = shownOn(*page());
        select(filled[i]);
        EXPECT_EQ(shownOn(*page()), entered()) << i;
        for (const auto& [name, text] : entered()) {
            EXPECT_NE(text, empty.at(name)) << name << ": the next page shows the same";
        }
    }
    saveAs("lru.xml");
    EXPECT_FALSE(m_editor->isChanged());
    for (std::size_t i = 0; i < filled.size(); ++i) {
        select(filled[i]);
        select(fresh[i]);
    }
    EXPECT_FALSE(m_editor->isChanged()) << "looking changes nothing";
}

TEST_F(ProfileEditor825Shown, HeaderAndLruAreFilledFromTheFile)
{
    fillHeaderAndLru();
    saveAs("lru.xml");
    click("new");
    for (const auto& [name, text] : shownOn(*page())) {
        EXPECT_NE(text, entered().at(name)) << name;
    }
    FileDialogs::setNextFileName(path("lru.xml"));
    click("open");
    EXPECT_EQ(shownOn(*page()), entered());
    select({"LRU"});
    EXPECT_EQ(shownOn(*page()), entered());
}

TEST_F(ProfileEditor825Shown, EachOfTheThreeBitsHasItsOwn)
{
    addTo({"LRU", "Communication", "Transmit"});
    check("messagePvt");
    EXPECT_EQ(std::make_tuple(transmitted().pvt, transmitted().lcl, transmitted().fsb),
              std::make_tuple(1U, 0U, 0U));
    check("messageLcl");
    EXPECT_EQ(std::make_tuple(transmitted().pvt, transmitted().lcl, transmitted().fsb),
              std::make_tuple(1U, 1U, 0U));
    check("messagePvt");
    check("messageFsb");
    EXPECT_EQ(std::make_tuple(transmitted().pvt, transmitted().lcl, transmitted().fsb),
              std::make_tuple(0U, 1U, 1U));
}

TEST_F(ProfileEditor825Shown, EveryBitRateIsWrittenAsItsNumber)
{
    addTo({"LRU", "CAN Interfaces"});
    auto& rates = find<QComboBox>("ifcBitrate");
    const std::map<std::string, QByteArray> expected{{"1 MBit", "1000"},
                                                     {"500 KBit", "500"},
                                                     {"250 KBit", "250"},
                                                     {"125 KBit", "125"},
                                                     {"8.33 KBit", "83.333"}};
    choose("ifcBitrate", -4);
    for (int i = 0; i < rates.count(); ++i) {
        saveAs("lru.xml");
        EXPECT_TRUE(
            m_home.read(QStringLiteral("lru.xml"))
                .contains("bit_rate=\"" + expected.at(rates.currentText().toStdString()) + "\""))
            << i;
        choose("ifcBitrate", 1);
    }
}

// A number of the file that is shown as the nearest one, and typed as it is shown.
TEST_F(ProfileEditor825Shown, NearestNumberThatIsTypedIsSavedAtOnce)
{
    openFile("wide.xml", "<Arinc825Profile name='w'><LRU><Communication><TransmitList>"
                         "<Message name='m' txp='-5' latency_max='20000'><DataField dlc='500'/>"
                         "</Message></TransmitList></Communication></LRU></Arinc825Profile>");
    select({"LRU", "Communication", "Transmit", "Message m"});
    type("messageTxp", "0");
    click("save");
    EXPECT_EQ(transmitted().txp, 0.0);
    EXPECT_TRUE(m_home.read(QStringLiteral("wide.xml")).contains("txp=\"0.000000000000\""));
    select({"LRU", "Communication", "Transmit", "Message m", "Data Field"});
    type("dataFieldDlc", "64");
    add();
    EXPECT_EQ(transmitted().dataField.dlc, 64) << "before the page goes";
}

// What is typed over a nearest number counts before the work is asked for, or goes.
TEST_F(ProfileEditor825Shown, NearestNumberThatIsTypedIsAskedFor)
{
    const auto prepare = [this] {
        openFile("wide.xml", "<Arinc825Profile name='w' major='-1'/>");
        select({"Profile Header"});
        type("headerMajor", "0");
        EXPECT_FALSE(m_editor->isChanged()) << "not yet";
    };
    int questions = 0;
    prepare();
    MessageBoxes::setNextAnswer(QMessageBox::Cancel);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(asked(), ++questions);
    for (const char* button : {"new", "open"}) {
        MessageBoxes::setNextAnswer(QMessageBox::No);
        FileDialogs::setNextFileName(QString());
        click("new");
        ++questions;
        prepare();
        MessageBoxes::setNextAnswer(QMessageBox::Cancel);
        click(button);
        EXPECT_EQ(asked(), ++questions) << button;
        EXPECT_EQ(document().major, 0);
    }
    QTest::keyClick(&find<QWidget>("headerMajor"), Qt::Key_Return);
    MessageBoxes::setNextAnswer(QMessageBox::No);
    click("new");
    prepare();
    saveAs("other.xml");
    EXPECT_TRUE(m_home.read(QStringLiteral("other.xml")).contains("major=\"0\""));
}

TEST_F(ProfileEditor825Shown, NearestNumberIsTakenByReturn)
{
    openFile("wide.xml", "<Arinc825Profile name='w' major='-1'/>");
    select({"Profile Header"});
    type("headerMajor", "0");
    QTest::keyClick(&find<QWidget>("headerMajor"), Qt::Key_Return);
    EXPECT_EQ(document().major, 0);
    EXPECT_TRUE(m_editor->isChanged());
}

TEST_F(ProfileEditor825Shown, EditorMayGoBehindItsBoxesAndChoosers)
{
    for (const char* button : {"open", "save-as"}) {
        open();
        QTimer::singleShot(0, [this] { m_editor.reset(); });
        click(button);
        EXPECT_EQ(m_editor, nullptr) << button;
    }
    for (const auto answer : {QMessageBox::Yes, QMessageBox::No}) {
        open();
        select({"Profile Header"});
        type("headerName", "Changed");
        QTimer::singleShot(0, [this, answer] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            QTimer::singleShot(0, [this] { m_editor.reset(); });
            if (answer == QMessageBox::Yes) {
                qobject_cast<QPushButton*>(box->focusWidget())->click(); // "Yes": a chooser follows
            }
        });
        click("new");
        EXPECT_EQ(m_editor, nullptr);
    }
    open();
}

TEST_F(ProfileEditor825Shown, TitleKeepsWhatQtTakesForAMark)
{
    saveAs("[*].xml");
    EXPECT_TRUE(m_editor->windowTitle().contains(QLatin1String("[*][*].xml]")));
}

TEST_F(ProfileEditor825Shown, ElementsInsideLeavesAreForeignToo)
{
    zul::test::ConsoleCapture console;
    openFile("x.xml", "<Arinc825Profile name='f'><LRU><CANBusInterfaceList><CANBusInterface>"
                      "<BitTiming><x/></BitTiming></CANBusInterface></CANBusInterfaceList></LRU>"
                      "<ParameterList><Parameter><Enum><y/></Enum></Parameter></ParameterList>"
                      "</Arinc825Profile>");
    EXPECT_NE(console.out().find("2 elements are none of an LRU document"), std::string::npos)
        << console.out();
}

TEST_F(ProfileEditor825Shown, AssignmentsKeepTheNameOfARenamedOrDeletedInterface)
{
    addTo({"LRU", "CAN Interfaces"});
    type("ifcName", "left");
    addTo({"LRU", "Communication", "Receive"});
    addTo({"LRU", "Communication", "Receive", "Message MessageName", "Interfaces"});
    choose("assignmentName", 1);
    EXPECT_EQ(received().assignments.at(0).name, QLatin1String("left"));
    select({"LRU", "CAN Interfaces", "left"});
    type("ifcName", "right");
    select(
        item({"LRU", "Communication", "Receive", "Message MessageName", "Interfaces"})->child(0));
    EXPECT_EQ(find<QComboBox>("assignmentName").currentText(), QLatin1String("left"));
    find<QComboBox>("assignmentName").showPopup();
    EXPECT_EQ(choices("assignmentName"),
              QStringList({QStringLiteral("left"), QStringLiteral("right")}));
    find<QComboBox>("assignmentName").hidePopup();
    EXPECT_EQ(received().assignments.at(0).name, QLatin1String("left"));
    select({"LRU", "CAN Interfaces", "right"});
    remove();
    select(
        item({"LRU", "Communication", "Receive", "Message MessageName", "Interfaces"})->child(0));
    EXPECT_EQ(find<QComboBox>("assignmentName").currentText(), QLatin1String("left"));
}

TEST_F(ProfileEditor825Shown, ChoosersStartAtThePresentFile)
{
    saveAs("lru.xml");
    for (const char* button : {"open", "save-as"}) {
        FileDialogs::setNextFileName(QString());
        click(button);
        EXPECT_EQ(FileDialogs::lastPath(), path("lru.xml")) << button;
    }
    click("new");
    FileDialogs::setNextFileName(QString());
    click("open");
    EXPECT_EQ(FileDialogs::lastPath(), QString());
}

TEST_F(ProfileEditor825Shown, WhatWouldBeLostIsTold)
{
    zul::test::ConsoleCapture console;
    openFile("flight.xml", "<Arinc825Profile name='flight'><FidList/><EnumList/><ParameterList>"
                           "<Sfid id='4'><Parameter/></Sfid></ParameterList></Arinc825Profile>");
    EXPECT_NE(console.out().find("3 elements are none of an LRU document"), std::string::npos)
        << console.out();
}

TEST_F(ProfileEditor825Shown, ReportOfTheReaderIsTold)
{
    zul::test::ConsoleCapture console;
    openFile("long.xml", "<Arinc825Profile name='" + QByteArray(256, 'x') + "'/>");
    EXPECT_NE(console.out().find("Profile name has more than 255 characters"), std::string::npos);
}

TEST_F(ProfileEditor825Shown, YesSavesBeforeOpenAndFinishedToo)
{
    saveAs("lru.xml");
    select({"Profile Header"});
    type("headerName", "One");
    MessageBoxes::setNextAnswer(QMessageBox::Yes);
    FileDialogs::setNextFileName(QString());
    click("open");
    EXPECT_TRUE(m_home.read(QStringLiteral("lru.xml")).contains("One"));
    type("headerName", "Two");
    MessageBoxes::setNextAnswer(QMessageBox::No);
    FileDialogs::setNextFileName(path("lru.xml"));
    click("open");
    EXPECT_EQ(document().name, QLatin1String("One"));
    type("headerName", "Three");
    MessageBoxes::setNextAnswer(QMessageBox::Yes);
    click("finished");
    EXPECT_FALSE(m_editor->isVisible());
    EXPECT_TRUE(m_home.read(QStringLiteral("lru.xml")).contains("Three"));
}

TEST_F(ProfileEditor825Shown, UnitsAreThoseOfTheStandard)
{
    addTo({"Parameter List"});
    QStringList expected;
    for (const auto& [code, label] : Lru825Schema().unitTable) {
        expected.append(label);
    }
    EXPECT_EQ(expected.size(), 54);
    EXPECT_EQ(choices("parameterPua"), expected);
}

TEST_F(ProfileEditor825Shown, NumbersTellTheirUnits)
{
    const std::map<const char*, const char*> suffixes{{"messageTxp", " ms"},
                                                      {"messageLatency", " ms"},
                                                      {"ifcTimeQuantum", " tq"},
                                                      {"ifcPhaseSeg2", " tq"},
                                                      {"dataFieldDlc", " bytes"}};
    for (const auto& [name, suffix] : suffixes) {
        EXPECT_EQ(find<QSpinBox>(name).suffix(), QLatin1String(suffix)) << name;
    }
    for (const char* name : {"headerMajor", "headerMinor"}) {
        EXPECT_EQ(find<QSpinBox>(name).minimum(), 0);
        EXPECT_EQ(find<QSpinBox>(name).maximum(), std::numeric_limits<int>::max());
    }
    for (const char* name : {"ifcResync", "ifcSyncSeg", "ifcPropSeg", "ifcPhaseSeg1"}) {
        EXPECT_EQ(find<QSpinBox>(name).minimum(), 0);
        EXPECT_EQ(find<QSpinBox>(name).maximum(), 1024);
    }
    for (const char* name : {"epp", "pvsSpp"}) {
        EXPECT_EQ(find<QSpinBox>((QByteArray(name) + "Byte").constData()).maximum(), 63);
        EXPECT_EQ(find<QSpinBox>((QByteArray(name) + "Bit").constData()).maximum(), 7);
    }
}

} // namespace

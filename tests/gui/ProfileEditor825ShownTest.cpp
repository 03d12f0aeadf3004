#include "profile/Lru825Schema.h"
#include "tests/gui/ProfileEditor825Filled.h"
#include "tests/support/ConsoleCapture.h"

#include <QCheckBox>
#include <QPlainTextEdit>

#include <limits>
#include <map>
#include <tuple>

// What the pages of the editor of LRU documents show, and what is told of a file.

namespace {

using namespace zul;
using gui::FileDialogs;
using gui::MessageBoxes;

class ProfileEditor825Shown : public zul::test::ProfileEditor825Filled
{
};

// What every control of a page shows, by its name.
using Shown = std::map<std::string, std::string>;

Shown shownOn(const gui::EditorForm& page)
{
    Shown shown;
    for (const QWidget* control : page.findChildren<QWidget*>()) {
        const std::string name = control->objectName().toStdString();
        if (const auto* line = qobject_cast<const QLineEdit*>(control)) {
            shown[name] = line->text().toStdString();
        } else if (const auto* text = qobject_cast<const QPlainTextEdit*>(control)) {
            shown[name] = text->toPlainText().toStdString();
        } else if (const auto* number = qobject_cast<const QSpinBox*>(control)) {
            shown[name] = number->text().toStdString();
        } else if (const auto* box = qobject_cast<const QComboBox*>(control)) {
            shown[name] = box->currentText().toStdString();
        } else if (const auto* check = qobject_cast<const QCheckBox*>(control)) {
            shown[name] = check->isChecked() ? "yes" : "no";
        }
    }
    return shown;
}

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
        select(filled[i]);
        const Shown entered = shownOn(*page());
        select(fresh[i]);
        const Shown empty = shownOn(*page());
        select(filled[i]);
        EXPECT_EQ(shownOn(*page()), entered) << i;
        for (const auto& [name, text] : entered) {
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
    select({"Profile Header"});
    const Shown header = shownOn(*page());
    select({"LRU"});
    const Shown lru = shownOn(*page());
    saveAs("lru.xml");
    click("new");
    for (const auto& [name, text] : shownOn(*page())) {
        EXPECT_NE(text, header.at(name)) << name;
    }
    FileDialogs::setNextFileName(path("lru.xml"));
    click("open");
    EXPECT_EQ(shownOn(*page()), header);
    select({"LRU"});
    EXPECT_EQ(shownOn(*page()), lru);
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

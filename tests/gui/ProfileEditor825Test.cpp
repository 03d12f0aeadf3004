#include "tests/gui/ProfileEditor825Fixture.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QWheelEvent>

// The pages of the editor of LRU documents, and the records that they edit.

namespace {

using namespace zul;
using gui::MessageBoxes;
using zul::test::ProfileEditor825Test;

QStringList list(std::initializer_list<const char*> texts)
{
    QStringList result;
    for (const char* text : texts) {
        result.append(QLatin1String(text));
    }
    return result;
}

TEST_F(ProfileEditor825Test, StartsWithANewDocument)
{
    EXPECT_EQ(document().name, QLatin1String("NoName"));
    EXPECT_EQ(m_editor->fileName(), QLatin1String("none"));
    EXPECT_FALSE(m_editor->isChanged());
    EXPECT_EQ(m_editor->windowTitle(), QLatin1String("Profile Editor ARINC-825 [none]"));
    EXPECT_EQ(selected(), Lru825Item::Header);
    EXPECT_EQ(find<QLineEdit>("headerName").text(), QLatin1String("NoName"));
}

TEST_F(ProfileEditor825Test, HasItsButtons)
{
    const std::vector<std::pair<const char*, const char*>> buttons{
        {"new", "New Profile"},         {"open", "Open Profile"}, {"save", "Save Profile"},
        {"save-as", "Save Profile as"}, {"parameter-add", "Add"}, {"parameter-delete", "Delete"},
    };
    for (const auto& [name, text] : buttons) {
        EXPECT_EQ(find<QToolButton>(name).text(), QLatin1String(text));
        EXPECT_FALSE(find<QToolButton>(name).icon().isNull()) << name;
    }
    EXPECT_EQ(find<QPushButton>("finished").text(), QLatin1String("Finished"));
}

TEST_F(ProfileEditor825Test, TreeHasItsFixedItems)
{
    std::string all;
    for (QTreeWidgetItemIterator at(&tree()); *at != nullptr; ++at) {
        const QTreeWidgetItem* parent = (*at)->parent();
        all += (parent != nullptr ? parent->text(0) : QString()).toStdString() + ">" +
               (*at)->text(0).toStdString() + " ";
        EXPECT_FALSE((*at)->icon(0).pixmap(16, 16).isNull()) << (*at)->text(0).toStdString();
    }
    EXPECT_EQ(all, ">Profile Header >LRU LRU>CAN Interfaces LRU>Communication "
                   "Communication>Transmit Communication>Receive >Parameter List ");
}

TEST_F(ProfileEditor825Test, PagesHaveTheirLabels)
{
    select({"Profile Header"});
    EXPECT_EQ(pageTitle(), QLatin1String("Profile Header"));
    EXPECT_EQ(labels(), list({"Id", "Name", "Major", "Minor", "Version", "Comment"}));
    select({"LRU"});
    EXPECT_EQ(pageTitle(), QLatin1String("LRU"));
    EXPECT_EQ(labels(), list({"Name", "Node Id", "Node Address", "Comment"}));
    addTo({"LRU", "CAN Interfaces"});
    EXPECT_EQ(pageTitle(), QLatin1String("CAN Interface"));
    EXPECT_EQ(labels(),
              list({"Name", "Bit Rate", "RCI", "Comment", "Time Quantum/Bit", "Resync Jump Width",
                    "Sync Seg", "Prop Seg", "Phase Seg 1", "Phase Seg 2", "Sampling Point"}));
    addTo({"LRU", "Communication", "Transmit"});
    EXPECT_EQ(pageTitle(), QLatin1String("Message"));
    EXPECT_EQ(labels(), list({"Name", "ID Type", "ID Length", "LCC", "FID", "Private Bit",
                              "LCL Bit", "FSB Bit", "DOC", "TXP", "Latency", "Default Port",
                              "11 Bit Id", "Functional Status"}));
    select({"LRU", "Communication", "Transmit", "Message MessageName", "Data Field"});
    EXPECT_EQ(pageTitle(), QLatin1String("Data Field"));
    EXPECT_EQ(labels(), list({"Name", "Payload Protocol", "DLC", "Integrity"}));
    EXPECT_EQ(find<QCheckBox>("dataFieldIntegrity").text(), QLatin1String("High Integrity"));
    add();
    EXPECT_EQ(pageTitle(), QLatin1String("Parameter Assignment"));
    EXPECT_EQ(labels(), list({"Parameter", "SPP Byte/Bit :", "EPP Byte/Bit :", "PVS SPP Byte/Bit :",
                              "PVS EPP Byte/Bit :"}));
    addTo({"LRU", "Communication", "Transmit", "Message MessageName", "Interfaces"});
    EXPECT_EQ(pageTitle(), QLatin1String("Interface Assignment"));
    EXPECT_EQ(labels(), list({"Interface", "RCI"}));
    addTo({"Parameter List"});
    EXPECT_EQ(pageTitle(), QLatin1String("Parameter"));
    EXPECT_EQ(labels(), list({"Name", "Physical Unit", "Data Type", "Minimum", "Maximum",
                              "Resolution", "Offset", "Notes", "Comment", "FID"}));
    click("addEnum");
    EXPECT_EQ(pageTitle(), QLatin1String("Enum"));
    EXPECT_EQ(labels(), list({"Enum", "Value"}));
}

TEST_F(ProfileEditor825Test, ItemsWithoutAPageShowAnEmptyOne)
{
    addTo({"LRU", "Communication", "Receive"});
    select({"LRU", "CAN Interfaces"});
    EXPECT_EQ(page(), nullptr);
    select({"LRU", "Communication"});
    EXPECT_EQ(page(), nullptr);
    select({"LRU", "Communication", "Transmit"});
    EXPECT_EQ(page(), nullptr);
    select({"LRU", "Communication", "Receive"});
    EXPECT_EQ(page(), nullptr);
    select({"LRU", "Communication", "Receive", "Message MessageName", "Interfaces"});
    EXPECT_EQ(page(), nullptr);
    select({"Parameter List"});
    EXPECT_EQ(page(), nullptr);
}

TEST_F(ProfileEditor825Test, ChoicesHaveTheirLists)
{
    EXPECT_EQ(choices("ifcBitrate"),
              list({"1 MBit", "500 KBit", "250 KBit", "125 KBit", "8.33 KBit"}));
    EXPECT_EQ(choices("ifcRci"), list({"A", "B", "C", "D"}));
    EXPECT_EQ(choices("ifcSamplingPoint"), list({"Single", "Triple"}));
    EXPECT_EQ(choices("messageIdType"),
              list({"OneToMany", "PeerToPeer", "UserDefined", "DirectedMessage"}));
    EXPECT_EQ(choices("messageIdLength"), list({"11bit", "29bit"}));
    EXPECT_EQ(choices("messageLcc"),
              list({"EEC", "RESERVED", "NOC", "DMC", "NSC", "UDC", "TMC", "FMC"}));
    EXPECT_EQ(choices("messageFuncStatus"), list({"NCD", "ND", "NO", "FT"}));
    EXPECT_EQ(choices("assignmentRci"), list({"A", "B", "C", "D"}));
    EXPECT_EQ(choices("parameterDtn"),
              list({"NODATA", "ENUM", "CHAR", "UCHAR", "ACHAR", "SHORT", "USHORT", "LONG", "ULONG",
                    "FLOAT", "LONG64", "ULONG64", "DOUBLE", "OPAQUE", "BOOL", "BCD"}));
    EXPECT_TRUE(choices("parameterPua").contains(QStringLiteral("m/s")));
    EXPECT_TRUE(choices("parameterPua").contains(QStringLiteral("V/m")));
}

TEST_F(ProfileEditor825Test, FunctionCodesAreAllOffered)
{
    const CodeTable table = makeFidTable825Part3();
    for (const char* name : {"messageFid", "parameterFid"}) {
        const QStringList rows = choices(name);
        ASSERT_EQ(rows.size(), 128) << name;
        EXPECT_GT(rows.filter(QStringLiteral(": <Reserved>")).size(), 10) << name;
        for (int fid = 0; fid < rows.size(); ++fid) {
            EXPECT_EQ(
                rows.at(fid),
                QStringLiteral("%1: <%2>").arg(fid).arg(table.at(static_cast<std::uint32_t>(fid))));
            EXPECT_EQ(find<QComboBox>(name).itemData(fid).toInt(), fid);
        }
    }
}

TEST_F(ProfileEditor825Test, NumbersHaveTheirRanges)
{
    struct Range
    {
        const char* name;
        int lowest;
        int highest;
    };
    for (const Range& range :
         {Range{"messageDoc", 0, 16384}, Range{"messageTxp", 0, 10000},
          Range{"messageLatency", 0, 10000}, Range{"messageId", 0, 2047},
          Range{"messagePort", 0, 65535}, Range{"dataFieldDlc", 0, 64}, Range{"sppByte", 0, 63},
          Range{"sppBit", 0, 7}, Range{"pvsEppByte", 0, 63}, Range{"pvsEppBit", 0, 7},
          Range{"ifcTimeQuantum", 0, 1024}, Range{"ifcPhaseSeg2", 0, 1024},
          Range{"headerVersion", 0, 2147483647}, Range{"enumValue", INT_MIN, INT_MAX}}) {
        EXPECT_EQ(find<QSpinBox>(range.name).minimum(), range.lowest) << range.name;
        EXPECT_EQ(find<QSpinBox>(range.name).maximum(), range.highest) << range.name;
    }
    EXPECT_EQ(find<QSpinBox>("messageTxp").suffix(), QLatin1String(" ms"));
    EXPECT_EQ(find<QSpinBox>("messageDoc").toolTip(),
              QLatin1String("Data Object Code\n0 to 16384"));
}

TEST_F(ProfileEditor825Test, PositionsHaveTheirToolTips)
{
    const std::vector<std::pair<const char*, const char*>> toolTips{
        {"spp", "Start Position Payload"},
        {"epp", "End Position Payload"},
        {"pvsSpp", "Start Position Status"},
        {"pvsEpp", "End Position Status"}};
    addTo({"LRU", "Communication", "Transmit"});
    addTo({"LRU", "Communication", "Transmit", "Message MessageName", "Data Field"});
    for (const auto& [name, text] : toolTips) {
        EXPECT_EQ(page()->label(name).toolTip(), QLatin1String(text));
        for (const char* part : {"Byte", "Bit"}) {
            const QByteArray control = QByteArray(name) + part;
            EXPECT_EQ(find<QSpinBox>(control.constData()).toolTip(), QLatin1String(text));
        }
    }
}

TEST_F(ProfileEditor825Test, AddSelectsTheNewItemAndUnfoldsItsList)
{
    addTo({"LRU", "CAN Interfaces"});
    EXPECT_EQ(tree().currentItem(), item({"LRU", "CAN Interfaces", "InterfaceName"}));
    EXPECT_TRUE(item({"LRU", "CAN Interfaces"})->isExpanded());
    EXPECT_EQ(m_editor->selection().interface, interface().serial);
    EXPECT_TRUE(m_editor->isChanged());
    EXPECT_EQ(m_editor->windowTitle(), QLatin1String("Profile Editor ARINC-825 [none] (edited)"));
    add(); // beside it
    EXPECT_EQ(item({"LRU", "CAN Interfaces"})->childCount(), 2);
    EXPECT_EQ(m_editor->selection().interface, document().interfaces.rbegin()->first);
    EXPECT_EQ(tree().currentItem(), item({"LRU", "CAN Interfaces"})->child(1));
}

TEST_F(ProfileEditor825Test, AddsMessagesBelowTheListThatIsSelected)
{
    addTo({"LRU", "Communication", "Receive"});
    EXPECT_EQ(pageTitle(), QLatin1String("Message"));
    EXPECT_EQ(m_editor->selection().receiveMessage, received().serial);
    EXPECT_EQ(m_editor->selection().transmitMessage, Lru825Selection::nothing);
    add();
    EXPECT_EQ(document().receiveMessages.size(), 2U);
    addTo({"LRU", "Communication", "Transmit"});
    EXPECT_EQ(pageTitle(), QLatin1String("Message"));
    EXPECT_EQ(m_editor->selection().transmitMessage, transmitted().serial);
    EXPECT_EQ(m_editor->selection().receiveMessage, Lru825Selection::nothing);
    EXPECT_EQ(document().transmitMessages.size(), 1U);
    const QTreeWidgetItem* message = item({"LRU", "Communication", "Receive"})->child(0);
    ASSERT_EQ(message->childCount(), 2);
    EXPECT_EQ(message->child(0)->text(0), QLatin1String("Interfaces"));
    EXPECT_EQ(message->child(1)->text(0), QLatin1String("Data Field"));
}

TEST_F(ProfileEditor825Test, NewAssignmentTakesTheChannelThatIsShown)
{
    addTo({"LRU", "Communication", "Transmit"});
    addTo({"LRU", "Communication", "Transmit", "Message MessageName", "Interfaces"});
    EXPECT_EQ(transmitted().assignments.at(0).rci, 0U);
    EXPECT_TRUE(transmitted().assignments.at(0).name.isEmpty());
    choose("assignmentRci", 2);
    add();
    ASSERT_EQ(transmitted().assignments.size(), 2U);
    EXPECT_EQ(transmitted().assignments.at(0).rci, 2U);
    EXPECT_EQ(transmitted().assignments.at(1).rci, 2U);
    EXPECT_EQ(find<QComboBox>("assignmentRci").currentText(), QLatin1String("C"));
}

TEST_F(ProfileEditor825Test, AddAndDeleteAreOfferedWhereTheyDoSomething)
{
    const auto& addButton = find<QToolButton>("parameter-add");
    const auto& deleteButton = find<QToolButton>("parameter-delete");
    for (const char* fixed : {"Profile Header", "LRU"}) {
        select({fixed});
        EXPECT_FALSE(addButton.isEnabled());
        EXPECT_FALSE(deleteButton.isEnabled());
        m_editor->slotAdd();
        m_editor->slotDelete();
    }
    EXPECT_FALSE(m_editor->isChanged());
    select({"Parameter List"});
    EXPECT_TRUE(addButton.isEnabled());
    EXPECT_FALSE(deleteButton.isEnabled());
    add();
    EXPECT_TRUE(addButton.isEnabled());
    EXPECT_TRUE(deleteButton.isEnabled());
}

TEST_F(ProfileEditor825Test, AddBesideAParameterAddsAParameterAndBesideAnEntryAnEntry)
{
    addTo({"Parameter List"});
    add();
    EXPECT_EQ(document().parameters.size(), 2U);
    click("addEnum");
    add();
    EXPECT_EQ(document().parameters.size(), 2U);
    EXPECT_EQ(document().parameters.rbegin()->second.enumEntries.size(), 2U);
    EXPECT_EQ(selected(), Lru825Item::EnumEntry);
    EXPECT_TRUE(item({"Parameter List"})->child(1)->isExpanded());
}

TEST_F(ProfileEditor825Test, DeleteRemovesTheRecordAndShowsTheNext)
{
    select({"Parameter List"});
    for (const char* name : {"a", "b", "c"}) {
        add();
        type("parameterName", name);
    }
    select({"Parameter List", "0 b"});
    remove();
    ASSERT_EQ(document().parameters.size(), 2U);
    EXPECT_EQ(item({"Parameter List"})->childCount(), 2);
    EXPECT_EQ(tree().currentItem(), item({"Parameter List", "0 c"}));
    EXPECT_EQ(find<QLineEdit>("parameterName").text(), QLatin1String("c"));
    remove();
    EXPECT_EQ(find<QLineEdit>("parameterName").text(), QLatin1String("a"));
    EXPECT_EQ(m_editor->selection().parameter, parameter().serial);
    remove();
    EXPECT_TRUE(document().parameters.empty());
    EXPECT_EQ(tree().currentItem(), item({"Parameter List"}));
    EXPECT_EQ(page(), nullptr);
    EXPECT_FALSE(find<QToolButton>("parameter-delete").isEnabled());
}

TEST_F(ProfileEditor825Test, DeleteReachesEveryKindOfRecord)
{
    addTo({"LRU", "CAN Interfaces"});
    remove();
    EXPECT_TRUE(document().interfaces.empty());
    for (const char* name : {"Transmit", "Receive"}) {
        addTo({"LRU", "Communication", name});
        addTo({"LRU", "Communication", name, "Message MessageName", "Interfaces"});
        remove();
        addTo({"LRU", "Communication", name, "Message MessageName", "Data Field"});
        remove();
        const QTreeWidgetItem* message = item({"LRU", "Communication", name})->child(0);
        EXPECT_EQ(message->child(0)->childCount() + message->child(1)->childCount(), 0);
        select({"LRU", "Communication", name, "Message MessageName"});
        remove();
        EXPECT_EQ(item({"LRU", "Communication", name})->childCount(), 0);
    }
    EXPECT_TRUE(document().transmitMessages.empty());
    EXPECT_TRUE(document().receiveMessages.empty());
    addTo({"Parameter List"});
    click("addEnum");
    remove();
    EXPECT_TRUE(parameter().enumEntries.empty());
    EXPECT_EQ(selected(), Lru825Item::Parameter);
}

TEST_F(ProfileEditor825Test, NamesStandInTheTree)
{
    addTo({"LRU", "CAN Interfaces"});
    type("ifcName", "can1 <&\";");
    EXPECT_EQ(tree().currentItem()->text(0), QLatin1String("can1 <&\";"));
    addTo({"LRU", "Communication", "Receive"});
    type("messageName", "Status");
    EXPECT_EQ(tree().currentItem()->text(0), QLatin1String("Message Status"));
    addTo({"LRU", "Communication", "Receive", "Message Status", "Interfaces"});
    choose("assignmentName", 1);
    EXPECT_EQ(tree().currentItem()->text(0), QLatin1String("can1 <&\";"));
    addTo({"Parameter List"});
    type("parameterName", "Speed");
    EXPECT_EQ(tree().currentItem()->text(0), QLatin1String("0 Speed"));
    choose("parameterFid", 3);
    EXPECT_EQ(tree().currentItem()->text(0), QLatin1String("3 Speed"));
    click("addEnum");
    type("enumKey", "off");
    EXPECT_EQ(tree().currentItem()->text(0), QLatin1String("off"));
    addTo({"LRU", "Communication", "Receive", "Message Status", "Data Field"});
    choose("referenceName", 1);
    EXPECT_EQ(tree().currentItem()->text(0), QLatin1String("Speed"));
}

TEST_F(ProfileEditor825Test, SelectingMarksNothingChanged)
{
    addTo({"LRU", "CAN Interfaces"});
    addTo({"LRU", "Communication", "Transmit"});
    addTo({"LRU", "Communication", "Transmit", "Message MessageName", "Interfaces"});
    addTo({"LRU", "Communication", "Transmit", "Message MessageName", "Data Field"});
    addTo({"Parameter List"});
    click("addEnum");
    saveAs("lru.xml");
    ASSERT_FALSE(m_editor->isChanged());
    tree().expandAll();
    for (QTreeWidgetItemIterator at(&tree()); *at != nullptr; ++at) {
        select(*at);
        EXPECT_FALSE(m_editor->isChanged()) << (*at)->text(0).toStdString();
    }
}

TEST_F(ProfileEditor825Test, RecordsKeepTheirOwnValuesWhenAnotherIsShown)
{
    addTo({"LRU", "CAN Interfaces"});
    type("ifcName", "one");
    choose("ifcBitrate", -2);
    add();
    EXPECT_EQ(find<QLineEdit>("ifcName").text(), QLatin1String("InterfaceName"));
    EXPECT_EQ(find<QComboBox>("ifcBitrate").currentText(), QLatin1String("8.33 KBit"));
    type("ifcName", "two");
    select({"LRU", "CAN Interfaces", "one"});
    EXPECT_EQ(find<QLineEdit>("ifcName").text(), QLatin1String("one"));
    EXPECT_EQ(find<QComboBox>("ifcBitrate").currentText(), QLatin1String("250 KBit"));
    EXPECT_EQ(interface().bitRate, 2U);
}

TEST_F(ProfileEditor825Test, NameOfAReferenceStaysWhenItsRecordIsRenamedOrGone)
{
    addTo({"Parameter List"});
    type("parameterName", "Speed");
    addTo({"LRU", "Communication", "Transmit"});
    addTo({"LRU", "Communication", "Transmit", "Message MessageName", "Data Field"});
    EXPECT_EQ(choices("referenceName"), list({"Parameter", "Speed"})); // its own name is not there
    EXPECT_EQ(find<QComboBox>("referenceName").currentText(), QLatin1String("Parameter"));
    choose("referenceName", 1);
    EXPECT_EQ(transmitted().dataField.parameters.at(0).name, QLatin1String("Speed"));
    select({"Parameter List", "0 Speed"});
    type("parameterName", "Altitude");
    select({"LRU", "Communication", "Transmit", "Message MessageName", "Data Field", "Speed"});
    EXPECT_EQ(choices("referenceName"), list({"Speed", "Altitude"}));
    EXPECT_EQ(find<QComboBox>("referenceName").currentText(), QLatin1String("Speed"));
    select({"Parameter List", "0 Altitude"});
    remove();
    select({"LRU", "Communication", "Transmit", "Message MessageName", "Data Field", "Speed"});
    EXPECT_EQ(choices("referenceName"), list({"Speed"}));
    EXPECT_EQ(transmitted().dataField.parameters.at(0).name, QLatin1String("Speed"));
}

TEST_F(ProfileEditor825Test, ListOfNamesDropsDownBelowItsBox)
{
    select({"Parameter List"});
    for (int i = 0; i < 30; ++i) {
        add();
        type("parameterName", QByteArray("p").append(QByteArray::number(i)).constData());
    }
    addTo({"LRU", "Communication", "Transmit"});
    addTo({"LRU", "Communication", "Transmit", "Message MessageName", "Data Field"});
    auto& box = find<QComboBox>("referenceName");
    QTest::mouseClick(&box, Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(box.view()->window()));
    EXPECT_EQ(box.count(), 31); // with the name of the new reference before them
    const int rowHeight = box.view()->visualRect(box.model()->index(0, 0)).height();
    EXPECT_LT(box.view()->height(), 22 * rowHeight);
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(box.view(), Qt::Key_Down);
    }
    QTest::keyClick(box.view(), Qt::Key_Return);
    EXPECT_EQ(transmitted().dataField.parameters.at(0).name, QLatin1String("p2"));
    EXPECT_EQ(tree().currentItem()->text(0), QLatin1String("p2"));
}

TEST_F(ProfileEditor825Test, NumbersAreTakenAsFarAsTheyAreNumbers)
{
    addTo({"Parameter List"});
    type("parameterMin", "-1.5e3");
    EXPECT_EQ(parameter().min, -1500.0);
    type("parameterMin", "-");
    EXPECT_EQ(parameter().min, -1500.0);
    find<QWidget>("parameterMax").setFocus();
    EXPECT_EQ(find<QLineEdit>("parameterMin").text(), QLatin1String("-1500"));
    type("parameterMax", "1,x5");
    EXPECT_EQ(parameter().max, 15.0);
    type("parameterMax", "1e999");
    EXPECT_EQ(parameter().max, 1e99); // the last one that was a number
    type("parameterOffset", "0.0001");
    EXPECT_EQ(parameter().offset, 0.0001);
    select({"Profile Header"});
    select({"Parameter List", "0 Parameter"});
    EXPECT_EQ(find<QLineEdit>("parameterOffset").text(), QLatin1String("0.0001"));
    EXPECT_EQ(find<QLineEdit>("parameterMax").text(), QLatin1String("1e+99"));
}

TEST_F(ProfileEditor825Test, UnitIsAnyText)
{
    addTo({"Parameter List"});
    type("parameterPua", "M");
    QTest::keyClick(&find<QWidget>("parameterPua"), Qt::Key_Return);
    EXPECT_EQ(parameter().pua, QLatin1String("M")); // no spelling of the list
    EXPECT_TRUE(m_editor->isVisible());
    type("parameterPua", "furlong");
    EXPECT_EQ(parameter().pua, QLatin1String("furlong"));
    choose("parameterPua", 1);
    EXPECT_EQ(parameter().pua, find<QComboBox>("parameterPua").itemText(0));
}

TEST_F(ProfileEditor825Test, LongLabelsOfFunctionCodesCanBeReadInFull)
{
    addTo({"Parameter List"});
    choose("parameterFid", 91);
    const auto& box = find<QComboBox>("parameterFid");
    EXPECT_EQ(box.currentText(),
              QLatin1String("91: <Communications: Passenger Address, Entertainment And Comfort "
                            "Available>"));
    EXPECT_TRUE(box.toolTip().contains(box.currentText().toHtmlEscaped()));
    EXPECT_GE(box.view()->minimumWidth(), box.fontMetrics().horizontalAdvance(box.currentText()));
}

TEST_F(ProfileEditor825Test, WheelChangesNothingThatHasNoFocus)
{
    addTo({"LRU", "Communication", "Transmit"});
    tree().setFocus();
    for (const char* name : {"messageDoc", "messageFid"}) {
        auto& control = find<QWidget>(name);
        QWheelEvent wheel(QPointF(5, 5), control.mapToGlobal(QPoint(5, 5)), QPoint(),
                          QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&control, &wheel);
    }
    EXPECT_EQ(transmitted().doc, 0U);
    EXPECT_EQ(transmitted().fid, 0U);
}

TEST_F(ProfileEditor825Test, FitsASmallScreen)
{
    EXPECT_LE(m_editor->minimumSizeHint().width(), 1024);
    EXPECT_LE(m_editor->minimumSizeHint().height(), 700);
}

} // namespace

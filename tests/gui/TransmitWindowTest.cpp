#include "gui/frame/MessageBoxes.h"
#include "gui/frame/WidgetHeader.h"
#include "gui/frame/WidgetInterfaceSelect.h"
#include "tests/gui/TransmitFixture.h"
#include "tests/support/ConsoleCapture.h"

#include <QLabel>
#include <QScrollBar>
#include <QTimer>
#include <QToolButton>

// The Transmit window: its table, and what it sends when.

namespace {

using gui::MessageBoxes;
using Ids = std::vector<std::vector<std::uint32_t>>;

const QColor green(180, 255, 180);
const QColor yellow(255, 255, 180);
const QColor red(255, 180, 180);

class TransmitWindow : public zul::test::TransmitTest
{
protected:
    QString counter() const { return find<QLabel>("outputCounter")->text(); }
    QStringList names() const
    {
        QStringList all;
        for (int row = 0; row < m_table->rowCount(); ++row) {
            all.append(m_table->item(row, 0)->text());
        }
        return all;
    }
    void rename(int row, const char* name)
    {
        m_dialog->show();
        m_table->editItem(m_table->item(row, 0));
        auto* editor =
            m_table->viewport()->findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
        ASSERT_NE(editor, nullptr);
        zul::test::type(editor, name);
        QTest::keyClick(editor, Qt::Key_Return);
        QApplication::processEvents(); // the table takes the text later
    }
    void answer(QMessageBox::StandardButton button) { MessageBoxes::setNextAnswer(button); }
};

TEST_F(TransmitWindow, HasItsButtonsAndModes)
{
    open();
    const struct
    {
        const char* name;
        const char* text;
        QColor color;
    } buttons[] = {{"add", "New Message", green},
                   {"delete", "Delete Selected", yellow},
                   {"clear", "Clear", red},
                   {"transmit", "Transmit Selected", green}};
    m_dialog->show();
    int left = find("displayMode")->x();
    for (const auto& wanted : buttons) {
        const auto* button = find<QPushButton>(wanted.name);
        EXPECT_EQ(button->text(), QLatin1String(wanted.text));
        EXPECT_EQ(button->palette().color(QPalette::Button), wanted.color);
        EXPECT_GT(button->x(), left);
        left = button->x();
    }
    const auto* modes = find<gui::QwtComboBox>("displayMode");
    ASSERT_EQ(modes->count(), 3);
    EXPECT_EQ(modes->itemText(0), QStringLiteral("CAN"));
    EXPECT_EQ(modes->itemData(0), 0);
    EXPECT_EQ(modes->itemText(1), QStringLiteral("CANaerospace"));
    EXPECT_EQ(modes->itemData(1), 3);
    EXPECT_EQ(modes->itemText(2), QStringLiteral("ARINC 825 Raw"));
    EXPECT_EQ(modes->itemData(2), 4);
    EXPECT_FALSE(find("inputSwitch")->isEnabled());
    EXPECT_TRUE(find("outputSwitch")->isEnabled());
}

TEST_F(TransmitWindow, FirstSizeShowsAllColumnsIfTheMainWindowHasTheRoom)
{
    addLine(1);
    open();
    m_dialog->show();
    QApplication::processEvents();
    EXPECT_EQ(m_table->horizontalScrollBar()->maximum(), 0);
    for (const auto& [mainWidth, width] : {std::pair{640, 720}, {1100, 800}, {1920, 890}}) {
        QWidget main;
        main.resize(mainWidth, 700);
        const gui::DialogTransmit dialog(m_object, &main);
        EXPECT_EQ(dialog.sizeHint().width(), width);
        EXPECT_EQ(dialog.size(), dialog.sizeHint());
    }
    m_object->setDialog(m_dialog);
}

TEST_F(TransmitWindow, ShowsTheSettingsOfItsObject)
{
    m_object->settings().displayMode = 4;
    m_object->settings().outputOn = false;
    m_object->settings().numberType = 1;
    m_object->settings().outputInterface = QStringLiteral("Nose");
    m_object->settings().autoTx = true;
    open();
    const auto* header = m_dialog->findChild<WidgetHeader*>();
    EXPECT_EQ(find<gui::QwtComboBox>("displayMode")->currentData(), 4);
    EXPECT_FALSE(header->isOutputOn());
    EXPECT_EQ(header->numberType(), 1);
    EXPECT_EQ(find<gui::WidgetInterfaceSelect>("outputSelect")->interface(),
              QStringLiteral("Nose"));
    EXPECT_EQ(find<QToolButton>("autoTx")->text(), QStringLiteral("Auto Tx On"));
    m_object->settings().outputOn = true;
    m_dialog->updateDialog();
    EXPECT_TRUE(header->isOutputOn());
}

TEST_F(TransmitWindow, NewMessageAppendsADefaultLineAndMarksTheProject)
{
    addLine(1);
    open();
    click("add");
    ASSERT_EQ(m_object->lines().size(), 2U);
    EXPECT_EQ(line(1).name, QStringLiteral("NoName"));
    EXPECT_EQ(line(1).max, 1.0F);
    EXPECT_EQ(line(1).byteCount, 0U);
    EXPECT_EQ(m_table->rowCount(), 2);
    EXPECT_NE(m_table->editor(1), nullptr);
    EXPECT_TRUE(m_project.isEdited());
}

TEST_F(TransmitWindow, ComposedFrameIsSentByteForByte)
{
    open();
    click("add");
    auto* editor = m_table->editor(0);
    zul::test::choose(editor->findChild<QComboBox*>(QStringLiteral("mode")), 1);
    zul::test::type(editor->findChild<QSpinBox*>(QStringLiteral("canId")), "0x1ABCDEF");
    zul::test::type(editor->findChild<QSpinBox*>(QStringLiteral("byteCount")), "8");
    const QList<QLineEdit*> bytes = cells(0);
    for (int i = 0; i < 8; ++i) {
        zul::test::type(bytes[i], QByteArray::number(17 * i).constData());
    }
    QTest::mouseClick(button(0), Qt::LeftButton);
    ASSERT_EQ(m_interface.batches.size(), 1U);
    EXPECT_EQ(m_interface.batches[0].srcDest(), "All Interfaces");
    const auto& frame = m_interface.frame(0);
    EXPECT_EQ(frame.id(), 0x1ABCDEFU);
    EXPECT_EQ(frame.mode(), zul::MessageCan::EMsgMode::Extended);
    EXPECT_EQ(frame.byteCount(), 8U);
    for (int i = 0; i < 64; ++i) {
        EXPECT_EQ(frame.msg()[i], i < 8 ? 17 * i : 0) << i;
    }
    EXPECT_EQ(counter(), QStringLiteral("0001"));
    EXPECT_EQ(m_dialog->transmitted(), 1U);
}

TEST_F(TransmitWindow, SingleTransmitTellsItOnTheConsole)
{
    addLine(0x1AB).mode = 5;
    open();
    zul::test::ConsoleCapture console;
    QTest::mouseClick(button(0), Qt::LeftButton);
    EXPECT_EQ(console.out(), "Transmit Id 0x1ab Mode 5\n");
}

TEST_F(TransmitWindow, OutputSwitchGatesWhatIsSentByHandAlone)
{
    addLine(1);
    addLine(2, 10, 1);
    open();
    click("outputSwitch");
    EXPECT_FALSE(m_object->settings().outputOn);
    EXPECT_FALSE(m_project.isEdited()); // the switch does not mark the project
    zul::test::ConsoleCapture console;
    QTest::mouseClick(button(0), Qt::LeftButton);
    select(0);
    click("transmit");
    EXPECT_EQ(console.out(), "");
    m_interface.batches.clear(); // of the timer
    m_clock.advance(1.0);
    tick();
    EXPECT_EQ(m_interface.ids(), (Ids{{2}}));
}

TEST_F(TransmitWindow, TransmitSelectedSendsEachRowOnceFromTheTopDown)
{
    for (const std::uint32_t id : {10U, 11U, 12U, 13U}) {
        addLine(id);
    }
    open();
    select(2);
    select(0, Qt::ControlModifier);
    EXPECT_EQ(m_table->selectedRanges().at(0).columnCount(), 3); // all columns of a row
    click("transmit");
    EXPECT_EQ(m_interface.ids(), (Ids{{10}, {12}}));
    EXPECT_EQ(counter(), QStringLiteral("0002"));
    EXPECT_FALSE(m_project.isEdited());
}

TEST_F(TransmitWindow, AutoTxButtonSwitchesAndShowsItsState)
{
    open();
    const auto* button = find<QToolButton>("autoTx");
    EXPECT_EQ(button->text(), QStringLiteral("Auto Tx Off"));
    EXPECT_FALSE(button->font().bold());
    EXPECT_EQ(button->palette().color(button->foregroundRole()), QColor(150, 150, 150));
    click("autoTx");
    EXPECT_TRUE(m_object->settings().autoTx);
    EXPECT_TRUE(m_project.isEdited());
    EXPECT_EQ(button->text(), QStringLiteral("Auto Tx On"));
    EXPECT_TRUE(button->font().bold());
    EXPECT_EQ(button->palette().color(button->foregroundRole()), QColor(0, 150, 0));
    click("autoTx");
    EXPECT_FALSE(m_object->settings().autoTx);
    EXPECT_EQ(button->text(), QStringLiteral("Auto Tx Off"));
}

TEST_F(TransmitWindow, AutoTxSendsAnEditAtOnceAndMarksTheProject)
{
    addLine(7).byteCount = 2;
    m_object->settings().autoTx = true;
    open();
    zul::test::type(cells(0)[1], "9");
    ASSERT_EQ(m_interface.ids(), (Ids{{7}}));
    EXPECT_EQ(m_interface.frame(0).msg()[1], 9);
    EXPECT_TRUE(m_project.isEdited());
    EXPECT_EQ(counter(), QStringLiteral("0001"));
}

TEST_F(TransmitWindow, EditWithoutAutoTxOrOutputIsStoredNotSentAndDoesNotMark)
{
    addLine(7).byteCount = 2;
    open();
    zul::test::type(cells(0)[1], "9");
    EXPECT_EQ(line(0).data[1], 9);
    EXPECT_FALSE(m_project.isEdited());
    m_object->settings().autoTx = true;
    m_object->settings().outputOn = false;
    zul::test::type(cells(0)[1], "8");
    EXPECT_EQ(line(0).data[1], 8);
    EXPECT_FALSE(m_project.isEdited());
    EXPECT_TRUE(m_interface.batches.empty());
}

TEST_F(TransmitWindow, EditKeepsRateAndRunningState)
{
    addLine(7, 0, 0).byteCount = 1;
    open();
    zul::test::type(rateBox(0), "5000");
    QTest::mouseClick(button(0), Qt::LeftButton);
    EXPECT_EQ(line(0).rate, 5000);
    EXPECT_EQ(line(0).running, 1);
    zul::test::type(cells(0)[0], "3");
    EXPECT_EQ(line(0).data[0], 3);
    EXPECT_EQ(line(0).rate, 5000);
    EXPECT_EQ(line(0).running, 1);
}

TEST_F(TransmitWindow, RateAndStartMarkTheProject)
{
    addLine(7);
    open();
    zul::test::type(rateBox(0), "50");
    EXPECT_EQ(line(0).rate, 50);
    EXPECT_TRUE(m_project.isEdited());
    m_project.save(QString());
    QTest::mouseClick(button(0), Qt::LeftButton);
    EXPECT_EQ(line(0).running, 1);
    EXPECT_TRUE(m_project.isEdited());
}

TEST_F(TransmitWindow, PeriodicLinesGoOutTogetherInListOrder)
{
    addLine(20, 10, 1);
    addLine(21);
    addLine(19, 10, 1);
    open();
    for (int i = 0; i < 3; ++i) {
        m_clock.advance(0.011);
        tick();
    }
    EXPECT_EQ(m_interface.ids(), (Ids{{20, 19}, {20, 19}, {20, 19}}));
    EXPECT_EQ(counter(), QStringLiteral("0006"));
    EXPECT_FALSE(m_project.isEdited());
}

TEST_F(TransmitWindow, TimerRunsByItselfEveryMillisecond)
{
    addLine(5, 10, 1);
    open();
    const auto* timer = m_dialog->findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    EXPECT_EQ(timer->interval(), 1);
    EXPECT_FALSE(timer->isSingleShot());
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_interface.batches.size() == 1; }));
    m_clock.advance(0.02);
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_interface.batches.size() == 2; }));
}

TEST_F(TransmitWindow, ForceCloseStopsTheTimer)
{
    open();
    const auto* timer = m_dialog->findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    EXPECT_TRUE(timer->isActive());
    m_dialog->forceClose();
    EXPECT_FALSE(timer->isActive());
}

TEST_F(TransmitWindow, RateOfARunningLineSetTo0AndBackStartsItAtOnce)
{
    addLine(5, 10, 1);
    open();
    zul::test::type(rateBox(0), "0");
    EXPECT_EQ(button(0)->text(), QStringLiteral("Transmit"));
    EXPECT_EQ(line(0).running, 1);
    m_clock.advance(1.0);
    m_interface.batches.clear();
    tick();
    EXPECT_TRUE(m_interface.batches.empty());
    zul::test::type(rateBox(0), "20");
    EXPECT_EQ(button(0)->text(), QStringLiteral("Running"));
    tick();
    EXPECT_EQ(m_interface.ids(), (Ids{{5}}));
}

TEST_F(TransmitWindow, RenamedLineKeepsItsNameWhenItIsEdited)
{
    addLine(1).byteCount = 1;
    open();
    rename(0, "Flaps");
    EXPECT_EQ(line(0).name, QStringLiteral("Flaps"));
    EXPECT_TRUE(m_project.isEdited());
    zul::test::type(cells(0)[0], "3");
    EXPECT_EQ(line(0).name, QStringLiteral("Flaps"));
    EXPECT_EQ(line(0).data[0], 3);
}

TEST_F(TransmitWindow, DeleteAsksAndRemovesTheSelectedRows)
{
    for (const char* name : {"a", "b", "c", "d"}) {
        addLine(1).name = QLatin1String(name);
    }
    open();
    select(1);
    select(3, Qt::ControlModifier);
    answer(QMessageBox::Cancel);
    click("delete");
    EXPECT_EQ(MessageBoxes::last().title, QStringLiteral("ZUL Warning"));
    EXPECT_EQ(MessageBoxes::last().text,
              QStringLiteral("Are you sure to delete all selected messages ?\n"));
    EXPECT_EQ(MessageBoxes::last().icon, QMessageBox::Warning);
    EXPECT_EQ(MessageBoxes::last().buttons, (std::vector{QMessageBox::Yes, QMessageBox::Cancel}));
    EXPECT_EQ(m_object->lines().size(), 4U);
    EXPECT_FALSE(m_project.isEdited());
    answer(QMessageBox::Yes);
    click("delete");
    EXPECT_EQ(names(), (QStringList{QStringLiteral("a"), QStringLiteral("c")}));
    EXPECT_EQ(m_object->lines().size(), 2U);
    EXPECT_EQ(line(1).name, QStringLiteral("c"));
    EXPECT_TRUE(m_project.isEdited());
}

TEST_F(TransmitWindow, ClearAsksAndRemovesAllRows)
{
    addLine(1);
    addLine(2);
    open();
    answer(QMessageBox::Cancel);
    click("clear");
    EXPECT_EQ(MessageBoxes::last().text, QStringLiteral("Are you sure to delete all messages ?\n"));
    EXPECT_EQ(m_table->rowCount(), 2);
    answer(QMessageBox::Yes);
    click("clear");
    EXPECT_EQ(m_table->rowCount(), 0);
    EXPECT_TRUE(m_object->lines().empty());
    EXPECT_TRUE(m_project.isEdited());
}

TEST_F(TransmitWindow, OutputInterfaceIsStoredAndAddressesTheFrames)
{
    addLine(1);
    open();
    emit find<gui::WidgetInterfaceSelect>("outputSelect")->signalChanged(QStringLiteral("Tail"));
    EXPECT_EQ(m_object->settings().outputInterface, QStringLiteral("Tail"));
    EXPECT_TRUE(m_project.isEdited());
    zul::test::ConsoleCapture console;
    QTest::mouseClick(button(0), Qt::LeftButton);
    EXPECT_EQ(m_interface.batches.at(0).srcDest(), "Tail");
}

TEST_F(TransmitWindow, IndexesOutOfRangeAreIgnored)
{
    addLine(1);
    m_object->settings().autoTx = true;
    open();
    const int height = m_table->rowHeight(0);
    auto* editor = m_table->editor(0);
    for (const int index : {-1, 1, 1'000'000}) {
        SendMsg msg;
        msg.id = 99;
        emit editor->signalChanged(index, msg);
        QMetaObject::invokeMethod(m_dialog.data(), "slotTransmitHeight", Q_ARG(int, index),
                                  Q_ARG(unsigned int, 200));
        for (const char* slot : {"slotTransmitMode", "slotTransmitRate"}) {
            QMetaObject::invokeMethod(m_dialog.data(), slot, Q_ARG(int, index), Q_ARG(int, 1));
        }
        QMetaObject::invokeMethod(m_dialog.data(), "slotTransmitSingle", Q_ARG(int, index));
    }
    EXPECT_EQ(line(0).id, 1U);
    EXPECT_EQ(m_table->rowHeight(0), height);
    EXPECT_TRUE(m_interface.batches.empty());
    EXPECT_FALSE(m_project.isEdited());
}

TEST_F(TransmitWindow, SlotsStandInTheirOrder)
{
    const QMetaObject& meta = gui::DialogTransmit::staticMetaObject;
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        names.append(QString::fromLatin1(meta.method(i).name()));
    }
    EXPECT_EQ(names.join(QLatin1Char(' ')),
              QStringLiteral("slotSetup slotOutputOn slotTable slotTransmitCan "
                             "slotTransmitHeight slotDisplayMode slotNumberType slotAdd "
                             "slotDelete slotClear slotTransmit slotTransmitSingle "
                             "slotTransmitMode slotTransmitRate slotAutoTx "
                             "slotOutputInterface slotUpdate slotTimeout"));
}

TEST_F(TransmitWindow, SurvivesItsObject)
{
    addLine(1, 10, 1).byteCount = 1;
    open();
    m_project.deleteObject(m_object->id());
    EXPECT_EQ(m_dialog->object(), nullptr);
    EXPECT_EQ(m_table->rowCount(), 0);
    m_interface.batches.clear();
    m_clock.advance(1.0);
    tick();
    const int asked = MessageBoxes::count();
    for (const char* name : {"add", "delete", "clear", "transmit", "autoTx", "numberFormat",
                             "outputSwitch", "dialogSetup"}) {
        click(name);
    }
    zul::test::choose(find<gui::QwtComboBox>("displayMode"), 3);
    QTableWidgetItem item;
    item.setData(256, QVariant::fromValue<SendMsg*>(nullptr));
    for (QTableWidgetItem* pItem : {static_cast<QTableWidgetItem*>(nullptr), &item}) {
        emit m_table->itemChanged(pItem);
    }
    m_dialog->updateDialog();
    EXPECT_EQ(MessageBoxes::count(), asked);
    EXPECT_TRUE(m_interface.batches.empty());
    EXPECT_TRUE(m_dialog->close());
}

} // namespace

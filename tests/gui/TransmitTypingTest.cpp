#include "gui/frame/MessageBoxes.h"
#include "gui/frame/WidgetHeader.h"
#include "gui/traffic/ValueSlider.h"
#include "gui/traffic/WidgetCanAs.h"
#include "tests/gui/TransmitFixture.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <QWheelEvent>

// Keys, wheel and focus in the rows of the Transmit window, where a slip sends a frame.

namespace {

using zul::test::type;

class TransmitTyping : public zul::test::TransmitTest
{
protected:
    void show(int lines, int displayMode = 0)
    {
        for (int i = 0; i < lines; ++i) {
            addLine(static_cast<std::uint32_t>(i)).byteCount = 8;
        }
        m_object->settings().displayMode = displayMode;
        open();
        m_dialog->resize(1200, 500);
        m_dialog->show();
        QApplication::setActiveWindow(m_dialog);
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_dialog));
        m_table->verticalScrollBar()->setValue(0);
    }
    int editorCount() const
    {
        int count = 0;
        for (int row = 0; row < m_table->rowCount(); ++row) {
            count += m_table->editor(row) != nullptr ? 1 : 0;
        }
        return count;
    }
};

TEST_F(TransmitTyping, TabGoesFromCellToCellAndSelectsNothing)
{
    show(2);
    const QList<QLineEdit*> row = cells(0);
    row[0]->setFocus();
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), row[i + 1]);
    }
    EXPECT_TRUE(m_table->selectedRows().empty());
}

TEST_F(TransmitTyping, FieldThatGetsTheFocusByTabComesIntoView)
{
    show(40);
    m_dialog->resize(500, 300);
    QApplication::processEvents();
    for (const int row : {30, 0, 20}) {
        QLineEdit* cell = cells(row)[7];
        cell->setFocus(Qt::TabFocusReason);
        const QRect place(cell->mapTo(m_table->viewport(), QPoint()), cell->size());
        EXPECT_TRUE(m_table->viewport()->rect().contains(place)) << row;
    }
}

TEST_F(TransmitTyping, ClickIntoARateOfSingleLetsItBeReplaced)
{
    show(1);
    auto* text = rateBox(0)->findChild<QLineEdit*>();
    QTest::mouseClick(text, Qt::LeftButton);
    QTest::keyClicks(rateBox(0), QStringLiteral("100"));
    QTest::keyClick(rateBox(0), Qt::Key_Return);
    EXPECT_EQ(line(0).rate, 100);
}

TEST_F(TransmitTyping, CellsWithoutAnEditorTakeNoText)
{
    show(1, 77);
    const QRect place = m_table->visualItemRect(m_table->item(0, 1));
    QTest::mouseDClick(m_table->viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    const auto fields =
        m_table->viewport()->findChildren<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
    EXPECT_TRUE(fields.empty()) << "no text is being edited";
}

TEST_F(TransmitTyping, WheelChangesNoControlOfARowThatHasNotTheFocus)
{
    for (const int mode : {0, 3, 4}) {
        delete m_dialog;
        m_object->lines().clear();
        show(1, mode);
        line(0).rate = 50;
        QWidget* row = m_table->editor(0);
        QList<QWidget*> controls{rateBox(0)};
        for (auto* box : row->findChildren<QComboBox*>()) {
            controls.append(box);
        }
        for (auto* box : row->findChildren<QAbstractSpinBox*>()) {
            controls.append(box);
        }
        for (auto* slider : row->findChildren<QSlider*>()) {
            controls.append(slider);
        }
        for (QWidget* control : controls) {
            QWheelEvent wheel(QPointF(5, 5), control->mapToGlobal(QPoint(5, 5)), {}, {0, 120},
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(control, &wheel);
            EXPECT_FALSE(wheel.isAccepted()) << qPrintable(control->objectName());
        }
    }
}

TEST_F(TransmitTyping, OpeningTheWindowDoesNotMarkTheProject)
{
    addLine(1).byteCount = 8;
    m_project.save(QString());
    m_dialog = new gui::DialogTransmit(m_object, nullptr);
    EXPECT_FALSE(m_project.isEdited());
}

TEST_F(TransmitTyping, RowsBehindADeletedOneActOnTheirOwnLines)
{
    show(3);
    select(0);
    gui::MessageBoxes::setNextAnswer(QMessageBox::Yes);
    click("delete");
    ASSERT_EQ(m_object->lines().size(), 2U);
    EXPECT_EQ(m_table->editor(0)->index(), 0);
    type(cells(0)[0], "77");
    EXPECT_EQ(line(0).id, 1U);
    EXPECT_EQ(line(0).data[0], 77);
    type(rateBox(1), "30");
    EXPECT_EQ(line(1).rate, 30);
    EXPECT_EQ(gui::TransmitTable::lineOf(*m_table->item(1, 0)), &line(1));
}

TEST_F(TransmitTyping, LineThatIsStartedAfterALongTimeIsDueAtOnce)
{
    show(1);
    line(0).rate = 1000;
    line(0).lastSent = 10.0;
    QMetaObject::invokeMethod(m_dialog.data(), "slotTransmitMode", Q_ARG(int, 0), Q_ARG(int, 1));
    EXPECT_EQ(line(0).lastSent, 10.0);
    tick();
    EXPECT_EQ(m_interface.batches.size(), 1U);
}

TEST_F(TransmitTyping, KeysWithoutUseInAFieldDoNotReachTheTable)
{
    show(3);
    select(1);
    cells(0)[0]->setFocus();
    QTest::keyClick(cells(0)[0], Qt::Key_Down);
    EXPECT_EQ(m_table->selectedRows(), std::set<int>{1});
    button(0)->setFocus();
    QTest::keyClick(button(0), Qt::Key_X);
    EXPECT_EQ(m_table->findChild<QLineEdit*>(QStringLiteral("qt_editor")), nullptr);
    EXPECT_EQ(QApplication::focusWidget(), button(0)) << "no name is being edited";
    EXPECT_EQ(m_table->selectedRows(), std::set<int>{1});
}

TEST_F(TransmitTyping, HeldArrowOfACanAerospaceIdentifierGoesOnStepping)
{
    show(1, 3);
    auto* box = m_table->editor(0)->findChild<QSpinBox*>(QStringLiteral("canId"));
    QStyleOptionSpinBox option;
    option.initFrom(box);
    option.subControls = QStyle::SC_All;
    option.frame = box->hasFrame();
    const QRect up =
        box->style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, box);
    QTest::mousePress(box, Qt::LeftButton, Qt::NoModifier, up.center());
    EXPECT_TRUE(QTest::qWaitFor([&] { return box->value() >= 3; }));
    QTest::mouseRelease(box, Qt::LeftButton, Qt::NoModifier, up.center());
    EXPECT_EQ(line(0).id, static_cast<std::uint32_t>(box->value()));
}

TEST_F(TransmitTyping, RateThatIsBeingTypedOutlivesTheChangeOfTheNumberType)
{
    show(1);
    rateBox(0)->setFocus();
    rateBox(0)->selectAll();
    QTest::keyClicks(rateBox(0), QStringLiteral("250"));
    EXPECT_EQ(line(0).rate, 0);
    click("numberFormat");
    EXPECT_EQ(line(0).rate, 250);
    EXPECT_EQ(rateBox(0)->value(), 250);
}

TEST_F(TransmitTyping, RateThatIsBeingTypedOutlivesTheWindow)
{
    show(1);
    rateBox(0)->setFocus();
    rateBox(0)->selectAll();
    QTest::keyClicks(rateBox(0), QStringLiteral("250"));
    m_dialog->close();
    EXPECT_EQ(line(0).rate, 250);
}

TEST_F(TransmitTyping, ReturnInALimitCountsAlsoIfNothingWasChanged)
{
    show(1, 3);
    gui::MessageEditor* editor = m_table->editor(0);
    zul::test::choose(editor->findChild<QComboBox*>(QStringLiteral("dataType")), 2);
    const QSignalSpy changes(editor, &gui::MessageEditor::signalChanged);
    auto* minimum = editor->findChild<QLineEdit*>(QStringLiteral("minimum"));
    minimum->setFocus();
    QTest::keyClick(minimum, Qt::Key_Return);
    EXPECT_EQ(changes.count(), 1);
    minimum->clearFocus();
    EXPECT_EQ(changes.count(), 1) << "leaving it changes nothing";
}

TEST_F(TransmitTyping, WheelOverTheDisplayModeChangesNothing)
{
    show(1);
    auto* mode = find<QComboBox>("displayMode");
    QWheelEvent wheel(QPointF(5, 5), mode->mapToGlobal(QPointF(5, 5).toPoint()), {}, {0, -120},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(mode, &wheel);
    EXPECT_EQ(m_object->settings().displayMode, 0);
    EXPECT_FALSE(m_project.isEdited());
}

TEST_F(TransmitTyping, RowsFarFromTheViewGiveTheirControlsBackAndGetThemAgain)
{
    show(400);
    QScrollBar* bar = m_table->verticalScrollBar();
    const auto living = [this] { return m_table->findChildren<gui::MessageEditor*>().size(); };
    const int most = gui::TransmitTable::firstRows + 2 * gui::TransmitTable::keptRows + 50;
    for (int value = 0; value <= bar->maximum(); value += bar->pageStep()) {
        bar->setValue(value);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        ASSERT_LT(living(), most);
    }
    EXPECT_LT(editorCount(), most);
    EXPECT_EQ(m_table->editor(150), nullptr);
    m_table->scrollToItem(m_table->item(150, 0));
    ASSERT_NE(m_table->editor(150), nullptr);
    EXPECT_EQ(m_table->editor(150)->message().id, 150U);
    EXPECT_EQ(m_table->editor(150)->index(), 150);
}

TEST_F(TransmitTyping, RowThatIsBeingTypedIntoKeepsItsControls)
{
    show(500);
    m_table->scrollToItem(m_table->item(300, 0));
    cells(300)[0]->setFocus();
    m_table->verticalScrollBar()->setValue(m_table->verticalScrollBar()->maximum());
    EXPECT_NE(m_table->editor(300), nullptr);
    EXPECT_EQ(m_table->editor(310), nullptr);
}

TEST_F(TransmitTyping, WideNameColumnDoesNotCutTheEditors)
{
    show(1);
    m_table->setColumnWidth(gui::TransmitTable::NameColumn, 600);
    EXPECT_GE(m_table->columnWidth(gui::TransmitTable::MessageColumn), 700);
}

} // namespace

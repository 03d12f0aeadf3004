#include "gui/frame/WidgetHeader.h"
#include "gui/traffic/ValueSlider.h"
#include "gui/traffic/WidgetCanAs.h"
#include "tests/gui/TransmitFixture.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
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
    show(1000);
    QScrollBar* bar = m_table->verticalScrollBar();
    for (int value = 0; value <= bar->maximum(); value += bar->pageStep()) {
        bar->setValue(value);
    }
    const int most = gui::TransmitTable::firstRows + 2 * gui::TransmitTable::keptRows + 50;
    EXPECT_LT(editorCount(), most);
    EXPECT_EQ(m_table->editor(500), nullptr);
    m_table->scrollToItem(m_table->item(500, 0));
    ASSERT_NE(m_table->editor(500), nullptr);
    EXPECT_EQ(m_table->editor(500)->message().id, 500U);
    EXPECT_EQ(m_table->editor(500)->index(), 500);
}

TEST_F(TransmitTyping, RowThatIsBeingTypedIntoKeepsItsControls)
{
    show(1000);
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

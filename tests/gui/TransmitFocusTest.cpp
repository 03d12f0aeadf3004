#include "tests/gui/TransmitFixture.h"
#include "tests/support/ConsoleCapture.h"

#include <QScrollBar>
#include <QSlider>
#include <QWindow>

// What the focus does to the table of the Transmit window: by Tab the table follows it, and by no
// other way, since a press would then be released over another row.

namespace {

using zul::test::choose;
using zul::test::type;
using Ids = std::vector<std::vector<std::uint32_t>>;

class TransmitFocus : public zul::test::TransmitTest
{
protected:
    void show(int lines, int width = 1200, int displayMode = 0)
    {
        for (int i = 0; i < lines; ++i) {
            addLine(static_cast<std::uint32_t>(i)).byteCount = 8;
        }
        m_object->settings().outputOn = true;
        m_object->settings().displayMode = displayMode;
        open();
        m_dialog->resize(width, 400);
        m_dialog->show();
        QApplication::setActiveWindow(m_dialog);
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_dialog));
        bar()->setValue(0);
        QApplication::processEvents();
    }
    QScrollBar* bar() const { return m_table->verticalScrollBar(); }
    QScrollBar* across() const { return m_table->horizontalScrollBar(); }
    /// Scrolls until the last pixels of a row are cut off at the bottom, and returns the row.
    int cutARow()
    {
        constexpr int row = 15;
        constexpr int cut = 6;
        const int bottom = m_table->rowViewportPosition(row) + m_table->rowHeight(row);
        bar()->setValue(bar()->value() + bottom - m_table->viewport()->height() - cut);
        QApplication::processEvents();
        const int end = m_table->rowViewportPosition(row) + m_table->rowHeight(row);
        EXPECT_EQ(end, m_table->viewport()->height() + cut);
        return row;
    }
    /// Presses and releases where the middle of the widget is at first, as a hand does.
    void clickAt(QWidget* widget)
    {
        const zul::test::ConsoleCapture console;
        const QPoint place = widget->mapTo(m_dialog, widget->rect().center());
        QTest::mousePress(m_dialog->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseRelease(m_dialog->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
    }
    bool isInView(const QWidget* field) const
    {
        const QRect place(field->mapTo(m_table->viewport(), QPoint()), field->size());
        return m_table->viewport()->rect().contains(place);
    }
};

TEST_F(TransmitFocus, ClickOnTheButtonOfARowThatIsCutSendsItsFrameAndMovesNothing)
{
    show(40);
    const int row = cutARow();
    const int position = bar()->value();
    clickAt(button(row));
    EXPECT_EQ(m_interface.ids(), (Ids{{static_cast<std::uint32_t>(row)}}));
    EXPECT_EQ(bar()->value(), position);
    EXPECT_TRUE(button(row)->hasFocus());
}

TEST_F(TransmitFocus, ClickInATableThatIsScrolledSidewaysHitsWhatItShows)
{
    show(40, 500);
    across()->setValue(across()->maximum());
    const int position = across()->value();
    ASSERT_GT(position, 0);
    clickAt(button(2));
    EXPECT_EQ(m_interface.ids(), (Ids{{2}}));
    EXPECT_EQ(across()->value(), position);
    ASSERT_TRUE(isInView(cells(3)[7]));
    clickAt(cells(3)[7]);
    EXPECT_TRUE(cells(3)[7]->hasFocus());
    EXPECT_EQ(across()->value(), position);
}

TEST_F(TransmitFocus, TableStaysWhereTheWheelLeftItWhenTheWindowBecomesActive)
{
    show(40);
    QLineEdit* field = cells(0)[0];
    field->setFocus();
    bar()->setValue(bar()->maximum());
    QApplication::setActiveWindow(nullptr);
    ASSERT_FALSE(field->hasFocus());
    QApplication::setActiveWindow(m_dialog);
    ASSERT_TRUE(field->hasFocus());
    EXPECT_EQ(bar()->value(), bar()->maximum());
    field->clearFocus();
    field->setFocus(Qt::ActiveWindowFocusReason);
    EXPECT_EQ(bar()->value(), bar()->maximum());
    field->clearFocus(); // as saving does, so that what is typed counts
    field->setFocus();
    EXPECT_EQ(bar()->value(), bar()->maximum());
}

TEST_F(TransmitFocus, TabShowsAFieldThatIsOutOfView)
{
    show(40, 500);
    cells(0)[0]->setFocus();
    bar()->setValue(400);
    across()->setValue(across()->maximum());
    QTest::keyClick(cells(0)[0], Qt::Key_Tab);
    EXPECT_TRUE(cells(0)[1]->hasFocus());
    EXPECT_TRUE(isInView(cells(0)[1]));
    QLineEdit* first = cells(20)[0];
    first->setFocus();
    bar()->setValue(0);
    across()->setValue(across()->maximum());
    QTest::keyClick(first, Qt::Key_Tab, Qt::ShiftModifier);
    const QWidget* field = QApplication::focusWidget();
    ASSERT_TRUE(m_table->editor(20)->isAncestorOf(field));
    EXPECT_TRUE(isInView(field));
    const int top = m_table->rowViewportPosition(20);
    EXPECT_LE(top + m_table->editor(20)->height(), m_table->viewport()->height());
}

TEST_F(TransmitFocus, TabMovesNoFieldThatIsInView)
{
    show(40);
    const int row = cutARow();
    const int position = bar()->value();
    cells(row)[0]->setFocus();
    QTest::keyClick(cells(row)[0], Qt::Key_Tab);
    EXPECT_TRUE(cells(row)[1]->hasFocus());
    EXPECT_EQ(bar()->value(), position) << "the cells stand above what is cut";
}

TEST_F(TransmitFocus, ClickBetweenTypedDigitsOfARatePlacesTheCursor)
{
    show(1);
    QSpinBox* box = rateBox(0);
    auto* text = box->findChild<QLineEdit*>();
    QTest::mouseClick(text, Qt::LeftButton); // marks "Single"
    QTest::keyClicks(box, QStringLiteral("12"));
    ASSERT_EQ(box->value(), 0) << "not complete yet";
    const QPoint begin(1, text->height() / 2);
    QTest::mouseClick(text, Qt::LeftButton, Qt::NoModifier, begin);
    QTest::keyClicks(box, QStringLiteral("3"));
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(line(0).rate, 312);
}

TEST_F(TransmitFocus, OtherButtonsOfTheMouseDoNotMarkTheRateOfSingle)
{
    show(1);
    auto* text = rateBox(0)->findChild<QLineEdit*>();
    ASSERT_EQ(text->text(), rateBox(0)->specialValueText());
    rateBox(0)->setFocus();
    text->deselect();
    QTest::mouseClick(text, Qt::MiddleButton);
    EXPECT_FALSE(text->hasSelectedText());
    QTest::mouseClick(text, Qt::LeftButton);
    EXPECT_EQ(text->selectedText(), text->text());
}

class TransmitLimits : public TransmitFocus
{
protected:
    void SetUp() override
    {
        TransmitFocus::SetUp();
        show(1, 1200, 3);
        line(0).data[1] = 2; // FLOAT
        line(0).max = 10.0F;
        m_dialog->updateDialog();
        QMetaObject::invokeMethod(m_dialog.data(), "slotUpdate");
    }
    QLineEdit* limit(const char* name) const
    {
        return m_table->editor(0)->findChild<QLineEdit*>(QLatin1String(name));
    }
    void beginTyping(const char* name, const char* text) const
    {
        limit(name)->setFocus();
        type(limit(name), text);
    }
};

TEST_F(TransmitLimits, LimitCountsWhenItIsLeft)
{
    beginTyping("minimum", "2.5");
    EXPECT_FLOAT_EQ(line(0).min, 0.0F);
    QTest::keyClick(limit("minimum"), Qt::Key_Tab);
    EXPECT_FLOAT_EQ(line(0).min, 2.5F);
    EXPECT_EQ(limit("minimum")->text(), QStringLiteral("2.50"));
    beginTyping("maximum", "7.25");
    EXPECT_FLOAT_EQ(line(0).max, 10.0F);
    QTest::keyClick(limit("maximum"), Qt::Key_Tab);
    EXPECT_FLOAT_EQ(line(0).max, 7.25F);
}

TEST_F(TransmitLimits, LimitThatIsBeingTypedOutlivesTheChangeOfTheNumberType)
{
    beginTyping("minimum", "2.5");
    click("numberFormat");
    EXPECT_FLOAT_EQ(line(0).min, 2.5F);
    beginTyping("maximum", "7.25");
    click("numberFormat");
    EXPECT_FLOAT_EQ(line(0).max, 7.25F);
    EXPECT_EQ(limit("maximum")->text(), QStringLiteral("7.25"));
}

TEST_F(TransmitLimits, LimitThatIsBeingTypedOutlivesTheDisplayMode)
{
    beginTyping("maximum", "7.25");
    choose(find<QComboBox>("displayMode"), 4);
    EXPECT_FLOAT_EQ(line(0).max, 7.25F);
}

TEST_F(TransmitLimits, LimitThatIsBeingTypedCountsWhenTheFocusGoesAndComesBack)
{
    beginTyping("minimum", "2.5");
    limit("minimum")->clearFocus(); // as saving the project does
    limit("minimum")->setFocus();
    EXPECT_FLOAT_EQ(line(0).min, 2.5F);
    EXPECT_TRUE(limit("minimum")->hasFocus());
}

TEST_F(TransmitLimits, LimitThatIsBeingTypedOutlivesTheWindow)
{
    for (const char* name : {"minimum", "maximum"}) {
        if (m_dialog == nullptr || !m_dialog->isVisible()) {
            delete m_dialog;
            open();
            m_dialog->show();
            QApplication::setActiveWindow(m_dialog);
        }
        beginTyping(name, "4.75");
        m_dialog->close();
    }
    EXPECT_FLOAT_EQ(line(0).min, 4.75F);
    EXPECT_FLOAT_EQ(line(0).max, 4.75F);
}

class TransmitNames : public TransmitFocus
{
protected:
    void SetUp() override
    {
        TransmitFocus::SetUp();
        show(2);
    }
    void beginTyping() const
    {
        const QRect place = m_table->visualItemRect(m_table->item(0, 0));
        QTest::mouseClick(m_table->viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
        QTest::mouseDClick(m_table->viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
        auto* name = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        ASSERT_NE(name, nullptr);
        type(name, "Pitch");
        ASSERT_EQ(line(0).name, QStringLiteral("NoName"));
    }
    SendMsg& line(std::size_t index) const { return *m_object->lines().at(index); }
};

TEST_F(TransmitNames, NameThatIsBeingTypedOutlivesTheChangeOfTheNumberType)
{
    beginTyping();
    click("numberFormat");
    EXPECT_EQ(line(0).name, QStringLiteral("Pitch"));
    EXPECT_EQ(m_table->item(0, 0)->text(), QStringLiteral("Pitch"));
}

TEST_F(TransmitNames, NameThatIsBeingTypedOutlivesTheDisplayMode)
{
    beginTyping();
    choose(find<QComboBox>("displayMode"), 3);
    EXPECT_EQ(line(0).name, QStringLiteral("Pitch"));
    EXPECT_EQ(m_table->item(0, 0)->text(), QStringLiteral("Pitch"));
}

TEST_F(TransmitNames, NameThatIsBeingTypedOutlivesTheWindow)
{
    beginTyping();
    m_dialog->close();
    EXPECT_EQ(line(0).name, QStringLiteral("Pitch"));
}

} // namespace

#include "gui/measure/DialogGraphSetup.h"
#include "gui/measure/DialogSelectParameter.h"
#include "tests/gui/GraphWindowFixture.h"

#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QPointer>

#include <algorithm>

// The rows of the oscilloscope's window: which one is meant, how the editor opens, and what becomes
// of the recordings.

namespace zul::test {

namespace {

using gui::DialogSelectParameter;
using gui::GraphParameterTable;

class GraphRows : public GraphWindowTest
{
protected:
    /// Three rows, "A" to "C", with the identifiers 5 to 7, in a window that is shown.
    void SetUp() override
    {
        GraphWindowTest::SetUp();
        for (int i = 0; i < 3; ++i) {
            click("Add Parameter");
            auto& added = parameter(static_cast<std::size_t>(i));
            added.nme = QString(QChar('A' + i));
            added.id = 5U + static_cast<std::uint32_t>(i);
        }
        m_dialog->updateDialog();
        m_dialog->move(120, 90);
        m_dialog->show();
    }

    QPoint cell(int row, int column = GraphParameterTable::NameColumn) const
    {
        return table().visualItemRect(table().item(row, column)).center();
    }
    void press(Qt::MouseButton button, const QPoint& place,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::mousePress(table().viewport(), button, modifiers, place);
    }
    void release(Qt::MouseButton button, const QPoint& place,
                 Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::mouseRelease(table().viewport(), button, modifiers, place);
    }
    void doubleClick(int row) const
    {
        QTest::mouseClick(table().viewport(), Qt::LeftButton, Qt::NoModifier, cell(row));
        QTest::mouseDClick(table().viewport(), Qt::LeftButton, Qt::NoModifier, cell(row));
    }
    void openMenu(const QPoint& place) const
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                table().viewport()->mapToGlobal(place));
        QApplication::sendEvent(table().viewport(), &event);
    }
    bool isHighlighted(int row) const
    {
        return table().selectionModel()->isSelected(
            table().model()->index(row, GraphParameterTable::NameColumn));
    }
    QString names() const
    {
        QString found;
        for (const GraphParameter& row : m_object->parameters()) {
            found += row.parameter.nme;
        }
        return found;
    }
    /// What Delete leaves of the rows.
    QString afterDelete()
    {
        click("Delete Parameter");
        return names();
    }
    /// A value of its own for each row, in two batches a second apart.
    void record()
    {
        for (int second = 1; second <= 2; ++second) {
            m_clock.set(1000.0 + second);
            for (std::uint8_t i = 0; i < 3; ++i) {
                feed(graphBatch({5U + i}, static_cast<std::uint8_t>(10 * (i + 1) + second)));
            }
        }
    }
    /// Types into a field of the editor of a row.
    void edit(int row, const char* field, const char* typed)
    {
        onDialog<DialogSelectParameter>([field, typed](DialogSelectParameter& editor) {
            auto* line = editor.findChild<QLineEdit*>(QLatin1String(field));
            ASSERT_NE(line, nullptr) << field;
            line->selectAll();
            QTest::keyClicks(line, QLatin1String(typed));
        });
        doubleClick(row);
        QCoreApplication::processEvents();
    }
};

TEST_F(GraphRows, APressOnTheNameThatIsReleasedOnTheColorCounts)
{
    clickRow(0);
    press(Qt::LeftButton, cell(1));
    release(Qt::LeftButton, cell(1, GraphParameterTable::ColorColumn));
    EXPECT_TRUE(isHighlighted(1));
    EXPECT_EQ(afterDelete(), QStringLiteral("AC"));
}

TEST_F(GraphRows, AClickOnTheColorCounts)
{
    clickRow(0);
    QTest::mouseClick(table().viewport(), Qt::LeftButton, Qt::NoModifier,
                      cell(2, GraphParameterTable::ColorColumn));
    EXPECT_TRUE(isHighlighted(2));
    EXPECT_EQ(afterDelete(), QStringLiteral("AB"));
}

TEST_F(GraphRows, AMiddleClickDeletesTheRowThatItHighlights)
{
    clickRow(0);
    QTest::mouseClick(table().viewport(), Qt::MiddleButton, Qt::NoModifier, cell(1));
    const int highlighted = isHighlighted(1) ? 1 : 0;
    EXPECT_TRUE(isHighlighted(highlighted));
    EXPECT_EQ(afterDelete(), highlighted == 1 ? QStringLiteral("AC") : QStringLiteral("BC"));
}

TEST_F(GraphRows, AControlClickOnTheHighlightedRowLeavesItHighlighted)
{
    clickRow(1);
    QTest::mouseClick(table().viewport(), Qt::LeftButton, Qt::ControlModifier, cell(1));
    EXPECT_TRUE(isHighlighted(1));
    EXPECT_EQ(afterDelete(), QStringLiteral("AC"));
}

TEST_F(GraphRows, WithoutAHighlightedRowNothingIsDeleted)
{
    clickRow(1);
    table().clearSelection();
    EXPECT_EQ(afterDelete(), QStringLiteral("ABC"));
}

TEST_F(GraphRows, HighlightStaysWhereItWasWhenAllRowsAreMadeAnew)
{
    clickRow(1);
    m_dialog->updateDialog();
    EXPECT_TRUE(isHighlighted(1));
    EXPECT_EQ(afterDelete(), QStringLiteral("AC"));
    EXPECT_EQ(table().selectedRow(), -1);
}

TEST_F(GraphRows, EditorOpensInTheCornerByButtonAndDoubleClick)
{
    std::vector<QPoint> places;
    const auto note = [&places](DialogSelectParameter& editor) { places.push_back(editor.pos()); };
    clickRow(1);
    onDialog<DialogSelectParameter>(note);
    click("Configure Interface");
    QCoreApplication::processEvents();
    onDialog<DialogSelectParameter>(note);
    doubleClick(2);
    QCoreApplication::processEvents();
    const QPoint corner = m_dialog->mapToGlobal(QPoint(0, 0));
    ASSERT_NE(corner, QPoint(0, 0));
    EXPECT_EQ(places, (std::vector<QPoint>{corner, corner}));
}

TEST_F(GraphRows, AContextMenuOpensTheEditorWhereverItLikes)
{
    bool wasMoved = true;
    QString name;
    onDialog<DialogSelectParameter>([&](DialogSelectParameter& editor) {
        wasMoved = editor.testAttribute(Qt::WA_Moved);
        name = editor.parameter().nme;
    });
    openMenu(cell(1));
    QCoreApplication::processEvents();
    EXPECT_FALSE(wasMoved);
    EXPECT_EQ(name, QStringLiteral("B"));
    m_project.save(QString());
    openMenu(QPoint(5, table().viewport()->height() - 2)); // below all rows
    QCoreApplication::processEvents();
    EXPECT_FALSE(m_project.isEdited());
}

TEST_F(GraphRows, NoSecondEditorOpensOverTheFirst)
{
    int editors = 0;
    int turns = 0;
    QTimer closer; // closes all of them, some turns after the first has opened
    QObject::connect(&closer, &QTimer::timeout, [&] {
        const auto open = m_dialog->findChildren<DialogSelectParameter*>();
        editors = std::max(editors, static_cast<int>(open.size()));
        for (auto* editor : open) {
            if (++turns > 5) {
                editor->reject();
            }
        }
    });
    closer.start(0);
    openMenu(cell(0));
    openMenu(cell(1));
    ASSERT_TRUE(QTest::qWaitFor([&] { return turns > 5; }));
    EXPECT_EQ(editors, 1);
}

TEST_F(GraphRows, AWindowMayGoWhileTheEditorOfADoubleClickIsOpen)
{
    const QPointer<gui::DialogGraph> window = m_dialog;
    whenModal([window] { delete window; });
    doubleClick(0);
    EXPECT_NE(window, nullptr); // the view has had its event before the editor opens
    QCoreApplication::processEvents();
    EXPECT_EQ(window, nullptr);
    m_dialog = nullptr;
}

TEST_F(GraphRows, AWindowMayGoWhileTheEditorOfAContextMenuIsOpen)
{
    const QPointer<gui::DialogGraph> window = m_dialog;
    whenModal([window] { delete window; });
    openMenu(cell(0));
    EXPECT_NE(window, nullptr);
    QCoreApplication::processEvents();
    EXPECT_EQ(window, nullptr);
    m_dialog = nullptr;
}

TEST_F(GraphRows, OpenSetupFollowsTheObject)
{
    click(gui::GraphCommand::Setup);
    const auto* setup = m_dialog->findChild<gui::DialogGraphSetup*>();
    const auto* mode = setup->findChild<QComboBox*>(QStringLiteral("cursorMode"));
    ASSERT_EQ(mode->currentIndex(), 1);
    graph().cursorMode = 0;
    m_dialog->updateDialog();
    EXPECT_EQ(mode->currentIndex(), 0);
}

TEST_F(GraphRows, HeldZoomStepsEveryFiftyMilliseconds)
{
    int found = 0;
    for (const auto* timer :
         m_dialog->findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly)) {
        found += timer->isActive() && timer->interval() == 50 ? 1 : 0;
    }
    EXPECT_EQ(found, 1);
}

TEST_F(GraphRows, RecordingsMoveUpWithTheirParametersWhenOneIsDeleted)
{
    record();
    clickRow(0);
    click("Delete Parameter");
    EXPECT_EQ(channel(0).name, "B");
    ASSERT_EQ(channel(0).samples.size(), 2U);
    EXPECT_EQ(channel(0).samples.back().value, 22.0);
    EXPECT_EQ(channel(0).current, 22.0);
    EXPECT_EQ(channel(1).name, "C");
    EXPECT_EQ(channel(1).samples.back().value, 32.0);
    EXPECT_TRUE(channel(2).samples.empty());
    EXPECT_FALSE(channel(2).visible);
    feed(graphBatch({7}, 99));
    EXPECT_EQ(channel(1).samples.back().value, 99.0);
}

TEST_F(GraphRows, AnAddedParameterStartsEmpty)
{
    record();
    m_object->parameters().pop_back(); // as a project may do, without a word to the plot
    click("Add Parameter");
    EXPECT_TRUE(channel(2).samples.empty());
    EXPECT_EQ(channel(1).samples.size(), 2U);
}

TEST_F(GraphRows, AParameterThatIsDecodedInAnotherWayStartsEmpty)
{
    record();
    edit(1, "scaleFactor", "2");
    EXPECT_EQ(parameter(1).scaleFactor, 2.0);
    EXPECT_TRUE(channel(1).samples.empty());
    EXPECT_EQ(channel(0).samples.size(), 2U);
}

TEST_F(GraphRows, AParameterWithAnotherNameKeepsItsRecording)
{
    record();
    edit(1, "name", "Speed");
    EXPECT_EQ(channel(1).name, "Speed");
    EXPECT_EQ(channel(1).samples.size(), 2U);
}

TEST_F(GraphRows, AHiddenTraceIsShownForTheRangeOfNow)
{
    record();
    const auto toggle = [this](bool isShown) {
        QTest::mouseClick(&activeBox(0), Qt::LeftButton, Qt::NoModifier, QPoint(8, 10));
        return QTest::qWaitFor([&] { return channel().visible == isShown; });
    };
    ASSERT_TRUE(toggle(false));
    graph().autoMode = 0;
    graph().xRange = 0.5;
    m_dialog->updateDialog();
    ASSERT_TRUE(toggle(true));
    // Nothing was painted, so that all samples fall into one column, but for those behind the
    // range.
    ASSERT_EQ(channel(1).columns.size(), 1U);
    ASSERT_EQ(channel(1).columns[0].count, 1U);
    ASSERT_EQ(channel(0).columns.size(), 1U);
    EXPECT_EQ(channel(0).columns[0].count, 1U);
}

} // namespace

} // namespace zul::test

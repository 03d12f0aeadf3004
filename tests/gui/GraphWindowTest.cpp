#include "gui/frame/DialogFilter.h"
#include "gui/frame/FileDialogs.h"
#include "gui/frame/MessageBoxes.h"
#include "gui/frame/WidgetHeader.h"
#include "gui/frame/WidgetInterfaceSelect.h"
#include "gui/measure/DialogGraphSetup.h"
#include "gui/measure/DialogSelectParameter.h"
#include "tests/gui/GraphWindowFixture.h"

#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QSplitter>

#include <set>

// The oscilloscope's window where there is no OpenGL: all of it but the picture.

namespace zul::test {

namespace {

using gui::FileDialogs;
using gui::GraphCommand;
using gui::MessageBoxes;

class GraphWindow : public GraphWindowTest
{
protected:
    void add(int count)
    {
        for (int i = 0; i < count; ++i) {
            click("Add Parameter");
        }
    }
};

TEST_F(GraphWindow, SaysThatThereIsNoOpenGl)
{
    const auto* notice = m_dialog->findChild<QLabel*>(QStringLiteral("noOpenGl"));
    ASSERT_NE(notice, nullptr);
    EXPECT_EQ(notice->text(), QStringLiteral("No OpenGL here: nothing can be plotted."));
}

TEST_F(GraphWindow, HasItsSizeAndParts)
{
    EXPECT_EQ(m_dialog->sizeHint(), QSize(600, 300));
    EXPECT_EQ(m_dialog->minimumWidth(), 300);
    m_dialog->show();
    EXPECT_EQ(m_dialog->width(), 600);
    const auto* splitter = m_dialog->findChild<QSplitter*>();
    ASSERT_EQ(splitter->count(), 2);
    EXPECT_EQ(splitter->widget(0)->sizePolicy().horizontalStretch(), 1);
    EXPECT_EQ(splitter->widget(1)->sizePolicy().horizontalStretch(), 3);
    EXPECT_LT(splitter->sizes().at(0), splitter->sizes().at(1) / 2);
    bool hasHint = false;
    for (const auto* label : m_dialog->findChildren<QLabel*>()) {
        hasHint = hasHint || label->text() == QStringLiteral("Left Mouse: Mark\nRight Mouse: Move\n"
                                                             "Center Mouse: Cursor");
    }
    EXPECT_TRUE(hasHint);
}

TEST_F(GraphWindow, HasItsElevenButtons)
{
    const std::vector<std::pair<const char*, bool>> wanted{
        {"Zoom In", false},
        {"Zoom Out", false},
        {"Zoom 1:1", false},
        {"Zoom Marker", false},
        {"Clear All", false},
        {"Automatic Mode", true},
        {"Split Mode", true},
        {"Single Graph Mode", true},
        {"Reset all to default\n\nAutomatic Mode\nSplit Mode\nRange 60s", false},
        {"Setup", false},
        {"Snapshot", false}};
    ASSERT_EQ(gui::graphButtons.size(), wanted.size());
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        EXPECT_EQ(static_cast<std::size_t>(gui::graphButtons[i].command), i);
        const QToolButton& button = command(static_cast<GraphCommand>(i));
        EXPECT_EQ(button.toolTip(), QLatin1String(wanted[i].first));
        EXPECT_EQ(button.isCheckable(), wanted[i].second);
        EXPECT_EQ(button.minimumSize(), QSize(32, 32));
        EXPECT_EQ(button.maximumSize(), QSize(32, 32));
        const bool isMode = i == 5;
        EXPECT_EQ(button.icon().pixmap(24).isNull(), isMode) << i;
    }
    EXPECT_EQ(command(GraphCommand::AutoMode).text(), QStringLiteral("Auto"));
    for (const char* text : {"Add Parameter", "Delete Parameter", "Configure Interface"}) {
        EXPECT_FALSE(tool(text).icon().pixmap(16).isNull()) << text;
    }
}

TEST_F(GraphWindow, ButtonsStandInOneColumnAndInTwoWhereThereIsNoRoom)
{
    m_dialog->show();
    const auto columns = [this] {
        std::set<int> found;
        QRegion taken;
        for (const gui::GraphButton& row : gui::graphButtons) {
            const QToolButton& button = command(row.command);
            EXPECT_EQ(button.size(), QSize(32, 32));
            EXPECT_FALSE(taken.intersects(button.geometry())) << row.toolTip;
            EXPECT_TRUE(button.parentWidget()->rect().contains(button.geometry())) << row.toolTip;
            taken += button.geometry();
            found.insert(button.x());
        }
        return found.size();
    };
    m_dialog->resize(600, 500);
    QCoreApplication::processEvents();
    EXPECT_EQ(columns(), 1U);
    m_dialog->resize(600, 300);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_dialog->height(), 300);
    EXPECT_EQ(columns(), 2U);
    m_dialog->resize(600, 500);
    QCoreApplication::processEvents();
    EXPECT_EQ(columns(), 1U);
}

TEST_F(GraphWindow, TableHasItsForm)
{
    add(2);
    EXPECT_EQ(table().columnCount(), 3);
    EXPECT_TRUE(table().horizontalHeader()->isHidden());
    EXPECT_TRUE(table().verticalHeader()->isHidden());
    EXPECT_FALSE(table().showGrid());
    EXPECT_EQ(table().focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(table().selectionMode(), QAbstractItemView::SingleSelection);
    EXPECT_EQ(table().selectionBehavior(), QAbstractItemView::SelectRows);
    EXPECT_EQ(table().rowHeight(0), 20);
    EXPECT_EQ(table().columnWidth(2), 30);
    EXPECT_EQ(table().horizontalHeader()->sectionResizeMode(1), QHeaderView::Stretch);
    const QTableWidgetItem* name = table().item(0, 1);
    EXPECT_EQ(name->text(), QStringLiteral("NewPara"));
    EXPECT_TRUE(name->font().bold());
    EXPECT_EQ(name->font().pixelSize(), 12);
    EXPECT_EQ(table().item(0, 2)->background().color(), QColor(0xff, 0x88, 0x00));
    EXPECT_TRUE(activeBox(0).isChecked());
}

TEST_F(GraphWindow, AddAppendsAnActiveUserDefinedParameter)
{
    add(1);
    ASSERT_EQ(m_object->parameters().size(), 1U);
    EXPECT_TRUE(m_object->parameters()[0].active);
    EXPECT_EQ(parameter().parameterKind, ParameterKind::Raw);
    EXPECT_EQ(table().rowCount(), 1);
    EXPECT_TRUE(channel().visible);
    EXPECT_FALSE(channel(1).visible);
    EXPECT_TRUE(m_project.isEdited());
}

TEST_F(GraphWindow, ASeventeenthParameterIsRefusedWithAWarning)
{
    add(16);
    EXPECT_EQ(table().rowCount(), 16);
    const int boxes = MessageBoxes::count();
    MessageBoxes::setNextAnswer(QMessageBox::Ok);
    add(1);
    EXPECT_EQ(MessageBoxes::count(), boxes + 1);
    EXPECT_EQ(MessageBoxes::last().icon, QMessageBox::Warning);
    EXPECT_EQ(MessageBoxes::last().title, QStringLiteral("ZUL Warning"));
    EXPECT_EQ(MessageBoxes::last().text, QStringLiteral("Maximum number of parameters reached !"));
    EXPECT_EQ(MessageBoxes::last().buttons,
              std::vector<QMessageBox::StandardButton>{QMessageBox::Ok});
    EXPECT_EQ(m_object->parameters().size(), 16U);
    EXPECT_EQ(table().rowCount(), 16);
}

TEST_F(GraphWindow, DeleteWithoutASelectedRowDoesNothing)
{
    add(2);
    m_project.save(QString());
    click("Delete Parameter");
    EXPECT_EQ(m_object->parameters().size(), 2U);
    EXPECT_FALSE(m_project.isEdited());
}

TEST_F(GraphWindow, DeleteRemovesTheClickedRowAndNoFurtherOne)
{
    add(3);
    parameter(0).nme = QStringLiteral("First");
    parameter(1).nme = QStringLiteral("Second");
    m_dialog->show();
    clickRow(1);
    click("Delete Parameter");
    ASSERT_EQ(m_object->parameters().size(), 2U);
    EXPECT_EQ(parameter(0).nme, QStringLiteral("First"));
    EXPECT_EQ(parameter(1).nme, QStringLiteral("NewPara"));
    EXPECT_FALSE(channel(2).visible);
    click("Delete Parameter");
    EXPECT_EQ(m_object->parameters().size(), 2U);
}

TEST_F(GraphWindow, CheckBoxShowsAndHidesTheChannel)
{
    add(2);
    m_dialog->show();
    m_project.save(QString());
    QTest::mouseClick(&activeBox(1), Qt::LeftButton, Qt::NoModifier, QPoint(8, 10));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_object->parameters()[1].active; }));
    EXPECT_FALSE(channel(1).visible);
    EXPECT_TRUE(channel(0).visible);
    EXPECT_TRUE(m_project.isEdited());
    EXPECT_FALSE(activeBox(1).isChecked());
}

TEST_F(GraphWindow, DoubleClickOpensTheEditorInTheWindowsCorner)
{
    add(2);
    m_dialog->show();
    m_project.save(QString());
    QPoint place;
    onDialog<gui::DialogSelectParameter>([&place](gui::DialogSelectParameter& editor) {
        place = editor.pos();
        auto* name = editor.findChild<QLineEdit*>(QStringLiteral("name"));
        name->selectAll();
        QTest::keyClicks(name, QStringLiteral("Speed"));
    });
    const QPoint cell = table().visualItemRect(table().item(1, 1)).center();
    QTest::mouseClick(table().viewport(), Qt::LeftButton, Qt::NoModifier, cell);
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, Qt::NoModifier, cell);
    QCoreApplication::processEvents();
    EXPECT_EQ(parameter(1).nme, QStringLiteral("Speed"));
    EXPECT_EQ(table().item(1, 1)->text(), QStringLiteral("Speed"));
    EXPECT_EQ(channel(1).name, "Speed");
    EXPECT_EQ(place, m_dialog->mapToGlobal(QPoint(0, 0)));
    EXPECT_TRUE(m_project.isEdited());
}

TEST_F(GraphWindow, ConfigureOpensTheEditorOfTheSelectedRow)
{
    add(2);
    m_dialog->show();
    clickRow(1);
    onDialog<gui::DialogSelectParameter>([](gui::DialogSelectParameter& editor) {
        QTest::keyClicks(editor.findChild<QLineEdit*>(QStringLiteral("unit")), QStringLiteral("s"));
    });
    click("Configure Interface");
    QCoreApplication::processEvents();
    EXPECT_EQ(parameter(1).pun, QStringLiteral("Units"));
    EXPECT_EQ(channel(1).unit, "Units");
}

TEST_F(GraphWindow, ConfigureWithoutASelectedRowDoesNothing)
{
    add(1);
    m_project.save(QString());
    click("Configure Interface");
    QCoreApplication::processEvents();
    EXPECT_FALSE(m_project.isEdited());
}

TEST_F(GraphWindow, ContextMenuOpensTheEditorOfTheRowBelowThePointer)
{
    add(2);
    m_dialog->show();
    onDialog<gui::DialogSelectParameter>([](gui::DialogSelectParameter& editor) {
        QTest::keyClicks(editor.findChild<QLineEdit*>(QStringLiteral("unit")), QStringLiteral("s"));
    });
    emit table().customContextMenuRequested(table().visualItemRect(table().item(1, 1)).center());
    QCoreApplication::processEvents();
    EXPECT_EQ(parameter(1).pun, QStringLiteral("Units"));
    m_project.save(QString());
    emit table().customContextMenuRequested(QPoint(5, table().height() - 5)); // below all rows
    QCoreApplication::processEvents();
    EXPECT_FALSE(m_project.isEdited());
}

TEST_F(GraphWindow, AWindowThatGoesWhileItsEditorIsOpenDoesNoHarm)
{
    add(1);
    m_dialog->show();
    clickRow(0);
    QPointer<gui::DialogGraph> window = m_dialog;
    whenModal([window] { delete window; });
    click("Configure Interface");
    QCoreApplication::processEvents();
    EXPECT_EQ(window, nullptr);
    m_dialog = nullptr;
}

TEST_F(GraphWindow, SettingsOfTheObjectAreApplied)
{
    add(2);
    graph().xRange = 30.0;
    graph().splitMode = 0;
    graph().autoMode = 0;
    graph().cursorMode = 1;
    graph().backgroundColor = QStringLiteral("#ff0000");
    graph().gridOn = false;
    graph().gridColor = QStringLiteral("#00ff00");
    graph().labelColor = QStringLiteral("blue");
    graph().labelBackColor = QStringLiteral("#ffffff");
    graph().cursorOn = false;
    graph().legendOn = false;
    parameter(1).color = QStringLiteral("#00ffff");
    parameter(1).nme = QString(QChar(0xC4));
    parameter(1).pun = QStringLiteral("m");
    parameter(1).showSamples = true;
    parameter(1).autoScale = true;
    parameter(1).yMin = -5.0;
    parameter(1).yMax = 5.0;
    m_dialog->updateDialog();
    EXPECT_EQ(state().xMax - state().xMin, 30.0);
    EXPECT_EQ(state().splitMode, 0);
    EXPECT_EQ(state().autoMode, 0);
    EXPECT_EQ(state().cursorMode, 1);
    EXPECT_EQ(state().plotColor.red, 1.0F);
    EXPECT_FALSE(state().gridOn);
    EXPECT_EQ(state().gridColor.green, 1.0F);
    EXPECT_EQ(state().gridColor.red, 0.0F);
    EXPECT_EQ(state().labelColor.blue, 1.0F);
    EXPECT_EQ(state().backColor.green, 1.0F);
    EXPECT_FALSE(state().cursorOn);
    EXPECT_FALSE(state().legendOn);
    EXPECT_EQ(channel(1).color.red, 0.0F);
    EXPECT_EQ(channel(1).color.blue, 1.0F);
    EXPECT_EQ(channel(1).name, "\xC4"); // Latin-1
    EXPECT_EQ(channel(1).unit, "m");
    EXPECT_TRUE(channel(1).showSamples);
    EXPECT_TRUE(channel(1).autoScale);
    EXPECT_EQ(channel(1).userYMin, -5.0);
    EXPECT_EQ(channel(1).userYMax, 5.0);
    EXPECT_FALSE(command(GraphCommand::AutoMode).isChecked());
    EXPECT_EQ(command(GraphCommand::AutoMode).text(), QStringLiteral("Man"));
    EXPECT_FALSE(command(GraphCommand::SplitMode).isChecked());
    EXPECT_TRUE(command(GraphCommand::SingleMode).isChecked());
}

TEST_F(GraphWindow, HasSixteenChannelsInSplitMode)
{
    EXPECT_EQ(state().channels.size(), 16U);
    EXPECT_EQ(state().splitMode, 1);
}

TEST_F(GraphWindow, ButtonsSwitchTheModes)
{
    m_dialog->show();
    click(GraphCommand::SingleMode);
    EXPECT_EQ(state().splitMode, 0);
    EXPECT_EQ(graph().splitMode, 0);
    EXPECT_TRUE(command(GraphCommand::SingleMode).isChecked());
    EXPECT_FALSE(command(GraphCommand::SplitMode).isChecked());
    click(GraphCommand::SingleMode); // stays
    EXPECT_TRUE(command(GraphCommand::SingleMode).isChecked());
    click(GraphCommand::SplitMode);
    EXPECT_EQ(state().splitMode, 1);
    EXPECT_EQ(graph().splitMode, 1);
    EXPECT_TRUE(command(GraphCommand::SplitMode).isChecked());
    EXPECT_FALSE(command(GraphCommand::SingleMode).isChecked());
    click(GraphCommand::AutoMode);
    EXPECT_EQ(state().autoMode, 0);
    EXPECT_EQ(graph().autoMode, 0);
    EXPECT_EQ(command(GraphCommand::AutoMode).text(), QStringLiteral("Man"));
    click(GraphCommand::AutoMode);
    EXPECT_EQ(state().autoMode, 1);
    EXPECT_EQ(graph().autoMode, 1);
    EXPECT_EQ(command(GraphCommand::AutoMode).text(), QStringLiteral("Auto"));
}

TEST_F(GraphWindow, HeldZoomButtonsChangeTheRangeStepByStep)
{
    m_dialog->show();
    const auto range = [this] { return state().xMax - state().xMin; };
    QTest::mousePress(&command(GraphCommand::ZoomIn), Qt::LeftButton);
    EXPECT_EQ(range(), 60.0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return range() < 60.0 * 0.97 * 0.98; }));
    EXPECT_NEAR(graph().xRange, range(), 1e-3);
    QTest::mouseRelease(&command(GraphCommand::ZoomIn), Qt::LeftButton);
    const double zoomed = range();
    QTest::mousePress(&command(GraphCommand::ZoomOut), Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return range() > zoomed; }));
    EXPECT_NEAR(range(), zoomed / 0.97, 1e-3);
    QTest::mouseRelease(&command(GraphCommand::ZoomOut), Qt::LeftButton);
    click(GraphCommand::ZoomOneToOne);
    EXPECT_EQ(range(), 60.0);
    EXPECT_EQ(graph().xRange, 60.0);
    EXPECT_TRUE(m_project.isEdited());
}

TEST_F(GraphWindow, ZoomMarkerGoesToManualModeWhichButtonAndObjectShow)
{
    m_dialog->show();
    click(GraphCommand::ZoomMarker);
    EXPECT_EQ(state().xMax - state().xMin, 1.0);
    EXPECT_EQ(state().autoMode, 0);
    EXPECT_EQ(graph().autoMode, 0);
    EXPECT_EQ(graph().xRange, 1.0);
    EXPECT_EQ(command(GraphCommand::AutoMode).text(), QStringLiteral("Man"));
    EXPECT_FALSE(command(GraphCommand::AutoMode).isChecked());
    EXPECT_TRUE(m_project.isEdited());
}

TEST_F(GraphWindow, ClearAllEmptiesTheSamples)
{
    m_dialog->show();
    add(1);
    parameter().id = 5;
    feed(graphBatch({5}));
    EXPECT_EQ(channel().samples.size(), 1U);
    click(GraphCommand::ClearAll);
    EXPECT_TRUE(channel().samples.empty());
}

TEST_F(GraphWindow, ResetIsAutomaticSplitAndSixtySeconds)
{
    m_dialog->show();
    add(1);
    graph().xRange = 5.0;
    graph().splitMode = 0;
    graph().autoMode = 0;
    m_dialog->updateDialog();
    feed(graphBatch({0}));
    click(GraphCommand::Reset);
    EXPECT_TRUE(channel().samples.empty());
    EXPECT_EQ(state().xMax - state().xMin, 60.0);
    EXPECT_EQ(state().splitMode, 1);
    EXPECT_EQ(state().autoMode, 1);
    EXPECT_EQ(graph().xRange, 60.0);
    EXPECT_EQ(graph().splitMode, 1);
    EXPECT_EQ(graph().autoMode, 1);
    EXPECT_EQ(command(GraphCommand::AutoMode).text(), QStringLiteral("Auto"));
    EXPECT_TRUE(command(GraphCommand::AutoMode).isChecked());
    EXPECT_TRUE(command(GraphCommand::SplitMode).isChecked());
}

TEST_F(GraphWindow, SetupButtonsOpenTheSetup)
{
    m_dialog->show();
    auto* setup = m_dialog->findChild<gui::DialogGraphSetup*>();
    EXPECT_FALSE(setup->isVisible());
    click(GraphCommand::Setup);
    EXPECT_TRUE(setup->isVisible());
    setup->hide();
    emit m_dialog->findChild<WidgetHeader*>()->signalSetup();
    EXPECT_TRUE(setup->isVisible());
}

TEST_F(GraphWindow, SetupIsAppliedAtOnce)
{
    add(1);
    m_project.save(QString());
    graph().gridOn = false;
    parameter().autoScale = true;
    emit m_dialog->findChild<gui::DialogGraphSetup*>()->signalChanged();
    EXPECT_FALSE(state().gridOn);
    EXPECT_TRUE(channel().autoScale);
    EXPECT_TRUE(m_project.isEdited());
}

TEST_F(GraphWindow, SnapshotIsSavedInTheFormatOfItsName)
{
    m_dialog->show();
    const QString file = m_home.file(QStringLiteral("scope.png"));
    FileDialogs::setNextFileName(file);
    click(GraphCommand::Snapshot);
    EXPECT_EQ(FileDialogs::lastTitle(), QStringLiteral("Save Snapshot"));
    EXPECT_EQ(FileDialogs::lastFilter(), QStringLiteral("BMP File (*.bmp);;All Files (*.*)"));
    EXPECT_EQ(FileDialogs::lastPath(), QStringLiteral("./snapshot.bmp"));
    EXPECT_EQ(QImage(file).size(), m_dialog->size());
    EXPECT_TRUE(m_home.read(QStringLiteral("scope.png")).startsWith("\x89PNG"));
}

TEST_F(GraphWindow, SnapshotIsNotSavedWithoutAName)
{
    m_dialog->show();
    FileDialogs::setNextFileName(QString());
    click(GraphCommand::Snapshot);
    EXPECT_FALSE(m_home.has(QStringLiteral("snapshot.bmp")));
}

TEST_F(GraphWindow, FramesBecomeSamplesAtTheTimeOfTheWindow)
{
    add(1);
    parameter().id = 5;
    m_clock.set(1002.5);
    feed(graphBatch({5, 6, 5}));
    ASSERT_EQ(channel().samples.size(), 2U);
    EXPECT_EQ(channel().samples[0].time, 2.5);
    EXPECT_EQ(channel().samples[0].value, 7.0);
    const auto* counter = m_dialog->findChild<QLabel*>(QStringLiteral("inputCounter"));
    EXPECT_EQ(counter->text(), QStringLiteral("0003"));
}

TEST_F(GraphWindow, ABatchOfAnotherInterfaceMovesTheTimeAlone)
{
    add(1);
    parameter().id = 5;
    emit m_dialog->findChild<WidgetHeader*>()->signalInputInterface(QStringLiteral("Tail"));
    EXPECT_EQ(m_object->settings().inputInterface, QStringLiteral("Tail"));
    EXPECT_TRUE(m_project.isEdited());
    m_clock.set(1003.0);
    feed(graphBatch({5}));
    EXPECT_EQ(state().now, 3.0);
    EXPECT_TRUE(channel().samples.empty());
    const auto* counter = m_dialog->findChild<QLabel*>(QStringLiteral("inputCounter"));
    EXPECT_EQ(counter->text(), QStringLiteral("0000"));
}

TEST_F(GraphWindow, AnEmptyBatchMovesTheTimeAndWithoutOneItStands)
{
    EXPECT_FALSE(state().running);
    m_clock.set(1004.0);
    feed(graphBatch({}));
    EXPECT_TRUE(state().running);
    EXPECT_EQ(state().now, 4.0);
}

TEST_F(GraphWindow, HeaderSwitchesInputAndFilter)
{
    auto* header = m_dialog->findChild<WidgetHeader*>();
    emit header->signalInputOn(false);
    EXPECT_FALSE(m_object->settings().inputOn);
    EXPECT_TRUE(m_project.isEdited());
    m_project.save(QString());
    emit header->signalFilterOn(true);
    EXPECT_TRUE(m_object->filter().isOn());
    EXPECT_TRUE(m_project.isEdited());
    m_project.save(QString());
    emit header->signalFilterSetup();
    auto* filter = m_dialog->findChild<gui::DialogFilter*>();
    EXPECT_TRUE(filter->isVisible());
    EXPECT_TRUE(m_project.isEdited());
    emit header->signalOutputOn(true); // nothing
}

TEST_F(GraphWindow, WithoutAnObjectItGoesOnAndEditsNothing)
{
    add(1);
    m_dialog->show();
    click(GraphCommand::Setup);
    m_project.deleteObject(m_object->id());
    m_object = nullptr;
    EXPECT_EQ(m_dialog->object(), nullptr);
    EXPECT_FALSE(m_dialog->findChild<gui::DialogGraphSetup*>()->isVisible());
    m_clock.set(1005.0);
    feed(graphBatch({5}));
    EXPECT_EQ(state().now, 5.0);
    for (const gui::GraphButton& row : gui::graphButtons) {
        FileDialogs::setNextFileName(QString());
        click(row.command);
    }
    for (const char* text : {"Add Parameter", "Delete Parameter", "Configure Interface"}) {
        click(text);
    }
    auto* header = m_dialog->findChild<WidgetHeader*>();
    emit header->signalInputOn(false);
    emit header->signalFilterOn(true);
    emit header->signalFilterSetup();
    emit header->signalSetup();
    emit header->signalInputInterface(QStringLiteral("Tail"));
    m_dialog->updateDialog();
    QTest::mouseClick(&activeBox(0), Qt::LeftButton, Qt::NoModifier, QPoint(8, 10));
    QCoreApplication::processEvents();
}

TEST_F(GraphWindow, AProjectWithMoreParametersThanChannelsIsShown)
{
    for (int i = 0; i < 20; ++i) {
        m_object->parameters().emplace_back();
    }
    m_dialog->updateDialog();
    EXPECT_EQ(table().rowCount(), 20);
    feed(graphBatch({0}));
    EXPECT_EQ(channel(15).samples.size(), 1U);
}

} // namespace

} // namespace zul::test

#include "gui/controls/QwtComboBox.h"
#include "gui/frame/DialogFilter.h"
#include "gui/frame/WidgetHeader.h"
#include "gui/frame/WidgetInterfaceSelect.h"
#include "gui/measure/DialogSelectParameter.h"
#include "gui/measure/GlyphTexture.h"
#include "gui/measure/WidgetSppEpp.h"
#include "tests/gui/GraphWindowFixture.h"

#include <QCheckBox>
#include <QFontInfo>
#include <QFontMetrics>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSpinBox>

#include <memory>

// What the oscilloscope's window and its editor take over from the project, and keep.

namespace zul::test {

namespace {

using gui::DialogSelectParameter;
using gui::GraphCommand;
using gui::QwtComboBox;

QString text(const char* latin)
{
    return QString::fromLatin1(latin);
}

class GraphKeep : public GraphWindowTest
{
protected:
    void add(int count)
    {
        for (int i = 0; i < count; ++i) {
            click("Add Parameter");
        }
    }
    double range() const { return state().xMax - state().xMin; }
    WidgetHeader& header() const { return *m_dialog->findChild<WidgetHeader*>(); }
    template <typename Control>
    Control& inHeader(const char* name) const
    {
        return *header().findChild<Control*>(text(name));
    }
    static void moveTo(QToolButton& button, const QPoint& place)
    {
        QMouseEvent move(QEvent::MouseMove, place, button.mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&button, &move);
    }
    /// Presses a button, and releases it beside it.
    void dragOff(GraphCommand wanted) const
    {
        QToolButton& button = command(wanted);
        QTest::mousePress(&button, Qt::LeftButton);
        moveTo(button, QPoint(-20, 5));
        QTest::mouseRelease(&button, Qt::LeftButton, Qt::NoModifier, QPoint(-20, 5));
    }
};

TEST_F(GraphKeep, AWindowOpensWithAllThatTheProjectHasKept)
{
    add(2);
    graph().xRange = 12.5;
    graph().splitMode = 0;
    graph().autoMode = 0;
    graph().cursorMode = 0;
    graph().backgroundColor = text("#ff0000");
    graph().gridOn = false;
    graph().gridColor = text("#00ff00");
    graph().labelColor = text("#0000ff");
    graph().labelBackColor = text("#ffff00");
    graph().cursorOn = false;
    graph().legendOn = false;
    m_object->settings().inputOn = false;
    m_object->settings().inputInterface = text("Tail");
    m_object->filter().setOn(true);
    m_object->parameters()[0].active = false;
    parameter(1).nme = text("Speed");
    parameter(1).pun = text("kt");
    parameter(1).color = text("#00ffff");
    parameter(1).showSamples = true;
    parameter(1).autoScale = true;
    parameter(1).yMin = -7.0;
    parameter(1).yMax = 70.0;
    const QString file = m_home.file(text("kept.zul"));
    m_project.save(file);

    Project other({ObjectGraph::typeInfo()}, m_home.file(text("none.zul")));
    other.load(file);
    ASSERT_EQ(other.objects().size(), 1U);
    gui::DialogGraph window(dynamic_cast<ObjectGraph*>(other.objects().begin()->second.get()),
                            nullptr);
    const GraphState& opened = window.engine().state();
    EXPECT_EQ(opened.xMax - opened.xMin, 12.5);
    EXPECT_EQ(opened.splitMode, 0);
    EXPECT_EQ(opened.autoMode, 0);
    EXPECT_EQ(opened.cursorMode, 0);
    EXPECT_EQ(opened.plotColor.red, 1.0F);
    EXPECT_EQ(opened.plotColor.blue, 0.0F);
    EXPECT_FALSE(opened.gridOn);
    EXPECT_EQ(opened.gridColor.green, 1.0F);
    EXPECT_EQ(opened.gridColor.red, 0.0F);
    EXPECT_EQ(opened.labelColor.blue, 1.0F);
    EXPECT_EQ(opened.backColor.red, 1.0F);
    EXPECT_EQ(opened.backColor.blue, 0.0F);
    EXPECT_FALSE(opened.cursorOn);
    EXPECT_FALSE(opened.legendOn);
    EXPECT_FALSE(opened.channels[0].visible);
    const GraphChannel& second = opened.channels[1];
    EXPECT_TRUE(second.visible);
    EXPECT_EQ(second.name, "Speed");
    EXPECT_EQ(second.unit, "kt");
    EXPECT_EQ(second.color.red, 0.0F);
    EXPECT_EQ(second.color.green, 1.0F);
    EXPECT_TRUE(second.showSamples);
    EXPECT_TRUE(second.autoScale);
    EXPECT_EQ(second.userYMin, -7.0);
    EXPECT_EQ(second.userYMax, 70.0);
    EXPECT_FALSE(opened.channels[2].visible);
    const auto& tools = *window.findChild<gui::GraphToolBar*>();
    EXPECT_EQ(tools.button(GraphCommand::AutoMode)->text(), text("Man"));
    EXPECT_TRUE(tools.button(GraphCommand::SingleMode)->isChecked());
    EXPECT_EQ(window.findChild<gui::GraphParameterTable*>()->rowCount(), 2);
    const auto& itsHeader = *window.findChild<WidgetHeader*>();
    EXPECT_FALSE(itsHeader.isInputOn());
    EXPECT_TRUE(itsHeader.isFilterOn());
    EXPECT_EQ(itsHeader.findChild<gui::WidgetInterfaceSelect*>(text("inputSelect"))->interface(),
              text("Tail"));
    EXPECT_FALSE(other.isEdited()); // opening changes nothing
}

TEST_F(GraphKeep, HeaderWorksForTheInputAlone)
{
    for (const char* name :
         {"inputSelect", "inputCounter", "inputSwitch", "filterSwitch", "filterSetup"}) {
        EXPECT_TRUE(inHeader<QWidget>(name).isEnabled()) << name;
    }
    for (const char* name : {"outputSelect", "outputCounter", "outputSwitch"}) {
        EXPECT_FALSE(inHeader<QWidget>(name).isEnabled()) << name;
    }
}

TEST_F(GraphKeep, HeaderGoesIntoTheObject)
{
    EXPECT_TRUE(header().isInputOn());
    QTest::mouseClick(&inHeader<QToolButton>("inputSwitch"), Qt::LeftButton);
    EXPECT_FALSE(m_object->settings().inputOn);
    QTest::mouseClick(&inHeader<QToolButton>("inputSwitch"), Qt::LeftButton);
    EXPECT_TRUE(m_object->settings().inputOn);
    QTest::mouseClick(&inHeader<QToolButton>("filterSwitch"), Qt::LeftButton);
    EXPECT_TRUE(m_object->filter().isOn());
    EXPECT_TRUE(m_project.isEdited());
}

TEST_F(GraphKeep, HeaderIsFedFromTheObject)
{
    m_object->settings().inputOn = false;
    m_object->settings().inputInterface = text("Tail");
    m_object->filter().setOn(true);
    m_dialog->updateDialog();
    EXPECT_FALSE(header().isInputOn());
    EXPECT_TRUE(header().isFilterOn());
    EXPECT_EQ(inHeader<gui::WidgetInterfaceSelect>("inputSelect").interface(), text("Tail"));
    EXPECT_FALSE(m_project.isEdited());
}

TEST_F(GraphKeep, ContinuousZoomStopsAtTheRelease)
{
    m_dialog->show();
    QTest::mousePress(&command(GraphCommand::ZoomIn), Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return range() < 60.0; }));
    QTest::mouseRelease(&command(GraphCommand::ZoomIn), Qt::LeftButton);
    const double released = range();
    // Some turns of a timer of the same period.
    int turns = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&turns] { ++turns; });
    timer.start(gui::DialogGraph::zoomPeriodMs);
    ASSERT_TRUE(QTest::qWaitFor([&] { return turns >= 3; }));
    EXPECT_EQ(range(), released);
}

TEST_F(GraphKeep, ContinuousZoomRestsWhileThePointerIsOffTheButton)
{
    m_dialog->show();
    QToolButton& button = command(GraphCommand::ZoomIn);
    QTest::mousePress(&button, Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return range() < 60.0; }));
    moveTo(button, QPoint(-20, 5));
    const double rested = range();
    int turns = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&turns] { ++turns; });
    timer.start(gui::DialogGraph::zoomPeriodMs);
    ASSERT_TRUE(QTest::qWaitFor([&] { return turns >= 3; }));
    EXPECT_EQ(range(), rested);
    moveTo(button, QPoint(5, 5));
    EXPECT_TRUE(QTest::qWaitFor([&] { return range() < rested; }));
    QTest::mouseRelease(&button, Qt::LeftButton);
}

TEST_F(GraphKeep, ACommandThatIsDraggedOffDoesNothing)
{
    m_dialog->show();
    add(1);
    feed(graphBatch({0}));
    graph().xRange = 30.0;
    m_dialog->updateDialog();
    m_project.save(QString());
    ASSERT_EQ(channel().samples.size(), 1U);
    for (const GraphCommand wanted :
         {GraphCommand::ZoomOneToOne, GraphCommand::ZoomMarker, GraphCommand::ClearAll,
          GraphCommand::AutoMode, GraphCommand::SingleMode, GraphCommand::Reset}) {
        dragOff(wanted);
    }
    EXPECT_EQ(channel().samples.size(), 1U);
    EXPECT_EQ(range(), 30.0);
    EXPECT_EQ(state().autoMode, 1);
    EXPECT_EQ(state().splitMode, 1);
    EXPECT_TRUE(command(GraphCommand::AutoMode).isChecked());
    EXPECT_FALSE(command(GraphCommand::SingleMode).isChecked());
    EXPECT_FALSE(m_project.isEdited());
    click(GraphCommand::ClearAll);
    EXPECT_TRUE(channel().samples.empty());
}

TEST_F(GraphKeep, ClearAllKeepsTheRangeThatItMakes)
{
    m_dialog->show();
    graph().xRange = 30.0;
    m_dialog->updateDialog();
    m_project.save(QString());
    click(GraphCommand::ClearAll);
    EXPECT_EQ(range(), 60.0);
    EXPECT_EQ(graph().xRange, 60.0);
    EXPECT_TRUE(m_project.isEdited());
}

TEST_F(GraphKeep, ARangeThatDiffersInItsLastDigitsAloneIsNoChange)
{
    m_dialog->show();
    graph().xRange = 60.0 + 1e-9;
    m_project.save(QString());
    click(GraphCommand::ClearAll);
    EXPECT_FALSE(m_project.isEdited());
}

TEST_F(GraphKeep, AClickOnACheckBoxLeavesTheListScrolled)
{
    add(16);
    m_dialog->show();
    clickRow(0);
    QScrollBar& bar = *table().verticalScrollBar();
    ASSERT_GT(bar.maximum(), 0);
    bar.setValue(bar.maximum());
    QTest::mouseClick(&activeBox(15), Qt::LeftButton, Qt::NoModifier, QPoint(8, 10));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_object->parameters()[15].active; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(bar.value(), bar.maximum());
    EXPECT_EQ(table().selectionModel()->selectedRows().value(0).row(), 0);
}

TEST_F(GraphKeep, AChannelThatIsShownAgainHasTheColumnsOfTheRange)
{
    add(2);
    m_dialog->show();
    graph().autoMode = 0;
    m_dialog->updateDialog();
    for (int second = 1; second <= 20; ++second) {
        m_clock.set(1000.0 + second);
        feed(graphBatch({0}));
    }
    const auto clickBox = [this](bool isShown) {
        QTest::mouseClick(&activeBox(1), Qt::LeftButton, Qt::NoModifier, QPoint(8, 10));
        ASSERT_TRUE(QTest::qWaitFor([&] { return m_object->parameters()[1].active == isShown; }));
    };
    clickBox(false);
    graph().xRange = 5.0;
    m_dialog->updateDialog();
    clickBox(true);
    EXPECT_EQ(channel(1).columns.size(), channel(0).columns.size());
}

TEST_F(GraphKeep, FilterDialogLetsGoOfTheFilterWhenTheObjectGoes)
{
    emit header().signalFilterSetup();
    auto& dialog = *m_dialog->findChild<gui::DialogFilter*>();
    ASSERT_TRUE(dialog.isVisible());
    auto& max = *dialog.findChild<QSpinBox*>(text("maxId"));
    m_dialog->setObject(nullptr);
    EXPECT_FALSE(dialog.isVisible());
    max.setValue(500);
    EXPECT_EQ(m_object->filter().maxId(), 0x1FFFFFFF);
    m_dialog->setObject(m_object);
}

TEST(GraphWithoutObject, IsAWindowThatShowsAndTakesNothing)
{
    SettableClock clock(1000.0);
    gui::DialogGraph window(nullptr, nullptr);
    window.show();
    window.updateDialog();
    for (const gui::GraphButton& row : gui::graphButtons) {
        if (row.command != GraphCommand::Snapshot) {
            QTest::mouseClick(window.findChild<gui::GraphToolBar*>()->button(row.command),
                              Qt::LeftButton);
        }
    }
    clock.set(1001.0);
    MessageContainer batch = graphBatch({5});
    window.receive(batch);
    EXPECT_EQ(window.engine().state().now, 1.0);
    EXPECT_EQ(window.findChild<gui::GraphParameterTable*>()->rowCount(), 0);
}

/// The editor of a parameter that the test sets first.
class GraphEditor : public testing::Test
{
protected:
    void open(ParameterKind kind, std::uint32_t code)
    {
        m_parameter.parameterKind = kind;
        m_parameter.dtc = code;
        m_editor = std::make_unique<DialogSelectParameter>(m_parameter);
        m_editor->show();
    }
    QwtComboBox& position(const char* toolTip) const
    {
        for (auto* selection : m_editor->findChildren<QwtComboBox*>()) {
            if (selection->toolTip() == text(toolTip)) {
                return *selection;
            }
        }
        ADD_FAILURE() << toolTip;
        return *m_editor->findChild<QwtComboBox*>();
    }
    static void choose(QwtComboBox& selection, const char* item)
    {
        const int index = selection.findText(text(item));
        ASSERT_GE(index, 0) << item;
        selection.setCurrentIndex(index);
        emit selection.activated(index);
    }
    static QStringList items(const QwtComboBox& selection)
    {
        QStringList found;
        for (int i = 0; i < selection.count(); ++i) {
            found << selection.itemText(i);
        }
        return found;
    }
    /// The first and the last green cell of the strip with this tool tip.
    std::pair<int, int> greenCells(const char* toolTip) const
    {
        std::pair<int, int> found{-1, -1};
        for (auto* strip : m_editor->findChildren<WidgetSppEpp*>()) {
            if (strip->toolTip() != text(toolTip)) {
                continue;
            }
            const QImage picture = strip->grab().toImage();
            for (int cell = 0; cell < 64; ++cell) {
                if (picture.pixelColor(cell * 3 + cell / 8 * 5, 0) == QColor(0, 180, 0)) {
                    found.first = found.first < 0 ? cell : found.first;
                    found.second = cell;
                }
            }
        }
        return found;
    }

    ProfileParameter m_parameter;
    std::unique_ptr<DialogSelectParameter> m_editor;
};

TEST_F(GraphEditor, StripsShowThePositions)
{
    m_parameter.sppByte = 3;
    m_parameter.eppByte = 2;
    m_parameter.eppBit = 7;
    open(ParameterKind::Arinc825, 5);
    EXPECT_EQ(greenCells("Start Position Payload"), std::pair(16, 31));
    EXPECT_EQ(greenCells("End Position Payload"), std::pair(16, 31));
    choose(position("Start Position Byte"), "7");
    EXPECT_EQ(greenCells("Start Position Payload"), std::pair(48, 63));
    EXPECT_EQ(greenCells("End Position Payload"), std::pair(48, 63));
}

TEST_F(GraphEditor, AutoScaleIsShownOnOpening)
{
    m_parameter.autoScale = true;
    open(ParameterKind::Raw, 0);
    bool isShown = false;
    for (const auto* box : m_editor->findChildren<QCheckBox*>()) {
        isShown = isShown || (box->text() == text("Autoscale On") && box->isChecked());
    }
    EXPECT_TRUE(isShown);
    EXPECT_FALSE(m_editor->findChild<QLineEdit*>(text("yMin"))->isEnabled());
}

TEST_F(GraphEditor, ATypedMinimumGoesIntoTheParameter)
{
    open(ParameterKind::Arinc825, 9);
    auto& min = *m_editor->findChild<QLineEdit*>(text("min"));
    min.selectAll();
    QTest::keyClicks(&min, text("-12.5"));
    EXPECT_EQ(m_editor->parameter().min, -12.5);
}

TEST_F(GraphEditor, APositionThatIsNotOfferedIsShownAndKeptUntilAnotherIsChosen)
{
    m_parameter.sppByte = 2; // pairs of bytes begin at an odd one
    m_parameter.sppBit = 3;
    m_parameter.eppByte = 99;
    m_parameter.eppBit = 0xFFFFFFFF;
    open(ParameterKind::Arinc825, 5);
    EXPECT_EQ(position("Start Position Byte").currentText(), text("2"));
    EXPECT_EQ(items(position("Start Position Byte")),
              QStringList({text("1"), text("2"), text("3"), text("5"), text("7")}));
    EXPECT_EQ(position("Start Position Bit").currentText(), text("3"));
    EXPECT_EQ(position("End Position Byte").currentText(), text("99"));
    EXPECT_EQ(position("End Position Bit").currentText(), text("4294967295"));
    choose(position("Start Position Byte"), "5");
    EXPECT_EQ(items(position("Start Position Byte")),
              QStringList({text("1"), text("3"), text("5"), text("7")}));
    EXPECT_EQ(m_editor->parameter().sppByte, 5U);
    EXPECT_EQ(m_editor->parameter().eppByte, 4U);
    EXPECT_EQ(m_editor->parameter().eppBit, 7U);
}

TEST_F(GraphEditor, APositionThatIsNotOfferedOutlivesTheChoiceOfAnother)
{
    m_parameter.sppByte = 9;
    m_parameter.eppBit = 12;
    open(ParameterKind::Arinc825, 1); // all four are free
    choose(position("Start Position Bit"), "4");
    EXPECT_EQ(m_editor->parameter().sppByte, 9U);
    EXPECT_EQ(m_editor->parameter().sppBit, 4U);
    EXPECT_EQ(m_editor->parameter().eppBit, 12U);
    EXPECT_EQ(position("Start Position Byte").currentText(), text("9"));
}

TEST(ScopeFont, HasLettersOfOneWidthAndAtMostThirteenPixels)
{
    const QFont font = gui::GlyphTexture::scopeFont();
    EXPECT_TRUE(QFontInfo(font).fixedPitch());
    const QFontMetrics metrics(font);
    EXPECT_LE(metrics.height(), 13);
    EXPECT_EQ(metrics.horizontalAdvance(QLatin1Char('i')),
              metrics.horizontalAdvance(QLatin1Char('M')));
    EXPECT_EQ(gui::GlyphTexture(font).width("iM"), 2 * metrics.horizontalAdvance(QLatin1Char('0')));
}

} // namespace

} // namespace zul::test

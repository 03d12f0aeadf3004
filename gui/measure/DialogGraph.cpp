#include "gui/measure/DialogGraph.h"

#include "core/Clock.h"
#include "core/Latin1.h"
#include "gui/frame/FileDialogs.h"
#include "gui/frame/MessageBoxes.h"
#include "gui/frame/WidgetHeader.h"
#include "gui/measure/DialogGraphSetup.h"
#include "gui/measure/DialogSelectParameter.h"
#include "gui/measure/GraphParameterTable.h"
#include "gui/measure/GraphToolBar.h"
#include "gui/measure/WidgetGraph.h"
#include "measure/ZoomRange.h"
#include "project/ObjectGraph.h"

#include <QPainter>
#include <QPointer>
#include <QScopedValueRollback>
#include <QTimer>
#include <QToolButton>

#include <cmath>

namespace gui {

namespace {

struct Rgb
{
    explicit Rgb(const QString& name)
        : color(name),
          red(static_cast<float>(color.redF())),
          green(static_cast<float>(color.greenF())),
          blue(static_cast<float>(color.blueF()))
    {
    }

    QColor color;
    float red;
    float green;
    float blue;
};

template <typename Value>
bool assign(Value& kept, Value now)
{
    const bool isOther = kept != now;
    kept = now;
    return isOther;
}

// Returns whether something was another.
bool takeModes(const GraphState& state, ObjectGraph::Graph& graph)
{
    // The range is single precision, and moves along with the time: its last digits differ.
    constexpr double tolerance = 1e-5;
    const double seconds = state.xMax - state.xMin;
    bool isOther = assign(graph.autoMode, state.autoMode);
    isOther = assign(graph.splitMode, state.splitMode) || isOther;
    isOther = assign(graph.cursorMode, state.cursorMode) || isOther;
    if (std::fabs(seconds - graph.xRange) > std::fabs(graph.xRange) * tolerance) {
        graph.xRange = seconds;
        isOther = true;
    }
    return isOther;
}

} // namespace

DialogGraph::DialogGraph(ObjectGraph* object, QWidget* parent)
    : DialogInput(object, parent),
      m_graph(object),
      m_feed(zul::wallClock()),
      m_timer(new QTimer(this))
{
    build();
    m_engine->setParameterCount(maxParameters);
    m_engine->setSplitMode(1);
    connectControls();
    showSettings();
    m_timer->start(zoomPeriodMs);
}

DialogGraph::~DialogGraph() = default;

void DialogGraph::setObject(Object* object)
{
    DialogInput::setObject(object);
    m_graph = dynamic_cast<ObjectGraph*>(object);
    m_setupDialog->setObject(nullptr);
    m_setupDialog->hide();
}

void DialogGraph::receive(MessageContainer& batch)
{
    if (m_feed.receive(batch, zul::wallClock(), m_graph, *m_engine)) {
        header()->setInputCount(m_feed.frameCount());
    }
}

std::optional<DialogInput::Input> DialogGraph::input()
{
    if (m_graph == nullptr) {
        return std::nullopt;
    }
    return Input{m_graph->settings().inputOn, m_graph->settings().inputInterface,
                 m_graph->filter()};
}

void DialogGraph::updateDialog()
{
    showSettings();
}

void DialogGraph::showSettings()
{
    if (m_graph == nullptr) {
        return;
    }
    const QScopedValueRollback<bool> guard(m_updating, true);
    showInput();
    refreshTable();
    applySettings();
    m_setupDialog->refresh();
}

void DialogGraph::applySettings()
{
    const auto& graph = m_graph->graph();
    const Rgb plot(graph.backgroundColor);
    const Rgb grid(graph.gridColor);
    const Rgb label(graph.labelColor);
    const Rgb back(graph.labelBackColor);
    m_engine->setRange(static_cast<float>(graph.xRange));
    m_engine->setSplitMode(graph.splitMode);
    m_engine->setAutoMode(graph.autoMode);
    m_engine->setCursorMode(graph.cursorMode);
    m_engine->setPlotColor(plot.red, plot.green, plot.blue);
    m_engine->setGridOn(graph.gridOn);
    m_engine->setGridColor(grid.red, grid.green, grid.blue);
    m_engine->setLabelColor(label.red, label.green, label.blue);
    m_engine->setBackColor(back.red, back.green, back.blue);
    m_engine->setCursorOn(graph.cursorOn);
    m_engine->setLegendOn(graph.legendOn);
    applyChannels();
    syncButtons();
}

void DialogGraph::applyChannels()
{
    const auto& parameters = m_graph->parameters();
    const auto& channels = m_engine->state().channels;
    for (std::uint32_t i = 0; i < maxParameters; ++i) {
        if (i >= parameters.size()) {
            m_engine->setParameterVisible(i, false);
            continue;
        }
        const ProfileParameter& parameter = parameters[i].parameter;
        const Rgb color(parameter.color);
        m_engine->setParameterColor(i, color.red, color.green, color.blue);
        const bool wasHidden = parameters[i].active && !channels[i].visible;
        m_engine->setParameterVisible(i, parameters[i].active);
        m_engine->setParameterLabels(i, zul::toLatin1(parameter.nme), zul::toLatin1(parameter.pun));
        m_engine->setParameterShowSamples(i, parameter.showSamples);
        m_engine->setParameterYMin(i, static_cast<float>(parameter.yMin));
        // Each of these calls makes the columns of all channels anew: only where it tells
        // something. What was hidden may have columns of another range.
        const auto yMax = static_cast<float>(parameter.yMax);
        if (wasHidden || static_cast<float>(channels[i].userYMax) != yMax) {
            m_engine->setParameterYMax(i, yMax);
        }
        m_engine->setParameterAutoScale(i, parameter.autoScale);
    }
}

void DialogGraph::refreshTable()
{
    if (!hasRow(m_selectedRow)) {
        m_selectedRow = noRow;
    }
    m_table->fill(m_graph->parameters(), m_selectedRow);
}

void DialogGraph::syncButtons()
{
    m_tools->setModes(m_engine->state().isAutomatic(), m_engine->state().isSplit());
}

bool DialogGraph::hasRow(int row) const
{
    return m_graph != nullptr && row >= 0 &&
           static_cast<std::size_t>(row) < m_graph->parameters().size();
}

void DialogGraph::slotAddParameter()
{
    if (m_graph == nullptr) {
        return;
    }
    if (m_graph->parameters().size() >= static_cast<std::size_t>(maxParameters)) {
        MessageBoxes::ask(this, QMessageBox::Warning, QLatin1String(MessageBoxes::warningTitle),
                          QStringLiteral("Maximum number of parameters reached !"),
                          {QMessageBox::Ok});
        return;
    }
    m_graph->parameters().emplace_back();
    m_engine->clearChannel(static_cast<std::uint32_t>(m_graph->parameters().size() - 1));
    refreshTable();
    applyChannels();
    markEdited();
}

void DialogGraph::slotDeleteParameter()
{
    if (!hasRow(m_selectedRow)) {
        return;
    }
    m_graph->parameters().erase(m_graph->parameters().begin() + m_selectedRow);
    // What was recorded stays with its parameter.
    m_engine->removeChannel(static_cast<std::uint32_t>(m_selectedRow));
    m_selectedRow = noRow;
    refreshTable();
    applyChannels();
    markEdited();
}

void DialogGraph::slotSetupParameter()
{
    openEditor(m_selectedRow, EditorPlace::WindowCorner);
}

// Also one that takes the highlight away, as with Control: what was clicked is what Delete removes.
void DialogGraph::slotParameterClicked(int row, int)
{
    m_table->selectRow(row);
}

void DialogGraph::slotParameterDoubleClicked(int row, int)
{
    openEditor(row, EditorPlace::WindowCorner);
}

void DialogGraph::slotSelectedRow()
{
    m_selectedRow = m_table->selectedRow();
}

void DialogGraph::slotContextMenu(QPoint place)
{
    openEditor(m_table->rowAt(place.y()), EditorPlace::Anywhere);
}

void DialogGraph::openEditor(int row, EditorPlace place)
{
    const auto open = [this, row, place] { editParameter(row, place); };
    QMetaObject::invokeMethod(this, open, Qt::QueuedConnection);
}

void DialogGraph::editParameter(int row, EditorPlace place)
{
    if (!hasRow(row) || findChild<DialogSelectParameter*>() != nullptr) {
        return;
    }
    auto* editor = new DialogSelectParameter(
        m_graph->parameters()[static_cast<std::size_t>(row)].parameter, this);
    const QPointer<DialogSelectParameter> open(editor);
    if (place == EditorPlace::WindowCorner) {
        editor->move(mapToGlobal(QPoint(0, 0)));
    }
    editor->exec();
    // Frames go on coming meanwhile: the window may go, and the dialog with it, or its object.
    if (open.isNull()) {
        return;
    }
    const ProfileParameter edited = editor->parameter();
    delete editor;
    if (hasRow(row)) {
        takeEdited(row, edited);
    }
}

void DialogGraph::takeEdited(int row, const ProfileParameter& edited)
{
    ProfileParameter& parameter = m_graph->parameters()[static_cast<std::size_t>(row)].parameter;
    if (!isFedAlike(parameter, edited)) {
        m_engine->clearChannel(static_cast<std::uint32_t>(row)); // values of something else
    }
    parameter = edited;
    refreshTable();
    applyChannels();
    markEdited();
}

void DialogGraph::slotActive(int row, bool checked)
{
    if (!hasRow(row)) {
        return;
    }
    m_graph->parameters()[static_cast<std::size_t>(row)].active = checked;
    markEdited();
    refreshTable();
    applyChannels();
}

void DialogGraph::slotSetup()
{
    showGraphSetup();
}

// Nothing goes out of here; the slot lets the header be wired alike in all windows.
void DialogGraph::slotOutputOn(bool) {}

void DialogGraph::slotCommandPress(int id)
{
    m_held = id;
}

void DialogGraph::slotCommandRelease(int id)
{
    constexpr double firstRange = GraphState::defaultSeconds;
    letGo();
    switch (static_cast<GraphCommand>(id)) {
    case GraphCommand::ZoomIn:
    case GraphCommand::ZoomOut:
        break;
    case GraphCommand::ZoomOneToOne:
        setRange(firstRange);
        break;
    case GraphCommand::ZoomMarker:
        m_engine->zoomMarker();
        keepModes();
        break;
    case GraphCommand::ClearAll:
        m_engine->clearAll();
        keepModes(); // the range is the first one again
        break;
    case GraphCommand::AutoMode:
        setAutoMode(m_tools->button(GraphCommand::AutoMode)->isChecked());
        break;
    case GraphCommand::SplitMode:
        setSplitMode(true);
        break;
    case GraphCommand::SingleMode:
        setSplitMode(false);
        break;
    case GraphCommand::Reset:
        resetAll();
        break;
    case GraphCommand::Setup:
        showGraphSetup();
        break;
    case GraphCommand::Snapshot:
        saveSnapshot();
        break; // the window may be gone
    }
}

void DialogGraph::setRange(double seconds)
{
    m_engine->setRange(static_cast<float>(seconds));
    if (m_graph != nullptr) {
        m_graph->graph().xRange = seconds;
        markEdited();
    }
}

void DialogGraph::setAutoMode(bool on)
{
    m_engine->setAutoMode(on ? 1 : 0);
    if (m_graph != nullptr) {
        m_graph->graph().autoMode = on ? 1 : 0;
        markEdited();
    }
    syncButtons();
}

void DialogGraph::setSplitMode(bool on)
{
    m_engine->setSplitMode(on ? 1 : 0);
    if (m_graph != nullptr) {
        m_graph->graph().splitMode = on ? 1 : 0;
        markEdited();
    }
    syncButtons();
}

void DialogGraph::resetAll()
{
    m_engine->clearAll();
    setAutoMode(true);
    setSplitMode(true);
    setRange(GraphState::defaultSeconds);
}

void DialogGraph::slotManMode()
{
    keepModes();
}

void DialogGraph::keepModes()
{
    if (m_graph != nullptr && takeModes(m_engine->state(), m_graph->graph())) {
        markEdited();
        m_setupDialog->refresh();
    }
    syncButtons();
}

void DialogGraph::slotTimeout()
{
    const auto heldIs = [this](GraphCommand command) {
        return m_held == static_cast<int>(command);
    };
    if (heldIs(GraphCommand::ZoomIn) || heldIs(GraphCommand::ZoomOut)) {
        const GraphState& state = m_engine->state();
        setRange(zoomedRange(state.xMax - state.xMin, heldIs(GraphCommand::ZoomIn)
                                                          ? ZoomDirection::In
                                                          : ZoomDirection::Out));
    }
    header()->setInputCount(m_feed.frameCount()); // the lamp goes out only in such a call
}

void DialogGraph::slotGraphSetup()
{
    if (m_graph != nullptr) {
        applySettings();
        markEdited();
    }
}

void DialogGraph::showGraphSetup()
{
    if (m_graph != nullptr) {
        m_setupDialog->setObject(m_graph);
        m_setupDialog->show();
        m_setupDialog->raise();
    }
}

QPixmap DialogGraph::snapshot()
{
    QPixmap picture = grab();
    if (m_plot != nullptr) {
        // What OpenGL has drawn is not in a window's own pixels.
        QPainter painter(&picture);
        painter.drawImage(QRect(m_plot->mapTo(this, QPoint(0, 0)), m_plot->size()),
                          m_plot->picture());
    }
    return picture;
}

void DialogGraph::saveSnapshot()
{
    const QPixmap picture = snapshot();
    // The main window lives longer than this one.
    const QString name =
        FileDialogs::saveFile(window(), QStringLiteral("Save Snapshot"),
                              QStringLiteral("BMP File (*.bmp);;All Files (*.*)"),
                              QStringLiteral("bmp"), QStringLiteral("./snapshot.bmp"));
    if (!name.isEmpty()) {
        picture.save(name);
    }
}

} // namespace gui

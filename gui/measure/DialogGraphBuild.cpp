// How the oscilloscope's window is put together.

#include "gui/controls/Look.h"
#include "gui/frame/WidgetHeader.h"
#include "gui/measure/DialogGraph.h"
#include "gui/measure/DialogGraphSetup.h"
#include "gui/measure/GraphParameterTable.h"
#include "gui/measure/GraphToolBar.h"
#include "gui/measure/WidgetGraph.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QTimer>
#include <QToolButton>

namespace gui {

namespace {

constexpr QSize firstSize(600, 300);
constexpr int leastWidth = 300;
constexpr int parametersStretch = 1;
constexpr int plotStretch = 3;

QToolButton* makeButton(const char* iconName, const char* toolTip, QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setIcon(icon(iconName));
    button->setToolTip(QLatin1String(toolTip));
    return button;
}

} // namespace

QSize DialogGraph::sizeHint() const
{
    return firstSize;
}

void DialogGraph::build()
{
    auto* splitter = new QSplitter(this);
    splitter->addWidget(buildParameters());
    splitter->addWidget(buildPlot());
    splitter->setStretchFactor(0, parametersStretch);
    splitter->setStretchFactor(1, plotStretch);
    splitter->setChildrenCollapsible(false);
    // In the same parts from the start, whatever the panels would like.
    splitter->setSizes({firstSize.width() * parametersStretch, firstSize.width() * plotStretch});
    m_setupDialog = new DialogGraphSetup(this);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(windowMargin, windowMargin, windowMargin, windowMargin);
    layout->setSpacing(windowMargin);
    layout->addWidget(header());
    layout->addWidget(splitter, 1);
    setMinimumWidth(leastWidth);
    resize(firstSize);
}

QWidget* DialogGraph::buildParameters()
{
    auto* panel = new QWidget(this);
    auto* add = makeButton("parameter-add", "Add Parameter", panel);
    auto* remove = makeButton("parameter-delete", "Delete Parameter", panel);
    // Deliberate: it opens the parameter's editor, and keeps this text.
    auto* setup = makeButton("parameter-configure", "Configure Interface", panel);
    connect(add, &QToolButton::clicked, this, &DialogGraph::slotAddParameter);
    connect(remove, &QToolButton::clicked, this, &DialogGraph::slotDeleteParameter);
    connect(setup, &QToolButton::clicked, this, &DialogGraph::slotSetupParameter);
    m_table = new GraphParameterTable(panel);
    auto* hint = new QLabel(
        QStringLiteral("Left Mouse: Mark\nRight Mouse: Move\nCenter Mouse: Cursor"), panel);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(0);
    buttons->addWidget(add);
    buttons->addWidget(remove);
    buttons->addWidget(setup);
    buttons->addStretch();
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(windowMargin);
    layout->addLayout(buttons);
    layout->addWidget(m_table, 1);
    layout->addWidget(hint);
    return panel;
}

QWidget* DialogGraph::buildPlot()
{
    auto* panel = new QWidget(this);
    m_tools = new GraphToolBar(panel);
    auto* layout = new QHBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(windowMargin);
    layout->addWidget(m_tools);
    layout->addWidget(buildGraph(panel), 1);
    return panel;
}

QWidget* DialogGraph::buildGraph(QWidget* panel)
{
    if (WidgetGraph::isPossible()) {
        m_plot = new WidgetGraph(panel);
        if (m_plot->isValid()) {
            m_engine = m_plot;
            return m_plot;
        }
        delete m_plot;
        m_plot = nullptr;
    }
    m_ownEngine = std::make_unique<GraphEngine>();
    m_engine = m_ownEngine.get();
    auto* notice = new QLabel(QStringLiteral("No OpenGL here: nothing can be plotted."), panel);
    notice->setObjectName(QStringLiteral("noOpenGl"));
    notice->setAlignment(Qt::AlignCenter);
    notice->setWordWrap(true);
    return notice;
}

void DialogGraph::connectControls()
{
    connect(header(), &WidgetHeader::signalOutputOn, this, &DialogGraph::slotOutputOn);
    connect(m_table, &QTableWidget::itemSelectionChanged, this, &DialogGraph::slotSelectedRow);
    connect(m_table, &QTableWidget::cellClicked, this, &DialogGraph::slotParameterClicked);
    connect(m_table, &QTableWidget::cellDoubleClicked, this,
            &DialogGraph::slotParameterDoubleClicked);
    connect(m_table, &QWidget::customContextMenuRequested, this, &DialogGraph::slotContextMenu);
    connect(m_table, &GraphParameterTable::signalActive, this, &DialogGraph::slotActive);
    connect(m_tools, &GraphToolBar::signalPressed, this, &DialogGraph::slotCommandPress);
    connect(m_tools, &GraphToolBar::signalLetGo, this, &DialogGraph::letGo);
    connect(m_tools, &GraphToolBar::signalReleased, this, &DialogGraph::slotCommandRelease);
    connect(m_setupDialog, &DialogGraphSetup::signalChanged, this, &DialogGraph::slotGraphSetup);
    connect(m_timer, &QTimer::timeout, this, &DialogGraph::slotTimeout);
    if (m_plot != nullptr) {
        connect(m_plot, &WidgetGraph::signalManMode, this, &DialogGraph::slotManMode);
        connect(m_plot, &WidgetGraph::signalModes, this, &DialogGraph::keepModes);
    }
}

} // namespace gui

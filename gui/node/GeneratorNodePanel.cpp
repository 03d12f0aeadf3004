#include "gui/node/GeneratorNodePanel.h"

#include "gui/controls/Look.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/node/StateLabel.h"
#include "node/GeneratorTables.h"
#include "profile/Arinc825Id.h"

#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <initializer_list>

namespace gui {

namespace {

constexpr int lastNode = static_cast<int>(generator::nodeCount) - 1;
constexpr int listHeight = 60;   // pixels, at most
constexpr int statusHeight = 20; // at least
constexpr int buttonWidth = 48;
constexpr int entryWidth = 92; // at least; nine digits
constexpr QSize nodeIcon(22, 22);

} // namespace

GeneratorNodePanel::GeneratorNodePanel(QWidget* parent) : QWidget(parent)
{
    buildSearch();
    auto* settings = new QGridLayout;
    buildSettings(*settings);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_searchStack);
    layout->addWidget(m_controls.nodes);
    layout->addLayout(settings);
    layout->addStretch();
}

void GeneratorNodePanel::buildSearch()
{
    m_controls.search = makeButton("Search Generators", "search");
    m_progress = new QProgressBar(this);
    m_progress->setObjectName(QStringLiteral("searchProgress"));
    m_progress->setRange(0, lastNode);
    m_progress->setTextVisible(false);
    m_searchStack = new QStackedWidget(this);
    m_searchStack->setObjectName(QStringLiteral("searchStack"));
    m_searchStack->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    m_searchStack->addWidget(m_controls.search);
    m_searchStack->addWidget(m_progress);
    m_controls.nodes = new QListWidget(this);
    m_controls.nodes->setObjectName(QStringLiteral("nodes"));
    m_controls.nodes->setMaximumHeight(listHeight);
    m_controls.nodes->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    m_controls.nodes->setIconSize(nodeIcon);
}

QPushButton* GeneratorNodePanel::makeButton(const char* text, const char* name)
{
    auto* button = new QPushButton(QLatin1String(text), this);
    button->setObjectName(QLatin1String(name));
    return button;
}

void GeneratorNodePanel::buildSettings(QGridLayout& grid)
{
    m_controls.nodeId = new QSpinBox(this);
    m_controls.nodeId->setObjectName(QStringLiteral("nodeId"));
    m_controls.nodeId->setRange(0, lastNode);
    m_controls.nodeId->setKeyboardTracking(false); // half a number would be another node
    m_controls.baseId = new QSpinBox(this);
    m_controls.baseId->setObjectName(QStringLiteral("baseId"));
    m_controls.baseId->setRange(0, static_cast<int>(zul::arinc825::maxExtendedId));
    m_controls.baseId->setKeyboardTracking(false);
    m_controls.baudrate = new QwtComboBox(0, this);
    m_controls.baudrate->setObjectName(QStringLiteral("baudrate"));
    for (const GeneratorChoice& choice : generatorBaudrates) {
        m_controls.baudrate->addItem(QLatin1String(choice.name), choice.value);
    }
    m_controls.setNodeId = makeButton("Set", "setNodeId");
    m_controls.setBaseId = makeButton("Set", "setBaseId");
    m_controls.setBaudrate = makeButton("Set", "setBaudrate");
    m_controls.flash = makeButton("Flash", "flash");
    for (QPushButton* button :
         {m_controls.setNodeId, m_controls.setBaseId, m_controls.setBaudrate, m_controls.flash}) {
        button->setFixedWidth(buttonWidth);
    }
    m_status = new StateLabel(this);
    m_status->setObjectName(QStringLiteral("flashStatus"));
    m_status->setMinimumHeight(statusHeight);

    const auto addRow = [&](const char* label, QWidget* control, QWidget* button) {
        const int row = grid.rowCount();
        grid.addWidget(new QLabel(QLatin1String(label), this), row, 0);
        if (control != nullptr) {
            grid.addWidget(control, row, 1);
        }
        if (button != nullptr) {
            grid.addWidget(button, row, 2);
        }
    };
    addRow("Node Id", m_controls.nodeId, m_controls.setNodeId);
    addRow("CAN Base Id", m_controls.baseId, m_controls.setBaseId);
    addRow("Baudrate", m_controls.baudrate, m_controls.setBaudrate);
    addRow("Store Data", nullptr, m_controls.flash);
    addRow("Set/Flash Status", nullptr, nullptr);
    grid.addWidget(m_status, grid.rowCount() - 1, 1, 1, 2);
    grid.setVerticalSpacing(windowMargin);
}

void GeneratorNodePanel::showSearch(bool isSearching, std::uint32_t node) const
{
    m_searchStack->setCurrentWidget(isSearching ? static_cast<QWidget*>(m_progress)
                                                : m_controls.search);
    m_progress->setValue(std::min(static_cast<int>(node), lastNode));
}

void GeneratorNodePanel::showFound(const std::vector<GeneratorControl::Found>& found) const
{
    const QIcon picture = icon("function-gen");
    m_controls.nodes->clear();
    for (const GeneratorControl::Found& generator : found) {
        auto* item = new QListWidgetItem(
            picture, QStringLiteral("Node %1 / Base %2").arg(generator.node).arg(generator.baseId),
            m_controls.nodes);
        item->setData(Qt::UserRole, generator.node);
        item->setData(baseIdRole, generator.baseId);
    }
}

void GeneratorNodePanel::showGenerator(const ObjectFunctionGen::Generator& generator) const
{
    m_controls.nodeId->setValue(generator.nodeId);
    m_controls.baseId->setValue(generator.nodeBaseId);
    m_controls.baudrate->setData(generator.baudrate);
}

void GeneratorNodePanel::showFlash(const StateLook& look, bool isWaiting) const
{
    m_status->showLook(look);
    for (QPushButton* button :
         {m_controls.setNodeId, m_controls.setBaseId, m_controls.setBaudrate, m_controls.flash}) {
        button->setEnabled(!isWaiting);
    }
}

} // namespace gui

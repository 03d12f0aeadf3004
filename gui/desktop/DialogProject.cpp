#include "gui/desktop/DialogProject.h"

#include "comm/CanInterface.h"
#include "core/Kernel.h"
#include "gui/controls/Look.h"
#include "gui/controls/WidgetLoad.h"
#include "gui/desktop/BusStates.h"
#include "gui/desktop/DialogInterfaceProperties.h"
#include "gui/frame/MessageBoxes.h"
#include "project/Project.h"

#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMenu>
#include <QScopedValueRollback>
#include <QTableWidget>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

namespace gui {

namespace {

enum Column { nameColumn, connectColumn, loadColumn, columnCount };

constexpr int loadPeriodMs = 100;
constexpr int rowHeight = 20; // pixels
constexpr int cellFontPixels = 12;
constexpr int connectWidth = 104;
constexpr int visibleRows = 6;
constexpr int minimumSection = 50;
constexpr int tableWidth = 280;
constexpr QSize toolIconSize(20, 20);

bool isClosed(comm::CanInterface& interface)
{
    return interface.status() == DeviceStatus::Closed;
}

QFont cellFont(const QFont& base, bool bold)
{
    QFont font = base;
    font.setPixelSize(cellFontPixels);
    font.setBold(bold);
    return font;
}

} // namespace

DialogProject::DialogProject(QWidget* parent)
    : QWidget(parent), m_loadTimer(new QTimer(this)), m_groupIcon(icon("group"))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(2);
    layout->addWidget(buildTools());
    buildTable();
    layout->addWidget(m_table);
    buildTree();
    layout->addWidget(m_tree, 1);
    m_menu = new QMenu(this);
    connectControls();
    enableButtons();
    m_loadTimer->start(loadPeriodMs);
}

DialogProject::~DialogProject() = default;

QWidget* DialogProject::buildTools()
{
    auto* tools = new QWidget(this);
    auto* row = new QHBoxLayout(tools);
    row->setContentsMargins(0, 0, 0, 0);
    const auto addButton = [&](const char* name, const char* toolTip) {
        auto* button = new QToolButton(tools);
        button->setIcon(icon(name));
        button->setIconSize(toolIconSize);
        button->setToolTip(QLatin1String(toolTip));
        button->setObjectName(QLatin1String(name));
        button->setAutoRaise(true);
        row->addWidget(button);
        return button;
    };
    m_add = addButton("interface-add", "Add Interface to Project");
    m_delete = addButton("interface-delete", "Delete Interface");
    m_configure = addButton("interface-configure", "Configure Interface");
    row->addStretch();
    return tools;
}

void DialogProject::buildTable()
{
    m_table = new QTableWidget(0, columnCount, this);
    m_table->setObjectName(QStringLiteral("interfaces"));
    m_table->setHorizontalHeaderLabels(
        {QStringLiteral("Interface"), QStringLiteral("Connect"), QStringLiteral("Load")});
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    // The keyboard would move the highlight away from the row that the buttons act on.
    m_table->setFocusPolicy(Qt::NoFocus);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->verticalHeader()->setMinimumSectionSize(rowHeight);
    m_table->verticalHeader()->setDefaultSectionSize(rowHeight);
    m_table->horizontalHeader()->setSectionResizeMode(nameColumn, QHeaderView::ResizeToContents);
    m_table->setColumnWidth(connectColumn, connectWidth);
    m_table->horizontalHeader()->setMinimumSectionSize(minimumSection);
    m_table->horizontalHeader()->setSectionResizeMode(loadColumn, QHeaderView::Stretch);
    m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->setMinimumWidth(tableWidth);
    m_table->setFixedHeight(m_table->horizontalHeader()->sizeHint().height() +
                            visibleRows * rowHeight);
}

void DialogProject::buildTree()
{
    m_tree = new QTreeWidget(this);
    m_tree->setObjectName(QStringLiteral("objects"));
    m_tree->setHeaderLabel(QStringLiteral("Objects"));
    m_tree->setEditTriggers(QAbstractItemView::EditKeyPressed);
    m_tree->setItemsExpandable(false); // groups always stand open
}

void DialogProject::connectControls()
{
    connect(m_add, &QToolButton::clicked, this, &DialogProject::slotAddInterface);
    connect(m_delete, &QToolButton::clicked, this, &DialogProject::slotDeleteInterface);
    connect(m_configure, &QToolButton::clicked, this, &DialogProject::slotConfigInterface);
    connect(m_table, &QTableWidget::cellClicked, this, &DialogProject::slotInterfaceClicked);
    connect(m_table, &QTableWidget::cellDoubleClicked, this,
            &DialogProject::slotInterfaceDoubleClicked);
    connect(m_tree, &QTreeWidget::itemActivated, this, &DialogProject::slotObjectSelect);
    connect(m_tree, &QTreeWidget::itemChanged, this, &DialogProject::slotObjectRename);
    connect(m_menu->addAction(QStringLiteral("Rename")), &QAction::triggered, this,
            &DialogProject::slotRename);
    connect(m_menu->addAction(QStringLiteral("Delete")), &QAction::triggered, this,
            &DialogProject::slotDelete);
    connect(m_loadTimer, &QTimer::timeout, this, &DialogProject::slotTimeout);
}

void DialogProject::setProject(Project* project)
{
    m_project = project;
    rebuildTree();
}

void DialogProject::contextMenuEvent(QContextMenuEvent* event)
{
    m_menu->exec(event->globalPos());
}

void DialogProject::rebuildTree()
{
    const QScopedValueRollback<bool> guard(m_refreshing, true);
    m_tree->clear();
    if (m_project != nullptr) {
        for (const auto& [type, info] : m_project->types()) {
            if (type == ObjectType::CanInterface) {
                continue;
            }
            auto* group = new QTreeWidgetItem(m_tree, {info.title});
            group->setIcon(0, m_groupIcon);
            group->setData(0, Qt::UserRole, noObject);
            for (const auto& [id, object] : m_project->objects()) {
                if (object->type() == type) {
                    auto* item = new QTreeWidgetItem(group, {object->name()});
                    item->setIcon(0, QIcon(info.icon));
                    item->setData(0, Qt::UserRole, id);
                    item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable);
                }
            }
            group->setExpanded(true);
        }
    }
    rebuildTable();
}

void DialogProject::rebuildTable()
{
    m_rows.clear();
    m_table->clearContents();
    m_table->setRowCount(0);
    if (m_project == nullptr) {
        m_selectedRow = noRow;
        enableButtons();
        return;
    }
    m_table->setRowCount(static_cast<int>(m_project->interfaces().size()));
    int row = 0;
    for (const auto& entry : m_project->interfaces()) {
        if (auto* interface = dynamic_cast<comm::CanInterface*>(entry.second)) {
            addTableRow(row++, *interface);
        }
    }
    refreshStates();
    if (interfaceOf(m_selectedRow) != nullptr) {
        m_table->selectRow(m_selectedRow);
    } else {
        m_selectedRow = noRow;
    }
    enableButtons();
}

void DialogProject::addTableRow(int row, comm::CanInterface& interface)
{
    m_rows[row] = &interface;
    auto* name = new QTableWidgetItem(interface.name());
    name->setFont(cellFont(font(), false));
    name->setData(Qt::UserRole, interface.id());
    name->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    m_table->setItem(row, nameColumn, name);
    auto* state = new QTableWidgetItem;
    state->setFlags(Qt::ItemIsEnabled);
    m_table->setItem(row, connectColumn, state);
    auto* load = new WidgetLoad;
    load->set(static_cast<std::uint32_t>(interface.frameRate()), interface.busLoad());
    connect(load, &WidgetLoad::signalDoubleClicked, this, &DialogProject::slotOpenStatus);
    m_table->setCellWidget(row, loadColumn, load);
}

void DialogProject::refreshStates()
{
    for (const auto& [row, interface] : m_rows) {
        const BusStateLook& look = busStateLook(interface->status());
        QTableWidgetItem* state = m_table->item(row, connectColumn);
        state->setText(QLatin1String(look.text));
        state->setFont(cellFont(font(), true));
        state->setForeground(look.color);
    }
    enableButtons();
}

comm::CanInterface* DialogProject::interfaceOf(int row) const
{
    const auto found = m_rows.find(row);
    return found != m_rows.end() ? found->second : nullptr;
}

void DialogProject::enableButtons()
{
    comm::CanInterface* interface = interfaceOf(m_selectedRow);
    const bool canChange = interface != nullptr && isClosed(*interface);
    m_delete->setEnabled(canChange);
    m_configure->setEnabled(canChange);
}

void DialogProject::slotTimeout()
{
    if (m_project == nullptr) {
        return;
    }
    for (const auto& [row, interface] : m_rows) {
        if (auto* load = qobject_cast<WidgetLoad*>(m_table->cellWidget(row, loadColumn))) {
            load->set(static_cast<std::uint32_t>(interface->frameRate()), interface->busLoad());
        }
    }
    refreshStates();
}

void DialogProject::slotAddInterface()
{
    if (m_project == nullptr) {
        return;
    }
    auto* created = m_project->createObject(ObjectType::CanInterface);
    if (auto* interface = dynamic_cast<comm::CanInterface*>(created)) {
        interface->selectDevice(std::string());
    }
    rebuildTable();
    Kernel::instance().notify(Kernel::interfacesAspect);
}

void DialogProject::slotDeleteInterface()
{
    comm::CanInterface* interface = interfaceOf(m_selectedRow);
    if (interface == nullptr) {
        return;
    }
    const int id = interface->id();
    emit signalCloseWindow(id);
    m_project->deleteObject(id);
    m_selectedRow = noRow;
    rebuildTable();
    Kernel::instance().notify(Kernel::interfacesAspect);
}

void DialogProject::slotConfigInterface()
{
    if (comm::CanInterface* interface = interfaceOf(m_selectedRow)) {
        configure(*interface);
    }
}

void DialogProject::slotInterfaceClicked(int row, int column)
{
    comm::CanInterface* interface = interfaceOf(row);
    if (interface == nullptr) {
        return;
    }
    m_selectedRow = row;
    if (column == connectColumn) {
        toggleConnection(*interface);
    }
    refreshStates();
}

void DialogProject::slotInterfaceDoubleClicked(int row, int column)
{
    comm::CanInterface* interface = interfaceOf(row);
    if (interface == nullptr) {
        return;
    }
    m_selectedRow = row;
    enableButtons();
    if (column == nameColumn) {
        configure(*interface);
    }
}

void DialogProject::slotObjectSelect(QTreeWidgetItem* item, int)
{
    const int id = item->data(0, Qt::UserRole).toInt();
    if (!m_refreshing && id != noObject) {
        emit signalSelectObject(id);
    }
}

void DialogProject::slotObjectRename(QTreeWidgetItem* item, int)
{
    if (!m_refreshing) {
        emit signalRenameObject(item->data(0, Qt::UserRole).toInt(), item->text(0));
    }
}

void DialogProject::slotRename(bool)
{
    if (QTreeWidgetItem* item = m_tree->currentItem()) {
        if (item->flags().testFlag(Qt::ItemIsEditable)) {
            m_tree->editItem(item);
        }
    }
}

void DialogProject::slotDelete(bool)
{
    const QTreeWidgetItem* item = m_tree->currentItem();
    const int id = item != nullptr ? item->data(0, Qt::UserRole).toInt() : noObject;
    if (id == noObject) {
        return;
    }
    const auto answer = MessageBoxes::ask(
        this, QMessageBox::Question, QLatin1String(MessageBoxes::warningTitle),
        QStringLiteral("Really delete the object ?"), {QMessageBox::Yes, QMessageBox::Cancel});
    if (answer == QMessageBox::Yes) {
        emit signalDeleteObject(id);
    }
}

void DialogProject::slotOpenStatus()
{
    if (const comm::CanInterface* interface = interfaceOf(m_selectedRow)) {
        emit signalSelectObject(interface->id());
    }
}

void DialogProject::toggleConnection(comm::CanInterface& interface)
{
    if (!isClosed(interface)) {
        interface.disconnect();
        return;
    }
    if (!interface.connect()) {
        MessageBoxes::ask(this, QMessageBox::Critical, QStringLiteral("Error"),
                          QStringLiteral("Could not open device !\n\n") + interface.errorMessage(),
                          {QMessageBox::Ok});
    }
}

void DialogProject::configure(comm::CanInterface& interface)
{
    if (!isClosed(interface)) {
        return;
    }
    if (m_properties == nullptr) {
        m_properties = new DialogInterfaceProperties(this);
    }
    m_properties->setInterface(&interface);
    m_properties->exec();
    if (m_properties->hasChanged()) {
        m_project->markEdited();
    }
    m_properties->setInterface(nullptr);
    rebuildTable();
    Kernel::instance().notify(Kernel::interfacesAspect);
}

} // namespace gui

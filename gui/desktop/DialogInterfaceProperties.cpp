#include "gui/desktop/DialogInterfaceProperties.h"

#include "comm/CanInterface.h"
#include "core/Console.h"
#include "core/GuardedCall.h"
#include "core/Latin1.h"
#include "core/ModuleRegistry.h"
#include "gui/desktop/WidgetProperty.h"

#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace gui {

namespace {

constexpr int listWidth = 150; // pixels
constexpr int gridSpacing = 5;
constexpr int columnsOfEditor = 2;
constexpr QSize firstSize(900, 640);
constexpr const char* interfaceNameKey = "InterfaceName";

DeviceInfo infoOf(Device& device)
{
    return zul::guardedCall("info", DeviceInfo(), [&] { return device.info(); });
}

} // namespace

DialogInterfaceProperties::DialogInterfaceProperties(QWidget* parent) : QDialog(parent)
{
    setModal(true);
    setWindowTitle(QStringLiteral("Interface Properties"));
    auto* left = new QVBoxLayout;
    left->addWidget(new QLabel(QStringLiteral("Available Devices"), this));
    m_devices = new QListWidget(this);
    m_devices->setMinimumWidth(listWidth);
    m_devices->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Expanding);
    m_devices->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    m_devices->setObjectName(QStringLiteral("devices"));
    left->addWidget(m_devices);

    auto* group = new QGroupBox(QStringLiteral("Interface Properties"), this);
    m_pageLayout = new QVBoxLayout(group);
    auto* columns = new QGridLayout;
    columns->addLayout(left, 0, 0);
    columns->addWidget(group, 0, 1);
    columns->setColumnStretch(1, 1);

    auto* ok = new QPushButton(QStringLiteral("Ok"), this);
    ok->setObjectName(QStringLiteral("ok"));
    ok->setAutoDefault(false); // Enter in an editor is not to close the dialog
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(columns, 1);
    layout->addWidget(ok, 0, Qt::AlignRight);
    resize(firstSize);

    connect(m_devices, &QListWidget::currentItemChanged, this,
            QOverload<QListWidgetItem*, QListWidgetItem*>::of(
                &DialogInterfaceProperties::slotChangePage));
    connect(m_devices, &QListWidget::itemPressed, this,
            QOverload<QListWidgetItem*>::of(&DialogInterfaceProperties::slotChangePage));
    connect(ok, &QPushButton::clicked, this, &DialogInterfaceProperties::slotClose);
}

void DialogInterfaceProperties::setInterface(comm::CanInterface* interface)
{
    m_interface = interface;
    m_device = interface != nullptr ? interface->device() : nullptr;
    m_changed = false;
    rebuildEditors();
    fillDevices();
    refreshValues();
}

void DialogInterfaceProperties::slotChangePage(QListWidgetItem* current, QListWidgetItem*)
{
    slotChangePage(current);
}

void DialogInterfaceProperties::slotChangePage(QListWidgetItem* item)
{
    if (item == nullptr || item == m_lastItem || m_refreshing || !item->isSelected() ||
        m_interface == nullptr) {
        return;
    }
    m_lastItem = item;
    m_changed = true;
    const std::string moduleName = zul::toLatin1(item->data(Qt::UserRole).toString());
    if (!m_interface->selectDevice(moduleName)) {
        zul::print("Error selecting device <%s>\n", moduleName.c_str());
    }
    m_device = m_interface->device();
    rebuildEditors();
    refreshValues();
}

void DialogInterfaceProperties::slotValueChanged(const std::string& key, const std::string& value)
{
    if (m_device == nullptr) {
        return;
    }
    m_changed = true;
    if (key == interfaceNameKey) {
        m_interface->setName(zul::fromLatin1(value));
    }
    zul::guardedCall("setProperty", [&] { m_device->setProperty(key, value); });
    m_lastKey = key;
    refreshValues();
}

void DialogInterfaceProperties::slotClose()
{
    if (m_device != nullptr) {
        const QString name = zul::fromLatin1(m_device->getStringProp(interfaceNameKey));
        m_changed = m_changed || name != m_interface->name();
        m_interface->setName(name);
    }
    accept();
}

void DialogInterfaceProperties::rebuildEditors()
{
    m_editors.clear();
    delete m_page;
    m_page = nullptr;
    if (m_device == nullptr) {
        return;
    }
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    auto* content = new QWidget;
    auto* grid = new QGridLayout(content);
    grid->setSpacing(gridSpacing);
    grid->setContentsMargins(gridSpacing, gridSpacing, gridSpacing, gridSpacing);
    int row = 0;
    for (const DeviceProperty& property : infoOf(*m_device).properties) {
        auto* editor = new WidgetProperty(property, content);
        editor->setObjectName(zul::fromLatin1(property.key));
        grid->addWidget(editor, row++, 0, 1, columnsOfEditor);
        connect(editor, &WidgetProperty::signalChanged, this,
                &DialogInterfaceProperties::slotValueChanged);
        m_editors[property.key] = editor;
    }
    grid->setRowStretch(row, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 2);
    area->setWidget(content);
    // Wide enough for every editor, so that only the height may need scrolling.
    area->setMinimumWidth(content->minimumSizeHint().width() +
                          area->verticalScrollBar()->sizeHint().width());
    m_page = area;
    m_pageLayout->addWidget(m_page);
}

void DialogInterfaceProperties::fillDevices()
{
    const QScopedValueRollback<bool> guard(m_refreshing, true);
    const QSignalBlocker blocker(m_devices);
    m_devices->clear();
    m_lastItem = nullptr;
    const std::string chosen = m_device != nullptr ? infoOf(*m_device).moduleName : std::string();
    for (const auto& [name, module] : ModuleRegistry::instance().modules()) {
        auto* item = new QListWidgetItem(zul::fromLatin1(module.info.displayName), m_devices);
        item->setData(Qt::UserRole, zul::fromLatin1(name));
        if (m_device != nullptr && name == chosen) {
            m_devices->setCurrentItem(item);
            m_lastItem = item;
        }
    }
}

void DialogInterfaceProperties::refreshValues()
{
    if (m_device == nullptr) {
        return;
    }
    const auto& properties = *m_device->properties();
    for (const auto& [key, editor] : m_editors) {
        const auto found = properties.find(key);
        editor->setValue(found != properties.end() ? found->second : std::string());
    }
}

} // namespace gui

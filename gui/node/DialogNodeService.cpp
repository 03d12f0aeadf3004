#include "gui/node/DialogNodeService.h"

#include "core/Latin1.h"
#include "gui/controls/Look.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/frame/WidgetInterfaceSelect.h"
#include "gui/node/WidgetNsArincDus.h"
#include "gui/node/WidgetNsArincIds.h"
#include "message/MessageContainer.h"
#include "project/ObjectNodeService.h"

#include <QLabel>
#include <QStackedWidget>
#include <QTabWidget>
#include <QVBoxLayout>

namespace gui {

namespace {

// Values of the list of services; on the bus they have other numbers.
constexpr std::int32_t identificationChoice = 0;
constexpr std::int32_t uploadChoice = 3;

// Pages of the stack.
constexpr int missingPage = 2;

int pageOf(std::int32_t service)
{
    switch (service) {
    case identificationChoice:
        return 0;
    case uploadChoice:
        return 1;
    default:
        return missingPage;
    }
}

QLabel* makeMissingPage()
{
    auto* page = new QLabel(QStringLiteral("not yet implemented"));
    page->setAlignment(Qt::AlignCenter);
    return page;
}

} // namespace

DialogNodeService::DialogNodeService(ObjectNodeService* object, QWidget* parent)
    : DialogBase(object, parent), m_nodeService(object)
{
    build();
    showSettings();
    resize(minimumSizeHint());
}

DialogNodeService::~DialogNodeService() = default;

void DialogNodeService::build()
{
    m_interfaceSelect = new WidgetInterfaceSelect(this);
    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("protocols"));
    m_tabs->addTab(buildArinc825(), QStringLiteral("ARINC 825"));
    m_tabs->addTab(makeMissingPage(), QStringLiteral("CANaerospace"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(windowMargin, windowMargin, windowMargin, windowMargin);
    layout->setSpacing(windowMargin);
    layout->addWidget(m_interfaceSelect);
    layout->addWidget(m_tabs, 1);
    connect(m_interfaceSelect, &WidgetInterfaceSelect::signalChanged, this,
            &DialogNodeService::slotInterface);
}

QWidget* DialogNodeService::buildArinc825()
{
    auto* page = new QWidget;
    m_services = new QwtComboBox(0, page);
    m_services->setObjectName(QStringLiteral("services"));
    m_services->addItem(QStringLiteral("IDS Identification Service"), identificationChoice);
    m_services->addItem(QStringLiteral("DUS Data Upload Service"), uploadChoice);
    m_pages = new QStackedWidget(page);
    m_pages->setObjectName(QStringLiteral("pages"));
    m_pages->addWidget(new WidgetNsArincIds(*this));
    m_pages->addWidget(new WidgetNsArincDus(*this));
    m_pages->addWidget(makeMissingPage());
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(m_services);
    layout->addWidget(m_pages, 1);
    connect(m_services, QOverload<int, int>::of(&QwtComboBox::signalActivated), this,
            &DialogNodeService::slotServiceSelect);
    return page;
}

void DialogNodeService::setObject(Object* object)
{
    DialogBase::setObject(object);
    m_nodeService = dynamic_cast<ObjectNodeService*>(object);
}

void DialogNodeService::updateDialog()
{
    showSettings();
}

void DialogNodeService::showSettings()
{
    if (m_nodeService != nullptr) {
        const QString& name = m_nodeService->settings().outputInterface;
        m_interface = zul::toLatin1(name);
        m_interfaceSelect->setInterface(name);
    }
}

void DialogNodeService::slotInterface(const QString& name)
{
    m_interface = zul::toLatin1(name);
    if (m_nodeService != nullptr) {
        m_nodeService->settings().inputInterface = name;
        m_nodeService->settings().outputInterface = name;
        markEdited();
    }
}

void DialogNodeService::slotServiceSelect(int, int service)
{
    m_service = service;
    m_pages->setCurrentIndex(pageOf(service));
}

void DialogNodeService::receive(MessageContainer& batch)
{
    const bool isOurs = m_interface == allInterfaces || m_interface == batch.srcDest();
    if (m_nodeService == nullptr || !isOurs) {
        return;
    }
    if (auto* page = qobject_cast<WidgetNsArinc*>(m_pages->widget(pageOf(m_service)))) {
        page->receive(batch);
    }
}

void DialogNodeService::sendToNode(MessageContainer& batch)
{
    batch.setSrcDest(m_interface);
    send(batch);
}

} // namespace gui

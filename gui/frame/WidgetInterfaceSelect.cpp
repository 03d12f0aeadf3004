#include "gui/frame/WidgetInterfaceSelect.h"

#include "core/Kernel.h"
#include "project/InterfaceObject.h"
#include "project/Project.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QToolButton>

namespace gui {

namespace {

constexpr int smallestWidth = 30;

// A menu reads "&" as the mark of a shortcut.
QString menuText(QString name)
{
    return name.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

} // namespace

WidgetInterfaceSelect::WidgetInterfaceSelect(QWidget* parent)
    : QWidget(parent),
      m_interface(allInterfacesName()),
      m_menu(new QMenu(this)),
      m_button(new QToolButton(this)),
      m_layout(new QHBoxLayout(this))
{
    m_button->setMenu(m_menu);
    m_button->setPopupMode(QToolButton::InstantPopup);
    m_button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_button->setText(menuText(m_interface));
    m_button->setObjectName(QStringLiteral("interfaceButton"));
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->addWidget(m_button);
    m_button->setMinimumWidth(smallestWidth); // in a narrow bar the name is cut
    connect(m_menu, &QMenu::triggered, this, &WidgetInterfaceSelect::slotInterfaceSelect);
    observe(&Kernel::instance(), Kernel::interfacesAspect);
    rebuildMenu();
}

WidgetInterfaceSelect::~WidgetInterfaceSelect() = default;

void WidgetInterfaceSelect::update(ObserverModel*, int aspect)
{
    if (aspect == Kernel::interfacesAspect) {
        rebuildMenu();
    }
}

void WidgetInterfaceSelect::setInterface(const QString& name)
{
    m_interface = name;
    m_button->setText(menuText(name));
}

void WidgetInterfaceSelect::slotInterfaceSelect(QAction* action)
{
    setInterface(action->data().toString());
    emit signalChanged(m_interface);
}

void WidgetInterfaceSelect::rebuildMenu()
{
    m_menu->clear();
    m_menu->addAction(allInterfacesName())->setData(allInterfacesName());
    const Project* project = Kernel::instance().project();
    if (project == nullptr) {
        return;
    }
    for (const auto& entry : project->interfaces()) {
        const QString& name = entry.second->name();
        m_menu->addAction(menuText(name))->setData(name);
    }
}

} // namespace gui
